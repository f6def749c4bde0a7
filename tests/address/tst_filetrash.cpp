// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileFixture.h"
#include "address/FileProgress.h"
#include "address/FileRemoval.h"
#include "address/FileTrash.h"
#include "support/TestCase.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QUrl>

#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class TestFileTrash : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_files = std::make_unique<FileFixture>();
    }
    void cleanup()
    {
        m_files.reset();
        TestCase::cleanup();
    }

    void whatIsTakenSaysWhereItCameFrom_data();
    void whatIsTakenSaysWhereItCameFrom();
    void linksAreTakenThemselves();
    void sameNamesAreNumbered();
    void nameInUseByAnotherProgramIsLeft();
    void longNamesAreShortened_data();
    void longNamesAreShortened();
    void trashIsMadeWhereThereIsNone();
    void trashThatIsALinkIsUsed();
    void fileInPlaceOfTheTrashIsLeft();
    void fileIsRemovedWithoutATrash();
    void folderIsRemovedWithoutATrash();
    void linkIsRemovedWithoutATrash();
    void whatIsInTheTrashCanBeTakenAgain();
    void folderAroundTheTrashStays();
    void pipeIsTakenUnopened();
    void missingPathFails();

private:
    NativeFiles::Path native(const QString &relative) const
    {
        return NativeFiles::fromText(m_files->path(relative));
    }
    bool take(const QString &relative) const { return FileTrash::take(native(relative)); }
    bool remove(const QString &relative) const
    {
        FileProgress progress;
        return FileRemoval::remove(native(relative), progress);
    }
    void breakTrash() const { m_files->write(u".home/Trash"_s, "no folder"); }

    std::unique_ptr<FileFixture> m_files;
};

void TestFileTrash::whatIsTakenSaysWhereItCameFrom_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"a.txt"_s;
    QTest::newRow("spaces and percent") << u"50 % of it"_s;
    QTest::newRow("newline") << u"two\nlines"_s;
    QTest::newRow("quotes") << u"\"'`$HOME"_s;
    QTest::newRow("emoji") << u"😀é"_s;
    QTest::newRow("right to left") << u"קובץ"_s;
    QTest::newRow("hidden") << u".hidden"_s;
}

void TestFileTrash::whatIsTakenSaysWhereItCameFrom()
{
    QFETCH(QString, name);
    m_files->write(u"from/"_s + name, "data");
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    QVERIFY(take(u"from/"_s + name));
    QVERIFY(!m_files->exists(u"from/"_s + name));
    QCOMPARE(m_files->readTrashed(name), "data");
    const QList<QByteArray> lines = m_files->read(u".home/Trash/info/"_s + name + u".trashinfo"_s)
                                        .split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], "[Trash Info]");
    QVERIFY(lines[1].startsWith("Path=/"));
    QCOMPARE(QUrl::fromPercentEncoding(lines[1].mid(5)), m_files->path(u"from/"_s + name));
    const auto date = QDateTime::fromString(QString::fromLatin1(lines[2]),
                                            u"'DeletionDate='yyyy-MM-ddThh:mm:ss"_s);
    QVERIFY(date >= before && date <= QDateTime::currentDateTime());
}

void TestFileTrash::linksAreTakenThemselves()
{
    m_files->write(u"folder/a"_s, "data");
    m_files->makeLink(u"to folder"_s, u"folder"_s);
    m_files->makeLink(u"to nothing"_s, u"nothing"_s);
    QVERIFY(take(u"to folder"_s));
    QVERIFY(take(u"to nothing"_s));
    QCOMPARE(m_files->list(u".home/Trash/files"_s),
             (QStringList{u"to folder->folder"_s, u"to nothing->nothing"_s}));
    QCOMPARE(m_files->read(u"folder/a"_s), "data");
}

void TestFileTrash::sameNamesAreNumbered()
{
    for (const QByteArray &data : {"1"_ba, "2"_ba, "3"_ba}) {
        m_files->write(u"a"_s, data);
        QVERIFY(take(u"a"_s));
    }
    QCOMPARE(m_files->trashed(), (QStringList{u"a"_s, u"a.2"_s, u"a.3"_s}));
    QCOMPARE(m_files->readTrashed(u"a"_s), "1");
    QCOMPARE(m_files->readTrashed(u"a.3"_s), "3");
}

void TestFileTrash::nameInUseByAnotherProgramIsLeft()
{
    m_files->write(u".home/Trash/info/a.trashinfo"_s, "theirs");
    m_files->write(u".home/Trash/files/a.2"_s, "without info");
    m_files->write(u"a"_s, "mine");
    QVERIFY(take(u"a"_s));
    QCOMPARE(m_files->read(u".home/Trash/info/a.trashinfo"_s), "theirs");
    QCOMPARE(m_files->readTrashed(u"a.2"_s), "without info");
    QCOMPARE(m_files->readTrashed(u"a.3"_s), "mine");
    QVERIFY(!m_files->exists(u".home/Trash/info/a.2.trashinfo"_s));
}

void TestFileTrash::longNamesAreShortened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("245 bytes") << QString(245, u'a');
    QTest::newRow("246 bytes") << QString(246, u'a');
    QTest::newRow("255 bytes") << QString(255, u'a');
    QTest::newRow("254 bytes of two") << QString(127, u'é');
    QTest::newRow("252 bytes of four") << u"😀"_s.repeated(63);
}

void TestFileTrash::longNamesAreShortened()
{
    QFETCH(QString, name);
    for (int i = 0; i < 3; ++i) {
        m_files->write(name, QByteArray::number(i));
        QVERIFY(take(name));
        QVERIFY(!m_files->exists(name));
    }
    const QStringList names = m_files->trashed();
    QCOMPARE(names.size(), 3);
    for (const QString &trashed : names)
        QVERIFY(!trashed.contains(QChar::ReplacementCharacter));
}

void TestFileTrash::trashIsMadeWhereThereIsNone()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_files->path(u"deep/in/no/home"_s)));
    m_files->write(u"a"_s, "data");
    QVERIFY(take(u"a"_s));
    QCOMPARE(m_files->read(u"deep/in/no/home/Trash/files/a"_s), "data");
    const auto mode = QFile::permissions(m_files->path(u"deep/in/no/home/Trash"_s));
    QCOMPARE(mode & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

void TestFileTrash::trashThatIsALinkIsUsed()
{
    m_files->makeFolder(u"elsewhere"_s);
    m_files->makeLink(u".home/Trash"_s, m_files->path(u"elsewhere"_s));
    m_files->write(u"a"_s, "data");
    QVERIFY(take(u"a"_s));
    QCOMPARE(m_files->read(u"elsewhere/files/a"_s), "data");
}

void TestFileTrash::fileInPlaceOfTheTrashIsLeft()
{
    breakTrash();
    m_files->write(u"a"_s, "data");
    QVERIFY(!take(u"a"_s));
    QCOMPARE(m_files->read(u"a"_s), "data");
    QCOMPARE(m_files->read(u".home/Trash"_s), "no folder");
}

void TestFileTrash::fileIsRemovedWithoutATrash()
{
    breakTrash();
    const QString longName(255, u'a');
    m_files->write(u"a"_s, "data");
    m_files->write(longName, "data");
    QVERIFY(remove(u"a"_s));
    QVERIFY(remove(longName));
    QVERIFY(!m_files->exists(u"a"_s));
    QVERIFY(!m_files->exists(longName));
}

void TestFileTrash::folderIsRemovedWithoutATrash()
{
    breakTrash();
    m_files->write(u"folder/.hidden/a"_s, "data");
    m_files->write(u"kept/a"_s, "kept");
    m_files->makeLink(u"folder/link"_s, m_files->path(u"kept"_s));
    QCOMPARE(::mkfifo(QFile::encodeName(m_files->path(u"folder/pipe"_s)).constData(), 0600), 0);
    QVERIFY(remove(u"folder"_s));
    QVERIFY(!m_files->exists(u"folder"_s));
    QCOMPARE(m_files->read(u"kept/a"_s), "kept");
}

void TestFileTrash::linkIsRemovedWithoutATrash()
{
    breakTrash();
    m_files->write(u"kept/a"_s, "kept");
    m_files->makeLink(u"link"_s, u"kept"_s);
    QVERIFY(remove(u"link"_s));
    QVERIFY(!m_files->exists(u"link"_s));
    QCOMPARE(m_files->read(u"kept/a"_s), "kept");
}

void TestFileTrash::whatIsInTheTrashCanBeTakenAgain()
{
    m_files->write(u"a"_s, "data");
    QVERIFY(take(u"a"_s));
    QVERIFY(take(u".home/Trash/files/a"_s));
    QCOMPARE(m_files->readTrashed(u"a.2"_s), "data");
}

void TestFileTrash::folderAroundTheTrashStays()
{
    m_files->write(u"a"_s, "data");
    QVERIFY(take(u"a"_s));
    m_files->write(u".home/more"_s, "more");
    for (const QString &folder : {u".home"_s, u".home/Trash"_s, u".home/Trash/files"_s})
        QVERIFY(!remove(folder));
    QCOMPARE(m_files->readTrashed(u"a"_s), "data");
    QCOMPARE(m_files->read(u".home/more"_s), "more");
}

void TestFileTrash::pipeIsTakenUnopened()
{
    QCOMPARE(::mkfifo(QFile::encodeName(m_files->path(u"pipe"_s)).constData(), 0600), 0);
    QVERIFY(take(u"pipe"_s));
    QVERIFY(!m_files->exists(u"pipe"_s));
}

void TestFileTrash::missingPathFails()
{
    QVERIFY(!remove(u"none"_s));
    QVERIFY(!take(u"none"_s));
    QVERIFY(m_files->trashed().isEmpty());
    QVERIFY(m_files->list(u".home/Trash/info"_s).isEmpty());
}

QTEST_MAIN(TestFileTrash)

#include "tst_filetrash.moc"
