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
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonPage.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;

/// The window as a whole: folder, ribbon, views, search.
class tst_WorkbenchWindow final : public WorkbenchFixture
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderIsShownInBarAndTree();
    void namesCanBeReadInANarrowTree();
    void aFileIsOpenedInItsFolder();
    void whatIsMissingChangesNothing();
    void aDoubleClickOpensAFile();
    void theSelectedFileIsOpened();
    void opensFilesFromTheDialog();
    void aNewTextFileIsOpened();
    void aSectionBringsItsPage();
    void theSwitchesShowAndHideViews();
    void theLayoutGoesBackToTheSavedOne();
    void theLogHasItsButtonInTheStatusBar();
    void theClipboardServesTextsAndFiles();
    void renameAndDeleteNeedASelection();
    void theSearchFieldIsInTheCorner();
    void helpIsABoxOfPlainText();
    void fullScreenComesAndGoes();
    void allThatTakesTheFocusHasAName();

private:
    QTreeView *tree() const { return window()->findChild<QTreeView *>(u"folders"_s); }
    void select(const QString &name) const;
    QString ribbonPage() const;
    bool hasTab(const QString &text) const;
};

void tst_WorkbenchWindow::select(const QString &name) const
{
    const auto *model = qobject_cast<QFileSystemModel *>(tree()->model());
    QTRY_VERIFY(tree()->visualRect(model->index(path(name))).isValid());
    Input::click(tree()->viewport(), tree()->visualRect(model->index(path(name))).center());
}

QString tst_WorkbenchWindow::ribbonPage() const
{
    return window()->agent()->ribbonBar()->currentPage()->objectName();
}

/// Whether the ribbon shows a tab of this title.
bool tst_WorkbenchWindow::hasTab(const QString &text) const
{
    const auto buttons = window()->agent()->ribbonBar()->findChildren<QAbstractButton *>();
    return std::any_of(buttons.cbegin(), buttons.cend(), [&text](const QAbstractButton *button) {
        return button->text().remove(u'&') == text && button->isVisible();
    });
}

void tst_WorkbenchWindow::aFolderIsShownInBarAndTree()
{
    const VornFrame::AddressBar *bar = window()->agent()->addressBar();
    QCOMPARE(bar->path(), path({}));
    QVERIFY(bar->isVisible());
    QVERIFY(tree()->isVisible());
    QVERIFY(window()
                ->agent()
                ->dockContainer()
                ->panelWidget(DockContainer::Left)
                ->stackedWidget()
                ->isAncestorOf(tree()));
    const auto *model = qobject_cast<QFileSystemModel *>(tree()->model());
    QTRY_COMPARE(model->filePath(tree()->rootIndex()), bar->path());
}

void tst_WorkbenchWindow::namesCanBeReadInANarrowTree()
{
    const QString name = u"somewhat.txt"_s;
    createFile(name);
    auto *splitter = qobject_cast<QSplitter *>(window()
                                                   ->agent()
                                                   ->dockContainer()
                                                   ->panelWidget(DockContainer::Left)
                                                   ->stackedWidget()
                                                   ->parentWidget());
    QVERIFY(splitter);
    splitter->setSizes({120, 400, 200});
    QTRY_VERIFY(tree()->viewport()->width() < 170);
    QVERIFY(tree()->columnWidth(0) >= 80);
}

void tst_WorkbenchWindow::aFileIsOpenedInItsFolder()
{
    QVERIFY(QDir(path({})).mkdir(u"sub"_s));
    const QString file = createFile(u"sub/t1"_s);
    QVERIFY(window()->openPath(file));
    QCOMPARE(current(), u"t1"_s);
    QCOMPARE(window()->agent()->addressBar()->path(), path(u"sub"_s));
}

void tst_WorkbenchWindow::whatIsMissingChangesNothing()
{
    QVERIFY(!window()->openPath(path(u"missing"_s)));
    QCOMPARE(window()->agent()->addressBar()->path(), path({}));
    QCOMPARE(current(), QString());
}

void tst_WorkbenchWindow::aDoubleClickOpensAFile()
{
    createFile(u"t1.txt"_s);
    createFile(u"c1.CSV"_s);
    createFile(u"p1.png"_s);
    createFile(u"c2.tab"_s);
    createFile(u"t2"_s);
    const auto *model = qobject_cast<QFileSystemModel *>(tree()->model());
    for (const auto &name : {u"t1.txt"_s, u"c1.CSV"_s, u"p1.png"_s, u"c2.tab"_s, u"t2"_s}) {
        QTRY_VERIFY(tree()->visualRect(model->index(path(name))).isValid());
        Input::doubleClick(tree()->viewport(),
                           tree()->visualRect(model->index(path(name))).center());
        QTRY_COMPARE(current(), name);
    }
    QCOMPARE(tabs(0), (QStringList{u"t1.txt"_s, u"t2"_s}));
    QCOMPARE(tabs(1), QStringList{u"p1.png"_s});
    QCOMPARE(tabs(2), (QStringList{u"c1.CSV"_s, u"c2.tab"_s}));
}

void tst_WorkbenchWindow::theSelectedFileIsOpened()
{
    createFile(u"t1"_s);
    select(u"t1"_s);
    action(u"openSelected"_s)->trigger();
    QCOMPARE(current(), u"t1"_s);
}

void tst_WorkbenchWindow::opensFilesFromTheDialog()
{
    const QString file = createFile(u"t1"_s);
    ModalScript script;
    script.chooseFile(file);
    QTest::keyClick(window(), Qt::Key_O, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QCOMPARE(current(), u"t1"_s);
    script.chooseFile(QString());
    action(u"openFile"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(window()->tabs()->documents().size(), 1);
}

void tst_WorkbenchWindow::aNewTextFileIsOpened()
{
    action(u"newTextFile"_s)->trigger();
    QCOMPARE(current(), u"New Text File.txt"_s);
    QVERIFY(QFileInfo::exists(path(u"New Text File.txt"_s)));
}

void tst_WorkbenchWindow::aSectionBringsItsPage()
{
    const QHash<QString, QString> titles{
        {u"t"_s, u"Text Tools"_s}, {u"p"_s, u"Picture Tools"_s}, {u"c"_s, u"Table Tools"_s}};
    const auto verify = [this, &titles](const QString &page, const QString &shown) {
        QCOMPARE(ribbonPage(), page);
        for (const QString &title : titles)
            QCOMPARE(hasTab(title), title == titles.value(shown));
    };
    verify(u"homePage"_s, QString());
    open({u"t1"_s});
    verify(u"textTools"_s, u"t"_s);
    open({u"p1"_s});
    verify(u"pictureTools"_s, u"p"_s);
    open({u"c1"_s});
    verify(u"tableTools"_s, u"c"_s);
    content()->setCurrentTab(0, 0);
    verify(u"textTools"_s, u"t"_s);
    for (int i = 0; i < 3; ++i)
        window()->tabs()->closeCurrent();
    verify(u"homePage"_s, QString());
}

void tst_WorkbenchWindow::theSwitchesShowAndHideViews()
{
    for (const auto &name : {u"folders"_s, u"outline"_s, u"properties"_s, u"messages"_s}) {
        const QWidget *view = window()->findChild<QWidget *>(name);
        QAction *toggle = action(u"show_"_s + name);
        QVERIFY(view->isVisible());
        QVERIFY(toggle->isChecked());
        toggle->trigger();
        QVERIFY(!view->isVisible());
        QVERIFY(!toggle->isChecked());
        toggle->trigger();
        QVERIFY(view->isVisible());
    }
}

void tst_WorkbenchWindow::theLayoutGoesBackToTheSavedOne()
{
    const QWidget *tree = window()->findChild<QWidget *>(u"folders"_s);
    const QWidget *outline = window()->findChild<QWidget *>(u"outline"_s);
    action(u"show_folders"_s)->trigger();
    action(u"keepLayout"_s)->trigger();
    action(u"show_folders"_s)->trigger();
    action(u"show_outline"_s)->trigger();
    QVERIFY(tree->isVisible());
    QVERIFY(!outline->isVisible());
    action(u"resetLayout"_s)->trigger();
    QVERIFY(!tree->isVisible());
    QVERIFY(outline->isVisible());
    QVERIFY(!action(u"show_folders"_s)->isChecked());
    QVERIFY(action(u"show_outline"_s)->isChecked());
}

void tst_WorkbenchWindow::theLogHasItsButtonInTheStatusBar()
{
    const auto *side = window()->agent()->dockContainer()->panelWidget(DockContainer::Bottom);
    QVERIFY(window()->statusBar()->isAncestorOf(side->panel()));
    QVERIFY(side->panel()->isVisible());
}

void tst_WorkbenchWindow::theClipboardServesTextsAndFiles()
{
    auto *field = window()->findChild<QLineEdit *>(u"searchField"_s);
    field->setText(u"wanted"_s);
    field->setFocus();
    field->selectAll();
    action(u"copy"_s)->trigger();
    QCOMPARE(QApplication::clipboard()->text(), u"wanted"_s);
    action(u"cut"_s)->trigger();
    QCOMPARE(field->text(), QString());
    action(u"paste"_s)->trigger();
    QCOMPARE(field->text(), u"wanted"_s);
    createFile(u"t1"_s);
    select(u"t1"_s);
    action(u"copy"_s)->trigger();
    QVERIFY(QApplication::clipboard()->mimeData()->hasUrls());
    // A document that knows no clipboard.
    open({u"t1"_s});
    action(u"paste"_s)->trigger();
    action(u"cut"_s)->trigger();
}

void tst_WorkbenchWindow::renameAndDeleteNeedASelection()
{
    QVERIFY(!action(u"rename"_s)->isEnabled());
    QVERIFY(!action(u"deleteFiles"_s)->isEnabled());
    createFile(u"t1"_s);
    select(u"t1"_s);
    QVERIFY(action(u"rename"_s)->isEnabled());
    QVERIFY(action(u"deleteFiles"_s)->isEnabled());
}

void tst_WorkbenchWindow::theSearchFieldIsInTheCorner()
{
    const auto *field = window()->findChild<QLineEdit *>(u"searchField"_s);
    QVERIFY(window()->agent()->ribbonBar()->isAncestorOf(field));
    QVERIFY(!field->hasFocus());
    QTest::keyClick(window(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(field->hasFocus());
}

void tst_WorkbenchWindow::helpIsABoxOfPlainText()
{
    ModalScript script;
    script.close([](QWidget *box) {
        QCOMPARE(qobject_cast<QMessageBox *>(box)->textFormat(), Qt::PlainText);
    });
    Input::click(window()->findChild<QToolButton *>(u"helpButton"_s));
    QVERIFY(script.isDone());
}

void tst_WorkbenchWindow::fullScreenComesAndGoes()
{
    action(u"fullScreen"_s)->trigger();
    QTRY_VERIFY(window()->isFullScreen());
    action(u"fullScreen"_s)->trigger();
    QTRY_VERIFY(!window()->isFullScreen());
    // Others can do it, too.
    window()->showFullScreen();
    QTRY_VERIFY(action(u"fullScreen"_s)->isChecked());
    window()->showNormal();
    QTRY_VERIFY(!action(u"fullScreen"_s)->isChecked());
}

void tst_WorkbenchWindow::allThatTakesTheFocusHasAName()
{
    const QList<QWidget *> widgets = window()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() || widget->focusProxy())
            continue;
        QVERIFY2(!widget->accessibleName().isEmpty(),
                 qPrintable(QString::fromLatin1(widget->metaObject()->className())
                            + widget->objectName()));
    }
}

QTEST_MAIN(tst_WorkbenchWindow)

#include "tst_workbenchwindow.moc"
