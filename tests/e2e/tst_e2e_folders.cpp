// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Ways to a folder, and what is done with the files in it.
class tst_E2eFolders final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void aBreadcrumbOpensItsFolder();
    void theArrowOfABreadcrumbOffersTheFoldersBelow();
    void aTypedPathIsOpened();
    void aWrongPathIsSaidAndCanBeMended();
    void theKeysBeginInTheTree();
    void aCutFileIsMovedAsAWhole();
    void aNameThatIsThereAlreadyIsAskedAbout_data();
    void aNameThatIsThereAlreadyIsAskedAbout();

private:
    void openFolder(const QString &name) const;
    void startTyping() const;
    void moveToInner(const QString &file) const;
    QByteArrayList contentsOf(const QString &folder) const;
};

/// Starts the program with the folder \a name of the home folder.
void tst_E2eFolders::openFolder(const QString &name) const
{
    scene()->start({name});
    workbench()->waitFor(u"folder"_s, scene()->path(name));
}

/// Clicks beside the breadcrumbs, so that the path can be written.
void tst_E2eFolders::startTyping() const
{
    const QRect bar = workbench()->place(u"widget addressBar"_s);
    person()->click({bar.right() - 30, bar.center().y()});
    workbench()->waitUntilGone(u"button folder"_s);
}

/// Cuts a file in the tree and pastes it into the folder "inner" beside it.
void tst_E2eFolders::moveToInner(const QString &file) const
{
    scene()->click(u"file "_s + file);
    workbench()->waitFor(u"focus"_s, u"folders"_s);
    person()->press(u"ctrl+x"_s);
    scene()->click(u"file inner"_s);
    person()->press(u"ctrl+v"_s);
}

/// What the files of a folder hold, sorted.
QByteArrayList tst_E2eFolders::contentsOf(const QString &folder) const
{
    QByteArrayList contents;
    const QStringList names = QDir(scene()->path(folder)).entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        contents.append(scene()->bytesOf(folder + u'/' + name));
    std::sort(contents.begin(), contents.end());
    return contents;
}

void tst_E2eFolders::aBreadcrumbOpensItsFolder()
{
    openFolder(u"folder/inner"_s);
    const QRect entry = workbench()->place(u"button folder"_s);
    person()->click({entry.left() + 8, entry.center().y()});
    workbench()->waitFor(u"folder"_s, scene()->path(u"folder"_s));
    workbench()->waitUntilGone(u"button inner"_s);
    workbench()->place(u"file readme.txt"_s);
    scene()->leave();
}

void tst_E2eFolders::theArrowOfABreadcrumbOffersTheFoldersBelow()
{
    openFolder(u"folder"_s);
    const QRect entry = workbench()->place(u"button folder"_s);
    person()->click({entry.right() - 7, entry.center().y()});
    scene()->click(u"entry inner"_s);
    workbench()->waitFor(u"folder"_s, scene()->path(u"folder/inner"_s));
    workbench()->place(u"button inner"_s);
    workbench()->place(u"file deep.txt"_s);
    scene()->leave();
}

void tst_E2eFolders::aTypedPathIsOpened()
{
    openFolder(u"folder"_s);
    startTyping();
    person()->type(scene()->path(u"other"_s));
    person()->press(u"Return"_s);
    workbench()->waitFor(u"folder"_s, scene()->path(u"other"_s));
    workbench()->place(u"button other"_s);
    workbench()->place(u"file else.txt"_s);
    scene()->leave();
}

void tst_E2eFolders::aWrongPathIsSaidAndCanBeMended()
{
    openFolder(u"folder"_s);
    startTyping();
    person()->type(scene()->path(u"othr"_s));
    person()->press(u"Return"_s);
    workbench()->waitFor(u"box"_s, u"Error"_s);
    // Spelt so by the library.
    QCOMPARE(workbench()->value(u"box text"_s),
             u"The director entered does not exist, please checek the spelling and try again."_s);
    scene()->answer(u"OK"_s);
    workbench()->waitFor(u"active"_s, u"workbench"_s);
    person()->press(u"BackSpace"_s);
    person()->type(u"er"_s);
    person()->press(u"Return"_s);
    workbench()->waitFor(u"folder"_s, scene()->path(u"other"_s));
    scene()->leave();
}

void tst_E2eFolders::theKeysBeginInTheTree()
{
    openFolder(u"folder"_s);
    workbench()->waitFor(u"focus"_s, u"folders"_s);
    workbench()->place(u"file readme.txt"_s);
    person()->type(u"read"_s);
    person()->press(u"ctrl+shift+o"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt"_s);
    workbench()->waitFor(u"focus"_s, u"text"_s);
    scene()->leave();
}

void tst_E2eFolders::aCutFileIsMovedAsAWhole()
{
    openFolder(u"folder"_s);
    const QByteArray before = scene()->bytesOf(u"folder/picture.png"_s);
    moveToInner(u"picture.png"_s);
    workbench()->waitUntilGone(u"file picture.png"_s);
    QVERIFY(!QFile::exists(scene()->path(u"folder/picture.png"_s)));
    QCOMPARE(scene()->bytesOf(u"folder/inner/picture.png"_s), before);
    QCOMPARE(scene()->bytesOf(u"folder/inner/deep.txt"_s), "deep\n");
    QCOMPARE(scene()->bytesOf(u"folder/readme.txt"_s), "one\ntwo\nthree\n");
    scene()->leave();
}

void tst_E2eFolders::aNameThatIsThereAlreadyIsAskedAbout_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QByteArrayList>("outside");
    QTest::addColumn<QByteArrayList>("inside");

    QTest::newRow("replace") << u"Replace Current"_s << QByteArrayList{} << QByteArrayList{"new\n"};
    QTest::newRow("copy") << u"Save a Copy"_s << QByteArrayList{}
                          << QByteArrayList{"new\n", "old\n"};
    QTest::newRow("skip") << u"Skip"_s << QByteArrayList{"new\n"} << QByteArrayList{"old\n"};
    QTest::newRow("cancel") << u"Cancel"_s << QByteArrayList{"new\n"} << QByteArrayList{"old\n"};
}

void tst_E2eFolders::aNameThatIsThereAlreadyIsAskedAbout()
{
    QFETCH(const QString, answer);
    QFETCH(const QByteArrayList, outside);
    QFETCH(const QByteArrayList, inside);
    scene()->write(u"two/same.txt"_s, "new\n");
    scene()->write(u"two/inner/same.txt"_s, "old\n");
    openFolder(u"two"_s);
    moveToInner(u"same.txt"_s);
    workbench()->waitFor(u"box"_s, u"information"_s);
    scene()->answer(answer);
    scene()->steps()->waitUntil(
        [&] { return contentsOf(u"two"_s) == outside && contentsOf(u"two/inner"_s) == inside; },
        [] { return u"the files are not as expected"_s; });
    scene()->leave();
    QCOMPARE(contentsOf(u"two"_s), outside);
    QCOMPARE(contentsOf(u"two/inner"_s), inside);
}

QTEST_GUILESS_MAIN(tst_E2eFolders)

#include "tst_e2e_folders.moc"
