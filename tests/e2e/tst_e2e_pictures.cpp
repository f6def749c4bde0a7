// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

using namespace Qt::StringLiterals;

/// What is really on the screen.
class tst_E2ePictures final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRibbonHasItsColours_data();
    void theRibbonHasItsColours();
    void twiceTheScaleIsTheSameAtTwiceTheSize();

private:
    QImage pictureOfTheWindow(int scale);
};

namespace {

const QColor rowOfTabs(0, 64, 115);
const QColor plate(17, 113, 190); // behind the tabs of temporary pages
const QColor currentTab(245, 245, 245);
const QColor bar(230, 230, 230); // of buttons, at the sides

/// The edge of the squares in which two pictures are compared, in units of the program.
constexpr int Square = 20;

/// How different two colours are, from 0 to 255.
int distance(QRgb a, QRgb b)
{
    return qMax(qAbs(qRed(a) - qRed(b)),
                qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
}

} // namespace

void tst_E2ePictures::theRibbonHasItsColours_data()
{
    QTest::addColumn<int>("scale");

    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void tst_E2ePictures::theRibbonHasItsColours()
{
    QFETCH(const int, scale);
    useScale(scale);
    scene()->start({u"folder/readme.txt"_s, u"folder/picture.png"_s});
    workbench()->waitFor(u"ribbon page"_s, u"pictureTools"_s);
    const QRect window = workbench()->place(u"widget workbench"_s);
    scene()->waitForColor(window.topLeft() + QPoint(600, 5), rowOfTabs);
    scene()->waitForColor(window.topLeft() + QPoint(17, 400), bar);
    scene()->waitForColor(window.topRight() + QPoint(-16, 400), bar);
    // Beside the tab, which has a colour of its own because it is the current one.
    const QRect tab = workbench()->place(u"button Picture Tools"_s);
    const QPoint besideTab(tab.left() - 2, tab.center().y());
    scene()->waitForColor(besideTab, plate);
    scene()->waitForColor(tab.topLeft() + QPoint(4, 4), currentTab);
    scene()->click(u"button Home"_s);
    workbench()->waitFor(u"ribbon page"_s, u"homePage"_s);
    person()->move(window.center());
    scene()->waitForColor(tab.topLeft() + QPoint(4, 4), plate);
    // The plate goes with its tab.
    person()->press(u"ctrl+w"_s);
    workbench()->waitFor(u"temporary pages"_s, u"Text Tools"_s);
    scene()->waitForColor(workbench()->place(u"button Text Tools"_s).topLeft() + QPoint(4, 4),
                          currentTab);
    scene()->leave();
}

/// In pixels, with its tabs and panels filled.
QImage tst_E2ePictures::pictureOfTheWindow(int scale)
{
    useScale(scale);
    scene()->start({u"folder/readme.txt"_s, u"folder/table.csv"_s, u"folder/picture.png"_s});
    workbench()->waitFor(u"ribbon page"_s, u"pictureTools"_s);
    workbench()->place(u"file readme.txt"_s);
    const QRect window = workbench()->place(u"widget workbench"_s);
    person()->move(window.topLeft() + QPoint(600, 5));
    const QPoint middle = workbench()->place(u"widget picture"_s).center();
    scene()->waitForColor(middle - QPoint(0, 20), PictureTop);
    QImage picture = scene()->picture().copy(
        QRect(window.topLeft() * scale, window.size() * scale));
    scene()->leave();
    return picture;
}

void tst_E2ePictures::twiceTheScaleIsTheSameAtTwiceTheSize()
{
    const QImage one = pictureOfTheWindow(1);
    const QImage two = pictureOfTheWindow(2);
    QVERIFY(!one.isNull());
    QCOMPARE(two.size(), one.size() * 2);
    // Letters differ in their pixels, but hardly in what they make of a small square.
    const QSize squares = one.size() / Square;
    const QImage first = one.scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage second = two.scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int different = 0;
    for (int y = 0; y < squares.height(); ++y) {
        for (int x = 0; x < squares.width(); ++x)
            different += distance(first.pixel(x, y), second.pixel(x, y)) > 40 ? 1 : 0;
    }
    QVERIFY2(different * 100 < squares.width() * squares.height(),
             qPrintable(QString::number(different)));
    // Not the same pixels twice: it is drawn for the larger screen.
    QVERIFY(one.scaled(two.size()) != two);
}

QTEST_GUILESS_MAIN(tst_E2ePictures)

#include "tst_e2e_pictures.moc"
