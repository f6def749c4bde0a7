// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "HomePage.h"

#include "ActionFactory.h"
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
                   TreeActions *tree)
    : QObject(page), m_tabs(tabs)
{
    addFiles(page, actions);
    addTreeCommands(page, actions, tree);
    addClipboard(page, actions, tree);
    addView(page, actions);
    connect(tabs, &DocumentTabs::signalCurrentChanged, this, &HomePage::showState);
    connect(tabs, &DocumentTabs::signalDocumentsChanged, this, &HomePage::showState);
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

void HomePage::addClipboard(RibbonPage *page, const ActionFactory &actions, TreeActions *tree)
{
    // No keys: texts and the tree have their own, each for itself.
    RibbonGroup *group = page->addGroup(tr("Edit"));
    QAction *paste = actions.create(u"paste"_s, tr("Paste"));
    tree->serve(paste, QKeySequence::Paste, "paste");
    group->addAction(paste);
    RibbonSubgroup *clipboard = group->addSubgroup();
    QAction *cut = actions.create(u"cut"_s, tr("Cut"));
    tree->serve(cut, QKeySequence::Cut, "cut");
    clipboard->addAction(cut);
    QAction *copy = actions.create(u"copy"_s, tr("Copy"));
    tree->serve(copy, QKeySequence::Copy, "copy");
    clipboard->addAction(copy);
    group->addSeparator();
    RibbonSubgroup *history = group->addSubgroup();
    QAction *undo = actions.create(u"undo"_s, tr("Undo"), QKeySequence::Undo);
    connect(undo, &QAction::triggered, this, &HomePage::signalUndoRequested);
    history->addAction(undo);
    QAction *redo = actions.create(u"redo"_s, tr("Redo"), QKeySequence::Redo);
    connect(redo, &QAction::triggered, this, &HomePage::signalRedoRequested);
    history->addAction(redo);
}

void HomePage::addView(RibbonPage *page, const ActionFactory &actions)
{
    RibbonGroup *group = page->addGroup(tr("View"));
    QAction *full = actions.createSwitch(u"fullScreen"_s, tr("Full\nScreen"), Qt::Key_F11);
    connect(full, &QAction::triggered, this, &HomePage::signalFullScreenRequested);
    group->addAction(full);
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
}
