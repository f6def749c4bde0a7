// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DialogFixture.h"
#include "StyleChecks.h"
#include "support/Input.h"

#include "NotepadDialog.h"
#include "NotepadRibbon.h"
#include "StyleCatalog.h"
#include "TextEditor.h"

#include <VornFrame/RibbonGallery.h>

#include <QAction>
#include <QFrame>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;
using StyleChecks::stylesOf;

/// The gallery of styles in the window, as a person uses it.
class tst_NotepadStyles final : public DialogFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void thePageAnswersToItsLetter();
    void thePageIsChosenByItsTitle();
    void theStripShowsFavoritesAndThenTheFirstStyles();
    void everyStyleIsInThePopup();
    void noTextOfATileIsCut();
    void aTileOfTheStripStylesTheSelection();
    void aTileOfThePopupStylesTheSelection();
    void aStyleOfTheStripIsForWhatIsTypedNext();
    void theSearchFindsStyles_data();
    void theSearchFindsStyles();
    void returnInTheSearchFieldGivesTheStyle();
    void escapeLeavesTheText();
    void aStarMakesAFavoriteThatComesIntoTheStrip();
    void favoritesSurviveAsLongAsTheWindow();
    void aFavoriteIsGivenUpByItsStar();
    void everyTileStylesTheSelection();
    void stylesAreUndoneFromTheRibbon();
    void stylesAreClearedFromTheRibbon();
    void transformsKeepStyles();
    void replacingAllKeepsStyles();
    void aFoundPlaceIsSeenOnAMarker();
    void colouredParagraphsFillTheirLines();

private:
    VornFrame::RibbonGallery *gallery() const
    {
        return dialog()->findChild<VornFrame::RibbonGallery *>(u"styleGallery"_s);
    }
    QMenu *popup() const { return gallery()->findChild<QMenu *>(u"galleryPopupMenu"_s); }
    QLineEdit *searchField() const { return popup()->findChild<QLineEdit *>(); }
    static QList<QToolButton *> tilesIn(const QWidget *parent);
    static QStringList titlesOf(const QList<QToolButton *> &tiles);
    QStringList stripTitles() const;
    QToolButton *stripTile(const QString &title) const;
    QList<QToolButton *> popupTiles(const QString &title) const;
    void openPopup() const;
    void clickInPopup(const QString &title) const;
    void star(QToolButton *tile) const;
    QStringList styles() const { return stylesOf(*editor()->document()); }
};

void tst_NotepadStyles::init()
{
    DialogFixture::init();
    editor()->setText(u"one two\nthree\nfour"_s);
    Input::click(tab(u"Styles"_s));
    QVERIFY(gallery()->isVisible());
}

/// Those with a style, not blank ones.
QList<QToolButton *> tst_NotepadStyles::tilesIn(const QWidget *parent)
{
    QList<QToolButton *> tiles;
    const QList<QToolButton *> buttons = parent->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->inherits("VornFrame::RibbonGalleryItem") && button->isEnabled())
            tiles += button;
    }
    return tiles;
}

QStringList tst_NotepadStyles::titlesOf(const QList<QToolButton *> &tiles)
{
    QStringList titles;
    for (const QToolButton *tile : tiles) {
        if (!tile->isHidden())
            titles += tile->text();
    }
    return titles;
}

QStringList tst_NotepadStyles::stripTitles() const
{
    return titlesOf(tilesIn(gallery()->findChild<QFrame *>(u"itemsFrame"_s)));
}

QToolButton *tst_NotepadStyles::stripTile(const QString &title) const
{
    const QList<QToolButton *> tiles = tilesIn(gallery()->findChild<QFrame *>(u"itemsFrame"_s));
    for (QToolButton *tile : tiles) {
        if (tile->text() == title)
            return tile;
    }
    return nullptr;
}

/// The favourite first, if there is one.
QList<QToolButton *> tst_NotepadStyles::popupTiles(const QString &title) const
{
    QList<QToolButton *> found;
    const QList<QToolButton *> tiles = tilesIn(popup());
    for (QToolButton *tile : tiles) {
        if (tile->text() == title && tile->isVisible())
            found += tile;
    }
    const auto height = [](const QToolButton *tile) { return tile->mapToGlobal(QPoint()).y(); };
    std::sort(found.begin(), found.end(), [height](QToolButton *first, QToolButton *second) {
        return height(first) < height(second);
    });
    return found;
}

void tst_NotepadStyles::openPopup() const
{
    Input::click(gallery()->findChild<QPushButton *>(u"popupButton"_s));
    QTRY_VERIFY(popup()->isVisible());
}

/// Looks for it first: what is found is not beyond the edge of the popup.
void tst_NotepadStyles::clickInPopup(const QString &title) const
{
    openPopup();
    QTest::keyClicks(searchField(), title);
    QCoreApplication::processEvents();
    const QList<QToolButton *> tiles = popupTiles(title);
    QVERIFY2(!tiles.isEmpty(), qPrintable(title));
    Input::click(tiles.constLast());
}

/// The star comes when the pointer does.
void tst_NotepadStyles::star(QToolButton *tile) const
{
    Input::move(tile);
    auto *button = tile->findChild<QToolButton *>(u"collectedButton"_s);
    QTRY_VERIFY(button->isVisible());
    Input::click(button);
}

void tst_NotepadStyles::thePageAnswersToItsLetter()
{
    Input::click(tab(u"Home"_s));
    QVERIFY(!gallery()->isVisible());
    QTest::keyClick(editor(), Qt::Key_T, Qt::AltModifier);
    QTRY_VERIFY(gallery()->isVisible());
    QVERIFY(editor()->hasFocus());
}

void tst_NotepadStyles::thePageIsChosenByItsTitle()
{
    QVERIFY(dialog()->ribbon()->showPage(u"Home"_s));
    QVERIFY(!gallery()->isVisible());
    QVERIFY(!dialog()->ribbon()->showPage(u"Unknown"_s));
    QVERIFY(dialog()->ribbon()->showPage(u"STYLES"_s));
    QVERIFY(gallery()->isVisible());
    QVERIFY(tab(u"Styles"_s)->isChecked());
}

void tst_NotepadStyles::theStripShowsFavoritesAndThenTheFirstStyles()
{
    QCOMPARE(stripTitles(),
             (QStringList{u"Normal"_s, u"Heading 1"_s, u"Bold"_s, u"Yellow Marker"_s, u"Title"_s,
                          u"Subtitle"_s, u"Heading 2"_s, u"Heading 3"_s}));
}

void tst_NotepadStyles::everyStyleIsInThePopup()
{
    openPopup();
    const QStringList titles = titlesOf(tilesIn(popup()));
    const QList<TextStyle> &all = StyleCatalog::instance().styles();
    for (const TextStyle &style : all)
        QVERIFY2(titles.contains(style.title), qPrintable(style.title));
    // The favourites are there twice.
    QCOMPARE(titles.size(), all.size() + 4);
    popup()->close();
}

void tst_NotepadStyles::noTextOfATileIsCut()
{
    openPopup();
    const QList<QToolButton *> tiles = tilesIn(popup());
    QCOMPARE_GT(tiles.size(), 60);
    for (const QToolButton *tile : tiles) {
        QCOMPARE(tile->size(), QSize(90, 60));
        QCOMPARE(tile->iconSize(), QSize(48, 28));
        tile->ensurePolished();
        QVERIFY2(tile->fontMetrics().horizontalAdvance(tile->text()) <= 84,
                 qPrintable(tile->text()));
        QVERIFY(tile->toolTip().startsWith(tile->text() + u'\n'));
    }
    popup()->close();
}

void tst_NotepadStyles::aTileOfTheStripStylesTheSelection()
{
    select(4, 3);
    Input::click(stripTile(u"Bold"_s));
    QCOMPARE(styles().at(0), u": <>one  <bold>two"_s);
    Input::click(stripTile(u"Heading 2"_s));
    QCOMPARE(styles().at(0), u"heading2: <heading2>one  <heading2 bold>two"_s);
    QCOMPARE(editor()->selectedText(), u"two"_s);
    QVERIFY(editor()->hasFocus());
    QVERIFY(dialog()->isWindowModified());
    QCOMPARE(label(u"message"_s), u"Heading 2"_s);
}

void tst_NotepadStyles::aTileOfThePopupStylesTheSelection()
{
    select(2, 9);
    clickInPopup(u"Teal"_s);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(styles().mid(0, 2), (QStringList{u": <>on <teal>e two"_s, u": <teal>thr <>ee"_s}));
    clickInPopup(u"Quote"_s);
    QCOMPARE(styles(), (QStringList{u"quote: <quote>on <quote teal>e two"_s,
                                    u"quote: <quote teal>thr <quote>ee"_s, u": <>four"_s}));
    QCOMPARE(editor()->selectedText(), u"e two\nthr"_s);
    QTRY_VERIFY(editor()->hasFocus());
}

void tst_NotepadStyles::aStyleOfTheStripIsForWhatIsTypedNext()
{
    select(18, 0);
    Input::click(stripTile(u"Bold"_s));
    QCOMPARE(label(u"message"_s), u"Bold from here on"_s);
    clickInPopup(u"Red"_s);
    QTRY_VERIFY(editor()->hasFocus());
    QTest::keyClicks(editor(), u"!!"_s);
    QCOMPARE(styles().at(2), u": <>four <bold red>!!"_s);
}

void tst_NotepadStyles::theSearchFindsStyles_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("found");

    QTest::newRow("one") << u"Wavy"_s << QStringList{u"Wavy Line"_s};
    QTest::newRow("some") << u"Quote"_s << QStringList{u"Quote"_s, u"Pull Quote"_s};
    QTest::newRow("a favourite and its origin")
        << u"Yellow"_s << QStringList{u"Yellow Marker"_s, u"Yellow Marker"_s};
    QTest::newRow("capitals count") << u"wavy"_s << QStringList();
}

void tst_NotepadStyles::theSearchFindsStyles()
{
    QFETCH(const QString, typed);
    openPopup();
    QTest::keyClicks(searchField(), typed);
    QStringList found;
    const QList<QToolButton *> tiles = tilesIn(popup());
    for (const QToolButton *tile : tiles) {
        if (tile->isVisible())
            found += tile->text();
    }
    QTEST(found, "found");
    popup()->close();
    openPopup();
    QCOMPARE_GT(titlesOf(tilesIn(popup())).size(), 60);
    popup()->close();
}

void tst_NotepadStyles::returnInTheSearchFieldGivesTheStyle()
{
    select(0, 3);
    openPopup();
    QTest::keyClicks(searchField(), u"Small C"_s);
    QTest::keyClick(searchField(), Qt::Key_Return);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(styles().at(0), u": <small-caps>one <> two"_s);
    QTRY_VERIFY(editor()->hasFocus());
}

void tst_NotepadStyles::escapeLeavesTheText()
{
    select(0, 3);
    openPopup();
    QTest::keyClick(searchField(), Qt::Key_Escape);
    QTRY_VERIFY(!popup()->isVisible());
    QVERIFY(dialog()->isVisible());
    QVERIFY(!dialog()->isWindowModified());
    QCOMPARE(editor()->selectedText(), u"one"_s);
    QTRY_VERIFY(editor()->hasFocus());
}

void tst_NotepadStyles::aStarMakesAFavoriteThatComesIntoTheStrip()
{
    openPopup();
    QTest::keyClicks(searchField(), u"Terminal"_s);
    QCOMPARE(popupTiles(u"Terminal"_s).size(), 1);
    star(popupTiles(u"Terminal"_s).constFirst());
    QCOMPARE(popupTiles(u"Terminal"_s).size(), 2);
    // Collecting is no choice.
    QVERIFY(popup()->isVisible());
    QVERIFY(!dialog()->isWindowModified());
    popup()->close();
    QTRY_COMPARE(stripTitles().value(4), u"Terminal"_s);
    QCOMPARE(stripTitles().size(), 8);
    Input::click(stripTile(u"Terminal"_s));
    QCOMPARE(styles().at(0), u"terminal: <terminal>one two"_s);
}

void tst_NotepadStyles::favoritesSurviveAsLongAsTheWindow()
{
    openPopup();
    QTest::keyClicks(searchField(), u"Pull"_s);
    star(popupTiles(u"Pull Quote"_s).constFirst());
    popup()->close();
    QTRY_COMPARE(stripTitles().value(4), u"Pull Quote"_s);
    openFile(u"a.txt"_s, "another text\n");
    Input::click(tab(u"Home"_s));
    dialog()->hide();
    QVERIFY(Input::show(dialog()));
    Input::click(tab(u"Styles"_s));
    QCOMPARE(stripTitles().value(4), u"Pull Quote"_s);
    openPopup();
    QCOMPARE(popupTiles(u"Pull Quote"_s).size(), 2);
    popup()->close();
}

void tst_NotepadStyles::aFavoriteIsGivenUpByItsStar()
{
    openPopup();
    const QList<QToolButton *> tiles = popupTiles(u"Heading 1"_s);
    QCOMPARE(tiles.size(), 2);
    star(tiles.constFirst());
    QTRY_COMPARE(popupTiles(u"Heading 1"_s).size(), 1);
    popup()->close();
    QTRY_COMPARE(stripTitles(),
                 (QStringList{u"Normal"_s, u"Bold"_s, u"Yellow Marker"_s, u"Title"_s, u"Subtitle"_s,
                              u"Heading 1"_s, u"Heading 2"_s, u"Heading 3"_s}));
}

void tst_NotepadStyles::everyTileStylesTheSelection()
{
    const QList<TextStyle> &all = StyleCatalog::instance().styles();
    for (const TextStyle &style : all) {
        editor()->setText(u"one two\nthree"_s);
        select(4, 3);
        const QStringList before = styles();
        clickInPopup(style.title);
        QCOMPARE(editor()->selectedText(), u"two"_s);
        // Nothing is there to be taken away.
        QCOMPARE(styles() == before, style.isEraser);
        QCOMPARE(dialog()->isWindowModified(), !style.isEraser);
        if (style.isEraser)
            continue;
        const QString expected = style.isParagraph() ? u"%1: <%1>one two"_s : u": <>one  <%1>two"_s;
        QCOMPARE(styles().at(0), expected.arg(style.name));
        editor()->undo();
        QCOMPARE(styles(), before);
    }
    editor()->document()->setModified(false);
}

void tst_NotepadStyles::stylesAreUndoneFromTheRibbon()
{
    const QStringList before = styles();
    editor()->selectAll();
    Input::click(stripTile(u"Title"_s));
    const QStringList after = styles();
    QVERIFY(action(u"undo"_s)->isEnabled());
    action(u"undo"_s)->trigger();
    QCOMPARE(styles(), before);
    QVERIFY(!action(u"undo"_s)->isEnabled());
    QVERIFY(!dialog()->isWindowModified());
    action(u"redo"_s)->trigger();
    QCOMPARE(styles(), after);
}

void tst_NotepadStyles::stylesAreClearedFromTheRibbon()
{
    const QStringList before = styles();
    editor()->selectAll();
    Input::click(stripTile(u"Title"_s));
    Input::click(stripTile(u"Yellow Marker"_s));
    QTest::keySequence(editor(), QKeySequence(u"Ctrl+\\"_s));
    QCOMPARE(styles(), before);
    QCOMPARE(label(u"message"_s), u"Styles cleared"_s);
    const QList<QToolButton *> buttons = dialog()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->defaultAction() != action(u"clearStyles"_s))
            continue;
        Input::click(stripTile(u"Title"_s));
        QVERIFY(styles() != before);
        Input::click(button);
        QCOMPARE(styles(), before);
        return;
    }
    QFAIL("there is no button");
}

void tst_NotepadStyles::transformsKeepStyles()
{
    select(4, 6);
    clickInPopup(u"Red"_s);
    select(1, 11);
    QTRY_VERIFY(action(u"upperCase"_s)->isEnabled());
    action(u"upperCase"_s)->trigger();
    QCOMPARE(styles(), (QStringList{u": <>oNE  <red>TWO"_s, u": <red>TH <>REe"_s, u": <>four"_s}));
    QCOMPARE(editor()->selectedText(), u"NE TWO\nTHRE"_s);
    editor()->undo();
    QCOMPARE(styles(), (QStringList{u": <>one  <red>two"_s, u": <red>th <>ree"_s, u": <>four"_s}));
    // Where lines change places there is no telling: all take the style of the first letter.
    select(0, 13);
    action(u"reverseLines"_s)->trigger();
    QCOMPARE(styles(), (QStringList{u": <>three"_s, u": <>one two"_s, u": <>four"_s}));
    editor()->undo();
    QCOMPARE(styles().at(0), u": <>one  <red>two"_s);
}

void tst_NotepadStyles::replacingAllKeepsStyles()
{
    editor()->setText(u"aXbXc\nX"_s);
    select(2, 2);
    clickInPopup(u"Green"_s);
    auto *find = dialog()->findChild<QLineEdit *>(u"findField"_s);
    auto *replacement = dialog()->findChild<QLineEdit *>(u"replaceField"_s);
    action(u"replace"_s)->trigger();
    find->selectAll();
    QTest::keyClicks(find, u"X"_s);
    QTest::keyClicks(replacement, u"yy"_s);
    action(u"replaceAll"_s)->trigger();
    QCOMPARE(styles(), (QStringList{u": <>ayy <green>byy <>c"_s, u": <>yy"_s}));
    QCOMPARE(label(u"findResult"_s), u"3 replaced"_s);
    editor()->undo();
    QCOMPARE(styles(), (QStringList{u": <>aX <green>bX <>c"_s, u": <>X"_s}));
}

void tst_NotepadStyles::aFoundPlaceIsSeenOnAMarker()
{
    editor()->setText(u"xx                                        "_s);
    action(u"currentLine"_s)->trigger();
    editor()->selectAll();
    clickInPopup(u"Sky Marker"_s);
    select(30, 0);
    const auto picture = [this] {
        return editor()->viewport()->grab(QRect(0, 0, 200, 40)).toImage();
    };
    editor()->setMarkedPattern(QString(), {});
    const QImage before = picture();
    editor()->setMarkedPattern(u"xx"_s, {});
    QVERIFY(picture() != before);
    // Selected text looks as selected text does.
    select(0, 2);
    const QImage selected = picture();
    editor()->setMarkedPattern(QString(), {});
    QCOMPARE(picture(), selected);
}

void tst_NotepadStyles::colouredParagraphsFillTheirLines()
{
    clickInPopup(u"Note"_s);
    select(17, 0);
    const QImage image = editor()->viewport()->grab().toImage();
    const QColor ground = StyleCatalog::instance().find(u"note"_s)->block.background().color();
    QCOMPARE(image.pixelColor(0, 12), ground);
    QCOMPARE(image.pixelColor(image.width() - 1, 12), ground);
    QCOMPARE(image.pixelColor(image.width() / 2, 12), ground);
}

QTEST_MAIN(tst_NotepadStyles)

#include "tst_notepadstyles.moc"
