// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/PopupParts.h"

#include "support/TestCase.h"

#include <QPointer>
#include <QSignalSpy>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace PopupParts;
using namespace VornFrame;

namespace {

QImage picture(const QIcon &icon, int size = 16)
{
    return icon.pixmap(QSize(size, size), 1).toImage();
}

} // namespace

class tst_RibbonGalleryPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAScrollAreaInTheNamespace();
    void belongsToItsParent();
    void theScrollAreaHasItsPolicies();
    void theContentHoldsSearchRowAndGroups();
    void theSearchRowHoldsFieldAndButton();
    void theSearchFieldHasItsIcon();
    void theCloseButtonHasItsIcon();
    void theLineWithoutMatchHasItsLook();
    void theFavouritesStandFirstAndFixed();

    void addedGroupsStandInOrder();
    void anAddedGroupHasItsIcon();
    void aNameMayOccurTwice();
    void addedItemsHaveTheirIndex();
    void badItemsAreRefused_data();
    void badItemsAreRefused();
    void indexOfGroupIsExact_data();
    void indexOfGroupIsExact();
    void addedGroupsAreShownInAnOpenPopup();

    void displayedActionsStopAtTheDisplayCount_data();
    void displayedActionsStopAtTheDisplayCount();
    void displayedActionsAreFavouritesFirst();
    void displayedActionsFollowTheOrderOfGroups();
    void displayedActionsIgnoreTheSearch();
    void displayedActionsHoldAnActionAsOftenAsItWasAdded();

    void setItemCollectedFindsItsTile();
    void setItemCollectedRefusesBadIndexes_data();
    void setItemCollectedRefusesBadIndexes();
    void thereIsNoStateToSave();

    void deletedActionsLeaveTheirGroups();
};

void tst_RibbonGalleryPopup::isAScrollAreaInTheNamespace()
{
    const QMetaObject &meta = RibbonGalleryPopup::staticMetaObject;
    QCOMPARE(QLatin1StringView(meta.className()), "VornFrame::RibbonGalleryPopup"_L1);
    QCOMPARE(meta.superClass(), &QScrollArea::staticMetaObject);
    QList<QByteArray> signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(meta.method(i).methodSignature());
    QCOMPARE(signatures, QList<QByteArray>({"signalGroupUpdated()", "signalHeightChanged(int)",
                                            "signalUpdateDisplayedItems()"}));
}

void tst_RibbonGalleryPopup::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonGalleryPopup> popup = new RibbonGalleryPopup(parent.get());
    QCOMPARE(popup->parent(), parent.get());
    parent.reset();
    QVERIFY(!popup);
    QVERIFY(!RibbonGalleryPopup(nullptr).parent());
}

void tst_RibbonGalleryPopup::theScrollAreaHasItsPolicies()
{
    const RibbonGalleryPopup popup(nullptr);
    QVERIFY(!popup.widgetResizable());
    QCOMPARE(popup.alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(popup.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(popup.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    const QFrame *content = Parts(&popup).content();
    QVERIFY(content);
    QCOMPARE(content->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    QCOMPARE(content->sizePolicy().verticalPolicy(), QSizePolicy::Ignored);
    QVERIFY(popup.isAncestorOf(content));
}

void tst_RibbonGalleryPopup::theContentHoldsSearchRowAndGroups()
{
    const RibbonGalleryPopup popup(nullptr);
    const Parts parts(&popup);
    QVERIFY(parts.column());
    QCOMPARE(parts.column()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(parts.column()->spacing(), 0);
    QCOMPARE(parts.column()->alignment(), Qt::AlignTop);
    QCOMPARE(parts.column()->count(), 2);
    QVERIFY(parts.groupsLayout());
    QCOMPARE(parts.groupsLayout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(parts.groupsLayout()->spacing(), 0);
    QCOMPARE(parts.groupsLayout()->alignment(), Qt::AlignTop);
    QCOMPARE(parts.groupsLayout()->count(), 2);
    QVERIFY(parts.favourites());
    QVERIFY(parts.noMatchLabel());
}

void tst_RibbonGalleryPopup::theSearchRowHoldsFieldAndButton()
{
    const RibbonGalleryPopup popup(nullptr);
    const QHBoxLayout *row = Parts(&popup).searchRow();
    QVERIFY(row);
    QCOMPARE(row->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(row->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(row->spacing(), 8);
    QCOMPARE(row->count(), 2);
    QVERIFY(Parts(&popup).searchEdit());
    QVERIFY(Parts(&popup).closeButton());
    QVERIFY(!Parts(&popup).searchEdit()->accessibleName().isEmpty());
    QVERIFY(!Parts(&popup).closeButton()->accessibleName().isEmpty());
    QVERIFY(!Parts(&popup).closeButton()->autoDefault());
}

void tst_RibbonGalleryPopup::theSearchFieldHasItsIcon()
{
    PopupWindow window;
    const QLineEdit *edit = window.parts().searchEdit();
    QCOMPARE(edit->actions().size(), 1);
    QCOMPARE(picture(edit->actions().constFirst()->icon()), picture(QIcon(u":/res/search.svg"_s)));
    QVERIFY(Input::show(&window));
    const auto *button = edit->findChild<QToolButton *>();
    QVERIFY(button);
    QVERIFY(button->geometry().center().x() > edit->width() / 2);
}

void tst_RibbonGalleryPopup::theCloseButtonHasItsIcon()
{
    const RibbonGalleryPopup popup(nullptr);
    const QPushButton *button = Parts(&popup).closeButton();
    QCOMPARE(picture(button->icon(), 12), picture(QIcon(u":/res/close.svg"_s), 12));
    QCOMPARE(button->iconSize(), QSize(12, 12));
}

void tst_RibbonGalleryPopup::theLineWithoutMatchHasItsLook()
{
    const RibbonGalleryPopup popup(nullptr);
    const QLabel *label = Parts(&popup).noMatchLabel();
    QCOMPARE(label->text(), u"No items match your search criteria."_s);
    QCOMPARE(label->alignment(), Qt::AlignHCenter | Qt::AlignTop | Qt::AlignVCenter);
    QCOMPARE(int(label->alignment()), 164);
    QCOMPARE(label->minimumHeight(), 30);
    QCOMPARE(label->maximumHeight(), 30);
    QVERIFY(label->isHidden());
}

void tst_RibbonGalleryPopup::theFavouritesStandFirstAndFixed()
{
    const RibbonGalleryPopup popup(nullptr);
    const RibbonGalleryGroup *favourites = Parts(&popup).favourites();
    QCOMPARE(favourites->title(), u"collected"_s);
    QCOMPARE(favourites->count(), 0);
    QVERIFY(!iconLabel(favourites)->isHidden());
    QCOMPARE(iconLabel(favourites)->pixmap().toImage(), picture(QIcon(u":/res/collected.svg"_s)));
    QVERIFY(toTop(favourites)->isHidden());
    QVERIFY(toBottom(favourites)->isHidden());
    QCOMPARE(popup.indexOfGroup(u"collected"_s), -1);
}

void tst_RibbonGalleryPopup::addedGroupsStandInOrder()
{
    RibbonGalleryPopup popup(nullptr);
    const Parts parts(&popup);
    const RibbonGalleryGroup *favourites = parts.favourites();
    const QLabel *label = parts.noMatchLabel();
    const QStringList names{u"one"_s, u"two"_s, u"three"_s};
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(popup.addGroup(names.at(i), QIcon()), i);
        QCOMPARE(parts.titles(), names.first(i + 1));
        QCOMPARE(parts.favourites(), favourites);
        QCOMPARE(parts.noMatchLabel(), label);
        QVERIFY(parts.content()->isAncestorOf(parts.group(i)));
    }
}

void tst_RibbonGalleryPopup::anAddedGroupHasItsIcon()
{
    RibbonGalleryPopup popup(nullptr);
    const QIcon icon(u":/res/search.svg"_s);
    popup.addGroup(u"one"_s, icon);
    popup.addGroup(u"two"_s, QIcon());
    const Parts parts(&popup);
    QCOMPARE(iconLabel(parts.group(0))->pixmap().toImage(), picture(icon));
    QVERIFY(!iconLabel(parts.group(0))->isHidden());
    QVERIFY(iconLabel(parts.group(1))->isHidden());
}

void tst_RibbonGalleryPopup::aNameMayOccurTwice()
{
    RibbonGalleryPopup popup(nullptr);
    QCOMPARE(popup.addGroup(u"same"_s, QIcon()), 0);
    QCOMPARE(popup.addGroup(u"same"_s, QIcon()), 1);
    QCOMPARE(popup.addGroup(u"collected"_s, QIcon()), 2);
    QCOMPARE(popup.indexOfGroup(u"same"_s), 0);
    QCOMPARE(popup.indexOfGroup(u"collected"_s), 2);
}

void tst_RibbonGalleryPopup::addedItemsHaveTheirIndex()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 0);
    window.addGroup(u"two"_s, 0);
    QAction action(u"a"_s);
    QCOMPARE(window.addItem(0, &action), 0);
    window.iconSize = QSize(32, 32);
    window.tileSize = QSize(70, 50);
    QCOMPARE(window.addItem(1, &action), 0);
    QCOMPARE(window.addItem(1, &action), 1);
    QCOMPARE(window.parts().tile(0, 0)->iconSize(), IconSize);
    QCOMPARE(window.parts().tile(0, 0)->maximumSize(), TileSize);
    QCOMPARE(window.parts().tile(1, 1)->iconSize(), QSize(32, 32));
    QCOMPARE(window.parts().tile(1, 1)->maximumSize(), QSize(70, 50));
    QCOMPARE(window.parts().tile(1, 1)->defaultAction(), &action);
}

void tst_RibbonGalleryPopup::badItemsAreRefused_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<bool>("hasAction");

    QTest::newRow("before the groups") << -1 << true;
    QTest::newRow("behind the groups") << 3 << true;
    QTest::newRow("far before") << std::numeric_limits<int>::min() << true;
    QTest::newRow("far behind") << std::numeric_limits<int>::max() << true;
    QTest::newRow("no action") << 0 << false;
    QTest::newRow("nothing right") << -1 << false;
}

void tst_RibbonGalleryPopup::badItemsAreRefused()
{
    QFETCH(const int, group);
    QFETCH(const bool, hasAction);
    FilledWindow window;
    QAction action(u"z"_s);
    QCOMPARE(window.addItem(group, hasAction ? &action : nullptr), -1);
    QCOMPARE(texts(window.popup()->displayedActions()),
             QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}));
    // The sizes are not looked at then.
    QCOMPARE(window.popup()->addItem(group, hasAction ? &action : nullptr, nullptr, nullptr, true),
             -1);
}

void tst_RibbonGalleryPopup::indexOfGroupIsExact_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");

    QTest::newRow("first") << u"Shapes"_s << 0;
    QTest::newRow("last") << u"shapes"_s << 2;
    QTest::newRow("without a name") << QString() << 1;
    QTest::newRow("other case") << u"SHAPES"_s << -1;
    QTest::newRow("part") << u"Shape"_s << -1;
    QTest::newRow("with a space") << u"Shapes "_s << -1;
    QTest::newRow("favourites") << u"collected"_s << -1;
}

void tst_RibbonGalleryPopup::indexOfGroupIsExact()
{
    QFETCH(const QString, name);
    QFETCH(const int, index);
    RibbonGalleryPopup popup(nullptr);
    QCOMPARE(popup.indexOfGroup(name), -1);
    for (const QString &title : {u"Shapes"_s, QString(), u"shapes"_s})
        popup.addGroup(title, QIcon());
    QCOMPARE(popup.indexOfGroup(name), index);
}

void tst_RibbonGalleryPopup::addedGroupsAreShownInAnOpenPopup()
{
    PopupWindow window;
    QVERIFY(Input::show(&window));
    window.addGroup(u"one"_s, {u"a"_s});
    QTRY_VERIFY(window.parts().tile(0, 0)->isVisible());
    window.popup()->updateHeight();
    QCOMPARE(window.parts().content()->height(), SearchRow + FirstRow);
}

void tst_RibbonGalleryPopup::displayedActionsStopAtTheDisplayCount_data()
{
    QTest::addColumn<int>("displayCount");
    QTest::addColumn<QString>("shown");

    QTest::newRow("none") << 0 << QString();
    QTest::newRow("negative") << -3 << QString();
    QTest::newRow("one") << 1 << u"a"_s;
    QTest::newRow("up to the end of a group") << 2 << u"ab"_s;
    QTest::newRow("into the next group") << 3 << u"abc"_s;
    QTest::newRow("all but one") << 4 << u"abcd"_s;
    QTest::newRow("all") << 5 << u"abcde"_s;
    QTest::newRow("more than there are") << 6 << u"abcde"_s;
    QTest::newRow("far more") << std::numeric_limits<int>::max() << u"abcde"_s;
}

void tst_RibbonGalleryPopup::displayedActionsStopAtTheDisplayCount()
{
    QFETCH(const int, displayCount);
    QFETCH(const QString, shown);
    FilledWindow window;
    window.popup()->setDisplayCount(displayCount);
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), shown);
}

void tst_RibbonGalleryPopup::displayedActionsAreFavouritesFirst()
{
    FilledWindow window;
    RibbonGalleryPopup *popup = window.popup();
    const auto displayed = [popup] { return texts(popup->displayedActions()).join(QString()); };
    window.parts().tile(2, 0)->setCollected(true);
    QCOMPARE(displayed(), u"dabce"_s);
    window.parts().tile(0, 1)->setCollected(true);
    QCOMPARE(displayed(), u"dbace"_s);
    popup->setDisplayCount(3);
    QCOMPARE(displayed(), u"dba"_s);
    popup->setDisplayCount(2);
    QCOMPARE(displayed(), u"db"_s);
    popup->setDisplayCount(1);
    QCOMPARE(displayed(), u"d"_s);
    popup->setDisplayCount(6);
    window.parts().tile(2, 0)->setCollected(false);
    QCOMPARE(displayed(), u"bacde"_s);
}

void tst_RibbonGalleryPopup::displayedActionsFollowTheOrderOfGroups()
{
    FilledWindow window;
    Q_EMIT window.parts().group(2)->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"deabc"_s);
}

void tst_RibbonGalleryPopup::displayedActionsIgnoreTheSearch()
{
    FilledWindow window;
    window.parts().tile(1, 0)->setCollected(true);
    QVERIFY(Input::show(&window));
    window.parts().searchEdit()->setText(u"e"_s);
    QVERIFY(!window.parts().group(0)->isVisible());
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"cabde"_s);
}

void tst_RibbonGalleryPopup::displayedActionsHoldAnActionAsOftenAsItWasAdded()
{
    FilledWindow window;
    window.addItem(2, window.parts().tile(0, 0)->defaultAction());
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"abcdea"_s);
    window.parts().tile(0, 0)->setCollected(true);
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"abcdea"_s);
    // A tile that cannot be a favourite is not taken either once it is marked.
    QAction plain(u"p"_s);
    window.popup()->setDisplayCount(20);
    window.addItem(0, &plain, false);
    window.parts().tile(0, 2)->setCollected(true);
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"abcdea"_s);
}

void tst_RibbonGalleryPopup::setItemCollectedFindsItsTile()
{
    FilledWindow window;
    QVERIFY(window.popup()->setItemCollected(2, 1, true));
    QVERIFY(window.parts().tile(2, 1)->isCollected());
    QCOMPARE(texts(window.parts().favourites()), QStringList{u"e"_s});
    QVERIFY(window.popup()->setItemCollected(2, 1, false));
    QVERIFY(!window.parts().tile(2, 1)->isCollected());
    QCOMPARE(window.parts().favourites()->count(), 0);
    // The popup's own switch is not asked.
    window.popup()->setCollectEnabled(false);
    QVERIFY(window.popup()->setItemCollected(2, 1, true));
}

void tst_RibbonGalleryPopup::setItemCollectedRefusesBadIndexes_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("item");

    QTest::newRow("group before the first") << -1 << 0;
    QTest::newRow("group behind the last") << 3 << 0;
    QTest::newRow("item before the first") << 0 << -1;
    QTest::newRow("item behind the last") << 1 << 1;
    QTest::newRow("both") << std::numeric_limits<int>::max() << std::numeric_limits<int>::min();
}

void tst_RibbonGalleryPopup::setItemCollectedRefusesBadIndexes()
{
    QFETCH(const int, group);
    QFETCH(const int, item);
    FilledWindow window;
    QVERIFY(!window.popup()->setItemCollected(group, item, true));
    QVERIFY(!window.popup()->setItemCollected(group, item, false));
    QCOMPARE(window.parts().favourites()->count(), 0);
}

void tst_RibbonGalleryPopup::thereIsNoStateToSave()
{
    FilledWindow window;
    RibbonGalleryPopup *popup = window.popup();
    window.parts().tile(0, 0)->setCollected(true);
    for (const int count : {6, 1, -1}) {
        popup->setDisplayCount(count);
        QVERIFY(popup->saveState().isEmpty());
    }
    popup->setDisplayCount(0);
    QCOMPARE(popup->saveState(), QByteArray("AAAA"));
    popup->setDisplayCount(6);
    for (const QByteArray &state : {QByteArray(), QByteArray("AAAA"), QByteArray(99, '\0')})
        RibbonGalleryPopup::restoreState(state);
    QCOMPARE(texts(window.parts().favourites()), QStringList{u"a"_s});
    QCOMPARE(window.parts().titles(), QStringList({u"one"_s, u"two"_s, u"three"_s}));
    QCOMPARE(texts(popup->displayedActions()).join(QString()), u"abcde"_s);
    QVERIFY(popup->saveState().isEmpty());
}

void tst_RibbonGalleryPopup::deletedActionsLeaveTheirGroups()
{
    FilledWindow window;
    QVERIFY(Input::show(&window));
    QAction *b = window.parts().tile(0, 1)->defaultAction();
    window.addItem(1, b);
    window.addItem(0, u"z"_s);
    delete b;
    QCOMPARE(texts(window.parts().group(0)), QStringList({u"a"_s, u"z"_s}));
    QCOMPARE(texts(window.parts().group(1)), QStringList{u"c"_s});
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"azcde"_s);
    // What follows has moved up.
    QVERIFY(window.popup()->setItemCollected(0, 1, true));
    QCOMPARE(texts(window.parts().favourites()), QStringList{u"z"_s});
    delete window.parts().tile(1, 0)->defaultAction();
    QCOMPARE(window.parts().group(1)->count(), 0);
    QVERIFY(!window.grab().isNull());
}

QTEST_MAIN(tst_RibbonGalleryPopup)

#include "tst_ribbongallerypopup.moc"
