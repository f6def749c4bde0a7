// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressFileModel.h"
#include "AddressTree.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

namespace VornFrame {

class AddressTreePrivate
{
public:
    void init();
    void initModel();
    void initView();
    QAction *addAction(const QString &text, const QKeySequence &shortcut,
                       void (AddressTreePrivate::*reaction)());
    void initActions();
    void initConnections();

    QString shownFolder() const;
    bool isShown(const QModelIndex &index) const;
    QModelIndexList selectedRows() const;
    void selectRow(const QModelIndex &index);
    void deselectVanished();
    void deselectBelow(const QModelIndex &index);
    void updateActions();
    void updatePasteAction();
    QAction *actionOf(const QKeyEvent *event) const;

    void cutSelection();
    void copySelection();
    void pasteFiles();
    void pasteInto(const QString &target);
    void removeSelection();
    void renameCurrent();
    void makeFolder();
    void editName(const QModelIndex &index);
    void noteRenaming(const QString &folder, const QString &oldName, const QString &newName);
    void followRenaming(const QModelIndex &parent, int first, int last);

    QString currentFile() const;
    void openCurrent();
    void openFolder();
    void copyAbsolute();
    void copyRelative();
    void noteDoubleClick(const QModelIndex &index);
    void openIndex(const QModelIndex &index);
    void askAboutOpening();

    void showContextMenu(const QModelIndex &index, QPoint globalPos);
    void fillItemMenu(QMenu *menu, const QModelIndex &index);
    void fillSingleItemMenu(QMenu *menu, const QFileInfo &file);
    void fillEmptyMenu(QMenu *menu);

    Qt::DropAction actionFor(const QList<QUrl> &urls) const;
    Qt::DropAction rememberedActionFor(const QList<QUrl> &urls);

    AddressFileModel *model = nullptr;
    QString rootPath; ///< as it was given; the model's own is the one that is shown
    QStringList nameFilters; ///< none: all files are shown
    QAction *openAction = nullptr;
    QAction *cutAction = nullptr;
    QAction *copyAction = nullptr;
    QAction *pasteAction = nullptr;
    QAction *deleteAction = nullptr;
    QAction *renameAction = nullptr;
    QAction *folderAction = nullptr;
    QAction *openInExplorerAction = nullptr;
    QAction *openWithDefaultAction = nullptr;
    QAction *copyAbsolutePathAction = nullptr;
    QAction *copyRelativePathAction = nullptr;
    QMenu *newMenu = nullptr;
    QClipboard *clipboard = QGuiApplication::clipboard();
    QStringList draggedUrls; ///< those that dragAction was chosen for
    QStringList suffixes;
    FileOperations *operations = nullptr;
    Qt::DropAction dragAction = Qt::CopyAction;
    QString renamedPath; ///< the new one, until the model has found it; empty else
    bool renamedIsExpanded = false;
    bool renamedIsSelected = false;
    QPersistentModelIndex doubleClicked; ///< valid only within a double click
    bool isInDoubleClick = false;
    AddressTree *q_ptr = nullptr;
};

} // namespace VornFrame
