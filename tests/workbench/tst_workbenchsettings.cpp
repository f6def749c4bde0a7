// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchFixture.h"

#include "support/Input.h"
#include "support/ModalScript.h"

#include "FilterGallery.h"
#include "PictureFilters.h"
#include "WorkbenchWindow.h"

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockPanelWidget.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSettings>
#include <QSplitter>
#include <QTimer>

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;

/// What is kept from one start to the next.
class tst_WorkbenchSettings final : public WorkbenchFixture
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsFoundAgain();
    void theTabsComeBackInTheirOrder();
    void theQuestionsDoNotChangeWhatIsSeen();
    void filesThatAreGoneAreOnlyLogged();
    void aFolderThatIsGoneGivesWayToTheHomeFolder();
    void favouritesComeBack();
    void unknownAndRepeatedFavouritesAreIgnored();
    void nothingIsWrittenWithoutAFile();
    void aCancelledExitWritesNothing();
    void otherEntriesOfTheFileStay();
    void aBrokenFileStartsAfresh_data();
    void aBrokenFileStartsAfresh();
    void aFileThatCannotBeWrittenIsSaid();

private:
    QString settingsFile() const { return path(u"workbench.ini"_s); }
    int widthOf(DockContainer::DockArea area) const;
};

int tst_WorkbenchSettings::widthOf(DockContainer::DockArea area) const
{
    return window()->agent()->dockContainer()->panelWidget(area)->stackedWidget()->width();
}

void tst_WorkbenchSettings::everythingIsFoundAgain()
{
    QVERIFY(QDir(path({})).mkdir(u"sub"_s));
    restart(settingsFile());
    window()->resize(760, 580);
    window()->agent()->addressBar()->setPath(path(u"sub"_s));
    QWidget *stack =
        window()->agent()->dockContainer()->panelWidget(DockContainer::Left)->stackedWidget();
    auto *columns = qobject_cast<QSplitter *>(stack->parentWidget());
    columns->setSizes({180, columns->width() - 180 - 150, 150});
    action(u"show_messages"_s)->trigger();
    restart(settingsFile());
    QCOMPARE(window()->size(), QSize(760, 580));
    QCOMPARE(window()->agent()->addressBar()->path(), path(u"sub"_s));
    QCOMPARE(widthOf(DockContainer::Left), 180);
    QCOMPARE(widthOf(DockContainer::Right), 150);
    QVERIFY(!action(u"show_messages"_s)->isChecked());
    QVERIFY(!window()->findChild<QWidget *>(u"messages"_s)->isVisible());
}

void tst_WorkbenchSettings::theTabsComeBackInTheirOrder()
{
    restart(settingsFile());
    open({u"t1"_s, u"p1"_s, u"t0"_s, u"c1"_s});
    content()->setCurrentTab(0, 0);
    restart(settingsFile());
    window()->openLastFiles();
    QCOMPARE(tabs(0), (QStringList{u"t1"_s, u"t0"_s}));
    QCOMPARE(tabs(1), QStringList{u"p1"_s});
    QCOMPARE(tabs(2), QStringList{u"c1"_s});
    QCOMPARE(current(), u"t1"_s);
}

void tst_WorkbenchSettings::theQuestionsDoNotChangeWhatIsSeen()
{
    restart(settingsFile());
    open({u"t0"_s, u"p0"_s});
    document(u"t0"_s)->setModified(true);
    ModalScript script;
    script.answer(QMessageBox::Discard);
    restart(settingsFile());
    QVERIFY(script.isDone());
    window()->openLastFiles();
    QCOMPARE(current(), u"p0"_s);
}

void tst_WorkbenchSettings::filesThatAreGoneAreOnlyLogged()
{
    restart(settingsFile());
    open({u"t0"_s, u"t1"_s});
    QVERIFY(QFile::remove(path(u"t1"_s)));
    restart(settingsFile());
    // No box, which would fail the test by waiting for ever.
    window()->openLastFiles();
    QCOMPARE(tabs(0), QStringList{u"t0"_s});
    const auto *log = window()->findChild<QPlainTextEdit *>(u"messageText"_s);
    QVERIFY(log->toPlainText().contains(u"“%1” could not be opened."_s.arg(path(u"t1"_s))));
}

void tst_WorkbenchSettings::aFolderThatIsGoneGivesWayToTheHomeFolder()
{
    QVERIFY(QDir(path({})).mkdir(u"sub"_s));
    restart(settingsFile());
    window()->openPath(path(u"sub"_s));
    window()->close();
    QVERIFY(QDir(path({})).rmdir(u"sub"_s));
    WorkbenchWindow next(settingsFile(), &WorkbenchFixture::load);
    QCOMPARE(next.agent()->addressBar()->path(), QDir::homePath());
}

void tst_WorkbenchSettings::favouritesComeBack()
{
    const auto filters = PictureFilters::all();
    QVERIFY(filters.size() >= 24);
    const QStringList ids{filters.at(7).id, filters.at(2).id};
    restart(settingsFile());
    QCOMPARE(window()->gallery()->favourites(), QStringList());
    window()->gallery()->setFavourites(ids);
    QCOMPARE(window()->gallery()->favourites(), ids);
    restart(settingsFile());
    QCOMPARE(window()->gallery()->favourites(), ids);
    window()->gallery()->setFavourites({ids.at(1)});
    QTRY_COMPARE(window()->gallery()->favourites(), QStringList{ids.at(1)});
}

void tst_WorkbenchSettings::unknownAndRepeatedFavouritesAreIgnored()
{
    const QString id = PictureFilters::all().at(3).id;
    window()->gallery()->setFavourites({id, u"unknown"_s, id});
    QCOMPARE(window()->gallery()->favourites(), QStringList{id});
    window()->gallery()->setFavourites({});
    QTRY_COMPARE(window()->gallery()->favourites(), QStringList());
}

void tst_WorkbenchSettings::nothingIsWrittenWithoutAFile()
{
    QVERIFY(window()->close());
    QVERIFY(!QFileInfo::exists(settingsFile()));
}

void tst_WorkbenchSettings::aCancelledExitWritesNothing()
{
    restart(settingsFile());
    open({u"t0"_s});
    document(u"t0"_s)->setModified(true);
    document(u"t0"_s)->setFailure(u"No."_s);
    QTimer::singleShot(0, this, [] { QApplication::activeModalWidget()->close(); });
    QVERIFY(!window()->close());
    QVERIFY(!QFileInfo::exists(settingsFile()));
    document(u"t0"_s)->setModified(false);
}

void tst_WorkbenchSettings::otherEntriesOfTheFileStay()
{
    createFile(u"workbench.ini"_s, "[other]\nkey=value\n");
    restart(settingsFile());
    window()->close();
    QCOMPARE(QSettings(settingsFile(), QSettings::IniFormat).value(u"other/key"_s).toString(),
             u"value"_s);
}

void tst_WorkbenchSettings::aBrokenFileStartsAfresh_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("no settings") << QByteArray("\0\xff[", 3);
    QTest::newRow("another format") << QByteArray("[General]\nformat=2\n[left]\nminimized=true\n");
    QTest::newRow("no sense") << QByteArray(
        "[General]\nformat=1\nfolder=/no/such\n[window]\ngeometry=x\ndocks=x\n"
        "hiddenViews=nobody\n[left]\nsize=-4\nslot=99\n[gallery]\nfavourites=a, b\n");
}

void tst_WorkbenchSettings::aBrokenFileStartsAfresh()
{
    QFETCH(const QByteArray, bytes);
    createFile(u"workbench.ini"_s, bytes);
    restart(settingsFile());
    window()->openLastFiles();
    for (const auto &name : {u"folders"_s, u"outline"_s, u"properties"_s, u"messages"_s})
        QVERIFY(window()->findChild<QWidget *>(name)->isVisible());
    QCOMPARE(window()->gallery()->favourites(), QStringList());
    QCOMPARE(current(), QString());
}

void tst_WorkbenchSettings::aFileThatCannotBeWrittenIsSaid()
{
    restart(path(u"missing/sub/"_s) + QString(300, u'x'));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(u"The settings could not be written to .*"_s));
    QVERIFY(window()->close());
}

QTEST_MAIN(tst_WorkbenchSettings)

#include "tst_workbenchsettings.moc"
