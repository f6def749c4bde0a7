// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>

class FindController;
class NotepadActions;
class QMenu;
class QToolButton;
class SelectionController;
class StyleController;
class ViewController;

namespace VornFrame {
class RibbonBar;
class RibbonPage;
} // namespace VornFrame

/// Puts the commands and fields of the program onto a ribbon bar, and chooses the page that is
/// shown.
class NotepadRibbon : public QObject
{
    Q_OBJECT

public:
    /// What has widgets on the ribbon.
    struct Parts
    {
        NotepadActions *actions;
        FindController *find;
        SelectionController *selection;
        StyleController *styles;
        ViewController *view;
    };

    NotepadRibbon(VornFrame::RibbonBar *bar, const Parts &parts);

    /// Makes a page current, as a click on its tab does.
    void showHomePage();
    void showFindPage();

    /// Makes the page of this \a title current, written in letters of any case; false if there is
    /// none.
    bool showPage(const QString &title);

    /// Shows or hides the tab of the page for selected text. The page does not push itself to the
    /// front; when it goes while it is current, the page comes back that the user had before.
    void setSelectionPageVisible(bool visible);

    /// Opens \a menu under its button, on whatever page that is.
    void openMenu(QMenu *menu);

private:
    VornFrame::RibbonPage *addPage(const QString &title);
    void buildHomePage();
    void buildFileGroup();
    void buildClipboardGroup();
    void buildFontGroup();
    void buildTextGroup();
    void buildFindPage();
    void buildStylesPage();
    void buildViewPage();
    void buildSelectionPage();
    void fillCorner();
    void showPage(VornFrame::RibbonPage *page);
    void rememberPage();
    VornFrame::RibbonPage *pageOf(QWidget *widget) const;

    VornFrame::RibbonBar *m_bar;
    Parts m_parts;
    /// Those that are always there, by their titles without marks.
    QHash<QString, VornFrame::RibbonPage *> m_pages;
    VornFrame::RibbonPage *m_homePage = nullptr;
    VornFrame::RibbonPage *m_findPage = nullptr;
    VornFrame::RibbonPage *m_selectionPage = nullptr;
    /// The last current page that is always there.
    VornFrame::RibbonPage *m_lastPage = nullptr;
};
