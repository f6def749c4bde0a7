// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkbenchDocument.h"

#include <QCoreApplication>

/// Makes documents of files.
class DocumentLoader
{
    Q_DECLARE_TR_FUNCTIONS(DocumentLoader)

public:
    /// The document of the file at \a path, which the caller owns; null if it cannot be opened,
    /// and then \a reason is a sentence for the user. \a reason may be null.
    static WorkbenchDocument *load(const QString &path, QString *reason);

    /// As what the file at \a path would be opened. Its name says so; only a picture is known by
    /// its content, too.
    static WorkbenchDocument::Kind kindOf(const QString &path);
};
