// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/TileWindow.h"

#include "support/ImageChecks.h"
#include "support/StrangePalette.h"
#include "support/TestCase.h"

#include <QPainter>
#include <QStyle>

#include <array>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QColor FrameColor(125, 125, 125);
constexpr QColor PressedColor(217, 217, 217);
constexpr QColor DisabledText(107, 118, 125);
constexpr QColor IconColor(200, 0, 0);

// A tile of 90x60 px: the frame of 1 px, 4 px above, then the icon of 24 px in a band of 28 px and
// below it the text.
constexpr QRect Whole(0, 0, 90, 60);
constexpr QRect Inside(1, 1, 88, 58);
constexpr QRect IconRect(33, 7, 24, 24);
constexpr QRect TextRect(1, 32, 88, 26);
constexpr QRect StarRect(1, 1, 16, 16);
constexpr QRect StarButton(0, 0, 18, 18);
constexpr QSize Corner(4, 4); ///< what the round corners take of the frame

enum class State { Normal, Hovered, Pressed, Disabled, Favourite, HoveredFavourite };
constexpr std::array StateNames{"normal",   "hovered",   "pressed",
                                "disabled", "favourite", "hovered favourite"};

struct Look
{
    bool isHovered() const
    {
        return state == State::Hovered || state == State::Pressed
               || state == State::HoveredFavourite;
    }
    bool isFavourite() const
    {
        return state == State::Favourite || state == State::HoveredFavourite;
    }
    bool showsStar() const { return isHovered() || isFavourite(); }
    QColor ground() const
    {
        return state == State::Pressed ? PressedColor : ImageChecks::Untouched;
    }
    QRect visual(const QRect &rect) const { return QStyle::visualRect(direction, Whole, rect); }

    State state = State::Normal;
    int ratio = 1;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

template <typename Condition>
void addLooks(Condition condition)
{
    QTest::addColumn<Look>("look");
    for (std::size_t state = 0; state < StateNames.size(); ++state) {
        for (const int ratio : {1, 2}) {
            for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                const Look look{State(state), ratio, direction};
                if (condition(look))
                    QTest::addRow("%s, ratio %d, %s", StateNames[state], ratio,
                                  direction == Qt::LeftToRight ? "left to right" : "right to left")
                        << look;
            }
        }
    }
}

bool isAny(const Look & /*look*/)
{
    return true;
}

/// A tool button takes its pictures in the ratio of the screen.
bool isOfScreen(const Look &look)
{
    return look.ratio == qRound(qApp->devicePixelRatio());
}

/// Letters that are nothing but area.
QString blocks()
{
    return {4, QChar(0x2588)};
}

QIcon plainIcon()
{
    QPixmap pixmap(24, 24);
    pixmap.fill(IconColor);
    return pixmap;
}

/// A tile in one of the looks.
class Scene
{
public:
    explicit Scene(const Look &look, const QIcon &icon = plainIcon(),
                   const QString &text = blocks())
        : m_look(look), m_window(look.direction)
    {
        m_window.action()->setIcon(icon);
        m_window.action()->setText(text);
        m_window.tile()->setCollectEnabled(true);
    }
    ~Scene()
    {
        if (m_look.state == State::Pressed)
            Input::release(tile());
    }

    [[nodiscard]] bool show()
    {
        if (!m_window.showAlone())
            return false;
        m_window.action()->setEnabled(m_look.state != State::Disabled);
        if (m_look.isFavourite())
            tile()->setCollected(true);
        if (m_look.isHovered())
            m_window.enter();
        if (m_look.state == State::Pressed)
            Input::press(tile());
        return tile()->size() == Whole.size();
    }

    TileWindow &window() { return m_window; }
    RibbonGalleryItem *tile() const { return m_window.tile(); }
    QImage image() const { return ImageChecks::rendered(tile(), m_look.ratio); }

private:
    Q_DISABLE_COPY_MOVE(Scene)

    Look m_look;
    TileWindow m_window;
};

/// The corners of \a rect, without which its frame is straight.
QList<QRect> cornersOf(const QRect &rect, QSize size)
{
    const QPoint right(rect.width() - size.width(), 0);
    const QPoint bottom(0, rect.height() - size.height());
    return {{rect.topLeft(), size},
            {rect.topLeft() + right, size},
            {rect.topLeft() + bottom, size},
            {rect.topLeft() + right + bottom, size}};
}

} // namespace

Q_DECLARE_METATYPE(Look)

class tst_RibbonGalleryItemPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void iconFillsItsRectangle_data() { addLooks(isAny); }
    void iconFillsItsRectangle();
    void iconIsNotScaled_data();
    void iconIsNotScaled();
    void largerIconTakesMoreOfTheTile();
    void textHasItsColor_data() { addLooks(isAny); }
    void textHasItsColor();
    void textStandsInTheMiddleBelowTheIcon_data();
    void textStandsInTheMiddleBelowTheIcon();
    void onlyTheHoveredTileHasAFrame_data() { addLooks(isAny); }
    void onlyTheHoveredTileHasAFrame();
    void onlyThePressedTileIsFilled_data() { addLooks(isAny); }
    void onlyThePressedTileIsFilled();
    void starIsThePictureOfItsState_data();
    void starIsThePictureOfItsState();
    void withoutStarItsCornerIsEmpty_data();
    void withoutStarItsCornerIsEmpty();
    void pressedStarIsFramedAndFilled_data();
    void pressedStarIsFramedAndFilled();
    void clickedStarLooksLikeAnyOther();
    void longTextIsShortenedAtItsEnd_data();
    void longTextIsShortenedAtItsEnd();
    void fittingTextIsNotShortened();
    void rightToLeftIsTheMirrorImage_data();
    void rightToLeftIsTheMirrorImage();
    void leavingBringsTheNormalLookBack();
    void hostsMayChooseAnotherLook_data();
    void hostsMayChooseAnotherLook();
};

void tst_RibbonGalleryItemPainting::initTestCase()
{
    TestCase::initTestCase();
    // Nothing that is black or grey can come from here.
    QApplication::setPalette(strangePalette());
}

void tst_RibbonGalleryItemPainting::iconFillsItsRectangle()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    const QImage image = scene.image();
    QColor color = IconColor;
    if (look.state == State::Disabled) {
        color = plainIcon().pixmap(IconRect.size(), 1, QIcon::Disabled).toImage().pixelColor(0, 0);
        QVERIFY(color != IconColor);
    }
    VERIFY_IMAGE(ImageChecks::isFilled(image, IconRect, color));
    for (const QPoint step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        QVERIFY(!ImageChecks::isFilled(image, IconRect.translated(step), color).isEmpty());
}

void tst_RibbonGalleryItemPainting::iconIsNotScaled_data()
{
    addLooks([](const Look &look) { return isOfScreen(look) && look.state != State::Disabled; });
}

void tst_RibbonGalleryItemPainting::iconIsNotScaled()
{
    QFETCH(const Look, look);
    QIcon icon;
    for (const int ratio : {1, 2})
        icon.addPixmap(ImageChecks::checkerboard(IconRect.size(), ratio));
    Scene scene(look, icon);
    QVERIFY(scene.show());
    QImage expected = ImageChecks::blank(Whole.size(), look.ratio);
    QPainter(&expected).drawPixmap(IconRect.topLeft(),
                                   ImageChecks::checkerboard(IconRect.size(), look.ratio));
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), expected, IconRect));
}

void tst_RibbonGalleryItemPainting::largerIconTakesMoreOfTheTile()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(IconColor);
    Scene scene({}, pixmap, QString());
    scene.tile()->setIconSize(QSize(32, 32));
    QVERIFY(scene.show());
    const QRect rect(29, 7, 32, 32);
    VERIFY_IMAGE(ImageChecks::isFilled(scene.image(), rect, IconColor));
    QCOMPARE(ImageChecks::paintedRect(scene.image(), Whole), rect);
}

void tst_RibbonGalleryItemPainting::textHasItsColor()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    const bool isDisabled = look.state == State::Disabled;
    const QImage image = scene.image();
    VERIFY_IMAGE(ImageChecks::contains(image, TextRect, isDisabled ? DisabledText : Qt::black));
    QVERIFY(
        !ImageChecks::contains(image, TextRect, isDisabled ? Qt::black : DisabledText).isEmpty());
}

void tst_RibbonGalleryItemPainting::textStandsInTheMiddleBelowTheIcon_data()
{
    addLooks([](const Look &look) { return look.state != State::Pressed && !look.isHovered(); });
}

void tst_RibbonGalleryItemPainting::textStandsInTheMiddleBelowTheIcon()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    const QRect below(0, IconRect.bottom() + 1, Whole.width(), Whole.bottom() - IconRect.bottom());
    const QRect painted = ImageChecks::paintedRect(scene.image(), below);
    QVERIFY(TextRect.contains(painted));
    const int width = scene.tile()->fontMetrics().horizontalAdvance(blocks());
    QVERIFY(std::abs(painted.width() - width) <= 2);
    const QPoint off = painted.center() - TextRect.center();
    QVERIFY(std::abs(off.x()) <= 1);
    QVERIFY(std::abs(off.y()) <= 2);
}

void tst_RibbonGalleryItemPainting::onlyTheHoveredTileHasAFrame()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    const QImage image = scene.image();
    QList<QRect> except = cornersOf(Whole, Corner);
    except.append(Inside);
    VERIFY_IMAGE(ImageChecks::isFilled(
        image, Whole, look.isHovered() ? FrameColor : ImageChecks::Untouched, except));
    // A round corner: its outermost pixel is not the frame's.
    for (const QRect &corner : cornersOf(Whole, QSize(1, 1)))
        QVERIFY(ImageChecks::colorAt(image, corner.topLeft()) != FrameColor);
}

void tst_RibbonGalleryItemPainting::onlyThePressedTileIsFilled()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    QList<QRect> except = cornersOf(Whole, Corner);
    except << IconRect << TextRect.adjusted(20, 0, -20, 0) << look.visual(StarButton);
    VERIFY_IMAGE(ImageChecks::isFilled(scene.image(), Inside, look.ground(), except));
}

void tst_RibbonGalleryItemPainting::starIsThePictureOfItsState_data()
{
    addLooks([](const Look &look) { return isOfScreen(look) && look.showsStar(); });
}

void tst_RibbonGalleryItemPainting::starIsThePictureOfItsState()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    const QIcon icon(look.isFavourite() ? u":/res/collected.svg"_s : u":/res/collect.svg"_s);
    const QPixmap picture = icon.pixmap(StarRect.size(), look.ratio);
    QCOMPARE(picture.size(), StarRect.size() * look.ratio);
    const QRect rect = look.visual(StarRect);
    QImage expected = ImageChecks::blank(Whole.size(), look.ratio);
    expected.fill(look.ground());
    QPainter(&expected).drawPixmap(rect.topLeft(), picture);
    // Without the pixel below the round corner of the frame.
    const QRect straight = rect.marginsRemoved({2, 2, 2, 2});
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), expected, straight));
    QVERIFY(!ImageChecks::isFilled(expected, straight, look.ground()).isEmpty());
}

void tst_RibbonGalleryItemPainting::withoutStarItsCornerIsEmpty_data()
{
    addLooks([](const Look &look) { return !look.showsStar(); });
}

void tst_RibbonGalleryItemPainting::withoutStarItsCornerIsEmpty()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    VERIFY_IMAGE(
        ImageChecks::isFilled(scene.image(), look.visual(StarButton), ImageChecks::Untouched));
}

void tst_RibbonGalleryItemPainting::pressedStarIsFramedAndFilled_data()
{
    addLooks([](const Look &look) {
        return look.state == State::Hovered || look.state == State::HoveredFavourite;
    });
}

void tst_RibbonGalleryItemPainting::pressedStarIsFramedAndFilled()
{
    QFETCH(const Look, look);
    Scene scene(look);
    QVERIFY(scene.show());
    Input::press(scene.window().star());
    const QImage image = scene.image();
    // Out of the star, so that nothing changes.
    Input::release(scene.tile());
    const QRect button = look.visual(StarButton);
    const QRect inside = look.visual(StarRect);
    QList<QRect> except = cornersOf(button, QSize(2, 2));
    except.append(inside);
    VERIFY_IMAGE(ImageChecks::isFilled(image, button, FrameColor, except));
    // The star itself does not reach into the corners of its picture.
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, {inside.topLeft() + QPoint(1, 1), QSize(4, 4)}, PressedColor));
    QVERIFY(!ImageChecks::isFilled(image, inside, PressedColor).isEmpty());
    // The tile itself is not pressed.
    VERIFY_IMAGE(ImageChecks::isFilled(image, {20, 20, 10, 10}, ImageChecks::Untouched));
}

void tst_RibbonGalleryItemPainting::clickedStarLooksLikeAnyOther()
{
    const Look look{State::HoveredFavourite, 1, Qt::LeftToRight};
    Scene marked(look);
    QVERIFY(marked.show());
    const QImage expected = marked.image();
    marked.window().hide();

    Scene clicked({State::Hovered, 1, Qt::LeftToRight});
    QVERIFY(clicked.show());
    Input::click(clicked.window().star());
    QVERIFY(clicked.tile()->isCollected());
    clicked.window().enter();
    VERIFY_IMAGE(ImageChecks::isSame(clicked.image(), expected, Whole));
}

void tst_RibbonGalleryItemPainting::longTextIsShortenedAtItsEnd_data()
{
    addLooks([](const Look &look) { return look.state == State::Normal; });
}

void tst_RibbonGalleryItemPainting::longTextIsShortenedAtItsEnd()
{
    QFETCH(const Look, look);
    const QString text = u"Heading of many words"_s;
    Scene scene(look, plainIcon(), text);
    QVERIFY(scene.show());
    const QFontMetrics metrics = scene.tile()->fontMetrics();
    QVERIFY(metrics.horizontalAdvance(text) > 90);
    const QImage image = scene.image();
    // 3 px stay free at either side.
    VERIFY_IMAGE(ImageChecks::isFilled(image, {0, 32, 3, 28}, ImageChecks::Untouched));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {87, 32, 3, 28}, ImageChecks::Untouched));

    const QString shortened = metrics.elidedText(text, Qt::ElideRight, 84);
    QVERIFY(shortened.startsWith(u"Head"_s));
    QVERIFY(shortened.endsWith(QChar(0x2026)));
    scene.window().action()->setText(shortened);
    VERIFY_IMAGE(ImageChecks::isSame(image, scene.image(), Whole));
}

void tst_RibbonGalleryItemPainting::fittingTextIsNotShortened()
{
    Scene scene({}, QIcon(), u"Heading"_s);
    QVERIFY(scene.show());
    const QImage fixed = scene.image();
    // A tile without a fixed size is never narrower than its text.
    scene.tile()->setMinimumSize(0, 0);
    VERIFY_IMAGE(ImageChecks::isSame(fixed, scene.image(), Whole));
}

void tst_RibbonGalleryItemPainting::rightToLeftIsTheMirrorImage_data()
{
    addLooks([](const Look &look) { return look.direction == Qt::RightToLeft; });
}

void tst_RibbonGalleryItemPainting::rightToLeftIsTheMirrorImage()
{
    QFETCH(const Look, look);
    QImage leftToRight;
    {
        Scene other({look.state, look.ratio, Qt::LeftToRight});
        QVERIFY(other.show());
        leftToRight = other.image();
    }
    Scene scene(look);
    QVERIFY(scene.show());
    QList<QRect> except = cornersOf(Whole, Corner);
    except << TextRect << look.visual(StarRect);
    VERIFY_IMAGE(ImageChecks::isMirrored(scene.image(), leftToRight, except));
}

void tst_RibbonGalleryItemPainting::leavingBringsTheNormalLookBack()
{
    Scene scene({});
    QVERIFY(scene.show());
    const QImage normal = scene.image();
    scene.window().enter();
    QVERIFY(!ImageChecks::isSame(scene.image(), normal, Whole).isEmpty());
    scene.window().leave();
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), normal, Whole));
}

void tst_RibbonGalleryItemPainting::hostsMayChooseAnotherLook_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("icon");
    // Padding and frame come on top of 88x58 and 62x62 px.
    QTest::newRow("app") << u"app"_s << QSize(90, 64) << QRect(33, 7, 24, 24);
    QTest::newRow("figure") << u"figure"_s << QSize(64, 64) << QRect(20, 3, 24, 24);
}

void tst_RibbonGalleryItemPainting::hostsMayChooseAnotherLook()
{
    QFETCH(const QString, mode);
    QFETCH(const QSize, size);
    QFETCH(const QRect, icon);
    Scene scene({});
    scene.tile()->setProperty("mode", mode);
    QVERIFY(!scene.show());
    QCOMPARE(scene.tile()->size(), size);
    QCOMPARE(scene.tile()->sizeHint(), size);
    const QImage image = scene.image();
    VERIFY_IMAGE(ImageChecks::isFilled(image, icon, IconColor));
    for (const QPoint step : {QPoint(-1, 0), QPoint(0, -1)})
        QVERIFY(!ImageChecks::isFilled(image, icon.translated(step), IconColor).isEmpty());
}

QTEST_MAIN(tst_RibbonGalleryItemPainting)
#include "tst_ribbongalleryitempainting.moc"
