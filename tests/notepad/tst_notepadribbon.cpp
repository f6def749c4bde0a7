// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DialogFixture.h"
#include "support/Input.h"
#include "support/ModalScript.h"
#include "support/PopupDriver.h"

#include "NotepadDialog.h"
#include "TextEditor.h"

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonPage.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QFontComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

template <typename... Widgets>
bool isOneOf(const QWidget *widget)
{
    return ((qobject_cast<const Widgets *>(widget) != nullptr) || ...);
}

} // namespace

/// The window's ribbon: its pages, buttons, menus and keys.
class tst_NotepadRibbon final : public DialogFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theSelectionPageIsThereWhileTextIsSelected();
    void theSelectionPageDoesNotPushItselfToTheFront();
    void theSelectionPageGivesWayToThePageBefore();
    void aTransformKeepsItsSelectionAndItsPage_data();
    void aTransformKeepsItsSelectionAndItsPage();
    void statisticsFollowTheSelection();
    void commandsAreDisabledWhereTheyDoNothing();
    void theSaveButtonSavesAndItsOtherPartOpensAMenu();
    void menusOpenUnderTheirButtonsByKeys_data();
    void menusOpenUnderTheirButtonsByKeys();
    void keysWorkWhileTheirPageIsHidden();
    void tabsAnswerToTheirLetters();
    void everyCommandHasKeysOfItsOwn();
    void everyWidgetToUseHasAName();
    void thereIsSomethingToInsert();
    void theFontIsChosenOnTheRibbon();
    void theTextIsZoomed();
    void theViewIsChosenByToggles();
    void theHelpListsAllCommands();

private:
    QString currentTitle() const;
    QToolButton *buttonOf(const QAction *action) const;
};

QString tst_NotepadRibbon::currentTitle() const
{
    const QList<QPushButton *> buttons = dialog()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->isCheckable() && button->isChecked())
            return button->text().remove(u'&');
    }
    return {};
}

QToolButton *tst_NotepadRibbon::buttonOf(const QAction *action) const
{
    const QList<QToolButton *> buttons = bar()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->defaultAction() == action && button->isVisible())
            return button;
    }
    return nullptr;
}

void tst_NotepadRibbon::theSelectionPageIsThereWhileTextIsSelected()
{
    QVERIFY(!tab(u"Selection"_s)->isVisible());
    editor()->setText(u"some text"_s);
    QVERIFY(!tab(u"Selection"_s)->isVisible());
    select(0, 4);
    QTRY_VERIFY(tab(u"Selection"_s)->isVisible());
    select(2, 0);
    QTRY_VERIFY(!tab(u"Selection"_s)->isVisible());
    editor()->selectAll();
    QTRY_VERIFY(tab(u"Selection"_s)->isVisible());
    action(u"new"_s)->trigger();
    QTRY_VERIFY(!tab(u"Selection"_s)->isVisible());
}

void tst_NotepadRibbon::theSelectionPageDoesNotPushItselfToTheFront()
{
    editor()->setText(u"some text"_s);
    Input::click(tab(u"View"_s));
    QCOMPARE(currentTitle(), u"View"_s);
    VornFrame::RibbonPage *page = bar()->currentPage();
    select(0, 4);
    QTRY_VERIFY(tab(u"Selection"_s)->isVisible());
    QCOMPARE(currentTitle(), u"View"_s);
    QCOMPARE(bar()->currentPage(), page);
    select(0, 0);
    QTRY_VERIFY(!tab(u"Selection"_s)->isVisible());
    QCOMPARE(bar()->currentPage(), page);
}

void tst_NotepadRibbon::theSelectionPageGivesWayToThePageBefore()
{
    editor()->setText(u"some text"_s);
    Input::click(tab(u"View"_s));
    VornFrame::RibbonPage *page = bar()->currentPage();
    select(0, 4);
    QTRY_VERIFY(tab(u"Selection"_s)->isVisible());
    Input::click(tab(u"Selection"_s));
    QVERIFY(bar()->currentPage() != page);
    QVERIFY(bar()->currentPage()->isVisible());
    select(0, 0);
    QTRY_VERIFY(!tab(u"Selection"_s)->isVisible());
    QCOMPARE(currentTitle(), u"View"_s);
    QCOMPARE(bar()->currentPage(), page);
    QVERIFY(page->isVisible());

    // From a page that the program chose, too.
    action(u"find"_s)->trigger();
    select(0, 4);
    QTRY_VERIFY(tab(u"Selection"_s)->isVisible());
    Input::click(tab(u"Selection"_s));
    select(0, 0);
    QTRY_COMPARE(currentTitle(), u"Find"_s);
}

void tst_NotepadRibbon::aTransformKeepsItsSelectionAndItsPage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    // Of "b b\nA a \nb b", all but the first and last letter is selected.
    QTest::newRow("upper") << u"upperCase"_s << u"b B\nA A \nB b"_s;
    QTest::newRow("lower") << u"lowerCase"_s << u"b b\na a \nb b"_s;
    QTest::newRow("title") << u"titleCase"_s << u"b B\nA A \nB b"_s;
    QTest::newRow("sort") << u"sortLines"_s << u"A a \nb b\nb b"_s;
    QTest::newRow("reverse") << u"reverseLines"_s << u"b b\nA a \nb b"_s;
    QTest::newRow("duplicates") << u"removeDuplicates"_s << u"b b\nA a "_s;
    QTest::newRow("join") << u"joinLines"_s << u"b b A a b b"_s;
    QTest::newRow("indent") << u"indent"_s << u"    b b\n    A a \n    b b"_s;
    QTest::newRow("outdent") << u"outdent"_s << u"b b\nA a \nb b"_s;
    QTest::newRow("trim") << u"trim"_s << u"b b\nA a\nb b"_s;
}

void tst_NotepadRibbon::aTransformKeepsItsSelectionAndItsPage()
{
    QFETCH(const QString, name);
    const QString text = u"b b\nA a \nb b"_s;
    editor()->setText(text);
    QVERIFY(!action(name)->isEnabled());
    select(1, int(text.size()) - 2);
    QTRY_VERIFY(tab(u"Selection"_s)->isVisible());
    Input::click(tab(u"Selection"_s));
    Input::click(buttonOf(action(name)));
    QTEST(editor()->text(), "expected");
    QCoreApplication::processEvents();
    QVERIFY(editor()->textCursor().hasSelection());
    QCOMPARE(currentTitle(), u"Selection"_s);
    QVERIFY(editor()->hasFocus());
    if (editor()->text() != text)
        editor()->undo();
    QCOMPARE(editor()->text(), text);
    QVERIFY(!dialog()->isWindowModified());
}

void tst_NotepadRibbon::statisticsFollowTheSelection()
{
    editor()->setText(u"one two\nthree"_s);
    editor()->selectAll();
    QTRY_COMPARE(label(u"statistics"_s), u"Lines: 2\nWords: 3\nCharacters: 13"_s);
    select(0, 3);
    QTRY_COMPARE(label(u"statistics"_s), u"Lines: 1\nWords: 1\nCharacters: 3"_s);
}

void tst_NotepadRibbon::commandsAreDisabledWhereTheyDoNothing()
{
    for (const QString &name : {u"undo"_s, u"redo"_s, u"cut"_s, u"copy"_s})
        QVERIFY(!action(name)->isEnabled());
    QTest::keyClicks(editor(), u"text"_s);
    QVERIFY(action(u"undo"_s)->isEnabled());
    action(u"undo"_s)->trigger();
    QVERIFY(!action(u"undo"_s)->isEnabled());
    QVERIFY(action(u"redo"_s)->isEnabled());
    action(u"redo"_s)->trigger();
    QCOMPARE(editor()->text(), u"text"_s);
    editor()->selectAll();
    QVERIFY(action(u"cut"_s)->isEnabled());
    action(u"cut"_s)->trigger();
    QCOMPARE(editor()->text(), QString());
    QVERIFY(action(u"paste"_s)->isEnabled());
    action(u"paste"_s)->trigger();
    QCOMPARE(editor()->text(), u"text"_s);
    QGuiApplication::clipboard()->clear();
    QVERIFY(!action(u"paste"_s)->isEnabled());
}

void tst_NotepadRibbon::theSaveButtonSavesAndItsOtherPartOpensAMenu()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    editor()->insertPlainText(u"new "_s);
    auto *menu = dialog()->findChild<QMenu *>(u"saveMenu"_s);
    QToolButton *button = buttonOf(menu->menuAction());
    QVERIFY(button);
    {
        const PopupBan ban;
        Input::click(button, QPoint(button->width() / 2, 10));
    }
    QCOMPARE(bytesOf(file), QByteArray("new old\n"));
    QList<QAction *> actions;
    PopupDriver driver([&actions](QMenu *opened) { actions = opened->actions(); });
    Input::press(button, QPoint(button->width() / 2, button->height() - 10));
    QVERIFY(driver.hasRun());
    QCOMPARE(actions,
             (QList<QAction *>{action(u"save"_s), action(u"saveAs"_s), action(u"saveCopy"_s)}));
    Input::release(button, QPoint(button->width() / 2, button->height() - 10));
}

void tst_NotepadRibbon::menusOpenUnderTheirButtonsByKeys_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QKeySequence>("keys");

    QTest::newRow("save") << u"saveMenu"_s << QKeySequence(u"Alt+Shift+S"_s);
    QTest::newRow("insert") << u"insertMenu"_s << QKeySequence(u"Alt+I"_s);
    QTest::newRow("format") << u"formatMenu"_s << QKeySequence(u"Alt+O"_s);
}

void tst_NotepadRibbon::menusOpenUnderTheirButtonsByKeys()
{
    QFETCH(const QString, name);
    QFETCH(const QKeySequence, keys);
    Input::click(tab(u"View"_s));
    QString opened;
    QPoint corner;
    PopupDriver driver([&opened, &corner](QMenu *menu) {
        opened = menu->objectName();
        corner = menu->pos();
    });
    QTest::keySequence(editor(), keys);
    QVERIFY(driver.hasRun());
    QCOMPARE(opened, name);
    QCOMPARE(currentTitle(), u"Home"_s);
    const QToolButton *button = buttonOf(dialog()->findChild<QMenu *>(name)->menuAction());
    const QPoint below = button->mapToGlobal(QPoint(0, button->height()));
    QCOMPARE_LE(std::abs(corner.y() - below.y()), 1);
}

void tst_NotepadRibbon::keysWorkWhileTheirPageIsHidden()
{
    editor()->setText(u"b\na"_s);
    editor()->selectAll();
    QTRY_VERIFY(action(u"sortLines"_s)->isEnabled());
    QCOMPARE(currentTitle(), u"Home"_s);
    QTest::keySequence(editor(), QKeySequence(u"Ctrl+T, S"_s));
    QCOMPARE(editor()->text(), u"a\nb"_s);
    Input::click(tab(u"View"_s));
    QTest::keySequence(editor(), QKeySequence(u"Ctrl+T, U"_s));
    QCOMPARE(editor()->text(), u"A\nB"_s);
    QTest::keyClick(editor(), Qt::Key_B, Qt::ControlModifier);
    QVERIFY(editor()->font().bold());
}

void tst_NotepadRibbon::tabsAnswerToTheirLetters()
{
    editor()->setText(u"text"_s);
    editor()->selectAll();
    QTRY_VERIFY(tab(u"Selection"_s)->isVisible());
    for (const QString &title : {u"Find"_s, u"View"_s, u"Selection"_s, u"Home"_s}) {
        QTest::keyClick(editor(), title.at(0).toLatin1(), Qt::AltModifier);
        QTRY_COMPARE(currentTitle(), title);
        QVERIFY(editor()->hasFocus());
    }
}

void tst_NotepadRibbon::everyCommandHasKeysOfItsOwn()
{
    QHash<QKeySequence, QString> users;
    const QList<QAction *> actions = dialog()->actions();
    QCOMPARE_GT(actions.size(), 40);
    for (const QAction *action : actions) {
        QVERIFY2(!action->shortcuts().isEmpty(), qPrintable(action->text()));
        QCOMPARE(action->shortcutContext(), Qt::WindowShortcut);
        const QList<QKeySequence> shortcuts = action->shortcuts();
        for (const QKeySequence &shortcut : shortcuts) {
            QVERIFY2(!users.contains(shortcut),
                     qPrintable(action->text() + u", "_s + users.value(shortcut)));
            users.insert(shortcut, action->text());
            // A beginning of longer keys would be ambiguous.
            for (auto user = users.cbegin(); user != users.cend(); ++user) {
                QVERIFY(user.key() == shortcut
                        || user.key().matches(shortcut) == QKeySequence::NoMatch);
                QVERIFY(user.key() == shortcut
                        || shortcut.matches(user.key()) == QKeySequence::NoMatch);
            }
        }
        QVERIFY(action->toolTip().contains(action->shortcut().toString(QKeySequence::NativeText)));
    }
    // Every button of the ribbon shows one of these, or a menu of them. Styles are too many for keys.
    const QList<QToolButton *> buttons = bar()->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons) {
        const QAction *action = button->defaultAction();
        // A line edit has a button of its own.
        if (!action || qobject_cast<QLineEdit *>(button->parentWidget()))
            continue;
        if (action->objectName().startsWith(u"style-"_s))
            continue;
        const QList<QAction *> shown = action->menu() ? action->menu()->actions()
                                                      : QList<QAction *>();
        QVERIFY2(!shown.isEmpty() || actions.contains(action), qPrintable(action->text()));
        for (QAction *entry : shown)
            QVERIFY(entry->isSeparator() || actions.contains(entry));
    }
}

void tst_NotepadRibbon::everyWidgetToUseHasAName()
{
    editor()->setText(u"text"_s);
    editor()->selectAll();
    const QList<QWidget *> widgets = dialog()->findChildren<QWidget *>();
    int count = 0;
    for (QWidget *widget : widgets) {
        const QWidget *parent = widget->parentWidget();
        const bool isPart = isOneOf<QAbstractSpinBox, QComboBox, QLineEdit>(parent);
        const bool isUsed =
            isOneOf<QAbstractButton, QLineEdit, QAbstractSpinBox, QComboBox, QPlainTextEdit>(
                widget);
        // A star has its name from when it is first seen.
        const bool isHiddenStar = widget->objectName() == u"collectedButton"_s
                                  && widget->isHidden();
        if (isPart || !isUsed || isHiddenStar)
            continue;
        ++count;
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(interface);
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
    }
    QCOMPARE_GT(count, 120);
}

void tst_NotepadRibbon::thereIsSomethingToInsert()
{
    openFile(u"name.txt"_s, "");
    const auto inserted = [this](const QString &keys) {
        editor()->selectAll();
        QTest::keySequence(editor(), QKeySequence(keys));
        return editor()->text();
    };
    QCOMPARE(inserted(u"Ctrl+I, F"_s), u"name.txt"_s);
    const QRegularExpression isoDate(
        u"^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d([+-]\\d\\d:\\d\\d|Z)$"_s);
    const QString now = inserted(u"Ctrl+I, I"_s);
    QVERIFY2(isoDate.match(now).hasMatch(), qPrintable(now));
    QVERIFY(inserted(u"Ctrl+I, D"_s).contains(QString::number(QDate::currentDate().year())));
    QVERIFY(!inserted(u"Ctrl+I, T"_s).isEmpty());
    editor()->document()->setModified(false);
}

void tst_NotepadRibbon::theFontIsChosenOnTheRibbon()
{
    auto *family = dialog()->findChild<QFontComboBox *>(u"fontFamily"_s);
    auto *size = dialog()->findChild<QSpinBox *>(u"fontSize"_s);
    family->setCurrentFont(QFont(u"DejaVu Sans"_s));
    QCOMPARE(editor()->font().family(), u"DejaVu Sans"_s);
    size->setValue(20);
    QCOMPARE(editor()->font().pointSizeF(), 20);
    action(u"fontLarger"_s)->trigger();
    QCOMPARE(editor()->font().pointSizeF(), 21);
    action(u"fontSmaller"_s)->trigger();
    QCOMPARE(size->value(), 20);
    size->setValue(size->maximum());
    QVERIFY(!action(u"fontLarger"_s)->isEnabled());
    Input::click(tab(u"View"_s));
    action(u"font"_s)->trigger();
    QVERIFY(family->hasFocus());
    QVERIFY(family->isVisible());
}

void tst_NotepadRibbon::theTextIsZoomed()
{
    auto *zoom = dialog()->findChild<QSpinBox *>(u"zoom"_s);
    const qreal before = editor()->font().pointSizeF();
    QVERIFY(!action(u"zoomReset"_s)->isEnabled());
    action(u"zoomIn"_s)->trigger();
    QCOMPARE(zoom->value(), 110);
    QCOMPARE(editor()->font().pointSizeF(), before * 1.1);
    Q_EMIT editor()->zoomRequested(-3);
    QCOMPARE(zoom->value(), 80);
    action(u"zoomReset"_s)->trigger();
    QCOMPARE(editor()->font().pointSizeF(), before);
    zoom->setValue(zoom->minimum());
    QVERIFY(!action(u"zoomOut"_s)->isEnabled());
    action(u"zoomReset"_s)->trigger();
}

void tst_NotepadRibbon::theViewIsChosenByToggles()
{
    QVERIFY(action(u"wordWrap"_s)->isChecked());
    QCOMPARE(editor()->lineWrapMode(), QPlainTextEdit::WidgetWidth);
    action(u"wordWrap"_s)->trigger();
    QCOMPARE(editor()->lineWrapMode(), QPlainTextEdit::NoWrap);
    action(u"lineNumbers"_s)->trigger();
    QCOMPARE(editor()->viewport()->x(), 0);
    action(u"whiteSpace"_s)->trigger();
    QVERIFY(editor()->document()->defaultTextOption().flags() & QTextOption::ShowTabsAndSpaces);
    action(u"fullScreen"_s)->trigger();
    QVERIFY(dialog()->isFullScreen());
    action(u"fullScreen"_s)->trigger();
    QVERIFY(!dialog()->isFullScreen());
}

void tst_NotepadRibbon::theHelpListsAllCommands()
{
    int rows = 0;
    ModalScript script;
    script.close(
        [&rows](QWidget *window) { rows = window->findChild<QTableWidget *>()->rowCount(); });
    QTest::keyClick(editor(), Qt::Key_F1);
    QVERIFY(script.isDone());
    QCOMPARE_GE(rows, dialog()->actions().size());
}

QTEST_MAIN(tst_NotepadRibbon)

#include "tst_notepadribbon.moc"
