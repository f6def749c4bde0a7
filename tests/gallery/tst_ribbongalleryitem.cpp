// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/RibbonGalleryItem_p.h"
#include "gallery/TileWindow.h"

#include "support/TestCase.h"

#include <QAccessible>
#include <QMetaMethod>
#include <QPointer>
#include <QScrollArea>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

QString nameOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace

class tst_RibbonGalleryItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAToolButtonInTheNamespace();
    void declaresOneSignal();
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void showsItsActionWithTheIconAboveTheText();
    void followsItsAction();
    void outlivesItsAction();

    void enteringIsReportedByTheAction();

    void clickOnTheTileTriggersTheAction();
    void disabledActionIsNotTriggered();

    void spacePressesTheTile();
    void otherKeysAreForWhatIsAround_data();
    void otherKeysAreForWhatIsAround();

    void fixedSizeIsTheSizeHint();
    void tileWithoutFixedSizeAsksTheStyle();
    void lateTileIsPolishedWhenItComesIntoSight();
    void tileAndStarHaveNames();
    void shortenedTextIsStillTheWholeName();
};

void tst_RibbonGalleryItem::isAToolButtonInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonGalleryItem::staticMetaObject.className()),
             "VornFrame::RibbonGalleryItem"_L1);
    QCOMPARE(RibbonGalleryItem::staticMetaObject.superClass(), &QToolButton::staticMetaObject);
}

void tst_RibbonGalleryItem::declaresOneSignal()
{
    const QMetaObject &type = RibbonGalleryItem::staticMetaObject;
    QCOMPARE(type.methodCount() - type.methodOffset(), 1);
    const QMetaMethod signal = type.method(type.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.methodSignature(), QByteArray("signalCollected(bool)"));
    QCOMPARE(signal.parameterNames(), QByteArrayList({"collect"}));
}

void tst_RibbonGalleryItem::itsRecordStartsAsPromised()
{
    const RibbonGalleryItemPrivate d(nullptr);
    const std::unique_ptr<QToolButton> star(d.collectButton);
    QVERIFY(star);
    QVERIFY(!star->parent());
    QVERIFY(!d.collected);
    QVERIFY(!d.collectEnabled);
    QVERIFY(!d.q_ptr);
}

void tst_RibbonGalleryItem::belongsToItsParent()
{
    QAction action;
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonGalleryItem> tile = new RibbonGalleryItem(&action, parent.get());
    QCOMPARE(tile->parent(), parent.get());
    parent.reset();
    QVERIFY(!tile);
}

void tst_RibbonGalleryItem::showsItsActionWithTheIconAboveTheText()
{
    QAction action(QIcon(QString(ResourcePaths::Collected)), u"Heading"_s);
    const RibbonGalleryItem tile(&action, nullptr);
    QCOMPARE(tile.defaultAction(), &action);
    QCOMPARE(tile.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(tile.iconSize(), QSize(24, 24));
    QCOMPARE(tile.text(), u"Heading"_s);
    QVERIFY(showsIcon(&tile, ResourcePaths::Collected));
    QVERIFY(!action.parent());
}

void tst_RibbonGalleryItem::followsItsAction()
{
    QAction action(u"Heading"_s);
    const RibbonGalleryItem tile(&action, nullptr);
    action.setText(u"Quote"_s);
    action.setEnabled(false);
    action.setIcon(QIcon(QString(ResourcePaths::Collect)));
    QCOMPARE(tile.text(), u"Quote"_s);
    QVERIFY(!tile.isEnabled());
    QVERIFY(showsIcon(&tile, ResourcePaths::Collect));
}

void tst_RibbonGalleryItem::outlivesItsAction()
{
    auto action = std::make_unique<QAction>(u"Heading"_s);
    TileWindow window;
    auto *tile = new RibbonGalleryItem(action.get(), &window);
    tile->setGeometry(5, 85, 60, 30);
    QVERIFY(window.showAlone());
    action.reset();
    QVERIFY(!tile->defaultAction());
    Input::click(tile);
    Input::move(tile);
}

void tst_RibbonGalleryItem::enteringIsReportedByTheAction()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    const QSignalSpy spy(window.action(), &QAction::hovered);
    window.enter();
    QCOMPARE(spy.size(), 1);
}

void tst_RibbonGalleryItem::clickOnTheTileTriggersTheAction()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    const QSignalSpy triggered(window.action(), &QAction::triggered);
    const QSignalSpy collected(window.tile(), &RibbonGalleryItem::signalCollected);
    Input::click(window.tile());
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(collected.size(), 0);
}

void tst_RibbonGalleryItem::disabledActionIsNotTriggered()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.action()->setEnabled(false);
    const QSignalSpy triggered(window.action(), &QAction::triggered);
    Input::click(window.tile());
    QCOMPARE(triggered.size(), 0);
}

void tst_RibbonGalleryItem::spacePressesTheTile()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    const QSignalSpy triggered(window.action(), &QAction::triggered);
    window.tile()->setFocus();
    QTest::keyPress(window.windowHandle(), Qt::Key_Space);
    QVERIFY(window.tile()->isDown());
    QCOMPARE(triggered.size(), 0);
    QTest::keyRelease(window.windowHandle(), Qt::Key_Space);
    QCOMPARE(triggered.size(), 1);
    QVERIFY(window.keys().isEmpty());
}

void tst_RibbonGalleryItem::otherKeysAreForWhatIsAround_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Return") << Qt::Key_Return << Qt::KeyboardModifiers();
    QTest::newRow("Enter") << Qt::Key_Enter << Qt::KeyboardModifiers(Qt::KeypadModifier);
    QTest::newRow("Left") << Qt::Key_Left << Qt::KeyboardModifiers();
    QTest::newRow("Right") << Qt::Key_Right << Qt::KeyboardModifiers();
    QTest::newRow("Up") << Qt::Key_Up << Qt::KeyboardModifiers();
    QTest::newRow("Down") << Qt::Key_Down << Qt::KeyboardModifiers();
    QTest::newRow("Ctrl+Space") << Qt::Key_Space << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Escape") << Qt::Key_Escape << Qt::KeyboardModifiers();
    QTest::newRow("letter") << Qt::Key_A << Qt::KeyboardModifiers();
}

void tst_RibbonGalleryItem::otherKeysAreForWhatIsAround()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    TileWindow window;
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.showAlone());
    const QSignalSpy triggered(window.action(), &QAction::triggered);
    window.tile()->setFocus();
    QTest::keyClick(window.windowHandle(), key, modifiers);
    QCOMPARE(window.keys(), QList<int>{key});
    QCOMPARE(triggered.size(), 0);
    QVERIFY(!window.tile()->isCollected());
    QVERIFY(window.tile()->hasFocus());
}

void tst_RibbonGalleryItem::fixedSizeIsTheSizeHint()
{
    QAction action(u"A text that needs far more than what there is"_s);
    RibbonGalleryItem tile(&action, nullptr);
    tile.setFixedSize(40, 200);
    QCOMPARE(tile.sizeHint(), QSize(40, 200));
}

void tst_RibbonGalleryItem::tileWithoutFixedSizeAsksTheStyle()
{
    QAction action(u"Heading"_s);
    RibbonGalleryItem tile(&action, nullptr);
    QToolButton plain;
    plain.setDefaultAction(&action);
    plain.setIconSize(QSize(24, 24));
    plain.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    QCOMPARE(tile.sizeHint(), plain.sizeHint());
    tile.setFixedWidth(300);
    QCOMPARE(tile.sizeHint(), plain.sizeHint());
}

void tst_RibbonGalleryItem::lateTileIsPolishedWhenItComesIntoSight()
{
    QAction action(u"Heading"_s);
    QScrollArea area;
    auto *content = new QWidget;
    auto *tile = new RibbonGalleryItem(&action, content);
    tile->setTilePolishedLate();
    tile->setGeometry(10, 1000, 90, 60);
    content->resize(150, 1200);
    area.setWidget(content);
    area.resize(180, 120);
    QVERIFY(Input::show(&area));
    QVERIFY(tile->isVisible());
    QVERIFY(content->testAttribute(Qt::WA_WState_Polished));
    QVERIFY(!tile->testAttribute(Qt::WA_WState_Polished));
    area.ensureWidgetVisible(tile);
    QTRY_VERIFY(tile->testAttribute(Qt::WA_WState_Polished));
    Input::click(tile);
}

void tst_RibbonGalleryItem::tileAndStarHaveNames()
{
    TileWindow window;
    window.tile()->setCollected(true);
    QCOMPARE(nameOf(window.tile()), u"Heading"_s);
    QCOMPARE(nameOf(window.star()), u"Favorite"_s);
    QCOMPARE(window.star()->accessibleName(), u"Favorite"_s);
    QCOMPARE(window.star()->toolTip(), u"Favorite"_s);
}

void tst_RibbonGalleryItem::shortenedTextIsStillTheWholeName()
{
    TileWindow window;
    const QString text = u"A heading of many words that no tile has room for"_s;
    window.action()->setText(text);
    QVERIFY(window.showAlone());
    QCOMPARE(window.tile()->text(), text);
    QCOMPARE(nameOf(window.tile()), text);
    QCOMPARE(window.tile()->toolTip(), text);
}

QTEST_MAIN(tst_RibbonGalleryItem)
#include "tst_ribbongalleryitem.moc"
