// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentFixture.h"
#include "PictureDocument.h"
#include "PictureView.h"

#include "support/Input.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

/// A picture whose pixels are all different: red counts the columns, green the lines.
QImage numbered(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x % 256, y % 256, 77));
    }
    return image;
}

QByteArray encoded(const QImage &image, const char *format = "png")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

/// Two frames of one pixel.
QByteArray animation()
{
    const QByteArray frame("\x2C\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 15);
    return QByteArray("GIF89a\1\0\1\0\x80\0\0\0\0\0\xFF\xFF\xFF", 19) + frame + frame + ";";
}

QImage painted(QWidget *widget, int ratio)
{
    QImage image(widget->size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    widget->render(&image);
    return image;
}

} // namespace

/// A picture that is looked at, changed and saved.
class tst_PictureDocument final : public DocumentFixture
{
    Q_OBJECT

private Q_SLOTS:
    void filtersAreDoneAndUndone();
    void anUnknownFilterIsIgnored();
    void rotates_data();
    void rotates();
    void savesInTheFormatOfTheContent_data();
    void savesInTheFormatOfTheContent();
    void savingAnUnmodifiedPictureLeavesTheFile();
    void aFormatThatCannotBeWrittenKeepsTheFile();
    void aFileOfSeveralPicturesIsKept();
    void aChangedFileIsNotOverwritten();
    void aCopyMayHaveAnotherFormat();
    void aNameForScreensOfDoubleRatioChangesNoSize();
    void zoomsInStepsAndEnds();
    void beginsWholeButNotEnlarged();
    void fitsAlsoWhenTheViewChanges();
    void theWheelWithCtrlZoomsAtThePointer_data();
    void theWheelWithCtrlZoomsAtThePointer();
    void keysZoom();
    void theMouseDragsThePicture_data();
    void theMouseDragsThePicture();
    void pixelsAreCrisp_data();
    void pixelsAreCrisp();
    void transparencyShowsSquares();
    void propertiesFollowThePicture();
    void diesWithoutASignal();
};

void tst_PictureDocument::filtersAreDoneAndUndone()
{
    const QImage image = numbered({8, 6});
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(image)));
    QSignalSpy modified(document.get(), &WorkbenchDocument::signalModifiedChanged);
    QSignalSpy content(document.get(), &WorkbenchDocument::signalContentChanged);
    document->applyFilter(u"invert"_s);
    QCOMPARE(document->image().pixelColor(1, 2), QColor(254, 253, 178));
    QVERIFY(document->isModified());
    QCOMPARE(document->undoStack()->undoText(), u"Invert"_s);
    QVERIFY(!content.isEmpty());
    document->undo();
    QCOMPARE(document->image().convertToFormat(image.format()), image);
    QVERIFY(!document->isModified());
    document->redo();
    QCOMPARE(document->image().pixelColor(1, 2), QColor(254, 253, 178));
    QCOMPARE(modified.size(), 3);
}

void tst_PictureDocument::anUnknownFilterIsIgnored()
{
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(numbered({8, 6}))));
    document->applyFilter(u"none"_s);
    QVERIFY(!document->isModified());
    QCOMPARE(document->undoStack()->count(), 0);
}

void tst_PictureDocument::rotates_data()
{
    QTest::addColumn<int>("turns");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("topLeft"); // where it is then

    QTest::newRow("right") << 1 << QSize(6, 8) << QPoint(5, 0);
    QTest::newRow("half") << 2 << QSize(8, 6) << QPoint(7, 5);
    QTest::newRow("left") << -1 << QSize(6, 8) << QPoint(0, 7);
    QTest::newRow("three") << 3 << QSize(6, 8) << QPoint(0, 7);
    QTest::newRow("five") << 5 << QSize(6, 8) << QPoint(5, 0);
    QTest::newRow("none") << 0 << QSize(8, 6) << QPoint(0, 0);
    QTest::newRow("whole") << -4 << QSize(8, 6) << QPoint(0, 0);
}

void tst_PictureDocument::rotates()
{
    QFETCH(const int, turns);
    QFETCH(const QPoint, topLeft);
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(numbered({8, 6}))));
    document->rotate(turns);
    QTEST(document->image().size(), "size");
    QCOMPARE(document->image().pixelColor(topLeft), QColor(0, 0, 77));
    QCOMPARE(document->isModified(), turns % 4 != 0);
}

void tst_PictureDocument::savesInTheFormatOfTheContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("tolerance");

    QTest::newRow("PNG") << u"a.png"_s << QByteArray("png") << 0;
    QTest::newRow("PNG with another name") << u"a.bmp"_s << QByteArray("png") << 0;
    QTest::newRow("BMP") << u"a.bmp"_s << QByteArray("bmp") << 0;
    QTest::newRow("PPM") << u"a.ppm"_s << QByteArray("ppm") << 0;
    QTest::newRow("JPEG") << u"a.jpg"_s << QByteArray("jpeg") << 6;
}

void tst_PictureDocument::savesInTheFormatOfTheContent()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, format);
    QFETCH(const int, tolerance);
    QImage image({8, 6}, QImage::Format_RGB32);
    image.fill(QColor(60, 120, 180));
    const QString path = createFile(name, encoded(image, format.constData()));
    const auto document = load<PictureDocument>(path);
    document->applyFilter(u"invert"_s);
    QCOMPARE(document->save(), QString());
    QVERIFY(!document->isModified());
    QCOMPARE(QImageReader::imageFormat(path), format);
    const QColor color = load<PictureDocument>(path)->image().pixelColor(4, 3);
    QVERIFY(std::abs(color.red() - 195) <= tolerance);
    QVERIFY(std::abs(color.green() - 135) <= tolerance);
    QVERIFY(std::abs(color.blue() - 75) <= tolerance);
    // From now on that is the file that was read.
    document->undo();
    QVERIFY(document->isModified());
    QCOMPARE(document->save(), QString());
}

void tst_PictureDocument::savingAnUnmodifiedPictureLeavesTheFile()
{
    const QByteArray bytes = encoded(numbered({8, 6}), "jpeg");
    const QString path = createFile(u"a.jpg"_s, bytes);
    const auto document = load<PictureDocument>(path);
    document->rotate(1);
    document->undo();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), bytes);
}

void tst_PictureDocument::aFormatThatCannotBeWrittenKeepsTheFile()
{
    const QByteArray svg(R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="5"/>)");
    const QString path = createFile(u"a.svg"_s, svg);
    const auto document = load<PictureDocument>(path);
    QCOMPARE(document->image().size(), QSize(9, 5));
    document->rotate(1);
    QVERIFY(document->save().contains(u"SVG"_s));
    QVERIFY(!document->canSaveAnyway());
    QVERIFY(document->isModified());
    QCOMPARE(bytesOf(path), svg);
    QCOMPARE(document->saveCopy(filePath(u"a.png"_s)), QString());
    QCOMPARE(QImage(filePath(u"a.png"_s)).size(), QSize(5, 9));
}

void tst_PictureDocument::aFileOfSeveralPicturesIsKept()
{
    const QString path = createFile(u"a.gif"_s, animation());
    const auto document = load<PictureDocument>(path);
    QCOMPARE(property(document.get(), u"Pictures in the file"_s), u"2"_s);
    document->rotate(1);
    QVERIFY(document->save().contains(u"2 pictures"_s));
    QVERIFY(document->saveAnyway().contains(u"2 pictures"_s));
    QCOMPARE(bytesOf(path), animation());
}

void tst_PictureDocument::aChangedFileIsNotOverwritten()
{
    const QString path = createFile(u"a.png"_s, encoded(numbered({8, 6})));
    const auto document = load<PictureDocument>(path);
    document->rotate(1);
    createFile(u"a.png"_s, "others");
    QVERIFY(!document->save().isEmpty());
    QCOMPARE(bytesOf(path), QByteArray("others"));
    QVERIFY(document->canSaveAnyway());
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(QImage(path).size(), QSize(6, 8));
    QVERIFY(!document->isModified());
}

void tst_PictureDocument::aCopyMayHaveAnotherFormat()
{
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(numbered({8, 6}))));
    document->rotate(1);
    QCOMPARE(document->saveCopy(filePath(u"b.BMP"_s)), QString());
    QCOMPARE(QImageReader::imageFormat(filePath(u"b.BMP"_s)), QByteArray("bmp"));
    QVERIFY(document->isModified());
    QVERIFY(!document->saveCopy(filePath(u"b.xyz"_s)).isEmpty());
    QVERIFY(!document->saveCopy(filePath(u"b"_s)).isEmpty());
    QVERIFY(!QFile::exists(filePath(u"b.xyz"_s)));
}

void tst_PictureDocument::aNameForScreensOfDoubleRatioChangesNoSize()
{
    const auto document = load<PictureDocument>(
        createFile(u"a@2x.png"_s, encoded(numbered({8, 6}))));
    QCOMPARE(document->image().devicePixelRatio(), 1.0);
    QCOMPARE(property(document.get(), u"Size"_s), u"8 × 6 px"_s);
}

void tst_PictureDocument::zoomsInStepsAndEnds()
{
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(numbered({8, 6}))));
    QSignalSpy spy(document->view(), &PictureView::zoomChanged);
    document->actualSize();
    document->zoomIn();
    QCOMPARE(document->zoom(), 1.25);
    document->zoomOut();
    QCOMPARE(document->zoom(), 1.0);
    QVERIFY(spy.size() >= 2);
    document->setZoom(1.1);
    document->zoomIn();
    QCOMPARE(document->zoom(), 1.25);
    document->setZoom(1000);
    QCOMPARE(document->zoom(), 32.0);
    document->zoomIn();
    QCOMPARE(document->zoom(), 32.0);
    document->setZoom(0);
    QCOMPARE(document->zoom(), 0.01);
    document->zoomOut();
    QCOMPARE(document->zoom(), 0.01);
    QVERIFY(!document->isModified());
}

void tst_PictureDocument::beginsWholeButNotEnlarged()
{
    const auto small = load<PictureDocument>(createFile(u"a.png"_s, encoded(numbered({8, 6}))));
    small->resize(400, 300);
    QVERIFY(Input::show(small.get()));
    QCOMPARE(small->zoom(), 1.0);
    const auto large = load<PictureDocument>(createFile(u"b.png"_s, encoded(numbered({800, 300}))));
    large->resize(400, 300);
    QVERIFY(Input::show(large.get()));
    QCOMPARE(large->zoom(), 0.5);
}

void tst_PictureDocument::fitsAlsoWhenTheViewChanges()
{
    const auto document = load<PictureDocument>(
        createFile(u"a.png"_s, encoded(numbered({80, 60}))));
    document->resize(400, 300);
    QVERIFY(Input::show(document.get()));
    document->fit();
    QCOMPARE(document->zoom(), 5.0);
    document->resize(320, 300);
    QTRY_COMPARE(document->zoom(), 4.0);
    document->rotate(1);
    QCOMPARE(document->zoom(), 300 / 80.0);
    document->actualSize();
    document->resize(400, 300);
    QCOMPARE(document->zoom(), 1.0);
}

void tst_PictureDocument::theWheelWithCtrlZoomsAtThePointer_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_PictureDocument::theWheelWithCtrlZoomsAtThePointer()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const auto document = load<PictureDocument>(
        createFile(u"a.png"_s, encoded(numbered({250, 250}))));
    document->setLayoutDirection(direction);
    document->resize(300, 300);
    QVERIFY(Input::show(document.get()));
    document->setZoom(8);
    QWidget *viewport = document->view()->viewport();
    const QPoint at(40, 60);
    const QColor before = painted(viewport, 1).pixelColor(at);
    const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(at, viewport->mapToGlobal(at), {}, {0, angle}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewport, &event);
    };
    turn(60, Qt::ControlModifier);
    QCOMPARE(document->zoom(), 8.0);
    turn(60, Qt::ControlModifier);
    QCOMPARE(document->zoom(), 16.0);
    QCOMPARE(painted(viewport, 1).pixelColor(at), before);
    turn(-120, Qt::ControlModifier);
    QCOMPARE(document->zoom(), 8.0);
    QCOMPARE(painted(viewport, 1).pixelColor(at), before);
    const int value = document->view()->verticalScrollBar()->value();
    turn(-120, Qt::NoModifier);
    QCOMPARE(document->zoom(), 8.0);
    QVERIFY(document->view()->verticalScrollBar()->value() > value);
}

void tst_PictureDocument::keysZoom()
{
    const auto document = load<PictureDocument>(
        createFile(u"a.png"_s, encoded(numbered({80, 60}))));
    document->resize(400, 300);
    QVERIFY(Input::show(document.get()));
    document->setFocus();
    QTest::keyClick(document->view(), Qt::Key_Plus);
    QCOMPARE(document->zoom(), 1.25);
    QTest::keyClick(document->view(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(document->zoom(), 1.0);
    QTest::keyClick(document->view(), Qt::Key_0);
    QCOMPARE(document->zoom(), 5.0);
    QTest::keyClick(document->view(), Qt::Key_1);
    QCOMPARE(document->zoom(), 1.0);
}

void tst_PictureDocument::theMouseDragsThePicture_data()
{
    theWheelWithCtrlZoomsAtThePointer_data();
}

void tst_PictureDocument::theMouseDragsThePicture()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const auto document = load<PictureDocument>(
        createFile(u"a.png"_s, encoded(numbered({250, 250}))));
    document->setLayoutDirection(direction);
    document->resize(300, 300);
    QVERIFY(Input::show(document.get()));
    document->setZoom(8);
    QWidget *viewport = document->view()->viewport();
    const QColor before = painted(viewport, 1).pixelColor(100, 100);
    Input::drag(viewport, {100, 100}, {60, 150});
    QCOMPARE(painted(viewport, 1).pixelColor(60, 150), before);
}

void tst_PictureDocument::pixelsAreCrisp_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<qreal>("zoom");

    QTest::newRow("ratio 1, actual size") << 1 << 1.0;
    QTest::newRow("ratio 1, large") << 1 << 4.0;
    QTest::newRow("ratio 2, actual size") << 2 << 1.0;
    QTest::newRow("ratio 2, half the size") << 2 << 0.5;
    QTest::newRow("ratio 2, large") << 2 << 4.0;
}

void tst_PictureDocument::pixelsAreCrisp()
{
    QFETCH(const int, ratio);
    QFETCH(const qreal, zoom);
    // Black and white in turn turns grey wherever it is not crisp.
    QImage board({40, 40}, QImage::Format_RGB32);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x)
            board.setPixelColor(x, y, (x + y) % 2 == 0 ? Qt::black : Qt::white);
    }
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(board)));
    document->resize(400, 300);
    QVERIFY(Input::show(document.get()));
    document->setZoom(zoom);
    const QImage image = painted(document->view()->widget(), ratio);
    const int side = int(zoom * ratio);
    QCOMPARE(image.size(), board.size() * side);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixel(x, y), board.pixel(x / side, y / side));
    }
}

void tst_PictureDocument::transparencyShowsSquares()
{
    QImage clear({40, 40}, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(clear)));
    document->resize(400, 300);
    QVERIFY(Input::show(document.get()));
    const QImage image = painted(document->view()->widget(), 1);
    QCOMPARE(image.pixelColor(0, 0), QColor(204, 204, 204));
    QCOMPARE(image.pixelColor(8, 0), QColor(Qt::white));
    QCOMPARE(image.pixelColor(8, 8), QColor(204, 204, 204));
}

void tst_PictureDocument::propertiesFollowThePicture()
{
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(numbered({8, 6}))));
    document->setZoom(2);
    document->rotate(1);
    QCOMPARE(property(document.get(), u"Size"_s), u"6 × 8 px"_s);
    QCOMPARE(property(document.get(), u"Depth"_s), u"32 bits per pixel"_s);
    QCOMPARE(property(document.get(), u"Format"_s), u"PNG"_s);
    QCOMPARE(property(document.get(), u"Zoom"_s), u"200 %"_s);
    QVERIFY(document->outline().isEmpty());
    document->goToLine(3);
}

void tst_PictureDocument::diesWithoutASignal()
{
    auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(numbered({8, 6}))));
    document->rotate(1);
    QSignalSpy spy(document.get(), &WorkbenchDocument::signalModifiedChanged);
    document.reset();
    QVERIFY(spy.isEmpty());
}

QTEST_MAIN(tst_PictureDocument)

#include "tst_picturedocument.moc"
