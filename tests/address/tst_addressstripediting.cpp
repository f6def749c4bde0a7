// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/EditScene.h"
#include "address/FolderTree.h"

#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QClipboard>
#include <QCompleter>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class tst_AddressStripEditing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aClickBesideTheEntriesShowsThePathForEditing();
    void aClickOnThePictureShowsThePathForEditing();
    void otherButtonsAreSwallowed();
    void aReleaseElsewhereDoesNotEdit();
    void aPressOnAnEntryReleasedElsewhereDoesNotEdit();
    void editTextShowsTheText();

    void typedPathsAreGoneTo_data();
    void typedPathsAreGoneTo();
    void theShownPathIsCommittedAsItIs_data();
    void theShownPathIsCommittedAsItIs();
    void missingFoldersAreReported_data();
    void missingFoldersAreReported();
    void theStripMayGoWhileTheBoxIsOpen();
    void goingElsewhereWhileTheBoxIsOpenEndsEditing();
    void emptyTextIsGivenUp_data();
    void emptyTextIsGivenUp();
    void otherKeysGoToTheLineEdit();

    void everyWayOutShowsTheEntries_data();
    void everyWayOutShowsTheEntries();
    void aPathWithoutSeparatorsIsShownAgain();
    void whoHearsOfTheFocusMayGoElsewhere();
    void editingAfterGoingBackAppendsThePathAgain();
    void editingWithAnEmptyHistoryRecordsThePath();
    void pressesOnTheStripKeepTheText();
    void theWindowMayGoWhileThePathIsEdited();
    void theStripMayGoWhenEditingEnds_data();
    void theStripMayGoWhenEditingEnds();

    void nothingIsTypedBelowTheEntries_data();
    void nothingIsTypedBelowTheEntries();
    void nothingCanBeUndoneAfterwards();
};

void tst_AddressStripEditing::aClickBesideTheEntriesShowsThePathForEditing()
{
    const EditScene scene(u"/a/b c"_s);
    QVERIFY(scene.isShown());
    scene.edit();
    QVERIFY(scene.isEditing());
    QVERIFY(scene.strip->hasFocus());
    QCOMPARE(scene.strip->text(), u"\\a\\b c"_s);
    QCOMPARE(scene.strip->selectedText(), scene.strip->text());
    QCOMPARE(scene.strip->path(), u"\\a\\b c"_s);
    QCOMPARE(scene.strip->cursor().shape(), Qt::IBeamCursor);
    QCOMPARE(scene.strip->layout()->count(), 0);
    QVERIFY(!scene.strip->isReadOnly());
    QCOMPARE(scene.paths.size(), 0);
}

void tst_AddressStripEditing::aClickOnThePictureShowsThePathForEditing()
{
    const EditScene scene(u"/a"_s);
    Input::click(scene.strip->layout()->itemAt(0)->widget());
    QVERIFY(scene.isEditing());
}

void tst_AddressStripEditing::otherButtonsAreSwallowed()
{
    const EditScene scene(u"/a"_s);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        Input::click(scene.strip, QPoint(600, 10), button);
        QVERIFY(scene.shows(u"/a"_s));
    }
    scene.edit();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        Input::click(scene.strip, QPoint(500, 10), button);
        QCOMPARE(scene.strip->text(), u"\\a"_s);
        QVERIFY(scene.isEditing());
    }
}

void tst_AddressStripEditing::aReleaseElsewhereDoesNotEdit()
{
    const EditScene scene(u"/a"_s);
    Input::drag(scene.strip, QPoint(500, 10), QPoint(500, 40));
    QVERIFY(scene.shows(u"/a"_s));
}

void tst_AddressStripEditing::aPressOnAnEntryReleasedElsewhereDoesNotEdit()
{
    const EditScene scene(u"/a/b"_s);
    AddressEntry *entry = scene.entries().at(1);
    Input::drag(entry, QPoint(4, 4), QPoint(300, 4));
    QVERIFY(scene.shows(u"/a/b"_s));
    Input::drag(entry, QPoint(4, 4), QPoint(4, 40));
    QVERIFY(scene.shows(u"/a/b"_s));
    Input::rightClick(entry, QPoint(4, 4));
    QVERIFY(scene.shows(u"/a/b"_s));
    QCOMPARE(scene.paths.size(), 0);
}

void tst_AddressStripEditing::editTextShowsTheText()
{
    const EditScene scene(u"/a"_s);
    scene.strip->editText(u"some/text"_s);
    // The entries that were there are on their way out.
    const auto leaving = scene.strip->findChildren<AddressEntry *>();
    QCOMPARE(leaving.size(), 2);
    for (const AddressEntry *entry : leaving)
        QVERIFY(!entry->isVisible());
    QVERIFY(scene.isEditing());
    QVERIFY(scene.strip->hasFocus());
    QCOMPARE(scene.strip->text(), u"some/text"_s);
    QCOMPARE(scene.strip->selectedText(), u"some/text"_s);
    QCOMPARE(scene.strip->path(), u"\\a"_s);
    scene.strip->editText(u"other"_s);
    QCOMPARE(scene.strip->selectedText(), u"other"_s);
    scene.other->setFocus();
    QVERIFY(scene.shows(u"/a"_s));
}

void tst_AddressStripEditing::typedPathsAreGoneTo_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("folder");
    QTest::newRow("slashes") << u"%1/a/b"_s << u"a/b"_s;
    QTest::newRow("backslashes") << u"%2\\a\\b"_s << u"a/b"_s;
    QTest::newRow("mixed and doubled") << u"%1\\a//b\\"_s << u"a/b"_s;
    QTest::newRow("spaces around names") << u" %1/ a / b "_s << u"a/b"_s;
    QTest::newRow("line break at the end") << u"%1/a\n"_s << u"a"_s;
    QTest::newRow("a name with spaces around it") << u"%1/ c "_s << u" c "_s;
    QTest::newRow("hostile") << u"%1/x&y\nz\"'"_s << u"x&y\nz\"'"_s;
    QTest::newRow("right to left") << u"%1/\u05e9\u05dc"_s << u"\u05e9\u05dc"_s;
    QTest::newRow("emoji") << u"%1/\U0001F600"_s << u"\U0001F600"_s;
}

void tst_AddressStripEditing::typedPathsAreGoneTo()
{
    QFETCH(const QString, pattern);
    QFETCH(const QString, folder);
    const FolderTree tree(
        {u"start"_s, u"a/b"_s, u" c "_s, u"x&y\nz\"'"_s, u"\u05e9\u05dc"_s, u"\U0001F600"_s});
    EditScene scene(tree.path(u"start"_s));
    scene.edit();
    QString text = pattern;
    text.replace(u"%1"_s, tree.path()).replace(u"%2"_s, backslashed(tree.path()));
    scene.strip->setText(text);
    scene.commit();
    QVERIFY(scene.shows(tree.path(folder)));
    QCOMPARE(scene.paths.size(), 1);
    QCOMPARE(scene.ways(), u"b-u"_s);
    scene.strip->backward();
    QVERIFY(scene.shows(tree.path(u"start"_s)));
}

void tst_AddressStripEditing::theShownPathIsCommittedAsItIs_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("root") << u"/"_s;
    QTest::newRow("temporary") << QDir::tempPath();
}

void tst_AddressStripEditing::theShownPathIsCommittedAsItIs()
{
    QFETCH(const QString, folder);
    EditScene scene(folder);
    scene.edit();
    QCOMPARE(scene.strip->text(), backslashed(folder));
    scene.commit();
    QVERIFY(scene.shows(folder));
    QCOMPARE(scene.paths.size(), 1);
    QCOMPARE(scene.ways().left(2), u"--"_s);
}

void tst_AddressStripEditing::missingFoldersAreReported_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("missing") << u"/missing/folder"_s;
    QTest::newRow("a file") << u"%1/file"_s;
    QTest::newRow("two lines") << u"/tmp\n/usr"_s;
    QTest::newRow("a name that is too long") << u"/tmp/"_s + QString(300, u'x');
    QTest::newRow("a path that is too long") << u"/tmp"_s + u"/x"_s.repeated(5000);
}

void tst_AddressStripEditing::missingFoldersAreReported()
{
    QFETCH(QString, text);
    const FolderTree tree;
    tree.addFile(u"file"_s);
    const EditScene scene(tree.path());
    text.replace(u"%1"_s, tree.path());
    scene.edit();
    scene.strip->setText(text);
    PopupDriver driver([](QMessageBox *box) {
        QCOMPARE(box->windowTitle(), u"Error"_s);
        QCOMPARE(box->text(), u"The director entered does not exist, please checek the spelling "
                              "and try again."_s);
        QCOMPARE(box->icon(), QMessageBox::Critical);
        QCOMPARE(box->standardButtons(), QMessageBox::Ok);
        Input::click(box->button(QMessageBox::Ok));
    });
    scene.commit();
    QVERIFY(driver.hasRun());
    QVERIFY(scene.isEditing());
    QCOMPARE(scene.strip->text(), text);
    QCOMPARE(scene.strip->path(), backslashed(tree.path()));
    // This platform has no window manager that would activate the window again.
    scene.strip->activateWindow();
    QTRY_VERIFY(scene.strip->hasFocus());
    QCOMPARE(scene.paths.size(), 0);
    QCOMPARE(scene.strip->layout()->count(), 0);
    scene.other->setFocus();
    QVERIFY(scene.shows(tree.path()));
}

void tst_AddressStripEditing::theStripMayGoWhileTheBoxIsOpen()
{
    const EditScene scene(u"/tmp"_s);
    const QPointer<AddressStrip> strip = scene.strip;
    strip->editText(u"/missing/folder"_s);
    PopupDriver driver([strip](QMessageBox * /*box*/) { delete strip; });
    scene.commit();
    QVERIFY(driver.hasRun());
    QVERIFY(!strip);
}

void tst_AddressStripEditing::goingElsewhereWhileTheBoxIsOpenEndsEditing()
{
    const EditScene scene(u"/tmp"_s);
    scene.strip->editText(u"/missing/folder"_s);
    PopupDriver driver([&scene](QMessageBox * /*box*/) { scene.strip->setPath(u"/usr"_s); });
    scene.commit();
    QVERIFY(driver.hasRun());
    QVERIFY(scene.shows(u"/usr"_s));
}

void tst_AddressStripEditing::emptyTextIsGivenUp_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("spaces") << u"  "_s;
}

void tst_AddressStripEditing::emptyTextIsGivenUp()
{
    QFETCH(const QString, text);
    const EditScene scene(u"/tmp"_s);
    const PopupBan ban;
    scene.strip->editText(text);
    scene.commit();
    QVERIFY(scene.shows(u"/tmp"_s));
}

void tst_AddressStripEditing::otherKeysGoToTheLineEdit()
{
    const EditScene scene(u"/tmp"_s);
    scene.edit();
    scene.type(u"ab"_s);
    QTest::keyClick(scene.strip, Qt::Key_Enter);
    QTest::keyClick(scene.strip, Qt::Key_Left);
    scene.type(u"c"_s);
    QCOMPARE(scene.strip->text(), u"acb"_s);
    QVERIFY(scene.isEditing());
}

void tst_AddressStripEditing::everyWayOutShowsTheEntries_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("shown");
    const QString old = u"/tmp"_s;
    QTest::newRow("focus elsewhere") << u"focus"_s << old;
    QTest::newRow("focus elsewhere with the list open") << u"focus from list"_s << old;
    QTest::newRow("press elsewhere with the list open") << u"press from list"_s << old;
    QTest::newRow("double click elsewhere with the list open")
        << u"double click from list"_s << old;
    QTest::newRow("tabulator") << u"tab"_s << old;
    QTest::newRow("press elsewhere") << u"press"_s << old;
    QTest::newRow("press on the window") << u"press window"_s << old;
    QTest::newRow("return") << u"return"_s << old;
    QTest::newRow("clearing the focus") << u"clear"_s << old;
    QTest::newRow("hiding") << u"hide"_s << old;
    QTest::newRow("disabling") << u"disable"_s << old;
    QTest::newRow("set the same path") << u"set same"_s << old;
    QTest::newRow("set another path") << u"set other"_s << u"/usr"_s;
    QTest::newRow("slot, same path") << u"slot same"_s << old;
    QTest::newRow("slot, another path") << u"slot other"_s << u"/usr"_s;
    QTest::newRow("up") << u"up"_s << u"/"_s;
    QTest::newRow("backward") << u"backward"_s << u"/"_s;
    QTest::newRow("completion of the same path") << u"complete"_s << old;
    QTest::newRow("reset to the same path") << u"reset"_s << old;
}

void tst_AddressStripEditing::everyWayOutShowsTheEntries()
{
    QFETCH(const QString, way);
    QFETCH(const QString, shown);
    EditScene scene(u"/"_s);
    scene.strip->setPath(u"/tmp"_s);
    scene.edit();
    QVERIFY(scene.isEditing());
    const QHash<QString, std::function<void()>> ways{
        {u"focus"_s, [&scene] { scene.other->setFocus(); }},
        {u"focus from list"_s,
         [&scene] {
             scene.type(u"/"_s);
             QVERIFY(scene.list()->isVisible());
             scene.other->setFocus();
         }},
        {u"press from list"_s,
         [&scene] {
             scene.type(u"/"_s);
             QVERIFY(scene.list()->isVisible());
             // The first one closes the list.
             Input::click(scene.other);
             QVERIFY(!scene.list()->isVisible());
             Input::click(scene.other);
         }},
        {u"double click from list"_s,
         [&scene] {
             scene.type(u"/"_s);
             QVERIFY(scene.list()->isVisible());
             scene.other->setFocusPolicy(Qt::NoFocus);
             Input::doubleClick(scene.other);
         }},
        {u"tab"_s, [&scene] { QTest::keyClick(scene.strip, Qt::Key_Tab); }},
        {u"press"_s, [&scene] { Input::click(scene.other); }},
        {u"press window"_s, [&scene] { Input::click(&scene.window, QPoint(2, 2)); }},
        {u"return"_s, [&scene] { scene.commit(); }},
        {u"clear"_s, [&scene] { scene.strip->clearFocus(); }},
        {u"hide"_s,
         [&scene] {
             scene.strip->hide();
             scene.strip->show();
         }},
        {u"disable"_s, [&scene] { scene.strip->setEnabled(false); }},
        {u"set same"_s, [&scene] { scene.strip->setPath(u"/tmp"_s); }},
        {u"set other"_s, [&scene] { scene.strip->setPath(u"/usr"_s); }},
        {u"slot same"_s, [&scene] { scene.strip->slotPathChanged(u"/tmp"_s); }},
        {u"slot other"_s, [&scene] { scene.strip->slotPathChanged(u"/usr"_s); }},
        {u"up"_s, [&scene] { scene.strip->dirup(); }},
        {u"backward"_s, [&scene] { scene.strip->backward(); }},
        {u"complete"_s, [&scene] { Q_EMIT scene.strip->completer()->activated(u"\\tmp"_s); }},
        {u"reset"_s, [&scene] { scene.strip->resetPath(u"/tmp"_s); }},
    };
    QVERIFY(ways.contains(way));
    scene.forget();
    ways.value(way)();
    QTRY_VERIFY(scene.shows(shown));
    QCOMPARE(scene.paths.size(), 1);
    QCOMPARE(scene.paths.constFirst().constFirst().toString(), shown);
}

void tst_AddressStripEditing::aPathWithoutSeparatorsIsShownAgain()
{
    // It reads the same while it is edited.
    const EditScene scene(u"relative"_s);
    scene.edit();
    scene.strip->setPath(u"relative"_s);
    QVERIFY(scene.shows(u"relative"_s));
    scene.edit();
    scene.other->setFocus();
    QVERIFY(scene.shows(u"relative"_s));
}

void tst_AddressStripEditing::whoHearsOfTheFocusMayGoElsewhere()
{
    const FolderTree tree({u"typed"_s, u"other"_s});
    EditScene scene(tree.path());
    scene.strip->editText(tree.path(u"typed"_s));
    connect(qApp, &QApplication::focusChanged, scene.strip, [&scene, &tree](const QWidget *before) {
        if (before == scene.strip)
            scene.strip->setPath(tree.path(u"other"_s));
    });
    scene.commit();
    QVERIFY(scene.shows(tree.path(u"other"_s)));
    QCOMPARE(scene.paths.size(), 1);
    QCOMPARE(scene.paths.constFirst().constFirst().toString(), tree.path(u"other"_s));
    scene.strip->backward();
    QVERIFY(scene.shows(tree.path(u"typed"_s)));
}

void tst_AddressStripEditing::editingAfterGoingBackAppendsThePathAgain()
{
    const FolderTree tree({u"a"_s, u"b"_s, u"c"_s});
    EditScene scene(tree.path(u"a"_s));
    scene.strip->setPath(tree.path(u"b"_s));
    scene.strip->setPath(tree.path(u"c"_s));
    scene.strip->backward();
    scene.edit();
    scene.commit();
    QVERIFY(scene.shows(tree.path(u"b"_s)));
    QCOMPARE(scene.ways(), u"b-u"_s);
    scene.strip->backward();
    QVERIFY(scene.shows(tree.path(u"b"_s)));
    scene.strip->backward();
    QVERIFY(scene.shows(tree.path(u"a"_s)));
}

void tst_AddressStripEditing::editingWithAnEmptyHistoryRecordsThePath()
{
    const EditScene scene(u"/tmp"_s);
    scene.strip->resetPath(u"/tmp"_s);
    scene.edit();
    scene.other->setFocus();
    QVERIFY(scene.shows(u"/tmp"_s));
    QCOMPARE(scene.ways().left(2), u"--"_s);

    StripWindow blank;
    blank.strip->editText(u"x"_s);
    QVERIFY(Input::show(&blank.window));
    blank.other->setFocus();
    QVERIFY(!blank.isEditing());
    QCOMPARE(blank.strip->text(), QString());
}

void tst_AddressStripEditing::pressesOnTheStripKeepTheText()
{
    const EditScene scene(u"/tmp"_s);
    scene.edit();
    scene.type(u"abc"_s);
    Input::click(scene.strip, QPoint(300, 10));
    QVERIFY(scene.isEditing());
    QVERIFY(scene.strip->hasFocus());
    QCOMPARE(scene.strip->text(), u"abc"_s);
    QVERIFY(!scene.strip->hasSelectedText());
}

void tst_AddressStripEditing::theWindowMayGoWhileThePathIsEdited()
{
    auto scene = std::make_unique<EditScene>(u"/tmp"_s);
    scene->edit();
    QVERIFY(scene->strip->hasFocus());
    scene.reset();
    // And a part of a window.
    QWidget window;
    auto *part = new QWidget(&window);
    auto *strip = new AddressStrip(part);
    strip->resize(200, 24);
    QVERIFY(Input::show(&window));
    strip->setPath(u"/tmp"_s);
    strip->editText(u"x"_s);
    QVERIFY(strip->hasFocus());
    delete part;
}

void tst_AddressStripEditing::theStripMayGoWhenEditingEnds_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"focus", "return", "press", "completion", "list"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_AddressStripEditing::theStripMayGoWhenEditingEnds()
{
    QFETCH(const QString, way);
    const FolderTree tree({u"abc"_s});
    const EditScene scene(tree.path());
    const QPointer<AddressStrip> strip = scene.strip;
    scene.edit();
    // A press first of all closes the list.
    scene.type(way == u"press" ? u"x"_s : u"/tmp"_s);
    connect(strip, &AddressStrip::signalPathChanged, &scene.window, [strip] { delete strip; });
    if (way == u"focus") {
        scene.other->setFocus();
    } else if (way == u"return") {
        scene.commit();
    } else if (way == u"press") {
        // Qt itself does not stand the end of a widget that it gives the focus to.
        scene.other->setFocusPolicy(Qt::TabFocus);
        connect(strip, &QObject::destroyed, scene.other, [&scene] { delete scene.other; });
        Input::click(scene.other);
    } else if (way == u"completion") {
        Q_EMIT strip->completer()->activated(u"/tmp"_s);
    } else {
        strip->clear();
        scene.type(tree.path() + u'/');
        QVERIFY(scene.list()->isVisible());
        QTest::keyClick(scene.list(), Qt::Key_Return);
    }
    QVERIFY(!strip);
}

void tst_AddressStripEditing::nothingIsTypedBelowTheEntries_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"keys", "paste", "drop", "input method", "set"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_AddressStripEditing::nothingIsTypedBelowTheEntries()
{
    QFETCH(const QString, way);
    const EditScene scene(u"/tmp"_s);
    QGuiApplication::clipboard()->setText(u"pasted"_s);
    if (way == u"keys") {
        scene.type(u"abc"_s);
        QTest::keyClick(scene.strip, Qt::Key_Return);
    } else if (way == u"paste") {
        scene.strip->paste();
        QTest::keySequence(scene.strip, QKeySequence::Paste);
    } else if (way == u"drop") {
        QMimeData data;
        data.setText(u"dropped"_s);
        QDropEvent drop(QPointF(600, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(scene.strip, &drop);
    } else if (way == u"input method") {
        QInputMethodEvent event;
        event.setCommitString(u"composed"_s);
        QCoreApplication::sendEvent(scene.strip, &event);
    } else {
        scene.strip->setText(u"set"_s);
    }
    QVERIFY(scene.shows(u"/tmp"_s));
    QCOMPARE(scene.paths.size(), 0);
    QGuiApplication::clipboard()->clear();
}

void tst_AddressStripEditing::nothingCanBeUndoneAfterwards()
{
    const EditScene scene(u"/tmp"_s);
    scene.edit();
    scene.type(u"abc"_s);
    scene.other->setFocus();
    scene.strip->undo();
    QVERIFY(scene.shows(u"/tmp"_s));
    scene.edit();
    scene.strip->undo();
    QCOMPARE(scene.strip->text(), u"\\tmp"_s);
}

QTEST_MAIN(tst_AddressStripEditing)

#include "tst_addressstripediting.moc"
