// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileOperations.h"

#include <QTreeView>

#include <memory>

class QAction;

namespace VornFrame {

class AddressTreePrivate;

/// The file tree that goes with an address bar: shows what is in a folder, goes into folders, hands
/// files to the host, and offers the file operations by menu, keys and drag and drop.
///
/// Only what is below the shown folder can be selected. Going to a folder selects nothing.
class AddressTree : public QTreeView, public FileSelection
{
    Q_OBJECT

public:
    explicit AddressTree(QWidget *parent = nullptr);
    ~AddressTree() override;

    /// Shows the folder \a path. A path that does not exist leaves the tree at the folder that it
    /// shows; the one given last is ignored.
    void setRootPath(const QString &path);

    /// The suffixes, without dot, of the files that the host opens itself; none at first.
    void setSuffixes(const QStringList &suffixes);

    /// Adds an action of the host to the menu "New", where it stays until it is deleted. The host
    /// keeps it. Null is ignored.
    void addNewAction(QAction *action);

    /// The current row where any is selected, else the shown folder; empty before there is one.
    QString currentPath() const override;
    QStringList selectedPaths() const override;

    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// The user opened a file of which the host has named the suffix.
    void signalFileOpen(const QString &path);
    /// The user asked for another folder.
    void signalPathChanged(const QString &path);

public Q_SLOTS:
    /// Shows the folder \a path as setRootPath().
    void slotPathChanged(const QString &path);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    Q_DECLARE_PRIVATE(AddressTree)
    Q_DISABLE_COPY_MOVE(AddressTree)

    const std::unique_ptr<AddressTreePrivate> d_ptr;
};

} // namespace VornFrame
