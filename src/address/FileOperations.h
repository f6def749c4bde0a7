// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

namespace VornFrame {

/// Tells the file operations what the user has selected.
class FileSelection
{
public:
    FileSelection() = default;
    virtual ~FileSelection();

    /// The selected files and folders, in the order in which they were selected.
    virtual QStringList selectedPaths() const = 0;

    /// The current file or folder; the folder that is shown where none is selected.
    virtual QString currentPath() const = 0;

private:
    Q_DISABLE_COPY_MOVE(FileSelection)
};

/// What a person does to files: copy, cut, paste, delete, make a folder.
///
/// An operation returns when it is done. One that takes longer than a second shows a modal dialog
/// with its progress, in which it can be cancelled; as long as it runs, all others are ignored, also
/// those of another object. What goes, goes to the trash, and for good only where there is none: a
/// source after all of it has arrived, a replaced file after its replacement is complete. Links are
/// copied and removed as links; pipes, sockets and devices are left alone.
class FileOperations : public QObject
{
    Q_OBJECT

public:
    /// \a selection is borrowed and must live as long as the operations. \a parent owns them; the
    /// progress dialog is shown over it when it is a widget.
    explicit FileOperations(const FileSelection &selection, QObject *parent = nullptr);

    /// Put the selected paths on the clipboard, to be moved or copied by paste().
    void cutSelection();
    void copySelection();

    /// Pastes the files on the clipboard into the folder \a target, or into that of the file
    /// \a target; empty means the current path. Asks before it replaces anything.
    void paste(const QString &target = QString());

    /// Copies a file, or a folder with all that is in it; a folder that exists is merged with.
    /// \a overwrite replaces files that exist, which go to the trash, or for good where there
    /// is none; otherwise they stay and nothing is said.
    void copyPath(const QString &source, const QString &target, bool overwrite);

    /// Moves \a path to the trash; removes it for good where there is none. Returns whether it is
    /// gone. A folder with another file system mounted inside is left alone.
    bool removePath(const QString &path);

    /// Removes all selected paths.
    void removeSelection();

    /// Makes a folder with a name of its own in the current folder. Returns its path, empty where
    /// it could not be made.
    QString newFolder();

    /// Shows why \a source cannot be copied to \a target; \a code is a FileCheck code.
    static void showCopyError(const QString &source, const QString &target, int code);

    /// Whether an operation of any object is at work.
    static bool isRunning();

private:
    Q_DISABLE_COPY_MOVE(FileOperations)

    const FileSelection &m_selection;
};

} // namespace VornFrame
