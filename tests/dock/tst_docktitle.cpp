// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "dock/DockTitle.h"
#include "dock/DockTitle_p.h"
#include "support/ImageChecks.h"
#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QColor Line(191, 191, 191);
constexpr QColor Frame(125, 125, 125);

/// A title in a window that has room around it, with the sheet of the container or without.
class TitleWindow : public QWidget
{
public:
    explicit TitleWindow(bool withSheet = true)
    {
        if (withSheet)
            StyleSheets::load(this, ResourcePaths::DockSheet);
        resize(300, 200);
        m_title->setText(u"Properties"_s);
        // In the sheet, the height of the title does not count the line at its lower edge.
        m_title->setGeometry(40, 30, 200, withSheet ? 25 : 30);
    }

    DockTitle &title() const { return *m_title; }

private:
    DockTitle *m_title = new DockTitle(this);
};

template <typename Widget>
Widget *itemOf(const DockTitle &title, int index)
{
    return qobject_cast<Widget *>(title.layout()->itemAt(index)->widget());
}

QPushButton *collapseButtonOf(const DockTitle &title)
{
    return itemOf<QPushButton>(title, 0);
}

QLabel *labelOf(const DockTitle &title)
{
    return itemOf<QLabel>(title, 1);
}

QPushButton *menuButtonOf(const DockTitle &title)
{
    return itemOf<QPushButton>(title, 2);
}

QImage imageOf(const QIcon &icon, QSize size, QIcon::Mode mode, QIcon::State state)
{
    return icon.pixmap(size, mode, state).toImage();
}

} // namespace

class tst_DockTitle : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void declaresItsSignalsInTheirOrder();
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void ownsItsMenuAndItsAction();

    void arrowLabelAndMenuButtonStandInARow();
    void marginsAndSpacingAreThoseOfATitle();
    void collapseButtonStartsHiddenAndUnchecked();
    void collapseButtonShowsWhereTheViewGoes_data();
    void collapseButtonShowsWhereTheViewGoes();
    void menuButtonIsFlatWithASmallIcon();
    void labelTakesAllTheHeight();
    void textIsShownInTheLabel();
    void textIsNeverTakenForMarkup();
    void buttonsHaveNames();

    void onlyTheCallShowsTheCollapseButton();
    void togglingTheArrowTwiceReportsBoth();
    void minimizeEntryReportsTheWish();
    void theMenuTakesMoreEntries();
    void menuOpensBelowItsButton_data();
    void menuOpensBelowItsButton();
    void rightClickOpensTheSameMenuAtThePointer_data();
    void rightClickOpensTheSameMenuAtThePointer();
    void theEntryOfEitherMenuMinimizes_data();
    void theEntryOfEitherMenuMinimizes();
    void theTitleMayGoWhileItsMenuIsOpen();
    void returnInADialogPressesNoButtonOfATitle();

    void sheetSetsTheHeightAndTheColors_data();
    void sheetSetsTheHeightAndTheColors();
    void sheetSetsTheSizeOfTheButtons();
    void sheetFramesTheButtonUnderThePointer();
    void aTitleOfAHiddenViewIsPolishedWhenItIsShown();
    void rightToLeftMirrorsTheTitle();
    void textStandsAtTheLeadingEdgeInAnyLanguage_data();
    void textStandsAtTheLeadingEdgeInAnyLanguage();
};

void tst_DockTitle::isAFrameInTheNamespace()
{
    QCOMPARE(QLatin1StringView(DockTitle::staticMetaObject.className()), "VornFrame::DockTitle"_L1);
    QCOMPARE(DockTitle::staticMetaObject.superClass(), &QFrame::staticMetaObject);
    const DockTitle title(nullptr);
    QCOMPARE(title.frameShape(), QFrame::NoFrame);
    QVERIFY(title.objectName().isEmpty());
}

void tst_DockTitle::declaresItsSignalsInTheirOrder()
{
    const QMetaObject &type = DockTitle::staticMetaObject;
    const QMetaMethod first = type.method(type.methodOffset());
    const QMetaMethod second = type.method(type.methodOffset() + 1);
    QCOMPARE(type.methodCount() - type.methodOffset(), 2);
    QCOMPARE(first.methodSignature(), QByteArray("signalMinimize()"));
    QCOMPARE(second.methodSignature(), QByteArray("signalCollapsed(bool)"));
    QCOMPARE(second.parameterNames(), QByteArrayList({"collapsed"}));
    QCOMPARE(first.methodType(), QMetaMethod::Signal);
    QCOMPARE(second.methodType(), QMetaMethod::Signal);
}

void tst_DockTitle::itsRecordStartsAsPromised()
{
    const DockTitlePrivate d;
    const std::unique_ptr<QPushButton> collapseButton(d.collapseButton);
    const std::unique_ptr<QLabel> label(d.label);
    const std::unique_ptr<QPushButton> menuButton(d.menuButton);
    for (const QWidget *widget :
         std::initializer_list<QWidget *>{collapseButton.get(), label.get(), menuButton.get()}) {
        QVERIFY(widget);
        QVERIFY(!widget->parent());
    }
    QVERIFY(!d.q_ptr);
}

void tst_DockTitle::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<DockTitle> title = new DockTitle(parent.get());
    QCOMPARE(title->parent(), parent.get());
    parent.reset();
    QVERIFY(!title);
}

void tst_DockTitle::ownsItsMenuAndItsAction()
{
    auto title = std::make_unique<DockTitle>(nullptr);
    const QPointer<QMenu> menu = title->menu();
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 1);
    const QPointer<QAction> minimize = menu->actions().constFirst();
    QCOMPARE(minimize->text(), u"minimize to bar"_s);
    title.reset();
    QVERIFY(!menu);
    QVERIFY(!minimize);
}

void tst_DockTitle::arrowLabelAndMenuButtonStandInARow()
{
    const DockTitle title(nullptr);
    auto *layout = qobject_cast<QHBoxLayout *>(title.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);
    QVERIFY(collapseButtonOf(title));
    QVERIFY(labelOf(title));
    QVERIFY(menuButtonOf(title));
    QVERIFY(collapseButtonOf(title)->isCheckable());
    QVERIFY(!menuButtonOf(title)->isCheckable());
    for (int i = 0; i < layout->count(); ++i) {
        QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
        QCOMPARE(layout->itemAt(i)->widget()->parent(), &title);
    }
}

void tst_DockTitle::marginsAndSpacingAreThoseOfATitle()
{
    const DockTitle title(nullptr);
    QCOMPARE(title.layout()->contentsMargins(), QMargins(4, 0, 4, 0));
    QCOMPARE(title.layout()->spacing(), 4);
}

void tst_DockTitle::collapseButtonStartsHiddenAndUnchecked()
{
    const TitleWindow window;
    const QPushButton *button = collapseButtonOf(window.title());
    QVERIFY(button->isHidden());
    QVERIFY(button->isFlat());
    QVERIFY(button->isCheckable());
    QVERIFY(!button->isChecked());
    QCOMPARE(button->iconSize(), QSize(17, 17));
}

void tst_DockTitle::collapseButtonShowsWhereTheViewGoes_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QIcon::State>("state");
    QTest::newRow("unfolded, down") << u":/res/downArrowNormal.svg"_s << QIcon::Off;
    QTest::newRow("collapsed, right") << u":/res/rightArrowNormal.svg"_s << QIcon::On;
}

void tst_DockTitle::collapseButtonShowsWhereTheViewGoes()
{
    QFETCH(const QString, file);
    QFETCH(const QIcon::State, state);
    const DockTitle title(nullptr);
    const QIcon icon = collapseButtonOf(title)->icon();
    const QImage image = imageOf(icon, {17, 17}, QIcon::Normal, state);
    QVERIFY(!image.isNull());
    QCOMPARE(image, imageOf(QIcon(file), {17, 17}, QIcon::Normal, QIcon::Off));
    const QIcon::State other = state == QIcon::Off ? QIcon::On : QIcon::Off;
    QVERIFY(image != imageOf(icon, {17, 17}, QIcon::Normal, other));
}

void tst_DockTitle::menuButtonIsFlatWithASmallIcon()
{
    const DockTitle title(nullptr);
    const QPushButton *button = menuButtonOf(title);
    QVERIFY(button->isFlat());
    QVERIFY(!button->isHidden());
    QVERIFY(!button->menu()); // or it would show an arrow
    QCOMPARE(button->iconSize(), QSize(10, 10));
    const QImage image = imageOf(button->icon(), {10, 10}, QIcon::Normal, QIcon::Off);
    QVERIFY(!image.isNull());
    QCOMPARE(image, imageOf(QIcon(u":/res/menu.svg"_s), {10, 10}, QIcon::Normal, QIcon::Off));
}

void tst_DockTitle::labelTakesAllTheHeight()
{
    TitleWindow window;
    QCOMPARE(labelOf(window.title())->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QVERIFY(Input::show(&window));
    QCOMPARE(labelOf(window.title())->height(), 24);
}

void tst_DockTitle::textIsShownInTheLabel()
{
    DockTitle title(nullptr);
    QVERIFY(labelOf(title)->text().isEmpty());
    title.setText(u"Properties"_s);
    QCOMPARE(labelOf(title)->text(), u"Properties"_s);
    title.setText(u"属性"_s);
    QCOMPARE(labelOf(title)->text(), u"属性"_s);
    title.setText({});
    QVERIFY(labelOf(title)->text().isEmpty());
}

void tst_DockTitle::textIsNeverTakenForMarkup()
{
    DockTitle title(nullptr);
    title.setText(u"<h1>Links</h1>"_s);
    QCOMPARE(labelOf(title)->textFormat(), Qt::PlainText);
    QCOMPARE(labelOf(title)->text(), u"<h1>Links</h1>"_s);
}

void tst_DockTitle::buttonsHaveNames()
{
    const DockTitle title(nullptr);
    QCOMPARE(collapseButtonOf(title)->accessibleName(), u"Collapse"_s);
    QCOMPARE(menuButtonOf(title)->accessibleName(), u"View menu"_s);
}

void tst_DockTitle::onlyTheCallShowsTheCollapseButton()
{
    TitleWindow window;
    QVERIFY(Input::show(&window));
    const QPushButton *button = collapseButtonOf(window.title());
    QVERIFY(!button->isVisible());
    window.title().setText(u"Other"_s);
    QVERIFY(!button->isVisible());
    window.title().setCollapseButtonVisible(true);
    QVERIFY(button->isVisible());
    window.title().setCollapseButtonVisible(true);
    QVERIFY(button->isVisible());
    window.title().setCollapseButtonVisible(false);
    QVERIFY(!button->isVisible());
}

void tst_DockTitle::togglingTheArrowTwiceReportsBoth()
{
    TitleWindow window;
    window.title().setCollapseButtonVisible(true);
    const QSignalSpy collapsed(&window.title(), &DockTitle::signalCollapsed);
    const QSignalSpy minimized(&window.title(), &DockTitle::signalMinimize);
    QVERIFY(Input::show(&window));
    QPushButton *button = collapseButtonOf(window.title());
    Input::click(button);
    QVERIFY(button->isChecked());
    QCOMPARE(collapsed.size(), 1);
    QCOMPARE(collapsed.at(0), QVariantList{true});
    Input::click(button);
    QVERIFY(!button->isChecked());
    QCOMPARE(collapsed.size(), 2);
    QCOMPARE(collapsed.at(1), QVariantList{false});
    // Only a person collapses a view.
    button->setChecked(true);
    QCOMPARE(collapsed.size(), 2);
    QCOMPARE(minimized.size(), 0);
}

void tst_DockTitle::minimizeEntryReportsTheWish()
{
    const DockTitle title(nullptr);
    const QSignalSpy minimized(&title, &DockTitle::signalMinimize);
    const QSignalSpy collapsed(&title, &DockTitle::signalCollapsed);
    title.menu()->actions().constFirst()->trigger();
    QCOMPARE(minimized.size(), 1);
    title.menu()->actions().constFirst()->trigger();
    QCOMPARE(minimized.size(), 2);
    QCOMPARE(collapsed.size(), 0);
}

void tst_DockTitle::theMenuTakesMoreEntries()
{
    TitleWindow window;
    const QSignalSpy minimized(&window.title(), &DockTitle::signalMinimize);
    const QAction *added = window.title().menu()->addAction(u"Close"_s);
    const QSignalSpy triggered(added, &QAction::triggered);
    QVERIFY(Input::show(&window));
    PopupDriver driver([](QMenu *open) {
        QCOMPARE(open->actions().size(), 2);
        Input::click(open, open->actionGeometry(open->actions().at(1)).center());
    });
    Input::click(menuButtonOf(window.title()));
    QVERIFY(driver.hasRun());
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(minimized.size(), 0);
}

void tst_DockTitle::menuOpensBelowItsButton_data()
{
    QTest::addColumn<bool>("withSheet");
    QTest::newRow("with the sheet of the container") << true;
    QTest::newRow("without a sheet") << false;
}

void tst_DockTitle::menuOpensBelowItsButton()
{
    QFETCH(const bool, withSheet);
    TitleWindow window(withSheet);
    QVERIFY(Input::show(&window));
    QPushButton *button = menuButtonOf(window.title());
    QMenu *opened = nullptr;
    QPoint place;
    PopupDriver driver([&](QMenu *open) {
        opened = open;
        place = open->pos();
    });
    Input::click(button);
    QVERIFY(driver.hasRun());
    QCOMPARE(opened, window.title().menu());
    QCOMPARE(place, button->mapToGlobal(QPoint(0, button->height())));
}

void tst_DockTitle::rightClickOpensTheSameMenuAtThePointer_data()
{
    QTest::addColumn<QString>("place");
    for (const char *place : {"label", "menu button", "collapse button", "margin"})
        QTest::newRow(place) << QString::fromLatin1(place);
}

void tst_DockTitle::rightClickOpensTheSameMenuAtThePointer()
{
    QFETCH(const QString, place);
    TitleWindow window;
    DockTitle &title = window.title();
    QCOMPARE(title.contextMenuPolicy(), Qt::CustomContextMenu);
    title.setCollapseButtonVisible(true);
    QVERIFY(Input::show(&window));
    const QHash<QString, QPoint> places{
        {u"label"_s, labelOf(title)->geometry().center()},
        {u"menu button"_s, menuButtonOf(title)->geometry().center()},
        {u"collapse button"_s, collapseButtonOf(title)->geometry().center()},
        {u"margin"_s, QPoint(title.width() - 2, title.height() / 2)},
    };
    const QSignalSpy collapsed(&title, &DockTitle::signalCollapsed);
    QMenu *opened = nullptr;
    QPoint openedAt;
    PopupDriver driver([&](QMenu *open) {
        opened = open;
        openedAt = open->pos();
    });
    Input::rightClick(&title, places.value(place));
    QVERIFY(driver.hasRun());
    QCOMPARE(opened, title.menu());
    // QMenu keeps one pixel off the pointer.
    const QPoint distance = openedAt - title.mapToGlobal(places.value(place));
    QVERIFY2(distance == QPoint(0, 0) || distance == QPoint(1, 1),
             qPrintable(u"%1, %2"_s.arg(distance.x()).arg(distance.y())));
    QCOMPARE(collapsed.size(), 0);
}

void tst_DockTitle::theEntryOfEitherMenuMinimizes_data()
{
    QTest::addColumn<bool>("byRightClick");
    QTest::newRow("menu of the button") << false;
    QTest::newRow("menu of a right click") << true;
}

void tst_DockTitle::theEntryOfEitherMenuMinimizes()
{
    QFETCH(const bool, byRightClick);
    TitleWindow window;
    QVERIFY(Input::show(&window));
    const QSignalSpy minimized(&window.title(), &DockTitle::signalMinimize);
    PopupDriver driver([](QMenu *open) {
        Input::click(open, open->actionGeometry(open->actions().constFirst()).center());
    });
    if (byRightClick)
        Input::rightClick(labelOf(window.title()));
    else
        Input::click(menuButtonOf(window.title()));
    QVERIFY(driver.hasRun());
    QCOMPARE(minimized.size(), 1);
}

void tst_DockTitle::theTitleMayGoWhileItsMenuIsOpen()
{
    QWidget window;
    window.resize(300, 200);
    auto *title = new DockTitle(&window);
    title->setGeometry(40, 30, 200, 30);
    const QPointer<DockTitle> guard(title);
    QVERIFY(Input::show(&window));
    PopupDriver driver([title](QMenu *open) {
        title->deleteLater();
        open->close();
    });
    Input::click(menuButtonOf(*title));
    QVERIFY(driver.hasRun());
    QTRY_VERIFY(!guard);
}

void tst_DockTitle::returnInADialogPressesNoButtonOfATitle()
{
    QDialog dialog;
    dialog.resize(300, 200);
    auto *edit = new QLineEdit(&dialog);
    edit->setGeometry(10, 100, 200, 30);
    DockTitle title(&dialog);
    title.setGeometry(10, 10, 200, 30);
    title.setCollapseButtonVisible(true);
    const QSignalSpy collapsed(collapseButtonOf(title), &QPushButton::clicked);
    const QSignalSpy menu(menuButtonOf(title), &QPushButton::clicked);
    QVERIFY(Input::show(&dialog));
    const PopupBan ban;
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Enter);
    QCOMPARE(collapsed.size(), 0);
    QCOMPARE(menu.size(), 0);
}

void tst_DockTitle::sheetSetsTheHeightAndTheColors_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("ratio 1") << 1;
    QTest::newRow("ratio 2") << 2;
}

void tst_DockTitle::sheetSetsTheHeightAndTheColors()
{
    QFETCH(const int, ratio);
    TitleWindow window;
    DockTitle &title = window.title();
    QVERIFY(Input::show(&window));
    QCOMPARE(title.minimumHeight(), 25);
    QCOMPARE(title.maximumHeight(), 25);
    const QImage image = ImageChecks::rendered(&title, ratio);
    const QRect ground(0, 0, title.width(), 24);
    VERIFY_IMAGE(ImageChecks::isFilled(
        image, ground, Qt::white, {labelOf(title)->geometry(), menuButtonOf(title)->geometry()}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(0, 24, title.width(), 1), Line));
}

void tst_DockTitle::sheetSetsTheSizeOfTheButtons()
{
    TitleWindow window;
    window.title().setCollapseButtonVisible(true);
    QVERIFY(Input::show(&window));
    // 20 px and the frame, which the sheet does not count.
    QCOMPARE(collapseButtonOf(window.title())->size(), QSize(22, 22));
    QCOMPARE(menuButtonOf(window.title())->size(), QSize(22, 22));
    QCOMPARE(collapseButtonOf(window.title())->x(), 4);
    QCOMPARE(labelOf(window.title())->x(), 4 + 22 + 4);
    QCOMPARE(menuButtonOf(window.title())->x(), 200 - 4 - 22);
    QCOMPARE(labelOf(window.title())->width(), 200 - 4 - 22 - 4 - 4 - 22 - 4);
}

void tst_DockTitle::sheetFramesTheButtonUnderThePointer()
{
    TitleWindow window;
    QVERIFY(Input::show(&window));
    QPushButton *button = menuButtonOf(window.title());
    const QRect top(6, 0, 10, 1);
    const QRect left(0, 6, 1, 10);
    Input::move(&window, QPoint(20, 150));
    VERIFY_IMAGE(
        ImageChecks::isFilled(ImageChecks::rendered(button, 1), top, ImageChecks::Untouched));
    Input::move(button);
    QTRY_VERIFY(button->underMouse());
    for (const QRect &edge : {top, left}) {
        VERIFY_IMAGE(ImageChecks::isFilled(ImageChecks::rendered(button, 1), edge, Frame));
        VERIFY_IMAGE(ImageChecks::isFilled(ImageChecks::rendered(button, 2), edge, Frame));
    }
    Input::move(&window, QPoint(20, 150));
    QTRY_VERIFY(!button->underMouse());
    VERIFY_IMAGE(
        ImageChecks::isFilled(ImageChecks::rendered(button, 1), top, ImageChecks::Untouched));
    button->setDown(true);
    VERIFY_IMAGE(ImageChecks::isFilled(ImageChecks::rendered(button, 1), top, Frame));
    button->setDown(false);
}

void tst_DockTitle::aTitleOfAHiddenViewIsPolishedWhenItIsShown()
{
    TitleWindow window;
    QCoreApplication::sendPostedEvents(&window.title(), QEvent::PolishRequest);
    QVERIFY(!window.title().testAttribute(Qt::WA_WState_Polished));
    QVERIFY(Input::show(&window));
    QVERIFY(window.title().testAttribute(Qt::WA_WState_Polished));
    QCOMPARE(window.title().height(), 25);
}

void tst_DockTitle::rightToLeftMirrorsTheTitle()
{
    TitleWindow window;
    window.setLayoutDirection(Qt::RightToLeft);
    window.title().setCollapseButtonVisible(true);
    QVERIFY(Input::show(&window));
    const QRect whole = window.title().rect();
    QCOMPARE(collapseButtonOf(window.title())->geometry().right(), whole.right() - 4);
    QCOMPARE(menuButtonOf(window.title())->geometry().left(), whole.left() + 4);
    QVERIFY(labelOf(window.title())->geometry().left()
            > menuButtonOf(window.title())->geometry().right());
}

void tst_DockTitle::textStandsAtTheLeadingEdgeInAnyLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("from left to right") << u"Outline"_s;
    QTest::newRow("from right to left") << u"\u05DE\u05EA\u05D0\u05E8"_s;
}

void tst_DockTitle::textStandsAtTheLeadingEdgeInAnyLanguage()
{
    QFETCH(const QString, text);
    TitleWindow window;
    window.title().setText(text);
    QVERIFY(Input::show(&window));
    const QLabel *label = labelOf(window.title());
    const auto painted = [&] {
        const QImage image = ImageChecks::rendered(&window.title(), 1);
        return ImageChecks::paintedRect(image, label->geometry(), Qt::white);
    };
    QVERIFY(!painted().isEmpty());
    QVERIFY(painted().right() < label->geometry().center().x());
    const QRect before = label->geometry();
    window.setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(label->geometry() != before);
    QVERIFY(!painted().isEmpty());
    QVERIFY(painted().left() > label->geometry().center().x());
}

QTEST_MAIN(tst_DockTitle)

#include "tst_docktitle.moc"
