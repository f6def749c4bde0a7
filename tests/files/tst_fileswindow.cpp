// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilesFixture.h"

#include "support/Input.h"
#include "support/ModalScript.h"
#include "support/PopupDriver.h"

#include "FilePane.h"
#include "FilesSettings.h"
#include "FilesWindow.h"
#include "Messages.h"
#include "PreviewPane.h"

#include <VornFrame/AddressBar.h>

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>

using namespace Qt::StringLiterals;

/// The window with its panes.
class tst_FilesWindow final : public FilesFixture
{
    Q_OBJECT

private Q_SLOTS:
    void startsInTheHomeFolder();
    void opensTheFoldersOfTheCommandLine();
    void takesTheHomeFolderForWhatIsNone_data();
    void takesTheHomeFolderForWhatIsNone();
    void startsWithoutAHistory();
    void titleNamesTheFolderOfTheActivePane();
    void aFolderThatChangesMakesItsPaneActive();
    void activePaneHasALine();
    void previewFollowsTheSelection();
    void previewFollowsTheActivePane();
    void anOpenedFileShowsThePreview();
    void otherFilesAreAskedFor();
    void sameFolderInTheOtherPane();
    void foldersAreSwapped();
    void newMenuOffersATextFile();
    void aNewTextFileIsCreatedWhereItBelongs();
    void saysWhyThereIsNoNewFile();
    void keepsItsLayoutAndFolders();
    void foldersOfTheCommandLineComeFirst();
    void aFolderThatIsGoneIsForgotten();
    void keepsNothingWithoutAFile();
    void brokenSettingsDoNoHarm();
    void panesStandFromRightToLeft();
    void everythingHasAName();
    void messagesAreShownAsTheyAre();

private:
    void trigger(const QKeySequence &shortcut) const;
    /// Triggers the action \a text of the menu "New" of \a pane.
    void chooseNew(const FilePane *pane, const QString &text) const;
};

void tst_FilesWindow::trigger(const QKeySequence &shortcut) const
{
    const QList<QAction *> actions = window()->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->shortcut() == shortcut && action->shortcutContext() == Qt::WindowShortcut)
            return action->trigger();
    }
    QFAIL("there is no action of that shortcut");
}

void tst_FilesWindow::chooseNew(const FilePane *pane, const QString &text) const
{
    const PopupDriver driver([&text](QMenu *menu) {
        for (const QAction *entry : menu->actions()) {
            const QList<QAction *> entries = entry->menu() ? entry->menu()->actions()
                                                           : QList<QAction *>();
            for (QAction *action : entries) {
                if (action->text() == text)
                    action->trigger();
            }
        }
    });
    QTreeView *tree = treeOf(pane);
    selectNone(pane);
    Q_EMIT tree->customContextMenuRequested(tree->viewport()->rect().bottomLeft());
}

void tst_FilesWindow::startsInTheHomeFolder()
{
    QCOMPARE(left()->folder(), home());
    QCOMPARE(right()->folder(), home());
    QCOMPARE(window()->windowTitle(), u"%1 – Files"_s.arg(home()));
    QTRY_COMPARE(previewText(), u"Number of entries: 0"_s);
    QVERIFY(treeOf(left())->hasFocus());
}

void tst_FilesWindow::opensTheFoldersOfTheCommandLine()
{
    const QString a = createFolder(u"a & b"_s);
    const QString b = createFolder(u"b/c"_s);
    QCOMPARE(window()->openFolders({a}), QStringList());
    QCOMPARE(left()->folder(), a);
    QCOMPARE(right()->folder(), home());
    QCOMPARE(window()->openFolders({b + u"/../c/"_s, a}), QStringList());
    QCOMPARE(left()->folder(), b);
    QCOMPARE(right()->folder(), a);
    QCOMPARE(barOf(right())->path(), a);
    QCOMPARE(window()->windowTitle(), u"%1 – Files"_s.arg(b));
}

void tst_FilesWindow::takesTheHomeFolderForWhatIsNone_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("nothing") << u"none"_s;
    QTest::newRow("file") << u"a.txt"_s;
    QTest::newRow("below a file") << u"a.txt/none"_s;
    // An address bar would take it for two folders.
    QTest::newRow("backslash") << u"back\\slash"_s;
}

void tst_FilesWindow::takesTheHomeFolderForWhatIsNone()
{
    QFETCH(const QString, name);
    createFile(u"a.txt"_s, "a");
    createFolder(u"back\\slash"_s);
    const QString other = createFolder(u"other"_s);
    window()->openFolders({other, other});
    QCOMPARE(window()->openFolders({path(name), other}), QStringList{path(name)});
    QCOMPARE(left()->folder(), home());
    QCOMPARE(right()->folder(), other);
    QCOMPARE(FilesWindow::missingText({u"a"_s, u"<b>"_s}),
             u"There is no folder “a”.\nThere is no folder “<b>”."_s);
}

void tst_FilesWindow::startsWithoutAHistory()
{
    const QString folder = createFolder(u"a"_s);
    window()->openFolders({folder});
    const auto isBackEnabled = [this] {
        return barOf(left())->findChild<QPushButton *>(u"addressButton"_s)->isEnabled();
    };
    QVERIFY(!isBackEnabled());
    left()->setFolder(home());
    QVERIFY(isBackEnabled());
    // The folder that is shown at first is in the history too.
    right()->setFolder(folder);
    QVERIFY(barOf(right())->findChild<QPushButton *>(u"addressButton"_s)->isEnabled());
}

void tst_FilesWindow::titleNamesTheFolderOfTheActivePane()
{
    right()->setFolder(createFolder(u"a\n[*]"_s));
    treeOf(left())->setFocus();
    QCOMPARE(window()->windowTitle(), u"%1 – Files"_s.arg(home()));
    trigger(Qt::Key_F6);
    QVERIFY(treeOf(right())->hasFocus());
    QCOMPARE(window()->windowTitle(), u"%1/a [*][*] – Files"_s.arg(home()));
    trigger(Qt::Key_F6);
    QVERIFY(treeOf(left())->hasFocus());
    QCOMPARE(window()->windowTitle(), u"%1 – Files"_s.arg(home()));
    Input::click(treeOf(right())->viewport());
    QVERIFY(treeOf(right())->hasFocus());
    QCOMPARE(window()->windowTitle(), u"%1/a [*][*] – Files"_s.arg(home()));
}

void tst_FilesWindow::aFolderThatChangesMakesItsPaneActive()
{
    const QString folder = createFolder(u"a"_s);
    barOf(right())->setPath(folder);
    QCOMPARE(window()->windowTitle(), u"%1 – Files"_s.arg(folder));
    QVERIFY(treeOf(right())->hasFocus());
    QTRY_COMPARE(previewName(), u"a"_s);
}

void tst_FilesWindow::activePaneHasALine()
{
    const QColor line = window()->palette().color(QPalette::Highlight);
    const auto topOf = [](FilePane *pane) { return pane->grab().toImage().pixelColor(0, 0); };
    QCOMPARE(topOf(left()), line);
    QVERIFY(topOf(right()) != line);
    trigger(Qt::Key_F6);
    QVERIFY(topOf(left()) != line);
    QCOMPARE(topOf(right()), line);
}

void tst_FilesWindow::previewFollowsTheSelection()
{
    createFile(u"a.txt"_s, "text of a");
    createFile(u"b.unknown"_s, "text of b");
    QVERIFY(select(left(), u"a.txt"_s));
    QTRY_COMPARE(previewText(), u"text of a"_s);
    QVERIFY(select(left(), u"b.unknown"_s));
    QTRY_COMPARE(previewText(), u"text of b"_s);
    QVERIFY(treeOf(left())->hasFocus());
    selectNone(left());
    QTRY_COMPARE(previewText(), u"Number of entries: 2"_s);
    QCOMPARE(previewName(), u"home"_s);
}

void tst_FilesWindow::previewFollowsTheActivePane()
{
    createFile(u"a.txt"_s, "text of a");
    createFile(u"b.txt"_s, "text of b");
    QVERIFY(select(left(), u"a.txt"_s));
    QTRY_COMPARE(previewText(), u"text of a"_s);
    QVERIFY(select(right(), u"b.txt"_s));
    QCOMPARE(previewText(), u"text of a"_s);
    trigger(Qt::Key_F6);
    QTRY_COMPARE(previewText(), u"text of b"_s);
    trigger(Qt::Key_F6);
    QTRY_COMPARE(previewText(), u"text of a"_s);
    left()->setFolder(createFolder(u"c"_s));
    QTRY_COMPARE(previewText(), u"Number of entries: 0"_s);
}

void tst_FilesWindow::anOpenedFileShowsThePreview()
{
    createFile(u"a.txt"_s, "text of a");
    auto *preview = window()->findChild<PreviewPane *>();
    trigger(Qt::Key_F3);
    QVERIFY(!preview->isVisible());
    QVERIFY(select(left(), u"a.txt"_s));
    const QTreeView *tree = treeOf(left());
    Input::doubleClick(tree->viewport(), tree->visualRect(tree->currentIndex()).center());
    QVERIFY(preview->isVisible());
    QTRY_COMPARE(previewText(), u"text of a"_s);
    QTRY_VERIFY(window()->findChild<QPlainTextEdit *>()->hasFocus());
    // The pane stays the active one.
    QCOMPARE(window()->windowTitle(), u"%1 – Files"_s.arg(home()));
    trigger(Qt::Key_F3);
    QVERIFY(!preview->isVisible());
}

void tst_FilesWindow::otherFilesAreAskedFor()
{
    createFile(u"a.unknown"_s, "text");
    QVERIFY(select(left(), u"a.unknown"_s));
    const QTreeView *tree = treeOf(left());
    const PopupDriver driver([](QMessageBox *box) { box->button(QMessageBox::Cancel)->click(); });
    Input::doubleClick(tree->viewport(), tree->visualRect(tree->currentIndex()).center());
    QTRY_VERIFY(driver.hasRun());
}

void tst_FilesWindow::sameFolderInTheOtherPane()
{
    const QString folder = createFolder(u"a"_s);
    right()->setFolder(folder);
    trigger(Qt::CTRL | Qt::Key_D);
    QCOMPARE(left()->folder(), folder);
    QVERIFY(treeOf(right())->hasFocus());
    left()->setFolder(home());
    trigger(Qt::CTRL | Qt::Key_D);
    QCOMPARE(right()->folder(), home());
    QVERIFY(treeOf(left())->hasFocus());
    QTRY_COMPARE(previewName(), u"home"_s);
}

void tst_FilesWindow::foldersAreSwapped()
{
    const QString folder = createFolder(u"a"_s);
    right()->setFolder(folder);
    trigger(Qt::CTRL | Qt::Key_U);
    QCOMPARE(left()->folder(), folder);
    QCOMPARE(right()->folder(), home());
    QVERIFY(treeOf(right())->hasFocus());
    QCOMPARE(window()->windowTitle(), u"%1 – Files"_s.arg(home()));
    QTRY_COMPARE(previewName(), u"home"_s);
}

void tst_FilesWindow::newMenuOffersATextFile()
{
    for (const FilePane *pane : {left(), right()}) {
        chooseNew(pane, u"Text File"_s);
        QVERIFY(!pane->findChild<QAction *>(u"newTextFile"_s)->icon().isNull());
    }
    QCOMPARE(QDir(home()).entryList(QDir::Files),
             (QStringList{u"New Text File (2).txt"_s, u"New Text File.txt"_s}));
}

void tst_FilesWindow::aNewTextFileIsCreatedWhereItBelongs()
{
    createFolder(u"a"_s);
    createFile(u"b.txt"_s, "text");
    auto *action = left()->findChild<QAction *>(u"newTextFile"_s);
    QVERIFY(select(left(), u"a"_s));
    action->trigger();
    QVERIFY(QFile::exists(path(u"a/New Text File.txt"_s)));
    QVERIFY(select(left(), u"b.txt"_s));
    action->trigger();
    QVERIFY(QFile::exists(path(u"New Text File.txt"_s)));
    selectNone(left());
    action->trigger();
    QVERIFY(QFile::exists(path(u"New Text File (2).txt"_s)));
    // As a new folder, it is selected.
    QCOMPARE(left()->currentPath(), path(u"New Text File (2).txt"_s));
    QTRY_COMPARE(previewName(), u"New Text File (2).txt"_s);
    QCOMPARE(previewText(), u"The file is empty."_s);
}

void tst_FilesWindow::saysWhyThereIsNoNewFile()
{
    const QString folder = createFolder(u"a/b"_s);
    left()->setFolder(folder);
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir(path(u"a"_s)).removeRecursively());
    ModalScript script;
    script.answer(QMessageBox::Ok);
    left()->findChild<QAction *>(u"newTextFile"_s)->trigger();
    QTRY_VERIFY(script.isDone());
    QCOMPARE(script.texts(),
             QStringList{u"The file could not be created: No such file or directory."_s});
}

void tst_FilesWindow::keepsItsLayoutAndFolders()
{
    const QString a = createFolder(u"a"_s);
    const QString b = createFolder(u"b"_s);
    restart(settingsFile(), {a, b});
    window()->resize(780, 600); // no wider than the screen that there is
    auto *panes = window()->findChild<QSplitter *>(u"panes"_s);
    auto *rows = window()->findChild<QSplitter *>(u"rows"_s);
    panes->setSizes({260, 520});
    rows->setSizes({200, 400});
    const QList<int> paneSizes = panes->sizes();
    const QList<int> rowSizes = rows->sizes();
    trigger(Qt::Key_F3);
    restart(settingsFile());
    QCOMPARE(window()->size(), QSize(780, 600));
    QCOMPARE(left()->folder(), a);
    QCOMPARE(right()->folder(), b);
    QCOMPARE(window()->findChild<QSplitter *>(u"panes"_s)->sizes(), paneSizes);
    QVERIFY(!window()->findChild<PreviewPane *>()->isVisible());
    trigger(Qt::Key_F3);
    QTRY_COMPARE(window()->findChild<QSplitter *>(u"rows"_s)->sizes(), rowSizes);
}

void tst_FilesWindow::foldersOfTheCommandLineComeFirst()
{
    FilesSettings settings;
    settings.leftFolder = createFolder(u"a"_s);
    settings.rightFolder = createFolder(u"b"_s);
    QVERIFY(settings.save(settingsFile()));
    restart(settingsFile(), {createFolder(u"c"_s)});
    QCOMPARE(left()->folder(), path(u"c"_s));
    QCOMPARE(right()->folder(), path(u"b"_s));
    restart(settingsFile(), {path(u"missing"_s)});
    QCOMPARE(left()->folder(), home());
}

void tst_FilesWindow::aFolderThatIsGoneIsForgotten()
{
    FilesSettings settings;
    settings.leftFolder = path(u"none"_s);
    settings.rightFolder = createFile(u"a.txt"_s, "a");
    QVERIFY(settings.save(settingsFile()));
    restart(settingsFile());
    QCOMPARE(left()->folder(), home());
    QCOMPARE(right()->folder(), home());
}

void tst_FilesWindow::keepsNothingWithoutAFile()
{
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(u"config"_s)));
    restart(QString());
    restart(QString());
    qputenv("XDG_CONFIG_HOME", config);
    QCOMPARE(QDir(home()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void tst_FilesWindow::brokenSettingsDoNoHarm()
{
    FilesSettings settings;
    settings.geometry = "no geometry";
    settings.panes = "\1\2\3";
    settings.preview = QByteArray(1000, '\xff');
    QVERIFY(settings.save(settingsFile()));
    restart(settingsFile());
    QCOMPARE(window()->size(), QSize(1100, 720));
    const QList<int> sizes = window()->findChild<QSplitter *>(u"panes"_s)->sizes();
    QCOMPARE_GT(sizes.at(0), 500);
    QCOMPARE_GT(sizes.at(1), 500);
}

void tst_FilesWindow::panesStandFromRightToLeft()
{
    QCOMPARE_LT(left()->mapToGlobal(QPoint()).x(), right()->mapToGlobal(QPoint()).x());
    window()->setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(left()->mapToGlobal(QPoint()).x() > right()->mapToGlobal(QPoint()).x());
    for (const FilePane *pane : {left(), right()}) {
        QCOMPARE(treeOf(pane)->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(barOf(pane)->width(), pane->width());
        QCOMPARE_GE(treeOf(pane)->y(), barOf(pane)->geometry().bottom());
    }
}

void tst_FilesWindow::everythingHasAName()
{
    const QList<QWidget *> widgets = window()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()
            || qobject_cast<const QSplitter *>(widget) || widget->focusProxy())
            continue;
        QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
    }
    QVERIFY(barOf(left())->accessibleName() != barOf(right())->accessibleName());
    QVERIFY(treeOf(left())->accessibleName() != treeOf(right())->accessibleName());
}

void tst_FilesWindow::messagesAreShownAsTheyAre()
{
    ModalScript script;
    script.answer(QMessageBox::Ok);
    Messages::tell(window(), u"<b>&amp;"_s);
    const auto *box = window()->findChild<QMessageBox *>();
    QVERIFY(box->isVisible());
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QTRY_VERIFY(script.isDone());
    QCOMPARE(script.texts(), QStringList{u"<b>&amp;"_s});
    // Or with the window.
    Messages::tell(window(), u"text"_s);
    restart(QString());
}

QTEST_MAIN(tst_FilesWindow)

#include "tst_fileswindow.moc"
