// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionFactory;
class DocumentTabs;
class QAction;
class TableDocument;

namespace VornFrame {
class RibbonGroup;
class RibbonPage;
} // namespace VornFrame

/// The ribbon page for tables.
class TableTools : public QObject
{
    Q_OBJECT

public:
    /// Fills \a page with commands from \a actions for the current document of \a tabs. All have to
    /// live as long as this, which belongs to \a page.
    TableTools(VornFrame::RibbonPage *page, const ActionFactory &actions, DocumentTabs *tabs);

private:
    TableDocument *document() const;
    void addCommand(VornFrame::RibbonGroup *group, const ActionFactory &actions,
                    const QString &name, const QString &text, void (TableDocument::*change)());
    void addSorting(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void sort(Qt::SortOrder order) const;
    void showState();

    DocumentTabs *m_tabs;
    QAction *m_headerRow = nullptr;
};
