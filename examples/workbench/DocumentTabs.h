// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkbenchDocument.h"

#include <VornFrame/DockContentWidget.h>

#include <QHash>
#include <QObject>

#include <functional>

/// The open documents in the tabs of a work surface: a section for each kind. No change is lost
/// without being asked for.
class DocumentTabs : public QObject
{
    Q_OBJECT

public:
    /// Makes a document of the file at a path; null, and says why, when it cannot.
    using Loader = std::function<WorkbenchDocument *(const QString &path, QString *reason)>;

    /// Adds its sections to \a content, which has to live as long as this.
    DocumentTabs(VornFrame::DockContentWidget *content, Loader loader, QObject *parent = nullptr);

    /// Opens the file at \a path, or goes to its tab if it is open; a document without changes whose
    /// file was changed by another program is read again. False, after signalFailed(),
    /// when that was not possible.
    bool open(const QString &path);

    /// The document that can be seen; null if none can.
    WorkbenchDocument *current() const;

    /// All, section by section, in the order of their tabs.
    QList<WorkbenchDocument *> documents() const;

    bool isAnyModified() const;

    /// Saves one, the current one, or all that have changes. False, after signalFailed(), when one
    /// could not be saved.
    bool save(WorkbenchDocument *document);
    bool saveCurrent();
    bool saveAll();

    /// Writes a copy of \a document, as it is now, to the file at \a path. False, after
    /// signalFailed(), when that was not possible.
    bool saveCopy(WorkbenchDocument *document, const QString &path);

    /// Keeps to the file, or the folder of files, that has another name in \a folder now.
    void followRename(const QString &folder, const QString &oldName, const QString &newName);

    void closeCurrent();

    /// Of the current document.
    void undo();
    void redo();

    /// Asks what is to become of all unsaved changes. False when nothing may be closed now.
    bool askAll();

    /// Goes on by \a step tabs of the section, round and round.
    void stepTab(int step);
    /// Goes on by \a step of the sections that hold tabs, round and round.
    void stepSection(int step);

Q_SIGNALS:
    /// Another document can be seen, or none.
    void signalCurrentChanged();
    /// What the current document is, or whether it has changes, is another now.
    void signalContentChanged();
    /// The current document can undo or redo something now, or no longer.
    void signalHistoryChanged();
    /// Documents were opened or closed, or have changes or none now.
    void signalDocumentsChanged();
    /// Something for the log.
    void signalMessage(const QString &text);
    /// Something for the user and the log, with its \a reason.
    void signalFailed(const QString &text, const QString &reason);

private:
    WorkbenchDocument *load(const QString &path);
    void add(WorkbenchDocument *document);
    void close(VornFrame::CloseMode mode, int section, int index);
    void remove(WorkbenchDocument *document);
    void move(WorkbenchDocument *document, const QString &path);
    void show(WorkbenchDocument *document);
    void showModified(WorkbenchDocument *document);
    WorkbenchDocument *documentOf(const QString &path) const;

    VornFrame::DockContentWidget *m_content;
    const Loader m_loader;
};
