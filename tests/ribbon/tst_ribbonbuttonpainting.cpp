// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ribbon/RibbonButtonLooks.h"

#include "support/ImageChecks.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QAction>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace RibbonButtonLooks;
using namespace VornFrame;

namespace {

template <typename Condition>
void addLooks(Condition condition)
{
    QTest::addColumn<Look>("look");
    for (std::size_t form = 0; form < FormNames.size(); ++form) {
        for (std::size_t menu = 0; menu < MenuNames.size(); ++menu) {
            for (std::size_t state = 0; state < StateNames.size(); ++state) {
                for (const int ratio : {1, 2}) {
                    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                        const Look look{Form(form), Menu(menu), State(state), ratio, direction};
                        if (!condition(look))
                            continue;
                        QTest::addRow("%s, %s, %s, ratio %d, %s", FormNames[form], MenuNames[menu],
                                      StateNames[state], ratio,
                                      direction == Qt::LeftToRight ? "left to right"
                                                                   : "right to left")
                            << look;
                    }
                }
            }
        }
    }
}

} // namespace

class tst_RibbonButtonPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wholePictureIsAsDescribed_data();
    void wholePictureIsAsDescribed();
    void iconFillsItsRectangle_data();
    void iconFillsItsRectangle();
    void iconIsNotScaled_data();
    void iconIsNotScaled();
    void textStandsInItsRectangle_data();
    void textStandsInItsRectangle();
    void twoLinesAreAsWideAsTheWiderOne();
    void marksOfMnemonicsAreNotPainted_data();
    void marksOfMnemonicsAreNotPainted();
    void arrowFillsItsRectangle_data();
    void arrowFillsItsRectangle();
    void buttonWithoutMenuHasNoArrow();
    void onlyHoveredOrCheckedButtonsHaveABackground_data();
    void onlyHoveredOrCheckedButtonsHaveABackground();
    void frameLinesTheOuterPixels_data();
    void frameLinesTheOuterPixels();
    void plainButtonIsFilledAsOne_data();
    void plainButtonIsFilledAsOne();
    void onlyTheHoveredPartIsFilled_data();
    void onlyTheHoveredPartIsFilled();
    void dividerSeparatesTheParts_data();
    void dividerSeparatesTheParts();
    void rightToLeftIsTheMirrorImage_data();
    void rightToLeftIsTheMirrorImage();
    void highlightFollowsThePointer();
    void closingTheMenuEndsTheHighlight();
    void enteringAndLeavingRepaint_data();
    void enteringAndLeavingRepaint();
    void goingToTheOtherPartRepaints();
};

void tst_RibbonButtonPainting::wholePictureIsAsDescribed_data()
{
    addLooks([](const Look & /*look*/) { return true; });
}

void tst_RibbonButtonPainting::wholePictureIsAsDescribed()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    QCOMPARE(scene.button()->size(), geometry.size());
    const ExpectedPicture expected(look, geometry, scene.button()->font());
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), expected.image(), geometry.whole(), 4));
}

void tst_RibbonButtonPainting::iconFillsItsRectangle_data()
{
    addLooks([](const Look & /*look*/) { return true; });
}

void tst_RibbonButtonPainting::iconFillsItsRectangle()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    const QColor color = ExpectedPicture(look, geometry, scene.button()->font()).icon();
    const QImage image = scene.image();
    VERIFY_IMAGE(ImageChecks::isFilled(image, geometry.icon(), color));
    // Nor does it reach beyond.
    for (const QPoint step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        QVERIFY(!ImageChecks::isFilled(image, geometry.icon().translated(step), color).isEmpty());
}

void tst_RibbonButtonPainting::iconIsNotScaled_data()
{
    addLooks([](const Look &look) {
        return look.state == State::Normal || look.state == State::HoveredMain;
    });
}

void tst_RibbonButtonPainting::iconIsNotScaled()
{
    QFETCH(const Look, look);
    QIcon icon;
    for (const QSize size : {QSize(16, 16), QSize(24, 24)}) {
        for (const int ratio : {1, 2})
            icon.addPixmap(ImageChecks::checkerboard(size, ratio));
    }
    Scene scene(look, icon);
    const QRect rect = scene.geometry().icon();
    QImage expected = ImageChecks::blank(scene.geometry().size(), look.ratio);
    QPainter(&expected).drawPixmap(rect.topLeft(),
                                   ImageChecks::checkerboard(rect.size(), look.ratio));
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), expected, rect));
}

void tst_RibbonButtonPainting::textStandsInItsRectangle_data()
{
    addLooks([](const Look &look) {
        return look.form != Form::IconOnly && look.menu == Menu::None && !look.hasBackground();
    });
}

void tst_RibbonButtonPainting::textStandsInItsRectangle()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    const QRect rect = geometry.text();
    QRect around = geometry.whole();
    if (look.isLarge())
        around.setTop(geometry.icon().bottom() + 1);
    else if (look.direction == Qt::LeftToRight)
        around.setLeft(geometry.icon().right() + 1);
    else
        around.setRight(geometry.icon().left() - 1);
    const QRect painted = ImageChecks::paintedRect(scene.image(), around);
    QVERIFY(!painted.isEmpty());
    QVERIFY(rect.adjusted(-1, -1, 1, 1).contains(painted));
    if (look.state == State::ThreeLines)
        return; // wrapped at its widest word, which need not fill the width
    // The bearings of the first and last letter are all that the text may leave free at its ends.
    QVERIFY(painted.left() <= rect.left() + 2);
    QVERIFY(painted.right() >= rect.right() - 2);
}

void tst_RibbonButtonPainting::twoLinesAreAsWideAsTheWiderOne()
{
    const Look look{Form::Large, Menu::None, State::TwoLines, 1, Qt::LeftToRight};
    Scene widerBelow(look);
    QStringList lines = look.text().split(u'\n');
    std::reverse(lines.begin(), lines.end());
    Scene widerAbove(look, testIcon(), lines.join(u'\n'));
    QCOMPARE(widerAbove.button()->size(), widerBelow.button()->size());
}

void tst_RibbonButtonPainting::marksOfMnemonicsAreNotPainted_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("first letter") << u"&Options"_s;
    QTest::newRow("second letter") << u"O&ptions"_s;
    QTest::newRow("last letter") << u"Option&s"_s;
}

void tst_RibbonButtonPainting::marksOfMnemonicsAreNotPainted()
{
    QFETCH(const QString, text);
    const Look look{Form::Small, Menu::None, State::Normal, 1, Qt::LeftToRight};
    Scene plain(look);
    Scene marked(look, testIcon(), text);
    QCOMPARE(marked.button()->size(), plain.button()->size());
    VERIFY_IMAGE(ImageChecks::isSame(marked.image(), plain.image(), plain.geometry().whole()));
}

void tst_RibbonButtonPainting::arrowFillsItsRectangle_data()
{
    addLooks([](const Look &look) {
        return look.form != Form::IconOnly && look.menu != Menu::None && !look.hasBackground()
               && !look.hasTextUnderArrow();
    });
}

void tst_RibbonButtonPainting::arrowFillsItsRectangle()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    const QImage image = scene.image();
    const QRect arrow = geometry.arrow();
    QCOMPARE(arrow.size(), QSize(8, 4));
    QRect around = arrow.adjusted(-2, -2, 2, 2);
    if (look.isSmall())
        around &= geometry.whole();
    QCOMPARE(ImageChecks::paintedRect(image, around), arrow);
    QImage expected = ImageChecks::blank(geometry.size(), look.ratio);
    QPainter painter(&expected);
    QIcon(u":/res/arrow.svg"_s)
        .paint(&painter, arrow, Qt::AlignCenter,
               look.isEnabled() ? QIcon::Normal : QIcon::Disabled);
    VERIFY_IMAGE(ImageChecks::isSame(image, expected, arrow));
}

void tst_RibbonButtonPainting::buttonWithoutMenuHasNoArrow()
{
    const Look look{Form::Large, Menu::None, State::Normal, 1, Qt::LeftToRight};
    Scene scene(look);
    VERIFY_IMAGE(
        ImageChecks::isFilled(scene.image(), scene.geometry().arrow(), ImageChecks::Untouched));
}

void tst_RibbonButtonPainting::onlyHoveredOrCheckedButtonsHaveABackground_data()
{
    addLooks([](const Look &look) { return !look.hasBackground(); });
}

void tst_RibbonButtonPainting::onlyHoveredOrCheckedButtonsHaveABackground()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    if (look.state == State::Disabled)
        scene.hover(true);
    VERIFY_IMAGE(ImageChecks::isFilled(scene.image(), geometry.whole(), ImageChecks::Untouched,
                                       {geometry.icon(), geometry.text().adjusted(-1, -1, 1, 1),
                                        look.menu == Menu::None ? QRect() : geometry.arrow()}));
}

void tst_RibbonButtonPainting::frameLinesTheOuterPixels_data()
{
    addLooks([](const Look &look) { return look.hasBackground(); });
}

void tst_RibbonButtonPainting::frameLinesTheOuterPixels()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    const QImage image = scene.image();
    QList<QRect> except = geometry.corners();
    except.append(geometry.inside());
    VERIFY_IMAGE(ImageChecks::isFilled(image, geometry.whole(), FrameColor, except));
    // A round corner: its outermost pixel is not the line's.
    QVERIFY(ImageChecks::colorAt(image, {0, 0}) != FrameColor);
}

void tst_RibbonButtonPainting::plainButtonIsFilledAsOne_data()
{
    addLooks([](const Look &look) { return look.hasBackground() && !look.isSplit(); });
}

void tst_RibbonButtonPainting::plainButtonIsFilledAsOne()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    const QColor fill = ExpectedPicture(look, geometry, scene.button()->font()).fill();
    QList<QRect> except = geometry.corners();
    except << geometry.icon() << geometry.text().adjusted(-1, -1, 1, 1);
    if (look.menu != Menu::None && look.form != Form::IconOnly)
        except << geometry.arrow();
    VERIFY_IMAGE(ImageChecks::isFilled(scene.image(), geometry.inside(), fill, except));
}

void tst_RibbonButtonPainting::onlyTheHoveredPartIsFilled_data()
{
    addLooks([](const Look &look) { return look.hasBackground() && look.hasParts(); });
}

void tst_RibbonButtonPainting::onlyTheHoveredPartIsFilled()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    const QImage image = scene.image();
    QList<QRect> except = geometry.corners();
    except << geometry.icon() << geometry.text().adjusted(-1, -1, 1, 1) << geometry.arrow();
    const QColor fill = ExpectedPicture(look, geometry, scene.button()->font()).fill();
    const QColor mainColor = look.isOverMenuPart() ? ImageChecks::Untouched : fill;
    const QColor menuColor = look.isOverMenuPart() ? fill : ImageChecks::Untouched;
    VERIFY_IMAGE(ImageChecks::isFilled(image, geometry.mainPartInside(), mainColor, except));
    VERIFY_IMAGE(ImageChecks::isFilled(image, geometry.menuPartInside(), menuColor, except));
}

void tst_RibbonButtonPainting::dividerSeparatesTheParts_data()
{
    addLooks([](const Look &look) {
        return look.hasBackground() && look.hasParts()
               && !(look.isSmall() && look.hasTextUnderArrow());
    });
}

void tst_RibbonButtonPainting::dividerSeparatesTheParts()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const Geometry geometry = scene.geometry();
    const QColor color = ExpectedPicture(look, geometry, scene.button()->font()).dividerColor();
    VERIFY_IMAGE(ImageChecks::isFilled(scene.image(), geometry.divider(), color));
}

void tst_RibbonButtonPainting::rightToLeftIsTheMirrorImage_data()
{
    addLooks([](const Look &look) { return look.direction == Qt::RightToLeft; });
}

void tst_RibbonButtonPainting::rightToLeftIsTheMirrorImage()
{
    QFETCH(Look, look);
    Scene mirrored(look);
    QList<QRect> text{mirrored.geometry().text().adjusted(-2, -1, 2, 1)};
    look.direction = Qt::LeftToRight;
    Scene scene(look);
    VERIFY_IMAGE(ImageChecks::isMirrored(mirrored.image(), scene.image(), text, 4));
}

void tst_RibbonButtonPainting::highlightFollowsThePointer()
{
    const Look look{Form::Small, Menu::Split, State::Normal, 1, Qt::LeftToRight};
    Scene scene(look);
    const QImage normal = scene.image();
    const Geometry geometry = scene.geometry();
    const QPoint inMain(geometry.mainPartInside().left() + 1, 10);
    const QPoint inMenu(geometry.menuPartInside().left() + 1, 10);

    scene.hover(false);
    QCOMPARE(ImageChecks::colorAt(scene.image(), inMain), HoverColor);
    QCOMPARE(ImageChecks::colorAt(scene.image(), inMenu), ImageChecks::Untouched);
    scene.hover(true);
    QCOMPARE(ImageChecks::colorAt(scene.image(), inMain), ImageChecks::Untouched);
    QCOMPARE(ImageChecks::colorAt(scene.image(), inMenu), HoverColor);
    scene.leave();
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), normal, geometry.whole()));
}

void tst_RibbonButtonPainting::closingTheMenuEndsTheHighlight()
{
    const Look look{Form::Large, Menu::Split, State::Normal, 1, Qt::LeftToRight};
    Scene scene(look);
    const QImage normal = scene.image();
    scene.hover(true);
    Q_EMIT scene.menu()->aboutToHide();
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), normal, scene.geometry().whole()));
}

void tst_RibbonButtonPainting::enteringAndLeavingRepaint_data()
{
    QTest::addColumn<QString>("styleName");
    // One style asks for repaints of hovered buttons by itself, the other one does not.
    QTest::newRow("Fusion") << u"Fusion"_s;
    QTest::newRow("Windows") << u"Windows"_s;
}

namespace {

class PaintWatcher : public QObject
{
public:
    explicit PaintWatcher(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_hasPainted = true;
        return QObject::eventFilter(watched, event);
    }

    bool hasPainted() const { return m_hasPainted; }
    void reset()
    {
        QCoreApplication::processEvents();
        m_hasPainted = false;
    }

private:
    bool m_hasPainted = false;
};

} // namespace

void tst_RibbonButtonPainting::enteringAndLeavingRepaint()
{
    QFETCH(const QString, styleName);
    const std::unique_ptr<QStyle> style(QStyleFactory::create(styleName));
    QWidget window;
    QAction action(u"Options"_s);
    auto *button = new RibbonButton(&window);
    button->setStyle(style.get());
    button->setAction(&action);
    button->move(50, 50);
    window.resize(200, 200);
    QVERIFY(Input::show(&window));
    Input::move(&window, QPoint(10, 10));

    PaintWatcher watcher(button);
    Input::move(button);
    QTRY_VERIFY(watcher.hasPainted());
    watcher.reset();
    Input::move(&window, QPoint(10, 10));
    QTRY_VERIFY(watcher.hasPainted());
}

void tst_RibbonButtonPainting::goingToTheOtherPartRepaints()
{
    QWidget window;
    QMenu menu(u"Options"_s);
    auto *button = new RibbonButton(&window);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAction(menu.menuAction());
    button->setPopupMode(QToolButton::MenuButtonPopup);
    window.resize(200, 200);
    QVERIFY(Input::show(&window));
    const QPoint inMain(10, 10);
    const QPoint inMenu(10, 60);
    PaintWatcher watcher(button);
    Input::move(button, inMain);
    QTRY_VERIFY(watcher.hasPainted());
    watcher.reset();

    Input::move(button, inMain + QPoint(5, 5));
    QCoreApplication::processEvents();
    QVERIFY(!watcher.hasPainted());
    Input::move(button, inMenu);
    QTRY_VERIFY(watcher.hasPainted());
    watcher.reset();
    Input::move(button, inMain);
    QTRY_VERIFY(watcher.hasPainted());
}

QTEST_MAIN(tst_RibbonButtonPainting)
#include "tst_ribbonbuttonpainting.moc"
