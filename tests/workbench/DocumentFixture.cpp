// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentFixture.h"

#include <QFile>

void DocumentFixture::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void DocumentFixture::cleanup()
{
    m_folder.reset();
    TestCase::cleanup();
}

QString DocumentFixture::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

QByteArray DocumentFixture::bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

QString DocumentFixture::property(const WorkbenchDocument *document, const QString &name)
{
    const auto properties = document->properties();
    for (const auto &property : properties) {
        if (property.first == name)
            return property.second;
    }
    return {};
}
