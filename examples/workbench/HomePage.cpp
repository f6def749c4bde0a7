// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "HomePage.h"

#include "ActionFactory.h"
#include "ClipboardController.h"
#include "DocumentTabs.h"
#include "TreeActions.h"

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/RibbonSubgroup.h>

#include <QAction>

using namespace Qt::StringLiterals;
using VornFrame::RibbonGroup;
using VornFrame::RibbonPage;
using VornFrame::RibbonSubgroup;

HomePage::HomePage(RibbonPage *page, const ActionFactory &actions, DocumentTabs *tabs,
                   TreeActions *tree, ClipboardController *clipboard)
    : QObject(page), m_tabs(tabs)
{
    addFiles(page, actions);
    addTreeCommands(page, actions, tree);
    addClipboard(page, actions, clipboard);
    addView(page, actions);
    connect(tabs, &DocumentTabs::signalCurrentChanged, this, &HomePage::showState);
    connect(tabs, &DocumentTabs::signalDocumentsChanged, this, &HomePage::showState);
    connect(tabs, &DocumentTabs::signalHistoryChanged, this, &HomePage::showHistory);
    showState();
}

void HomePage::addFiles(RibbonPage *page, const ActionFactory &actions)
{
    RibbonGroup *group = page->addGroup(tr("Documents"));
    QAction *open = actions.create(u"openFile"_s, tr("Open…"), QKeySequence::Open);
    connect(open, &QAction::triggered, this, &HomePage::signalOpenRequested);
    group->addAction(open);
    m_save = actions.create(u"save"_s, tr("Save"), QKeySequence::Save);
    connect(m_save, &QAction::triggered, m_tabs, &DocumentTabs::saveCurrent);
    group->addAction(m_save);
    RibbonSubgroup *more = group->addSubgroup();
    m_saveAll = actions.create(u"saveAll"_s, tr("Save All"), {u"Ctrl+Shift+S"_s});
    connect(m_saveAll, &QAction::triggered, m_tabs, &DocumentTabs::saveAll);
    more->addAction(m_saveAll);
    m_close = actions.create(u"closeTab"_s, tr("Close Tab"), {u"Ctrl+W"_s});
    connect(m_close, &QAction::triggered, m_tabs, &DocumentTabs::closeCurrent);
    more->addAction(m_close);
    m_saveCopy = actions.create(u"saveCopy"_s, tr("Save a Copy…"), {u"Ctrl+Alt+S"_s});
    connect(m_saveCopy, &QAction::triggered, this, &HomePage::signalSaveCopyRequested);
    more->addAction(m_saveCopy);
}

void HomePage::addTreeCommands(RibbonPage *page, const ActionFactory &actions, TreeActions *tree)
{
    RibbonGroup *group = page->addGroup(tr("Files"));
    QAction *open = actions.create(u"openSelected"_s, tr("Open\nSelected"), {u"Ctrl+Shift+O"_s});
    connect(open, &QAction::triggered, this, &HomePage::signalOpenSelectedRequested);
    group->addAction(open);
    RibbonSubgroup *more = group->addSubgroup();
    m_newTextFile = actions.create(u"newTextFile"_s, tr("New Text File"), QKeySequence::New);
    more->addAction(m_newTextFile);
    QAction *rename = actions.create(u"rename"_s, tr("Rename"));
    tree->serve(rename, Qt::Key_F2);
    more->addAction(rename);
    QAction *remove = actions.create(u"deleteFiles"_s, tr("Delete"));
    tree->serve(remove, QKeySequence::Delete);
    more->addAction(remove);
}

void HomePage::addClipboard(RibbonPage *page, const ActionFactory &actions,
                            ClipboardController *clipboard)
{
    // No keys: texts, tables and the tree have their own, each for itself.
    QAction *paste = actions.create(u"paste"_s, tr("Paste"));
    QAction *cut = actions.create(u"cut"_s, tr("Cut"));
    QAction *copy = actions.create(u"copy"_s, tr("Copy"));
    clipboard->serve(cut, copy, paste);
    RibbonGroup *group = page->addGroup(tr("Edit"));
    group->addAction(paste);
    RibbonSubgroup *more = group->addSubgroup();
    more->addAction(cut);
    more->addAction(copy);
    group->addSeparator();
    addHistory(group, actions);
}

void HomePage::addHistory(RibbonGroup *group, const ActionFactory &actions)
{
    RibbonSubgroup *history = group->addSubgroup();
    m_undo = actions.create(u"undo"_s, tr("Undo"), QKeySequence::Undo);
    connect(m_undo, &QAction::triggered, m_tabs, &DocumentTabs::undo);
    history->addAction(m_undo);
    m_redo = actions.create(u"redo"_s, tr("Redo"), QKeySequence::Redo);
    connect(m_redo, &QAction::triggered, m_tabs, &DocumentTabs::redo);
    history->addAction(m_redo);
}

void HomePage::addView(RibbonPage *page, const ActionFactory &actions)
{
    RibbonGroup *group = page->addGroup(tr("View"));
    m_fullScreen = actions.createSwitch(u"fullScreen"_s, tr("Full\nScreen"), Qt::Key_F11);
    connect(m_fullScreen, &QAction::triggered, this, &HomePage::signalFullScreenRequested);
    group->addAction(m_fullScreen);
    const auto addStep = [this, &actions](const QString &name, const QString &text,
                                          const QString &keys, const auto &go) {
        connect(actions.create(name, text, {keys}), &QAction::triggered, m_tabs, go);
    };
    addStep(u"nextTab"_s, tr("Next Tab"), u"Ctrl+PgDown"_s, [this] { m_tabs->stepTab(1); });
    addStep(u"previousTab"_s, tr("Previous Tab"), u"Ctrl+PgUp"_s, [this] { m_tabs->stepTab(-1); });
    addStep(u"nextSection"_s, tr("Next Section"), u"F6"_s, [this] { m_tabs->stepSection(1); });
    addStep(u"previousSection"_s, tr("Previous Section"), u"Shift+F6"_s,
            [this] { m_tabs->stepSection(-1); });
}

void HomePage::showState()
{
    const WorkbenchDocument *current = m_tabs->current();
    m_save->setEnabled(current != nullptr && current->isModified());
    m_saveAll->setEnabled(m_tabs->isAnyModified());
    m_close->setEnabled(current != nullptr);
    m_saveCopy->setEnabled(current != nullptr);
    showHistory();
}

void HomePage::showHistory()
{
    const WorkbenchDocument *current = m_tabs->current();
    m_undo->setEnabled(current != nullptr && current->canUndo());
    m_redo->setEnabled(current != nullptr && current->canRedo());
}

void HomePage::showFullScreen(bool on)
{
    m_fullScreen->setChecked(on);
}
