// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleCatalog.h"
#include "StyleIcon.h"

#include "support/TestCase.h"

#include <QFontMetrics>
#include <QIcon>
#include <QImage>
#include <QRegularExpression>
#include <QSet>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// What is left of a tile of 90 px for its text.
constexpr int TextRoom = 84;
constexpr double ReadableContrast = 4.5;

QList<TextStyle> styles()
{
    return StyleCatalog::instance().styles();
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first / second, second / first);
}

QColor colorOf(const QBrush &brush, const QColor &fallback)
{
    return brush == Qt::NoBrush ? fallback : brush.color();
}

QImage pictureOf(const TextStyle &style, qreal ratio, QIcon::Mode mode = QIcon::Normal)
{
    const QIcon icon(new StyleIcon(style));
    return icon.pixmap(StyleIcon::NaturalSize, ratio, mode).toImage();
}

/// How much of the picture of a style is painted, in parts of the whole.
double coverage(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    }
    return sum / (image.width() * image.height());
}

void addStyleRows()
{
    QTest::addColumn<QString>("name");
    const QList<TextStyle> all = styles();
    for (const TextStyle &style : all)
        QTest::newRow(qPrintable(style.name)) << style.name;
}

TextStyle currentStyle()
{
    QFETCH(const QString, name);
    return *StyleCatalog::instance().find(name);
}

} // namespace

class tst_StyleCatalog final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreManyStylesInSixGroups();
    void groupsStandTogether();
    void namesAndTitlesAreUnique();
    void everyStyleIsDescribed_data() { addStyleRows(); }
    void everyStyleIsDescribed();
    void everyStyleCanBeRead_data() { addStyleRows(); }
    void everyStyleCanBeRead();
    void everyTitleFitsItsTile_data() { addStyleRows(); }
    void everyTitleFitsItsTile();
    void everyPictureIsSharp_data() { addStyleRows(); }
    void everyPictureIsSharp();
    void everyPictureHasRoomAround_data() { addStyleRows(); }
    void everyPictureHasRoomAround();
    void picturesDiffer();
    void aDisabledPictureIsPale();
    void aPictureKeepsItsShapeInAnyRoom();
    void formatsCarryTheNamesOfTheirStyles();
    void theLaterStyleHoldsAndSizesAddUp();
    void unknownNamesMeanNothing();
};

void tst_StyleCatalog::thereAreManyStylesInSixGroups()
{
    QSet<QString> groups;
    const QList<TextStyle> all = styles();
    for (const TextStyle &style : all)
        groups.insert(style.group);
    QCOMPARE_GE(all.size(), 60);
    QCOMPARE(groups.size(), 6);
}

void tst_StyleCatalog::groupsStandTogether()
{
    QStringList groups;
    const QList<TextStyle> all = styles();
    for (const TextStyle &style : all) {
        if (groups.isEmpty() || groups.constLast() != style.group)
            groups += style.group;
    }
    QCOMPARE(groups, (QStringList{u"Headings"_s, u"Paragraphs"_s, u"Emphasis"_s, u"Font Colors"_s,
                                  u"Highlights"_s, u"Code and Quotes"_s}));
}

void tst_StyleCatalog::namesAndTitlesAreUnique()
{
    QSet<QString> names;
    QSet<QString> titles;
    const QList<TextStyle> all = styles();
    for (const TextStyle &style : all) {
        names.insert(style.name);
        titles.insert(style.title);
    }
    QCOMPARE(names.size(), all.size());
    QCOMPARE(titles.size(), all.size());
}

void tst_StyleCatalog::everyStyleIsDescribed()
{
    const TextStyle style = currentStyle();
    // A name becomes a class in HTML, between spaces and quotes.
    static const QRegularExpression plainWord(u"^[a-z][a-z0-9-]*$"_s);
    QVERIFY(plainWord.match(style.name).hasMatch());
    QVERIFY(!style.title.isEmpty());
    QVERIFY(!style.description.isEmpty());
    const bool doesSomething = !style.text.isEmpty() || !style.block.isEmpty();
    QCOMPARE(doesSomething, !style.isEraser);
    QVERIFY(style.isParagraph() || style.block.isEmpty());
}

void tst_StyleCatalog::everyStyleCanBeRead()
{
    const TextStyle style = currentStyle();
    const QColor ground = colorOf(style.text.background(),
                                  colorOf(style.block.background(), QColor(Qt::white)));
    const QColor text = colorOf(style.text.foreground(), QColor(Qt::black));
    QCOMPARE_GE(contrast(text, ground), ReadableContrast);
}

void tst_StyleCatalog::everyTitleFitsItsTile()
{
    QCOMPARE_LE(QFontMetrics(QGuiApplication::font()).horizontalAdvance(currentStyle().title),
                TextRoom);
}

void tst_StyleCatalog::everyPictureIsSharp()
{
    const TextStyle style = currentStyle();
    const QImage coarse = pictureOf(style, 1);
    const QImage fine = pictureOf(style, 2);
    QCOMPARE(coarse.size(), StyleIcon::NaturalSize);
    QCOMPARE(fine.size(), StyleIcon::NaturalSize * 2);
    QCOMPARE(fine.devicePixelRatio(), 2.0);
    // What was only made larger would have equal pixels, or none without a neighbour like it.
    QVERIFY(fine != coarse.scaled(fine.size()));
    QVERIFY(fine != coarse.scaled(fine.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    QCOMPARE_GT(coverage(coarse), 0.02);
    QCOMPARE_LT(std::abs(coverage(coarse) - coverage(fine)), 0.03);
}

void tst_StyleCatalog::everyPictureHasRoomAround()
{
    const TextStyle style = currentStyle();
    const QImage image = pictureOf(style, 2);
    const QColor ground = colorOf(style.block.background(), QColor(Qt::transparent));
    // No letter is cut; the corners of a ground are round.
    for (int y = image.height() / 4; y < image.height() * 3 / 4; ++y) {
        QCOMPARE(image.pixelColor(0, y), ground);
        QCOMPARE(image.pixelColor(image.width() - 1, y), ground);
    }
    for (int x = image.width() / 4; x < image.width() * 3 / 4; ++x) {
        QCOMPARE(image.pixelColor(x, 0), ground);
        QCOMPARE(image.pixelColor(x, image.height() - 1), ground);
    }
}

void tst_StyleCatalog::picturesDiffer()
{
    const QList<TextStyle> all = styles();
    for (qsizetype i = 0; i < all.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j) {
            const bool isSame = pictureOf(all.at(i), 1) == pictureOf(all.at(j), 1);
            const bool mayBeSame = all.at(i).isEraser && all.at(j).isEraser;
            QVERIFY2(!isSame || mayBeSame, qPrintable(all.at(i).name + u' ' + all.at(j).name));
        }
    }
}

void tst_StyleCatalog::aDisabledPictureIsPale()
{
    const TextStyle style = *StyleCatalog::instance().find(u"bold"_s);
    const double pale = coverage(pictureOf(style, 1, QIcon::Disabled));
    QCOMPARE_GT(pale, 0);
    QCOMPARE_LT(pale, coverage(pictureOf(style, 1)) / 2);
}

void tst_StyleCatalog::aPictureKeepsItsShapeInAnyRoom()
{
    const TextStyle style = *StyleCatalog::instance().find(u"terminal"_s);
    const QImage image = QIcon(new StyleIcon(style)).pixmap(QSize(48, 100), 1).toImage();
    QCOMPARE(image.size(), QSize(48, 100));
    QCOMPARE(image.pixelColor(24, 35).alpha(), 0);
    QCOMPARE(image.pixelColor(24, 38).alpha(), 255);
    QCOMPARE(image.pixelColor(24, 62).alpha(), 255);
    QCOMPARE(image.pixelColor(24, 64).alpha(), 0);
}

void tst_StyleCatalog::formatsCarryTheNamesOfTheirStyles()
{
    const StyleCatalog &catalog = StyleCatalog::instance();
    const QStringList names{u"quote"_s, u"red"_s, u"bold"_s};
    QCOMPARE(StyleCatalog::namesOf(catalog.textFormat(names)), names);
    QCOMPARE(StyleCatalog::namesOf(catalog.blockFormat(u"quote"_s)), QStringList{u"quote"_s});
    QCOMPARE(StyleCatalog::namesOf(catalog.textFormat({})), QStringList());
    QVERIFY(catalog.textFormat({}) == QTextCharFormat());
    QVERIFY(catalog.blockFormat(QString()) == QTextBlockFormat());
    QVERIFY(catalog.blockFormat(u"normal"_s) == QTextBlockFormat());
}

void tst_StyleCatalog::theLaterStyleHoldsAndSizesAddUp()
{
    const StyleCatalog &catalog = StyleCatalog::instance();
    const QTextCharFormat format = catalog.textFormat({u"heading1"_s, u"red"_s, u"larger"_s});
    QCOMPARE(format.foreground().color(), catalog.find(u"red"_s)->text.foreground().color());
    QCOMPARE(format.fontWeight(), int(QFont::Bold));
    QCOMPARE(StyleCatalog::sizeFactor(format), 2.4);
    QCOMPARE(StyleCatalog::sizeFactor(catalog.textFormat({u"heading1"_s})), 2.0);
    QCOMPARE(StyleCatalog::sizeFactor(catalog.textFormat({u"title"_s, u"larger"_s})), 2.4);
    QCOMPARE(StyleCatalog::sizeFactor(catalog.textFormat({u"lead"_s, u"smaller"_s})), 1.0);
    QCOMPARE(StyleCatalog::sizeFactor(QTextCharFormat()), 1.0);
}

void tst_StyleCatalog::unknownNamesMeanNothing()
{
    const StyleCatalog &catalog = StyleCatalog::instance();
    QCOMPARE(catalog.find(u"unknown"_s), nullptr);
    QCOMPARE(catalog.find(QString()), nullptr);
    QVERIFY(catalog.blockFormat(u"unknown"_s) == QTextBlockFormat());
}

QTEST_MAIN(tst_StyleCatalog)

#include "tst_stylecatalog.moc"
