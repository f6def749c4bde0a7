// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsFixture.h"

#include "support/Input.h"

#include "DockLayout.h"
#include "Documents.h"
#include "ObjectTree.h"
#include "PanelsWindow.h"
#include "PropertyTable.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace Qt::StringLiterals;

namespace {

QTreeWidgetItem *itemOf(QTreeWidget *tree, int column, const QString &text)
{
    return tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive, column).value(0);
}

} // namespace

/// The six views, each by itself.
class tst_PanelsViews final : public PanelsFixture
{
    Q_OBJECT

private Q_SLOTS:
    void everyViewHasATitleAnIconOfItsOwnAndAnAccessibleName();
    void theObjectsAreThoseOfTheWindow();
    void aChosenObjectShowsItsProperties();
    void everyObjectCanBeChosen();
    void anObjectThatGoesLeavesNoProperties();
    void refreshingFindsNewObjectsAndKeepsTheChosenOne();
    void propertiesAreReadOnlyAndTellDynamicOnes();
    void messagesAreListedUntilCleared();
    void theOutlineListsHeadingsAndMovesToThem();
    void theOutlineSaysWhatAPictureIs();
    void everyNamedColourIsListedWithASample();
    void aDoubleClickCopiesTheNameOfAColour();
    void keysCopyTheNameOfAColour();
    void commandsOfAViewAreInItsMenu_data();
    void commandsOfAViewAreInItsMenu();
    void everyMenuEntryHasAKeyOfItsOwn();
    void aNoteStandsAtTheLeadingEdge();

private:
    QTreeWidget *tree(const QString &name) const
    {
        return window()->findChild<QTreeWidget *>(name);
    }
};

void tst_PanelsViews::everyViewHasATitleAnIconOfItsOwnAndAnAccessibleName()
{
    QList<QImage> icons;
    const QList<QWidget *> views = dockLayout()->views();
    QCOMPARE(views.size(), 6);
    for (const QWidget *view : views) {
        QVERIFY(!view->windowTitle().isEmpty());
        const QWidget *content = view->focusProxy() ? view->focusProxy() : view;
        QCOMPARE(content->accessibleName(), view->windowTitle());
        QCOMPARE_NE(content->focusPolicy(), Qt::NoFocus);
        const QImage icon = view->windowIcon().pixmap(24).toImage();
        QCOMPARE(icon.size(), QSize(24, 24));
        QVERIFY(!icons.contains(icon));
        icons.append(icon);
    }
}

void tst_PanelsViews::theObjectsAreThoseOfTheWindow()
{
    const QTreeWidgetItem *root = tree(u"objectTree"_s)->topLevelItem(0);
    QCOMPARE(tree(u"objectTree"_s)->topLevelItemCount(), 1);
    QCOMPARE(root->text(0), u"PanelsWindow"_s);
    QCOMPARE(root->text(1), u"panelsWindow"_s);
    QVERIFY(root->isExpanded());
    const QTreeWidgetItem *docks = itemOf(tree(u"objectTree"_s), 1, u"docks"_s);
    QVERIFY(docks);
    QCOMPARE(docks->text(0), u"VornFrame::DockContainer"_s);
    QCOMPARE(docks->parent(), root);
}

void tst_PanelsViews::aChosenObjectShowsItsProperties()
{
    QTreeWidget *objects = tree(u"objectTree"_s);
    QTreeWidgetItem *docks = itemOf(objects, 1, u"docks"_s);
    objects->scrollToItem(docks);
    Input::click(objects->viewport(), objects->visualItemRect(docks).center());
    QTreeWidget *properties = tree(u"propertyTable"_s);
    const QTreeWidgetItem *name = itemOf(properties, 0, u"objectName"_s);
    QVERIFY(name);
    QCOMPARE(name->text(1), u"QString"_s);
    QCOMPARE(name->text(2), u"docks"_s);
    QCOMPARE(itemOf(properties, 0, u"width"_s)->text(2), QString::number(container()->width()));
    QCOMPARE(itemOf(properties, 0, u"frameShape"_s)->text(2), u"NoFrame"_s);
}

/// Whatever its properties are; a warning would fail this.
void tst_PanelsViews::everyObjectCanBeChosen()
{
    openTexts({u"a.txt"_s});
    QTreeWidget *objects = tree(u"objectTree"_s);
    window()->findChild<ObjectTree *>()->refresh();
    int count = 0;
    for (QTreeWidgetItemIterator it(objects); *it; ++it) {
        objects->setCurrentItem(*it);
        QCOMPARE_GT(tree(u"propertyTable"_s)->topLevelItemCount(), 0);
        ++count;
    }
    QCOMPARE_GT(count, 200);
}

void tst_PanelsViews::anObjectThatGoesLeavesNoProperties()
{
    auto *object = new QObject(window());
    object->setObjectName(u"mortal"_s);
    window()->findChild<ObjectTree *>()->refresh();
    QTreeWidget *objects = tree(u"objectTree"_s);
    QTreeWidgetItem *item = itemOf(objects, 1, u"mortal"_s);
    objects->setCurrentItem(item);
    QCOMPARE(tree(u"propertyTable"_s)->topLevelItemCount(), 1);
    delete object;
    QCOMPARE(tree(u"propertyTable"_s)->topLevelItemCount(), 0);
    // Its line is there until the next refresh.
    objects->setCurrentItem(objects->topLevelItem(0));
    objects->setCurrentItem(item);
    QCOMPARE(tree(u"propertyTable"_s)->topLevelItemCount(), 0);
    window()->findChild<ObjectTree *>()->refresh();
    QVERIFY(!itemOf(objects, 1, u"mortal"_s));
}

void tst_PanelsViews::refreshingFindsNewObjectsAndKeepsTheChosenOne()
{
    QTreeWidget *objects = tree(u"objectTree"_s);
    objects->setCurrentItem(itemOf(objects, 1, u"docks"_s));
    QObject added(window());
    added.setObjectName(u"added"_s);
    QVERIFY(!itemOf(objects, 1, u"added"_s));
    container()->setToolTip(u"new tip"_s);
    QTest::keyClick(objects, Qt::Key_F5);
    QVERIFY(itemOf(objects, 1, u"added"_s));
    QCOMPARE(objects->currentItem()->text(1), u"docks"_s);
    QCOMPARE(itemOf(tree(u"propertyTable"_s), 0, u"toolTip"_s)->text(2), u"new tip"_s);
}

void tst_PanelsViews::propertiesAreReadOnlyAndTellDynamicOnes()
{
    container()->setProperty("ownProperty", 42);
    window()->findChild<PropertyTable *>()->setObject(container());
    QTreeWidget *properties = tree(u"propertyTable"_s);
    const QTreeWidgetItem *item = itemOf(properties, 0, u"ownProperty"_s);
    QVERIFY(item);
    QCOMPARE(item->text(1), u"int"_s);
    QCOMPARE(item->text(2), u"42"_s);
    QCOMPARE(properties->editTriggers(), QAbstractItemView::NoEditTriggers);
}

void tst_PanelsViews::messagesAreListedUntilCleared()
{
    auto *text = window()->findChild<QPlainTextEdit *>(u"messageText"_s);
    // What came while the window was made.
    QCoreApplication::processEvents();
    action(u"clearMessages"_s)->trigger();
    QCOMPARE(text->toPlainText(), QString());
    QTest::ignoreMessage(QtInfoMsg, "some <b>news</b>");
    qInfo("some <b>news</b>");
    QTest::ignoreMessage(QtWarningMsg, "careful");
    qWarning("careful");
    QTRY_COMPARE(text->toPlainText(), u"Information: some <b>news</b>\nWarning: careful"_s);
    QVERIFY(text->isReadOnly());
    const QList<QPushButton *> buttons =
        view(u"messages"_s)->findChildren<QPushButton *>(Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.size(), 1);
    Input::click(buttons.constFirst());
    QCOMPARE(text->toPlainText(), QString());
}

void tst_PanelsViews::theOutlineListsHeadingsAndMovesToThem()
{
    const QByteArray lines = QByteArray("line\n").repeated(100);
    window()->openFiles({createFile(u"a.md"_s, "# A\n## B\n" + lines + "## C\n" + lines)});
    QTreeWidget *outline = tree(u"outline"_s);
    QCOMPARE(outline->topLevelItemCount(), 1);
    QTreeWidgetItem *top = outline->topLevelItem(0);
    QCOMPARE(top->text(0), u"A"_s);
    QCOMPARE(top->childCount(), 2);
    QCOMPARE(top->child(1)->text(0), u"C"_s);
    Input::click(outline->viewport(), outline->visualItemRect(top->child(1)).center());
    const auto *text = window()->documents()->currentPage()->findChild<QPlainTextEdit *>();
    QCOMPARE(text->textCursor().blockNumber(), 102);
    QCOMPARE(text->textCursor().selectedText(), u"## C"_s);
    QCOMPARE(text->verticalScrollBar()->value(), 102);
    // Return does the same.
    outline->setCurrentItem(top);
    QTest::keyClick(outline, Qt::Key_Return);
    QCOMPARE(text->textCursor().blockNumber(), 0);
}

void tst_PanelsViews::theOutlineSaysWhatAPictureIs()
{
    window()->openFiles({createPicture(u"a.png"_s, {30, 20})});
    const QTreeWidget *outline = tree(u"outline"_s);
    QCOMPARE(outline->topLevelItemCount(), 3);
    QCOMPARE(outline->topLevelItem(0)->text(0), u"Size: 30 × 20 pixels"_s);
    QCOMPARE(outline->topLevelItem(2)->text(0), u"Format: PNG"_s);
    Input::click(outline->viewport(), outline->visualItemRect(outline->topLevelItem(0)).center());
}

void tst_PanelsViews::everyNamedColourIsListedWithASample()
{
    const auto *list = window()->findChild<QListWidget *>(u"colorList"_s);
    QCOMPARE(list->count(), int(QColor::colorNames().size()));
    for (int i = 0; i < list->count(); ++i) {
        const QString name = list->item(i)->text();
        const QImage sample = list->item(i)->icon().pixmap(16).toImage();
        QCOMPARE(sample.size(), QSize(16, 16));
        QCOMPARE(sample.pixelColor(0, 0), QColor(125, 125, 125));
        if (QColor(name).alpha() == 255)
            QCOMPARE(sample.pixelColor(8, 8), QColor(name));
    }
}

void tst_PanelsViews::aDoubleClickCopiesTheNameOfAColour()
{
    dockLayout()->activate(view(u"colors"_s));
    auto *list = window()->findChild<QListWidget *>(u"colorList"_s);
    const QListWidgetItem *item = list->findItems(u"azure"_s, Qt::MatchExactly).constFirst();
    Input::doubleClick(list->viewport(), list->visualItemRect(item).center());
    QCOMPARE(QGuiApplication::clipboard()->text(), u"azure"_s);
    QCOMPARE(window()->findChild<ToolView *>(u"colors"_s)->note(), u"Copied: azure"_s);
}

void tst_PanelsViews::keysCopyTheNameOfAColour()
{
    QVERIFY(!action(u"copyColorName"_s)->isEnabled());
    QTest::keyClick(window(), Qt::Key_3, Qt::ControlModifier);
    auto *list = window()->findChild<QListWidget *>(u"colorList"_s);
    QVERIFY(list->hasFocus());
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(QGuiApplication::clipboard()->text(), list->item(1)->text());
    list->setCurrentRow(2);
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), list->item(2)->text());
}

void tst_PanelsViews::commandsOfAViewAreInItsMenu_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<QString>("view");
    QTest::addColumn<QStringList>("texts");

    const QString minimize = u"minimize to bar"_s;
    QTest::newRow("objects") << 0 << u"objects"_s << QStringList{minimize, {}, u"&Refresh"_s};
    QTest::newRow("properties") << 0 << u"properties"_s << QStringList{minimize};
    QTest::newRow("colours") << 0 << u"colors"_s << QStringList{minimize, {}, u"&Copy Name"_s};
    QTest::newRow("outline") << 1 << u"outline"_s << QStringList{minimize};
    QTest::newRow("messages") << 2 << u"messages"_s << QStringList{minimize, {}, u"C&lear"_s};
    QTest::newRow("scratch pad") << 2 << u"scratch"_s << QStringList{minimize};
}

void tst_PanelsViews::commandsOfAViewAreInItsMenu()
{
    QFETCH(const int, area);
    QFETCH(const QString, view);
    using VornFrame::DockContainer;
    const VornFrame::DockPanelWidget *side = container()->panelWidget(
        DockContainer::DockArea(area));
    const QMenu *menu = side->menu(this->view(view));
    QVERIFY(menu);
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *one : actions)
        texts.append(one->text());
    QTEST(texts, "texts");
}

void tst_PanelsViews::everyMenuEntryHasAKeyOfItsOwn()
{
    const QList<QAction *> menus = window()->menuBar()->actions();
    QCOMPARE(menus.size(), 3);
    QStringList bar;
    for (const QAction *menu : menus) {
        bar.append(QKeySequence::mnemonic(menu->text()).toString());
        QStringList keys;
        const QList<QAction *> entries = menu->menu()->actions();
        for (const QAction *entry : entries) {
            if (!entry->isSeparator())
                keys.append(QKeySequence::mnemonic(entry->text()).toString());
        }
        QVERIFY(!keys.contains(QString()));
        QCOMPARE(keys.removeDuplicates(), 0);
    }
    QVERIFY(!bar.contains(QString()));
    QCOMPARE(bar.removeDuplicates(), 0);
}

void tst_PanelsViews::aNoteStandsAtTheLeadingEdge()
{
    const auto *note = view(u"messages"_s)->findChild<QLabel *>();
    QCOMPARE(note->alignment(), Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
    window()->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(note->alignment(), Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
}

QTEST_MAIN(tst_PanelsViews)

#include "tst_panelsviews.moc"
