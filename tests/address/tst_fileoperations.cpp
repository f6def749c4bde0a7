// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileFixture.h"
#include "address/FileOperations.h"
#include "address/FilePaste.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr auto Marker = "application/x-cut-or-copy"_L1;

/// A selection as a test wants it.
class Chosen final : public FileSelection
{
public:
    QStringList selectedPaths() const override { return paths; }
    QString currentPath() const override { return current; }

    QStringList paths;
    QString current;
};

void putUrls(const QStringList &paths, const QByteArray &marker = {})
{
    auto *data = new QMimeData;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data->setUrls(urls);
    if (!marker.isNull())
        data->setData(Marker, marker);
    QGuiApplication::clipboard()->setMimeData(data);
}

bool clipboardHasUrls()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->hasUrls();
}

QStringList buttonTexts(const QMessageBox *box)
{
    QStringList texts;
    const QList<QAbstractButton *> buttons = box->buttons();
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    return texts;
}

void press(const QMessageBox *box, const QString &text)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text() == text) {
            button->click();
            return;
        }
    }
    QFAIL(qPrintable(u"no button "_s + text));
}

} // namespace

class TestFileOperations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_files = std::make_unique<FileFixture>();
        m_files->makeFolder(u"from"_s);
        m_files->makeFolder(u"to"_s);
        m_chosen.paths.clear();
        m_chosen.current = m_files->path(u"to"_s);
    }
    void cleanup()
    {
        QGuiApplication::clipboard()->clear();
        m_files.reset();
        TestCase::cleanup();
    }

    void selectionGoesToTheClipboard_data();
    void selectionGoesToTheClipboard();
    void emptySelectionGoesToTheClipboard();
    void onlyTheMarkerCutMoves_data();
    void onlyTheMarkerCutMoves();
    void pasteWithoutUrlsDoesNothing();
    void pasteLeavesOutWhatIsNotLocal();
    void pasteIntoAFileGoesToItsFolder();
    void pasteIntoNothingStops();
    void cutKeepsTheClipboardWhenThereIsNoFolder();
    void copyLeavesTheClipboardAsItIs();
    void cutMovesTheSourcesToTheTrash();
    void pasteReportsWhatCannotBeCopied_data();
    void pasteReportsWhatCannotBeCopied();
    void copiesInTheSameFolderAreNumbered();
    void copiesOfAFolderInItsOwnFolderAreNumbered();
    void cutIntoTheOwnFolderOnlyClearsTheClipboard();
    void conflictOfFilesOffersFourAnswers();
    void conflictOfFoldersOffersTwoAnswers();
    void answerOfAConflictHolds_data();
    void answerOfAConflictHolds();
    void cutWithAnAnswer_data();
    void cutWithAnAnswer();
    void cancelGoesOnWithTheNextSource();
    void replacedFileGoesToTheTrash();
    void foldersAreMerged();
    void copyNamesAreShortened_data();
    void copyNamesAreShortened();
    void longNameIsCopiedBesideItself();
    void namesAreNoMarkup();
    void namesWithPlaceholders();
    void errorTexts_data();
    void errorTexts();
    void newFolderHasAFreeName();
    void newFolderBesideAFile();
    void newFolderThatCannotBeMade();
    void removingTakesWhatIsSelected();
    void removingWhatIsNotThereFails();
    void sourceInsideAnotherOneIsGone();
    void cutSourceAroundAnotherOne();
    void sourceNamedTwiceIsReported();
    void trailingSlashIsNoOtherName();

private:
    void paste(const QString &target = QString())
    {
        FileOperations operations(m_chosen);
        operations.paste(target);
    }

    std::unique_ptr<FileFixture> m_files;
    Chosen m_chosen;
};

// --- Clipboard ------------------------------------------------------------------------------

void TestFileOperations::selectionGoesToTheClipboard_data()
{
    QTest::addColumn<bool>("isCut");
    QTest::addColumn<QByteArray>("marker");
    QTest::newRow("cut") << true << "cut"_ba;
    QTest::newRow("copy") << false << "copy"_ba;
}

void TestFileOperations::selectionGoesToTheClipboard()
{
    QFETCH(bool, isCut);
    QFETCH(QByteArray, marker);
    m_chosen.paths = {u"/z b"_s, u"/a%20#?é"_s};
    FileOperations operations(m_chosen);
    if (isCut)
        operations.cutSelection();
    else
        operations.copySelection();
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const QList<QUrl> expected = {QUrl::fromLocalFile(u"/z b"_s),
                                  QUrl::fromLocalFile(u"/a%20#?é"_s)};
    QCOMPARE(data->urls(), expected);
    QCOMPARE(data->data(Marker), marker);
}

void TestFileOperations::emptySelectionGoesToTheClipboard()
{
    putUrls({u"/old"_s}, "copy"_ba);
    FileOperations(m_chosen).cutSelection();
    QVERIFY(QGuiApplication::clipboard()->mimeData()->urls().isEmpty());
}

void TestFileOperations::onlyTheMarkerCutMoves_data()
{
    QTest::addColumn<QByteArray>("marker");
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("cut") << "cut"_ba << true;
    QTest::newRow("copy") << "copy"_ba << false;
    QTest::newRow("none") << QByteArray() << false;
    QTest::newRow("empty") << ""_ba << false;
    QTest::newRow("terminated") << QByteArray("cut\0", 4) << false;
    QTest::newRow("other case") << "Cut"_ba << false;
    QTest::newRow("longer") << "cutlery"_ba << false;
}

void TestFileOperations::onlyTheMarkerCutMoves()
{
    QFETCH(QByteArray, marker);
    QFETCH(bool, isMoved);
    m_files->write(u"from/a"_s, "data");
    putUrls({m_files->path(u"from/a"_s)}, marker);
    paste();
    QCOMPARE(m_files->read(u"to/a"_s), "data");
    QCOMPARE(m_files->exists(u"from/a"_s), !isMoved);
    QCOMPARE(clipboardHasUrls(), !isMoved);
}

void TestFileOperations::pasteWithoutUrlsDoesNothing()
{
    const PopupBan ban;
    QGuiApplication::clipboard()->setText(m_files->path(u"from"_s));
    paste();
    QGuiApplication::clipboard()->clear();
    paste();
    QVERIFY(m_files->list(u"to"_s).isEmpty());
}

void TestFileOperations::pasteLeavesOutWhatIsNotLocal()
{
    const PopupBan ban;
    m_files->write(u"from/a"_s, "data");
    auto *data = new QMimeData;
    data->setUrls({QUrl(u"https://example.org/a"_s), QUrl(u"ftp://example.org/etc/passwd"_s),
                   QUrl::fromLocalFile(m_files->path(u"from/a"_s))});
    QGuiApplication::clipboard()->setMimeData(data);
    paste();
    QCOMPARE(m_files->list(u"to"_s), QStringList{u"a"_s});
}

void TestFileOperations::pasteIntoAFileGoesToItsFolder()
{
    m_files->write(u"from/a"_s, "data");
    m_files->write(u"other/b"_s, "");
    putUrls({m_files->path(u"from/a"_s)}, "copy"_ba);
    paste(m_files->path(u"other/b"_s));
    QCOMPARE(m_files->list(u"other"_s), (QStringList{u"a"_s, u"b"_s}));
    m_chosen.current = m_files->path(u"from/a"_s);
    putUrls({m_files->path(u"other/b"_s)}, "copy"_ba);
    paste();
    QVERIFY(m_files->exists(u"from/b"_s));
}

void TestFileOperations::pasteIntoNothingStops()
{
    const PopupBan ban;
    m_files->write(u"from/a"_s, "data");
    putUrls({m_files->path(u"from/a"_s), u"/no/such/file"_s}, "copy"_ba);
    paste(m_files->path(u"nowhere"_s));
    QVERIFY(!m_files->exists(u"nowhere"_s));
}

void TestFileOperations::cutKeepsTheClipboardWhenThereIsNoFolder()
{
    m_files->write(u"from/a"_s, "data");
    putUrls({m_files->path(u"from/a"_s)}, "cut"_ba);
    paste(m_files->path(u"nowhere"_s));
    QVERIFY(m_files->exists(u"from/a"_s));
    QVERIFY(clipboardHasUrls());
}

void TestFileOperations::copyLeavesTheClipboardAsItIs()
{
    m_files->write(u"from/a"_s, "data");
    putUrls({m_files->path(u"from/a"_s)}, "copy"_ba);
    paste();
    QCOMPARE(QGuiApplication::clipboard()->mimeData()->data(Marker), "copy");
    QVERIFY(clipboardHasUrls());
}

// --- Paste ----------------------------------------------------------------------------------

void TestFileOperations::cutMovesTheSourcesToTheTrash()
{
    m_files->write(u"from/a"_s, "one");
    m_files->write(u"from/folder/.hidden"_s, "two");
    putUrls({m_files->path(u"from/a"_s), m_files->path(u"from/folder"_s)}, "cut"_ba);
    paste();
    QVERIFY(m_files->list(u"from"_s).isEmpty());
    QCOMPARE(m_files->list(u"to"_s), (QStringList{u"a"_s, u"folder/"_s, u"folder/.hidden"_s}));
    QCOMPARE(m_files->trashed(), (QStringList{u"a"_s, u"folder"_s}));
    QCOMPARE(m_files->readTrashed(u"folder/.hidden"_s), "two");
}

void TestFileOperations::pasteReportsWhatCannotBeCopied_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("text");
    QTest::newRow("0, missing") << u"from/none"_s << u"Source file does not exist"_s;
    QTest::newRow("2, inside") << u"."_s
                               << u"Cannot copy or move the file from %1 to %2. The Target folder "
                                  "is a subfolder of the source folder."_s;
    QTest::newRow("5, file onto folder")
        << u"from/clash"_s
        << u"Cannot copy or move the file from %1 to %2. A file with the same name already exist."_s;
    QTest::newRow("5, folder onto file")
        << u"from/clash2"_s
        << u"Cannot copy or move the file from %1 to %2. A file with the same name already exist."_s;
}

void TestFileOperations::pasteReportsWhatCannotBeCopied()
{
    QFETCH(QString, source);
    QFETCH(QString, text);
    m_files->write(u"from/clash"_s, "file");
    m_files->makeFolder(u"to/clash"_s);
    m_files->makeFolder(u"from/clash2"_s);
    m_files->write(u"to/clash2"_s, "file");
    m_files->write(u"from/last"_s, "last");
    const QString path = QFileInfo(m_files->path(source)).canonicalFilePath();
    const QString from = path.isEmpty() ? m_files->path(source) : path;
    const QString to = m_files->path(u"to/"_s + QFileInfo(from).fileName());
    for (const QByteArray &marker : {"copy"_ba, "cut"_ba}) {
        const QStringList before = m_files->list(u"from"_s) + m_files->list(u"to"_s);
        putUrls({from}, marker);
        const PopupDriver driver([&](QMessageBox *box) {
            QCOMPARE(box->windowTitle(), u"Copy Error");
            QCOMPARE(box->text(), text.contains(u'%') ? text.arg(from, to) : text);
            QCOMPARE(box->standardButtons(), QMessageBox::Ok);
            QVERIFY(box->isModal());
            QCOMPARE(box->parent(), nullptr);
        });
        paste();
        QCOMPARE(m_files->list(u"from"_s) + m_files->list(u"to"_s), before);
    }
    // The next source is pasted all the same.
    putUrls({from, m_files->path(u"from/last"_s)}, "copy"_ba);
    const PopupDriver driver([](QMessageBox *) {});
    paste();
    QCOMPARE(m_files->read(u"to/last"_s), "last");
}

void TestFileOperations::copiesInTheSameFolderAreNumbered()
{
    m_files->write(u"to/a.txt"_s, "data");
    putUrls({m_files->path(u"to/a.txt"_s)}, "copy"_ba);
    paste();
    QCOMPARE(m_files->list(u"to"_s), (QStringList{u"Copy_2_of_a.txt"_s, u"a.txt"_s}));
    paste();
    QCOMPARE(m_files->read(u"to/Copy_3_of_a.txt"_s), "data");
    // A link that leads nowhere has its name too.
    m_files->makeLink(u"to/Copy_4_of_a.txt"_s, u"nowhere"_s);
    paste();
    QCOMPARE(m_files->read(u"to/Copy_5_of_a.txt"_s), "data");
    QVERIFY(!m_files->exists(u"to/nowhere"_s));
}

void TestFileOperations::copiesOfAFolderInItsOwnFolderAreNumbered()
{
    m_files->write(u"to/folder/a"_s, "data");
    putUrls({m_files->path(u"to/folder"_s)});
    paste();
    paste();
    QCOMPARE(m_files->read(u"to/Copy_2_of_folder/a"_s), "data");
    QCOMPARE(m_files->read(u"to/Copy_3_of_folder/a"_s), "data");
    QCOMPARE(m_files->list(u"to/folder"_s), QStringList{u"a"_s});
}

void TestFileOperations::cutIntoTheOwnFolderOnlyClearsTheClipboard()
{
    const PopupBan ban;
    m_files->write(u"to/a"_s, "data");
    putUrls({m_files->path(u"to/a"_s)}, "cut"_ba);
    paste();
    QCOMPARE(m_files->list(u"to"_s), QStringList{u"a"_s});
    QVERIFY(m_files->trashed().isEmpty());
    QVERIFY(!clipboardHasUrls());
}

// --- Conflicts ------------------------------------------------------------------------------

void TestFileOperations::conflictOfFilesOffersFourAnswers()
{
    m_files->write(u"from/a"_s, "new");
    m_files->write(u"to/a"_s, "old");
    putUrls({m_files->path(u"from/a"_s)});
    const PopupDriver driver([](QMessageBox *box) {
        QCOMPARE(box->windowTitle(), u"information");
        QCOMPARE(box->text(),
                 u"This folder already contains a file named a. Do you want to replace "
                 "the existing file or save the new file as a copy?");
        QCOMPARE(buttonTexts(box),
                 (QStringList{u"Replace Current"_s, u"Save a Copy"_s, u"Skip"_s, u"Cancel"_s}));
        const QList<QAbstractButton *> buttons = box->buttons();
        for (QAbstractButton *button : buttons)
            QCOMPARE(box->buttonRole(button), QMessageBox::ActionRole);
        QCOMPARE(box->parent(), nullptr);
        box->close();
    });
    paste();
    QCOMPARE(m_files->read(u"to/a"_s), "old");
    QCOMPARE(m_files->list(u"to"_s), QStringList{u"a"_s});
}

void TestFileOperations::conflictOfFoldersOffersTwoAnswers()
{
    m_files->write(u"from/folder/a"_s, "new");
    m_files->makeFolder(u"to/folder"_s);
    putUrls({m_files->path(u"from/folder"_s)});
    const PopupDriver driver([](QMessageBox *box) {
        QCOMPARE(buttonTexts(box), (QStringList{u"Replace Current"_s, u"Cancel"_s}));
        QTest::keyClick(box, Qt::Key_Escape);
    });
    paste();
    QVERIFY(m_files->list(u"to/folder"_s).isEmpty());
}

void TestFileOperations::answerOfAConflictHolds_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("existing");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("replace") << u"Replace Current"_s << "new"_ba << QStringList{u"a"_s};
    QTest::newRow("save") << u"Save a Copy"_s << "old"_ba << QStringList{u"Copy_2_of_a"_s, u"a"_s};
    QTest::newRow("skip") << u"Skip"_s << "old"_ba << QStringList{u"a"_s};
    QTest::newRow("cancel") << u"Cancel"_s << "old"_ba << QStringList{u"a"_s};
}

void TestFileOperations::answerOfAConflictHolds()
{
    QFETCH(QString, button);
    m_files->write(u"from/a"_s, "new");
    m_files->write(u"to/a"_s, "old");
    putUrls({m_files->path(u"from/a"_s)});
    const PopupDriver driver([&button](QMessageBox *box) { press(box, button); });
    paste();
    QTEST(m_files->read(u"to/a"_s), "existing");
    QTEST(m_files->list(u"to"_s), "names");
    QCOMPARE(m_files->read(u"from/a"_s), "new");
}

void TestFileOperations::cutWithAnAnswer_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("replace") << u"Replace Current"_s << true;
    QTest::newRow("save") << u"Save a Copy"_s << true;
    QTest::newRow("skip") << u"Skip"_s << false;
    QTest::newRow("cancel") << u"Cancel"_s << false;
}

void TestFileOperations::cutWithAnAnswer()
{
    QFETCH(QString, button);
    QFETCH(bool, isMoved);
    m_files->write(u"from/a"_s, "new");
    m_files->write(u"to/a"_s, "old");
    putUrls({m_files->path(u"from/a"_s)}, "cut"_ba);
    const PopupDriver driver([&button](QMessageBox *box) { press(box, button); });
    paste();
    QCOMPARE(m_files->exists(u"from/a"_s), !isMoved);
    QVERIFY(!clipboardHasUrls());
}

void TestFileOperations::cancelGoesOnWithTheNextSource()
{
    m_files->write(u"from/a"_s, "new");
    m_files->write(u"from/b"_s, "next");
    m_files->write(u"to/a"_s, "old");
    putUrls({m_files->path(u"from/a"_s), m_files->path(u"from/b"_s)});
    const PopupDriver driver([](QMessageBox *box) { press(box, u"Cancel"_s); });
    paste();
    QCOMPARE(m_files->read(u"to/b"_s), "next");
}

void TestFileOperations::replacedFileGoesToTheTrash()
{
    m_files->write(u"from/a"_s, "new");
    m_files->write(u"to/a"_s, "old");
    FileOperations(m_chosen).copyPath(m_files->path(u"from/a"_s), m_files->path(u"to/a"_s), true);
    QCOMPARE(m_files->read(u"to/a"_s), "new");
    QCOMPARE(m_files->readTrashed(u"a"_s), "old");
    FileOperations(m_chosen).copyPath(m_files->path(u"from/a"_s), m_files->path(u"to/a"_s), false);
    QCOMPARE(m_files->trashed(), QStringList{u"a"_s});
}

void TestFileOperations::foldersAreMerged()
{
    m_files->write(u"from/folder/same"_s, "new");
    m_files->write(u"from/folder/sub/added"_s, "added");
    m_files->write(u"from/folder/file or folder"_s, "file");
    m_files->write(u"to/folder/same"_s, "old");
    m_files->write(u"to/folder/sub/kept"_s, "kept");
    m_files->makeFolder(u"to/folder/file or folder"_s);
    const QString source = m_files->path(u"from/folder"_s);
    const QString target = m_files->path(u"to/folder"_s);
    FileOperations operations(m_chosen);
    operations.copyPath(source, target, false);
    QCOMPARE(m_files->read(u"to/folder/same"_s), "old");
    QCOMPARE(m_files->read(u"to/folder/sub/added"_s), "added");
    operations.copyPath(source, target, true);
    QCOMPARE(m_files->read(u"to/folder/same"_s), "new");
    QCOMPARE(m_files->list(u"to/folder"_s), (QStringList{u"file or folder/"_s, u"same"_s, u"sub/"_s,
                                                         u"sub/added"_s, u"sub/kept"_s}));
    QCOMPARE(m_files->trashed(), (QStringList{u"added"_s, u"same"_s}));
}

// --- Names ----------------------------------------------------------------------------------

void TestFileOperations::copyNamesAreShortened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("copy");
    QTest::newRow("short") << u"a.txt"_s << u"Copy_2_of_a.txt"_s;
    QTest::newRow("just fits") << QString(241, u'a') + u".txt"_s
                               << u"Copy_2_of_"_s + QString(241, u'a') + u".txt"_s;
    QTest::newRow("one too long") << QString(242, u'a') + u".txt"_s
                                  << u"Copy_2_of_"_s + QString(241, u'a') + u".txt"_s;
    QTest::newRow("no suffix") << QString(255, u'a') << u"Copy_2_of_"_s + QString(245, u'a');
    QTest::newRow("hidden") << u'.' + QString(254, u'a') << u"Copy_2_of_."_s + QString(244, u'a');
    QTest::newRow("two bytes") << QString(127, u'é') << u"Copy_2_of_"_s + QString(122, u'é');
    QTest::newRow("pairs") << u"😀"_s.repeated(63) << u"Copy_2_of_"_s + u"😀"_s.repeated(61);
    QTest::newRow("suffix of 200")
        << u"a."_s + QString(250, u'b') << u"Copy_2_of_a."_s + QString(243, u'b');
    QTest::newRow("placeholder") << u"%1 %2 %L1"_s << u"Copy_2_of_%1 %2 %L1"_s;
}

void TestFileOperations::copyNamesAreShortened()
{
    QFETCH(QString, name);
    QTEST(copyName(2, name), "copy");
    QVERIFY(copyName(123456, name).toUtf8().size() <= 255);
}

void TestFileOperations::longNameIsCopiedBesideItself()
{
    const QString name = QString(250, u'x') + u".txt"_s;
    m_files->write(u"to/"_s + name, "data");
    putUrls({m_files->path(u"to/"_s + name)});
    paste();
    paste();
    QCOMPARE(m_files->list(u"to"_s).size(), 3);
    QCOMPARE(m_files->read(u"to/Copy_3_of_"_s + QString(241, u'x') + u".txt"_s), "data");
}

void TestFileOperations::namesAreNoMarkup()
{
    const QString name = u"<b>bold<"_s;
    m_files->write(u"from/"_s + name, "");
    m_files->makeFolder(u"to/"_s + name);
    m_files->write(u"other/"_s + name, "");
    putUrls({m_files->path(u"from/"_s + name)});
    for (const QString &folder : {u"to"_s, u"other"_s}) {
        const PopupDriver driver([&name](QMessageBox *box) {
            QCOMPARE(box->textFormat(), Qt::PlainText);
            const auto *label = box->findChild<QLabel *>(u"qt_msgbox_label"_s);
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QVERIFY(label->text().contains(name));
        });
        paste(m_files->path(folder));
    }
}

void TestFileOperations::namesWithPlaceholders()
{
    const PopupDriver driver([](QMessageBox *box) {
        QCOMPARE(box->text(),
                 u"Cannot copy or move the file from /%2/%1 to /%1/%2. File permission "
                 "denied.");
    });
    FileOperations::showCopyError(u"/%2/%1"_s, u"/%1/%2"_s, 6);
}

void TestFileOperations::errorTexts_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    const QString start = u"Cannot copy or move the file from /s to /t. "_s;
    QTest::newRow("0") << 0 << u"Source file does not exist"_s;
    QTest::newRow("2") << 2 << start + u"The Target folder is a subfolder of the source folder."_s;
    QTest::newRow("5") << 5 << start + u"A file with the same name already exist."_s;
    QTest::newRow("6") << 6 << start + u"File permission denied."_s;
    for (const int code : {-1, 1, 3, 4, 7, 8, 99})
        QTest::addRow("%d", code) << code << u"unknown error!"_s;
}

void TestFileOperations::errorTexts()
{
    QFETCH(int, code);
    QFETCH(QString, text);
    const PopupDriver driver([&text](QMessageBox *box) {
        QCOMPARE(box->windowTitle(), u"Copy Error");
        QCOMPARE(box->text(), text);
        QCOMPARE(box->standardButtons(), QMessageBox::Ok);
    });
    FileOperations::showCopyError(u"/s"_s, u"/t"_s, code);
}

// --- New folder -----------------------------------------------------------------------------

void TestFileOperations::newFolderHasAFreeName()
{
    FileOperations operations(m_chosen);
    QCOMPARE(operations.newFolder(), m_files->path(u"to/New Folder"_s));
    QCOMPARE(operations.newFolder(), m_files->path(u"to/New Folder (2)"_s));
    m_files->write(u"to/New Folder (3)"_s, "a file");
    m_files->makeLink(u"to/New Folder (4)"_s, u"nowhere"_s);
    QCOMPARE(operations.newFolder(), m_files->path(u"to/New Folder (5)"_s));
    QCOMPARE(m_files->list(u"to"_s),
             (QStringList{u"New Folder (2)/"_s, u"New Folder (3)"_s, u"New Folder (4)->nowhere"_s,
                          u"New Folder (5)/"_s, u"New Folder/"_s}));
}

void TestFileOperations::newFolderBesideAFile()
{
    m_files->write(u"from/a"_s, "");
    m_chosen.current = m_files->path(u"from/a"_s);
    QCOMPARE(FileOperations(m_chosen).newFolder(), m_files->path(u"from/New Folder"_s));
}

void TestFileOperations::newFolderThatCannotBeMade()
{
    m_chosen.current = QString();
    QCOMPARE(FileOperations(m_chosen).newFolder(), QString());
    m_chosen.current = u"/proc"_s;
    QCOMPARE(FileOperations(m_chosen).newFolder(), QString());
}

// --- Removing -------------------------------------------------------------------------------

void TestFileOperations::removingTakesWhatIsSelected()
{
    const PopupBan ban;
    m_files->write(u"from/a"_s, "a");
    m_files->write(u"from/folder/b"_s, "b");
    m_files->write(u"from/kept"_s, "kept");
    m_files->makeLink(u"from/link"_s, m_files->path(u"to"_s));
    m_files->write(u"to/inside"_s, "inside");
    m_chosen.paths = {m_files->path(u"from/a"_s), m_files->path(u"none"_s),
                      m_files->path(u"from/folder"_s), m_files->path(u"from/link"_s)};
    FileOperations(m_chosen).removeSelection();
    QCOMPARE(m_files->list(u"from"_s), QStringList{u"kept"_s});
    QCOMPARE(m_files->trashed(), (QStringList{u"a"_s, u"folder"_s, u"link"_s}));
    QCOMPARE(m_files->read(u"to/inside"_s), "inside");
}

void TestFileOperations::removingWhatIsNotThereFails()
{
    FileOperations operations(m_chosen);
    QVERIFY(!operations.removePath(QString()));
    QVERIFY(!operations.removePath(m_files->path(u"none"_s)));
    m_files->write(u"from/a"_s, "a");
    QVERIFY(operations.removePath(m_files->path(u"from/a"_s)));
    QVERIFY(!m_files->exists(u"from/a"_s));
    QCOMPARE(m_files->readTrashed(u"a"_s), "a");
}

// --- Sources that have to do with each other ------------------------------------------------

void TestFileOperations::sourceInsideAnotherOneIsGone()
{
    m_files->write(u"from/folder/a"_s, "data");
    putUrls({m_files->path(u"from/folder"_s), m_files->path(u"from/folder/a"_s)}, "cut"_ba);
    const PopupDriver driver(
        [](QMessageBox *box) { QCOMPARE(box->text(), u"Source file does not exist"); });
    paste();
    QCOMPARE(m_files->list(u"to"_s), (QStringList{u"folder/"_s, u"folder/a"_s}));
}

void TestFileOperations::cutSourceAroundAnotherOne()
{
    m_files->write(u"from/folder/a"_s, "a");
    m_files->write(u"from/folder/b"_s, "b");
    putUrls({m_files->path(u"from/folder/a"_s), m_files->path(u"from/folder"_s)}, "cut"_ba);
    paste();
    QCOMPARE(m_files->list(u"to"_s), (QStringList{u"a"_s, u"folder/"_s, u"folder/b"_s}));
    QVERIFY(m_files->list(u"from"_s).isEmpty());
}

void TestFileOperations::sourceNamedTwiceIsReported()
{
    m_files->write(u"from/a"_s, "data");
    putUrls({m_files->path(u"from/a"_s), m_files->path(u"from/a"_s)}, "cut"_ba);
    const PopupDriver driver(
        [](QMessageBox *box) { QCOMPARE(box->text(), u"Source file does not exist"); });
    paste();
    QCOMPARE(m_files->read(u"to/a"_s), "data");
}

void TestFileOperations::trailingSlashIsNoOtherName()
{
    m_files->write(u"from/folder/a"_s, "data");
    putUrls({m_files->path(u"from/folder/"_s)}, "cut"_ba);
    paste();
    QCOMPARE(m_files->list(u"to"_s), (QStringList{u"folder/"_s, u"folder/a"_s}));
    QVERIFY(m_files->list(u"from"_s).isEmpty());
}

QTEST_MAIN(TestFileOperations)

#include "tst_fileoperations.moc"
