// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentFixture.h"
#include "TextDocument.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// A text that is edited and saved.
class tst_TextDocument final : public DocumentFixture
{
    Q_OBJECT

private Q_SLOTS:
    void anUnchangedTextComesBackByteByByte_data();
    void anUnchangedTextComesBackByteByByte();
    void editingMakesItModifiedAndUndoingNot();
    void savingWritesWhatWasTypedAndKeepsTheRest();
    void savingAnUnmodifiedTextLeavesTheFile();
    void aFileThatIsGoneIsMadeAnewWhenTheUserSaysSo();
    void savingKeepsThePermissions();
    void aChangedFileIsNotOverwritten();
    void aFileThatIsAFolderNowIsNotOverwritten();
    void aLetterThatLatin1DoesNotHaveIsAskedFor();
    void eachLossIsAskedForOnItsOwn();
    void aFailedSaveLeavesItModified();
    void followsItsFile();
    void tellsWhatCanBeUndone();
    void aCopyHasTheEncodingThatItNeeds();
    void aCopyLeavesItModified();
    void aCopyIsNotTheFileItself();
    void headingsAreTheOutline();
    void otherTextsHaveNoOutline();
    void goesToALine();
    void propertiesAreCounted();
    void typingTellsOfItsContentOnce();
};

void tst_TextDocument::anUnchangedTextComesBackByteByByte_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("LF") << QByteArray("a\nb\n");
    QTest::newRow("no end") << QByteArray("a\nb");
    QTest::newRow("CRLF, mark") << QByteArray("\xEF\xBB\xBF"
                                              "a\r\nb\r\n");
    QTest::newRow("mixed") << QByteArray("a\r\nb\nc\rd");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE\x61\0\r\0\n\0", 8);
    QTest::newRow("Latin-1") << QByteArray("caf\xE9\r\n");
    QTest::newRow("spaces of all kinds")
        << QByteArray("\t\v\f \xC2\x85\xC2\xA0\xE2\x80\xA8\xE2\x80\xA9");
    QTest::newRow("noncharacters") << QByteArray("a\xEF\xB7\x90\xEF\xB7\x91");
}

void tst_TextDocument::anUnchangedTextComesBackByteByByte()
{
    QFETCH(const QByteArray, bytes);
    const QString path = createFile(u"a.txt"_s, bytes);
    const auto document = load<TextDocument>(path);
    QCOMPARE(document->saveCopy(filePath(u"b.txt"_s)), QString());
    QCOMPARE(bytesOf(filePath(u"b.txt"_s)), bytes);
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(bytesOf(path), bytes);
}

void tst_TextDocument::editingMakesItModifiedAndUndoingNot()
{
    const auto document = load<TextDocument>(createFile(u"a.txt"_s, "a"));
    QSignalSpy spy(document.get(), &WorkbenchDocument::signalModifiedChanged);
    document->editor()->insertPlainText(u"b"_s);
    QVERIFY(document->isModified());
    QCOMPARE(spy.takeFirst().constFirst().toBool(), true);
    document->editor()->undo();
    QVERIFY(!document->isModified());
    QCOMPARE(spy.takeFirst().constFirst().toBool(), false);
    QVERIFY(spy.isEmpty());
}

void tst_TextDocument::savingWritesWhatWasTypedAndKeepsTheRest()
{
    const QString path = createFile(u"a.txt"_s, QByteArray("\xFF\xFE\x61\0\r\0\n\0", 8));
    const auto document = load<TextDocument>(path);
    document->editor()->moveCursor(QTextCursor::End);
    document->editor()->insertPlainText(u"\u20AC\n"_s);
    QCOMPARE(document->save(), QString());
    QVERIFY(!document->isModified());
    QCOMPARE(bytesOf(path), QByteArray("\xFF\xFE\x61\0\r\0\n\0\xAC\x20\r\0\n\0", 14));
    // What was saved can be undone and saved again.
    document->editor()->undo();
    QVERIFY(document->isModified());
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), QByteArray("\xFF\xFE\x61\0\r\0\n\0", 8));
}

void tst_TextDocument::savingAnUnmodifiedTextLeavesTheFile()
{
    const QString path = createFile(u"a.txt"_s, "a");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    file.close();
    const auto document = load<TextDocument>(path);
    QCOMPARE(document->save(), QString());
    QCOMPARE(QFileInfo(path).lastModified(), longAgo);
}

void tst_TextDocument::aFileThatIsGoneIsMadeAnewWhenTheUserSaysSo()
{
    const QString path = createFile(u"a.txt"_s, "a\r\n");
    const auto document = load<TextDocument>(path);
    QVERIFY(QFile::remove(path));
    QVERIFY(!document->save().isEmpty());
    QVERIFY(document->canSaveAnyway());
    QVERIFY(!QFile::exists(path));
    QCOMPARE(document->saveAnyway(), QString());
    QVERIFY(!document->canSaveAnyway());
    QCOMPARE(bytesOf(path), QByteArray("a\r\n"));
}

void tst_TextDocument::savingKeepsThePermissions()
{
    const QString path = createFile(u"a.sh"_s, "a\n");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const QFile::Permissions before = QFile::permissions(path);
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"b"_s);
    QCOMPARE(document->save(), QString());
    QCOMPARE(QFile::permissions(path), before);
}

void tst_TextDocument::aChangedFileIsNotOverwritten()
{
    const QString path = createFile(u"a.txt"_s, "a");
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"b"_s);
    QVERIFY(!document->isChangedOnDisk());
    createFile(u"a.txt"_s, "others");
    QVERIFY(document->isChangedOnDisk());
    QVERIFY(document->save().contains(u"another program"_s));
    QCOMPARE(bytesOf(path), QByteArray("others"));
    QVERIFY(document->isModified());
    QVERIFY(document->canSaveAnyway());
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(bytesOf(path), QByteArray("ba"));
    QVERIFY(!document->isModified());
    QVERIFY(!document->canSaveAnyway());
    // From now on that is what it was read as.
    document->editor()->insertPlainText(u"c"_s);
    QCOMPARE(document->save(), QString());
}

void tst_TextDocument::aFileThatIsAFolderNowIsNotOverwritten()
{
    const QString path = createFile(u"a.txt"_s, "a");
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"b"_s);
    QVERIFY(QFile::remove(path));
    QVERIFY(QDir().mkdir(path));
    QVERIFY(!document->save().isEmpty());
    QVERIFY(!document->saveAnyway().isEmpty());
    QVERIFY(document->isModified());
    QVERIFY(QFileInfo(path).isDir());
}

void tst_TextDocument::aLetterThatLatin1DoesNotHaveIsAskedFor()
{
    const QString path = createFile(u"a.txt"_s, "\xE9\r\n");
    const auto document = load<TextDocument>(path);
    document->editor()->moveCursor(QTextCursor::End);
    document->editor()->insertPlainText(u"\u20AC"_s);
    QVERIFY(document->save().contains(u'\u20AC'));
    QVERIFY(document->canSaveAnyway());
    QCOMPARE(bytesOf(path), QByteArray("\xE9\r\n"));
    QSignalSpy spy(document.get(), &WorkbenchDocument::signalMessage);
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(bytesOf(path), QByteArray("\xC3\xA9\r\n\xE2\x82\xAC"));
    QCOMPARE(property(document.get(), u"Encoding"_s), u"UTF-8"_s);
}

void tst_TextDocument::aFailedSaveLeavesItModified()
{
    QVERIFY(QDir().mkdir(filePath(u"folder"_s)));
    const auto document = load<TextDocument>(createFile(u"folder/a.txt"_s, "a"));
    document->editor()->insertPlainText(u"b"_s);
    QVERIFY(QDir(filePath(u"folder"_s)).removeRecursively());
    QVERIFY(!document->save().isEmpty());
    QVERIFY(!document->saveAnyway().isEmpty());
    QVERIFY(!document->canSaveAnyway());
    QVERIFY(document->isModified());
    QCOMPARE(document->text(), u"ba"_s);
}

void tst_TextDocument::eachLossIsAskedForOnItsOwn()
{
    const QString path = createFile(u"a.txt"_s, "\xE9\n");
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"\u20AC"_s);
    createFile(u"a.txt"_s, "others");
    QVERIFY(!document->save().contains(u'\u20AC'));
    // Who gives up what others wrote has not chosen another encoding.
    QVERIFY(document->saveAnyway().contains(u'\u20AC'));
    QVERIFY(document->canSaveAnyway());
    QCOMPARE(bytesOf(path), QByteArray("others"));
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(bytesOf(path), QByteArray("\xE2\x82\xAC\xC3\xA9\n"));
}

void tst_TextDocument::followsItsFile()
{
    const QString path = createFile(u"a.txt"_s, "a");
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"b"_s);
    QVERIFY(QFile::rename(path, filePath(u"b.txt"_s)));
    document->setPath(filePath(u"b.txt"_s));
    QVERIFY(!document->isChangedOnDisk());
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(filePath(u"b.txt"_s)), QByteArray("ba"));
    QVERIFY(!QFile::exists(path));
    createFile(u"b.txt"_s, "others");
    QVERIFY(document->isChangedOnDisk());
}

void tst_TextDocument::tellsWhatCanBeUndone()
{
    const auto document = load<TextDocument>(createFile(u"a.txt"_s, "a"));
    QSignalSpy spy(document.get(), &WorkbenchDocument::signalHistoryChanged);
    QVERIFY(!document->canUndo());
    document->editor()->insertPlainText(u"b"_s);
    QVERIFY(document->canUndo());
    QVERIFY(!document->canRedo());
    QVERIFY(!spy.isEmpty());
    spy.clear();
    document->undo();
    QVERIFY(!document->canUndo());
    QVERIFY(document->canRedo());
    QVERIFY(!spy.isEmpty());
    document->redo();
    QCOMPARE(document->text(), u"ba"_s);
}

void tst_TextDocument::aCopyHasTheEncodingThatItNeeds()
{
    const QString path = createFile(u"a.txt"_s, "\xE9");
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"\u20AC"_s);
    QCOMPARE(document->saveCopy(filePath(u"b.txt"_s)), QString());
    QCOMPARE(bytesOf(filePath(u"b.txt"_s)), QByteArray("\xE2\x82\xAC\xC3\xA9"));
    QCOMPARE(property(document.get(), u"Encoding"_s), u"Latin-1"_s);
}

void tst_TextDocument::aCopyLeavesItModified()
{
    const QString path = createFile(u"a.txt"_s, "a");
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"b"_s);
    QCOMPARE(document->saveCopy(filePath(u"b.txt"_s)), QString());
    QCOMPARE(bytesOf(filePath(u"b.txt"_s)), QByteArray("ba"));
    QCOMPARE(bytesOf(path), QByteArray("a"));
    QVERIFY(document->isModified());
}

void tst_TextDocument::aCopyIsNotTheFileItself()
{
    const QString path = createFile(u"a.txt"_s, "a");
    const auto document = load<TextDocument>(path);
    document->editor()->insertPlainText(u"b"_s);
    QVERIFY(!document->saveCopy(filePath(u"./a.txt"_s)).isEmpty());
    QCOMPARE(bytesOf(path), QByteArray("a"));
}

void tst_TextDocument::headingsAreTheOutline()
{
    const auto document = load<TextDocument>(createFile(u"a.md"_s, "# a\n\n## b\n"));
    const QList<OutlineEntry> outline = document->outline();
    QCOMPARE(outline.size(), 2);
    QCOMPARE(outline.at(1).text, u"b"_s);
    QCOMPARE(outline.at(1).level, 2);
    QCOMPARE(outline.at(1).line, 2);
}

void tst_TextDocument::otherTextsHaveNoOutline()
{
    const auto document = load<TextDocument>(createFile(u"a.sh"_s, "# a\n"));
    QVERIFY(document->outline().isEmpty());
}

void tst_TextDocument::goesToALine()
{
    const auto document = load<TextDocument>(
        createFile(u"a.txt"_s, QByteArray("a\n").repeated(99)));
    document->goToLine(50);
    QCOMPARE(document->editor()->textCursor().blockNumber(), 50);
    document->goToLine(-1);
    document->goToLine(1000);
    QCOMPARE(document->editor()->textCursor().blockNumber(), 50);
}

void tst_TextDocument::propertiesAreCounted()
{
    const auto document = load<TextDocument>(
        createFile(u"a.txt"_s, "\xF0\x9F\x98\x80 two  words\r\n"));
    QCOMPARE(property(document.get(), u"Lines"_s), u"2"_s);
    QCOMPARE(property(document.get(), u"Words"_s), u"3"_s);
    QCOMPARE(property(document.get(), u"Characters"_s), u"13"_s);
    QCOMPARE(property(document.get(), u"Encoding"_s), u"UTF-8"_s);
    QCOMPARE(property(document.get(), u"Line ends"_s), u"CR LF"_s);
    QCOMPARE(property(document.get(), u"Size on disk"_s), u"17 bytes"_s);
}

void tst_TextDocument::typingTellsOfItsContentOnce()
{
    const auto document = load<TextDocument>(createFile(u"a.txt"_s, "a"));
    QSignalSpy spy(document.get(), &WorkbenchDocument::signalContentChanged);
    document->editor()->insertPlainText(u"b"_s);
    document->editor()->insertPlainText(u"c"_s);
    QVERIFY(spy.isEmpty());
    QTRY_COMPARE(spy.size(), 1);
}

QTEST_MAIN(tst_TextDocument)

#include "tst_textdocument.moc"
