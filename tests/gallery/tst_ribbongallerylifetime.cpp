// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryParts.h"

#include "support/TestCase.h"

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace GalleryParts;
using namespace VornFrame;

namespace {

/// How an action is triggered.
enum class Way {
    StripMouse,
    StripSpace,
    StripReturn,
    PopupMouse,
    PopupReturn,
    PopupSpace,
    Elsewhere
};

void addWays(bool withPopup)
{
    QTest::addColumn<Way>("way");
    QTest::newRow("mouse in the strip") << Way::StripMouse;
    QTest::newRow("Space in the strip") << Way::StripSpace;
    QTest::newRow("Return in the strip") << Way::StripReturn;
    if (withPopup) {
        QTest::newRow("mouse in the popup") << Way::PopupMouse;
        QTest::newRow("Return in the popup") << Way::PopupReturn;
        QTest::newRow("Space in the popup") << Way::PopupSpace;
    }
    QTest::newRow("elsewhere") << Way::Elsewhere;
}

/// A gallery with two tiles in its strip and favourites.
class LifetimeWindow : public GalleryWindow
{
public:
    LifetimeWindow()
    {
        gallery()->setDispalyCount(2);
        gallery()->setCollectEnabled(true);
        addGroup(u"a"_s, 3);
        addGroup(u"b"_s, 3);
    }

    QMenu *menu() const { return menuOf(gallery()); }
    [[nodiscard]] bool showTiles()
    {
        return showAlone()
               && QTest::qWaitFor([this] { return tilesOf(gallery()).at(1)->isVisible(); });
    }
    void pressKey(Qt::Key key) { QTest::keyClick(windowHandle(), key); }
    /// As a person does it; afterwards, nothing of the gallery may be left.
    [[nodiscard]] bool trigger(Way way)
    {
        const bool inPopup = way == Way::PopupMouse || way == Way::PopupReturn
                             || way == Way::PopupSpace;
        if (inPopup && !openPopup())
            return false;
        RibbonGalleryItem *tile = inPopup ? groupsOf(gallery()).at(0)->item(1)
                                          : tilesOf(gallery()).at(1);
        if (way == Way::Elsewhere) {
            action(0, 1)->trigger();
        } else if (way == Way::StripMouse || way == Way::PopupMouse) {
            Input::click(tile);
        } else {
            tile->setFocus();
            if (!tile->hasFocus())
                return false;
            const bool isSpace = way == Way::StripSpace || way == Way::PopupSpace;
            pressKey(isSpace ? Qt::Key_Space : Qt::Key_Return);
        }
        return true;
    }
    /// Runs \a slot when the gallery reports an action.
    void onTriggered(const std::function<void(QAction *)> &slot)
    {
        connect(gallery(), &RibbonGallery::signalTriggered, this, slot);
    }
};

} // namespace

Q_DECLARE_METATYPE(Way)
Q_DECLARE_METATYPE(std::function<void(QWidget *, QWidget *)>)

class tst_RibbonGalleryLifetime : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void galleryMayGoWhenItReports_data() { addWays(true); }
    void galleryMayGoWhenItReports();
    void galleryMayGoLaterWhenItReports_data() { addWays(true); }
    void galleryMayGoLaterWhenItReports();
    void windowMayGoWhenTheGalleryReports_data() { addWays(true); }
    void windowMayGoWhenTheGalleryReports();
    void galleryMayGoInsideALoopOfTheSlot_data() { addWays(true); }
    void galleryMayGoInsideALoopOfTheSlot();
    void actionMayGoWhenItIsReported_data() { addWays(true); }
    void actionMayGoWhenItIsReported();
    void allActionsMayGoWhenOneIsReported_data() { addWays(true); }
    void allActionsMayGoWhenOneIsReported();
    void stripMayFollowWhenItsTileIsReported_data() { addWays(true); }
    void stripMayFollowWhenItsTileIsReported();
    void groupMayMoveWhenATileIsReported_data() { addWays(true); }
    void groupMayMoveWhenATileIsReported();
    void popupMayOpenWhenATileIsReported_data() { addWays(false); }
    void popupMayOpenWhenATileIsReported();

    void galleryMayGoWithThePopupOpen_data();
    void galleryMayGoWithThePopupOpen();
    void windowMayGoWithThePopupOpen();
    void galleryMayGoRightAfterThePopupClosed();
    void galleryMayGoWhenItsFavouritesChanged();
    void galleryMayGoWhenAnActionIsHovered();
    void popupClosesWithItsGallery_data();
    void popupClosesWithItsGallery();
    void galleryMayGoInThePressedState_data();
    void galleryMayGoInThePressedState();

    void actionsMayGoWithThePopupOpen();
    void actionOfAFavouriteMayGoWithThePopupOpen();
    void actionUnderThePointerMayGo();
    void actionWithTheFocusMayGo();
    void actionMayGoBeforeTheStripFollows();
    void actionsMayGoBeforeTheGallery();
    void stripMayFollowWhileAnActionGoes();
    void actionOfNoGroupMayGo();
    void actionsOutliveTheGallery();
    void blankTilesOwnTheirActions();
};

void tst_RibbonGalleryLifetime::galleryMayGoWhenItReports()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    int count = 0;
    window.onTriggered([&window, &count](QAction * /*action*/) {
        ++count;
        window.deleteGallery();
    });
    QVERIFY(window.trigger(way));
    QCOMPARE(count, 1);
    QVERIFY(!window.gallery());
    QCoreApplication::processEvents();
}

void tst_RibbonGalleryLifetime::galleryMayGoLaterWhenItReports()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    window.onTriggered([&window](QAction * /*action*/) { window.gallery()->deleteLater(); });
    QVERIFY(window.trigger(way));
    QTRY_VERIFY(!window.gallery());
}

void tst_RibbonGalleryLifetime::windowMayGoWhenTheGalleryReports()
{
    QFETCH(const Way, way);
    auto *window = new LifetimeWindow;
    const QPointer<QWidget> guard(window);
    QVERIFY(window->showTiles());
    window->onTriggered([window](QAction * /*action*/) { window->deleteLater(); });
    QVERIFY(window->trigger(way));
    QTRY_VERIFY(!guard);
}

void tst_RibbonGalleryLifetime::galleryMayGoInsideALoopOfTheSlot()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    window.onTriggered([&window](QAction * /*action*/) {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&window, &loop] {
            window.deleteGallery();
            loop.quit();
        });
        loop.exec();
    });
    QVERIFY(window.trigger(way));
    QVERIFY(!window.gallery());
}

void tst_RibbonGalleryLifetime::actionMayGoWhenItIsReported()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    window.onTriggered([](QAction *action) { delete action; });
    QVERIFY(window.trigger(way));
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a2"_s}));
    QCOMPARE(textsOf(groupsOf(window.gallery()).at(0)), QStringList({u"a0"_s, u"a2"_s}));
}

void tst_RibbonGalleryLifetime::allActionsMayGoWhenOneIsReported()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    window.gallery()->setItemCollected(0, 2, true);
    QVERIFY(window.showTiles());
    window.onTriggered([&window](QAction * /*action*/) {
        for (const int group : {0, 1}) {
            while (groupsOf(window.gallery()).at(group)->count() > 0)
                delete window.action(group, 0);
        }
    });
    QVERIFY(window.trigger(way));
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList());
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
}

void tst_RibbonGalleryLifetime::stripMayFollowWhenItsTileIsReported()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    int count = 0;
    const QPointer<QWidget> tile(tilesOf(window.gallery()).at(1));
    window.onTriggered([&window, &count](QAction * /*action*/) {
        ++count;
        window.gallery()->setItemCollected(1, 2, true);
        window.showAgain();
    });
    QVERIFY(window.trigger(way));
    QCOMPARE(count, 1);
    QVERIFY(!tile);
    QCOMPARE(stripOf(window.gallery()), QStringList({u"b2"_s, u"a0"_s}));
    QTRY_VERIFY(tilesOf(window.gallery()).at(1)->isVisible());
    Input::click(tilesOf(window.gallery()).at(1));
    QCOMPARE(count, 2);
}

void tst_RibbonGalleryLifetime::groupMayMoveWhenATileIsReported()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    window.onTriggered([&window](QAction * /*action*/) {
        auto *last = groupsOf(window.gallery()).at(1);
        Q_EMIT last->signalPositionChange(RibbonGalleryGroup::Top);
    });
    QVERIFY(window.trigger(way));
    QCOMPARE(stripOf(window.gallery()), QStringList({u"b0"_s, u"b1"_s}));
}

void tst_RibbonGalleryLifetime::popupMayOpenWhenATileIsReported()
{
    QFETCH(const Way, way);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    window.onTriggered([&window](QAction * /*action*/) { buttonOf(window.gallery())->click(); });
    QVERIFY(window.trigger(way));
    QVERIFY(window.menu()->isVisible());
    window.deleteGallery();
}

void tst_RibbonGalleryLifetime::galleryMayGoWithThePopupOpen_data()
{
    QTest::addColumn<QString>("search");
    QTest::newRow("as opened") << QString();
    QTest::newRow("with a text that is found") << u"b"_s;
    QTest::newRow("with a text that is not found") << u"x"_s;
}

void tst_RibbonGalleryLifetime::galleryMayGoWithThePopupOpen()
{
    QFETCH(const QString, search);
    LifetimeWindow window;
    window.gallery()->setItemCollected(0, 2, true);
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    searchOf(window.gallery())->setText(search);
    window.deleteGallery();
    QVERIFY(!QApplication::activePopupWidget());
    QCoreApplication::processEvents();
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    QCOMPARE(window.field()->text(), u"a"_s);
}

void tst_RibbonGalleryLifetime::windowMayGoWithThePopupOpen()
{
    auto window = std::make_unique<LifetimeWindow>();
    QVERIFY(window->showTiles());
    QVERIFY(window->openPopup());
    searchOf(window->gallery())->setText(u"a"_s);
    window.reset();
    QVERIFY(!QApplication::activePopupWidget());
    QCoreApplication::processEvents();
}

void tst_RibbonGalleryLifetime::galleryMayGoRightAfterThePopupClosed()
{
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    window.menu()->close();
    window.deleteGallery();
    QCoreApplication::processEvents();
}

void tst_RibbonGalleryLifetime::galleryMayGoWhenItsFavouritesChanged()
{
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    RibbonGalleryItem *tile = groupsOf(window.gallery()).at(0)->item(0);
    Input::move(tile);
    Input::click(starOf(tile));
    QTRY_VERIFY(favouritesOf(window.gallery())->item(0)->isVisible());
    Input::click(starOf(favouritesOf(window.gallery())->item(0)));
    // The copy waits for its end.
    window.deleteGallery();
    QCoreApplication::processEvents();
}

void tst_RibbonGalleryLifetime::galleryMayGoWhenAnActionIsHovered()
{
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    connect(window.action(0, 1), &QAction::hovered, &window, [&window] {
        if (window.gallery())
            window.gallery()->deleteLater();
    });
    Input::move(groupsOf(window.gallery()).at(0)->item(1));
    QTRY_VERIFY(!window.gallery());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_RibbonGalleryLifetime::popupClosesWithItsGallery_data()
{
    QTest::addColumn<std::function<void(QWidget *, QWidget *)>>("leave");
    const auto add = [](const char *name, const std::function<void(QWidget *, QWidget *)> &leave) {
        QTest::newRow(name) << leave;
    };
    add("gallery hidden", [](QWidget *gallery, QWidget * /*other*/) { gallery->hide(); });
    add("window hidden", [](QWidget *gallery, QWidget * /*other*/) { gallery->window()->hide(); });
    add("window closed", [](QWidget *gallery, QWidget * /*other*/) { gallery->window()->close(); });
    add("gallery moved", [](QWidget *gallery, QWidget *other) { gallery->setParent(other); });
}

void tst_RibbonGalleryLifetime::popupClosesWithItsGallery()
{
    QFETCH(const std::function<void(QWidget *, QWidget *)>, leave);
    LifetimeWindow window;
    QWidget other;
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    RibbonGallery *gallery = window.gallery();
    searchOf(gallery)->setText(u"b"_s);
    leave(gallery, &other);
    QVERIFY(!menuOf(gallery)->isVisible());
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(searchOf(gallery)->text(), QString());
    QCoreApplication::processEvents();
    delete gallery;
}

void tst_RibbonGalleryLifetime::galleryMayGoInThePressedState_data()
{
    QTest::addColumn<bool>("inPopup");
    QTest::newRow("strip") << false;
    QTest::newRow("popup") << true;
}

void tst_RibbonGalleryLifetime::galleryMayGoInThePressedState()
{
    QFETCH(const bool, inPopup);
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    if (inPopup)
        QVERIFY(window.openPopup());
    RibbonGalleryItem *tile = inPopup ? groupsOf(window.gallery()).at(0)->item(1)
                                      : tilesOf(window.gallery()).at(1);
    const QSignalSpy spy(window.action(0, 1), &QAction::triggered);
    Input::press(tile);
    window.deleteGallery();
    Input::release(&window);
    QCOMPARE(spy.size(), 0);
}

void tst_RibbonGalleryLifetime::actionsMayGoWithThePopupOpen()
{
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    const QPointer<QWidget> tile(groupsOf(window.gallery()).at(0)->item(1));
    delete window.action(0, 1);
    QVERIFY(tile->isHidden());
    QCOMPARE(textsOf(groupsOf(window.gallery()).at(0)), QStringList({u"a0"_s, u"a2"_s}));
    QTRY_VERIFY(!tile);
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a2"_s}));
    // The indexes behind it went down.
    QVERIFY(window.gallery()->setItemCollected(0, 1, true));
    QCOMPARE(textsOf(favouritesOf(window.gallery())), QStringList{u"a2"_s});
    QVERIFY(!window.gallery()->setItemCollected(0, 2, true));
    window.menu()->close();
}

void tst_RibbonGalleryLifetime::actionOfAFavouriteMayGoWithThePopupOpen()
{
    LifetimeWindow window;
    window.gallery()->setItemCollected(0, 1, true);
    window.gallery()->setItemCollected(0, 1, true);
    window.gallery()->setItemCollected(1, 0, true);
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    QCOMPARE(textsOf(favouritesOf(window.gallery())), QStringList({u"a1"_s, u"a1"_s, u"b0"_s}));
    delete window.action(0, 1);
    QCOMPARE(textsOf(favouritesOf(window.gallery())), QStringList{u"b0"_s});
    QVERIFY(favouritesOf(window.gallery())->isVisible());
    delete window.action(1, 0);
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
    QVERIFY(!favouritesOf(window.gallery())->isVisible());
    window.menu()->close();
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a2"_s}));
}

void tst_RibbonGalleryLifetime::actionUnderThePointerMayGo()
{
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    RibbonGalleryItem *tile = tilesOf(window.gallery()).at(0);
    Input::move(tile);
    Input::press(tile);
    delete window.action(0, 0);
    Input::release(&window);
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a1"_s, u"a2"_s}));
}

void tst_RibbonGalleryLifetime::actionWithTheFocusMayGo()
{
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    tilesOf(window.gallery()).at(0)->setFocus();
    delete window.action(0, 0);
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a1"_s, u"a2"_s}));
    const auto *focused = qobject_cast<RibbonGalleryItem *>(QApplication::focusWidget());
    QVERIFY(focused);
    QCOMPARE(focused->text(), u"a1"_s);
}

void tst_RibbonGalleryLifetime::actionMayGoBeforeTheStripFollows()
{
    LifetimeWindow window;
    QVERIFY(window.showTiles());
    QVERIFY(window.openPopup());
    window.gallery()->setItemCollected(1, 1, true);
    window.menu()->close();
    delete window.action(1, 1);
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a1"_s}));
}

void tst_RibbonGalleryLifetime::actionsMayGoBeforeTheGallery()
{
    RibbonGallery gallery;
    auto action = std::make_unique<QAction>(u"Item"_s);
    gallery.addItem(u"Styles"_s, action.get());
    gallery.addItem(u"Styles"_s, action.get());
    action.reset();
    QCOMPARE(groupsOf(&gallery).at(0)->count(), 0);
}

void tst_RibbonGalleryLifetime::stripMayFollowWhileAnActionGoes()
{
    LifetimeWindow window;
    auto action = std::make_unique<QAction>(u"x"_s);
    // Before the gallery hears of it.
    connect(action.get(), &QObject::destroyed, &window, [&window] { window.showAgain(); });
    window.gallery()->addItem(0, action.get());
    window.gallery()->setItemCollected(0, 3, true);
    QVERIFY(window.showTiles());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"x"_s, u"a0"_s}));
    action.reset();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a1"_s}));
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a1"_s}));
}

void tst_RibbonGalleryLifetime::actionOfNoGroupMayGo()
{
    RibbonGallery gallery;
    auto action = std::make_unique<QAction>(u"Item"_s);
    QCOMPARE(gallery.addItem(3, action.get()), -1);
    action.reset();
}

void tst_RibbonGalleryLifetime::actionsOutliveTheGallery()
{
    QAction action(u"Item"_s);
    {
        RibbonGallery gallery;
        gallery.setCollectEnabled(true);
        gallery.addItem(u"Styles"_s, &action);
        gallery.setItemCollected(0, 0, true);
        QVERIFY(!action.parent());
    }
    QCOMPARE(action.text(), u"Item"_s);
    QVERIFY(action.associatedObjects().isEmpty());
    action.trigger();
}

void tst_RibbonGalleryLifetime::blankTilesOwnTheirActions()
{
    LifetimeWindow window;
    window.gallery()->setDispalyCount(8);
    QVERIFY(window.showTiles());
    const QPointer<QAction> blank(tilesOf(window.gallery()).at(7)->defaultAction());
    QVERIFY(blank);
    window.deleteGallery();
    QVERIFY(!blank);
}

QTEST_MAIN(tst_RibbonGalleryLifetime)
#include "tst_ribbongallerylifetime.moc"
