// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleCatalog.h"
#include "StyleChecks.h"
#include "TextEditor.h"
#include "TextStyler.h"

#include "support/Input.h"
#include "support/TestCase.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using StyleChecks::stylesOf;

/// Giving styles to text, without the window around.
class tst_TextStyler final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyStyleGivesItsFormats_data();
    void everyStyleGivesItsFormats();
    void theSelectionStays_data();
    void theSelectionStays();
    void aStyleOfTextGoesToExactlyTheSelection();
    void aStyleOfTextGoesToWhatIsTypedNext();
    void aParagraphStyleGoesToTheParagraphOfTheCursor();
    void aParagraphStyleGoesToAllSelectedParagraphs();
    void anEmptyParagraphIsTypedInItsStyle();
    void textKeepsItsOwnStylesInAnotherParagraphStyle();
    void stylesOfTextAddUp();
    void aStyleTakesThePlaceOfOneThatSaysTheSame_data();
    void aStyleTakesThePlaceOfOneThatSaysTheSame();
    void anEraserTakesOnlyItsGroupAway_data();
    void anEraserTakesOnlyItsGroupAway();
    void clearingASelectionLeavesTheRest();
    void clearingWholeParagraphsTakesTheirStylesToo();
    void clearingWithoutASelectionIsForTheParagraph();
    void aStyleThatIsThereAlreadyIsNoChange();
    void allOfALongTextIsOneStep();
    void plainTextFollowsAHeading();
    void aBreakInAHeadingStaysAHeading();
    void theSizeOfAHeadingFollowsTheZoom();

private:
    void apply(const QString &name) const
    {
        TextStyler(m_editor.get()).apply(*StyleCatalog::instance().find(name));
    }
    void select(int start, int length) const { m_editor->select(start, length); }
    QStringList styles() const { return stylesOf(*m_editor->document()); }

    std::unique_ptr<TextEditor> m_editor;
};

void tst_TextStyler::init()
{
    TestCase::init();
    m_editor = std::make_unique<TextEditor>();
    m_editor->setText(u"one two\nthree\n\nfour"_s);
}

void tst_TextStyler::cleanup()
{
    m_editor.reset();
    TestCase::cleanup();
}

void tst_TextStyler::everyStyleGivesItsFormats_data()
{
    QTest::addColumn<QString>("name");
    const QList<TextStyle> &all = StyleCatalog::instance().styles();
    for (const TextStyle &style : all) {
        if (!style.isEraser)
            QTest::newRow(qPrintable(style.name)) << style.name;
    }
}

void tst_TextStyler::everyStyleGivesItsFormats()
{
    QFETCH(const QString, name);
    const TextStyle style = *StyleCatalog::instance().find(name);
    const QStringList before = styles();
    select(4, 3);
    apply(name);

    QTextCursor cursor(m_editor->document());
    cursor.setPosition(5);
    const auto given = style.text.properties();
    for (auto it = given.cbegin(); it != given.cend(); ++it)
        QCOMPARE(cursor.charFormat().property(it.key()), it.value());
    const auto givenToBlock = style.block.properties();
    for (auto it = givenToBlock.cbegin(); it != givenToBlock.cend(); ++it)
        QCOMPARE(cursor.blockFormat().property(it.key()), it.value());
    cursor.setPosition(1);
    QCOMPARE(StyleCatalog::namesOf(cursor.charFormat()),
             style.isParagraph() ? QStringList{name} : QStringList());
    QCOMPARE(styles().at(1), before.at(1));
    QVERIFY(m_editor->document()->isModified());

    const QStringList after = styles();
    m_editor->undo();
    QCOMPARE(styles(), before);
    QVERIFY(!m_editor->document()->isUndoAvailable());
    QVERIFY(!m_editor->document()->isModified());
    m_editor->redo();
    QCOMPARE(styles(), after);
}

void tst_TextStyler::theSelectionStays_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("position");

    QTest::newRow("text") << u"bold"_s << 4 << 7;
    QTest::newRow("text, backwards") << u"red"_s << 10 << 2;
    QTest::newRow("paragraph") << u"heading1"_s << 5 << 6;
    QTest::newRow("paragraphs") << u"code"_s << 12 << 3;
    QTest::newRow("only a cursor") << u"quote"_s << 5 << 5;
}

void tst_TextStyler::theSelectionStays()
{
    QFETCH(const QString, name);
    QFETCH(const int, anchor);
    QFETCH(const int, position);
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    m_editor->setTextCursor(cursor);
    apply(name);
    QCOMPARE(m_editor->textCursor().anchor(), anchor);
    QCOMPARE(m_editor->textCursor().position(), position);
}

void tst_TextStyler::aStyleOfTextGoesToExactlyTheSelection()
{
    select(4, 7);
    apply(u"bold"_s);
    QCOMPARE(styles(),
             (QStringList{u": <>one  <bold>two"_s, u": <bold>thr <>ee"_s, u":"_s, u": <>four"_s}));
    // The line after the selection begins as it was.
    select(8, 0);
    m_editor->insertPlainText(u"x"_s);
    select(7, 1);
    QCOMPARE(m_editor->textCursor().selectedText(), QString(QChar::ParagraphSeparator));
    QVERIFY(
        StyleCatalog::namesOf(m_editor->document()->findBlockByNumber(1).charFormat()).isEmpty());
}

void tst_TextStyler::aStyleOfTextGoesToWhatIsTypedNext()
{
    select(3, 0);
    apply(u"red"_s);
    apply(u"italic"_s);
    QVERIFY(!m_editor->document()->isModified());
    QTest::keyClicks(m_editor.get(), u"!?"_s);
    QCOMPARE(styles().at(0), u": <>one <red italic>!? <> two"_s);
    apply(u"automatic"_s);
    QTest::keyClicks(m_editor.get(), u"."_s);
    QCOMPARE(styles().at(0), u": <>one <red italic>!? <italic>. <> two"_s);
    // Elsewhere it is forgotten.
    select(1, 0);
    apply(u"bold"_s);
    select(2, 0);
    QTest::keyClicks(m_editor.get(), u"x"_s);
    QVERIFY(styles().at(0).startsWith(u": <>onxe"_s));
}

void tst_TextStyler::aParagraphStyleGoesToTheParagraphOfTheCursor()
{
    select(10, 0);
    apply(u"heading2"_s);
    QCOMPARE(styles(), (QStringList{u": <>one two"_s, u"heading2: <heading2>three"_s, u":"_s,
                                    u": <>four"_s}));
    QCOMPARE(m_editor->textCursor().blockFormat().headingLevel(), 2);
    QTest::keyClicks(m_editor.get(), u"x"_s);
    QCOMPARE(styles().at(1), u"heading2: <heading2>thxree"_s);
    apply(u"normal"_s);
    QCOMPARE(styles().at(1), u": <>thxree"_s);
}

void tst_TextStyler::aParagraphStyleGoesToAllSelectedParagraphs()
{
    select(5, 9); // to the start of the empty line
    apply(u"note"_s);
    QCOMPARE(styles(), (QStringList{u"note: <note>one two"_s, u"note: <note>three"_s, u":"_s,
                                    u": <>four"_s}));
    m_editor->selectAll();
    apply(u"tip"_s);
    QCOMPARE(styles(), (QStringList{u"tip: <tip>one two"_s, u"tip: <tip>three"_s, u"tip:"_s,
                                    u"tip: <tip>four"_s}));
    m_editor->undo();
    m_editor->undo();
    QVERIFY(!m_editor->document()->isModified());
}

void tst_TextStyler::anEmptyParagraphIsTypedInItsStyle()
{
    select(14, 0);
    apply(u"quote"_s);
    QTest::keyClicks(m_editor.get(), u"ab"_s);
    QCOMPARE(styles().at(2), u"quote: <quote>ab"_s);
    // Also when the cursor was elsewhere meanwhile.
    m_editor->undo();
    select(0, 0);
    select(14, 0);
    QTest::keyClicks(m_editor.get(), u"cd"_s);
    QCOMPARE(styles().at(2), u"quote: <quote>cd"_s);
}

void tst_TextStyler::textKeepsItsOwnStylesInAnotherParagraphStyle()
{
    select(4, 3);
    apply(u"red"_s);
    apply(u"bold"_s);
    select(0, 0);
    apply(u"heading1"_s);
    QCOMPARE(styles().at(0), u"heading1: <heading1>one  <heading1 red bold>two"_s);
    apply(u"quote"_s);
    QCOMPARE(styles().at(0), u"quote: <quote>one  <quote red bold>two"_s);
    apply(u"normal"_s);
    QCOMPARE(styles().at(0), u": <>one  <red bold>two"_s);
}

void tst_TextStyler::stylesOfTextAddUp()
{
    select(0, 3);
    for (const QString &name :
         {u"bold"_s, u"underline"_s, u"strikeout"_s, u"blue"_s, u"yellow-marker"_s, u"spaced"_s})
        apply(name);
    QCOMPARE(styles().at(0), u": <bold underline strikeout blue yellow-marker spaced>one <> two"_s);
    select(2, 3);
    apply(u"italic"_s);
    QCOMPARE(styles().at(0),
             u": <bold underline strikeout blue yellow-marker spaced>on"
             " <bold underline strikeout blue yellow-marker spaced italic>e <italic> t <>wo"_s);
}

void tst_TextStyler::aStyleTakesThePlaceOfOneThatSaysTheSame_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("expected");

    QTest::newRow("color") << QStringList{u"red"_s, u"blue"_s} << u"blue"_s;
    QTest::newRow("marker") << QStringList{u"pink-marker"_s, u"sky-marker"_s} << u"sky-marker"_s;
    QTest::newRow("kind of line") << QStringList{u"wavy"_s, u"dotted"_s} << u"dotted"_s;
    QTest::newRow("size") << QStringList{u"larger"_s, u"smaller"_s} << u"smaller"_s;
    QTest::newRow("capitals") << QStringList{u"small-caps"_s, u"all-caps"_s} << u"all-caps"_s;
    QTest::newRow("height") << QStringList{u"superscript"_s, u"subscript"_s} << u"subscript"_s;
    QTest::newRow("more of it") << QStringList{u"bold"_s, u"bold-italic"_s} << u"bold-italic"_s;
    QTest::newRow("again") << QStringList{u"red"_s, u"bold"_s, u"red"_s} << u"bold red"_s;
    QTest::newRow("less of it") << QStringList{u"inline-code"_s, u"red"_s} << u"inline-code red"_s;
}

void tst_TextStyler::aStyleTakesThePlaceOfOneThatSaysTheSame()
{
    QFETCH(const QStringList, given);
    QFETCH(const QString, expected);
    select(0, 7);
    for (const QString &name : given)
        apply(name);
    QCOMPARE(styles().at(0), u": <%1>one two"_s.arg(expected));
}

void tst_TextStyler::anEraserTakesOnlyItsGroupAway_data()
{
    QTest::addColumn<QString>("eraser");
    QTest::addColumn<QString>("expected");

    QTest::newRow("emphasis") << u"no-emphasis"_s << u"note: <note red sand-marker>one two"_s;
    QTest::newRow("color") << u"automatic"_s << u"note: <note bold wavy sand-marker>one two"_s;
    QTest::newRow("marker") << u"no-marker"_s << u"note: <note bold red wavy>one two"_s;
    QTest::newRow("paragraph") << u"normal"_s << u": <bold red wavy sand-marker>one two"_s;
}

void tst_TextStyler::anEraserTakesOnlyItsGroupAway()
{
    QFETCH(const QString, eraser);
    select(0, 7);
    for (const QString &name : {u"bold"_s, u"red"_s, u"wavy"_s, u"sand-marker"_s, u"note"_s})
        apply(name);
    apply(eraser);
    QTEST(styles().at(0), "expected");
}

void tst_TextStyler::clearingASelectionLeavesTheRest()
{
    select(0, 7);
    apply(u"heading1"_s);
    apply(u"red"_s);
    select(2, 3);
    TextStyler(m_editor.get()).clear();
    QCOMPARE(styles().at(0), u"heading1: <heading1 red>on <heading1>e t <heading1 red>wo"_s);
    m_editor->undo();
    QCOMPARE(styles().at(0), u"heading1: <heading1 red>one two"_s);
}

void tst_TextStyler::clearingWholeParagraphsTakesTheirStylesToo()
{
    const QStringList before = styles();
    m_editor->selectAll();
    apply(u"code"_s);
    apply(u"bold"_s);
    TextStyler(m_editor.get()).clear();
    QCOMPARE(styles(), before);
    QVERIFY(m_editor->textCursor().hasSelection());
}

void tst_TextStyler::clearingWithoutASelectionIsForTheParagraph()
{
    m_editor->selectAll();
    apply(u"code"_s);
    select(9, 0);
    TextStyler(m_editor.get()).clear();
    QCOMPARE(styles().at(0), u"code: <code>one two"_s);
    QCOMPARE(styles().at(1), u": <>three"_s);
    QTest::keyClicks(m_editor.get(), u"x"_s);
    QCOMPARE(styles().at(1), u": <>txhree"_s);
}

void tst_TextStyler::aStyleThatIsThereAlreadyIsNoChange()
{
    select(0, 7);
    apply(u"bold"_s);
    apply(u"heading1"_s);
    m_editor->document()->setModified(false);
    apply(u"bold"_s);
    apply(u"heading1"_s);
    QVERIFY(!m_editor->document()->isModified());
}

void tst_TextStyler::allOfALongTextIsOneStep()
{
    QString text;
    for (int i = 0; i < 2000; ++i)
        text += u"line %1\n"_s.arg(i);
    m_editor->setText(text);
    m_editor->selectAll();
    apply(u"bold"_s);
    QCOMPARE(styles().at(1234), u": <bold>line 1234"_s);
    m_editor->undo();
    QVERIFY(!m_editor->document()->isModified());
    QCOMPARE(styles().at(1234), u": <>line 1234"_s);
}

void tst_TextStyler::plainTextFollowsAHeading()
{
    for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ShiftModifier}) {
        m_editor->setText(u"head\nx"_s);
        select(4, 0);
        apply(u"heading1"_s);
        QTest::keyClick(m_editor.get(), Qt::Key_Return, modifiers);
        QCOMPARE(styles(), (QStringList{u"heading1: <heading1>head"_s, u":"_s, u": <>x"_s}));
        QTest::keyClicks(m_editor.get(), u"text"_s);
        QCOMPARE(styles().at(1), u": <>text"_s);
        m_editor->undo();
        m_editor->undo();
        QCOMPARE(styles(), (QStringList{u"heading1: <heading1>head"_s, u": <>x"_s}));
    }
    // Other paragraphs go on.
    m_editor->setText(u"code"_s);
    select(4, 0);
    apply(u"code"_s);
    QTest::keyClick(m_editor.get(), Qt::Key_Return);
    QTest::keyClicks(m_editor.get(), u"more"_s);
    QCOMPARE(styles(), (QStringList{u"code: <code>code"_s, u"code: <code>more"_s}));
}

void tst_TextStyler::aBreakInAHeadingStaysAHeading()
{
    select(3, 0);
    apply(u"heading1"_s);
    QTest::keyClick(m_editor.get(), Qt::Key_Return);
    QCOMPARE(styles().mid(0, 2),
             (QStringList{u"heading1: <heading1>one"_s, u"heading1: <heading1> two"_s}));
}

void tst_TextStyler::theSizeOfAHeadingFollowsTheZoom()
{
    QVERIFY(Input::show(m_editor.get()));
    const auto height = [this](int line) {
        const QTextBlock block = m_editor->document()->findBlockByNumber(line);
        return m_editor->document()->documentLayout()->blockBoundingRect(block).height();
    };
    select(0, 0);
    apply(u"heading1"_s);
    const qreal before = height(0);
    QCOMPARE_GT(before, height(1) * 1.7);
    QFont font = m_editor->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    m_editor->setFont(font);
    QTRY_COMPARE_GT(height(0), before * 1.7);
    m_editor->undo();
    QVERIFY(!m_editor->document()->isUndoAvailable());
}

QTEST_MAIN(tst_TextStyler)

#include "tst_textstyler.moc"
