// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleCatalog.h"
#include "StyleChecks.h"
#include "StyledText.h"
#include "TextEditor.h"
#include "TextStyler.h"

#include "support/TestCase.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QRandomGenerator>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using StyleChecks::stylesOf;

/// Styled text as HTML, and on the clipboard.
class tst_StyledText final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void knowsWhatIsStyled_data();
    void knowsWhatIsStyled();
    void everyStyleComesBack_data();
    void everyStyleComesBack();
    void allStylesTogetherComeBack();
    void everyCharacterComesBack();
    void emptyParagraphsComeBack_data();
    void emptyParagraphsComeBack();
    void controlCharactersAreNotReadable_data();
    void controlCharactersAreNotReadable();
    void browsersSeeTheStyles_data();
    void browsersSeeTheStyles();
    void whatWasNotWrittenHereIsNotReadable_data();
    void whatWasNotWrittenHereIsNotReadable();
    void aReadTextIsUnchanged();
    void plainTextAfterAStyledOneIsPlain();
    void copiedTextKeepsItsStyles();
    void copiedParagraphsDoNotTouchWhatFollows();
    void plainTextIsCopiedPlain();
    void otherHtmlIsPastedAsText();
    void pastedStylesAreOneStepToUndo();
    void whateverIsDoneStaysReadable_data();
    void whateverIsDoneStaysReadable();

private:
    void set(const QString &text) const { m_editor->setText(text); }
    void apply(const QString &name, int start, int length) const;
    QStringList styles() const { return stylesOf(*m_editor->document()); }
    QString html() const { return StyledText::toHtml(*m_editor->document()); }
    QStringList stylesAfterReading() const;

    std::unique_ptr<TextEditor> m_editor;
    QString m_clipboardText;
};

void tst_StyledText::init()
{
    TestCase::init();
    m_clipboardText = QGuiApplication::clipboard()->text();
    m_editor = std::make_unique<TextEditor>();
}

void tst_StyledText::cleanup()
{
    m_editor.reset();
    QGuiApplication::clipboard()->setText(m_clipboardText);
    TestCase::cleanup();
}

void tst_StyledText::apply(const QString &name, int start, int length) const
{
    m_editor->select(start, length);
    TextStyler(m_editor.get()).apply(*StyleCatalog::instance().find(name));
}

/// Of the text that comes back from the HTML of this one.
QStringList tst_StyledText::stylesAfterReading() const
{
    const QString written = html();
    if (!StyledText::isReadable(written))
        return {u"cannot be read"_s};
    TextEditor other;
    other.setStyledText(written);
    return stylesOf(*other.document());
}

void tst_StyledText::knowsWhatIsStyled_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isStyled");

    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("text") << u"bold"_s << true;
    QTest::newRow("paragraph") << u"quote"_s << true;
    QTest::newRow("an eraser") << u"automatic"_s << false;
    QTest::newRow("normal") << u"normal"_s << false;
}

void tst_StyledText::knowsWhatIsStyled()
{
    QFETCH(const QString, name);
    set(u"one\ntwo\n"_s);
    if (!name.isEmpty())
        apply(name, 4, 1);
    QTEST(StyledText::hasStyles(*m_editor->document()), "isStyled");
    QCOMPARE(StyledText::toHtml(m_editor->textCursor()).isEmpty(),
             !StyledText::hasStyles(*m_editor->document()));
    // An empty paragraph can have a style, too.
    set(u"one\n\n"_s);
    if (!name.isEmpty() && StyleCatalog::instance().find(name)->isParagraph()) {
        apply(name, 4, 0);
        QTEST(StyledText::hasStyles(*m_editor->document()), "isStyled");
    }
}

void tst_StyledText::everyStyleComesBack_data()
{
    QTest::addColumn<QString>("name");
    const QList<TextStyle> &all = StyleCatalog::instance().styles();
    for (const TextStyle &style : all)
        QTest::newRow(qPrintable(style.name)) << style.name;
}

void tst_StyledText::everyStyleComesBack()
{
    QFETCH(const QString, name);
    set(u"one two three\nfour"_s);
    apply(name, 4, 3);
    QCOMPARE(stylesAfterReading(), styles());
    QVERIFY(html().contains(name) || StyleCatalog::instance().find(name)->isEraser);
}

void tst_StyledText::allStylesTogetherComeBack()
{
    const QList<TextStyle> &all = StyleCatalog::instance().styles();
    QString text;
    for (qsizetype i = 0; i < all.size(); ++i)
        text += u"some text & \"more\" <text>\n"_s;
    set(text);
    for (int i = 0; i < all.size(); ++i) {
        // Each over the others', at another place and over the ends of lines.
        apply(all.at(i).name, i * 25, 12);
        apply(all.at((qsizetype{i} * 7) % all.size()).name, i * 24, 40);
    }
    m_editor->document()->setModified(false);
    const QStringList before = styles();
    QCOMPARE(stylesAfterReading(), before);
    TextEditor other;
    other.setStyledText(html());
    QCOMPARE(other.text(), text);
    QCOMPARE(StyledText::toHtml(*other.document()), html());
}

void tst_StyledText::everyCharacterComesBack()
{
    QString text = u"\t\t a  b \n   \n\n"_s;
    for (char16_t unit = 0x20; unit < 0xfffe; ++unit) {
        const QChar character(unit);
        const bool endsLine = unit == QChar::ParagraphSeparator || unit == 0xfdd0 || unit == 0xfdd1;
        if (!endsLine && !character.isSurrogate())
            text += character;
    }
    text += u"\U0001F600\n"_s;
    // No widget: it would look for fonts that can show all of it.
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText(text.left(1000), StyleCatalog::instance().textFormat({u"bold"_s}));
    cursor.insertText(text.mid(1000), QTextCharFormat());
    const QString written = StyledText::toHtml(document);
    QVERIFY(StyledText::isReadable(written));
    QTextDocument other;
    StyledText::insert(written, QTextCursor(&other));
    QVERIFY(other.toRawText().replace(QChar::ParagraphSeparator, u'\n') == text);
    QCOMPARE(stylesOf(other), stylesOf(document));
}

void tst_StyledText::emptyParagraphsComeBack_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString();
    QTest::newRow("one end") << u"\n"_s;
    QTest::newRow("at the start") << u"\n\na"_s;
    QTest::newRow("between") << u"a\n\n\nb"_s;
    QTest::newRow("at the end") << u"a\n\n"_s;
}

void tst_StyledText::emptyParagraphsComeBack()
{
    QFETCH(const QString, text);
    set(text);
    for (const QString &name : {u"normal"_s, u"heading3"_s, u"terminal"_s}) {
        apply(name, 0, int(text.size()));
        apply(name, int(text.size()), 0);
        QCOMPARE(stylesAfterReading(), styles());
    }
}

void tst_StyledText::controlCharactersAreNotReadable_data()
{
    QTest::addColumn<char16_t>("unit");

    for (const char16_t unit : {u'\x01', u'\f', u'\v', u'\x1f', u'\xfffe', u'\xffff'})
        QTest::addRow("%x", int(unit)) << unit;
}

void tst_StyledText::controlCharactersAreNotReadable()
{
    QFETCH(const char16_t, unit);
    set(u"a%1b"_s.arg(QChar(unit)));
    apply(u"bold"_s, 0, 3);
    QVERIFY(!StyledText::isReadable(html()));
}

void tst_StyledText::browsersSeeTheStyles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QString &expected) {
        QTest::newRow(name) << QString::fromLatin1(name) << expected;
    };
    row("bold", u"<p>a<span class=\"bold\" style=\"font-weight:bold\">b</span>c</p>\n"_s);
    row("red", u"<p>a<span class=\"red\" style=\"color:#c00000\">b</span>c</p>\n"_s);
    row("wavy", u"style=\"text-decoration:underline wavy\""_s);
    row("small-caps", u"style=\"font-variant:small-caps\""_s);
    row("all-caps", u"style=\"text-transform:uppercase\""_s);
    row("superscript", u"style=\"vertical-align:super;font-size:smaller\""_s);
    row("spaced", u"style=\"letter-spacing:0.25em\""_s);
    row("yellow-marker", u"style=\"background-color:#fff27a\""_s);
    row("key", u"background-color:#e0e0e0;font-family:monospace;font-weight:bold"_s);
    row("note", u"<p class=\"note\" style=\"background-color:#e3effb\">"
                "<span class=\"note\">abc</span></p>\n"_s);
    row("heading2",
        u"<h2 class=\"heading2\"><span class=\"heading2\""
        " style=\"color:#004073;font-size:1.5em;font-weight:bold\">abc</span></h2>\n"_s);
}

void tst_StyledText::browsersSeeTheStyles()
{
    QFETCH(const QString, name);
    QFETCH(const QString, expected);
    set(u"abc"_s);
    apply(name, 1, 1);
    QVERIFY2(html().contains(expected), qPrintable(html()));
}

void tst_StyledText::whatWasNotWrittenHereIsNotReadable_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("no text at all") << QString() << QString();
    QTest::newRow("only the start") << u"</body>"_s << QString();
    QTest::newRow("another document type") << u"<!DOCTYPE html>"_s << u"<!DOCTYPE HTML>"_s;
    QTest::newRow("more in the head") << u"</head>"_s << u"<script>x()</script></head>"_s;
    QTest::newRow("a comment") << u"</body>"_s << u"<!-- mine -->\n</body>"_s;
    QTest::newRow("a picture") << u"bold\""_s
                               << u"bold\"><img src=\"a.png\"/></span><span class=\"bold\""_s;
    QTest::newRow("a link") << u"one"_s << u"<a href=\"b\">one</a>"_s;
    QTest::newRow("a table") << u"<p>"_s << u"<table><tr><td>x</td></tr></table><p>"_s;
    QTest::newRow("an unknown style") << u"class=\"bold\""_s << u"class=\"loud\""_s;
    QTest::newRow("another look") << u"font-weight:bold"_s << u"font-weight:900"_s;
    QTest::newRow("an attribute more") << u"<p>"_s << u"<p lang=\"de\">"_s;
    QTest::newRow("an open element") << u"</span>"_s << QString();
    QTest::newRow("text outside") << u"</body>"_s << u"text</body>"_s;
    QTest::newRow("another entity") << u"&lt;"_s << u"&#60;"_s;
    QTest::newRow("text after the end") << u"</html>\n"_s << u"</html>\n\n"_s;
}

void tst_StyledText::whatWasNotWrittenHereIsNotReadable()
{
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    set(u"one two <three>\n"_s);
    apply(u"bold"_s, 4, 3);
    QString page = html();
    QVERIFY(StyledText::isReadable(page));
    if (before.isEmpty())
        page.clear();
    else
        page.replace(before, after);
    QVERIFY(page != html());
    QVERIFY(!StyledText::isReadable(page));
}

void tst_StyledText::aReadTextIsUnchanged()
{
    set(u"one\ntwo"_s);
    apply(u"heading1"_s, 0, 0);
    TextEditor other;
    other.setText(u"before"_s);
    other.setStyledText(html());
    QCOMPARE(other.text(), u"one\ntwo"_s);
    QVERIFY(!other.document()->isModified());
    QVERIFY(!other.document()->isUndoAvailable());
    QCOMPARE(other.textCursor().position(), 0);
}

void tst_StyledText::plainTextAfterAStyledOneIsPlain()
{
    set(u"one"_s);
    apply(u"terminal"_s, 0, 0);
    apply(u"bold"_s, 0, 0);
    set(u"two\nthree"_s);
    QCOMPARE(styles(), (QStringList{u": <>two"_s, u": <>three"_s}));
    QTest::keyClicks(m_editor.get(), u"x"_s);
    QCOMPARE(styles().at(0), u": <>xtwo"_s);
    set(QString());
    QTest::keyClicks(m_editor.get(), u"x"_s);
    QCOMPARE(styles(), QStringList{u": <>x"_s});
}

void tst_StyledText::copiedTextKeepsItsStyles()
{
    set(u"one two three"_s);
    apply(u"bold"_s, 4, 3);
    m_editor->select(2, 7);
    m_editor->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"e two t"_s);
    TextEditor other;
    other.setText(u"[]"_s);
    other.select(1, 0);
    other.paste();
    QCOMPARE(stylesOf(*other.document()), QStringList{u": <>[e  <bold>two <> t]"_s});
}

void tst_StyledText::copiedParagraphsDoNotTouchWhatFollows()
{
    set(u"one\ntwo\nthree"_s);
    apply(u"heading1"_s, 0, 0);
    apply(u"code"_s, 5, 0);
    m_editor->select(0, 8); // with the end of the second line
    m_editor->copy();
    TextEditor other;
    other.setText(u"ab"_s);
    other.select(1, 0);
    other.paste();
    QCOMPARE(stylesOf(*other.document()),
             (QStringList{u": <>a <heading1>one"_s, u"code: <code>two"_s, u": <>b"_s}));
    QCOMPARE(other.text(), u"aone\ntwo\nb"_s);
    // Into an empty line they come as they are.
    other.setText(u"a\n\nb"_s);
    other.select(2, 0);
    other.paste();
    QCOMPARE(stylesOf(*other.document()), (QStringList{u": <>a"_s, u"heading1: <heading1>one"_s,
                                                       u"code: <code>two"_s, u":"_s, u": <>b"_s}));
}

void tst_StyledText::plainTextIsCopiedPlain()
{
    set(u"one two"_s);
    apply(u"bold"_s, 4, 3);
    m_editor->select(0, 4);
    m_editor->copy();
    QVERIFY(!QGuiApplication::clipboard()->mimeData()->hasHtml());
}

void tst_StyledText::otherHtmlIsPastedAsText()
{
    auto *data = new QMimeData;
    data->setHtml(u"<b>loud</b>"_s);
    data->setText(u"quiet"_s);
    QGuiApplication::clipboard()->setMimeData(data);
    m_editor->paste();
    QCOMPARE(styles(), QStringList{u": <>quiet"_s});
}

void tst_StyledText::pastedStylesAreOneStepToUndo()
{
    set(u"one\ntwo"_s);
    apply(u"heading1"_s, 0, 7);
    m_editor->selectAll();
    m_editor->copy();
    set(u"old"_s);
    m_editor->selectAll();
    m_editor->paste();
    QCOMPARE(m_editor->text(), u"one\ntwo"_s);
    m_editor->undo();
    QCOMPARE(m_editor->text(), u"old"_s);
    QVERIFY(!m_editor->document()->isModified());
}

void tst_StyledText::whateverIsDoneStaysReadable_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_StyledText::whateverIsDoneStaysReadable()
{
    QFETCH(const quint32, seed);
    QRandomGenerator random(seed);
    const QList<TextStyle> &all = StyleCatalog::instance().styles();
    const QList<Qt::Key> keys{Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_End,
                              Qt::Key_A};
    set(u"one two\nthree\n\nfour five six"_s);
    for (int i = 0; i < 300; ++i) {
        const int end = m_editor->document()->characterCount() - 1;
        const int start = int(random.bounded(quint32(end + 1)));
        m_editor->select(start, int(random.bounded(quint32(end - start + 1))) / 3);
        switch (random.bounded(6)) {
        case 0:
            QTest::keyClick(m_editor.get(), keys.at(random.bounded(keys.size())));
            break;
        case 1:
            m_editor->copy();
            m_editor->moveCursor(QTextCursor::End);
            m_editor->paste();
            break;
        case 2:
            m_editor->undo();
            break;
        default:
            TextStyler(m_editor.get()).apply(all.at(random.bounded(all.size())));
            QTest::keyClick(m_editor.get(), 'x');
        }
        QCOMPARE(styles().filter(u"looks different"_s), QStringList());
        QCOMPARE(stylesAfterReading(), styles());
    }
}

QTEST_MAIN(tst_StyledText)

#include "tst_styledtext.moc"
