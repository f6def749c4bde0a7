// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/AddressEntry.h"
#include "address/FolderTree.h"

#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QPoint OnName(10, 10);

/// An entry in a window with room around it.
struct Scene
{
    explicit Scene(const QString &path, Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        window.setLayoutDirection(direction);
        window.resize(400, 100);
        entry->move(100, 30);
        if (!path.isEmpty())
            entry->setName(path.section(u'/', -1));
        entry->setPath(path);
    }

    QPoint onArrow() const
    {
        const int x = entry->isRightToLeft() ? 8 : entry->width() - 8;
        return {x, 10};
    }
    QPoint onName() const
    {
        return entry->isRightToLeft() ? QPoint(entry->width() - OnName.x(), OnName.y()) : OnName;
    }
    QStringList texts() const
    {
        QStringList texts;
        const QList<QAction *> actions = entry->menu()->actions();
        for (const QAction *action : actions)
            texts.append(action->text());
        return texts;
    }

    QWidget window;
    AddressEntry *entry = new AddressEntry(&window);
    QSignalSpy clicks{entry, &AddressEntry::signalClicked};
};

QString clickedPath(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QString() : spy.constLast().at(0).toString();
}

int textWidth(const QWidget *entry, const QString &name)
{
    return entry->fontMetrics().horizontalAdvance(name);
}

} // namespace

class tst_AddressEntry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRootListsTheDrives();
    void choosingADriveEmitsItsName();
    void subfoldersAreListedByName();
    void filesAndHiddenFoldersAreNotListed();
    void choosingASubfolderEmitsItsPath();
    void theRootOfTheFileSystemHasNoDoubleSeparator();
    void foldersWithoutSubfoldersHaveNoMenu_data();
    void foldersWithoutSubfoldersHaveNoMenu();
    void theMenuFollowsThePath();
    void theSizeIsExact_data();
    void theSizeIsExact();
    void theSizeFollowsTheFont();
    void namesAreShortenedToTheRoom();
    void namesAreShownAndChosenAsTheyAre_data();
    void namesAreShownAndChosenAsTheyAre();
    void namesMakeNoShortcut();
    void entriesHaveAccessibleNames();

    void clickingTheNameEmitsThePath();
    void pressingTheNameDoesNotOpenTheMenu();
    void pressingTheArrowOpensTheMenuUnderIt_data();
    void pressingTheArrowOpensTheMenuUnderIt();
    void pressingTheRootOpensItsMenu();
    void menusStayOnTheScreen();
    void longNamesLeaveTheMenuNarrow();
    void pressesReleasedElsewhereDoNothing();
    void otherButtonsDoNothing();
    void releasesStayWithTheEntry();
    void entriesMayGoWhenTheyAreClicked();
    void entriesMayGoWhileTheirMenuIsOpen();
    void entriesMayGoWhenAFolderIsChosen();
    void tenThousandFoldersAreListed();
};

void tst_AddressEntry::theRootListsTheDrives()
{
    const Scene scene{QString()};
    QStringList expected;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo &drive : drives) {
        const QString name = drive.absoluteDir().path().section(u'/', 0, 0);
        expected.append(name.isEmpty() ? u"/"_s : name);
    }
    QVERIFY(!expected.isEmpty());
    QCOMPARE(scene.texts(), expected);
    QCOMPARE(scene.entry->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(scene.entry->size(), QSize(16, 22));
    for (const QAction *action : scene.entry->menu()->actions())
        QVERIFY(!action->icon().isNull());
}

void tst_AddressEntry::choosingADriveEmitsItsName()
{
    const Scene scene{QString()};
    QAction *drive = scene.entry->menu()->actions().constFirst();
    drive->trigger();
    QCOMPARE(scene.clicks.size(), 1);
    QCOMPARE(clickedPath(scene.clicks), drive->text());
}

void tst_AddressEntry::subfoldersAreListedByName()
{
    const FolderTree tree({u"b"_s, u"B"_s, u"a"_s, u"c d"_s, u"a/deeper"_s});
    const Scene scene{tree.path()};
    QCOMPARE(scene.texts(), (QStringList{u"B"_s, u"a"_s, u"b"_s, u"c d"_s}));
    QCOMPARE(scene.entry->popupMode(), QToolButton::MenuButtonPopup);
    for (const QAction *action : scene.entry->menu()->actions())
        QVERIFY(!action->icon().isNull());
}

void tst_AddressEntry::filesAndHiddenFoldersAreNotListed()
{
    const FolderTree tree({u"folder"_s, u".hidden"_s});
    tree.addFile(u"file"_s);
    const Scene scene{tree.path()};
    QCOMPARE(scene.texts(), QStringList(u"folder"_s));
}

void tst_AddressEntry::choosingASubfolderEmitsItsPath()
{
    const FolderTree tree({u"a"_s, u"b c"_s});
    const Scene scene{tree.path()};
    scene.entry->menu()->actions().constLast()->trigger();
    QCOMPARE(scene.clicks.size(), 1);
    QCOMPARE(clickedPath(scene.clicks), tree.path(u"b c"_s));
}

void tst_AddressEntry::theRootOfTheFileSystemHasNoDoubleSeparator()
{
    Scene scene{QString()};
    scene.entry->setPath(u"/"_s);
    QAction *folder = scene.entry->menu()->actions().constFirst();
    folder->trigger();
    QCOMPARE(clickedPath(scene.clicks), u'/' + folder->text());
}

void tst_AddressEntry::foldersWithoutSubfoldersHaveNoMenu_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("empty") << u"empty"_s;
    QTest::newRow("holding a file") << u"files"_s;
    QTest::newRow("a file") << u"files/file"_s;
    QTest::newRow("missing") << u"missing"_s;
    QTest::newRow("too long") << QString(300, u'x');
    QTest::newRow("deeper than any") << u"x/"_s.repeated(3000) + u'x';
}

void tst_AddressEntry::foldersWithoutSubfoldersHaveNoMenu()
{
    QFETCH(const QString, folder);
    const FolderTree tree({u"empty"_s, u"files"_s});
    tree.addFile(u"files/file"_s);
    const Scene scene{tree.path(folder)};
    const QString name = folder.section(u'/', -1);
    QVERIFY(!scene.entry->menu());
    QCOMPARE(scene.entry->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(scene.entry->size(), QSize(textWidth(scene.entry, name) + 8, 22));
}

void tst_AddressEntry::theMenuFollowsThePath()
{
    const FolderTree tree({u"a/x"_s, u"b"_s});
    Scene scene{tree.path(u"a"_s)};
    const QPointer<QMenu> first = scene.entry->menu();
    scene.entry->setPath(tree.path());
    QCOMPARE(scene.texts(), (QStringList{u"a"_s, u"b"_s}));
    scene.entry->setPath(tree.path(u"b"_s));
    QVERIFY(!scene.entry->menu());
    QCOMPARE(scene.entry->width(), textWidth(scene.entry, u"a"_s) + 8);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!first);
    QVERIFY(scene.entry->findChildren<QMenu *>().isEmpty());
}

void tst_AddressEntry::theSizeIsExact_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("beside");
    QTest::newRow("with subfolders") << u"parent"_s << 6 + 4 + 16;
    QTest::newRow("without") << u"parent/child"_s << 4 + 4;
}

void tst_AddressEntry::theSizeIsExact()
{
    QFETCH(const QString, folder);
    QFETCH(const int, beside);
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(folder)};
    const QSize expected(textWidth(scene.entry, folder.section(u'/', -1)) + beside, 22);
    QCOMPARE(scene.entry->size(), expected);
    QVERIFY(Input::show(&scene.window));
    QCOMPARE(scene.entry->size(), expected);
    scene.entry->resize(500, 500);
    QCOMPARE(scene.entry->size(), expected);
    QCOMPARE(scene.entry->sizeHint(), expected);
}

void tst_AddressEntry::theSizeFollowsTheFont()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    const int before = scene.entry->width();
    QFont font = scene.entry->font();
    font.setPointSize(20);
    scene.entry->setFont(font);
    QVERIFY(scene.entry->width() > before);
    QCOMPARE(scene.entry->width(), textWidth(scene.entry, u"parent"_s) + 26);
    scene.window.setStyleSheet(u"* { font-size: 9pt; }"_s);
    QVERIFY(Input::show(&scene.window));
    QCOMPARE(scene.entry->width(), textWidth(scene.entry, u"parent"_s) + 26);
}

void tst_AddressEntry::namesAreShortenedToTheRoom()
{
    const FolderTree tree({u"a"_s});
    const QString name(200, u'w');
    Scene scene{tree.path()};
    scene.entry->setName(name);
    const int whole = textWidth(scene.entry, name) + 26;
    QCOMPARE(scene.entry->width(), whole);
    QVERIFY(scene.entry->toolTip().isEmpty());
    scene.entry->setRoom(150);
    QCOMPARE(scene.entry->width(), 150);
    QCOMPARE(scene.entry->sizeHint().width(), whole);
    QCOMPARE(scene.entry->minimumSizeHint(), QSize(66, 22));
    QVERIFY(scene.entry->toolTip().contains(name));
    scene.entry->setRoom(1);
    QCOMPARE(scene.entry->width(), 26);
    scene.entry->setRoom(whole);
    QCOMPARE(scene.entry->width(), whole);
    QVERIFY(scene.entry->toolTip().isEmpty());
    scene.entry->setName(u"<b>bold</b>"_s + name);
    QVERIFY(scene.entry->toolTip().contains(u"&lt;b&gt;bold"_s));
}

void tst_AddressEntry::namesAreShownAndChosenAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("ampersand") << u"a&b"_s << u"a&&b"_s;
    QTest::newRow("two ampersands") << u"&&"_s << u"&&&&"_s;
    QTest::newRow("quotes") << u"'\"`"_s << u"'\"`"_s;
    QTest::newRow("newline") << u"a\nb"_s << u"a b"_s;
    QTest::newRow("tab") << u"a\tb"_s << u"a b"_s;
    QTest::newRow("markup") << u"<b>x<b>"_s << u"<b>x<b>"_s;
    QTest::newRow("right to left")
        << u"\u05e9\u05dc\u05d5\u05dd"_s << u"\u05e9\u05dc\u05d5\u05dd"_s;
    QTest::newRow("emoji") << u"\U0001F600\U0001F1E9\U0001F1EA"_s
                           << u"\U0001F600\U0001F1E9\U0001F1EA"_s;
    QTest::newRow("spaces") << u" a "_s << u" a "_s;
    QTest::newRow("255 bytes") << QString(255, u'x') << QString(255, u'x');
    QTest::newRow("backslash") << u"a\\b"_s << u"a\\b"_s;
}

void tst_AddressEntry::namesAreShownAndChosenAsTheyAre()
{
    QFETCH(const QString, name);
    const FolderTree tree({name + u"/child"_s});
    const Scene parent{tree.path()};
    QTEST(parent.texts().join(u'|'), "text");
    parent.entry->menu()->actions().constFirst()->trigger();
    QCOMPARE(clickedPath(parent.clicks), tree.path(name));

    const Scene scene{tree.path(name)};
    QCOMPARE(scene.entry->text(), name);
    QCOMPARE(scene.texts(), QStringList(u"child"_s));
    scene.entry->click();
    QCOMPARE(clickedPath(scene.clicks), tree.path(name));
}

void tst_AddressEntry::namesMakeNoShortcut()
{
    AddressEntry entry(nullptr);
    entry.setName(u"a&b"_s);
    QVERIFY(entry.shortcut().isEmpty());
    entry.setText(u"a&c"_s);
    entry.setPath(u"/missing"_s);
    QVERIFY(entry.shortcut().isEmpty());
}

void tst_AddressEntry::entriesHaveAccessibleNames()
{
    const FolderTree tree;
    QCOMPARE(Scene{QString()}.entry->accessibleName(), u"Drives"_s);
    AddressEntry entry(nullptr);
    entry.setName(u"a&b"_s);
    QCOMPARE(entry.accessibleName(), u"a&b"_s);
}

void tst_AddressEntry::clickingTheNameEmitsThePath()
{
    const FolderTree tree({u"parent/child"_s});
    for (const QString &folder : {u"parent"_s, u"parent/child"_s}) {
        Scene scene{tree.path(folder)};
        QVERIFY(Input::show(&scene.window));
        Input::click(scene.entry, OnName);
        QCOMPARE(scene.clicks.size(), 1);
        QCOMPARE(clickedPath(scene.clicks), tree.path(folder));
    }
}

void tst_AddressEntry::pressingTheNameDoesNotOpenTheMenu()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    QVERIFY(Input::show(&scene.window));
    const PopupBan ban;
    Input::press(scene.entry, OnName);
    QVERIFY(scene.entry->isDown());
    QVERIFY(!scene.entry->menu()->isVisible());
    QCOMPARE(scene.clicks.size(), 0);
    Input::release(scene.entry, OnName);
    QVERIFY(!scene.entry->isDown());
}

void tst_AddressEntry::pressingTheArrowOpensTheMenuUnderIt_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_AddressEntry::pressingTheArrowOpensTheMenuUnderIt()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s), direction};
    scene.window.move(200, 200);
    QVERIFY(Input::show(&scene.window));
    QPoint corner;
    PopupDriver driver([&corner, &scene](QMenu *menu) {
        QCOMPARE(menu, scene.entry->menu());
        QVERIFY(scene.entry->isDown());
        corner = scene.entry->isRightToLeft() ? menu->geometry().topRight() + QPoint(1, 0)
                                              : menu->pos();
    });
    Input::press(scene.entry, scene.onArrow());
    QVERIFY(driver.hasRun());
    const int x = direction == Qt::RightToLeft ? 16 : scene.entry->width() - 16;
    QCOMPARE(corner, scene.entry->mapToGlobal(QPoint(x, 22)));
    Input::release(scene.entry, scene.onArrow());
    QVERIFY(!scene.entry->isDown());
    QCOMPARE(scene.clicks.size(), 0);
}

void tst_AddressEntry::pressingTheRootOpensItsMenu()
{
    Scene scene{QString()};
    QVERIFY(Input::show(&scene.window));
    PopupDriver driver([](QMenu *menu) { QVERIFY(!menu->isEmpty()); });
    Input::press(scene.entry);
    QVERIFY(driver.hasRun());
    Input::release(scene.entry);
    QCOMPARE(scene.clicks.size(), 0);
}

void tst_AddressEntry::menusStayOnTheScreen()
{
    QStringList folders;
    for (int i = 0; i < 50; ++i)
        folders.append(u"parent/%1"_s.arg(i));
    const FolderTree tree(folders);
    Scene scene{tree.path(u"parent"_s)};
    const QRect screen = scene.window.screen()->availableGeometry();
    scene.window.move(screen.right() - 200, screen.bottom() - 110);
    QVERIFY(Input::show(&scene.window));
    QRect geometry;
    PopupDriver driver([&geometry](QMenu *menu) { geometry = menu->geometry(); });
    Input::press(scene.entry, scene.onArrow());
    QVERIFY(driver.hasRun());
    QVERIFY(screen.contains(geometry));
    Input::release(scene.entry, scene.onArrow());
}

void tst_AddressEntry::longNamesLeaveTheMenuNarrow()
{
    const QString longName = u"a & "_s + QString(250, u'W');
    const FolderTree tree({u"parent/short"_s, u"parent/"_s + longName});
    Scene scene{tree.path(u"parent"_s)};
    QVERIFY(Input::show(&scene.window));
    PopupDriver driver([](QMenu *menu) {
        QVERIFY(menu->width() < 500);
        const QString shown = menu->actions().constFirst()->text();
        QVERIFY(shown.startsWith(u"a && W"_s));
        QVERIFY(shown.contains(QChar(0x2026)));
        QCOMPARE(menu->actions().constLast()->text(), u"short"_s);
    });
    Input::press(scene.entry, scene.onArrow());
    QVERIFY(driver.hasRun());
    Input::release(scene.entry, scene.onArrow());
    scene.entry->menu()->actions().constFirst()->trigger();
    QCOMPARE(clickedPath(scene.clicks), tree.path(u"parent/"_s + longName));
}

void tst_AddressEntry::pressesReleasedElsewhereDoNothing()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    QVERIFY(Input::show(&scene.window));
    Input::drag(scene.entry, OnName, QPoint(OnName.x(), 60));
    QCOMPARE(scene.clicks.size(), 0);
    QVERIFY(!scene.entry->isDown());
}

void tst_AddressEntry::otherButtonsDoNothing()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    QVERIFY(Input::show(&scene.window));
    const PopupBan ban;
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        for (const QPoint position : {OnName, scene.onArrow()}) {
            Input::press(scene.entry, position, button);
            QVERIFY(!scene.entry->isDown());
            Input::release(scene.entry, position, button);
        }
    }
    QCOMPARE(scene.clicks.size(), 0);
}

void tst_AddressEntry::releasesStayWithTheEntry()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    struct Listener : QObject
    {
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            releases += event->type() == QEvent::MouseButtonRelease ? 1 : 0;
            return false;
        }
        int releases = 0;
    } listener;
    scene.window.installEventFilter(&listener);
    QVERIFY(Input::show(&scene.window));
    Input::drag(scene.entry, OnName, QPoint(OnName.x(), 60));
    Input::rightClick(scene.entry, OnName);
    QCOMPARE(listener.releases, 0);
}

void tst_AddressEntry::entriesMayGoWhenTheyAreClicked()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    QVERIFY(Input::show(&scene.window));
    const QPointer<AddressEntry> entry = scene.entry;
    connect(entry, &AddressEntry::signalClicked, this, [entry] { delete entry; });
    Input::click(scene.entry, OnName);
    QVERIFY(!entry);
}

void tst_AddressEntry::entriesMayGoWhileTheirMenuIsOpen()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    QVERIFY(Input::show(&scene.window));
    const QPointer<AddressEntry> entry = scene.entry;
    PopupDriver driver([entry](QMenu * /*menu*/) { delete entry; });
    Input::press(entry, scene.onArrow());
    QVERIFY(driver.hasRun());
    QVERIFY(!entry);
    Input::release(&scene.window);
}

void tst_AddressEntry::entriesMayGoWhenAFolderIsChosen()
{
    const FolderTree tree({u"parent/child"_s});
    Scene scene{tree.path(u"parent"_s)};
    QVERIFY(Input::show(&scene.window));
    const QPointer<AddressEntry> entry = scene.entry;
    connect(entry, &AddressEntry::signalClicked, this, [entry] { delete entry; });
    PopupDriver driver([](QMenu *menu) {
        Input::click(menu, menu->actionGeometry(menu->actions().constFirst()).center());
    });
    Input::press(entry, scene.onArrow());
    QVERIFY(driver.hasRun());
    QVERIFY(!entry);
    Input::release(&scene.window);
}

void tst_AddressEntry::tenThousandFoldersAreListed()
{
    QStringList folders;
    for (int i = 0; i < 10000; ++i)
        folders.append(QString::number(i));
    const FolderTree tree(folders);
    const Scene scene{tree.path()};
    std::sort(folders.begin(), folders.end());
    QCOMPARE(scene.texts(), folders);
}

QTEST_MAIN(tst_AddressEntry)

#include "tst_addressentry.moc"
