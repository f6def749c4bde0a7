// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TreeFixture.h"

#include "support/PopupDriver.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMessageBox>

using namespace Qt::StringLiterals;

/// Takes the events of a drag in any order; Qt itself delivers no drop without an entering before.
class OpenTree final : public VornFrame::AddressTree
{
    Q_OBJECT

public:
    using AddressTree::AddressTree;
    using AddressTree::dragEnterEvent;
    using AddressTree::dragMoveEvent;
    using AddressTree::dropEvent;
};

class tst_AddressTreeDragDrop : public TreeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void onlyFilesAreTaken();
    void firstThreeCharactersDecide_data();
    void firstThreeCharactersDecide();
    void movingOverTheTreeIsAccepted();
    void eventsOfTheViewportArrive();

    void filesOfTheSameDriveAreMoved();
    void filesOfAnotherDriveAreCopied();
    void dropGoesWhereItFalls_data();
    void dropGoesWhereItFalls();
    void dropFillsTheClipboard_data();
    void dropFillsTheClipboard();
    void dropIsNeverReportedAsAMove_data();
    void dropIsNeverReportedAsAMove();
    void dropOfSomethingElseIsRefused();
    void dropWithoutAFolderDoesNothing();
    void actionOfAnEarlierDragIsForgotten();
    void actionIsRememberedFromTheEntering();

    void folderIsNotMovedIntoItself_data();
    void folderIsNotMovedIntoItself();
    void treeMayDieInTheDrop();

    void dragCarriesTheSelectedFiles();

private:
    static constexpr Qt::DropActions CopyOrMove = Qt::CopyAction | Qt::MoveAction;

    void setFiles(const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        m_data.setUrls(urls);
    }

    OpenTree *openTree() const { return qobject_cast<OpenTree *>(tree.get()); }

    /// The action that the tree chooses for what is dragged in; none where it is refused.
    Qt::DropAction enter(Qt::DropActions possible = CopyOrMove)
    {
        QDragEnterEvent event(QPoint(5, 5), possible, &m_data, Qt::LeftButton, {});
        event.ignore();
        openTree()->dragEnterEvent(&event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    /// What is reported to the source of the drag; nothing where the drop is refused.
    std::optional<Qt::DropAction> drop(QPoint pos, Qt::DropActions possible = CopyOrMove)
    {
        QDropEvent event(pos, possible, &m_data, Qt::LeftButton, {});
        event.ignore();
        openTree()->dropEvent(&event);
        return event.isAccepted() ? std::optional(event.dropAction()) : std::nullopt;
    }

    QMimeData m_data;
};

void tst_AddressTreeDragDrop::init()
{
    TreeFixture::init();
    tree = std::make_unique<OpenTree>();
    m_data.clear();
}

void tst_AddressTreeDragDrop::onlyFilesAreTaken()
{
    QVERIFY(showTree());
    QCOMPARE(enter(), Qt::IgnoreAction);
    m_data.setText(u"file:///tmp/x"_s);
    QCOMPARE(enter(), Qt::IgnoreAction);
    setFiles({path(u"alpha.txt"_s)});
    QVERIFY(enter() != Qt::IgnoreAction);
}

void tst_AddressTreeDragDrop::firstThreeCharactersDecide_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<Qt::DropAction>("action");

    QTest::newRow("same folder") << QUrl::fromLocalFile(u"/tmp/x"_s) << Qt::MoveAction;
    QTest::newRow("same beginning") << QUrl::fromLocalFile(u"/tmx/y"_s) << Qt::MoveAction;
    QTest::newRow("other beginning") << QUrl::fromLocalFile(u"/usr/x"_s) << Qt::CopyAction;
    QTest::newRow("top") << QUrl::fromLocalFile(u"/"_s) << Qt::CopyAction;
    QTest::newRow("not of this machine") << QUrl(u"https://host/tmp/x"_s) << Qt::CopyAction;
}

void tst_AddressTreeDragDrop::firstThreeCharactersDecide()
{
    QFETCH(const QUrl, url);
    QFETCH(const Qt::DropAction, action);
    tree->setRootPath(u"/tmp"_s);
    // Only the first one counts.
    m_data.setUrls({url, QUrl::fromLocalFile(u"/tmp/a"_s), QUrl::fromLocalFile(u"/usr/a"_s)});
    QCOMPARE(enter(), action);
}

void tst_AddressTreeDragDrop::movingOverTheTreeIsAccepted()
{
    QVERIFY(showTree());
    setFiles({path(u"alpha.txt"_s)});
    QDragMoveEvent event(QPoint(5, 5), CopyOrMove, &m_data, Qt::LeftButton, {});
    event.ignore();
    openTree()->dragMoveEvent(&event);
    QVERIFY(event.isAccepted());
}

void tst_AddressTreeDragDrop::eventsOfTheViewportArrive()
{
    write(outside(u"new"_s), "new");
    QVERIFY(showTree());
    setFiles({outside(u"new"_s)});

    QDragEnterEvent entering(QPoint(5, 5), CopyOrMove, &m_data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(tree->viewport(), &entering);
    QVERIFY(entering.isAccepted());
    QDragMoveEvent moving(center(u"docs"_s), CopyOrMove, &m_data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(tree->viewport(), &moving);
    QVERIFY(moving.isAccepted());
    QDropEvent dropping(center(u"docs"_s), CopyOrMove, &m_data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(tree->viewport(), &dropping);
    QVERIFY(dropping.isAccepted());

    QCOMPARE(bytes(path(u"docs/new"_s)), "new");
}

void tst_AddressTreeDragDrop::filesOfTheSameDriveAreMoved()
{
    const PopupBan noBox;
    write(outside(u"new"_s), "new");
    QVERIFY(showTree());
    setFiles({outside(u"new"_s)});
    QCOMPARE(enter(), Qt::MoveAction);

    QVERIFY(drop(emptyPlace()));

    QCOMPARE(bytes(path(u"new"_s)), "new");
    QVERIFY(!QFile::exists(outside(u"new"_s)));
    QCOMPARE(bytes(outside(u"data/Trash/files/new"_s)), "new");
}

void tst_AddressTreeDragDrop::filesOfAnotherDriveAreCopied()
{
    const PopupBan noBox;
    const QTemporaryDir other(u"/var/tmp/tst-XXXXXX"_s);
    write(other.filePath(u"new"_s), "new");
    QVERIFY(showTree());
    setFiles({other.filePath(u"new"_s)});
    QCOMPARE(enter(), Qt::CopyAction);

    QVERIFY(drop(emptyPlace()));

    QCOMPARE(bytes(path(u"new"_s)), "new");
    QCOMPARE(bytes(other.filePath(u"new"_s)), "new");
}

void tst_AddressTreeDragDrop::dropGoesWhereItFalls_data()
{
    QTest::addColumn<QString>("name"); // of the row; empty beside the rows
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("target");

    QTest::newRow("beside the rows") << QString() << 0 << u"new"_s;
    QTest::newRow("folder") << u"docs"_s << 0 << u"docs/new"_s;
    QTest::newRow("date of a folder") << u"docs"_s << 3 << u"docs/new"_s;
    QTest::newRow("file") << u"alpha.txt"_s << 0 << u"new"_s;
    QTest::newRow("file below") << u"docs/inner.txt"_s << 0 << u"docs/new"_s;
}

void tst_AddressTreeDragDrop::dropGoesWhereItFalls()
{
    QFETCH(const QString, name);
    QFETCH(const int, column);
    QFETCH(const QString, target);
    write(outside(u"new"_s), "new");
    QVERIFY(showTree());
    tree->expand(index(u"docs"_s));
    QTRY_COMPARE(model()->rowCount(index(u"docs"_s)), 1);
    // What is selected does not matter.
    select({u"docs"_s});
    setFiles({outside(u"new"_s)});
    enter();

    const QModelIndex under = index(name.isEmpty() ? u"docs"_s : name).siblingAtColumn(column);
    QVERIFY(drop(name.isEmpty() ? emptyPlace() : tree->visualRect(under).center()));

    QCOMPARE(bytes(path(target)), "new");
    QVERIFY(!QFile::exists(outside(u"new"_s)));
}

void tst_AddressTreeDragDrop::dropFillsTheClipboard_data()
{
    QTest::addColumn<bool>("isMove");

    QTest::newRow("move") << true;
    QTest::newRow("copy") << false;
}

void tst_AddressTreeDragDrop::dropFillsTheClipboard()
{
    QFETCH(const bool, isMove);
    const QTemporaryDir other(u"/var/tmp/tst-XXXXXX"_s);
    const QString file = isMove ? outside(u"new"_s) : other.filePath(u"new"_s);
    write(file, "new");
    clipboard()->setText(u"before"_s);
    QVERIFY(showTree());
    setFiles({file});
    enter();
    QStringList filled;
    connect(clipboard(), &QClipboard::dataChanged, this, [&filled] {
        if (filled.isEmpty())
            filled = clipboardFiles();
    });

    QVERIFY(drop(emptyPlace()));
    clipboard()->disconnect(this);

    QCOMPARE(filled, (QStringList{isMove ? u"cut"_s : u"copy"_s, file}));
    // Pasting clears it after a move.
    const QMimeData *left = clipboard()->mimeData();
    QCOMPARE(left && left->hasUrls(), !isMove);
}

void tst_AddressTreeDragDrop::dropIsNeverReportedAsAMove_data()
{
    QTest::addColumn<int>("possible");
    QTest::addColumn<Qt::DropAction>("reported");

    QTest::newRow("copy or move") << int(CopyOrMove) << Qt::CopyAction;
    QTest::newRow("all") << int(CopyOrMove | Qt::LinkAction) << Qt::CopyAction;
    QTest::newRow("copy") << int(Qt::CopyAction) << Qt::CopyAction;
    QTest::newRow("move") << int(Qt::MoveAction) << Qt::IgnoreAction;
}

void tst_AddressTreeDragDrop::dropIsNeverReportedAsAMove()
{
    QFETCH(const int, possible);
    QFETCH(const Qt::DropAction, reported);
    write(outside(u"new"_s), "new");
    QVERIFY(showTree());
    setFiles({outside(u"new"_s)});
    enter(Qt::DropActions(possible));

    QCOMPARE(drop(emptyPlace(), Qt::DropActions(possible)), std::optional(reported));

    QCOMPARE(bytes(path(u"new"_s)), "new");
}

void tst_AddressTreeDragDrop::dropOfSomethingElseIsRefused()
{
    clipboard()->setText(u"before"_s);
    QVERIFY(showTree());
    m_data.setText(u"text"_s);
    QVERIFY(!drop(emptyPlace()));
    QCOMPARE(clipboard()->text(), u"before"_s);
}

void tst_AddressTreeDragDrop::dropWithoutAFolderDoesNothing()
{
    write(outside(u"new"_s), "new");
    QVERIFY(Input::show(tree.get()));
    setFiles({outside(u"new"_s)});
    enter();
    drop(emptyPlace());
    QVERIFY(QDir::current().isEmpty());
    QCOMPARE(bytes(outside(u"new"_s)), "new");
}

void tst_AddressTreeDragDrop::actionOfAnEarlierDragIsForgotten()
{
    const QTemporaryDir other(u"/var/tmp/tst-XXXXXX"_s);
    write(other.filePath(u"other"_s), "other");
    write(outside(u"new"_s), "new");
    QVERIFY(showTree());

    // Dragged in and away again.
    setFiles({outside(u"new"_s)});
    QCOMPARE(enter(), Qt::MoveAction);
    setFiles({other.filePath(u"other"_s)});
    drop(emptyPlace());
    QCOMPARE(bytes(path(u"other"_s)), "other");
    QCOMPARE(bytes(other.filePath(u"other"_s)), "other");

    setFiles({outside(u"new"_s)});
    drop(emptyPlace());
    QCOMPARE(bytes(path(u"new"_s)), "new");
    QVERIFY(!QFile::exists(outside(u"new"_s)));
}

void tst_AddressTreeDragDrop::actionIsRememberedFromTheEntering()
{
    const QTemporaryDir other(u"/var/tmp/tst-XXXXXX"_s);
    write(outside(u"new"_s), "new");
    QVERIFY(showTree());
    setFiles({outside(u"new"_s)});
    QCOMPARE(enter(), Qt::MoveAction);
    tree->setRootPath(other.path());
    drop(emptyPlace());
    QCOMPARE(bytes(other.filePath(u"new"_s)), "new");
    QVERIFY(!QFile::exists(outside(u"new"_s)));
}

void tst_AddressTreeDragDrop::folderIsNotMovedIntoItself_data()
{
    QTest::addColumn<QString>("name"); // dropped on
    QTest::addColumn<bool>("isReported");

    QTest::newRow("where it is") << QString() << false;
    QTest::newRow("on itself") << u"docs"_s << true;
    QTest::newRow("on a folder in it") << u"docs/sub"_s << true;
    QTest::newRow("on a file in it") << u"docs/inner.txt"_s << true;
    QTest::newRow("on a file beside it") << u"alpha.txt"_s << false;
}

void tst_AddressTreeDragDrop::folderIsNotMovedIntoItself()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isReported);
    QVERIFY(QDir(root()).mkdir(u"docs/sub"_s));
    QVERIFY(showTree());
    tree->expand(index(u"docs"_s));
    QTRY_COMPARE(model()->rowCount(index(u"docs"_s)), 2);
    setFiles({path(u"docs"_s)});
    enter();

    const QPoint pos = name.isEmpty() ? emptyPlace() : center(name);
    if (isReported) {
        QString title;
        PopupDriver driver([&title](QMessageBox *box) { title = box->windowTitle(); });
        drop(pos);
        QCOMPARE(title, u"Copy Error"_s);
    } else {
        const PopupBan noBox;
        drop(pos);
    }

    QCOMPARE(bytes(path(u"docs/inner.txt"_s)), "docs/inner.txt");
    QCOMPARE(QDir(path(u"docs"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{u"inner.txt"_s, u"sub"_s}));
    QVERIFY(QDir(path(u"docs/sub"_s)).isEmpty());
}

void tst_AddressTreeDragDrop::treeMayDieInTheDrop()
{
    write(outside(u"alpha.txt"_s), "new");
    QVERIFY(showTree());
    setFiles({outside(u"alpha.txt"_s)});
    enter();
    // The box asks whether to replace the file.
    PopupDriver driver([this](QMessageBox *) { tree.reset(); });
    drop(emptyPlace());
    QVERIFY(driver.hasRun());
    QCOMPARE(bytes(path(u"alpha.txt"_s)), "alpha.txt");
    QCOMPARE(bytes(outside(u"alpha.txt"_s)), "new");
}

void tst_AddressTreeDragDrop::dragCarriesTheSelectedFiles()
{
    QVERIFY(showTree());
    select({u"docs"_s, u"alpha.txt"_s});
    const std::unique_ptr<QMimeData> data(
        model()->mimeData(tree->selectionModel()->selectedIndexes()));
    QCOMPARE(data->urls(), (QList<QUrl>{QUrl::fromLocalFile(path(u"docs"_s)),
                                        QUrl::fromLocalFile(path(u"alpha.txt"_s))}));
    QVERIFY(index(u"docs"_s).flags().testFlag(Qt::ItemIsDragEnabled));
    QVERIFY(model()->supportedDragActions().testFlag(Qt::CopyAction));
    QVERIFY(!tree->dragDropOverwriteMode());
}

QTEST_MAIN(tst_AddressTreeDragDrop)

#include "tst_addresstreedragdrop.moc"
