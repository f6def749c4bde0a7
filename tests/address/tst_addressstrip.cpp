// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FolderTree.h"
#include "address/StripWindow.h"

#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QFileDialog>
#include <QPointer>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class tst_AddressStrip : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewStripShowsNothing();
    void settingAPathShowsItsParts_data();
    void settingAPathShowsItsParts();
    void eachEntryGoesToItsFolder();
    void aDriveOfTheRootIsGoneTo();
    void aSubfolderOfAnEntryIsGoneTo();
    void theSamePathDoesNothing_data();
    void theSamePathDoesNothing();
    void emptyPathsDoNothing();
    void goingSomewhereIsSaidOnce();

    void theHistoryIsWalked();
    void goingElsewhereForgetsTheWayForward();
    void goingToTheLastPathAgainFindsItInTheHistory();
    void theEndsOfTheHistoryAreTheEnds();
    void resettingForgetsTheHistory();
    void resettingToTheSamePathLeavesAnEmptyHistory();
    void anEmptyHistoryHasNoWays();
    void goingUpIsRecorded();
    void thereIsNothingAboveTheRoot();
    void aFolderThatIsGoneHasNoWayUp();
    void slotPathChangedWithTheSamePathKeepsTheEntries();

    void browsingGoesToTheChosenFolder();
    void browsingToTheSameFolderDoesNothing();
    void theStripMayGoWhileTheUserBrowses();

    void entriesAreMadeNewAndTheOldOnesGo();
    void theStripMayGoWhenItSaysThePath_data();
    void theStripMayGoWhenItSaysThePath();
    void listenersMayGoOn();
};

void tst_AddressStrip::aNewStripShowsNothing()
{
    const StripWindow scene;
    QCOMPARE(scene.strip->path(), QString());
    QCOMPARE(scene.strip->layout()->count(), 0);
    QCOMPARE(scene.strip->focusPolicy(), Qt::NoFocus);
    QCOMPARE(scene.strip->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(scene.strip->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(scene.strip->accessibleName(), u"Address"_s);
    scene.strip->backward();
    scene.strip->forward();
    scene.strip->dirup();
    QCOMPARE(scene.paths.size(), 0);
}

void tst_AddressStrip::settingAPathShowsItsParts_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("root") << u"/"_s << u"/"_s << QStringList{};
    QTest::newRow("folders") << u"/a/b"_s << u"/a/b"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("trailing separators") << u"/a/b//"_s << u"/a/b"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("backslashes") << u"\\a\\b\\"_s << u"/a/b"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("bare drive") << u"C:"_s << u"C:/"_s << QStringList{u"C:"_s};
    QTest::newRow("on a drive") << u"C:\\Users"_s << u"C:/Users"_s
                                << QStringList{u"C:"_s, u"Users"_s};
    QTest::newRow("network") << u"\\\\server\\share"_s << u"//server/share"_s
                             << QStringList{u"server"_s, u"share"_s};
    QTest::newRow("hostile") << u"/a&b/\"c\"/d\ne/\u05e9/\U0001F600"_s
                             << u"/a&b/\"c\"/d\ne/\u05e9/\U0001F600"_s
                             << QStringList{u"a&b"_s, u"\"c\""_s, u"d\ne"_s, u"\u05e9"_s,
                                            u"\U0001F600"_s};
    QTest::newRow("255 bytes") << u'/' + QString(255, u'x') << u'/' + QString(255, u'x')
                               << QStringList{QString(255, u'x')};
    QTest::newRow("very deep") << u"/x"_s.repeated(500) << u"/x"_s.repeated(500)
                               << QStringList(500, u"x"_s);
}

void tst_AddressStrip::settingAPathShowsItsParts()
{
    QFETCH(const QString, path);
    QFETCH(const QString, shown);
    QFETCH(QStringList, names);
    StripWindow scene;
    QVERIFY(Input::show(&scene.window));
    scene.strip->setPath(path);
    QCOMPARE(scene.strip->path(), shown);
    names.prepend(QString());
    QCOMPARE(scene.names(), names);
    QCOMPARE(scene.paths.size(), 1);
    QCOMPARE(scene.paths.constFirst().constFirst().toString(), shown);
}

void tst_AddressStrip::eachEntryGoesToItsFolder()
{
    const FolderTree tree({u"a&b/c d/e"_s});
    const QString deepest = tree.path(u"a&b/c d/e"_s);
    StripWindow scene;
    const auto depth = deepest.count(u'/');
    for (qsizetype i = 1; i <= depth; ++i) {
        scene.strip->setPath(deepest);
        scene.entries().at(i)->click();
        QCOMPARE(scene.strip->path(), deepest.section(u'/', 0, i));
        QVERIFY(scene.shows(deepest.section(u'/', 0, i)));
    }
    scene.strip->setPath(u"C:/Users"_s);
    scene.entries().at(1)->click();
    QVERIFY(scene.strip->path() == u"C:/"_s);
}

void tst_AddressStrip::aDriveOfTheRootIsGoneTo()
{
    StripWindow scene;
    scene.strip->setPath(QDir::tempPath());
    scene.entries().constFirst()->menu()->actions().constFirst()->trigger();
    QCOMPARE(scene.strip->path(), QDir::rootPath());
    QCOMPARE(scene.entries().size(), QDir::rootPath() == u"/"_s ? 1 : 2);
}

void tst_AddressStrip::aSubfolderOfAnEntryIsGoneTo()
{
    const FolderTree tree({u"a/b"_s, u"x&y\nz"_s});
    StripWindow scene;
    scene.strip->setPath(tree.path(u"a/b"_s));
    const QList<AddressEntry *> entries = scene.entries();
    entries.at(entries.size() - 3)->menu()->actions().constLast()->trigger();
    QVERIFY(scene.shows(tree.path(u"x&y\nz"_s)));
}

void tst_AddressStrip::theSamePathDoesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("same") << u"/a/b"_s;
    QTest::newRow("trailing slash") << u"/a/b/"_s;
    QTest::newRow("backslashes") << u"\\a\\b\\"_s;
}

void tst_AddressStrip::theSamePathDoesNothing()
{
    QFETCH(const QString, path);
    StripWindow scene;
    scene.strip->setPath(u"/a/b"_s);
    const QPointer<AddressEntry> entry = scene.entries().constFirst();
    scene.forget();
    scene.strip->setPath(path);
    QCOMPARE(scene.paths.size(), 0);
    QCOMPARE(scene.actions.size(), 0);
    QCOMPARE(scene.entries().constFirst(), entry);
}

void tst_AddressStrip::emptyPathsDoNothing()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    scene.forget();
    scene.strip->setPath(QString());
    scene.strip->slotPathChanged(QString());
    QCOMPARE(scene.paths.size(), 0);
    QVERIFY(scene.shows(u"/a"_s));
}

void tst_AddressStrip::goingSomewhereIsSaidOnce()
{
    StripWindow scene;
    QStringList log;
    connect(scene.strip, &AddressStrip::signalActionsEnabled, this,
            [&log, &scene] { log.append(u"ways "_s + scene.strip->path()); });
    connect(scene.strip, &AddressStrip::signalPathChanged, this,
            [&log, &scene](const QString &path) {
                log.append(u"path %1, %2 entries"_s.arg(path).arg(scene.entries().size()));
            });
    scene.strip->setPath(u"/a/b/"_s);
    QCOMPARE(log, (QStringList{u"ways /a/b"_s, u"path /a/b, 3 entries"_s}));
}

void tst_AddressStrip::theHistoryIsWalked()
{
    const FolderTree tree({u"a"_s, u"b"_s, u"c"_s});
    StripWindow scene;
    scene.strip->setPath(tree.path(u"a"_s));
    QCOMPARE(scene.ways(), u"--u"_s);
    scene.strip->setPath(tree.path(u"b"_s));
    QCOMPARE(scene.ways(), u"b-u"_s);
    scene.strip->setPath(tree.path(u"c"_s));
    scene.strip->backward();
    QVERIFY(scene.shows(tree.path(u"b"_s)));
    QCOMPARE(scene.ways(), u"bfu"_s);
    scene.strip->backward();
    QVERIFY(scene.shows(tree.path(u"a"_s)));
    QCOMPARE(scene.ways(), u"-fu"_s);
    scene.strip->forward();
    QVERIFY(scene.shows(tree.path(u"b"_s)));
    QCOMPARE(scene.paths.size(), 6);
}

void tst_AddressStrip::goingElsewhereForgetsTheWayForward()
{
    StripWindow scene;
    for (const QString &path : {u"/a"_s, u"/b"_s, u"/c"_s})
        scene.strip->setPath(path);
    scene.strip->backward();
    scene.strip->backward();
    scene.strip->setPath(u"/d"_s);
    QCOMPARE(scene.ways().left(2), u"b-"_s);
    scene.strip->backward();
    QVERIFY(scene.shows(u"/a"_s));
    QCOMPARE(scene.ways().left(2), u"-f"_s);
}

void tst_AddressStrip::goingToTheLastPathAgainFindsItInTheHistory()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    scene.strip->setPath(u"/b"_s);
    scene.strip->backward();
    scene.strip->setPath(u"/b"_s);
    QCOMPARE(scene.ways().left(2), u"b-"_s);
    scene.strip->backward();
    QVERIFY(scene.shows(u"/a"_s));
    QCOMPARE(scene.ways().left(2), u"-f"_s);
}

void tst_AddressStrip::theEndsOfTheHistoryAreTheEnds()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    scene.strip->setPath(u"/b"_s);
    scene.forget();
    scene.strip->forward();
    QCOMPARE(scene.paths.size(), 0);
    scene.strip->backward();
    scene.strip->backward();
    scene.strip->backward();
    QCOMPARE(scene.paths.size(), 1);
    QVERIFY(scene.shows(u"/a"_s));
}

void tst_AddressStrip::resettingForgetsTheHistory()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    scene.strip->setPath(u"/b"_s);
    scene.strip->resetPath(u"/c"_s);
    QVERIFY(scene.shows(u"/c"_s));
    QCOMPARE(scene.ways().left(2), u"--"_s);
    scene.strip->backward();
    QVERIFY(scene.shows(u"/c"_s));
}

void tst_AddressStrip::resettingToTheSamePathLeavesAnEmptyHistory()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    scene.forget();
    scene.strip->resetPath(u"/a/"_s);
    QCOMPARE(scene.paths.size(), 0);
    QCOMPARE(scene.actions.size(), 0);
    QVERIFY(scene.shows(u"/a"_s));
    scene.strip->setPath(u"/b"_s);
    QCOMPARE(scene.ways().left(2), u"--"_s);
}

void tst_AddressStrip::anEmptyHistoryHasNoWays()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    scene.strip->setPath(u"/b"_s);
    QCOMPARE(scene.ways().left(2), u"b-"_s);
    scene.strip->resetPath(u"/b"_s);
    QCOMPARE(scene.ways().left(2), u"--"_s);
    scene.forget();
    scene.strip->backward();
    scene.strip->forward();
    QCOMPARE(scene.paths.size(), 0);
    QVERIFY(scene.shows(u"/b"_s));
    // The ways are looked at again where there is nothing above.
    scene.strip->setPath(u"/"_s);
    scene.strip->resetPath(u"/"_s);
    scene.strip->dirup();
    QCOMPARE(scene.ways(), u"---"_s);
}

void tst_AddressStrip::goingUpIsRecorded()
{
    const FolderTree tree({u"a/b"_s});
    StripWindow scene;
    scene.strip->setPath(tree.path(u"a/b"_s));
    scene.strip->dirup();
    QVERIFY(scene.shows(tree.path(u"a"_s)));
    QCOMPARE(scene.ways(), u"b-u"_s);
    scene.strip->backward();
    QVERIFY(scene.shows(tree.path(u"a/b"_s)));
    scene.strip->setPath(u"/tmp"_s);
    scene.strip->dirup();
    QVERIFY(scene.shows(u"/"_s));
}

void tst_AddressStrip::thereIsNothingAboveTheRoot()
{
    StripWindow scene;
    scene.strip->setPath(u"/"_s);
    QCOMPARE(scene.ways(), u"---"_s);
    scene.strip->dirup();
    QVERIFY(scene.shows(u"/"_s));
}

void tst_AddressStrip::aFolderThatIsGoneHasNoWayUp()
{
    const FolderTree tree({u"a/b/c"_s});
    StripWindow scene;
    scene.strip->setPath(tree.path(u"a/b/c"_s));
    QCOMPARE(scene.ways(), u"--u"_s);
    tree.remove(u"a"_s);
    scene.strip->dirup();
    QVERIFY(scene.shows(tree.path(u"a/b/c"_s)));
    QCOMPARE(scene.ways(), u"---"_s);
}

void tst_AddressStrip::slotPathChangedWithTheSamePathKeepsTheEntries()
{
    StripWindow scene;
    scene.strip->setPath(u"/a/b"_s);
    scene.strip->slotPathChanged(u"/a/b/"_s);
    QVERIFY(scene.shows(u"/a/b"_s));
    scene.strip->slotPathChanged(u"/a"_s);
    QVERIFY(scene.shows(u"/a"_s));
    QCOMPARE(scene.ways().left(2), u"b-"_s);
}

namespace {

/// Chooses a folder in the dialog that the strip opens.
void browse(AddressStrip *strip, const std::function<void(QFileDialog *)> &drive)
{
    bool hasRun = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&timer, &hasRun, drive] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            timer.stop();
            hasRun = true;
            drive(dialog);
        }
    });
    timer.start(5);
    strip->browse();
    QVERIFY(hasRun);
}

} // namespace

void tst_AddressStrip::browsingGoesToTheChosenFolder()
{
    const FolderTree tree({u"a"_s, u"b"_s});
    StripWindow scene;
    scene.strip->setPath(tree.path(u"a"_s));
    browse(scene.strip, [&tree](QFileDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), u"Select Folder"_s);
        QCOMPARE(dialog->directory().path(), tree.path(u"a"_s));
        QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
        QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
        dialog->setDirectory(tree.path());
        dialog->selectFile(u"b"_s);
        dialog->QDialog::done(QDialog::Accepted);
    });
    QVERIFY(scene.shows(tree.path(u"b"_s)));
    QCOMPARE(scene.ways(), u"b-u"_s);
}

void tst_AddressStrip::browsingToTheSameFolderDoesNothing()
{
    const FolderTree tree({u"a"_s});
    StripWindow scene;
    scene.strip->setPath(tree.path(u"a"_s));
    scene.forget();
    browse(scene.strip, [](QFileDialog *dialog) { dialog->QDialog::done(QDialog::Accepted); });
    browse(scene.strip, [](QFileDialog *dialog) { dialog->reject(); });
    QCOMPARE(scene.paths.size(), 0);
    QVERIFY(scene.shows(tree.path(u"a"_s)));
}

void tst_AddressStrip::theStripMayGoWhileTheUserBrowses()
{
    const FolderTree tree;
    StripWindow scene;
    scene.strip->setPath(tree.path());
    AddressStrip *strip = scene.strip;
    browse(strip, [strip](QFileDialog * /*dialog*/) { delete strip; });
}

void tst_AddressStrip::entriesAreMadeNewAndTheOldOnesGo()
{
    const FolderTree tree({u"a/b/c/d/e/f/g/h/i"_s});
    StripWindow scene;
    QVERIFY(Input::show(&scene.window));
    const QString deepest = tree.path(u"a/b/c/d/e/f/g/h/i"_s);
    const auto count = [&scene] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // Not the actions: other programs add to the folders that hold this one.
        return scene.window.findChildren<QWidget *>().size();
    };
    scene.strip->setPath(deepest);
    const auto before = count();
    for (int i = 0; i < 100; ++i) {
        scene.strip->setPath(tree.path());
        scene.strip->setPath(deepest);
    }
    QCOMPARE(count(), before);
}

void tst_AddressStrip::theStripMayGoWhenItSaysThePath_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"set", "reset", "backward", "up", "entry", "menu"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_AddressStrip::theStripMayGoWhenItSaysThePath()
{
    QFETCH(const QString, way);
    const FolderTree tree({u"a/b"_s});
    StripWindow scene(900);
    QPointer<AddressStrip> strip = scene.strip;
    strip->setPath(tree.path(u"a"_s));
    strip->setPath(tree.path(u"a/b"_s));
    QVERIFY(Input::show(&scene.window));
    connect(strip, &AddressStrip::signalPathChanged, &scene.window, [strip] { delete strip; });
    const QList<AddressEntry *> entries = scene.entries();
    AddressEntry *parent = entries.at(entries.size() - 2);
    if (way == u"set") {
        strip->setPath(tree.path());
    } else if (way == u"reset") {
        strip->resetPath(tree.path());
    } else if (way == u"backward") {
        strip->backward();
    } else if (way == u"up") {
        strip->dirup();
    } else if (way == u"entry") {
        Input::click(parent, QPoint(8, 10));
    } else {
        parent = entries.at(entries.size() - 3);
        const PopupDriver driver([](QMenu *menu) {
            Input::click(menu, menu->actionGeometry(menu->actions().constFirst()).center());
        });
        Input::press(parent, QPoint(parent->width() - 8, 10));
        Input::release(&scene.window);
    }
    QVERIFY(!strip);
}

void tst_AddressStrip::listenersMayGoOn()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    connect(scene.strip, &AddressStrip::signalPathChanged, this, [&scene](const QString &path) {
        if (path == u"/b")
            scene.strip->setPath(u"/c"_s);
    });
    scene.strip->setPath(u"/b"_s);
    QVERIFY(scene.shows(u"/c"_s));
    scene.strip->backward();
    QVERIFY(scene.shows(u"/c"_s));
}

QTEST_MAIN(tst_AddressStrip)

#include "tst_addressstrip.moc"
