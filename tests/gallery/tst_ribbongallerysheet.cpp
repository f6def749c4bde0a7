// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonGallery.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include "gallery/PopupParts.h"

#include "support/ImageChecks.h"
#include "support/StrangePalette.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;
using namespace PopupParts;
using namespace VornFrame;

namespace {

constexpr QColor MenuFrame(190, 190, 190);
constexpr QColor Accent(38, 140, 221);
constexpr QColor Pressed(217, 217, 217);
constexpr QColor Title(230, 230, 230);
constexpr QColor HoveredMove(97, 97, 97);
constexpr QColor PressedMove(0, 153, 255);
constexpr QColor TileFrame(125, 125, 125);
constexpr QColor ScrollGround(245, 245, 245);
constexpr QColor ScrollHandle(191, 191, 191);
constexpr QColor White(255, 255, 255);
constexpr QColor Black(0, 0, 0);

constexpr QMargins Border(1, 1, 1, 1);
constexpr QSize RoundCorner(5, 5);
constexpr QSize SquareCorner(1, 1);

void addRatios()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int ratio : {1, 2}) {
        QTest::addRow("ratio %d, left to right", ratio) << ratio << Qt::LeftToRight;
        QTest::addRow("ratio %d, right to left", ratio) << ratio << Qt::RightToLeft;
    }
}

void addStates(std::initializer_list<const char *> states)
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("state");
    for (const int ratio : {1, 2}) {
        for (const char *state : states) {
            QTest::addRow("%s, ratio %d, left to right", state, ratio)
                << ratio << Qt::LeftToRight << QString::fromLatin1(state);
            QTest::addRow("%s, ratio %d, right to left", state, ratio)
                << ratio << Qt::RightToLeft << QString::fromLatin1(state);
        }
    }
}

/// Letters that are nothing but area show the colour of a text.
QString blocks()
{
    return QString(4, QChar(0x2588));
}

QList<QRect> cornersOf(const QRect &rect, QSize size)
{
    QList<QRect> corners;
    for (const Qt::Alignment at :
         {Qt::AlignLeft | Qt::AlignTop, Qt::AlignRight | Qt::AlignTop,
          Qt::AlignLeft | Qt::AlignBottom, Qt::AlignRight | Qt::AlignBottom})
        corners.append(QStyle::alignedRect(Qt::LeftToRight, at, size, rect));
    return corners;
}

QRect middle(const QRect &rect, QSize size)
{
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, rect);
}

/// A gallery in the group of a ribbon. Its tiles have no text.
class BarWindow : public QWidget
{
public:
    explicit BarWindow(Qt::LayoutDirection direction)
    {
        setLayoutDirection(direction);
        auto *bar = new RibbonBar;
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        layout->addWidget(bar);
        layout->addStretch();
        resize(760, 200);
        m_gallery = new RibbonGallery;
        m_gallery->setCollectEnabled(true);
        bar->addPage(u"Page"_s)->addGroup(u"Group"_s)->addWidget(m_gallery);
        addGroup(2);
        addGroup(7);
        addGroup(1);
    }

    RibbonGallery *gallery() const { return m_gallery; }
    QMenu *menu() const { return m_gallery->findChild<QMenu *>(u"galleryPopupMenu"_s); }
    RibbonGalleryPopup *popup() const { return menu()->findChild<RibbonGalleryPopup *>(); }
    Parts parts() const { return Parts(popup()); }

    /// Shows the window and the popup, with the pointer where nothing answers it.
    [[nodiscard]] bool open(int room = 600)
    {
        if (!Input::show(this))
            return false;
        const int top = m_gallery->mapTo(this, QPoint()).y();
        const int screen = QApplication::primaryScreen()->geometry().height();
        setGeometry(QRect(QPoint(10, screen - 30 - room - top), size()));
        Input::click(m_gallery->findChild<QPushButton *>(u"popupButton"_s));
        if (!QTest::qWaitForWindowExposed(menu()))
            return false;
        QCoreApplication::sendPostedEvents();
        Input::move(parts().content(), QPoint(100, 2));
        return menu()->isVisible();
    }
    QImage image(int ratio) const { return ImageChecks::rendered(menu(), ratio, true); }
    QRect areaOf(const QWidget *widget) const
    {
        return {widget->mapTo(menu(), QPoint()), widget->size()};
    }
    /// Brings \a button into the state of this name.
    static void setState(QAbstractButton *button, const QString &state)
    {
        if (state != "normal"_L1)
            Input::move(button);
        button->setDown(state == "pressed"_L1);
    }

private:
    void addGroup(int count)
    {
        const int group = m_gallery->addGroup(blocks());
        for (int i = 0; i < count; ++i)
            m_gallery->addItem(group, new QAction(this));
    }

    RibbonGallery *m_gallery;
};

} // namespace

class tst_RibbonGallerySheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theMenuHasItsBorder_data() { addRatios(); }
    void theMenuHasItsBorder();
    void thePopupIsWhite_data() { addRatios(); }
    void thePopupIsWhite();
    void theSearchFieldHasItsBorderAndHeight_data() { addRatios(); }
    void theSearchFieldHasItsBorderAndHeight();
    void theSearchRowHasItsPlaces_data() { everythingFitsIntoTheMenu_data(); }
    void theSearchRowHasItsPlaces();
    void theCloseButtonShowsItsState_data() { addStates({"normal", "hovered", "pressed"}); }
    void theCloseButtonShowsItsState();

    void titlesHaveTheirGroundAndHeight_data() { addRatios(); }
    void titlesHaveTheirGroundAndHeight();
    void titlesKeepTheirHeightWithoutTheSheet_data();
    void titlesKeepTheirHeightWithoutTheSheet();
    void titlesHaveTheirFont_data() { addRatios(); }
    void titlesHaveTheirFont();
    void moveButtonsShowTheirState_data() { addStates({"normal", "hovered", "pressed"}); }
    void moveButtonsShowTheirState();
    void rulesOfTheSearchRowEndThere();
    void tilesShowThePointer_data() { addRatios(); }
    void tilesShowThePointer();
    void theLineWithoutMatchIsReadable_data() { addRatios(); }
    void theLineWithoutMatchIsReadable();

    void theScrollBarHasItsWidthAndColors_data() { addRatios(); }
    void theScrollBarHasItsWidthAndColors();
    void everythingFitsIntoTheMenu_data();
    void everythingFitsIntoTheMenu();
};

void tst_RibbonGallerySheet::initTestCase()
{
    TestCase::initTestCase();
    QApplication::setPalette(strangePalette());
}

void tst_RibbonGallerySheet::theMenuHasItsBorder()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    const QRect menu = window.menu()->rect();
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, menu, MenuFrame, {menu.marginsRemoved(Border)}));
    QCOMPARE(window.areaOf(window.popup()), menu.marginsRemoved(Border));
}

void tst_RibbonGallerySheet::thePopupIsWhite()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    const QImage image = window.image(ratio);
    QList<QRect> parts{window.areaOf(window.parts().searchEdit()),
                       window.areaOf(window.parts().closeButton())};
    for (int i = 0; i < 3; ++i)
        parts.append(window.areaOf(titleFrame(window.parts().group(i))));
    VERIFY_IMAGE(ImageChecks::isFilled(image, window.areaOf(window.popup()), White, parts));
}

void tst_RibbonGallerySheet::theSearchFieldHasItsBorderAndHeight()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    const QRect field = window.areaOf(window.parts().searchEdit());
    QCOMPARE(field.height(), 20 + 2);
    VERIFY_IMAGE(
        ImageChecks::isFilled(window.image(ratio), field, Accent, {field.marginsRemoved(Border)}));
    const QColor inside = ImageChecks::colorAt(window.image(ratio), field.topLeft() + QPoint(2, 2));
    QVERIFY(inside != Accent);
}

void tst_RibbonGallerySheet::theSearchRowHasItsPlaces()
{
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    const QRect field = window.parts().searchEdit()->geometry();
    const QRect button = window.parts().closeButton()->geometry();
    const int width = window.parts().content()->width();
    const auto placed = [direction, width](const QRect &rect) {
        return QStyle::visualRect(direction, QRect(0, 0, width, 30), rect);
    };
    QCOMPARE(button, placed({width - 4 - 22, 4, 22, 22}));
    QCOMPARE(field, placed({4, 4, width - 4 - 8 - 22 - 4, 22}));
}

void tst_RibbonGallerySheet::theCloseButtonShowsItsState()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QString, state);
    BarWindow window(direction);
    QVERIFY(window.open());
    QPushButton *button = window.parts().closeButton();
    BarWindow::setState(button, state);
    const QRect rect = window.areaOf(button);
    QCOMPARE(rect.size(), QSize(22, 22));
    const QImage image = window.image(ratio);
    const QList<QRect> corners = cornersOf(rect, RoundCorner);
    const QRect inside = rect.marginsRemoved(Border);
    const QRect icon = middle(rect, QSize(12, 12));
    VERIFY_IMAGE(ImageChecks::isFilled(image, rect, state == "normal"_L1 ? White : Accent,
                                       corners + QList{inside}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, inside, state == "pressed"_L1 ? Pressed : White,
                                       corners + QList{icon}));
    // Round corners.
    for (const QRect &corner : cornersOf(rect, SquareCorner))
        VERIFY_IMAGE(ImageChecks::isFilled(image, corner, White));
    QVERIFY(!ImageChecks::isFilled(image, icon, state == "pressed"_L1 ? Pressed : White).isEmpty());
}

void tst_RibbonGallerySheet::titlesHaveTheirGroundAndHeight()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    window.gallery()->setItemCollected(0, 0, true);
    QVERIFY(window.open());
    const QImage image = window.image(ratio);
    for (int i = -1; i < 3; ++i) {
        const RibbonGalleryGroup *group = i < 0 ? window.parts().favourites()
                                                : window.parts().group(i);
        const QRect title = window.areaOf(titleFrame(group));
        QCOMPARE(title.height(), 24);
        QCOMPARE(title.width(), window.parts().content()->width());
        QList<QRect> parts{window.areaOf(titleLabel(group))};
        for (const QWidget *part :
             {static_cast<QWidget *>(iconLabel(group)), static_cast<QWidget *>(toTop(group)),
              static_cast<QWidget *>(toBottom(group))}) {
            if (part->isVisible())
                parts.append(window.areaOf(part));
        }
        QCOMPARE(parts.size(), i == 1 ? 3 : 2);
        VERIFY_IMAGE(ImageChecks::isFilled(image, title, Title, parts));
    }
    // The favourites have their icon.
    const QRect icon = window.areaOf(iconLabel(window.parts().favourites()));
    QVERIFY(!ImageChecks::isFilled(image, icon, Title).isEmpty());
}

void tst_RibbonGallerySheet::titlesKeepTheirHeightWithoutTheSheet_data()
{
    QTest::addColumn<bool>("isOpenedBefore");
    QTest::newRow("taken away before the popup opens") << false;
    QTest::newRow("taken away after the popup was open") << true;
}

void tst_RibbonGallerySheet::titlesKeepTheirHeightWithoutTheSheet()
{
    QFETCH(const bool, isOpenedBefore);
    BarWindow window(Qt::LeftToRight);
    window.gallery()->setItemCollected(0, 0, true);
    QVERIFY(Input::show(&window));
    if (isOpenedBefore) {
        QVERIFY(window.open());
        window.menu()->close();
    }
    window.findChild<RibbonBar *>()->setStyleSheet(QString());
    QVERIFY(window.open());
    for (int i = -1; i < 3; ++i) {
        const RibbonGalleryGroup *group = i < 0 ? window.parts().favourites()
                                                : window.parts().group(i);
        QTRY_COMPARE(titleFrame(group)->height(), 24);
    }
    window.menu()->close();
}

void tst_RibbonGallerySheet::titlesHaveTheirFont()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    const QImage image = window.image(ratio);
    for (int i = 0; i < 3; ++i) {
        const QLabel *label = titleLabel(window.parts().group(i));
        QCOMPARE(label->font().pixelSize(), 11);
        QVERIFY(label->font().bold());
        const QRect text = window.areaOf(label);
        VERIFY_IMAGE(ImageChecks::contains(image, text, Black));
        VERIFY_IMAGE(ImageChecks::contains(image, text, Title));
        // At the beginning of the line.
        const QRect title = window.areaOf(titleFrame(window.parts().group(i)));
        if (direction == Qt::LeftToRight)
            QCOMPARE(text.left(), title.left() + 4);
        else
            QCOMPARE(text.right(), title.right() - 4);
    }
}

void tst_RibbonGallerySheet::moveButtonsShowTheirState()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QString, state);
    BarWindow window(direction);
    QVERIFY(window.open());
    const RibbonGalleryGroup *group = window.parts().group(1);
    const QRect title = window.areaOf(titleFrame(group));
    for (QPushButton *button : {toTop(group), toBottom(group)}) {
        BarWindow::setState(button, state);
        const QRect rect = window.areaOf(button);
        QCOMPARE(rect.size(), QSize(22, 22));
        QCOMPARE(rect.center().y(), title.center().y());
        const QRect inside = rect.marginsRemoved(Border);
        const QImage image = window.image(ratio);
        QColor frame = Title;
        if (state == "hovered"_L1)
            frame = HoveredMove;
        else if (state == "pressed"_L1)
            frame = PressedMove;
        VERIFY_IMAGE(ImageChecks::isFilled(image, rect, frame, {inside}));
        VERIFY_IMAGE(ImageChecks::isFilled(image, inside, Title, {middle(rect, QSize(16, 16))}));
        QVERIFY(!ImageChecks::isFilled(image, inside, Title).isEmpty());
        button->setDown(false);
    }
    // Both at the end of the line, the one for the bottom last.
    const QRect last = window.areaOf(toBottom(group));
    const QRect first = window.areaOf(toTop(group));
    if (direction == Qt::LeftToRight) {
        QCOMPARE(last.right(), title.right() - 4);
        QCOMPARE(first.right(), last.left() - 1);
    } else {
        QCOMPARE(last.left(), title.left() + 4);
        QCOMPARE(first.left(), last.right() + 1);
    }
}

void tst_RibbonGallerySheet::rulesOfTheSearchRowEndThere()
{
    BarWindow window(Qt::LeftToRight);
    QVERIFY(window.open());
    QCOMPARE(window.parts().searchEdit()->maximumHeight(), 22);
    QCOMPARE(window.parts().closeButton()->maximumWidth(), 22);
    // What a host puts between the tiles looks as it does elsewhere in the ribbon.
    QPushButton button(itemsFrame(window.parts().group(0)));
    QLineEdit edit(itemsFrame(window.parts().group(0)));
    button.ensurePolished();
    edit.ensurePolished();
    QVERIFY(button.maximumWidth() > 22);
    QVERIFY(button.maximumHeight() > 22);
    QVERIFY(edit.maximumHeight() > 22);
}

void tst_RibbonGallerySheet::tilesShowThePointer()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    RibbonGalleryItem *tile = window.parts().tile(0, 0);
    const QRect rect = window.areaOf(tile);
    const QRect bottom(rect.left() + 5, rect.bottom(), rect.width() - 10, 1);
    VERIFY_IMAGE(ImageChecks::isFilled(window.image(ratio), bottom, White));
    Input::move(tile);
    VERIFY_IMAGE(ImageChecks::isFilled(window.image(ratio), bottom, TileFrame));
    tile->setDown(true);
    const QRect ground = rect.adjusted(30, 20, -30, -20);
    VERIFY_IMAGE(ImageChecks::isFilled(window.image(ratio), ground, Pressed));
    tile->setDown(false);
}

void tst_RibbonGallerySheet::theLineWithoutMatchIsReadable()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    window.parts().searchEdit()->setText(u"x"_s);
    QCoreApplication::sendPostedEvents();
    const QLabel *label = window.parts().noMatchLabel();
    const QRect line = window.areaOf(label);
    QCOMPARE(line.size(), QSize(window.parts().content()->width(), 30));
    const QImage image = window.image(ratio);
    // White around the text, which stands in the middle.
    const QRect text = ImageChecks::paintedRect(image, line, White);
    QVERIFY(!text.isEmpty());
    QVERIFY(line.adjusted(50, 1, -50, -1).contains(text));
    QVERIFY(qAbs(text.center().x() - line.center().x()) <= 2);
}

void tst_RibbonGallerySheet::theScrollBarHasItsWidthAndColors()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open(200));
    const QScrollBar *bar = window.popup()->verticalScrollBar();
    QVERIFY(bar->isVisible());
    const QRect area = window.areaOf(bar);
    const QRect popup = window.areaOf(window.popup());
    QCOMPARE(area.size(), QSize(17, 200));
    QCOMPARE(direction == Qt::LeftToRight ? area.right() : area.left(),
             direction == Qt::LeftToRight ? popup.right() : popup.left());
    QCOMPARE(popup.width(), window.gallery()->width() + 17);
    QCOMPARE(window.parts().content()->width(), window.gallery()->width());

    QStyleOptionSlider option;
    option.initFrom(bar);
    option.orientation = Qt::Vertical;
    option.maximum = bar->maximum();
    option.pageStep = bar->pageStep();
    option.subControls = QStyle::SC_All;
    const QRect handle = bar->style()
                             ->subControlRect(QStyle::CC_ScrollBar, &option,
                                              QStyle::SC_ScrollBarSlider, bar)
                             .translated(area.topLeft());
    const QRect arrow(0, 0, 17, 17);
    const QRect up = arrow.translated(area.topLeft());
    const QRect down = arrow.translated(area.left(), area.bottom() - 16);
    QCOMPARE(handle.top(), up.bottom() + 1);
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, ScrollGround, {handle, up, down}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, handle.adjusted(3, 0, -3, 0), ScrollHandle));
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(handle.topLeft(), QSize(3, handle.height())),
                                       ScrollGround));
    for (const QRect &button : {up, down}) {
        QVERIFY(!ImageChecks::isFilled(image, button, ScrollGround).isEmpty());
        VERIFY_IMAGE(
            ImageChecks::isFilled(image, QRect(button.topLeft(), QSize(17, 2)), ScrollGround));
    }
}

void tst_RibbonGallerySheet::everythingFitsIntoTheMenu_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_RibbonGallerySheet::everythingFitsIntoTheMenu()
{
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    QVERIFY(window.open());
    QVERIFY(!window.popup()->verticalScrollBar()->isVisible());
    QCOMPARE(window.popup()->height(), SearchRow + 3 * FirstRow + OtherRow);
    const QRect content = window.parts().content()->rect();
    for (int i = 0; i < 3; ++i)
        QVERIFY(content.contains(window.parts().group(i)->geometry()));
    // Six tiles in a row, the seventh below the first.
    const RibbonGalleryGroup *group = window.parts().group(1);
    QCOMPARE(group->item(5)->y(), group->item(0)->y());
    QCOMPARE(group->item(6)->pos(), group->item(0)->pos() + QPoint(0, TileSize.height()));
}

QTEST_MAIN(tst_RibbonGallerySheet)

#include "tst_ribbongallerysheet.moc"
