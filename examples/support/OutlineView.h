// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineEntry.h"

#include <QList>
#include <QTreeWidget>

/// What a document consists of, as a tree. A click on an entry, or Return, chooses it.
class OutlineView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit OutlineView(QWidget *parent = nullptr);

    /// Lists \a entries, or \a hint when there are none. Entries of the same texts and levels as
    /// before stay as they are seen, and only lead to other lines.
    void setEntries(const QList<OutlineEntry> &entries, const QString &hint);

Q_SIGNALS:
    /// The user chose an entry that leads to \a line, base 0.
    void lineChosen(int line);

private:
    bool hasShapeOf(const QList<OutlineEntry> &entries) const;
    void addEntries(const QList<OutlineEntry> &entries);
    void choose(const QTreeWidgetItem *item);

    QList<QTreeWidgetItem *> m_items; ///< those of the entries, in their order
};
