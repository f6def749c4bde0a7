// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionFactory;
class DocumentTabs;
class QAction;
class TextDocument;

namespace VornFrame {
class RibbonPage;
}

/// The ribbon page for texts.
class TextTools : public QObject
{
    Q_OBJECT

public:
    /// Fills \a page with commands from \a actions for the current document of \a tabs. All have to
    /// live as long as this, which belongs to \a page.
    TextTools(VornFrame::RibbonPage *page, const ActionFactory &actions, DocumentTabs *tabs);

private:
    TextDocument *document() const;
    void addSelection(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void addView(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void changeCase(bool upper) const;
    void setWordWrap(bool on) const;
    void showState();

    DocumentTabs *m_tabs;
    QAction *m_wordWrap = nullptr;
};
