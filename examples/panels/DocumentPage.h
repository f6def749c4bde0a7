// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineEntry.h"

#include <QList>
#include <QWidget>

/// What a tab shows of a file.
class DocumentPage : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentPage(const QString &path) : m_path(path) {}

    QString path() const { return m_path; }

    /// What an outline of the document lists.
    virtual QList<OutlineEntry> outline() const = 0;

    /// Shows \a line, base 0; a document without lines ignores it.
    virtual void goToLine(int line) = 0;

private:
    const QString m_path;
};
