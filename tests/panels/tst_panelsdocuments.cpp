// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsFixture.h"

#include "support/Input.h"
#include "support/ModalScript.h"
#include "support/PopupDriver.h"

#include "DocumentPage.h"
#include "Documents.h"
#include "PanelsWindow.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabBar>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

/// Files in tabs: opening, closing, and going from one to another.
class tst_PanelsDocuments final : public PanelsFixture
{
    Q_OBJECT

private Q_SLOTS:
    void withoutTabsAPictureSaysHowToOpenFiles();
    void thePlaceholderIsAsSharpAsTheScreen();
    void eachFileGoesToItsSection();
    void aFileThatIsOpenIsShownAgain();
    void namesAreShownAsTheyAre();
    void whatCannotBeOpenedIsSaidByName();
    void opensFilesFromTheMenu();
    void closesTabsFromTheirMenu_data();
    void closesTabsFromTheirMenu();
    void closesATabByItsButton();
    void closesATabByTheMiddleButton();
    void closedPagesAreDeleted();
    void theKeyOfCloseTakesTheCurrentTab();
    void theKeysOfTabsGoRoundAndRound();
    void theKeyOfSectionsSkipsEmptyOnes();
    void theTitleNamesTheCurrentFile();
    void theOutlineFollowsWhenTheNextTabTakesThePlace();

private:
    QString currentTab() const;
};

/// The text of the tab that can be seen; empty if none can.
QString tst_PanelsDocuments::currentTab() const
{
    const DocumentPage *page = window()->documents()->currentPage();
    return page ? QFileInfo(page->path()).fileName() : QString();
}

void tst_PanelsDocuments::withoutTabsAPictureSaysHowToOpenFiles()
{
    QVERIFY(content()->isVisible());
    QVERIFY(!content()->pixmap().isNull());
    QVERIFY(!content()->isSectionBarVisible());
    openTexts({u"a.txt"_s});
    QVERIFY(content()->pixmap().isNull());
    QVERIFY(content()->isSectionBarVisible());
    window()->documents()->closeCurrent();
    QVERIFY(content()->isVisible());
    QVERIFY(!content()->pixmap().isNull());
}

void tst_PanelsDocuments::thePlaceholderIsAsSharpAsTheScreen()
{
    QCOMPARE(content()->pixmap().devicePixelRatio(), window()->devicePixelRatioF());
}

void tst_PanelsDocuments::eachFileGoesToItsSection()
{
    window()->openFiles({createFile(u"a.md"_s, "# a"), createFile(u"b.txt"_s, "b"),
                         createPicture(u"c.png"_s, {9, 9})});
    QCOMPARE(tabs(MarkdownSection), QStringList{u"a.md"_s});
    QCOMPARE(tabs(TextSection), QStringList{u"b.txt"_s});
    QCOMPARE(tabs(PictureSection), QStringList{u"c.png"_s});
    // The last one is shown.
    QCOMPARE(content()->currentSection(), int(PictureSection));
    QCOMPARE(currentTab(), u"c.png"_s);
}

void tst_PanelsDocuments::aFileThatIsOpenIsShownAgain()
{
    openTexts({u"a.txt"_s, u"b.txt"_s});
    QCOMPARE(currentTab(), u"b.txt"_s);
    window()->openFiles({path(u"./a.txt"_s)});
    QCOMPARE(tabs(TextSection), (QStringList{u"a.txt"_s, u"b.txt"_s}));
    QCOMPARE(currentTab(), u"a.txt"_s);
}

void tst_PanelsDocuments::namesAreShownAsTheyAre()
{
    const QString name = u"<b>a&b[*]"_s;
    openTexts({name});
    QCOMPARE(tabs(TextSection), QStringList{u"<b>a&&b[*]"_s});
    QVERIFY(content()->tabToolTip(TextSection, 0).contains(u"&lt;b&gt;a&amp;b[*]"_s));
    QCOMPARE(window()->windowTitle(), u"<b>a&b[*][*] – Panels"_s);
}

void tst_PanelsDocuments::whatCannotBeOpenedIsSaidByName()
{
    const QString good = createFile(u"good.txt"_s, "a");
    ModalScript script;
    script.answer(QMessageBox::Ok);
    window()->openFiles({path(u"<i>missing.txt"_s), good});
    QVERIFY(script.isDone());
    QVERIFY(script.texts().constFirst().contains(path(u"<i>missing.txt"_s)));
    QCOMPARE(tabs(TextSection), QStringList{u"good.txt"_s});
}

void tst_PanelsDocuments::opensFilesFromTheMenu()
{
    const QString file = createFile(u"a.txt"_s, "a");
    QCOMPARE(action(u"open"_s)->shortcut(), QKeySequence(QKeySequence::Open));
    ModalScript script;
    script.chooseFile(file);
    QTest::keyClick(window(), Qt::Key_O, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QCOMPARE(tabs(TextSection), QStringList{u"a.txt"_s});
    script.chooseFile(QString());
    action(u"open"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(tabs(TextSection), QStringList{u"a.txt"_s});
}

void tst_PanelsDocuments::closesTabsFromTheirMenu_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QString>("current");

    QTest::newRow("current") << 1 << u"Close Current"_s << QStringList{u"a"_s, u"c"_s, u"d"_s}
                             << u"c"_s;
    QTest::newRow("left") << 2 << u"Close All Left"_s << QStringList{u"c"_s, u"d"_s} << u"c"_s;
    QTest::newRow("right") << 1 << u"Close All Right"_s << QStringList{u"a"_s, u"b"_s} << u"b"_s;
    QTest::newRow("all but one") << 1 << u"Close All(Except Current)"_s << QStringList{u"b"_s}
                                 << u"b"_s;
    QTest::newRow("all") << 1 << u"Close All"_s << QStringList() << QString();
}

void tst_PanelsDocuments::closesTabsFromTheirMenu()
{
    QFETCH(const int, tab);
    QFETCH(const QString, entry);
    openTexts({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    content()->setCurrentTab(TextSection, 2);
    {
        const PopupDriver driver([entry](QMenu *menu) {
            const QList<QAction *> actions = menu->actions();
            for (QAction *one : actions) {
                if (one->text() == entry) {
                    Input::click(menu, menu->actionGeometry(one).center());
                    return;
                }
            }
        });
        QTabBar *bar = tabBar(TextSection);
        Input::rightClick(bar, bar->tabRect(tab).center());
        QVERIFY(driver.hasRun());
    }
    QTEST(tabs(TextSection), "left");
    QTEST(currentTab(), "current");
}

void tst_PanelsDocuments::closesATabByItsButton()
{
    openTexts({u"a"_s, u"b"_s, u"c"_s});
    Input::click(tabBar(TextSection)->tabButton(1, QTabBar::RightSide));
    QCOMPARE(tabs(TextSection), (QStringList{u"a"_s, u"c"_s}));
}

void tst_PanelsDocuments::closesATabByTheMiddleButton()
{
    openTexts({u"a"_s, u"b"_s, u"c"_s});
    QTabBar *bar = tabBar(TextSection);
    Input::click(bar, bar->tabRect(0).center(), Qt::MiddleButton);
    QCOMPARE(tabs(TextSection), (QStringList{u"b"_s, u"c"_s}));
    QCOMPARE(currentTab(), u"c"_s);
}

void tst_PanelsDocuments::closedPagesAreDeleted()
{
    openTexts({u"a"_s, u"b"_s});
    const QPointer<QWidget> first = content()->widget(TextSection, 0);
    const QPointer<QWidget> second = content()->widget(TextSection, 1);
    window()->documents()->closeCurrent();
    QTRY_VERIFY(!second);
    QVERIFY(first);
    window()->documents()->closeCurrent();
    QTRY_VERIFY(!first);
}

void tst_PanelsDocuments::theKeyOfCloseTakesTheCurrentTab()
{
    QVERIFY(!action(u"closeTab"_s)->isEnabled());
    openTexts({u"a"_s, u"b"_s});
    QVERIFY(action(u"closeTab"_s)->isEnabled());
    QVERIFY(window()->documents()->currentPage()->focusProxy()->hasFocus());
    QTest::keyClick(window(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(tabs(TextSection), QStringList{u"a"_s});
    QVERIFY(window()->documents()->currentPage()->focusProxy()->hasFocus());
    QTest::keyClick(window(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(tabs(TextSection), QStringList());
    QVERIFY(!action(u"closeTab"_s)->isEnabled());
    // Nothing left to close.
    QTest::keyClick(window(), Qt::Key_W, Qt::ControlModifier);
    window()->documents()->closeCurrent();
}

void tst_PanelsDocuments::theKeysOfTabsGoRoundAndRound()
{
    window()->documents()->stepTab(1);
    openTexts({u"a"_s, u"b"_s, u"c"_s});
    QTest::keyClick(window(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(currentTab(), u"a"_s);
    QVERIFY(window()->documents()->currentPage()->focusProxy()->hasFocus());
    QTest::keyClick(window(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(currentTab(), u"b"_s);
    QTest::keyClick(window(), Qt::Key_PageUp, Qt::ControlModifier);
    QTest::keyClick(window(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(currentTab(), u"c"_s);
}

void tst_PanelsDocuments::theKeyOfSectionsSkipsEmptyOnes()
{
    QTest::keyClick(window(), Qt::Key_F6);
    QCOMPARE(currentTab(), QString());
    window()->openFiles({createFile(u"a.md"_s, "a"), createPicture(u"c.png"_s, {9, 9})});
    QTest::keyClick(window(), Qt::Key_F6);
    QCOMPARE(currentTab(), u"a.md"_s);
    QTest::keyClick(window(), Qt::Key_F6);
    QCOMPARE(currentTab(), u"c.png"_s);
    QVERIFY(window()->documents()->currentPage()->focusProxy()->hasFocus());
    QTest::keyClick(window(), Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(currentTab(), u"a.md"_s);
}

void tst_PanelsDocuments::theTitleNamesTheCurrentFile()
{
    QCOMPARE(window()->windowTitle(), u"Panels"_s);
    openTexts({u"a"_s, u"b"_s});
    QCOMPARE(window()->windowTitle(), u"b – Panels"_s);
    content()->setCurrentTab(TextSection, 0);
    QCOMPARE(window()->windowTitle(), u"a – Panels"_s);
    window()->documents()->closeCurrent();
    window()->documents()->closeCurrent();
    QCOMPARE(window()->windowTitle(), u"Panels"_s);
}

void tst_PanelsDocuments::theOutlineFollowsWhenTheNextTabTakesThePlace()
{
    window()->openFiles({createFile(u"a.md"_s, "# of a"), createFile(u"b.md"_s, "# of b")});
    content()->setCurrentTab(MarkdownSection, 0);
    const auto *outline = window()->findChild<QTreeWidget *>(u"outline"_s);
    QCOMPARE(outline->topLevelItem(0)->text(0), u"of a"_s);
    window()->documents()->closeCurrent();
    QCOMPARE(outline->topLevelItem(0)->text(0), u"of b"_s);
    window()->documents()->closeCurrent();
    QCOMPARE(outline->topLevelItem(0)->text(0), u"No document"_s);
}

QTEST_MAIN(tst_PanelsDocuments)

#include "tst_panelsdocuments.moc"
