// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileFixture.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

constexpr auto DataHome = "XDG_DATA_HOME";

std::filesystem::path native(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace

FileFixture::FileFixture()
    : m_dataHomeBefore(qgetenv(DataHome)), m_hadDataHome(qEnvironmentVariableIsSet(DataHome))
{
    QVERIFY(m_folder.isValid());
    makeFolder(u".home"_s);
    qputenv(DataHome, QFile::encodeName(path(u".home"_s)));
}

FileFixture::~FileFixture()
{
    if (m_hadDataHome)
        qputenv(DataHome, m_dataHomeBefore);
    else
        qunsetenv(DataHome);
    // Qt does not see, and so does not remove, names that are no UTF-8.
    std::error_code error;
    std::filesystem::remove_all(native(path()), error);
}

QString FileFixture::path(const QString &relative) const
{
    return relative.isEmpty() ? m_folder.path() : m_folder.filePath(relative);
}

void FileFixture::write(const QString &relative, const QByteArray &data) const
{
    QVERIFY(QDir().mkpath(QFileInfo(path(relative)).path()));
    QFile file(path(relative));
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(relative));
    QCOMPARE(file.write(data), data.size());
}

void FileFixture::makeFolder(const QString &relative) const
{
    QVERIFY(QDir().mkpath(path(relative)));
}

void FileFixture::makeLink(const QString &relative, const QString &text) const
{
    QVERIFY(QDir().mkpath(QFileInfo(path(relative)).path()));
    std::error_code error;
    std::filesystem::create_symlink(native(text), native(path(relative)), error);
    QVERIFY2(!error, error.message().c_str());
}

QByteArray FileFixture::read(const QString &relative) const
{
    QFile file(path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
}

bool FileFixture::exists(const QString &relative) const
{
    std::error_code error;
    const auto status = std::filesystem::symlink_status(native(path(relative)), error);
    return status.type() != std::filesystem::file_type::not_found;
}

QStringList FileFixture::list(const QString &relative) const
{
    QStringList names;
    std::error_code error;
    const std::filesystem::path top = native(path(relative));
    for (const auto &entry : std::filesystem::recursive_directory_iterator(top, error)) {
        QString name = QFile::decodeName(entry.path().lexically_relative(top).c_str());
        if (entry.is_symlink())
            name += u"->"_s
                    + QFile::decodeName(std::filesystem::read_symlink(entry, error).c_str());
        else if (entry.is_directory())
            name += u'/';
        names.append(name);
    }
    names.sort();
    return names;
}

QStringList FileFixture::trashed() const
{
    return QDir(path(u".home/Trash/files"_s))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}

QByteArray FileFixture::readTrashed(const QString &name) const
{
    return read(u".home/Trash/files/"_s + name);
}
