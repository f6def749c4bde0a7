// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Steps.h"
#include "TemporaryHome.h"
#include "WorkbenchProcess.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// The workbench without any display, where nobody can press a key.
class tst_E2eOffscreen final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itShowsWhatTheCommandLineNames_data();
    void itShowsWhatTheCommandLineNames();
    void itShowsWhatTheSettingsName();
    void aFileThatIsNotThereIsSaid();

private:
    void write(const QString &name, const QByteArray &bytes) const;
    QByteArray bytesOf(const QString &name) const;
    void start(const QStringList &arguments, int scale = 1);

    std::unique_ptr<Steps> m_steps;
    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<WorkbenchProcess> m_workbench;
};

void tst_E2eOffscreen::init()
{
    m_steps = std::make_unique<Steps>();
    m_home = std::make_unique<TemporaryHome>();
    QVERIFY(QDir(m_home->path()).mkdir(u"folder"_s));
    write(u"folder/readme.txt"_s, "one\n");
    write(u"folder/notes.md"_s, "# Notes\n");
    write(u"folder/table.csv"_s, "a,b\n1,2\n");
}

void tst_E2eOffscreen::cleanup()
{
    m_workbench.reset();
    if (m_steps->haveFailed())
        qInfo().noquote() << m_steps->failure();
    QVERIFY2(!m_steps->haveFailed(), "a step of the scenario failed");
}

void tst_E2eOffscreen::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(m_home->path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray tst_E2eOffscreen::bytesOf(const QString &name) const
{
    QFile file(m_home->path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_E2eOffscreen::start(const QStringList &arguments, int scale)
{
    m_workbench = std::make_unique<WorkbenchProcess>(
        m_home.get(), WorkbenchProcess::Place{QString(), scale}, m_steps.get());
    m_workbench->start(QString::fromUtf8(WORKBENCH_PROGRAM), arguments);
}

void tst_E2eOffscreen::itShowsWhatTheCommandLineNames_data()
{
    QTest::addColumn<int>("scale");

    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void tst_E2eOffscreen::itShowsWhatTheCommandLineNames()
{
    QFETCH(const int, scale);
    start({u"folder/table.csv"_s, u"folder/readme.txt"_s, u"folder/notes.md"_s}, scale);
    m_workbench->waitFor(u"folder"_s, m_home->path(u"folder"_s));
    m_workbench->waitFor(u"tabs 0"_s, u"readme.txt | notes.md"_s);
    m_workbench->waitFor(u"tabs 1"_s, QString());
    m_workbench->waitFor(u"tabs 2"_s, u"table.csv"_s);
    m_workbench->waitFor(u"document"_s, m_home->path(u"folder/notes.md"_s));
    m_workbench->waitFor(u"ribbon page"_s, u"textTools"_s);
    m_workbench->waitFor(u"temporary pages"_s, u"Text Tools"_s);
    m_workbench->waitFor(u"title"_s, u"notes.md – Workbench"_s);
    QCOMPARE(m_workbench->place(u"widget workbench"_s).size(), QSize(1100, 720));
    m_workbench->place(u"file readme.txt"_s);
    m_workbench->waitUntilGone(u"section 1"_s);
    m_workbench->terminate();
    QCOMPARE(bytesOf(u"folder/readme.txt"_s), "one\n");
}

void tst_E2eOffscreen::itShowsWhatTheSettingsName()
{
    const QByteArray settings =
        QStringLiteral("[General]\nformat=1\nfolder=%1\n\n"
                       "[files]\nopen=%1/readme.txt, %1/table.csv\ncurrent=%1/table.csv\n\n"
                       "[gallery]\nfavourites=blur, sepia\n")
            .arg(m_home->path(u"folder"_s))
            .toUtf8();
    write(u"settings.ini"_s, settings);
    for (int time = 0; time < 2; ++time) {
        start({});
        m_workbench->waitFor(u"folder"_s, m_home->path(u"folder"_s));
        m_workbench->waitFor(u"tabs 0"_s, u"readme.txt"_s);
        m_workbench->waitFor(u"document"_s, m_home->path(u"folder/table.csv"_s));
        m_workbench->waitFor(u"favourites"_s, u"blur sepia"_s);
        m_workbench->terminate();
        // Whoever is ended by force says nothing of what he leaves.
        QCOMPARE(bytesOf(u"settings.ini"_s), settings);
    }
}

void tst_E2eOffscreen::aFileThatIsNotThereIsSaid()
{
    start({u"folder/missing.txt"_s});
    m_workbench->waitFor(u"box"_s, u"Warning"_s);
    m_workbench->waitFor(u"message"_s, u"Warning: There is no file and no folder "
                                       "“folder/missing.txt”. The last folder is shown instead."_s);
    m_workbench->terminate();
}

QTEST_GUILESS_MAIN(tst_E2eOffscreen)

#include "tst_e2e_offscreen.moc"
