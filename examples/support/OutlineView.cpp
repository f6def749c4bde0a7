// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "OutlineView.h"

#include "ToolView.h"

#include <QHeaderView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int LineRole = Qt::UserRole;
constexpr int LevelRole = Qt::UserRole + 1;

/// The item below which one of \a level stands, counted from \a last; null at the top.
QTreeWidgetItem *parentFor(QTreeWidgetItem *last, int level)
{
    while (last != nullptr && last->data(0, LevelRole).toInt() >= level)
        last = last->parent();
    return last;
}

} // namespace

OutlineView::OutlineView(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(u"outline"_s);
    setWindowTitle(tr("Outline"));
    setWindowIcon(QIcon(u":/support/outline.svg"_s));
    setAccessibleName(windowTitle());
    setFrameShape(QFrame::NoFrame);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemClicked, this, &OutlineView::choose);
    connect(this, &QTreeWidget::itemActivated, this, &OutlineView::choose);
    setEntries({}, tr("No document"));
}

void OutlineView::setEntries(const QList<OutlineEntry> &entries, const QString &hint)
{
    if (!entries.isEmpty() && hasShapeOf(entries)) {
        for (qsizetype i = 0; i < entries.size(); ++i)
            m_items.at(i)->setData(0, LineRole, entries.at(i).line);
        return;
    }
    clear();
    m_items.clear();
    if (entries.isEmpty()) {
        auto *item = new QTreeWidgetItem({hint});
        item->setSizeHint(0, {0, ToolView::Row_Height});
        item->setFlags(Qt::NoItemFlags);
        addTopLevelItem(item);
    }
    addEntries(entries);
    expandAll();
}

bool OutlineView::hasShapeOf(const QList<OutlineEntry> &entries) const
{
    const auto isLike = [](const QTreeWidgetItem *item, const OutlineEntry &entry) {
        return item->text(0) == entry.text && item->data(0, LevelRole).toInt() == entry.level;
    };
    return std::equal(m_items.cbegin(), m_items.cend(), entries.cbegin(), entries.cend(), isLike);
}

void OutlineView::addEntries(const QList<OutlineEntry> &entries)
{
    QTreeWidgetItem *last = nullptr;
    for (const OutlineEntry &entry : entries) {
        auto *item = new QTreeWidgetItem({entry.text});
        item->setSizeHint(0, {0, ToolView::Row_Height});
        item->setData(0, LineRole, entry.line);
        item->setData(0, LevelRole, entry.level);
        if (QTreeWidgetItem *parent = parentFor(last, entry.level))
            parent->addChild(item);
        else
            addTopLevelItem(item);
        m_items.append(item);
        last = item;
    }
}

void OutlineView::choose(const QTreeWidgetItem *item)
{
    if (item == nullptr || !item->flags().testFlag(Qt::ItemIsEnabled))
        return;
    const int line = item->data(0, LineRole).toInt();
    if (line >= 0)
        Q_EMIT lineChosen(line);
}
