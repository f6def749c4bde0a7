// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "dock/DockButton.h"
#include "dock/DockButton_p.h"
#include "support/ImageChecks.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

#include <cmath>
#include <memory>

// This program runs several times, each time on a screen of another device pixel ratio.

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QColor Red(200, 20, 20);
constexpr QColor Blue(20, 20, 200);
constexpr QColor Green(20, 160, 20);
constexpr QColor Frame(97, 97, 97);

qreal screenRatio()
{
    return QGuiApplication::primaryScreen()->devicePixelRatio();
}

/// The width and height of an icon on the screen, in device pixels.
int cell()
{
    return int(std::round(24 * screenRatio()));
}

/// What lies between two icons, in device pixels.
int gap()
{
    return int(std::trunc(3 * screenRatio()));
}

QPixmap flat(const QColor &color, int width = 96)
{
    QPixmap pixmap(width, width);
    pixmap.fill(color);
    return pixmap;
}

QList<QIcon> iconsOf(const QList<QColor> &colors)
{
    QList<QIcon> icons;
    for (const QColor &color : colors)
        icons.append(flat(color));
    return icons;
}

QImage plain(const QPixmap &pixmap)
{
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1);
    return image;
}

/// What the button shows, in device pixels.
QImage pictureOn(const DockButton &button)
{
    return plain(button.icon().pixmap(button.iconSize(), screenRatio()));
}

/// Flat squares where icons of \a colors have to lie in a bar of \a orientation.
QPixmap expectedPicture(const QList<QColor> &colors, Qt::Orientation orientation)
{
    const int count = int(colors.size());
    QPixmap pixmap(cell(), count * cell() + (count - 1) * gap());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    for (int i = 0; i < count; ++i) {
        const int offset = i * (cell() + gap());
        const QPoint at = orientation == Qt::Vertical ? QPoint(0, offset) : QPoint(offset, 0);
        painter.fillRect(QRect(at, QSize(cell(), cell())), colors.at(i));
    }
    painter.end();
    pixmap.setDevicePixelRatio(screenRatio());
    return pixmap;
}

/// Gives \a button the size that it has in a bar with so many icons.
void setUp(DockButton &button, const QList<QIcon> &icons)
{
    const int count = int(icons.size());
    const int height = 24 * count + 3 * (count - 1);
    button.setFixedSize(30, height + 6);
    button.setIconSize({24, height});
    button.setIcons(icons);
}

/// A button in a window that has room around it and the sheet of a bar.
class ButtonWindow : public QWidget
{
public:
    explicit ButtonWindow(const QList<QIcon> &icons,
                          QLatin1StringView sheet = ResourcePaths::DockSheet,
                          Qt::Orientation orientation = Qt::Vertical)
        : m_button(new DockButton(orientation, this))
    {
        if (!sheet.isEmpty())
            StyleSheets::load(this, sheet);
        resize(200, 200);
        m_button->move(50, 50);
        setUp(*m_button, icons);
    }

    DockButton &button() const { return *m_button; }

private:
    DockButton *m_button;
};

void addOrientations()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("vertical") << Qt::Vertical;
    QTest::newRow("horizontal") << Qt::Horizontal;
}

void addSheets()
{
    QTest::addColumn<QLatin1StringView>("sheet");
    QTest::newRow("sheet of the container") << ResourcePaths::DockSheet;
    QTest::newRow("sheet of the application") << ResourcePaths::GlobalSheet;
}

} // namespace

class tst_DockButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void screenHasTheRatioOfThisRun();
    void isAPushButtonInTheNamespace();
    void itsRecordStartsAsPromised_data() { addOrientations(); }
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void startsAsAFlatCheckableButton();
    void aClickChecksAndUnchecksIt();
    void returnInADialogDoesNotClickIt();

    void oneIconIsUsedAsItIs();
    void twoIconsAreComposedToOnePicture_data();
    void twoIconsAreComposedToOnePicture();
    void thePictureIsOfNormalOffPixmaps();
    void aSmallIconLiesInTheMiddleOfItsCell();
    void uncheckedButtonIsGreyed_data();
    void uncheckedButtonIsGreyed();
    void anIconsOwnDisabledPictureIsUsed();
    void togglingAgainBringsTheColorsBack();
    void missingIconsAreLeftOut_data() { addOrientations(); }
    void missingIconsAreLeftOut();
    void aNewResolutionOfTheScreenComposesAgain();
    void aDeletedButtonHearsNothingOfTheScreen();

    void iconsFillTheButtonButItsMargin_data();
    void iconsFillTheButtonButItsMargin();
    void greyedIconsFillTheSamePlaces();
    void sheetFramesTheButtonInUse_data() { addSheets(); }
    void sheetFramesTheButtonInUse();
    void rightToLeftChangesNoPicture();

    void toolTipsAreReadTogether();
    void toolTipFollowsThePointer_data();
    void toolTipFollowsThePointer();
    void toolTipOutsideTheBandsIsTheFirst_data();
    void toolTipOutsideTheBandsIsTheFirst();
    void withoutTextsTheToolTipStays();
};

void tst_DockButton::screenHasTheRatioOfThisRun()
{
    const qreal wanted = qEnvironmentVariable("QT_SCALE_FACTOR", u"1"_s).toDouble();
    QCOMPARE(screenRatio(), wanted);
}

void tst_DockButton::isAPushButtonInTheNamespace()
{
    QCOMPARE(QLatin1StringView(DockButton::staticMetaObject.className()),
             "VornFrame::DockButton"_L1);
    QCOMPARE(DockButton::staticMetaObject.superClass(), &QPushButton::staticMetaObject);
}

void tst_DockButton::itsRecordStartsAsPromised()
{
    QFETCH(const Qt::Orientation, orientation);
    const DockButtonPrivate d(orientation);
    QVERIFY(d.icons.isEmpty());
    QVERIFY(d.toolTips.isEmpty());
    QCOMPARE(d.orientation, orientation);
    QVERIFY(!d.q_ptr);
}

void tst_DockButton::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<DockButton> button = new DockButton(Qt::Vertical, parent.get());
    QCOMPARE(button->parent(), parent.get());
    parent.reset();
    QVERIFY(!button);
}

void tst_DockButton::startsAsAFlatCheckableButton()
{
    const DockButton button(Qt::Vertical, nullptr);
    QVERIFY(button.isFlat());
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    QVERIFY(button.text().isEmpty());
    QVERIFY(button.icon().isNull());
    QVERIFY(button.icons().isEmpty());
    QVERIFY(button.toolTips().isEmpty());
    QVERIFY(button.toolTip().isEmpty());
    QVERIFY(button.hasMouseTracking());
}

void tst_DockButton::aClickChecksAndUnchecksIt()
{
    ButtonWindow window(iconsOf({Red}));
    QVERIFY(Input::show(&window));
    const QSignalSpy toggled(&window.button(), &DockButton::toggled);
    Input::click(&window.button());
    QVERIFY(window.button().isChecked());
    Input::click(&window.button());
    QVERIFY(!window.button().isChecked());
    QCOMPARE(toggled.size(), 2);
}

void tst_DockButton::returnInADialogDoesNotClickIt()
{
    QDialog dialog;
    dialog.resize(200, 200);
    auto *edit = new QLineEdit(&dialog);
    edit->setGeometry(10, 100, 150, 30);
    DockButton button(Qt::Vertical, &dialog);
    button.setGeometry(10, 10, 30, 30);
    const QSignalSpy clicked(&button, &DockButton::clicked);
    QVERIFY(Input::show(&dialog));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Enter);
    QCOMPARE(clicked.size(), 0);
}

void tst_DockButton::oneIconIsUsedAsItIs()
{
    const QIcon icon(flat(Red));
    DockButton button(Qt::Vertical, nullptr);
    button.setIconSize({24, 24});
    button.setChecked(true);
    button.setIcons({icon});
    QCOMPARE(button.icon().cacheKey(), icon.cacheKey());
    QCOMPARE(button.icons().size(), 1);
    QCOMPARE(button.icons().constFirst().cacheKey(), icon.cacheKey());
}

void tst_DockButton::twoIconsAreComposedToOnePicture_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QList<QColor>>("colors");
    QTest::newRow("vertical, two") << Qt::Vertical << QList<QColor>{Red, Blue};
    QTest::newRow("vertical, three") << Qt::Vertical << QList<QColor>{Red, Blue, Green};
    QTest::newRow("horizontal, two") << Qt::Horizontal << QList<QColor>{Red, Blue};
    QTest::newRow("horizontal, three") << Qt::Horizontal << QList<QColor>{Red, Blue, Green};
}

void tst_DockButton::twoIconsAreComposedToOnePicture()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QList<QColor>, colors);
    DockButton button(orientation, nullptr);
    button.setChecked(true);
    setUp(button, iconsOf(colors));
    const int count = int(colors.size());
    const QSize size(cell(), count * cell() + (count - 1) * gap());
    const QImage picture = pictureOn(button);
    QCOMPARE(picture.size(), size);
    QCOMPARE(picture, plain(expectedPicture(colors, orientation)));
    // In numbers, and not as this program computes them too.
    if (screenRatio() == 1)
        QCOMPARE(size, count == 2 ? QSize(24, 51) : QSize(24, 78));
    else if (screenRatio() == 2)
        QCOMPARE(size, count == 2 ? QSize(48, 102) : QSize(48, 156));
    else if (screenRatio() == 1.5)
        QCOMPARE(size, count == 2 ? QSize(36, 76) : QSize(36, 116));
}

void tst_DockButton::thePictureIsOfNormalOffPixmaps()
{
    QIcon icon;
    icon.addPixmap(flat(Red), QIcon::Normal, QIcon::Off);
    icon.addPixmap(flat(Green), QIcon::Normal, QIcon::On);
    icon.addPixmap(flat(Green), QIcon::Active, QIcon::Off);
    icon.addPixmap(flat(Green), QIcon::Selected, QIcon::Off);
    icon.addPixmap(flat(Green), QIcon::Disabled, QIcon::Off);
    DockButton button(Qt::Vertical, nullptr);
    button.setChecked(true);
    setUp(button, {icon, flat(Blue)});
    QCOMPARE(pictureOn(button), plain(expectedPicture({Red, Blue}, Qt::Vertical)));
}

void tst_DockButton::aSmallIconLiesInTheMiddleOfItsCell()
{
    DockButton button(Qt::Vertical, nullptr);
    button.setChecked(true);
    setUp(button, {flat(Red), flat(Blue, 16)});
    const QImage picture = pictureOn(button);
    const QRect whole(0, cell() + gap(), cell(), cell());
    QRect small(0, 0, 16, 16);
    small.moveCenter(whole.center());
    for (int y = whole.top(); y <= whole.bottom(); ++y) {
        for (int x = whole.left(); x <= whole.right(); ++x) {
            const QColor wanted = small.contains(x, y) ? Blue : QColor(Qt::transparent);
            QCOMPARE(picture.pixelColor(x, y), wanted);
        }
    }
}

void tst_DockButton::uncheckedButtonIsGreyed_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QList<QColor>>("colors");
    QTest::newRow("one icon") << Qt::Vertical << QList<QColor>{Red};
    QTest::newRow("two icons, vertical") << Qt::Vertical << QList<QColor>{Red, Blue};
    QTest::newRow("two icons, horizontal") << Qt::Horizontal << QList<QColor>{Red, Blue};
}

void tst_DockButton::uncheckedButtonIsGreyed()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QList<QColor>, colors);
    DockButton button(orientation, nullptr);
    setUp(button, iconsOf(colors));
    QVERIFY(!button.isChecked());
    const QImage picture = pictureOn(button);
    const QIcon colored = expectedPicture(colors, orientation);
    QCOMPARE(picture, plain(colored.pixmap(button.iconSize(), screenRatio(), QIcon::Disabled)));
    QCOMPARE(picture.size(), (QSizeF(button.iconSize()) * screenRatio())
                                 .toSize()
                                 .boundedTo(plain(expectedPicture(colors, orientation)).size()));
    const QColor grey = picture.pixelColor(cell() / 2, cell() / 2);
    QCOMPARE(grey.alpha(), 255);
    QVERIFY(grey != colors.constFirst());
    QVERIFY(grey.hsvSaturation() < 30);
}

void tst_DockButton::anIconsOwnDisabledPictureIsUsed()
{
    QIcon icon(flat(Red));
    icon.addPixmap(flat(Green), QIcon::Disabled);
    DockButton button(Qt::Vertical, nullptr);
    setUp(button, {icon});
    QCOMPARE(pictureOn(button).pixelColor(5, 5), Green);
    button.setChecked(true);
    QCOMPARE(pictureOn(button).pixelColor(5, 5), Red);
}

void tst_DockButton::togglingAgainBringsTheColorsBack()
{
    DockButton button(Qt::Vertical, nullptr);
    setUp(button, iconsOf({Red, Blue}));
    const QImage greyed = pictureOn(button);
    for (int round = 0; round < 3; ++round) {
        button.setChecked(true);
        QCOMPARE(pictureOn(button), plain(expectedPicture({Red, Blue}, Qt::Vertical)));
        button.setChecked(false);
        QCOMPARE(pictureOn(button), greyed);
    }
    QCOMPARE(button.icons().size(), 2);
}

void tst_DockButton::missingIconsAreLeftOut()
{
    QFETCH(const Qt::Orientation, orientation);
    for (const bool checked : {false, true}) {
        DockButton button(orientation, nullptr);
        button.setChecked(checked);
        setUp(button, {QIcon()});
        QVERIFY(pictureOn(button).isNull());
        setUp(button, {QIcon(), QIcon()});
        QCOMPARE(pictureOn(button).size(), QSize(cell(), 2 * cell() + gap()));
        setUp(button, {flat(Red), QIcon()});
        QCOMPARE(pictureOn(button).pixelColor(5, 5).alpha(), 255);
        QCOMPARE(pictureOn(button).pixelColor(5, cell() + gap() + 5).alpha(), 0);
        button.setIcons({});
        QVERIFY(button.icons().isEmpty());
        QVERIFY(pictureOn(button).isNull());
    }
}

void tst_DockButton::aNewResolutionOfTheScreenComposesAgain()
{
    DockButton button(Qt::Vertical, nullptr);
    button.setChecked(true);
    setUp(button, iconsOf({Red, Blue}));
    button.setIcon({});
    QScreen *screen = QGuiApplication::primaryScreen();
    Q_EMIT screen->physicalDotsPerInchChanged(screen->physicalDotsPerInch());
    QCOMPARE(pictureOn(button), plain(expectedPicture({Red, Blue}, Qt::Vertical)));
}

void tst_DockButton::aDeletedButtonHearsNothingOfTheScreen()
{
    auto button = std::make_unique<DockButton>(Qt::Vertical, nullptr);
    setUp(*button, iconsOf({Red, Blue}));
    button.reset();
    QScreen *screen = QGuiApplication::primaryScreen();
    Q_EMIT screen->physicalDotsPerInchChanged(screen->physicalDotsPerInch());
}

void tst_DockButton::iconsFillTheButtonButItsMargin_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QLatin1StringView>("sheet");
    for (const auto &sheet : {ResourcePaths::DockSheet, ResourcePaths::GlobalSheet}) {
        QTest::addRow("vertical, %s", sheet.data()) << Qt::Vertical << sheet;
        QTest::addRow("horizontal, %s", sheet.data()) << Qt::Horizontal << sheet;
    }
}

void tst_DockButton::iconsFillTheButtonButItsMargin()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QLatin1StringView, sheet);
    ButtonWindow window(iconsOf({Red, Blue}), sheet, orientation);
    window.button().setChecked(true);
    QVERIFY(Input::show(&window));
    const QImage image = ImageChecks::rendered(&window.button(), qRound(screenRatio()));
    const QRect first(3, 3, 24, 24);
    const QRect second(3, 30, 24, 24);
    VERIFY_IMAGE(ImageChecks::isFilled(image, first, Red));
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, second, orientation == Qt::Vertical ? Blue : Qt::white));
    // Nothing of them in the gap and in the margins; the frame is 1 px wide.
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(3, 27, 24, 3), Qt::white));
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(1, 4, 2, 49), Qt::white));
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(27, 4, 2, 49), Qt::white));
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(4, 1, 22, 2), Qt::white));
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(4, 54, 22, 2), Qt::white));
}

void tst_DockButton::greyedIconsFillTheSamePlaces()
{
    ButtonWindow window(iconsOf({Red, Blue}));
    QVERIFY(Input::show(&window));
    const QImage greyed = pictureOn(window.button());
    const QImage image = ImageChecks::rendered(&window.button(), qRound(screenRatio()));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {3, 3, 24, 24}, greyed.pixelColor(1, 1)));
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, {3, 30, 24, 24}, greyed.pixelColor(1, cell() + gap() + 1)));
    VERIFY_IMAGE(ImageChecks::isFilled(image, window.button().rect(), ImageChecks::Untouched,
                                       {QRect(3, 3, 24, 24), QRect(3, 30, 24, 24)}));
}

void tst_DockButton::sheetFramesTheButtonInUse()
{
    QFETCH(const QLatin1StringView, sheet);
    ButtonWindow window({QIcon()}, sheet);
    DockButton &button = window.button();
    QVERIFY(Input::show(&window));
    const int ratio = qRound(screenRatio());
    const auto isFramed = [&button, ratio] {
        const QImage image = ImageChecks::rendered(&button, ratio);
        const QRect inside(2, 2, 26, 26);
        if (ImageChecks::isFilled(image, inside, ImageChecks::Untouched).isEmpty())
            return false;
        return ImageChecks::isFilled(image, inside, Qt::white).isEmpty()
               && ImageChecks::isFilled(image, {4, 0, 22, 1}, Frame).isEmpty()
               && ImageChecks::isFilled(image, {4, 29, 22, 1}, Frame).isEmpty()
               && ImageChecks::isFilled(image, {0, 4, 1, 22}, Frame).isEmpty()
               && ImageChecks::isFilled(image, {29, 4, 1, 22}, Frame).isEmpty()
               && ImageChecks::colorAt(image, {0, 0}) != Frame; // a round corner
    };
    Input::move(&window, QPoint(10, 150));
    VERIFY_IMAGE(ImageChecks::isFilled(ImageChecks::rendered(&button, ratio), button.rect(),
                                       ImageChecks::Untouched));
    Input::move(&button);
    QTRY_VERIFY(isFramed());
    Input::move(&window, QPoint(10, 150));
    QTRY_VERIFY(!isFramed());
    button.setDown(true);
    QVERIFY(isFramed());
    button.setDown(false);
    QVERIFY(!isFramed());
    button.setChecked(true);
    QVERIFY(isFramed());
    button.setChecked(false);
    QVERIFY(!isFramed());
}

void tst_DockButton::rightToLeftChangesNoPicture()
{
    DockButton button(Qt::Horizontal, nullptr);
    button.setLayoutDirection(Qt::RightToLeft);
    button.setChecked(true);
    setUp(button, iconsOf({Red, Blue}));
    QCOMPARE(pictureOn(button), plain(expectedPicture({Red, Blue}, Qt::Horizontal)));
}

void tst_DockButton::toolTipsAreReadTogether()
{
    DockButton button(Qt::Vertical, nullptr);
    button.setToolTips({u"Outline"_s});
    QCOMPARE(button.toolTips(), QStringList({u"Outline"_s}));
    QCOMPARE(button.toolTip(), u"Outline"_s);
    QCOMPARE(button.accessibleName(), u"Outline"_s);
    button.setToolTips({u"Outline"_s, u"Layers"_s});
    QCOMPARE(button.toolTips(), QStringList({u"Outline"_s, u"Layers"_s}));
    QCOMPARE(button.toolTip(), u"Outline"_s);
    QCOMPARE(button.accessibleName(), u"Outline, Layers"_s);
}

void tst_DockButton::toolTipFollowsThePointer_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("expected");

    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        const char *name = orientation == Qt::Vertical ? "vertical" : "horizontal";
        const auto add = [=](int height, int count, int y, const QString &expected) {
            QTest::addRow("%s, %d px, %d texts, at %d", name, height, count, y)
                << orientation << height << count << y << expected;
        };
        add(30, 1, 0, u"1"_s);
        add(30, 1, 29, u"1"_s);
        add(57, 2, 0, u"1"_s);
        add(57, 2, 28, u"1"_s); // a border belongs to the band above it
        add(57, 2, 29, u"2"_s);
        add(57, 2, 56, u"2"_s);
        add(84, 3, 28, u"1"_s);
        add(84, 3, 29, u"2"_s);
        add(84, 3, 56, u"2"_s);
        add(84, 3, 57, u"3"_s);
        add(84, 3, 83, u"3"_s);
        add(59, 4, 56, u"4"_s);
        add(59, 4, 57, u"1"_s); // left over by the division
    }
}

void tst_DockButton::toolTipFollowsThePointer()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const int, height);
    QFETCH(const int, count);
    QFETCH(const int, y);
    QFETCH(const QString, expected);
    ButtonWindow window({QIcon()}, {}, orientation);
    DockButton &button = window.button();
    button.setFixedSize(30, height);
    QStringList texts;
    for (int i = 1; i <= count; ++i)
        texts.append(QString::number(i));
    button.setToolTips(texts);
    button.setToolTip(u"before"_s);
    QVERIFY(Input::show(&window));
    for (const int x : {1, 28}) {
        Input::move(&window, QPoint(10, 190));
        Input::move(&button, QPoint(x, y));
        QTRY_COMPARE(button.toolTip(), expected);
    }
    QVERIFY(!button.isChecked());
}

void tst_DockButton::toolTipOutsideTheBandsIsTheFirst_data()
{
    QTest::addColumn<int>("y");
    QTest::newRow("far above") << -1000;
    QTest::newRow("just above") << -1;
    QTest::newRow("just below") << 58;
    QTest::newRow("far below") << 100000;
}

void tst_DockButton::toolTipOutsideTheBandsIsTheFirst()
{
    QFETCH(const int, y);
    DockButton button(Qt::Vertical, nullptr);
    setUp(button, iconsOf({Red, Blue}));
    button.setToolTips({u"1"_s, u"2"_s});
    button.setToolTip(u"before"_s);
    // While a button is pressed, the pointer may leave and still reports.
    QMouseEvent event(QEvent::MouseMove, QPointF(5, y), QPointF(5, y), Qt::NoButton, Qt::LeftButton,
                      {});
    QCoreApplication::sendEvent(&button, &event);
    QCOMPARE(button.toolTip(), u"1"_s);
}

void tst_DockButton::withoutTextsTheToolTipStays()
{
    ButtonWindow window({QIcon()});
    window.button().setToolTips({});
    window.button().setToolTip(u"mine"_s);
    QVERIFY(Input::show(&window));
    Input::move(&window.button(), QPoint(10, 10));
    Input::move(&window.button(), QPoint(10, 20));
    QCOMPARE(window.button().toolTip(), u"mine"_s);
}

QTEST_MAIN(tst_DockButton)

#include "tst_dockbutton.moc"
