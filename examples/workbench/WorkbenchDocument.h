// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineEntry.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QWidget>

/// What a tab shows of a file, and changes in it.
class WorkbenchDocument : public QWidget
{
    Q_OBJECT

public:
    /// Each kind has a section of its own; the values are the indexes of the sections.
    enum Kind { Text = 0, Picture = 1, Table = 2 };
    Q_ENUM(Kind)

    WorkbenchDocument(Kind kind, const QString &path) : m_kind(kind), m_path(path) {}

    Kind kind() const { return m_kind; }
    QString path() const { return m_path; }
    /// Follows the file to another \a path. What kind of document it is stays.
    virtual void setPath(const QString &path) { m_path = path; }

    virtual bool isModified() const = 0;

    /// Writes the document to path(), whole or not at all. Returns why it could not, empty when it
    /// could.
    virtual QString save() = 0;

    /// Whether there is something to undo or redo; signalHistoryChanged() tells of changes.
    virtual bool canUndo() const { return false; }
    virtual bool canRedo() const { return false; }
    virtual void undo() {}
    virtual void redo() {}

    /// What an outline of the document lists.
    virtual QList<OutlineEntry> outline() const = 0;
    /// Shows \a line of the outline, base 0.
    virtual void goToLine(int line) = 0;

    /// Names and values for a list of properties.
    virtual QList<QPair<QString, QString>> properties() const = 0;

Q_SIGNALS:
    void signalModifiedChanged(bool modified);
    /// There is something to undo or redo, or no longer.
    void signalHistoryChanged();
    /// Outline or properties are other ones now.
    void signalContentChanged();
    /// Something happened that the log should tell.
    void signalMessage(const QString &text);

private:
    const Kind m_kind;
    QString m_path;
};
