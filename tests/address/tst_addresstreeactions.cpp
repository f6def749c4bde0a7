// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TreeFixture.h"

#include "support/PopupDriver.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;

/// Takes over what would be opened with the programs of the system.
class UrlLog final : public QObject
{
    Q_OBJECT

public:
    UrlLog() { QDesktopServices::setUrlHandler(u"file"_s, this, "open"); }
    ~UrlLog() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QStringList paths;

public Q_SLOTS:
    void open(const QUrl &url) { paths.append(url.toLocalFile()); }
};

class tst_AddressTreeActions : public TreeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void actionHasItsTextAndShortcut_data();
    void actionHasItsTextAndShortcut();
    void onlyTheseActionsExist();

    void openOpensFilesOnly_data();
    void openOpensFilesOnly();
    void openInExplorerOpensTheFolder_data();
    void openInExplorerOpensTheFolder();
    void openingAFileIsAskedFor_data();
    void openingAFileIsAskedFor();
    void boxOfOpeningIsAsItIsWritten();
    void treeMayDieInTheBox();

    void absolutePathIsCopied_data();
    void absolutePathIsCopied();
    void relativePathIsCopied_data();
    void relativePathIsCopied();
    void pathOfAFolderIsNotCopied();

    void cutAndCopyFillTheClipboard();
    void pasteGoesToTheCurrentPath_data();
    void pasteGoesToTheCurrentPath();
    void cutFilesAreMoved();

    void deleteRemovesTheSelection();
    void nothingIsSelectedAfterDeleting();
    void deleteWithoutASelectionDoesNothing();

    void renameEditsTheCurrentRow();
    void renamingToATakenNameLeavesBoth();
    void renamedFolderStaysExpanded();
    void severalRowsAreNotRenamed();
    void typedNameSurvivesAChangeOfTheFile();

    void newFolderIsEditedAtOnce();
    void newFolderGoesIntoTheCurrentFolder();
    void secondNewFolderHasANumber();

private:
    QPointer<QLineEdit> editor() const { return tree->viewport()->findChild<QLineEdit *>(); }
    void doubleClick(const QString &name) const
    {
        Input::click(tree->viewport(), center(name));
        Input::doubleClick(tree->viewport(), center(name));
    }
};

namespace {

QStringList hostileNames()
{
    return {u"<b>bold<"_s,   u"'a' \"b\" & c"_s, u"a\nb"_s,
            u"a\\b"_s,       u"50% #1?"_s,       u"\u05e9\u05dc\u05d5\u05dd"_s,
            u"\U0001F600"_s, QString(255, u'x')};
}

void addHostileNames()
{
    QTest::addColumn<QString>("name");

    const QStringList names = hostileNames();
    for (const QString &name : names)
        QTest::newRow(qPrintable(name.left(20).simplified())) << name;
}

} // namespace

void tst_AddressTreeActions::actionHasItsTextAndShortcut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QKeySequence>("shortcut");

    QTest::newRow("Open") << u"Open"_s << QKeySequence();
    QTest::newRow("Cut") << u"Cut"_s << QKeySequence(QKeySequence::Cut);
    QTest::newRow("Copy") << u"Copy"_s << QKeySequence(QKeySequence::Copy);
    QTest::newRow("Paste") << u"Paste"_s << QKeySequence(QKeySequence::Paste);
    QTest::newRow("Delete") << u"Delete"_s << QKeySequence(QKeySequence::Delete);
    QTest::newRow("Rename") << u"Rename"_s << QKeySequence(Qt::Key_F2);
    QTest::newRow("Folder") << u"Folder"_s << QKeySequence();
    QTest::newRow("Open in Explorer") << u"Open in Explorer"_s << QKeySequence();
    QTest::newRow("Open with Default") << u"Open with Default"_s << QKeySequence();
    QTest::newRow("Copy Absolute Path") << u"Copy Absolute Path"_s << QKeySequence();
    QTest::newRow("Copy Relative Path") << u"Copy Relative Path"_s << QKeySequence();
}

void tst_AddressTreeActions::actionHasItsTextAndShortcut()
{
    QFETCH(const QString, text);
    QFETCH(const QKeySequence, shortcut);

    QVERIFY(action(text));
    QCOMPARE(action(text)->shortcut(), shortcut);
    QCOMPARE(action(text)->parent(), tree.get());
}

void tst_AddressTreeActions::onlyTheseActionsExist()
{
    QCOMPARE(tree->actions().size(), 11);
}

void tst_AddressTreeActions::openOpensFilesOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isOpened");

    for (const QString &text : {u"Open"_s, u"Open with Default"_s}) {
        QTest::addRow("%s file", qPrintable(text)) << text << u"alpha.txt"_s << true;
        QTest::addRow("%s folder", qPrintable(text)) << text << u"docs"_s << false;
        QTest::addRow("%s nothing", qPrintable(text)) << text << QString() << false;
        const QStringList names = hostileNames();
        for (const QString &name : names) {
            QTest::addRow("%s %s", qPrintable(text), qPrintable(name.left(20).simplified()))
                << text << name << true;
        }
    }
}

void tst_AddressTreeActions::openOpensFilesOnly()
{
    QFETCH(const QString, text);
    QFETCH(const QString, name);
    QFETCH(const bool, isOpened);
    const UrlLog opened;
    if (isOpened)
        write(path(name), "x");
    tree->setRootPath(root());
    if (!name.isEmpty())
        select({name});
    action(text)->setEnabled(true);

    action(text)->trigger();

    QCOMPARE(opened.paths, isOpened ? QStringList{path(name)} : QStringList());
}

void tst_AddressTreeActions::openInExplorerOpensTheFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");

    QTest::newRow("file") << u"alpha.txt"_s << QString();
    QTest::newRow("folder") << u"docs"_s << u"docs"_s;
    QTest::newRow("file below") << u"docs/inner.txt"_s << u"docs"_s;
}

void tst_AddressTreeActions::openInExplorerOpensTheFolder()
{
    QFETCH(const QString, name);
    QFETCH(const QString, folder);
    const UrlLog opened;
    tree->setRootPath(root());
    select({name});

    action(u"Open in Explorer"_s)->trigger();

    QCOMPARE(opened.paths, QStringList{QDir::cleanPath(path(folder))});
}

void tst_AddressTreeActions::openingAFileIsAskedFor_data()
{
    QTest::addColumn<int>("answer"); // a button, or a key
    QTest::addColumn<bool>("isOpened");

    QTest::newRow("Ok") << int(QMessageBox::Ok) << true;
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
    QTest::newRow("Return") << int(Qt::Key_Return) << false;
    QTest::newRow("closed") << 0 << false;
}

void tst_AddressTreeActions::openingAFileIsAskedFor()
{
    QFETCH(const int, answer);
    QFETCH(const bool, isOpened);
    const UrlLog opened;
    QVERIFY(showTree());
    tree->setSuffixes({u"log"_s});

    PopupDriver driver([answer](QMessageBox *box) {
        if (answer == 0)
            box->close();
        else if (QAbstractButton *button = box->button(QMessageBox::StandardButton(answer)))
            button->click();
        else
            QTest::keyClick(box, Qt::Key(answer));
    });
    doubleClick(u"alpha.txt"_s);

    QVERIFY(driver.hasRun());
    QCOMPARE(opened.paths, isOpened ? QStringList{path(u"alpha.txt"_s)} : QStringList());
}

void tst_AddressTreeActions::boxOfOpeningIsAsItIsWritten()
{
    QVERIFY(showTree());
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    bool isRight = false;
    PopupDriver driver([&](QMessageBox *box) {
        title = box->windowTitle();
        text = box->text();
        buttons = box->standardButtons();
        isRight = box->icon() == QMessageBox::Information
                  && box->standardButton(box->defaultButton()) == QMessageBox::Cancel
                  && box->standardButton(box->escapeButton()) == QMessageBox::Cancel;
    });
    doubleClick(u"alpha.txt"_s);

    QVERIFY(driver.hasRun());
    QCOMPARE(title, u"Infomation"_s);
    QCOMPARE(text, u"Open the selected file with the external default program?"_s);
    QCOMPARE(buttons, QMessageBox::Ok | QMessageBox::Cancel);
    QVERIFY(isRight);
}

void tst_AddressTreeActions::treeMayDieInTheBox()
{
    const UrlLog opened;
    QVERIFY(showTree());
    PopupDriver driver([this](QMessageBox *) { tree.reset(); });
    doubleClick(u"alpha.txt"_s);
    QVERIFY(driver.hasRun());
    QCOMPARE(opened.paths, QStringList());
}

void tst_AddressTreeActions::absolutePathIsCopied_data()
{
    addHostileNames();
}

void tst_AddressTreeActions::absolutePathIsCopied()
{
    QFETCH(const QString, name);
    write(path(name), "x");
    putFilesOnClipboard({path(u"alpha.txt"_s)});
    tree->setRootPath(root());
    select({name});

    action(u"Copy Absolute Path"_s)->trigger();

    QCOMPARE(clipboard()->text(), path(name));
    QVERIFY(!clipboard()->mimeData()->hasUrls());
}

void tst_AddressTreeActions::relativePathIsCopied_data()
{
    addHostileNames();
}

void tst_AddressTreeActions::relativePathIsCopied()
{
    QFETCH(const QString, name);
    write(path(u"docs/"_s + name), "x");
    putFilesOnClipboard({path(u"alpha.txt"_s)});
    tree->setRootPath(root());
    select({u"docs/"_s + name});

    action(u"Copy Relative Path"_s)->trigger();

    QCOMPARE(clipboard()->text(), u"docs/"_s + name);
    QVERIFY(!clipboard()->mimeData()->hasUrls());
}

void tst_AddressTreeActions::pathOfAFolderIsNotCopied()
{
    clipboard()->setText(u"before"_s);
    tree->setRootPath(root());
    select({u"docs"_s});
    action(u"Copy Absolute Path"_s)->trigger();
    action(u"Copy Relative Path"_s)->trigger();
    QCOMPARE(clipboard()->text(), u"before"_s);
}

void tst_AddressTreeActions::cutAndCopyFillTheClipboard()
{
    tree->setRootPath(root());
    select({u"gamma.doc"_s, u"alpha.txt"_s});
    const QStringList files{path(u"gamma.doc"_s), path(u"alpha.txt"_s)};

    action(u"Cut"_s)->trigger();
    QCOMPARE(clipboardFiles(), QStringList{u"cut"_s} + files);
    action(u"Copy"_s)->trigger();
    QCOMPARE(clipboardFiles(), QStringList{u"copy"_s} + files);
    QVERIFY(action(u"Paste"_s)->isEnabled());
}

void tst_AddressTreeActions::pasteGoesToTheCurrentPath_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("target");

    QTest::newRow("nothing selected") << QString() << u"new"_s;
    QTest::newRow("folder") << u"docs"_s << u"docs/new"_s;
    QTest::newRow("file") << u"alpha.txt"_s << u"new"_s;
    QTest::newRow("file below") << u"docs/inner.txt"_s << u"docs/new"_s;
}

void tst_AddressTreeActions::pasteGoesToTheCurrentPath()
{
    QFETCH(const QString, selected);
    QFETCH(const QString, target);
    write(outside(u"new"_s), "new");
    putFilesOnClipboard({outside(u"new"_s)});
    QVERIFY(showTree());
    if (!selected.isEmpty())
        select({selected});

    action(u"Paste"_s)->trigger();

    QCOMPARE(bytes(path(target)), "new");
    QCOMPARE(bytes(outside(u"new"_s)), "new");
}

void tst_AddressTreeActions::cutFilesAreMoved()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    action(u"Cut"_s)->trigger();
    select({u"docs"_s});
    action(u"Paste"_s)->trigger();
    QCOMPARE(bytes(path(u"docs/alpha.txt"_s)), "alpha.txt");
    QVERIFY(!QFile::exists(path(u"alpha.txt"_s)));
    QTRY_COMPARE(rowCount(), 3);
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"docs"_s)});
}

void tst_AddressTreeActions::deleteRemovesTheSelection()
{
    const PopupBan noBox;
    QVERIFY(showTree());
    select({u"alpha.txt"_s, u"docs"_s});
    action(u"Delete"_s)->trigger();
    QCOMPARE(QDir(root()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{u"beta.log"_s, u"gamma.doc"_s}));
    QTRY_COMPARE(rowCount(), 2);
}

void tst_AddressTreeActions::nothingIsSelectedAfterDeleting()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});

    action(u"Delete"_s)->trigger();

    const auto nothingIsSelected = [this] {
        return tree->selectedPaths().isEmpty() && tree->currentPath() == root()
               && !action(u"Delete"_s)->isEnabled();
    };
    QVERIFY(nothingIsSelected());
    QTRY_COMPARE(rowCount(), 3);
    QVERIFY(nothingIsSelected());
}

void tst_AddressTreeActions::deleteWithoutASelectionDoesNothing()
{
    QVERIFY(showTree());
    action(u"Delete"_s)->setEnabled(true);
    action(u"Delete"_s)->trigger();
    QCOMPARE(QDir(root()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 4);
}

void tst_AddressTreeActions::renameEditsTheCurrentRow()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});

    action(u"Rename"_s)->trigger();
    QVERIFY(editor());
    QCOMPARE(editor()->text(), u"alpha.txt"_s);
    QVERIFY(!editor()->accessibleName().isEmpty());
    action(u"Rename"_s)->trigger(); // once more changes nothing
    editor()->setText(u"new name"_s);
    QTest::keyClick(editor(), Qt::Key_Return);

    QTRY_COMPARE(bytes(path(u"new name"_s)), "alpha.txt");
    QVERIFY(!QFile::exists(path(u"alpha.txt"_s)));
    QTRY_COMPARE(tree->selectedPaths(), QStringList{path(u"new name"_s)});
    QTRY_COMPARE(names(), (QStringList{u"docs"_s, u"beta.log"_s, u"gamma.doc"_s, u"new name"_s}));
    QCOMPARE(tree->currentPath(), path(u"new name"_s));
}

void tst_AddressTreeActions::renamingToATakenNameLeavesBoth()
{
    const PopupBan noBox;
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    action(u"Rename"_s)->trigger();
    QVERIFY(editor());
    editor()->setText(u"beta.log"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(!editor());
    QCOMPARE(bytes(path(u"alpha.txt"_s)), "alpha.txt");
    QCOMPARE(bytes(path(u"beta.log"_s)), "beta.log");
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"alpha.txt"_s)});
}

void tst_AddressTreeActions::renamedFolderStaysExpanded()
{
    QVERIFY(showTree());
    tree->expand(index(u"docs"_s));
    QTRY_COMPARE(model()->rowCount(index(u"docs"_s)), 1);
    select({u"docs"_s});
    action(u"Rename"_s)->trigger();
    QVERIFY(editor());
    editor()->setText(u"papers"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(tree->isExpanded(index(u"papers"_s)));
    QTRY_COMPARE(model()->rowCount(index(u"papers"_s)), 1);
    QTRY_COMPARE(rowCount(), 4);
    QCOMPARE(bytes(path(u"papers/inner.txt"_s)), "docs/inner.txt");
}

void tst_AddressTreeActions::severalRowsAreNotRenamed()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s, u"beta.log"_s});
    action(u"Rename"_s)->setEnabled(true);
    action(u"Rename"_s)->trigger();
    QVERIFY(!editor());
    tree->clearSelection();
    action(u"Rename"_s)->setEnabled(true);
    action(u"Rename"_s)->trigger();
    QVERIFY(!editor());
}

void tst_AddressTreeActions::typedNameSurvivesAChangeOfTheFile()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    action(u"Rename"_s)->trigger();
    QVERIFY(editor());
    QTest::keyClicks(editor(), u"typed"_s);
    const QModelIndex size = index(u"alpha.txt"_s);
    Q_EMIT model()->dataChanged(size, size);
    QCOMPARE(editor()->text(), u"typed"_s);
    QTest::keyClick(editor(), Qt::Key_Escape);
    QVERIFY(QFile::exists(path(u"alpha.txt"_s)));
}

void tst_AddressTreeActions::newFolderIsEditedAtOnce()
{
    QVERIFY(showTree());

    action(u"Folder"_s)->trigger();

    QVERIFY(QDir(path(u"New Folder"_s)).exists());
    QCOMPARE(tree->currentPath(), path(u"New Folder"_s));
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"New Folder"_s)});
    QVERIFY(editor());
    QCOMPARE(editor()->text(), u"New Folder"_s);
    QTRY_COMPARE(rowCount(), 5);
    QVERIFY(editor());
    QTest::keyClick(editor(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor(), u"mine"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(QDir(path(u"mine"_s)).exists());
    QTRY_COMPARE(names().value(1), u"mine"_s); // sorted in
    QTRY_COMPARE(tree->selectedPaths(), QStringList{path(u"mine"_s)});
    QTRY_COMPARE(rowCount(), 5);
}

void tst_AddressTreeActions::newFolderGoesIntoTheCurrentFolder()
{
    QVERIFY(showTree());
    select({u"docs"_s});
    action(u"Folder"_s)->trigger();
    QVERIFY(QDir(path(u"docs/New Folder"_s)).exists());
    QVERIFY(tree->isExpanded(index(u"docs"_s)));
    QVERIFY(editor());
    QTRY_COMPARE(model()->rowCount(index(u"docs"_s)), 2);
    QVERIFY(editor());
    QVERIFY(tree->viewport()->rect().contains(editor()->geometry().center()));
    QTest::keyClick(editor(), Qt::Key_Escape);
}

void tst_AddressTreeActions::secondNewFolderHasANumber()
{
    QVERIFY(showTree());
    action(u"Folder"_s)->trigger();
    tree->clearSelection();
    action(u"Folder"_s)->trigger();
    QVERIFY(QDir(path(u"New Folder"_s)).exists());
    QVERIFY(QDir(path(u"New Folder (2)"_s)).exists());
    QTRY_COMPARE(tree->selectedPaths(), QStringList{path(u"New Folder (2)"_s)});
}

QTEST_MAIN(tst_AddressTreeActions)

#include "tst_addresstreeactions.moc"
