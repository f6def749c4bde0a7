// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPair>
#include <QTreeWidget>

/// Names and values, a line each.
class PropertyList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit PropertyList(QWidget *parent = nullptr);

    void setProperties(const QList<QPair<QString, QString>> &properties);
};
