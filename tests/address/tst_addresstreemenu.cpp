// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TreeFixture.h"

#include "support/PopupDriver.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

using namespace Qt::StringLiterals;

class tst_AddressTreeMenu : public TreeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void menuFitsWhatIsUnderThePointer_data();
    void menuFitsWhatIsUnderThePointer();
    void menuOpensAtThePointer();
    void menuOfAFileBelowAnother();

    void rowUnderThePointerBecomesTheSelection();
    void menuBesideTheRowsIsAboutTheShownFolder();
    void menuKeyWithoutASelectionIsAboutTheShownFolder();
    void menuKeyIsAboutTheSelection();

    void newMenuSurvivesEveryMenu();
    void newMenuTakesTheActionsOfTheHost();
    void actionsWorkFromTheMenu();
    void noMenuIsLeft();
    void treeMayDieInTheMenu();

private:
    /// The entries of a menu, with "-" for separators and those of sub-menus in brackets.
    static QStringList entries(const QMenu *menu)
    {
        QStringList result;
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions) {
            if (action->isSeparator())
                result.append(u"-"_s);
            else if (action->menu())
                result.append(action->text() + u'(' + entries(action->menu()).join(u',') + u')');
            else
                result.append(action->text());
        }
        return result;
    }

    QStringList requestMenu(QPoint pos) const
    {
        QStringList result;
        PopupDriver driver([&result](QMenu *menu) { result = entries(menu); });
        Q_EMIT tree->customContextMenuRequested(pos);
        return result;
    }
};

void tst_AddressTreeMenu::menuFitsWhatIsUnderThePointer_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("name"); // under the pointer; empty beside the rows
    QTest::addColumn<QString>("entries");

    const QString file = u"Cut;Copy;Paste;-;Delete;Rename;-;Open with Default;"
                         "Copy Path(Copy Absolute Path,Copy Relative Path);Open in Explorer"_s;
    const QString folder = u"Cut;Copy;Paste;-;Delete;Rename;-;Open in Explorer;New(Folder)"_s;
    const QString several = u"Cut;Copy;Paste;-;Delete;-;Open in Explorer"_s;
    const QString empty = u"Paste;-;New(Folder)"_s;
    QTest::newRow("file") << QStringList{u"alpha.txt"_s} << u"alpha.txt"_s << file;
    QTest::newRow("file, nothing selected") << QStringList() << u"alpha.txt"_s << file;
    QTest::newRow("file of the host")
        << QStringList{u"beta.log"_s} << u"beta.log"_s << u"Open;"_s + file;
    QTest::newRow("folder") << QStringList{u"docs"_s} << u"docs"_s << folder;
    QTest::newRow("folder, nothing selected") << QStringList() << u"docs"_s << folder;
    QTest::newRow("folder with the suffix of the host's files")
        << QStringList{u"folder.log"_s} << u"folder.log"_s << folder;
    QTest::newRow("two files") << QStringList{u"alpha.txt"_s, u"gamma.doc"_s} << u"gamma.doc"_s
                               << several;
    QTest::newRow("two files of the host")
        << QStringList{u"alpha.txt"_s, u"beta.log"_s} << u"beta.log"_s << several;
    QTest::newRow("file and folder")
        << QStringList{u"alpha.txt"_s, u"docs"_s} << u"alpha.txt"_s << several;
    QTest::newRow("beside the rows") << QStringList() << QString() << empty;
    QTest::newRow("beside the rows, one selected")
        << QStringList{u"alpha.txt"_s} << QString() << empty;
    QTest::newRow("beside the rows, two selected")
        << QStringList{u"alpha.txt"_s, u"docs"_s} << QString() << empty;
}

void tst_AddressTreeMenu::menuFitsWhatIsUnderThePointer()
{
    QFETCH(const QStringList, selected);
    QFETCH(const QString, name);
    QFETCH(const QString, entries);
    QVERIFY(QDir(root()).mkdir(u"folder.log"_s));
    tree->setSuffixes({u"log"_s});
    tree->setRootPath(root());
    tree->resize(700, 400);
    QVERIFY(Input::show(tree.get()));
    QTRY_COMPARE(names().value(1), u"folder.log"_s);
    QTRY_COMPARE(names().size(), 5);
    select(selected);

    QCOMPARE(requestMenu(name.isEmpty() ? emptyPlace() : center(name)).join(u';'), entries);
}

void tst_AddressTreeMenu::menuOpensAtThePointer()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    const QPoint pos = center(u"alpha.txt"_s);
    QPoint shownAt;
    PopupDriver driver([&shownAt](QMenu *menu) { shownAt = menu->pos(); });
    Q_EMIT tree->customContextMenuRequested(pos);
    QCOMPARE(shownAt, tree->viewport()->mapToGlobal(pos));
}

void tst_AddressTreeMenu::menuOfAFileBelowAnother()
{
    QVERIFY(showTree());
    tree->expand(index(u"docs"_s));
    QTRY_COMPARE(model()->rowCount(index(u"docs"_s)), 1);
    QVERIFY(requestMenu(center(u"docs/inner.txt"_s)).contains(u"Open with Default"_s));
    QCOMPARE(tree->currentPath(), path(u"docs/inner.txt"_s));
}

// Or Delete would hit another file than the one that the menu stands on.
void tst_AddressTreeMenu::rowUnderThePointerBecomesTheSelection()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s, u"docs"_s});

    requestMenu(center(u"gamma.doc"_s));

    QCOMPARE(tree->selectedPaths(), QStringList{path(u"gamma.doc"_s)});
    QCOMPARE(tree->currentPath(), path(u"gamma.doc"_s));
}

void tst_AddressTreeMenu::menuBesideTheRowsIsAboutTheShownFolder()
{
    write(outside(u"new"_s), "new");
    putFilesOnClipboard({outside(u"new"_s)});
    QVERIFY(showTree());
    select({u"docs"_s});

    PopupDriver driver([](QMenu *menu) { menu->actions().at(0)->trigger(); });
    Q_EMIT tree->customContextMenuRequested(emptyPlace());

    QCOMPARE(bytes(path(u"new"_s)), "new");
    QVERIFY(!QFile::exists(path(u"docs/new"_s)));
}

void tst_AddressTreeMenu::menuKeyWithoutASelectionIsAboutTheShownFolder()
{
    QVERIFY(showTree());
    QStringList shown;
    PopupDriver driver([&shown](QMenu *menu) { shown = entries(menu); });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            tree->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(tree.get(), &event);
    QCOMPARE(shown, (QStringList{u"Paste"_s, u"-"_s, u"New(Folder)"_s}));
}

void tst_AddressTreeMenu::menuKeyIsAboutTheSelection()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    QStringList shown;
    PopupDriver driver([&shown](QMenu *menu) { shown = entries(menu); });
    const QPoint pos = tree->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, pos, tree->mapToGlobal(pos));
    QCoreApplication::sendEvent(tree.get(), &event);
    QVERIFY(shown.contains(u"Open with Default"_s));
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"alpha.txt"_s)});
}

void tst_AddressTreeMenu::newMenuSurvivesEveryMenu()
{
    QVERIFY(showTree());
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(requestMenu(emptyPlace()).constLast(), u"New(Folder)"_s);
        QCOMPARE(requestMenu(center(u"docs"_s)).constLast(), u"New(Folder)"_s);
    }
}

void tst_AddressTreeMenu::newMenuTakesTheActionsOfTheHost()
{
    QVERIFY(showTree());
    tree->addNewAction(nullptr);
    QAction first(u"Text && more"_s);
    auto second = std::make_unique<QAction>(u"Picture"_s);
    tree->addNewAction(&first);
    tree->addNewAction(second.get());
    QCOMPARE(requestMenu(emptyPlace()).constLast(), u"New(Folder,Text && more,Picture)"_s);

    second.reset();
    QCOMPARE(requestMenu(emptyPlace()).constLast(), u"New(Folder,Text && more)"_s);
    QCOMPARE(first.parent(), nullptr);
    tree.reset();
    QCOMPARE(first.text(), u"Text && more"_s);
}

void tst_AddressTreeMenu::actionsWorkFromTheMenu()
{
    QVERIFY(showTree());
    PopupDriver driver([](QMenu *menu) {
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == u"Delete"_s)
                action->trigger();
        }
    });
    Q_EMIT tree->customContextMenuRequested(center(u"gamma.doc"_s));
    QVERIFY(!QFile::exists(path(u"gamma.doc"_s)));
    QVERIFY(QFile::exists(path(u"alpha.txt"_s)));
}

void tst_AddressTreeMenu::noMenuIsLeft()
{
    QVERIFY(showTree());
    const qsizetype before = tree->findChildren<QObject *>().size();
    requestMenu(emptyPlace());
    requestMenu(center(u"alpha.txt"_s));
    QCOMPARE(tree->findChildren<QMenu *>().size(), 1); // "New"
    QVERIFY(tree->findChildren<QObject *>().size() <= before + 1);
}

void tst_AddressTreeMenu::treeMayDieInTheMenu()
{
    QVERIFY(showTree());
    PopupDriver driver([this](QMenu *) { tree.reset(); });
    Q_EMIT tree->customContextMenuRequested(center(u"alpha.txt"_s));
    QVERIFY(driver.hasRun());
}

QTEST_MAIN(tst_AddressTreeMenu)

#include "tst_addresstreemenu.moc"
