// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentPage.h"

#include <QCoreApplication>

#include <memory>

/// Makes pages of files.
class PageLoader
{
    Q_DECLARE_TR_FUNCTIONS(PageLoader)

public:
    enum class Kind { Markdown, Text, Picture };

    struct Result
    {
        std::unique_ptr<DocumentPage> page; ///< null when the file could not be read
        Kind kind = Kind::Text;
        QString reason; ///< why it could not be read: a sentence for the user
    };

    /// Of a text, in bytes.
    static constexpr qint64 MaximumSize = qint64(16) * 1024 * 1024;

    /// What the file at \a path is follows from its name, and where that says nothing from its
    /// first bytes.
    static Result load(const QString &path);

private:
    static Result failure(const QString &reason);
    static Result loadPicture(const QString &path);
    static Result loadText(const QString &path, bool isMarkdown);
};
