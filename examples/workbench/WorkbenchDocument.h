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

    virtual bool isModified() const = 0;

    /// Writes the document to path(), whole or not at all. Returns why it could not, empty when it
    /// could.
    virtual QString save() = 0;

    /// What an outline of the document lists.
    virtual QList<OutlineEntry> outline() const = 0;
    /// Shows \a line of the outline, base 0.
    virtual void goToLine(int line) = 0;

    /// Names and values for a list of properties.
    virtual QList<QPair<QString, QString>> properties() const = 0;

Q_SIGNALS:
    void signalModifiedChanged(bool modified);
    /// Outline or properties are other ones now.
    void signalContentChanged();
    /// Something happened that the log should tell.
    void signalMessage(const QString &text);

private:
    const Kind m_kind;
    const QString m_path;
};
