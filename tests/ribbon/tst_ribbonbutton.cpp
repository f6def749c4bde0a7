// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ribbon/RibbonButton.h"
#include "ribbon/RibbonButton_p.h"
#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QAction>
#include <QEnterEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QResizeEvent>
#include <QSignalSpy>
#include <QToolTip>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr Qt::ToolButtonStyle Large = Qt::ToolButtonTextUnderIcon;
constexpr Qt::ToolButtonStyle Small = Qt::ToolButtonTextBesideIcon;
constexpr Qt::ToolButtonStyle IconOnly = Qt::ToolButtonIconOnly;

/// Gives the record of a button to this test alone: an explicit instantiation may name a member
/// even where it is private.
template <auto Member>
struct RecordKey
{
    friend const RibbonButtonPrivate &recordOf(const RibbonButton &button)
    {
        return *(button.*Member);
    }
};
const RibbonButtonPrivate &recordOf(const RibbonButton &button);
template struct RecordKey<&RibbonButton::d_ptr>;

/// Writes down the events of some types that an object gets.
class EventLog : public QObject
{
    Q_OBJECT

public:
    EventLog(QObject *watched, const QList<QEvent::Type> &wanted) : m_wanted(wanted)
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (m_wanted.contains(event->type()))
            types.append(event->type());
        return false;
    }

    QList<QEvent::Type> types;

private:
    const QList<QEvent::Type> m_wanted;
};

/// A button in a window that is larger, so that the pointer can go beside it.
struct ButtonWindow
{
    ButtonWindow(QAction *action, Qt::ToolButtonStyle style,
                 QToolButton::ToolButtonPopupMode mode = QToolButton::DelayedPopup,
                 Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        window.setLayoutDirection(direction);
        auto *layout = new QHBoxLayout(&window);
        layout->setContentsMargins(20, 20, 20, 20);
        button->setToolButtonStyle(style);
        button->setAction(action);
        button->setPopupMode(mode);
        layout->addWidget(button, 0, Qt::AlignTop);
        window.resize(300, 200);
    }

    [[nodiscard]] bool show() { return Input::show(&window); }
    const RibbonButtonPrivate &record() const { return recordOf(*button); }

    /// A point of the button that lies \a x px from its leading edge and \a y px from the top.
    QPoint at(int x, int y) const
    {
        return {window.isRightToLeft() ? button->width() - 1 - x : x, y};
    }

    /// A point of the button's menu part.
    QPoint menuPoint() const
    {
        return button->toolButtonStyle() == Large ? at(5, 50) : at(button->width() - 5, 11);
    }

    /// Where the pointer is beside the button, in the button's coordinates.
    QPoint beside() const { return {button->width() / 2, 120}; }

    QWidget window;
    QPointer<RibbonButton> button = new RibbonButton(&window);
};

/// A menu with one entry, and its action as the toolkit makes it.
struct MenuAction
{
    MenuAction() { entry = menu->addAction(u"Entry"_s); }
    ~MenuAction() { delete menu; }
    Q_DISABLE_COPY_MOVE(MenuAction)

    QAction *action() const { return menu->menuAction(); }

    QPointer<QMenu> menu = new QMenu(u"Styles"_s);
    QAction *entry = nullptr;
};

/// The size of a text in one line.
QSize inOneLine(const QFontMetrics &metrics, const QString &text)
{
    return metrics.size(Qt::TextSingleLine, text);
}

void addMenuButtons()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("large, left to right") << Large << Qt::LeftToRight;
    QTest::newRow("large, right to left") << Large << Qt::RightToLeft;
    QTest::newRow("small, left to right") << Small << Qt::LeftToRight;
    QTest::newRow("small, right to left") << Small << Qt::RightToLeft;
}

} // namespace

class tst_RibbonButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAToolButtonInTheNamespace();
    void itsRecordStartsAsPromised();
    void itsPensAndBrushesAreAsPromised();
    void belongsToItsParent();
    void followsThePointerWithoutAPressedButton();

    void takesEverythingFromItsAction();
    void followsChangesOfItsAction();
    void followsTheVisibilityOfItsAction();
    void isHiddenForAnActionHiddenFromTheStart();
    void staysHiddenInAHiddenWindow();
    void showsTheToolTipOfItsAction();

    void isAsLargeAsItsText_data();
    void isAsLargeAsItsText();
    void largeButtonsWithTwoLinesAreAsWideAsTheWiderOne();
    void isNeverNarrowerThan36Pixels();
    void theSizeIsFixedOnResizeOnly();
    void theSizeFollowsTheNextResize();
    void isMeasuredAnewForAnotherFont();
    void showsTextWithoutMnemonicMarks_data();
    void showsTextWithoutMnemonicMarks();
    void theMenuPartFollowsTheSize_data();
    void theMenuPartFollowsTheSize();

    void aClickTriggersTheAction_data();
    void aClickTriggersTheAction();
    void aPressMarksTheButtonDownAndHovered();
    void aPressNeverReachesTheBaseClass();
    void aPressReleasedElsewhereTriggersNothing();
    void aPressThatComesBackTriggers();
    void aDoubleClickTriggersTwice();
    void otherButtonsGoToTheParent_data();
    void otherButtonsGoToTheParent();
    void aDisabledButtonTakesNoPress();
    void aClickTogglesACheckableAction();
    void aButtonWithoutActionTakesClicks();

    void isHoveredWhileThePointerIsOverIt();
    void knowsWhenThePointerIsOverTheMenuPart_data();
    void knowsWhenThePointerIsOverTheMenuPart();
    void theMenuPartEndsWhereItsRectangleEnds_data();
    void theMenuPartEndsWhereItsRectangleEnds();
    void isRepaintedOnlyWhenThePartChanges();

    void aDelayedMenuNeverOpens_data();
    void aDelayedMenuNeverOpens();
    void aPressOnTheMainPartOpensNothing_data();
    void aPressOnTheMainPartOpensNothing();
    void aPressOnTheMenuPartOpensTheMenu_data();
    void aPressOnTheMenuPartOpensTheMenu();
    void aPressAnywhereOpensAnInstantMenu_data();
    void aPressAnywhereOpensAnInstantMenu();
    void aSplitButtonWithoutAMenuIsPlain();
    void thePartIsKnownFromThePressAlone();

    void theMenuOpensOnePixelHigher_data();
    void theMenuOpensOnePixelHigher();
    void theMenuOpensAtTheSamePlaceAgain();
    void theMenusShowEventIsConsumed();
    void aMenuOpenedElsewhereIsMovedToo();
    void otherEventsOfTheMenuPass();
    void twoButtonsOfOneMenuMoveItOnce();
    void anEntryIsTriggeredOnce();
    void aClosedMenuLeavesTheButtonUnhovered_data();
    void aClosedMenuLeavesTheButtonUnhovered();
    void theKeyboardClosesTheMenu();
    void aSubmenuWorks();

    void theActionMayBeDeletedMeanwhile();
    void theMenuMayBeDeletedWhileItIsOpen();
    void theButtonMayBeDeletedFromItsMenu();
    void theActionMayBeDeletedFromItsMenu();
    void theMenuMayBeReplaced();
    void aMenuGivenLaterWorks();
    void theMenuOutlivesTheButton();
};

void tst_RibbonButton::isAToolButtonInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonButton::staticMetaObject.className()),
             "VornFrame::RibbonButton"_L1);
    QCOMPARE(RibbonButton::staticMetaObject.superClass(), &QToolButton::staticMetaObject);
    QCOMPARE(RibbonButton::staticMetaObject.methodCount(),
             QToolButton::staticMetaObject.methodCount());
}

void tst_RibbonButton::itsRecordStartsAsPromised()
{
    RibbonButton button(nullptr);
    const RibbonButtonPrivate &d = recordOf(button);
    QCOMPARE(d.hovered, false);
    QCOMPARE(d.overMenuPart, false);
    QCOMPARE(d.menuPressed, false);
    QCOMPARE(d.menuRect, QRect());
    QCOMPARE(d.textWidth, 0);
    QCOMPARE(d.largeHeight, 72);
    QCOMPARE(d.baseSize, QSize(22, 22));
    QCOMPARE(d.radius, 2);
    QCOMPARE(d.largeIconSize, QSize(24, 24));
    QCOMPARE(d.smallIconSize, QSize(16, 16));
    QCOMPARE(d.largeTopMargin, 7);
    QCOMPARE(d.largeMenuTopMargin, 4);
    QCOMPARE(d.largeTextSpacing, 6);
    QCOMPARE(d.largeArrowBottomMargin, 8);
    QCOMPARE(d.largeIconMargin, 6);
    QCOMPARE(d.smallLeftMargin, 3);
    QCOMPARE(d.smallTextSpacing, 5);
    QCOMPARE(d.smallRightMargin, 10);
    QCOMPARE(d.largeTextMargin, 5);
    QCOMPARE(d.arrowSize, QSize(8, 4));
    QCOMPARE(d.arrowRightMargin, 6);
    QCOMPARE(d.menuRightPart, 8);
    QCOMPARE(d.menuGap, 2);
    QCOMPARE(d.q_ptr, &button);
}

void tst_RibbonButton::itsPensAndBrushesAreAsPromised()
{
    const RibbonButton button(nullptr);
    const RibbonButtonPrivate &d = recordOf(button);
    const auto pen = [](const QColor &color, qreal width) {
        return QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    };
    QCOMPARE(d.textPen, pen(QColor(0, 0, 0), 0));
    QVERIFY(d.textPen.isCosmetic());
    QCOMPARE(d.framePen, pen(QColor(125, 125, 125), 1));
    QCOMPARE(d.lightPen, pen(QColor(191, 191, 191), 1));
    QCOMPARE(d.accentPen, pen(QColor(38, 140, 221), 1));
    QCOMPARE(d.normalBrush, QBrush(QColor(255, 255, 255)));
    QCOMPARE(d.surfaceBrush, QBrush(QColor(245, 245, 245)));
    QCOMPARE(d.pressedBrush, QBrush(QColor(217, 217, 217)));
}

void tst_RibbonButton::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonButton> button = new RibbonButton(parent.get());
    QCOMPARE(button->parent(), parent.get());
    parent.reset();
    QVERIFY(!button);
}

void tst_RibbonButton::followsThePointerWithoutAPressedButton()
{
    QVERIFY(RibbonButton(nullptr).hasMouseTracking());
}

void tst_RibbonButton::takesEverythingFromItsAction()
{
    RibbonButton button(nullptr);
    QMenu menu;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    QAction action(QIcon(pixmap), u"Bold"_s);
    action.setToolTip(u"Make it bold"_s);
    action.setStatusTip(u"Makes the selected text bold"_s);
    action.setCheckable(true);
    action.setChecked(true);
    action.setEnabled(false);
    action.setMenu(&menu);

    button.setAction(&action);

    QCOMPARE(button.defaultAction(), &action);
    QCOMPARE(button.text(), u"Bold"_s);
    QCOMPARE(button.icon().cacheKey(), action.icon().cacheKey());
    QCOMPARE(button.toolTip(), u"Make it bold"_s);
    QCOMPARE(button.statusTip(), u"Makes the selected text bold"_s);
    QVERIFY(button.isCheckable());
    QVERIFY(button.isChecked());
    QVERIFY(!button.isEnabled());
    QCOMPARE(recordOf(button).menu(), &menu);
}

void tst_RibbonButton::followsChangesOfItsAction()
{
    RibbonButton button(nullptr);
    QAction action(u"Bold"_s);
    action.setCheckable(true);
    button.setAction(&action);
    action.setText(u"Very bold"_s);
    action.setToolTip(u"Make it very bold"_s);
    action.setChecked(true);
    action.setEnabled(false);
    QCOMPARE(button.text(), u"Very bold"_s);
    QCOMPARE(button.toolTip(), u"Make it very bold"_s);
    QVERIFY(button.isChecked());
    QVERIFY(!button.isEnabled());
    action.setEnabled(true);
    QVERIFY(button.isEnabled());
}

void tst_RibbonButton::followsTheVisibilityOfItsAction()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    QVERIFY(shown.show());
    QVERIFY(shown.button->isVisible());
    action.setVisible(false);
    QVERIFY(!shown.button->isVisible());
    action.setVisible(true);
    QVERIFY(shown.button->isVisible());
}

void tst_RibbonButton::isHiddenForAnActionHiddenFromTheStart()
{
    QAction action(u"Bold"_s);
    action.setVisible(false);
    ButtonWindow shown(&action, Large);
    QVERIFY(shown.show());
    QVERIFY(!shown.button->isVisible());
    action.setVisible(true);
    QVERIFY(shown.button->isVisible());
    QTRY_COMPARE(shown.button->height(), 72);
}

void tst_RibbonButton::staysHiddenInAHiddenWindow()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    action.setVisible(false);
    action.setVisible(true);
    QVERIFY(!shown.button->isVisible());
    QVERIFY(!shown.button->isWindow());
    QVERIFY(shown.show());
    QVERIFY(shown.button->isVisible());
}

void tst_RibbonButton::showsTheToolTipOfItsAction()
{
    QAction action(u"Bold"_s);
    action.setToolTip(u"Make it bold"_s);
    ButtonWindow shown(&action, Large);
    QVERIFY(shown.show());
    const QPoint point(5, 5);
    QHelpEvent help(QEvent::ToolTip, point, shown.button->mapToGlobal(point));
    QCoreApplication::sendEvent(shown.button, &help);
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), u"Make it bold"_s);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_RibbonButton::isAsLargeAsItsText_data()
{
    using Mode = QToolButton::ToolButtonPopupMode;
    constexpr Mode Delayed = QToolButton::DelayedPopup;
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<bool>("hasMenu");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("aroundText"); // what is added to the text's width
    QTest::addColumn<QSize>("minimum");

    const QList<std::pair<QByteArray, QString>> texts{
        {"no text", QString()},
        {"a letter", u"A"_s},
        {"a word", u"Options"_s},
        {"several words", u"All that can be done"_s},
        {"kerned letters", u"AVAVAV To Te"_s},
        {"two lines", u"Paste as\nplain text"_s},
        {"two lines, the first one longer", u"Paste as plain\ntext"_s},
        {"two lines, the last one empty", u"Paste as plain\n"_s},
        {"three lines", u"One of\nTwo\nThree"_s},
        {"another script", u"\u7c98\u8d34"_s},
    };
    const QList<std::pair<QByteArray, Mode>> modes{
        {"delayed", Delayed},
        {"split", QToolButton::MenuButtonPopup},
        {"instant", QToolButton::InstantPopup},
    };
    for (const auto &[textName, text] : texts) {
        for (const auto &[modeName, mode] : modes) {
            for (const bool hasMenu : {false, true}) {
                const QByteArray name = textName + ", " + modeName + (hasMenu ? ", menu" : "");
                const int aroundSmall = mode == Delayed ? 34 : 46;
                QTest::addRow("large, %s", name.constData())
                    << Large << mode << hasMenu << text << 10 << QSize(36, 72);
                QTest::addRow("small, %s", name.constData())
                    << Small << mode << hasMenu << text << aroundSmall << QSize(0, 22);
            }
        }
    }
    for (const auto &[name, style] :
         {std::pair("icon only", IconOnly), std::pair("text only", Qt::ToolButtonTextOnly),
          std::pair("style's own form", Qt::ToolButtonFollowStyle)}) {
        QTest::addRow("%s", name) << style << Delayed << false << u"Options"_s << -1000
                                  << QSize(22, 22);
        QTest::addRow("%s, menu", name) << style << QToolButton::InstantPopup << true
                                        << u"All that can be done"_s << -1000 << QSize(22, 22);
    }
}

void tst_RibbonButton::isAsLargeAsItsText()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QFETCH(const bool, hasMenu);
    QFETCH(const QString, text);
    QFETCH(const int, aroundText);
    QFETCH(const QSize, minimum);
    QMenu menu;
    QAction action(text);
    action.setMenu(hasMenu ? &menu : nullptr);
    ButtonWindow shown(&action, style, mode);
    QVERIFY(shown.show());

    const QFontMetrics metrics = shown.button->fontMetrics();
    const QStringList lines = text.split(u'\n');
    int textWidth = metrics.horizontalAdvance(text);
    if (style == Large && lines.size() == 1)
        textWidth = inOneLine(metrics, text).width();
    else if (style == Large && lines.size() == 2)
        textWidth = qMax(inOneLine(metrics, lines.at(0)).width(),
                         inOneLine(metrics, lines.at(1)).width());
    else if (style == Large)
        textWidth = metrics.size(Qt::TextWordWrap, text).width();
    const QSize expected(qMax(minimum.width(), textWidth + aroundText), minimum.height());
    QCOMPARE(shown.button->size(), expected);
    QCOMPARE(shown.button->minimumSize(), expected);
    QCOMPARE(shown.button->maximumSize(), expected);
    QCOMPARE(shown.button->sizeHint(), expected);
    QCOMPARE(shown.record().textWidth, textWidth);
}

void tst_RibbonButton::largeButtonsWithTwoLinesAreAsWideAsTheWiderOne()
{
    QAction action(u"Everything on\none page"_s);
    ButtonWindow shown(&action, Large);
    QVERIFY(shown.show());
    const int wider = inOneLine(shown.button->fontMetrics(), u"Everything on"_s).width();
    const int wrapped = shown.button->fontMetrics().size(Qt::TextWordWrap, action.text()).width();
    QVERIFY(wider > wrapped);
    QCOMPARE(shown.button->size(), QSize(wider + 10, 72));
}

void tst_RibbonButton::isNeverNarrowerThan36Pixels()
{
    QAction action(u"I"_s);
    ButtonWindow shown(&action, Large);
    QVERIFY(shown.show());
    QVERIFY(shown.button->fontMetrics().horizontalAdvance(u"I"_s) + 10 < 36);
    QCOMPARE(shown.button->size(), QSize(36, 72));
    action.setText(u"I\nI"_s);
    QResizeEvent resize(shown.button->size(), shown.button->size());
    QCoreApplication::sendEvent(shown.button, &resize);
    QCOMPARE(shown.button->size(), QSize(36, 72));
}

void tst_RibbonButton::theSizeIsFixedOnResizeOnly()
{
    RibbonButton button(nullptr);
    button.setToolButtonStyle(Large);
    QAction action(u"Options"_s);
    button.setAction(&action);
    QCOMPARE(button.minimumSize(), QSize(0, 0));
    QCOMPARE(button.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QResizeEvent resize(QSize(1, 1), QSize());
    QCoreApplication::sendEvent(&button, &resize);
    QCOMPARE(button.minimumSize(), button.sizeHint());
    QCOMPARE(button.maximumSize(), button.sizeHint());
    QCOMPARE(button.sizeHint().height(), 72);
}

void tst_RibbonButton::theSizeFollowsTheNextResize()
{
    QAction action(u"Options"_s);
    ButtonWindow shown(&action, Small);
    QVERIFY(shown.show());
    const QSize before = shown.button->size();
    action.setText(u"All that can be done"_s);
    QCoreApplication::processEvents();
    QCOMPARE(shown.button->size(), before);

    QResizeEvent resize(before, before);
    QCoreApplication::sendEvent(shown.button, &resize);
    const int textWidth = shown.button->fontMetrics().horizontalAdvance(action.text());
    QCOMPARE(shown.button->size(), QSize(textWidth + 34, 22));
    QCOMPARE(shown.record().menuRect.x(), 26 + textWidth);
}

void tst_RibbonButton::isMeasuredAnewForAnotherFont()
{
    QAction action(u"Options"_s);
    ButtonWindow shown(&action, Small);
    QVERIFY(shown.show());
    QFont large = shown.button->font();
    large.setPixelSize(20);
    shown.button->setFont(large);
    QResizeEvent resize(shown.button->size(), shown.button->size());
    QCoreApplication::sendEvent(shown.button, &resize);
    const int textWidth = QFontMetrics(large).horizontalAdvance(u"Options"_s);
    QCOMPARE(shown.button->size(), QSize(textWidth + 34, 22));
}

void tst_RibbonButton::showsTextWithoutMnemonicMarks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("seen");

    QTest::newRow("no mark") << u"Open"_s << u"Open"_s;
    QTest::newRow("mark at the start") << u"&Open"_s << u"Open"_s;
    QTest::newRow("mark inside") << u"Save &as"_s << u"Save as"_s;
    QTest::newRow("two marks") << u"&Save &as"_s << u"Save as"_s;
    QTest::newRow("an ampersand that is meant") << u"Cut && paste"_s << u"Cut & paste"_s;
    QTest::newRow("both") << u"&Cut && paste"_s << u"Cut & paste"_s;
    QTest::newRow("three in a row") << u"Cut &&&paste"_s << u"Cut &paste"_s;
    QTest::newRow("four in a row") << u"&&&&"_s << u"&&"_s;
    QTest::newRow("one at the end") << u"Cut &"_s << u"Cut &"_s;
    QTest::newRow("nothing else") << u"&"_s << u"&"_s;
}

void tst_RibbonButton::showsTextWithoutMnemonicMarks()
{
    QFETCH(const QString, text);
    QFETCH(const QString, seen);
    QAction action(text);
    for (const Qt::ToolButtonStyle style : {Large, Small}) {
        ButtonWindow shown(&action, style);
        QVERIFY(shown.show());
        const QFontMetrics metrics = shown.button->fontMetrics();
        const int inRow = metrics.horizontalAdvance(seen);
        QCOMPARE(shown.record().text(), seen);
        QCOMPARE(shown.record().textWidth,
                 style == Large ? inOneLine(metrics, seen).width() : inRow);
    }
}

void tst_RibbonButton::theMenuPartFollowsTheSize_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<bool>("hasMenu");

    for (const bool hasMenu : {false, true}) {
        const char *menu = hasMenu ? ", menu" : "";
        QTest::addRow("large, delayed%s", menu) << Large << QToolButton::DelayedPopup << hasMenu;
        QTest::addRow("large, split%s", menu) << Large << QToolButton::MenuButtonPopup << hasMenu;
        QTest::addRow("large, instant%s", menu) << Large << QToolButton::InstantPopup << hasMenu;
        QTest::addRow("small, delayed%s", menu) << Small << QToolButton::DelayedPopup << hasMenu;
        QTest::addRow("small, split%s", menu) << Small << QToolButton::MenuButtonPopup << hasMenu;
        QTest::addRow("small, instant%s", menu) << Small << QToolButton::InstantPopup << hasMenu;
        QTest::addRow("icon only%s", menu) << IconOnly << QToolButton::MenuButtonPopup << hasMenu;
    }
}

void tst_RibbonButton::theMenuPartFollowsTheSize()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    QFETCH(const bool, hasMenu);
    QMenu menu;
    QAction action(u"Options"_s);
    action.setMenu(hasMenu ? &menu : nullptr);
    ButtonWindow shown(&action, style, mode);
    QVERIFY(shown.show());
    const QFontMetrics metrics = shown.button->fontMetrics();
    QRect expected;
    if (style == Large)
        expected = QRect(0, 35, qMax(36, inOneLine(metrics, u"Options"_s).width() + 10), 37);
    else if (style == Small)
        expected = QRect(26 + metrics.horizontalAdvance(u"Options"_s), 0, 20, 22);
    QCOMPARE(shown.record().menuRect, expected);
    QCOMPARE(shown.record().isSplit(), hasMenu && mode != QToolButton::InstantPopup);
}

void tst_RibbonButton::aClickTriggersTheAction_data()
{
    QTest::addColumn<Qt::ToolButtonStyle>("style");

    QTest::newRow("large") << Large;
    QTest::newRow("small") << Small;
    QTest::newRow("icon only") << IconOnly;
}

void tst_RibbonButton::aClickTriggersTheAction()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, style);
    const QSignalSpy triggered(&action, &QAction::triggered);
    const QSignalSpy clicked(shown.button, &QToolButton::clicked);
    QVERIFY(shown.show());
    Input::press(shown.button);
    QCOMPARE(triggered.size(), 0);
    Input::release(shown.button);
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(!shown.button->isDown());
    QVERIFY(!shown.record().menuPressed);
}

void tst_RibbonButton::aPressMarksTheButtonDownAndHovered()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    QVERIFY(shown.show());
    QVERIFY(!shown.record().hovered);
    // Straight to the button, without the pointer coming in before.
    const QPoint point(5, 5);
    QMouseEvent press(QEvent::MouseButtonPress, point, shown.button->mapToGlobal(point),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(shown.button, &press);
    QVERIFY(press.isAccepted());
    QVERIFY(shown.record().hovered);
    QVERIFY(shown.button->isDown());
}

void tst_RibbonButton::aPressNeverReachesTheBaseClass()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    const QSignalSpy pressed(shown.button, &QToolButton::pressed);
    QVERIFY(shown.show());
    Input::click(shown.button);
    QCOMPARE(pressed.size(), 0);
}

void tst_RibbonButton::aPressReleasedElsewhereTriggersNothing()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(shown.show());
    Input::drag(shown.button, QPoint(5, 5), shown.beside());
    QCOMPARE(triggered.size(), 0);
    QVERIFY(!shown.button->isDown());
    Input::click(shown.button);
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonButton::aPressThatComesBackTriggers()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(shown.show());
    Input::press(shown.button);
    Input::move(shown.button, shown.beside());
    Input::move(shown.button);
    Input::release(shown.button);
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonButton::aDoubleClickTriggersTwice()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(shown.show());
    Input::doubleClick(shown.button);
    QCOMPARE(triggered.size(), 2);
}

void tst_RibbonButton::otherButtonsGoToTheParent_data()
{
    QTest::addColumn<Qt::MouseButton>("mouseButton");

    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_RibbonButton::otherButtonsGoToTheParent()
{
    QFETCH(const Qt::MouseButton, mouseButton);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    shown.window.setContextMenuPolicy(Qt::PreventContextMenu);
    const QSignalSpy triggered(menu.action(), &QAction::triggered);
    EventLog ofWindow(&shown.window, {QEvent::MouseButtonPress, QEvent::MouseButtonRelease});
    QVERIFY(shown.show());
    const PopupBan ban;
    Input::press(shown.button, {}, mouseButton);
    QVERIFY(!shown.button->isDown());
    Input::release(shown.button, {}, mouseButton);
    QCOMPARE(triggered.size(), 0);
    QCOMPARE(ofWindow.types,
             QList<QEvent::Type>({QEvent::MouseButtonPress, QEvent::MouseButtonRelease}));
}

void tst_RibbonButton::aDisabledButtonTakesNoPress()
{
    const MenuAction menu;
    menu.action()->setEnabled(false);
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    const QSignalSpy triggered(menu.action(), &QAction::triggered);
    QVERIFY(shown.show());
    const PopupBan ban;
    Input::press(shown.button);
    QVERIFY(!shown.button->isDown());
    Input::release(shown.button);
    QCOMPARE(triggered.size(), 0);
}

void tst_RibbonButton::aClickTogglesACheckableAction()
{
    QAction action(u"Bold"_s);
    action.setCheckable(true);
    ButtonWindow shown(&action, Small);
    QVERIFY(shown.show());
    Input::click(shown.button);
    QVERIFY(action.isChecked());
    QVERIFY(shown.button->isChecked());
    Input::doubleClick(shown.button);
    QVERIFY(action.isChecked());
    Input::click(shown.button);
    QVERIFY(!action.isChecked());
    QVERIFY(!shown.button->isChecked());
}

void tst_RibbonButton::aButtonWithoutActionTakesClicks()
{
    QWidget window;
    window.resize(100, 100);
    RibbonButton button(&window);
    button.setToolButtonStyle(Large);
    button.setText(u"Free &text"_s);
    button.setGeometry(10, 10, 50, 72);
    const QSignalSpy clicked(&button, &QToolButton::clicked);
    QVERIFY(Input::show(&window));
    QCOMPARE(recordOf(button).text(), u"Free text"_s);
    Input::click(&button);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(!button.grab().isNull());
}

void tst_RibbonButton::isHoveredWhileThePointerIsOverIt()
{
    QAction action(u"Bold"_s);
    ButtonWindow shown(&action, Large);
    QVERIFY(shown.show());
    QVERIFY(!shown.record().hovered);
    Input::move(shown.button);
    QVERIFY(shown.record().hovered);
    Input::move(shown.button, shown.beside());
    QVERIFY(!shown.record().hovered);
    Input::move(shown.button);
    QVERIFY(shown.record().hovered);
    Input::press(shown.button);
    QVERIFY(shown.record().hovered);
    Input::release(shown.button);
    QVERIFY(shown.record().hovered);
}

void tst_RibbonButton::knowsWhenThePointerIsOverTheMenuPart_data()
{
    addMenuButtons();
}

void tst_RibbonButton::knowsWhenThePointerIsOverTheMenuPart()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const Qt::LayoutDirection, direction);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), style, QToolButton::MenuButtonPopup, direction);
    QVERIFY(shown.show());
    QVERIFY(!shown.record().overMenuPart);
    Input::move(shown.button, shown.at(5, 11));
    QVERIFY(!shown.record().overMenuPart);
    Input::move(shown.button, shown.menuPoint());
    QVERIFY(shown.record().overMenuPart);
    Input::move(shown.button, shown.at(5, 11));
    QVERIFY(!shown.record().overMenuPart);
}

void tst_RibbonButton::theMenuPartEndsWhereItsRectangleEnds_data()
{
    addMenuButtons();
}

void tst_RibbonButton::theMenuPartEndsWhereItsRectangleEnds()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const Qt::LayoutDirection, direction);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), style, QToolButton::MenuButtonPopup, direction);
    QVERIFY(shown.show());
    const int textWidth = shown.button->fontMetrics().horizontalAdvance(u"Styles"_s);
    const int right = shown.button->width() - 1;
    const int bottom = shown.button->height() - 1;
    const QPoint lastOfMain = style == Large ? shown.at(right, 34)
                                             : shown.at(25 + textWidth, bottom);
    const QPoint firstOfMenu = style == Large ? shown.at(0, 35) : shown.at(26 + textWidth, 0);

    Input::move(shown.button, firstOfMenu);
    QVERIFY(shown.record().overMenuPart);
    Input::move(shown.button, lastOfMain);
    QVERIFY(!shown.record().overMenuPart);
    Input::move(shown.button, shown.at(right, bottom));
    QVERIFY(shown.record().overMenuPart);
}

void tst_RibbonButton::isRepaintedOnlyWhenThePartChanges()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::MenuButtonPopup);
    QVERIFY(shown.show());
    Input::move(shown.button, QPoint(10, 20));
    QCoreApplication::processEvents();

    EventLog paints(shown.button, {QEvent::Paint});
    Input::move(shown.button, QPoint(10, 30));
    Input::move(shown.button, QPoint(11, 34));
    QCoreApplication::processEvents();
    QCOMPARE(paints.types.size(), 0);

    Input::move(shown.button, QPoint(11, 35));
    QTRY_COMPARE(paints.types.size(), 1);
    Input::move(shown.button, QPoint(10, 60));
    QCoreApplication::processEvents();
    QCOMPARE(paints.types.size(), 1);
}

void tst_RibbonButton::aDelayedMenuNeverOpens_data()
{
    addMenuButtons();
}

void tst_RibbonButton::aDelayedMenuNeverOpens()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const Qt::LayoutDirection, direction);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), style, QToolButton::DelayedPopup, direction);
    const QSignalSpy triggered(menu.action(), &QAction::triggered);
    const QSignalSpy opening(menu.menu, &QMenu::aboutToShow);
    // The base class would start its timer here.
    EventLog timers(shown.button, {QEvent::Timer});
    QVERIFY(shown.show());
    const PopupBan ban;
    for (const QPoint point : {shown.at(5, 11), shown.menuPoint()}) {
        Input::press(shown.button, point);
        QVERIFY(shown.button->isDown());
        Input::release(shown.button, point);
    }
    QCOMPARE(triggered.size(), 2);
    QCOMPARE(opening.size(), 0);
    QVERIFY(!shown.record().menuPressed);
    QCOMPARE(timers.types.size(), 0);
}

void tst_RibbonButton::aPressOnTheMainPartOpensNothing_data()
{
    addMenuButtons();
}

void tst_RibbonButton::aPressOnTheMainPartOpensNothing()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const Qt::LayoutDirection, direction);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), style, QToolButton::MenuButtonPopup, direction);
    const QSignalSpy triggered(menu.action(), &QAction::triggered);
    const QSignalSpy opening(menu.menu, &QMenu::aboutToShow);
    QVERIFY(shown.show());
    const PopupBan ban;
    Input::press(shown.button, shown.at(5, 11));
    QVERIFY(shown.button->isDown());
    QCOMPARE(triggered.size(), 0);
    Input::release(shown.button, shown.at(5, 11));
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(opening.size(), 0);
    QVERIFY(!shown.record().menuPressed);
}

void tst_RibbonButton::aPressOnTheMenuPartOpensTheMenu_data()
{
    addMenuButtons();
}

void tst_RibbonButton::aPressOnTheMenuPartOpensTheMenu()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const Qt::LayoutDirection, direction);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), style, QToolButton::MenuButtonPopup, direction);
    const QSignalSpy triggered(menu.action(), &QAction::triggered);
    const QSignalSpy opening(menu.menu, &QMenu::aboutToShow);
    QVERIFY(shown.show());

    PopupDriver driver([&](QMenu *open) {
        QCOMPARE(open, menu.menu.data());
        QVERIFY(shown.button->isDown());
        QVERIFY(shown.record().overMenuPart);
        Input::release(shown.button, shown.menuPoint());
        QVERIFY(open->isVisible());
    });
    Input::press(shown.button, shown.menuPoint());

    QVERIFY(driver.hasRun());
    QVERIFY(shown.record().menuPressed);
    QVERIFY(!shown.button->isDown());
    QCOMPARE(triggered.size(), 0);
    QCOMPARE(opening.size(), 1);
}

void tst_RibbonButton::aPressAnywhereOpensAnInstantMenu_data()
{
    addMenuButtons();
}

void tst_RibbonButton::aPressAnywhereOpensAnInstantMenu()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const Qt::LayoutDirection, direction);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), style, QToolButton::InstantPopup, direction);
    const QSignalSpy triggered(menu.action(), &QAction::triggered);
    const QSignalSpy opening(menu.menu, &QMenu::aboutToShow);
    QVERIFY(shown.show());
    int opened = 0;
    for (const QPoint point : {shown.at(5, 11), shown.menuPoint()}) {
        PopupDriver driver([&](QMenu *open) {
            QCOMPARE(open, menu.menu.data());
            QVERIFY(shown.button->isDown());
            Input::release(shown.button, point);
        });
        Input::press(shown.button, point);
        QVERIFY(driver.hasRun());
        QCOMPARE(opening.size(), ++opened);
        QVERIFY(!shown.button->isDown());
    }
    QCOMPARE(triggered.size(), 0);
    QVERIFY(!shown.record().menuPressed);
}

void tst_RibbonButton::aSplitButtonWithoutAMenuIsPlain()
{
    QAction action(u"Bold"_s);
    for (const auto mode : {QToolButton::MenuButtonPopup, QToolButton::InstantPopup}) {
        ButtonWindow shown(&action, Small, mode);
        const QSignalSpy triggered(&action, &QAction::triggered);
        QVERIFY(shown.show());
        QVERIFY(!shown.record().isSplit());
        Input::click(shown.button, shown.menuPoint());
        QCOMPARE(triggered.size(), 1);
        QVERIFY(!shown.record().menuPressed);
    }
}

void tst_RibbonButton::thePartIsKnownFromThePressAlone()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::MenuButtonPopup);
    QVERIFY(shown.show());
    const auto press = [&shown](QPoint point) {
        QMouseEvent event(QEvent::MouseButtonPress, point, shown.button->mapToGlobal(point),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(shown.button, &event);
    };
    {
        PopupDriver driver([](QMenu *open) { open->close(); });
        press(QPoint(5, 50));
        QVERIFY(driver.hasRun());
    }
    const PopupBan ban;
    press(QPoint(5, 10));
    QVERIFY(!shown.record().overMenuPart);
}

void tst_RibbonButton::theMenuOpensOnePixelHigher_data()
{
    addMenuButtons();
}

void tst_RibbonButton::theMenuOpensOnePixelHigher()
{
    QFETCH(const Qt::ToolButtonStyle, style);
    QFETCH(const Qt::LayoutDirection, direction);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), style, QToolButton::InstantPopup, direction);
    QVERIFY(shown.show());
    QPoint plainPlace;
    {
        // Where any other tool button of this size opens it.
        QToolButton plain(&shown.window);
        plain.setMenu(menu.menu);
        plain.setPopupMode(QToolButton::InstantPopup);
        plain.setGeometry(shown.button->geometry());
        menu.menu->removeEventFilter(shown.button);
        PopupDriver driver([&](QMenu *open) { plainPlace = open->pos(); });
        plain.showMenu();
        QVERIFY(driver.hasRun());
        menu.menu->installEventFilter(shown.button);
    }
    QPoint place;
    PopupDriver driver([&](QMenu *open) { place = open->pos(); });
    Input::press(shown.button);
    Input::release(shown.button);
    QVERIFY(driver.hasRun());
    QCOMPARE(place, plainPlace - QPoint(0, 1));
    // Its frame covers the bottom line of the button.
    const QPoint bottomLeft = shown.button->mapToGlobal(shown.button->rect().bottomLeft());
    QCOMPARE(place.y(), bottomLeft.y());
}

void tst_RibbonButton::theMenuOpensAtTheSamePlaceAgain()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    QVERIFY(shown.show());
    QList<QPoint> places;
    for (int i = 0; i < 3; ++i) {
        PopupDriver driver([&](QMenu *open) { places.append(open->pos()); });
        Input::press(shown.button);
        Input::release(shown.button);
        QVERIFY(driver.hasRun());
    }
    QCOMPARE(places, QList<QPoint>({places.at(0), places.at(0), places.at(0)}));
}

void tst_RibbonButton::theMenusShowEventIsConsumed()
{
    const MenuAction menu;
    // Of several filters the last one comes first, so this one sees only what the button lets pass.
    EventLog log(menu.menu, {QEvent::Show, QEvent::Hide});
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    QVERIFY(shown.show());
    PopupDriver driver([](QMenu *open) { QVERIFY(open->isVisible()); });
    Input::press(shown.button);
    Input::release(shown.button);
    QVERIFY(driver.hasRun());
    QCOMPARE(log.types, QList<QEvent::Type>({QEvent::Hide}));
}

void tst_RibbonButton::aMenuOpenedElsewhereIsMovedToo()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    QVERIFY(shown.show());
    PopupDriver driver([](QMenu *open) { QCOMPARE(open->pos(), QPoint(120, 99)); });
    menu.menu->exec(QPoint(120, 100));
    QVERIFY(driver.hasRun());
}

void tst_RibbonButton::otherEventsOfTheMenuPass()
{
    const MenuAction menu;
    EventLog log(menu.menu,
                 {QEvent::Move, QEvent::ToolTip, QEvent::ActionAdded, QEvent::EnabledChange});
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    menu.menu->addAction(u"One more"_s);
    menu.menu->setEnabled(false);
    QCOMPARE(log.types, QList<QEvent::Type>({QEvent::ActionAdded, QEvent::EnabledChange}));
}

void tst_RibbonButton::twoButtonsOfOneMenuMoveItOnce()
{
    const MenuAction menu;
    ButtonWindow one(menu.action(), Large, QToolButton::InstantPopup);
    ButtonWindow other(menu.action(), Small, QToolButton::InstantPopup);
    QVERIFY(one.show());
    PopupDriver driver([](QMenu *open) { QCOMPARE(open->pos(), QPoint(120, 99)); });
    menu.menu->exec(QPoint(120, 100));
    QVERIFY(driver.hasRun());
}

void tst_RibbonButton::anEntryIsTriggeredOnce()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Small, QToolButton::MenuButtonPopup);
    const QSignalSpy triggered(menu.entry, &QAction::triggered);
    const QSignalSpy ofMenu(menu.menu, &QMenu::triggered);
    const QSignalSpy ofButton(shown.button, &QToolButton::triggered);
    QVERIFY(shown.show());
    PopupDriver driver([&](QMenu *open) {
        Input::release(shown.button, shown.menuPoint());
        Input::move(open, open->actionGeometry(menu.entry).center());
        Input::click(open, open->actionGeometry(menu.entry).center());
    });
    Input::press(shown.button, shown.menuPoint());
    QVERIFY(driver.hasRun());
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(ofMenu.size(), 1);
    QCOMPARE(ofButton.size(), 1);
    QVERIFY(!menu.menu->isVisible());
}

void tst_RibbonButton::aClosedMenuLeavesTheButtonUnhovered_data()
{
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");

    QTest::newRow("split") << QToolButton::MenuButtonPopup;
    QTest::newRow("instant") << QToolButton::InstantPopup;
}

void tst_RibbonButton::aClosedMenuLeavesTheButtonUnhovered()
{
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, mode);
    QVERIFY(shown.show());
    EventLog paints(shown.button, {QEvent::Paint});
    PopupDriver driver([&](QMenu *open) {
        // Not every platform tells the button that the pointer left it for the menu.
        const QPointF point(5, 5);
        QEnterEvent enter(point, point, shown.button->mapToGlobal(point));
        QCoreApplication::sendEvent(shown.button, &enter);
        QVERIFY(shown.record().hovered);
        open->close();
        QVERIFY(!shown.record().hovered);
        paints.types.clear();
    });
    Input::press(shown.button, shown.menuPoint());
    Input::release(shown.button, shown.beside());
    QVERIFY(driver.hasRun());
    QVERIFY(!shown.record().hovered);
    QTRY_VERIFY(!paints.types.isEmpty());
    Input::move(shown.button, shown.beside());
    Input::move(shown.button);
    QVERIFY(shown.record().hovered);
}

void tst_RibbonButton::theKeyboardClosesTheMenu()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    const QSignalSpy triggered(menu.entry, &QAction::triggered);
    QVERIFY(shown.show());
    {
        PopupDriver driver([&](QMenu *open) {
            Input::release(shown.button);
            QTest::keyClick(open, Qt::Key_Escape);
            QVERIFY(!open->isVisible());
        });
        Input::press(shown.button);
        QVERIFY(driver.hasRun());
        QCOMPARE(triggered.size(), 0);
    }
    PopupDriver driver([&](QMenu *open) {
        Input::release(shown.button);
        QTest::keyClick(open, Qt::Key_Down);
        QTest::keyClick(open, Qt::Key_Return);
        QVERIFY(!open->isVisible());
    });
    Input::press(shown.button);
    QVERIFY(driver.hasRun());
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonButton::aSubmenuWorks()
{
    const MenuAction menu;
    QMenu *submenu = menu.menu->addMenu(u"More"_s);
    QAction *deep = submenu->addAction(u"Deep"_s);
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    const QSignalSpy triggered(deep, &QAction::triggered);
    QVERIFY(shown.show());
    PopupDriver driver([&](QMenu *open) {
        Input::release(shown.button);
        Input::click(open, open->actionGeometry(submenu->menuAction()).center());
        QTRY_VERIFY(submenu->isVisible());
        Input::click(submenu, submenu->actionGeometry(deep).center());
        QVERIFY(!open->isVisible());
    });
    Input::press(shown.button);
    QVERIFY(driver.hasRun());
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonButton::theActionMayBeDeletedMeanwhile()
{
    auto action = std::make_unique<QAction>(u"Bold"_s);
    ButtonWindow shown(action.get(), Large);
    QVERIFY(shown.show());
    Input::press(shown.button);
    action.reset();
    Input::release(shown.button);
    QVERIFY(!shown.button->defaultAction());
    QVERIFY(!shown.record().menu());
    QVERIFY(!shown.record().isSplit());
    QVERIFY(!shown.window.grab().isNull());
    Input::click(shown.button);
}

void tst_RibbonButton::theMenuMayBeDeletedWhileItIsOpen()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    QVERIFY(shown.show());
    // Qt's tool button disconnects from the menu afterwards, whether it is still there or not.
    QTest::ignoreMessage(QtWarningMsg, "QObject::disconnect: Unexpected nullptr parameter");
    QTest::ignoreMessage(QtWarningMsg, "QObject::disconnect: Unexpected nullptr parameter");
    PopupDriver driver([](QMenu *open) { delete open; });
    Input::press(shown.button);
    QVERIFY(driver.hasRun());
    QVERIFY(!menu.menu);
    QVERIFY(!shown.button->isDown());
    QVERIFY(!shown.record().hovered);
    Input::release(shown.button);
    QVERIFY(!shown.window.grab().isNull());
}

void tst_RibbonButton::theButtonMayBeDeletedFromItsMenu()
{
    const MenuAction menu;
    ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    connect(menu.entry, &QAction::triggered, this, [&shown] { delete shown.button; });
    QVERIFY(shown.show());
    PopupDriver driver([&](QMenu *open) {
        Input::release(shown.button);
        Input::click(open, open->actionGeometry(menu.entry).center());
    });
    Input::press(shown.button);
    QVERIFY(driver.hasRun());
    QVERIFY(!shown.button);
}

void tst_RibbonButton::theActionMayBeDeletedFromItsMenu()
{
    QMenu menu;
    QAction *entry = menu.addAction(u"Entry"_s);
    QPointer<QAction> action = new QAction(u"Style"_s);
    action->setMenu(&menu);
    ButtonWindow shown(action, Small, QToolButton::InstantPopup);
    connect(entry, &QAction::triggered, this, [action] { delete action; });
    QVERIFY(shown.show());
    PopupDriver driver([&](QMenu *open) {
        Input::release(shown.button);
        Input::click(open, open->actionGeometry(entry).center());
    });
    Input::press(shown.button);
    QVERIFY(driver.hasRun());
    QVERIFY(!action);
    QVERIFY(!shown.button->isDown());
    const PopupBan ban;
    Input::click(shown.button);
}

void tst_RibbonButton::theMenuMayBeReplaced()
{
    QMenu first;
    QMenu second;
    second.addAction(u"Entry"_s);
    QAction action(u"Style"_s);
    action.setMenu(&first);
    ButtonWindow shown(&action, Large, QToolButton::InstantPopup);
    action.setMenu(&second);
    QVERIFY(shown.show());
    PopupDriver driver([&](QMenu *open) {
        QCOMPARE(open, &second);
        Input::release(shown.button);
    });
    Input::press(shown.button);
    QVERIFY(driver.hasRun());
}

void tst_RibbonButton::aMenuGivenLaterWorks()
{
    QMenu menu;
    menu.addAction(u"Entry"_s);
    QAction action(u"Style"_s);
    ButtonWindow shown(&action, Large, QToolButton::InstantPopup);
    QVERIFY(shown.show());
    action.setMenu(&menu);
    shown.button->setPopupMode(QToolButton::InstantPopup);
    PopupDriver driver([&](QMenu *open) {
        QCOMPARE(open, &menu);
        Input::release(shown.button);
    });
    Input::press(shown.button);
    QVERIFY(driver.hasRun());
    action.setMenu(static_cast<QMenu *>(nullptr));
    const QSignalSpy triggered(&action, &QAction::triggered);
    Input::click(shown.button);
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonButton::theMenuOutlivesTheButton()
{
    const MenuAction menu;
    {
        const ButtonWindow shown(menu.action(), Large, QToolButton::InstantPopup);
    }
    menu.action()->setVisible(false);
    menu.action()->setVisible(true);
    PopupDriver driver([](QMenu *open) { QCOMPARE(open->pos(), QPoint(120, 100)); });
    menu.menu->exec(QPoint(120, 100));
    QVERIFY(driver.hasRun());
}

QTEST_MAIN(tst_RibbonButton)

#include "tst_ribbonbutton.moc"
