// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "LineNumberArea.h"
#include "TextEditor.h"

#include "support/Input.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextBlock>

using namespace Qt::StringLiterals;

class tst_TextEditor final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewTextIsUnchanged();
    void everyCharacterComesBack();
    void theClipboardTakesTheTextToTheLetter();
    void pastingDropsWhatNoFileMayHold();
    void onlyTextCanBePasted();
    void shiftReturnStartsAnOrdinaryLine();
    void wholeLinesAreSelected_data();
    void wholeLinesAreSelected();
    void replacedTextStaysSelectedAndIsOneStepToUndo();
    void replacingEverythingIsOneStepToUndo();
    void lineNumbersTakeTheirRoomAndGiveItBack();
    void lineNumbersWidenWithTheirDigits();
    void lineNumbersArePaintedBeforeTheText();
    void lineNumbersStandBesideLargeLetters();
    void theWheelZoomsWithCtrlOnly();
    void marksCoverTheFoundPlaces();
    void theCurrentLineIsColoured();
};

namespace {

constexpr QColor MarkColor(255, 226, 143);
constexpr QColor CurrentLineColor(237, 245, 252);

int countOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

} // namespace

void tst_TextEditor::aNewTextIsUnchanged()
{
    TextEditor editor;
    const auto isUnchanged = [&editor] {
        return !editor.document()->isModified() && !editor.document()->isUndoAvailable();
    };
    QVERIFY(isUnchanged());
    editor.insertPlainText(u"text"_s);
    QVERIFY(!isUnchanged());
    editor.setText(QString());
    QVERIFY(isUnchanged());
    editor.setText(u"text"_s);
    QVERIFY(isUnchanged());
}

void tst_TextEditor::everyCharacterComesBack()
{
    QString text;
    for (char16_t unit = 1; unit < 0xffff; ++unit) {
        const QChar character(unit);
        // Those that end a line have gone when a text comes here, and half a pair is no character.
        const bool endsLine = unit == u'\r' || unit == QChar::ParagraphSeparator || unit == 0xfdd0
                              || unit == 0xfdd1;
        if (!endsLine && !character.isSurrogate())
            text += character;
    }
    text += u"\U0001F600\n"_s;
    TextEditor editor;
    editor.setText(text);
    QVERIFY(editor.text() == text);
    editor.selectAll();
    QVERIFY(editor.selectedText() == text);
    QCOMPARE(editor.document()->characterCount() - 1, text.size());
}

void tst_TextEditor::theClipboardTakesTheTextToTheLetter()
{
    const QString before = QGuiApplication::clipboard()->text();
    const QString text = u"a\u00a0b\nc\u2028d\te"_s;
    TextEditor editor;
    editor.setText(text);
    editor.selectAll();
    editor.copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
    editor.setText(QString());
    editor.paste();
    QCOMPARE(editor.text(), text);
    QGuiApplication::clipboard()->setText(before);
}

void tst_TextEditor::pastingDropsWhatNoFileMayHold()
{
    const QString before = QGuiApplication::clipboard()->text();
    QGuiApplication::clipboard()->setText(u"a\r\nb"_s + QChar(QChar::Null) + u"c"_s);
    TextEditor editor;
    editor.paste();
    QCOMPARE(editor.text(), u"a\nbc"_s);
    QGuiApplication::clipboard()->setText(before);
}

void tst_TextEditor::onlyTextCanBePasted()
{
    const QString before = QGuiApplication::clipboard()->text();
    TextEditor editor;
    auto *picture = new QMimeData;
    picture->setImageData(QImage(1, 1, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(picture);
    QVERIFY(!editor.canPaste());
    QGuiApplication::clipboard()->setText(u"text"_s);
    QVERIFY(editor.canPaste());
    QGuiApplication::clipboard()->setText(before);
}

void tst_TextEditor::shiftReturnStartsAnOrdinaryLine()
{
    TextEditor editor;
    QVERIFY(Input::show(&editor));
    QTest::keyClick(&editor, 'a');
    QTest::keyClick(&editor, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(&editor, 'b');
    QCOMPARE(editor.text(), u"a\nb"_s);
}

void tst_TextEditor::wholeLinesAreSelected_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("expected");

    // one(0-2) two(4-6) three(8-12)
    QTest::newRow("no selection") << 5 << 0 << u"two"_s;
    QTest::newRow("in a line") << 5 << 1 << u"two"_s;
    QTest::newRow("over a line end") << 2 << 3 << u"one\ntwo"_s;
    QTest::newRow("up to the start of a line") << 0 << 4 << u"one"_s;
    QTest::newRow("everything") << 0 << 13 << u"one\ntwo\nthree"_s;
}

void tst_TextEditor::wholeLinesAreSelected()
{
    QFETCH(const int, start);
    QFETCH(const int, length);
    TextEditor editor;
    editor.setText(u"one\ntwo\nthree"_s);
    editor.select(start, length);
    editor.selectWholeLines();
    QTEST(editor.selectedText(), "expected");
}

void tst_TextEditor::replacedTextStaysSelectedAndIsOneStepToUndo()
{
    TextEditor editor;
    editor.setText(u"one two"_s);
    editor.select(4, 3);
    editor.replaceSelection(u"2\n3"_s);
    QCOMPARE(editor.text(), u"one 2\n3"_s);
    QCOMPARE(editor.selectedText(), u"2\n3"_s);
    editor.undo();
    QCOMPARE(editor.text(), u"one two"_s);
    QVERIFY(!editor.document()->isModified());
}

void tst_TextEditor::replacingEverythingIsOneStepToUndo()
{
    TextEditor editor;
    editor.setText(u"one two"_s);
    editor.select(5, 0);
    editor.replaceText(u"1"_s);
    QCOMPARE(editor.text(), u"1"_s);
    QCOMPARE(editor.textCursor().position(), 1);
    editor.undo();
    QCOMPARE(editor.text(), u"one two"_s);
    editor.redo();
    QCOMPARE(editor.text(), u"1"_s);
}

void tst_TextEditor::lineNumbersTakeTheirRoomAndGiveItBack()
{
    TextEditor editor;
    QVERIFY(Input::show(&editor));
    QCOMPARE(editor.viewport()->x(), editor.lineNumberWidth());
    const int width = editor.viewport()->width();
    editor.setLineNumbersVisible(false);
    QCOMPARE(editor.viewport()->x(), 0);
    QCOMPARE(editor.viewport()->width(), width + editor.lineNumberWidth());
    editor.setLineNumbersVisible(true);
    QCOMPARE(editor.viewport()->x(), editor.lineNumberWidth());
    editor.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(editor.viewport()->x(), 0);
    QCOMPARE(editor.viewport()->width(), width);
}

void tst_TextEditor::lineNumbersWidenWithTheirDigits()
{
    TextEditor editor;
    const int narrow = editor.lineNumberWidth();
    editor.setText(QString(999, u'\n'));
    const int wide = editor.lineNumberWidth();
    QCOMPARE(editor.blockCount(), 1000);
    QCOMPARE_GT(wide, narrow);
    editor.zoomIn(10);
    QCOMPARE_GT(editor.lineNumberWidth(), wide);
}

void tst_TextEditor::lineNumbersArePaintedBeforeTheText()
{
    TextEditor editor;
    editor.resize(300, 200);
    auto *area = editor.findChild<LineNumberArea *>();
    editor.setText(u"one\ntwo\nthree"_s);
    const QImage first = area->grab().toImage();
    editor.grab();
    QCOMPARE(area->grab().toImage(), first);
}

void tst_TextEditor::lineNumbersStandBesideLargeLetters()
{
    TextEditor editor;
    editor.resize(300, 200);
    editor.setText(u"one\ntwo"_s);
    editor.selectAll();
    QTextCharFormat large;
    large.setProperty(QTextFormat::FontSizeAdjustment, 4);
    editor.mergeCurrentCharFormat(large);
    editor.select(0, 0);
    editor.setCurrentLineMarked(false);
    const QImage text = editor.viewport()->grab().toImage();
    const QImage numbers = editor.findChild<LineNumberArea *>()->grab().toImage();
    const auto middle = [](const QImage &image, QRgb ground, int last) {
        int top = image.height();
        int bottom = 0;
        for (int y = 0; y < last; ++y) {
            for (int x = 0; x < image.width() - 5; ++x) {
                if (image.pixel(x, y) != ground) {
                    top = std::min(top, y);
                    bottom = std::max(bottom, y);
                }
            }
        }
        return (top + bottom) / 2;
    };
    const int line = editor.cursorRect().bottom();
    const int ofText = middle(text, text.pixel(text.width() - 1, 10), line);
    const int ofNumber = middle(numbers, numbers.pixel(0, 0), line);
    QVERIFY2(std::abs(ofText - ofNumber) <= 4, qPrintable(u"%1 %2"_s.arg(ofText).arg(ofNumber)));
}

void tst_TextEditor::theWheelZoomsWithCtrlOnly()
{
    TextEditor editor;
    QSignalSpy zoomed(&editor, &TextEditor::zoomRequested);
    const auto turn = [&editor](int angle, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event({5, 5}, {5, 5}, {}, {0, angle}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(editor.viewport(), &event);
    };
    turn(120, Qt::NoModifier);
    QCOMPARE(zoomed.size(), 0);
    turn(240, Qt::ControlModifier);
    QCOMPARE(zoomed.takeFirst().at(0).toInt(), 2);
    turn(-60, Qt::ControlModifier);
    QCOMPARE(zoomed.size(), 0);
    turn(-60, Qt::ControlModifier);
    QCOMPARE(zoomed.takeFirst().at(0).toInt(), -1);
}

void tst_TextEditor::marksCoverTheFoundPlaces()
{
    TextEditor editor;
    editor.resize(300, 200);
    editor.setCurrentLineMarked(false);
    editor.setText(u"iiii xx iiii\nxx"_s);
    QCOMPARE(countOf(editor.grab().toImage(), MarkColor), 0);
    editor.setMarkedPattern(u"XX"_s, {});
    const int both = countOf(editor.grab().toImage(), MarkColor);
    QCOMPARE_GT(both, 0);
    editor.setMarkedPattern(u"XX"_s, {true, false});
    QCOMPARE(countOf(editor.grab().toImage(), MarkColor), 0);
    editor.setText(u"xx"_s);
    editor.setMarkedPattern(u"xx"_s, {});
    QCOMPARE(countOf(editor.grab().toImage(), MarkColor) * 2, both);
    editor.setMarkedPattern(QString(), {});
    QCOMPARE(countOf(editor.grab().toImage(), MarkColor), 0);
}

void tst_TextEditor::theCurrentLineIsColoured()
{
    TextEditor editor;
    editor.resize(300, 200);
    editor.setText(u"\n\n"_s);
    const auto isColoured = [&editor](int line) {
        editor.select(line, 0);
        const QRect cursor = editor.cursorRect();
        const QImage image = editor.viewport()->grab().toImage();
        return image.pixelColor(image.width() - 1, cursor.center().y()) == CurrentLineColor;
    };
    QVERIFY(isColoured(0));
    QVERIFY(isColoured(2));
    editor.selectAll();
    QCOMPARE(countOf(editor.grab().toImage(), CurrentLineColor), 0);
    editor.setCurrentLineMarked(false);
    QVERIFY(!isColoured(1));
}

QTEST_MAIN(tst_TextEditor)

#include "tst_texteditor.moc"
