// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/TestCase.h"

#include "FilesSettings.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// The file of settings.
class tst_FilesSettings final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsWhatItWrote();
    void keepsWhatElseTheFileHolds();
    void whatMakesNoSenseIsAsAtFirst_data();
    void whatMakesNoSenseIsAsAtFirst();
    void saysThatItCouldNotWrite();

private:
    QString file() const { return m_folder->filePath(u"files.ini"_s); }
    void write(const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FilesSettings::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_FilesSettings::write(const QByteArray &bytes) const
{
    QFile ini(file());
    if (!ini.open(QIODevice::WriteOnly) || ini.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
}

void tst_FilesSettings::readsWhatItWrote()
{
    FilesSettings settings;
    settings.geometry = QByteArray("\0\xff", 2);
    settings.panes = "a";
    settings.preview = "b";
    settings.leftFolder = u"/a;b, \"c\" = [x]\n%1 @Invalid() שלום 🙂"_s;
    settings.rightFolder = u"@Rect(1 2 3 4)"_s;
    settings.isPreviewShown = false;
    QVERIFY(settings.save(file()));
    const FilesSettings loaded = FilesSettings::load(file());
    QCOMPARE(loaded.geometry, settings.geometry);
    QCOMPARE(loaded.panes, settings.panes);
    QCOMPARE(loaded.preview, settings.preview);
    QCOMPARE(loaded.leftFolder, settings.leftFolder);
    QCOMPARE(loaded.rightFolder, settings.rightFolder);
    QCOMPARE(loaded.isPreviewShown, false);
}

void tst_FilesSettings::keepsWhatElseTheFileHolds()
{
    write("[other]\nkey=value\n");
    QVERIFY(FilesSettings().save(file()));
    QFile ini(file());
    QVERIFY(ini.open(QIODevice::ReadOnly));
    QVERIFY(ini.readAll().contains("[other]\nkey=value\n"));
}

void tst_FilesSettings::whatMakesNoSenseIsAsAtFirst_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no settings") << QByteArray("\0\1\2[[[", 6);
    QTest::newRow("of a later version")
        << QByteArray("[General]\nformat=2\n[folders]\nleft=/a\n[window]\nisPreviewShown=false\n");
    QTest::newRow("without version")
        << QByteArray("[folders]\nleft=/a\n[window]\nisPreviewShown=false\n");
    QTest::newRow("lists for texts")
        << QByteArray("[General]\nformat=1\n[folders]\nleft=a, b\n[window]\ngeometry=1, 2\n");
}

void tst_FilesSettings::whatMakesNoSenseIsAsAtFirst()
{
    QFETCH(const QByteArray, bytes);
    write(bytes);
    const FilesSettings loaded = FilesSettings::load(file());
    QCOMPARE(loaded.geometry, QByteArray());
    QCOMPARE(loaded.leftFolder, QString());
    QCOMPARE(loaded.isPreviewShown, true);
}

void tst_FilesSettings::saysThatItCouldNotWrite()
{
    write("no folder");
    QVERIFY(!FilesSettings().save(file() + u"/files.ini"_s));
}

QTEST_MAIN(tst_FilesSettings)

#include "tst_filessettings.moc"
