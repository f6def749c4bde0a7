// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TreeFixture.h"

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "support/ImageChecks.h"
#include "support/PopupDriver.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QSignalSpy>

#include <algorithm>

using namespace Qt::StringLiterals;

class tst_AddressTree : public TreeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void isSetUpForFiles();
    void columnsHaveTheirWidths();
    void rowsAreSortedByNameAndTheHeaderSorts();
    void nameWithANewlineIsOneLine();

    void everyRowHasAnIcon();
    void headerSortsFromRightToLeftToo();

    void withoutAFolderThereIsNoPath();
    void goingToAFolderSelectsNothing_data();
    void goingToAFolderSelectsNothing();
    void selectionEndsWhenTheFolderChanges();
    void sameFolderAgainKeepsTheSelection();
    void folderThatDoesNotExistLeavesTheTree();

    void currentPathIsTheCurrentRowOfASelection();
    void selectedPathsComeInTheOrderOfSelection();
    void linkIsSelectedItself();
    void hiddenRowsAreNotSelected();

    void actionsFollowTheSelection_data();
    void actionsFollowTheSelection();
    void pasteFollowsTheClipboard();

    void linesOfTheHeaderFollowTheDirection();
    void doubleClickOnAFolderGoesThere();
    void doubleClickOnAFolderWithABackslashStays();
    void doubleClickOnAKnownFileHandsItToTheHost();
    void suffixesAreCompared_data();
    void suffixesAreCompared();
    void treeMayDieInTheDoubleClick();

private:
    void doubleClick(const QString &name) const
    {
        Input::click(tree->viewport(), center(name));
        Input::doubleClick(tree->viewport(), center(name));
    }
};

void tst_AddressTree::isSetUpForFiles()
{
    QVERIFY(model());
    QVERIFY(!model()->isReadOnly());
    QCOMPARE(model()->nameFilters(), QStringList());
    QCOMPARE(tree->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(tree->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(tree->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(tree->acceptDrops());
    QVERIFY(tree->viewport()->acceptDrops());
    QVERIFY(tree->dragEnabled());
    QVERIFY(tree->showDropIndicator());
    QCOMPARE(tree->contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(tree->header()->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(!tree->accessibleName().isEmpty());
}

void tst_AddressTree::columnsHaveTheirWidths()
{
    tree->resize(500, 300);
    QVERIFY(showTree());
    QCOMPARE(tree->columnWidth(0), 200);
    QCOMPARE(tree->columnWidth(1), 100);
    QCOMPARE(tree->columnWidth(2), 100);
    // The last one takes what is left of the width.
    QVERIFY(tree->columnWidth(3) >= 100);
}

void tst_AddressTree::rowsAreSortedByNameAndTheHeaderSorts()
{
    QVERIFY(showTree());
    const QStringList ascending{u"docs"_s, u"alpha.txt"_s, u"beta.log"_s, u"gamma.doc"_s};
    QTRY_COMPARE(names(), ascending);

    Input::click(tree->header()->viewport(), QPoint(50, 8));
    QTRY_COMPARE(names(), QStringList(ascending.crbegin(), ascending.crend()));
    QCOMPARE(tree->selectedPaths(), QStringList());
}

void tst_AddressTree::nameWithANewlineIsOneLine()
{
    write(path(u"two\nlines"_s), "x");
    tree->setRootPath(root());
    QVERIFY(Input::show(tree.get()));
    QTRY_COMPARE(rowCount(), 5);
    QCOMPARE(tree->visualRect(index(u"two\nlines"_s)).height(),
             tree->visualRect(index(u"alpha.txt"_s)).height());
    QCOMPARE(model()->filePath(index(u"two\nlines"_s)), path(u"two\nlines"_s));
}

void tst_AddressTree::everyRowHasAnIcon()
{
    QVERIFY(showTree());
    for (const int ratio : {1, 2}) {
        const QImage image = ImageChecks::rendered(tree->viewport(), ratio, true);
        const QColor ground = tree->palette().color(QPalette::Base);
        for (const QString &name : {u"docs"_s, u"alpha.txt"_s}) {
            const QRect row = tree->visualRect(index(name));
            const QRect icon = ImageChecks::paintedRect(
                image, QRect(row.topLeft(), QSize(18, row.height())), ground);
            QVERIFY(icon.width() >= 12);
            QVERIFY(icon.height() >= 12);
        }
    }
}

void tst_AddressTree::headerSortsFromRightToLeftToo()
{
    tree->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(showTree());
    QVERIFY(tree->header()->isSortIndicatorShown());
    Input::click(tree->header()->viewport(), QPoint(tree->header()->width() - 50, 8));
    const QStringList ascending = sortedNames();
    QTRY_COMPARE(names(), QStringList(ascending.crbegin(), ascending.crend()));
}

void tst_AddressTree::withoutAFolderThereIsNoPath()
{
    QCOMPARE(tree->currentPath(), QString());
    QCOMPARE(tree->selectedPaths(), QStringList());

    // What would be done is not done in the working directory.
    putFilesOnClipboard({path(u"alpha.txt"_s)});
    action(u"Paste"_s)->trigger();
    action(u"Folder"_s)->trigger();
    QVERIFY(QDir::current().isEmpty());
}

void tst_AddressTree::goingToAFolderSelectsNothing_data()
{
    QTest::addColumn<bool>("isShown");

    QTest::newRow("before the tree is shown") << false;
    QTest::newRow("after") << true;
}

void tst_AddressTree::goingToAFolderSelectsNothing()
{
    QFETCH(const bool, isShown);
    if (isShown)
        QVERIFY(Input::show(tree.get()));

    tree->slotPathChanged(root());

    const auto nothingIsSelected = [this] {
        return !tree->selectionModel()->hasSelection() && tree->selectedPaths().isEmpty()
               && tree->currentPath() == root() && !action(u"Delete"_s)->isEnabled();
    };
    QVERIFY(nothingIsSelected());
    QCOMPARE(tree->rootIndex(), model()->index(root()));
    QCOMPARE(tree->currentIndex(), tree->rootIndex());
    QVERIFY(Input::show(tree.get()));
    QTRY_COMPARE(rowCount(), 4);
    tree->setFocus(Qt::TabFocusReason);
    QVERIFY(nothingIsSelected());
}

void tst_AddressTree::selectionEndsWhenTheFolderChanges()
{
    QVERIFY(showTree());
    select({u"docs"_s, u"alpha.txt"_s});

    tree->setRootPath(path(u"docs"_s));

    QCOMPARE(tree->selectedPaths(), QStringList());
    QCOMPARE(tree->currentPath(), path(u"docs"_s));
    QVERIFY(!action(u"Delete"_s)->isEnabled());
    QVERIFY(!action(u"Cut"_s)->isEnabled());
}

void tst_AddressTree::sameFolderAgainKeepsTheSelection()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    tree->setRootPath(root());
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"alpha.txt"_s)});
}

void tst_AddressTree::folderThatDoesNotExistLeavesTheTree()
{
    QVERIFY(showTree());
    tree->setRootPath(path(u"nowhere"_s));
    QCOMPARE(tree->rootIndex(), model()->index(root()));
    QCOMPARE(tree->currentPath(), root());
}

void tst_AddressTree::currentPathIsTheCurrentRowOfASelection()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s, u"beta.log"_s});
    QCOMPARE(tree->currentPath(), path(u"beta.log"_s));

    // The current row counts where any other one is selected.
    tree->selectionModel()->select(index(u"beta.log"_s),
                                   QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    QCOMPARE(tree->currentPath(), path(u"beta.log"_s));

    tree->clearSelection();
    QCOMPARE(tree->currentPath(), root());
}

void tst_AddressTree::selectedPathsComeInTheOrderOfSelection()
{
    QVERIFY(showTree());
    select({u"gamma.doc"_s, u"docs"_s, u"beta.log"_s});
    QCOMPARE(tree->selectedPaths(),
             (QStringList{path(u"gamma.doc"_s), path(u"docs"_s), path(u"beta.log"_s)}));
}

// Or deleting the link would delete what it leads to.
void tst_AddressTree::linkIsSelectedItself()
{
    QVERIFY(QFile::link(path(u"docs"_s), path(u"link"_s)));
    tree->setRootPath(root());
    QVERIFY(Input::show(tree.get()));
    QTRY_COMPARE(rowCount(), 5);
    select({u"link"_s});
    QCOMPARE(tree->currentPath(), path(u"link"_s));
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"link"_s)});

    action(u"Delete"_s)->trigger();
    QTRY_COMPARE(rowCount(), 4);
    QCOMPARE(bytes(path(u"docs/inner.txt"_s)), "docs/inner.txt");
}

void tst_AddressTree::hiddenRowsAreNotSelected()
{
    QVERIFY(showTree());
    tree->expand(index(u"docs"_s));
    QTRY_COMPARE(model()->rowCount(index(u"docs"_s)), 1);
    select({u"docs/inner.txt"_s, u"alpha.txt"_s});

    tree->collapse(index(u"docs"_s));
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"alpha.txt"_s)});

    tree->selectionModel()->select(model()->index(outside(u"data"_s)),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    tree->selectionModel()->select(tree->rootIndex(),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"alpha.txt"_s)});
}

void tst_AddressTree::actionsFollowTheSelection_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<bool>>("enabled"); // with none, one and two rows selected

    const QList<bool> always{true, true, true};
    const QList<bool> one{false, true, false};
    const QList<bool> any{false, true, true};
    QTest::newRow("Open") << u"Open"_s << one;
    QTest::newRow("Cut") << u"Cut"_s << any;
    QTest::newRow("Copy") << u"Copy"_s << always;
    QTest::newRow("Paste") << u"Paste"_s << always;
    QTest::newRow("Delete") << u"Delete"_s << any;
    QTest::newRow("Rename") << u"Rename"_s << one;
    QTest::newRow("Folder") << u"Folder"_s << always;
    QTest::newRow("Open in Explorer") << u"Open in Explorer"_s << one;
    QTest::newRow("Open with Default") << u"Open with Default"_s << one;
    QTest::newRow("Copy Absolute Path") << u"Copy Absolute Path"_s << one;
    QTest::newRow("Copy Relative Path") << u"Copy Relative Path"_s << one;
}

void tst_AddressTree::actionsFollowTheSelection()
{
    QFETCH(const QString, text);
    QFETCH(const QList<bool>, enabled);
    putFilesOnClipboard({path(u"alpha.txt"_s)});
    QVERIFY(showTree());
    const QAction *tested = action(text);
    QVERIFY(tested);

    QCOMPARE(tested->isEnabled(), enabled.at(0));
    select({u"alpha.txt"_s});
    QCOMPARE(tested->isEnabled(), enabled.at(1));
    select({u"alpha.txt"_s, u"docs"_s});
    QCOMPARE(tested->isEnabled(), enabled.at(2));
    tree->clearSelection();
    QCOMPARE(tested->isEnabled(), enabled.at(0));
}

void tst_AddressTree::pasteFollowsTheClipboard()
{
    QVERIFY(!action(u"Paste"_s)->isEnabled());
    putFilesOnClipboard({path(u"alpha.txt"_s)});
    QVERIFY(action(u"Paste"_s)->isEnabled());

    const VornFrame::AddressTree other;
    const QList<QAction *> actions = other.actions();
    QVERIFY(std::any_of(actions.cbegin(), actions.cend(), [](const QAction *action) {
        return action->text() == u"Paste"_s && action->isEnabled();
    }));

    clipboard()->setText(u"text"_s);
    QVERIFY(!action(u"Paste"_s)->isEnabled());
    putFilesOnClipboard({path(u"alpha.txt"_s)});
    clipboard()->clear();
    QVERIFY(!action(u"Paste"_s)->isEnabled());
}

void tst_AddressTree::linesOfTheHeaderFollowTheDirection()
{
    const QColor line(191, 191, 191);
    VornFrame::StyleSheets::load(tree.get(), VornFrame::ResourcePaths::AddressSheet);
    QVERIFY(showTree());
    for (const Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
        tree->setLayoutDirection(direction);
        QCoreApplication::processEvents();
        QHeaderView *header = tree->header();
        const QImage image = ImageChecks::rendered(header, 1);
        const QRect name(header->sectionViewportPosition(0), 5, header->sectionSize(0), 5);
        const QRect left(name.topLeft(), QSize(2, name.height()));
        const QRect right(name.topRight() - QPoint(1, 0), left.size());
        const bool isMirrored = direction == Qt::RightToLeft;
        QCOMPARE(ImageChecks::contains(image, left, line).isEmpty(), isMirrored);
        QCOMPARE(ImageChecks::contains(image, right, line).isEmpty(), !isMirrored);
    }
}

void tst_AddressTree::doubleClickOnAFolderGoesThere()
{
    const PopupBan noBox;
    QVERIFY(showTree());
    tree->setSuffixes({u"txt"_s, QString()});
    QSignalSpy folder(tree.get(), &VornFrame::AddressTree::signalPathChanged);
    QSignalSpy file(tree.get(), &VornFrame::AddressTree::signalFileOpen);

    doubleClick(u"docs"_s);

    QCOMPARE(folder.size(), 1);
    QCOMPARE(folder.constFirst(), QVariantList{path(u"docs"_s)});
    QCOMPARE(file.size(), 0);
    QVERIFY(!tree->isExpanded(index(u"docs"_s)));
}

void tst_AddressTree::doubleClickOnAFolderWithABackslashStays()
{
    const PopupBan noBox;
    const QString name = u"back\\slash"_s;
    QVERIFY(showTree());
    QVERIFY(QDir(path(QString())).mkdir(name));
    QTRY_VERIFY(tree->visualRect(index(name)).isValid());
    QSignalSpy folder(tree.get(), &VornFrame::AddressTree::signalPathChanged);

    doubleClick(name);

    QCOMPARE(folder.size(), 0);
}

void tst_AddressTree::doubleClickOnAKnownFileHandsItToTheHost()
{
    const PopupBan noBox;
    QVERIFY(showTree());
    tree->setSuffixes({u"log"_s, u"txt"_s});
    QSignalSpy folder(tree.get(), &VornFrame::AddressTree::signalPathChanged);
    QSignalSpy file(tree.get(), &VornFrame::AddressTree::signalFileOpen);

    doubleClick(u"beta.log"_s);

    QCOMPARE(file.size(), 1);
    QCOMPARE(file.constFirst(), QVariantList{path(u"beta.log"_s)});
    QCOMPARE(folder.size(), 0);
}

void tst_AddressTree::suffixesAreCompared_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isKnown");

    QTest::newRow("known") << u"file.txt"_s << true;
    QTest::newRow("other case") << u"file.TXT"_s << false;
    QTest::newRow("last one of two") << u"file.tar.txt"_s << true;
    QTest::newRow("first one of two") << u"file.txt.tar"_s << false;
    QTest::newRow("none") << u"txt"_s << false;
}

void tst_AddressTree::suffixesAreCompared()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isKnown);
    write(path(name), "x");
    tree->setSuffixes({u"log"_s});
    tree->setSuffixes({u"txt"_s});
    tree->setRootPath(root());
    QSignalSpy file(tree.get(), &VornFrame::AddressTree::signalFileOpen);

    if (isKnown) {
        Q_EMIT tree->doubleClicked(index(name));
    } else {
        PopupDriver box([](QMessageBox *) {});
        Q_EMIT tree->doubleClicked(index(name));
    }

    QCOMPARE(file.size(), isKnown ? 1 : 0);
}

void tst_AddressTree::treeMayDieInTheDoubleClick()
{
    QVERIFY(showTree());
    connect(tree.get(), &VornFrame::AddressTree::signalPathChanged, this, [this] { tree.reset(); });
    doubleClick(u"docs"_s);
    QVERIFY(!tree);
}

QTEST_MAIN(tst_AddressTree)

#include "tst_addresstree.moc"
