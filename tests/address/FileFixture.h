// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder for the files of one test, with a home and a trash of its own. The real ones are never
/// touched: a file that goes to the trash goes to trash() for as long as the object lives.
///
/// Paths are relative to the folder, with "/" as separator.
class FileFixture
{
public:
    FileFixture();
    ~FileFixture();

    QString path(const QString &relative = QString()) const;

    void write(const QString &relative, const QByteArray &data) const;
    void makeFolder(const QString &relative) const;
    void makeLink(const QString &relative, const QString &text) const;

    QByteArray read(const QString &relative) const;
    /// Whether there is anything of this name, also a link that leads nowhere.
    bool exists(const QString &relative) const;

    /// All below \a relative, sorted, with a "/" after folders and the text of links after "->".
    QStringList list(const QString &relative) const;

    /// The names in the trash.
    QStringList trashed() const;
    QByteArray readTrashed(const QString &name) const;

private:
    Q_DISABLE_COPY_MOVE(FileFixture)

    const QTemporaryDir m_folder;
    const QByteArray m_dataHomeBefore;
    const bool m_hadDataHome;
};
