// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// What the actions of an AddressTree do, and the menus that offer them.

#include "AddressTree_p.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QUrl>

namespace VornFrame {

namespace {

void openUrl(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace

// --- File operations --------------------------------------------------------------------------

void AddressTreePrivate::cutSelection()
{
    operations->cutSelection();
}

void AddressTreePrivate::copySelection()
{
    operations->copySelection();
}

void AddressTreePrivate::pasteFiles()
{
    pasteInto(q_ptr->currentPath());
}

void AddressTreePrivate::pasteInto(const QString &target)
{
    // Without a shown folder there is nowhere to paste; an empty path would mean another folder.
    if (target.isEmpty())
        return;
    const QPointer<AddressTree> guard(q_ptr);
    operations->paste(target);
    if (guard)
        deselectVanished();
}

void AddressTreePrivate::removeSelection()
{
    const QPointer<AddressTree> guard(q_ptr);
    operations->removeSelection();
    if (guard)
        deselectVanished();
}

void AddressTreePrivate::renameCurrent()
{
    if (selectedRows().size() == 1 && q_ptr->currentIndex().isValid())
        editName(model->index(q_ptr->currentPath()));
}

void AddressTreePrivate::makeFolder()
{
    if (q_ptr->currentPath().isEmpty())
        return;
    const QPointer<AddressTree> guard(q_ptr);
    const QString path = operations->newFolder();
    if (!guard || path.isEmpty())
        return;
    const QModelIndex index = model->index(path);
    if (!isShown(index))
        return;
    selectRow(index);
    editName(index);
}

void AddressTreePrivate::editName(const QModelIndex &index)
{
    // An editor may be open already, and Qt warns of what it cannot edit.
    if (!isShown(index) || !index.flags().testFlag(Qt::ItemIsEditable)
        || q_ptr->state() == AddressTree::EditingState)
        return;
    q_ptr->scrollTo(index);
    q_ptr->edit(index);
}

/// To the model the file with the new name is another one, which it finds later. It shall have what
/// the old one has.
void AddressTreePrivate::noteRenaming(const QString &folder, const QString &oldName,
                                      const QString &newName)
{
    QModelIndex index = model->index(0, 0, model->index(folder));
    while (index.isValid() && model->fileName(index) != oldName)
        index = index.siblingAtRow(index.row() + 1);
    renamedPath = QDir(folder).filePath(newName);
    renamedIsExpanded = q_ptr->isExpanded(index);
    renamedIsSelected = q_ptr->selectionModel()->isSelected(index);
}

void AddressTreePrivate::followRenaming(const QModelIndex &parent, int first, int last)
{
    for (int row = first; row <= last && !renamedPath.isEmpty(); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (model->filePath(index) != renamedPath)
            continue;
        renamedPath.clear();
        if (!isShown(index))
            return;
        q_ptr->setExpanded(index, renamedIsExpanded);
        // Unless the user has selected something else meanwhile.
        if (renamedIsSelected && selectedRows().isEmpty())
            selectRow(index);
    }
}

// --- Opening and paths ------------------------------------------------------------------------

/// The current path if it is an existing file, else empty.
QString AddressTreePrivate::currentFile() const
{
    const QString path = q_ptr->currentPath();
    return QFileInfo(path).isFile() ? path : QString();
}

void AddressTreePrivate::openCurrent()
{
    const QString file = currentFile();
    if (!file.isEmpty())
        openUrl(file);
}

void AddressTreePrivate::openFolder()
{
    const QFileInfo info(q_ptr->currentPath());
    const QString folder = info.isDir() ? info.filePath() : info.absolutePath();
    if (!info.filePath().isEmpty())
        openUrl(folder);
}

void AddressTreePrivate::copyAbsolute()
{
    const QString file = currentFile();
    if (file.isEmpty())
        return;
    clipboard->clear();
    clipboard->setText(file);
}

void AddressTreePrivate::copyRelative()
{
    const QString file = currentFile();
    if (file.isEmpty())
        return;
    clipboard->clear();
    clipboard->setText(QDir(model->rootPath()).relativeFilePath(file));
}

void AddressTreePrivate::noteDoubleClick(const QModelIndex &index)
{
    // What follows may delete the tree, which Qt's handling of the click does not bear.
    if (isInDoubleClick)
        doubleClicked = index;
    else
        openIndex(index);
}

void AddressTreePrivate::openIndex(const QModelIndex &index)
{
    const QFileInfo file(model->filePath(index));
    if (file.isDir() && file.filePath().contains(u'\\'))
        return; // where a path is shown, that is a separator, and would lead elsewhere
    if (file.isDir())
        Q_EMIT q_ptr->signalPathChanged(file.filePath());
    else if (suffixes.contains(file.suffix()))
        Q_EMIT q_ptr->signalFileOpen(file.filePath());
    else
        askAboutOpening();
}

void AddressTreePrivate::askAboutOpening()
{
    const QPointer<AddressTree> guard(q_ptr);
    const QPointer<QMessageBox> box(new QMessageBox(
        QMessageBox::Information, AddressTree::tr("Infomation"), // spelt so on purpose
        AddressTree::tr("Open the selected file with the external default program?"),
        QMessageBox::Ok | QMessageBox::Cancel, q_ptr));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::Cancel);
    box->setEscapeButton(QMessageBox::Cancel);
    const int answer = box->exec();
    delete box;
    if (guard && answer == QMessageBox::Ok)
        openCurrent();
}

// --- Context menu -----------------------------------------------------------------------------

void AddressTreePrivate::showContextMenu(const QModelIndex &index, QPoint globalPos)
{
    // The menu is about what it stands on: with Ctrl held, a right click selects nothing itself,
    // and Delete would hit another file.
    if (!index.isValid())
        q_ptr->selectionModel()->clearSelection();
    else if (!q_ptr->selectionModel()->isSelected(index))
        selectRow(index.siblingAtColumn(0));

    const QPointer<QMenu> menu(new QMenu(q_ptr)); // may die with the tree
    if (index.isValid())
        fillItemMenu(menu, index);
    else
        fillEmptyMenu(menu);
    menu->exec(globalPos);
    delete menu;
}

void AddressTreePrivate::fillItemMenu(QMenu *menu, const QModelIndex &index)
{
    const bool isSingle = q_ptr->selectedPaths().size() <= 1;
    const QFileInfo file(model->filePath(index));
    if (isSingle && !file.isDir() && suffixes.contains(file.suffix()))
        menu->addAction(openAction);
    menu->addActions({cutAction, copyAction, pasteAction});
    menu->addSeparator();
    menu->addAction(deleteAction);
    if (isSingle) {
        fillSingleItemMenu(menu, file);
    } else {
        menu->addSeparator();
        menu->addAction(openInExplorerAction);
    }
}

void AddressTreePrivate::fillSingleItemMenu(QMenu *menu, const QFileInfo &file)
{
    menu->addAction(renameAction);
    menu->addSeparator();
    if (file.isFile()) {
        menu->addAction(openWithDefaultAction);
        menu->addMenu(AddressTree::tr("Copy Path"))
            ->addActions({copyAbsolutePathAction, copyRelativePathAction});
    }
    menu->addAction(openInExplorerAction);
    if (file.isDir())
        menu->addMenu(newMenu);
}

void AddressTreePrivate::fillEmptyMenu(QMenu *menu)
{
    menu->addAction(pasteAction);
    menu->addSeparator();
    menu->addMenu(newMenu);
}

} // namespace VornFrame
