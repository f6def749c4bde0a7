// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ProgramFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

ProgramFixture::ProgramFixture(Program program) : m_program(std::move(program)) {}

ProgramFixture::~ProgramFixture() = default;

void ProgramFixture::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"home"_s));
}

void ProgramFixture::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
}

QByteArray ProgramFixture::bytesOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ProgramFixture::Outcome ProgramFixture::run(const QStringList &arguments,
                                            const QString &scale) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"QT_SCALE_FACTOR"_s, scale);
    environment.insert(u"HOME"_s, path(u"home"_s));
    environment.insert(u"XDG_CONFIG_HOME"_s, path(u"config"_s));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(m_program.path, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QImage ProgramFixture::screenshot(const QStringList &arguments) const
{
    const QString picture = path(u"picture.png"_s);
    QFile::remove(picture);
    run(arguments + QStringList{u"--screenshot"_s, picture});
    return QImage(picture, "PNG");
}

void ProgramFixture::takesAScreenshot_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isMirrored");

    const QStringList arguments = m_program.arguments;
    QTest::newRow("ratio 1") << 1 << arguments << false;
    QTest::newRow("ratio 2") << 2 << arguments << false;
    QTest::newRow("with nothing to open") << 1 << QStringList() << false;
    QTest::newRow("from right to left") << 1 << arguments + QStringList{u"-reverse"_s} << true;
}

void ProgramFixture::takesAScreenshot()
{
    QFETCH(const int, ratio);
    QFETCH(const QStringList, arguments);
    QFETCH(const bool, isMirrored);
    const QString picture = path(u"picture.png"_s);
    const Outcome outcome = run(arguments + QStringList{u"--screenshot"_s, picture},
                                QString::number(ratio));
    QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
    QCOMPARE(outcome.output, picture + u'\n');
    const QImage image(picture, "PNG");
    QCOMPARE(image.size(), m_program.size * ratio);
    for (const Sample &sample : m_program.samples) {
        const int x = isMirrored ? m_program.size.width() - 1 - sample.at.x() : sample.at.x();
        QCOMPARE(image.pixelColor(QPoint(x, sample.at.y()) * ratio), sample.color);
    }
}

void ProgramFixture::aScreenshotLooksTheSameEachTime()
{
    const QImage first = screenshot(m_program.arguments);
    QVERIFY(!first.isNull());
    QCOMPARE(screenshot(m_program.arguments), first);
}

void ProgramFixture::checkScreenshotWithout(const QByteArray &settings) const
{
    write(u"a.ini"_s, settings);
    const QImage picture = screenshot({u"--settings"_s, u"a.ini"_s});
    QVERIFY(!picture.isNull());
    QCOMPARE(picture, screenshot({}));
    QCOMPARE(bytesOf(u"a.ini"_s), settings);
    QVERIFY(!QDir(path(u"config/VornFrame"_s)).exists());
}

void ProgramFixture::saysWhatWentWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");

    QTest::newRow("no such folder for the picture")
        << QStringList{u"--screenshot"_s, u"missing/picture.png"_s} << u"missing/picture.png"_s;
    QTest::newRow("unknown option") << QStringList{u"--unknown"_s} << u"unknown"_s;
    QTest::newRow("no name for the picture") << QStringList{u"--screenshot"_s} << u"screenshot"_s;
    QTest::newRow("empty name for the picture")
        << QStringList{u"--screenshot"_s, QString()} << u"screenshot"_s;
}

void ProgramFixture::saysWhatWentWrong()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, said);
    const Outcome outcome = run(arguments);
    QCOMPARE_GT(outcome.code, 0);
    QVERIFY2(outcome.errors.contains(said), qPrintable(outcome.errors));
    QCOMPARE(outcome.output, QString());
    QVERIFY(!QFile::exists(path(u"picture.png"_s)));
}

void ProgramFixture::helpNamesTheOptions()
{
    const Outcome outcome = run({u"--help"_s});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.output.contains(u"--screenshot <FILE.png>"_s));
    for (const QString &text : m_program.help)
        QVERIFY2(outcome.output.contains(text), qPrintable(text));
}
