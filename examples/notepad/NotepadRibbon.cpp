// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "NotepadRibbon.h"

#include "FindController.h"
#include "FindField.h"
#include "NotepadActions.h"
#include "SelectionController.h"
#include "StyleController.h"
#include "ViewController.h"

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonCorner.h>
#include <VornFrame/RibbonGallery.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/RibbonSubgroup.h>

#include <QFontComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr int FieldSpacing = 4;
constexpr QMargins FieldMargins(4, 0, 4, 0);
constexpr QSize HelpButtonSize(22, 22);
constexpr QMargins StatisticsMargins(6, 0, 6, 0);

/// \a first and \a second side by side.
QWidget *createRow(QWidget *first, QWidget *second)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(FieldSpacing);
    layout->addWidget(first);
    layout->addWidget(second);
    return row;
}

} // namespace

NotepadRibbon::NotepadRibbon(RibbonBar *bar, const Parts &parts)
    : QObject(bar), m_bar(bar), m_parts(parts)
{
    buildHomePage();
    buildFindPage();
    buildStylesPage();
    buildViewPage();
    buildSelectionPage();
    fillCorner();
    connect(bar, &RibbonBar::signalCurrentPageChanged, this, &NotepadRibbon::rememberPage);
    connect(parts.actions, &NotepadActions::menuRequested, this, &NotepadRibbon::openMenu);
    connect(parts.selection, &SelectionController::selectedChanged, this,
            &NotepadRibbon::setSelectionPageVisible);
    showHomePage();
}

RibbonPage *NotepadRibbon::addPage(const QString &title)
{
    RibbonPage *page = m_bar->addPage(title);
    m_pages.insert(QString(title).remove(u'&').toCaseFolded(), page);
    return page;
}

void NotepadRibbon::buildHomePage()
{
    m_homePage = addPage(tr("&Home"));
    buildFileGroup();
    buildClipboardGroup();
    buildFontGroup();
    buildTextGroup();
}

void NotepadRibbon::buildFileGroup()
{
    NotepadActions *actions = m_parts.actions;
    RibbonGroup *group = m_homePage->addGroup(tr("File"));
    // The mode of a menu is also that of the buttons behind it, so buttons without a menu come
    // first.
    group->addAction(actions->newFile);
    group->addAction(actions->open);
    group->addMenu(actions->saveMenu, QToolButton::MenuButtonPopup);
}

void NotepadRibbon::buildClipboardGroup()
{
    NotepadActions *actions = m_parts.actions;
    RibbonGroup *group = m_homePage->addGroup(tr("Edit"));
    group->addAction(actions->paste);
    RibbonSubgroup *clipboard = group->addSubgroup();
    clipboard->addAction(actions->cut);
    clipboard->addAction(actions->copy);
    clipboard->addAction(actions->selectAll);
    group->addSeparator();
    RibbonSubgroup *history = group->addSubgroup();
    history->addAction(actions->undo);
    history->addAction(actions->redo);
    history->addAction(actions->reload);
}

void NotepadRibbon::buildFontGroup()
{
    NotepadActions *actions = m_parts.actions;
    RibbonGroup *group = m_homePage->addGroup(tr("Font"));
    RibbonSubgroup *font = group->addSubgroup();
    font->setContentsMargins(FieldMargins);
    font->addWidget(createRow(m_parts.view->fontFamily(), m_parts.view->fontSize()));
    font->addActions({actions->fontLarger, actions->fontSmaller, actions->bold, actions->zoomOut,
                      actions->zoomIn, actions->wordWrap, actions->lineNumbers,
                      actions->currentLine, actions->whiteSpace});
}

void NotepadRibbon::buildTextGroup()
{
    NotepadActions *actions = m_parts.actions;
    RibbonGroup *group = m_homePage->addGroup(tr("Text"));
    group->addAction(actions->find);
    group->addAction(actions->replace);
    group->addSeparator();
    group->addMenu(actions->insertMenu, QToolButton::InstantPopup);
    group->addMenu(actions->formatMenu, QToolButton::InstantPopup);
}

void NotepadRibbon::buildFindPage()
{
    NotepadActions *actions = m_parts.actions;
    m_findPage = addPage(tr("&Find"));
    RibbonGroup *group = m_findPage->addGroup(tr("Find and Replace"));
    RibbonSubgroup *fields = group->addSubgroup();
    fields->setContentsMargins(FieldMargins);
    fields->addWidget(m_parts.find->findField());
    fields->addWidget(m_parts.find->replaceField());
    fields->addWidget(m_parts.find->resultLabel());
    RibbonSubgroup *steps = group->addSubgroup();
    steps->addAction(actions->findNext);
    steps->addAction(actions->findPrevious);
    group->addSeparator();
    group->addAction(actions->replaceNext);
    group->addAction(actions->replaceAll);

    RibbonSubgroup *options = m_findPage->addGroup(tr("Options"))->addSubgroup();
    options->addAction(actions->matchCase);
    options->addAction(actions->wholeWords);

    m_findPage->addGroup(tr("Go To"))->addAction(actions->goToLine);
}

void NotepadRibbon::buildStylesPage()
{
    RibbonPage *page = addPage(tr("S&tyles"));
    page->addGroup(tr("Text Styles"))->addWidget(m_parts.styles->gallery());
    page->addGroup(tr("Plain Text"))->addAction(m_parts.actions->clearStyles);
}

void NotepadRibbon::buildViewPage()
{
    NotepadActions *actions = m_parts.actions;
    RibbonPage *page = addPage(tr("&View"));
    RibbonGroup *show = page->addGroup(tr("Show"));
    show->addAction(actions->wordWrap);
    show->addAction(actions->lineNumbers);
    RibbonSubgroup *marks = show->addSubgroup();
    marks->addAction(actions->currentLine);
    marks->addAction(actions->whiteSpace);

    RibbonGroup *zoom = page->addGroup(tr("Zoom"));
    zoom->addAction(actions->zoomIn);
    zoom->addAction(actions->zoomOut);
    RibbonSubgroup *size = zoom->addSubgroup();
    size->addWidget(m_parts.view->zoom());
    size->addAction(actions->zoomReset);

    page->addGroup(tr("Window"))->addAction(actions->fullScreen);
}

void NotepadRibbon::buildSelectionPage()
{
    NotepadActions *actions = m_parts.actions;
    m_selectionPage = m_bar->addPage(tr("&Selection"), true);
    RibbonSubgroup *letters = m_selectionPage->addGroup(tr("Case"))->addSubgroup();
    letters->addAction(actions->upperCase);
    letters->addAction(actions->lowerCase);
    letters->addAction(actions->titleCase);

    RibbonGroup *lines = m_selectionPage->addGroup(tr("Lines"));
    lines->addAction(actions->sortLines);
    lines->addAction(actions->reverseLines);
    RibbonSubgroup *more = lines->addSubgroup();
    more->addAction(actions->removeDuplicates);
    more->addAction(actions->joinLines);
    more->addAction(actions->trim);
    lines->addSeparator();
    RibbonSubgroup *indents = lines->addSubgroup();
    indents->addAction(actions->indent);
    indents->addAction(actions->outdent);

    m_parts.selection->statisticsLabel()->setContentsMargins(StatisticsMargins);
    m_selectionPage->addGroup(tr("Statistics"))->addWidget(m_parts.selection->statisticsLabel());
}

void NotepadRibbon::fillCorner()
{
    auto *help = new QToolButton;
    help->setDefaultAction(m_parts.actions->help);
    help->setFocusPolicy(Qt::NoFocus);
    help->setFixedSize(HelpButtonSize);
    help->setStyleSheet(u"QToolButton { border: none; border-radius: 2px; }"
                        "QToolButton:hover { background-color: rgb(38, 140, 221); }"_s);
    m_bar->corner()->addWidget(m_parts.find->quickField());
    m_bar->corner()->addWidget(help);
}

void NotepadRibbon::showHomePage()
{
    showPage(m_homePage);
}

void NotepadRibbon::showFindPage()
{
    showPage(m_findPage);
}

bool NotepadRibbon::showPage(const QString &title)
{
    RibbonPage *page = m_pages.value(title.toCaseFolded());
    if (page)
        showPage(page);
    return page != nullptr;
}

void NotepadRibbon::showPage(RibbonPage *page)
{
    m_bar->setCurrentPage(page);
    rememberPage();
}

void NotepadRibbon::rememberPage()
{
    if (m_bar->currentPage() != m_selectionPage)
        m_lastPage = m_bar->currentPage();
}

void NotepadRibbon::setSelectionPageVisible(bool visible)
{
    // Hiding a page does not choose another one.
    if (!visible && m_bar->currentPage() == m_selectionPage)
        m_bar->setCurrentPage(m_lastPage);
    m_bar->setPageVisible(m_bar->indexOf(m_selectionPage), visible);
}

RibbonPage *NotepadRibbon::pageOf(QWidget *widget) const
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *page = qobject_cast<RibbonPage *>(parent);
        if (page && m_bar->contains(page))
            return page;
    }
    return nullptr;
}

void NotepadRibbon::openMenu(QMenu *menu)
{
    const QList<QObject *> users = menu->menuAction()->associatedObjects();
    for (QObject *user : users) {
        auto *button = qobject_cast<QToolButton *>(user);
        RibbonPage *page = button ? pageOf(button) : nullptr;
        if (!page)
            continue;
        showPage(page);
        button->showMenu();
        return;
    }
}
