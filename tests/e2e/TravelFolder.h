// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A folder with texts, tables and pictures of a journey: what the pictures in the documents show. It
/// is the same wherever and whenever it is made, with the times of its files.
class TravelFolder
{
    Q_DISABLE_COPY_MOVE(TravelFolder)

public:
    /// Makes the folder at \a path, where nothing must be yet.
    explicit TravelFolder(const QString &path);
    /// Removes it with all that it holds.
    ~TravelFolder();

    /// False when there was something at its place, or it could not be written.
    bool isComplete() const { return m_isComplete; }

    QString path() const { return m_path; }
    QString filePath(const QString &name) const;

private:
    bool write(const QString &name, const QByteArray &bytes) const;
    bool writeTexts() const;
    bool writeTables() const;
    bool writePictures() const;

    const QString m_path;
    bool m_isOwn = false;
    bool m_isComplete = false;
};
