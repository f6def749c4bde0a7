// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The program as it is run from the command line.
class tst_NotepadProgram final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesAScreenshot_data();
    void takesAScreenshot();
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

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_NotepadProgram::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile file(path(u"a.txt"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("some text\n") > 0);
}

tst_NotepadProgram::Outcome tst_NotepadProgram::run(const QStringList &arguments,
                                                    const QString &scale) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"QT_SCALE_FACTOR"_s, scale);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(QString::fromUtf8(NOTEPAD_PROGRAM), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void tst_NotepadProgram::takesAScreenshot_data()
{
    QTest::addColumn<QString>("scale");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QSize>("size");

    QTest::newRow("ratio 1") << u"1"_s << QStringList{u"a.txt"_s} << QSize(1000, 640);
    QTest::newRow("ratio 2") << u"2"_s << QStringList{u"a.txt"_s} << QSize(2000, 1280);
    QTest::newRow("without a file") << u"1"_s << QStringList() << QSize(1000, 640);
}

void tst_NotepadProgram::takesAScreenshot()
{
    QFETCH(const QString, scale);
    QFETCH(const QStringList, files);
    const QString picture = path(u"picture.png"_s);
    const Outcome outcome = run(files + QStringList{u"--screenshot"_s, picture}, scale);
    QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
    QCOMPARE(outcome.output, picture + u'\n');
    const QImage image(picture, "PNG");
    QTEST(image.size(), "size");
    // The tab row, the page below it, and the text.
    const int ratio = scale.toInt();
    QCOMPARE(image.pixelColor(QPoint(600, 10) * ratio), QColor(0, 64, 115));
    QCOMPARE(image.pixelColor(QPoint(900, 80) * ratio), QColor(245, 245, 245));
    QCOMPARE(image.pixelColor(QPoint(600, 400) * ratio), QColor(Qt::white));
}

void tst_NotepadProgram::saysWhatWentWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");

    QTest::newRow("no such folder for the picture")
        << QStringList{u"--screenshot"_s, u"missing/picture.png"_s} << u"missing/picture.png"_s;
    QTest::newRow("no such file") << QStringList{u"missing.txt"_s, u"--screenshot"_s,
                                                 u"picture.png"_s}
                                  << u"missing.txt"_s;
    QTest::newRow("two files") << QStringList{u"a.txt"_s, u"b.txt"_s} << u"one file"_s;
    QTest::newRow("unknown option") << QStringList{u"--unknown"_s} << u"unknown"_s;
    QTest::newRow("no name for the picture") << QStringList{u"--screenshot"_s} << u"screenshot"_s;
}

void tst_NotepadProgram::saysWhatWentWrong()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, said);
    const Outcome outcome = run(arguments);
    QCOMPARE_GT(outcome.code, 0);
    QVERIFY2(outcome.errors.contains(said), qPrintable(outcome.errors));
    QCOMPARE(outcome.output, QString());
    QVERIFY(!QFile::exists(path(u"picture.png"_s)));
}

void tst_NotepadProgram::helpNamesTheOptions()
{
    const Outcome outcome = run({u"--help"_s});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.output.contains(u"--screenshot <FILE.png>"_s));
    QVERIFY(outcome.output.contains(u"[FILE]"_s));
}

QTEST_GUILESS_MAIN(tst_NotepadProgram)

#include "tst_notepadprogram.moc"
