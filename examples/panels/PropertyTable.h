// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ToolView.h"

#include <QPointer>

class QTreeWidget;

/// The properties of one object, with the type and the value that they had when the object was set.
class PropertyTable : public ToolView
{
    Q_OBJECT

public:
    explicit PropertyTable(QWidget *parent = nullptr);

    /// \a object is only looked at, and may go at any time; null for none.
    void setObject(QObject *object);

private:
    void addRow(const QString &name, const QString &type, const QString &value);
    void addStaticProperties();
    void addDynamicProperties();

    QPointer<QObject> m_object;
    QTreeWidget *m_table;
};
