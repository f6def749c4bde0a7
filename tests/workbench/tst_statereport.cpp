// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchFixture.h"

#include "support/Input.h"

#include "FilterGallery.h"
#include "PictureFilters.h"
#include "StateReport.h"
#include "TextDocument.h"
#include "WorkbenchWindow.h"

#include <VornFrame/AddressBar.h>
#include <VornFrame/RibbonBar.h>

#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

/// What the program says about its window to those who ask.
class tst_StateReport final : public WorkbenchFixture
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatIsShown();
    void saysWhereThingsAre();
    void saysWhatATextAndTheLogHold();
    void saysWhatABoxAsks();
    void saysWhereAnEntryOfAMenuIs();
    void whatCannotBeSeenIsNowhere_data();
    void whatCannotBeSeenIsNowhere();
    void placesAreOnTheScreen();
    void anUnknownCommandIsAnError();
    void withoutItsWindowThereIsNothingToSay();

private:
    StateReport report() const
    {
        return {window(), window()->agent(), window()->tabs(), window()->gallery()};
    }
    QString value(const QString &key) const;
    QRect place(const QString &command) const;
};

/// What stands behind \a key in the report.
QString tst_StateReport::value(const QString &key) const
{
    const QStringList lines = report().answer(u"report"_s);
    for (const QString &line : lines) {
        if (line.startsWith(key + u": "_s))
            return line.mid(key.size() + 2);
    }
    return u"(missing)"_s;
}

QRect tst_StateReport::place(const QString &command) const
{
    const QStringList lines = report().answer(command);
    if (lines.size() != 1 || !lines.constFirst().startsWith(command + u": "_s))
        return {};
    const QStringList numbers = lines.constFirst().mid(command.size() + 2).split(u' ');
    if (numbers.size() != 4)
        return {};
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(),
            numbers.at(3).toInt()};
}

void tst_StateReport::saysWhatIsShown()
{
    QCOMPARE(value(u"folder"_s), path({}));
    QVERIFY(value(u"breadcrumbs"_s).startsWith(u"tmp > "_s)
            || value(u"breadcrumbs"_s).contains(u" > "_s));
    QCOMPARE(value(u"active"_s), u"workbench"_s);
    QCOMPARE(value(u"document"_s), QString());
    QCOMPARE(value(u"temporary pages"_s), QString());
    QCOMPARE(value(u"ribbon page"_s), u"homePage"_s);
    open({u"t1"_s, u"t2"_s, u"p1"_s});
    document(u"t2"_s)->setModified(true);
    QCOMPARE(value(u"section"_s), u"1"_s);
    QCOMPARE(value(u"document"_s), path(u"p1"_s));
    QCOMPARE(value(u"tabs 0"_s), u"t1 | t2*"_s);
    QCOMPARE(value(u"current tab 0"_s), u"1"_s);
    QCOMPARE(value(u"tabs 1"_s), u"p1"_s);
    QCOMPARE(value(u"tabs 2"_s), QString());
    QCOMPARE(value(u"ribbon page"_s), u"pictureTools"_s);
    QCOMPARE(value(u"temporary pages"_s), u"Picture Tools"_s);
    QCOMPARE(value(u"favourites"_s), QString());
    const auto filters = PictureFilters::all();
    window()->gallery()->setFavourites({filters.at(5).id, filters.at(1).id});
    QCOMPARE(value(u"favourites"_s), filters.at(5).id + u' ' + filters.at(1).id);
    action(u"show_folders"_s)->trigger();
    QCOMPARE(value(u"panel left"_s), u"- minimized"_s);
    QVERIFY(!value(u"panel right"_s).contains(u'-'));
    QCOMPARE(value(u"title"_s), u"p1 – Workbench"_s);
    content()->setCurrentTab(0, 1);
    QCOMPARE(value(u"title"_s), u"t2* – Workbench"_s);
    document(u"t2"_s)->setModified(false);
}

void tst_StateReport::saysWhereThingsAre()
{
    createFile(u"t1.txt"_s);
    const QTreeView *tree = window()->findChild<QTreeView *>(u"folders"_s);
    QTRY_VERIFY(place(u"file t1.txt"_s).isValid());
    QVERIFY(QRect(tree->mapToGlobal(QPoint(0, 0)), tree->size())
                .contains(place(u"file t1.txt"_s).center()));
    // A click there does what is said of it.
    const auto click = [this](const QString &command) {
        const QRect rect = place(command);
        QVERIFY2(rect.isValid(), qPrintable(command));
        Input::click(window(), window()->mapFromGlobal(rect.center()));
    };
    click(u"action newTextFile"_s);
    QCOMPARE(current(), u"New Text File.txt"_s);
    open({u"t1.txt"_s, u"p1"_s});
    click(u"section 0"_s);
    QCOMPARE(content()->currentSection(), 0);
    click(u"tab 0 0"_s);
    QCOMPARE(current(), u"New Text File.txt"_s);
    click(u"button Home"_s);
    QCOMPARE(value(u"ribbon page"_s), u"homePage"_s);
    click(u"action closeTab"_s);
    QCOMPARE(current(), u"t1.txt"_s);
    click(u"widget searchField"_s);
    QCOMPARE(value(u"focus"_s), u"searchField"_s);
}

void tst_StateReport::saysWhatATextAndTheLogHold()
{
    QCOMPARE(value(u"message"_s), QString());
    QCOMPARE(value(u"selection"_s), QString());
    auto *text = new TextDocument(path(u"t1"_s), TextFile());
    text->editor()->setPlainText(u"alpha\nbeta\ngamma"_s);
    content()->addTab(WorkbenchDocument::Text, text, u"t1"_s);
    QCOMPARE(value(u"selection"_s), u"0 "_s);
    QTextCursor cursor = text->editor()->textCursor();
    cursor.setPosition(12);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    text->editor()->setTextCursor(cursor);
    QCOMPARE(value(u"selection"_s), u"3 ha beta g"_s);
    open({u"t2"_s});
    QCOMPARE(value(u"selection"_s), QString());
    QCOMPARE(value(u"message"_s), u"Information: “%1” was opened."_s.arg(path(u"t2"_s)));
}

void tst_StateReport::saysWhatABoxAsks()
{
    QCOMPARE(value(u"box"_s), QString());
    QCOMPARE(value(u"box text"_s), QString());
    QMessageBox box(QMessageBox::Warning, u"Title"_s, u"First\nsecond"_s, QMessageBox::Ok,
                    window());
    box.open();
    QCOMPARE(value(u"box"_s), u"Title"_s);
    QCOMPARE(value(u"box text"_s), u"First second"_s);
    // It has no object name.
    QTRY_COMPARE(value(u"active"_s), u"Title"_s);
    box.close();
    QCOMPARE(value(u"box text"_s), QString());
}

void tst_StateReport::saysWhereAnEntryOfAMenuIs()
{
    QMenu menu(window());
    menu.addAction(u"&First"_s);
    QAction *second = menu.addAction(u"Se&cond"_s);
    menu.popup(window()->mapToGlobal(QPoint(50, 50)));
    const QRect rect = menu.actionGeometry(second);
    QCOMPARE(place(u"entry Second"_s), QRect(menu.mapToGlobal(rect.topLeft()), rect.size()));
    QVERIFY(!place(u"entry Third"_s).isValid());
    menu.close();
    QVERIFY(!place(u"entry Second"_s).isValid());
}

void tst_StateReport::whatCannotBeSeenIsNowhere_data()
{
    QTest::addColumn<QString>("command");

    QTest::newRow("missing widget") << u"widget nobody"_s;
    QTest::newRow("missing action") << u"action nothing"_s;
    QTest::newRow("action on a hidden page") << u"action rotateLeft"_s;
    QTest::newRow("action without a button") << u"action nextTab"_s;
    QTest::newRow("missing button") << u"button Nobody"_s;
    QTest::newRow("empty section") << u"section 1"_s;
    QTest::newRow("missing section") << u"section 7"_s;
    QTest::newRow("missing tab") << u"tab 0 0"_s;
    QTest::newRow("entry without a menu") << u"entry Close"_s;
    QTest::newRow("missing file") << u"file nothing"_s;
}

void tst_StateReport::whatCannotBeSeenIsNowhere()
{
    QFETCH(const QString, command);
    QCOMPARE(report().answer(command), QStringList{command + u": -"_s});
}

void tst_StateReport::placesAreOnTheScreen()
{
    window()->move(15, 25);
    QTRY_COMPARE(window()->pos(), QPoint(15, 25));
    const QWidget *bar = window()->agent()->addressBar();
    QCOMPARE(place(u"widget addressBar"_s), QRect(bar->mapToGlobal(QPoint(0, 0)), bar->size()));
}

void tst_StateReport::anUnknownCommandIsAnError()
{
    for (const auto &command : {u"nonsense"_s, QString(), u"report me"_s})
        QVERIFY(report().answer(command).constFirst().startsWith(u"error: "_s));
}

void tst_StateReport::withoutItsWindowThereIsNothingToSay()
{
    const StateReport before = report();
    restart(QString());
    QCOMPARE(before.answer(u"report"_s), QStringList{u"error: no window"_s});
}

QTEST_MAIN(tst_StateReport)

#include "tst_statereport.moc"
