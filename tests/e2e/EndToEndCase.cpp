// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

QByteArray pictureBytes(QRgb top, QRgb bottom)
{
    QImage image(200, 120, QImage::Format_RGB32);
    image.fill(top);
    QPainter painter(&image);
    painter.fillRect(0, 60, 200, 60, QColor(bottom));
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace

void EndToEndCase::init()
{
    useScale(1);
}

void EndToEndCase::useScale(int scale)
{
    m_scene = std::make_unique<Scene>(QString::fromUtf8(WORKBENCH_PROGRAM), scale);
    prepare();
}

void EndToEndCase::prepare()
{
    m_scene->write(u"folder/notes.md"_s, "# First\n\nalpha beta\n\n## Second\n\nalpha gamma\n");
    m_scene->write(u"folder/readme.txt"_s, "one\ntwo\nthree\n");
    m_scene->write(u"folder/table.csv"_s, "name,count\napple,3\npear,5\n");
    m_scene->write(u"folder/picture.png"_s, pictureBytes(PictureTop, PictureBottom));
    m_scene->write(u"folder/inner/deep.txt"_s, "deep\n");
    m_scene->write(u"other/else.txt"_s, "else\n");
}

void EndToEndCase::cleanup()
{
    Steps *steps = m_scene->steps();
    if (steps->haveFailed() || QTest::currentTestFailed()) {
        const QString name = u"%1_%2.png"_s.arg(QString::fromLatin1(metaObject()->className()),
                                                QString::fromLatin1(QTest::currentTestFunction()));
        const QDir folder(QCoreApplication::applicationDirPath());
        m_scene->lastPicture().save(folder.filePath(name));
    }
    const bool isFine = !steps->haveFailed();
    // Whole, while the message of a failure is cut off when it is long.
    if (!isFine)
        qInfo().noquote() << steps->failure();
    m_scene.reset();
    QVERIFY2(isFine, "a step of the scenario failed");
}
