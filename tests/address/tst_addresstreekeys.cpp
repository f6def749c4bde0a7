// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TreeFixture.h"

#include "support/PopupDriver.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class tst_AddressTreeKeys : public TreeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void keyTriggersItsActionOnce_data();
    void keyTriggersItsActionOnce();
    void keyWithOtherModifiersTriggersNothing_data();
    void keyWithOtherModifiersTriggersNothing();
    void disabledActionIsNotTriggered_data();
    void disabledActionIsNotTriggered();
    void otherKeysGoToTheTreeView();

    void keysOfTheWindowDoNotGetInTheWay_data();
    void keysOfTheWindowDoNotGetInTheWay();
    void otherWidgetsKeepTheirKeys_data();
    void otherWidgetsKeepTheirKeys();
    void editorOfANameKeepsItsKeys_data();
    void editorOfANameKeepsItsKeys();

    void noKeySelectsTheShownFolder_data();
    void noKeySelectsTheShownFolder();
    void arrowGoesToTheFirstRow_data();
    void arrowGoesToTheFirstRow();
    void emptyFolderBearsAllKeys();
    void typingFindsARow();

private:
    /// Which actions were triggered, in their order.
    void logActions();
    void showInWindow();

    QStringList m_log;
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_edit = nullptr;
};

namespace {

void addKeys()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");

    QTest::newRow("Ctrl+C") << u"Copy"_s << int(Qt::Key_C) << int(Qt::ControlModifier);
    QTest::newRow("Ctrl+V") << u"Paste"_s << int(Qt::Key_V) << int(Qt::ControlModifier);
    QTest::newRow("Ctrl+X") << u"Cut"_s << int(Qt::Key_X) << int(Qt::ControlModifier);
    QTest::newRow("Del") << u"Delete"_s << int(Qt::Key_Delete) << int(Qt::NoModifier);
    QTest::newRow("F2") << u"Rename"_s << int(Qt::Key_F2) << int(Qt::NoModifier);
}

} // namespace

void tst_AddressTreeKeys::cleanup()
{
    if (m_window)
        tree->setParent(nullptr);
    m_window.reset();
    m_log.clear();
    TreeFixture::cleanup();
}

void tst_AddressTreeKeys::logActions()
{
    const QList<QAction *> actions = tree->actions();
    for (QAction *action : actions) {
        action->disconnect(tree.get());
        connect(action, &QAction::triggered, this,
                [this, action] { m_log.append(action->text()); });
    }
}

void tst_AddressTreeKeys::showInWindow()
{
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    m_edit = new QLineEdit(m_window.get());
    layout->addWidget(m_edit);
    layout->addWidget(tree.get());
    tree->setRootPath(root());
    m_window->resize(700, 400);
    QVERIFY(Input::show(m_window.get()));
    QTRY_COMPARE(rowCount(), 4);
    tree->setFocus();
}

void tst_AddressTreeKeys::keyTriggersItsActionOnce_data()
{
    addKeys();
}

void tst_AddressTreeKeys::keyTriggersItsActionOnce()
{
    QFETCH(const QString, text);
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    putFilesOnClipboard({path(u"beta.log"_s)});
    logActions();

    QTest::keyClick(tree->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(m_log, QStringList{text});

    QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCoreApplication::sendEvent(tree.get(), &press);
    QCOMPARE(m_log, (QStringList{text, text}));
    QCOMPARE(action(text)->shortcut(), QKeySequence(key | modifiers));
}

void tst_AddressTreeKeys::keyWithOtherModifiersTriggersNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");

    for (const int key : {Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Delete, Qt::Key_F2}) {
        const int own = key == Qt::Key_Delete || key == Qt::Key_F2 ? Qt::NoModifier
                                                                   : Qt::ControlModifier;
        for (const int modifiers :
             {int(Qt::NoModifier), int(Qt::ControlModifier), int(Qt::ShiftModifier),
              int(Qt::AltModifier), int(Qt::MetaModifier),
              int(Qt::ControlModifier | Qt::ShiftModifier),
              int(Qt::ControlModifier | Qt::AltModifier)}) {
            if (modifiers != own)
                QTest::addRow("%x with %x", unsigned(key), unsigned(modifiers)) << key << modifiers;
        }
    }
}

void tst_AddressTreeKeys::keyWithOtherModifiersTriggersNothing()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    putFilesOnClipboard({path(u"beta.log"_s)});
    logActions();

    QTest::keyClick(tree->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCoreApplication::sendEvent(tree.get(), &press);

    QCOMPARE(m_log, QStringList());
}

void tst_AddressTreeKeys::disabledActionIsNotTriggered_data()
{
    addKeys();
}

void tst_AddressTreeKeys::disabledActionIsNotTriggered()
{
    QFETCH(const QString, text);
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    putFilesOnClipboard({path(u"beta.log"_s)});
    logActions();
    action(text)->setEnabled(false);

    QTest::keyClick(tree->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));

    QCOMPARE(m_log, QStringList());
}

void tst_AddressTreeKeys::otherKeysGoToTheTreeView()
{
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    logActions();

    QTest::keyClick(tree->windowHandle(), Qt::Key_Down);
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"beta.log"_s)});
    QTest::keyClick(tree->windowHandle(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(tree->selectedPaths().size(), 2);
    QTest::keyClick(tree->windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(tree->selectedPaths().size(), 4);
    QCOMPARE(m_log, QStringList());
}

void tst_AddressTreeKeys::keysOfTheWindowDoNotGetInTheWay_data()
{
    addKeys();
}

void tst_AddressTreeKeys::keysOfTheWindowDoNotGetInTheWay()
{
    QFETCH(const QString, text);
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    showInWindow();
    QAction ofTheWindow;
    ofTheWindow.setShortcut(QKeySequence(key | modifiers));
    m_window->addAction(&ofTheWindow);
    QSignalSpy triggered(&ofTheWindow, &QAction::triggered);
    select({u"alpha.txt"_s});
    putFilesOnClipboard({path(u"beta.log"_s)});
    logActions();

    QTest::keyClick(m_window->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(m_log, QStringList{text});
    QCOMPARE(triggered.size(), 0);
}

void tst_AddressTreeKeys::otherWidgetsKeepTheirKeys_data()
{
    addKeys();
}

void tst_AddressTreeKeys::otherWidgetsKeepTheirKeys()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    showInWindow();
    select({u"alpha.txt"_s});
    putFilesOnClipboard({path(u"beta.log"_s)});
    logActions();
    m_edit->setText(u"text"_s);
    m_edit->setFocus();
    m_edit->selectAll();

    QTest::keyClick(m_window->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));

    QCOMPARE(m_log, QStringList());
    const bool takesText = key == Qt::Key_Delete || key == Qt::Key_X;
    QCOMPARE(m_edit->text().isEmpty(), takesText);
}

void tst_AddressTreeKeys::editorOfANameKeepsItsKeys_data()
{
    addKeys();
}

void tst_AddressTreeKeys::editorOfANameKeepsItsKeys()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QVERIFY(showTree());
    select({u"alpha.txt"_s});
    action(u"Rename"_s)->trigger();
    const QPointer<QLineEdit> editor = tree->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTRY_VERIFY(editor->hasFocus());
    clipboard()->setText(u"text"_s);
    logActions();

    QTest::keyClick(tree->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));

    QCOMPARE(m_log, QStringList());
    QVERIFY(editor);
    const QString expected = key == Qt::Key_V                            ? u"text"_s
                             : key == Qt::Key_Delete || key == Qt::Key_X ? QString()
                                                                         : u"alpha.txt"_s;
    QCOMPARE(editor->text(), expected);
    QTest::keyClick(tree->windowHandle(), Qt::Key_Escape);
    QVERIFY(QFile::exists(path(u"alpha.txt"_s)));
}

void tst_AddressTreeKeys::noKeySelectsTheShownFolder_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");

    for (const int key : {Qt::Key_Space, Qt::Key_Left, Qt::Key_Up, Qt::Key_Return, Qt::Key_Select,
                          Qt::Key_Backspace, Qt::Key_PageUp, Qt::Key_Asterisk, Qt::Key_Minus}) {
        for (const int modifiers :
             {int(Qt::NoModifier), int(Qt::ControlModifier), int(Qt::ShiftModifier)})
            QTest::addRow("%x with %x", unsigned(key), unsigned(modifiers)) << key << modifiers;
    }
}

void tst_AddressTreeKeys::noKeySelectsTheShownFolder()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QVERIFY(showTree());
    QCOMPARE(tree->currentIndex(), tree->rootIndex());

    QTest::keyClick(tree->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));

    // Not with the eyes of the tree, which overlooks it.
    const QModelIndexList rows = tree->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        QCOMPARE(row.parent(), tree->rootIndex());
    QVERIFY(tree->currentIndex() == tree->rootIndex()
            || tree->currentIndex().parent() == tree->rootIndex());
}

void tst_AddressTreeKeys::arrowGoesToTheFirstRow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");

    QTest::newRow("down") << int(Qt::Key_Down) << u"docs"_s;
    QTest::newRow("up") << int(Qt::Key_Up) << u"docs"_s;
    QTest::newRow("left") << int(Qt::Key_Left) << u"docs"_s;
    QTest::newRow("right") << int(Qt::Key_Right) << u"docs"_s;
    QTest::newRow("home") << int(Qt::Key_Home) << u"docs"_s;
    QTest::newRow("end") << int(Qt::Key_End) << u"gamma.doc"_s;
}

void tst_AddressTreeKeys::arrowGoesToTheFirstRow()
{
    QFETCH(const int, key);
    QFETCH(const QString, name);
    QVERIFY(showTree());
    QTRY_COMPARE(names().constFirst(), u"docs"_s);

    QTest::keyClick(tree->windowHandle(), Qt::Key(key));

    QCOMPARE(tree->selectedPaths(), QStringList{path(name)});
    QCOMPARE(tree->currentPath(), path(name));
}

void tst_AddressTreeKeys::emptyFolderBearsAllKeys()
{
    const PopupBan noBox;
    QVERIFY(QDir(root()).mkdir(u"empty"_s));
    tree->setRootPath(path(u"empty"_s));
    QVERIFY(Input::show(tree.get()));
    for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home,
                          Qt::Key_End, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_A, Qt::Key_Delete,
                          Qt::Key_F2, Qt::Key_Tab, Qt::Key_Return}) {
        QTest::keyClick(tree->windowHandle(), Qt::Key(key));
        QVERIFY(!tree->selectionModel()->hasSelection());
    }
    QTest::keyClick(tree->windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QVERIFY(!tree->selectionModel()->hasSelection());
    QVERIFY(QFile::exists(path(u"empty"_s)));
}

void tst_AddressTreeKeys::typingFindsARow()
{
    QVERIFY(showTree());
    QTest::keyClick(tree->windowHandle(), Qt::Key_Q);
    QCOMPARE(tree->selectedPaths(), QStringList());
    QCOMPARE(tree->currentIndex(), tree->rootIndex());

    tree->keyboardSearch(QString()); // starts anew
    QTest::keyClick(tree->windowHandle(), Qt::Key_B);
    QCOMPARE(tree->selectedPaths(), QStringList{path(u"beta.log"_s)});
}

QTEST_MAIN(tst_AddressTreeKeys)

#include "tst_addresstreekeys.moc"
