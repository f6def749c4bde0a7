// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileContent.h"

#include <QCoreApplication>

#include <atomic>

class QFileInfo;

/// Reads of a file what a preview shows. Works in any thread.
class FileReader
{
    Q_DECLARE_TR_FUNCTIONS(FileReader)

public:
    /// In bytes. Of a longer text this much is read.
    static constexpr qint64 Text_Maximum = 65536;
    /// In px. A longer side is scaled down to it.
    static constexpr int Picture_MaximumSide = 2048;
    /// In px of width times height.
    static constexpr qint64 Picture_MaximumArea = 200'000'000;

    /// What is at \a path. Only files and folders are opened, never pipes or devices. Ends early
    /// when \a isCancelled becomes true; what it returns then is worth nothing.
    static FileContent read(const QString &path, const std::atomic_bool &isCancelled);

private:
    static QString kindOf(const QFileInfo &info);
    static QString factsOf(const QFileInfo &info);
    static void readFolder(FileContent *content, const std::atomic_bool &isCancelled);
    static void readFile(FileContent *content, const QFileInfo &info);
    static void readPicture(FileContent *content);
    static void readText(FileContent *content, bool isKnownAsText);
    static void addFact(FileContent *content, const QString &fact);
};
