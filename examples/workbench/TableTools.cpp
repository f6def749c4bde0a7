// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TableTools.h"

#include "ActionFactory.h"
#include "DocumentTabs.h"
#include "TableDocument.h"

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include <QAction>
#include <QTableView>

using namespace Qt::StringLiterals;
using VornFrame::RibbonGroup;

TableTools::TableTools(VornFrame::RibbonPage *page, const ActionFactory &actions,
                       DocumentTabs *tabs)
    : QObject(page), m_tabs(tabs)
{
    RibbonGroup *rows = page->addGroup(tr("Rows"));
    addCommand(rows, actions, u"insertRow"_s, tr("Insert\nRow"), &TableDocument::insertRow);
    addCommand(rows, actions, u"removeRows"_s, tr("Remove\nRows"), &TableDocument::removeRows);
    RibbonGroup *columns = page->addGroup(tr("Columns"));
    addCommand(columns, actions, u"insertColumn"_s, tr("Insert\nColumn"),
               &TableDocument::insertColumn);
    addCommand(columns, actions, u"removeColumns"_s, tr("Remove\nColumns"),
               &TableDocument::removeColumns);
    addSorting(page, actions);
    m_headerRow = actions.createSwitch(u"headerRow"_s, tr("Header\nRow"));
    connect(m_headerRow, &QAction::triggered, this, [this](bool on) {
        if (TableDocument *table = document())
            table->setHeaderRow(on);
    });
    page->addGroup(tr("Names"))->addAction(m_headerRow);
    connect(tabs, &DocumentTabs::signalCurrentChanged, this, &TableTools::showState);
    connect(tabs, &DocumentTabs::signalContentChanged, this, &TableTools::showState);
}

void TableTools::showState()
{
    if (const TableDocument *table = document())
        m_headerRow->setChecked(table->hasHeaderRow());
}

TableDocument *TableTools::document() const
{
    return qobject_cast<TableDocument *>(m_tabs->current());
}

void TableTools::addCommand(RibbonGroup *group, const ActionFactory &actions, const QString &name,
                            const QString &text, void (TableDocument::*change)())
{
    QAction *action = actions.create(name, text);
    connect(action, &QAction::triggered, this, [this, change] {
        if (TableDocument *table = document())
            (table->*change)();
    });
    group->addAction(action);
}

void TableTools::addSorting(VornFrame::RibbonPage *page, const ActionFactory &actions)
{
    RibbonGroup *group = page->addGroup(tr("Sort by Column"));
    QAction *up = actions.create(u"sortAscending"_s, tr("Ascending"));
    connect(up, &QAction::triggered, this, [this] { sort(Qt::AscendingOrder); });
    group->addAction(up);
    QAction *down = actions.create(u"sortDescending"_s, tr("Descending"));
    connect(down, &QAction::triggered, this, [this] { sort(Qt::DescendingOrder); });
    group->addAction(down);
}

/// By the column of the current cell, else the first.
void TableTools::sort(Qt::SortOrder order) const
{
    TableDocument *table = document();
    if (table)
        table->sort(qMax(0, table->view()->currentIndex().column()), order);
}
