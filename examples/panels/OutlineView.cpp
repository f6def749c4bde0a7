// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "OutlineView.h"

#include "ToolView.h"

#include <QHeaderView>

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
    setWindowIcon(QIcon(u":/panels/outline.svg"_s));
    setAccessibleName(windowTitle());
    setFrameShape(QFrame::NoFrame);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemClicked, this, &OutlineView::goTo);
    connect(this, &QTreeWidget::itemActivated, this, &OutlineView::goTo);
    setPage(nullptr);
}

void OutlineView::setPage(DocumentPage *page)
{
    if (page && page == m_page)
        return;
    m_page = page;
    clear();
    const QList<OutlineEntry> entries = page ? page->outline() : QList<OutlineEntry>();
    if (entries.isEmpty()) {
        auto *item = new QTreeWidgetItem({page ? tr("No headings") : tr("No document")});
        item->setSizeHint(0, {0, ToolView::Row_Height});
        item->setFlags(Qt::NoItemFlags);
        addTopLevelItem(item);
    }
    addEntries(entries);
    expandAll();
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
        last = item;
    }
}

void OutlineView::goTo(const QTreeWidgetItem *item)
{
    if (m_page != nullptr && item != nullptr && item->data(0, LineRole).toInt() >= 0)
        m_page->goToLine(item->data(0, LineRole).toInt());
}
