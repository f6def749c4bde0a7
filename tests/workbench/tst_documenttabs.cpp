// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchFixture.h"

#include "support/Input.h"
#include "support/ModalScript.h"
#include "support/PopupDriver.h"

#include "WorkbenchWindow.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabBar>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

/// Files in tabs: opening, saving and closing them, with and without changes.
class tst_DocumentTabs final : public WorkbenchFixture
{
    Q_OBJECT

private Q_SLOTS:
    void eachKindHasItsSection();
    void aFileThatIsOpenIsShownAgain();
    void whatCannotBeOpenedIsSaidInABoxAndInTheLog();
    void changesAreMarked();
    void savesTheCurrentOneOrAll();
    void aSaveThatFailsSaysWhy();
    void withoutChangesNothingIsAsked_data();
    void withoutChangesNothingIsAsked();
    void asksForUnsavedChanges_data();
    void asksForUnsavedChanges();
    void cancelKeepsAllThatAreOpen_data();
    void cancelKeepsAllThatAreOpen();
    void cancelTheSecondQuestionSavesNothing();
    void aFailedSaveKeepsItsTabOnly();
    void closingTheWindowAsks_data();
    void closingTheWindowAsks();
    void theQuestionShowsItsDocument();
    void theWindowMayGoDuringTheQuestion();
    void theWindowMayGoWhileAllAreSaved();
    void closedDocumentsAreDeleted();
    void outlineAndPropertiesFollow();
    void namesAreShownAsTheyAre();
    void theKeysStepThroughTabsAndSections();

private:
    void closeByMenu(int section, int tab, const QString &entry) const;
    QString log() const;
};

void tst_DocumentTabs::closeByMenu(int section, int tab, const QString &entry) const
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
    QTabBar *bar = tabBar(section);
    Input::rightClick(bar, bar->tabRect(tab).center());
    QVERIFY(driver.hasRun());
}

QString tst_DocumentTabs::log() const
{
    return window()->findChild<QPlainTextEdit *>(u"messageText"_s)->toPlainText();
}

void tst_DocumentTabs::eachKindHasItsSection()
{
    QCOMPARE(content()->sectionCount(), 3);
    QCOMPARE(content()->sectionText(0), u"Texts"_s);
    QCOMPARE(content()->sectionText(1), u"Pictures"_s);
    QCOMPARE(content()->sectionText(2), u"Tables"_s);
    QCOMPARE(current(), QString());
    open({u"t1"_s, u"c1"_s, u"p1"_s, u"t2"_s});
    QCOMPARE(tabs(0), (QStringList{u"t1"_s, u"t2"_s}));
    QCOMPARE(tabs(1), QStringList{u"p1"_s});
    QCOMPARE(tabs(2), QStringList{u"c1"_s});
    QCOMPARE(content()->currentSection(), 0);
    QCOMPARE(current(), u"t2"_s);
    QVERIFY(document(u"t2"_s)->hasFocus());
    QCOMPARE(window()->tabs()->documents().size(), 4);
}

void tst_DocumentTabs::aFileThatIsOpenIsShownAgain()
{
    open({u"t1"_s, u"p1"_s});
    const WorkbenchDocument *before = document(u"t1"_s);
    QVERIFY(window()->tabs()->open(path(u"./t1"_s)));
    QCOMPARE(current(), u"t1"_s);
    QCOMPARE(tabs(0), QStringList{u"t1"_s});
    QCOMPARE(document(u"t1"_s), before);
    // Also by another name.
    QVERIFY(QFile::link(path(u"p1"_s), path(u"link"_s)));
    QVERIFY(window()->tabs()->open(path(u"link"_s)));
    QCOMPARE(current(), u"p1"_s);
    QCOMPARE(tabs(0), QStringList{u"t1"_s});
    // And when its file is gone: its tab holds all that there is.
    QVERIFY(QFile::remove(path(u"t1"_s)));
    QVERIFY(window()->tabs()->open(path(u"t1"_s)));
    QCOMPARE(current(), u"t1"_s);
}

void tst_DocumentTabs::whatCannotBeOpenedIsSaidInABoxAndInTheLog()
{
    open({u"t1"_s});
    document(u"t1"_s)->setModified(true);
    const QString file = createFile(u"x<b>"_s);
    ModalScript script;
    script.answer(QMessageBox::Ok);
    QVERIFY(!window()->tabs()->open(file));
    QVERIFY(script.isDone());
    const QString text = u"“%1” could not be opened.\n\nNo <good> file."_s.arg(file);
    QCOMPARE(script.texts(), QStringList{text});
    QVERIFY(log().contains(u"Warning: “%1” could not be opened. No <good> file."_s.arg(file)));
    // Nothing is lost.
    QCOMPARE(tabs(0), QStringList{u"t1*"_s});
    QCOMPARE(current(), u"t1"_s);
}

void tst_DocumentTabs::changesAreMarked()
{
    open({u"t1"_s});
    QVERIFY(!window()->isWindowModified());
    QVERIFY(!action(u"save"_s)->isEnabled());
    QVERIFY(!action(u"saveAll"_s)->isEnabled());
    document(u"t1"_s)->setModified(true);
    QCOMPARE(tabs(0), QStringList{u"t1*"_s});
    QVERIFY(window()->isWindowModified());
    QVERIFY(action(u"save"_s)->isEnabled());
    open({u"p1"_s});
    QVERIFY(!window()->isWindowModified());
    QVERIFY(!action(u"save"_s)->isEnabled());
    QVERIFY(action(u"saveAll"_s)->isEnabled());
    document(u"t1"_s)->setModified(false);
    QCOMPARE(tabs(0), QStringList{u"t1"_s});
    QVERIFY(!action(u"saveAll"_s)->isEnabled());
    document(u"t1"_s)->setModified(true);
    document(u"t1"_s)->setModified(false);
}

void tst_DocumentTabs::savesTheCurrentOneOrAll()
{
    open({u"t1"_s, u"t2"_s, u"p1"_s, u"c1"_s});
    for (const auto &name : {u"t1"_s, u"t2"_s, u"c1"_s})
        document(name)->setModified(true);
    QTest::keyClick(window(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(document(u"c1"_s)->saveCount(), 1);
    QCOMPARE(document(u"t1"_s)->saveCount(), 0);
    QTest::keyClick(window(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(document(u"t1"_s)->saveCount(), 1);
    QCOMPARE(document(u"t2"_s)->saveCount(), 1);
    QCOMPARE(document(u"c1"_s)->saveCount(), 1);
    QCOMPARE(document(u"p1"_s)->saveCount(), 0);
    QVERIFY(log().contains(u"“%1” was saved."_s.arg(path(u"t1"_s))));
}

void tst_DocumentTabs::aSaveThatFailsSaysWhy()
{
    open({u"t1"_s});
    document(u"t1"_s)->setModified(true);
    document(u"t1"_s)->setFailure(u"The disk is <full>."_s);
    ModalScript script;
    script.answer(QMessageBox::Ok);
    action(u"save"_s)->trigger();
    QVERIFY(script.isDone());
    const QString said = u"“%1” could not be saved."_s.arg(path(u"t1"_s));
    QCOMPARE(script.texts(), QStringList{said + u"\n\nThe disk is <full>."_s});
    QVERIFY(log().contains(said + u" The disk is <full>."_s));
    QCOMPARE(tabs(0), QStringList{u"t1*"_s});
    document(u"t1"_s)->setModified(false);
}

void tst_DocumentTabs::withoutChangesNothingIsAsked_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QString>("seen");

    QTest::newRow("current") << u"Close Current"_s << QStringList{u"t0"_s, u"t2"_s, u"t3"_s}
                             << u"t2"_s;
    QTest::newRow("left") << u"Close All Left"_s << QStringList{u"t1"_s, u"t2"_s, u"t3"_s}
                          << u"t3"_s;
    QTest::newRow("right") << u"Close All Right"_s << QStringList{u"t0"_s, u"t1"_s} << u"t1"_s;
    QTest::newRow("except current")
        << u"Close All(Except Current)"_s << QStringList{u"t1"_s} << u"t1"_s;
    QTest::newRow("all") << u"Close All"_s << QStringList() << u"p1"_s;
}

void tst_DocumentTabs::withoutChangesNothingIsAsked()
{
    QFETCH(const QString, entry);
    open({u"p1"_s, u"t0"_s, u"t1"_s, u"t2"_s, u"t3"_s});
    // In the current one, the next takes its place.
    if (entry == u"Close Current"_s)
        content()->setCurrentTab(0, 1);
    closeByMenu(0, 1, entry);
    QTEST(tabs(0), "left");
    QTEST(current(), "seen");
    QCOMPARE(tabs(1), QStringList{u"p1"_s});
}

void tst_DocumentTabs::asksForUnsavedChanges_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("isSaved");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QStringList>("left");

    const auto add = [](const QString &entry, const QStringList &asked, const QStringList &left) {
        QTest::addRow("%s, save", qPrintable(entry)) << entry << true << asked << left;
        QTest::addRow("%s, discard", qPrintable(entry)) << entry << false << asked << left;
    };
    add(u"Close Current"_s, {u"t1"_s}, {u"t0*"_s, u"t2*"_s, u"t3"_s});
    add(u"Close All Left"_s, {u"t0"_s}, {u"t1*"_s, u"t2*"_s, u"t3"_s});
    add(u"Close All Right"_s, {u"t2"_s}, {u"t0*"_s, u"t1*"_s});
    add(u"Close All(Except Current)"_s, {u"t0"_s, u"t2"_s}, {u"t1*"_s});
    add(u"Close All"_s, {u"t0"_s, u"t1"_s, u"t2"_s}, {});
}

void tst_DocumentTabs::asksForUnsavedChanges()
{
    QFETCH(const QString, entry);
    QFETCH(const bool, isSaved);
    QFETCH(const QStringList, asked);
    open({u"t0"_s, u"t1"_s, u"t2"_s, u"t3"_s});
    QStringList saved;
    for (const auto &name : {u"t0"_s, u"t1"_s, u"t2"_s}) {
        document(name)->setModified(true);
        connect(document(name), &WorkbenchDocument::signalModifiedChanged, this,
                [saved = &saved, name] { saved->append(name); });
    }
    ModalScript script;
    QStringList texts;
    for (const QString &name : asked) {
        script.answer(isSaved ? QMessageBox::Save : QMessageBox::Discard);
        texts.append(u"Save the changes to “%1”?"_s.arg(name));
    }
    closeByMenu(0, 1, entry);
    QVERIFY(script.isDone());
    QCOMPARE(script.texts(), texts);
    QTEST(tabs(0), "left");
    QCOMPARE(saved, isSaved ? asked : QStringList());
}

void tst_DocumentTabs::cancelKeepsAllThatAreOpen_data()
{
    withoutChangesNothingIsAsked_data();
}

void tst_DocumentTabs::cancelKeepsAllThatAreOpen()
{
    QFETCH(const QString, entry);
    open({u"t0"_s, u"t1"_s, u"t2"_s, u"t3"_s});
    const QStringList names{u"t0*"_s, u"t1*"_s, u"t2*"_s, u"t3*"_s};
    for (const auto &name : {u"t0"_s, u"t1"_s, u"t2"_s, u"t3"_s})
        document(name)->setModified(true);
    ModalScript script;
    script.answer(QMessageBox::Cancel);
    closeByMenu(0, 1, entry);
    QVERIFY(script.isDone());
    QCOMPARE(tabs(0), names);
}

void tst_DocumentTabs::cancelTheSecondQuestionSavesNothing()
{
    open({u"t0"_s, u"t1"_s, u"t2"_s});
    document(u"t0"_s)->setModified(true);
    document(u"t2"_s)->setModified(true);
    ModalScript script;
    script.answer(QMessageBox::Discard).answer(QMessageBox::Cancel);
    closeByMenu(0, 1, u"Close All"_s);
    QVERIFY(script.isDone());
    QCOMPARE(tabs(0), (QStringList{u"t0*"_s, u"t1"_s, u"t2*"_s}));
}

void tst_DocumentTabs::aFailedSaveKeepsItsTabOnly()
{
    open({u"t0"_s, u"t1"_s, u"t2"_s});
    document(u"t0"_s)->setModified(true);
    document(u"t1"_s)->setModified(true);
    document(u"t0"_s)->setFailure(u"No."_s);
    ModalScript script;
    script.answer(QMessageBox::Save).answer(QMessageBox::Save).answer(QMessageBox::Ok);
    closeByMenu(0, 1, u"Close All"_s);
    QVERIFY(script.isDone());
    QVERIFY(script.texts().constLast().endsWith(u"No."_s));
    QCOMPARE(tabs(0), QStringList{u"t0*"_s});
    QCOMPARE(current(), u"t0"_s);
}

void tst_DocumentTabs::closingTheWindowAsks_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("fails");
    QTest::addColumn<bool>("isClosed");

    QTest::newRow("save") << QMessageBox::Save << false << true;
    QTest::newRow("save that fails") << QMessageBox::Save << true << false;
    QTest::newRow("discard") << QMessageBox::Discard << false << true;
    QTest::newRow("cancel") << QMessageBox::Cancel << false << false;
}

void tst_DocumentTabs::closingTheWindowAsks()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const bool, fails);
    QFETCH(const bool, isClosed);
    open({u"t0"_s, u"p0"_s, u"c0"_s});
    document(u"c0"_s)->setModified(true);
    if (fails)
        document(u"c0"_s)->setFailure(u"No."_s);
    ModalScript script;
    script.answer(answer);
    if (fails)
        script.answer(QMessageBox::Ok);
    QCOMPARE(window()->close(), isClosed);
    QVERIFY(script.isDone());
    QCOMPARE(window()->isVisible(), !isClosed);
    QCOMPARE(document(u"c0"_s)->saveCount(), answer == QMessageBox::Save && !fails ? 1 : 0);
    QCOMPARE(tabs(2).size(), 1);
    document(u"c0"_s)->setModified(false);
}

void tst_DocumentTabs::theQuestionShowsItsDocument()
{
    open({u"t0"_s, u"p0"_s});
    document(u"t0"_s)->setModified(true);
    QString seen;
    ModalScript script;
    script.close([this, &seen](QWidget *) { seen = current(); });
    QVERIFY(!window()->close());
    QVERIFY(script.isDone());
    QCOMPARE(seen, u"t0"_s);
    document(u"t0"_s)->setModified(false);
}

void tst_DocumentTabs::theWindowMayGoDuringTheQuestion()
{
    auto own = std::make_unique<WorkbenchWindow>(QString(), &WorkbenchFixture::load);
    own->show();
    QVERIFY(own->tabs()->open(createFile(u"t0"_s)));
    qobject_cast<ScriptedDocument *>(own->tabs()->current())->setModified(true);
    bool wasAsked = false;
    QTimer::singleShot(0, this, [&own, &wasAsked] {
        wasAsked = QApplication::activeModalWidget() != nullptr;
        own.reset();
    });
    own->tabs()->closeCurrent();
    QVERIFY(wasAsked);
    QVERIFY(!own);
}

void tst_DocumentTabs::theWindowMayGoWhileAllAreSaved()
{
    auto own = std::make_unique<WorkbenchWindow>(QString(), &WorkbenchFixture::load);
    own->show();
    for (const auto &name : {u"t0"_s, u"t1"_s}) {
        QVERIFY(own->tabs()->open(createFile(name)));
        auto *document = qobject_cast<ScriptedDocument *>(own->tabs()->current());
        document->setModified(true);
        document->setFailure(u"No."_s);
    }
    QTimer::singleShot(0, this, [&own] { own.reset(); });
    own->tabs()->saveAll();
    QVERIFY(!own);
}

void tst_DocumentTabs::closedDocumentsAreDeleted()
{
    open({u"t0"_s, u"t1"_s});
    const QPointer<ScriptedDocument> first = document(u"t0"_s);
    const QPointer<ScriptedDocument> second = document(u"t1"_s);
    QTest::keyClick(window(), Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY(!second);
    QVERIFY(first);
    QVERIFY(first->hasFocus());
    QTest::keyClick(window(), Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY(!first);
    QVERIFY(!action(u"closeTab"_s)->isEnabled());
}

void tst_DocumentTabs::outlineAndPropertiesFollow()
{
    const auto *outline = window()->findChild<QTreeWidget *>(u"outline"_s);
    const auto *properties = window()->findChild<QTreeWidget *>(u"properties"_s);
    QCOMPARE(outline->topLevelItem(0)->text(0), u"No document"_s);
    QCOMPARE(properties->topLevelItemCount(), 0);
    open({u"t0"_s, u"t1"_s});
    content()->setCurrentTab(0, 0);
    QCOMPARE(outline->topLevelItem(0)->text(0), u"Heading of t0"_s);
    QCOMPARE(properties->topLevelItem(0)->text(1), u"no"_s);
    document(u"t0"_s)->setModified(true);
    QCOMPARE(properties->topLevelItem(0)->text(1), u"yes"_s);
    Input::click(outline->viewport(), outline->visualItemRect(outline->topLevelItem(0)).center());
    QCOMPARE(document(u"t0"_s)->line(), 3);
    document(u"t0"_s)->setModified(false);
    // The next one gets the place of the closed one.
    window()->tabs()->closeCurrent();
    QCOMPARE(outline->topLevelItem(0)->text(0), u"Heading of t1"_s);
    window()->tabs()->closeCurrent();
    QCOMPARE(outline->topLevelItem(0)->text(0), u"No document"_s);
}

void tst_DocumentTabs::namesAreShownAsTheyAre()
{
    open({u"<b>a&b[*]"_s});
    QCOMPARE(tabs(0), QStringList{u"<b>a&&b[*]"_s});
    QVERIFY(content()->tabToolTip(0, 0).contains(u"&lt;b&gt;a&amp;b[*]"_s));
    QCOMPARE(window()->windowTitle(), u"<b>a&b[*][*][*] – Workbench"_s);
}

void tst_DocumentTabs::theKeysStepThroughTabsAndSections()
{
    // Nothing to step through.
    QTest::keyClick(window(), Qt::Key_F6);
    QTest::keyClick(window(), Qt::Key_PageDown, Qt::ControlModifier);
    open({u"c0"_s, u"t0"_s, u"t1"_s});
    QTest::keyClick(window(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(current(), u"t0"_s);
    QTest::keyClick(window(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(current(), u"t1"_s);
    QTest::keyClick(window(), Qt::Key_F6);
    QCOMPARE(current(), u"c0"_s);
    QVERIFY(document(u"c0"_s)->hasFocus());
    QTest::keyClick(window(), Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(current(), u"t1"_s);
}

QTEST_MAIN(tst_DocumentTabs)

#include "tst_documenttabs.moc"
