// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The program as it is run from the command line.
class tst_FilesProgram final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesAScreenshot_data();
    void takesAScreenshot();
    void aScreenshotLooksTheSameEachTime();
    void aScreenshotNeedsNoSettings();
    void saysWhatWentWrong_data();
    void saysWhatWentWrong();
    void helpNamesTheOptions();

private:
    struct Outcome
    {
        int code = -1;
        QString output;
        QString errors;
    };

    Outcome run(const QStringList &arguments, const QString &scale = u"1"_s) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FilesProgram::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    const QDir folder(m_folder->path());
    QVERIFY(folder.mkdir(u"home"_s) && folder.mkdir(u"a"_s) && folder.mkdir(u"b"_s));
    write(u"a/file.txt"_s, "some text\n");
}

void tst_FilesProgram::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
}

tst_FilesProgram::Outcome tst_FilesProgram::run(const QStringList &arguments,
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
    process.start(QString::fromUtf8(FILES_PROGRAM), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void tst_FilesProgram::takesAScreenshot_data()
{
    QTest::addColumn<QString>("scale");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QSize>("size");

    QTest::newRow("ratio 1") << u"1"_s << QStringList{u"a"_s, u"b"_s} << QSize(1100, 720);
    QTest::newRow("ratio 2") << u"2"_s << QStringList{u"a"_s, u"b"_s} << QSize(2200, 1440);
    QTest::newRow("one folder") << u"1"_s << QStringList{u"a"_s} << QSize(1100, 720);
    QTest::newRow("without a folder") << u"1"_s << QStringList() << QSize(1100, 720);
    QTest::newRow("from right to left")
        << u"1"_s << QStringList{u"a"_s, u"-reverse"_s} << QSize(1100, 720);
}

void tst_FilesProgram::takesAScreenshot()
{
    QFETCH(const QString, scale);
    QFETCH(const QStringList, folders);
    const QString picture = path(u"picture.png"_s);
    const Outcome outcome = run(folders + QStringList{u"--screenshot"_s, picture}, scale);
    QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
    QCOMPARE(outcome.output, picture + u'\n');
    const QImage image(picture, "PNG");
    QTEST(image.size(), "size");
    // The ground of the trees and that of the preview.
    const int ratio = scale.toInt();
    QCOMPARE(image.pixelColor(QPoint(300, 400) * ratio), QColor(245, 245, 245));
    QCOMPARE(image.pixelColor(QPoint(800, 400) * ratio), QColor(245, 245, 245));
    QCOMPARE(image.pixelColor(QPoint(300, 700) * ratio), QColor(Qt::white));
}

void tst_FilesProgram::aScreenshotLooksTheSameEachTime()
{
    const QStringList arguments{u"a"_s, u"--screenshot"_s};
    QCOMPARE(run(arguments + QStringList{u"1.png"_s}).code, 0);
    QCOMPARE(run(arguments + QStringList{u"2.png"_s}).code, 0);
    QCOMPARE(QImage(path(u"1.png"_s)), QImage(path(u"2.png"_s)));
}

void tst_FilesProgram::aScreenshotNeedsNoSettings()
{
    const QByteArray settings("[General]\nformat=1\n\n[window]\nisPreviewShown=false\n");
    write(u"a.ini"_s, settings);
    const QStringList arguments{u"--settings"_s, u"a.ini"_s, u"--screenshot"_s, u"1.png"_s};
    QCOMPARE(run(arguments).code, 0);
    QCOMPARE(run({u"--screenshot"_s, u"2.png"_s}).code, 0);
    QCOMPARE(QImage(path(u"1.png"_s)), QImage(path(u"2.png"_s)));
    QFile file(path(u"a.ini"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), settings);
    QVERIFY(!QDir(path(u"config/VornFrame"_s)).exists());
}

void tst_FilesProgram::saysWhatWentWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");

    QTest::newRow("no such folder for the picture")
        << QStringList{u"--screenshot"_s, u"missing/picture.png"_s} << u"missing/picture.png"_s;
    QTest::newRow("no such folder")
        << QStringList{u"a"_s, u"missing"_s, u"--screenshot"_s, u"picture.png"_s} << u"missing"_s;
    QTest::newRow("no folder") << QStringList{u"a/file.txt"_s, u"--screenshot"_s, u"picture.png"_s}
                               << u"file.txt"_s;
    QTest::newRow("a folder too many") << QStringList{u"a"_s, u"b"_s, u"a"_s} << u"two panes"_s;
    QTest::newRow("unknown option") << QStringList{u"--unknown"_s} << u"unknown"_s;
    QTest::newRow("no name for the picture") << QStringList{u"--screenshot"_s} << u"screenshot"_s;
    QTest::newRow("no name for the settings") << QStringList{u"--settings"_s} << u"settings"_s;
    QTest::newRow("empty name for the picture")
        << QStringList{u"--screenshot"_s, QString()} << u"screenshot"_s;
}

void tst_FilesProgram::saysWhatWentWrong()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, said);
    const Outcome outcome = run(arguments);
    QCOMPARE_GT(outcome.code, 0);
    QVERIFY2(outcome.errors.contains(said), qPrintable(outcome.errors));
    QCOMPARE(outcome.output, QString());
    QVERIFY(!QFile::exists(path(u"picture.png"_s)));
}

void tst_FilesProgram::helpNamesTheOptions()
{
    const Outcome outcome = run({u"--help"_s});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.output.contains(u"--screenshot <FILE.png>"_s));
    QVERIFY(outcome.output.contains(u"--settings <FILE.ini>"_s));
    QVERIFY(outcome.output.contains(u"[LEFT [RIGHT]]"_s));
}

QTEST_GUILESS_MAIN(tst_FilesProgram)

#include "tst_filesprogram.moc"
