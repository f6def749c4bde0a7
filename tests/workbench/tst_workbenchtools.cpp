// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchFixture.h"

#include "support/Input.h"
#include "support/ModalScript.h"

#include "DocumentLoader.h"
#include "FilterGallery.h"
#include "PictureDocument.h"
#include "TableDocument.h"
#include "TextDocument.h"
#include "WorkbenchWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTextBlock>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>
#include <QTreeWidget>
#include <QUndoStack>

#include <algorithm>

using namespace Qt::StringLiterals;

/// What the temporary pages and the search field do with real documents.
class tst_WorkbenchTools final : public WorkbenchFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void textTools();
    void pictureTools();
    void tableTools();
    void theClipboardServesTables();
    void clipboardCommandsAreThereWhereTheyCanWork();
    void undoAndRedoAreThereWhenThereIsSomething();
    void aCopyIsSaved();
    void openingAgainReadsWhatOthersWrote();
    void aFileThatIsRenamedInTheTreeStaysOpen();
    void aFolderThatIsRenamedInTheTreeTakesItsFilesAlong();
    void theOutlineSaysWhyItIsEmpty();
    void theOutlineStaysWhileItsHeadingsDo();
    void previewsAreMadeOncePerPicture();
    void theNamesOfFiltersFitTheirTiles();
    void searchesInATextRoundAndRound();
    void searchesInATable();
    void searchOffersFiltersForAPicture();
    void aFileThatOthersChangedIsOnlyReplacedWhenTheUserSaysSo();

private:
    QAction *command(const QString &name) const { return m_own->findChild<QAction *>(name); }
    void search(const QString &text) const;
    QByteArray bytesOf(const QString &name) const;
    void rename(const QString &name, const QString &newName) const;
    template <class Document>
    Document *shown() const
    {
        return qobject_cast<Document *>(m_own->tabs()->current());
    }

    std::unique_ptr<WorkbenchWindow> m_own;
};

void tst_WorkbenchTools::init()
{
    WorkbenchFixture::init();
    window()->close();
    m_own = std::make_unique<WorkbenchWindow>(QString(), &DocumentLoader::load);
    m_own->resize(780, 600);
    QVERIFY(Input::show(m_own.get()));
}

void tst_WorkbenchTools::cleanup()
{
    QToolTip::hideText();
    m_own.reset();
    WorkbenchFixture::cleanup();
}

void tst_WorkbenchTools::search(const QString &text) const
{
    auto *field = m_own->findChild<QLineEdit *>(u"searchField"_s);
    field->setFocus();
    field->setText(text);
    QTest::keyClick(field, Qt::Key_Return);
}

QByteArray tst_WorkbenchTools::bytesOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// As the tree does it.
void tst_WorkbenchTools::rename(const QString &name, const QString &newName) const
{
    auto *tree = m_own->findChild<QTreeView *>(u"folders"_s);
    auto *model = qobject_cast<QFileSystemModel *>(tree->model());
    QTRY_VERIFY(model->index(path(name)).isValid());
    QVERIFY(model->setData(model->index(path(name)), newName));
}

void tst_WorkbenchTools::textTools()
{
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "one\ntwo\n")));
    QPlainTextEdit *editor = shown<TextDocument>()->editor();
    command(u"upperCase"_s)->trigger();
    QCOMPARE(editor->toPlainText(), u"one\ntwo\n"_s);
    command(u"selectAll"_s)->trigger();
    command(u"upperCase"_s)->trigger();
    QCOMPARE(editor->toPlainText(), u"ONE\nTWO\n"_s);
    QVERIFY(editor->textCursor().hasSelection());
    command(u"undo"_s)->trigger();
    QCOMPARE(editor->toPlainText(), u"one\ntwo\n"_s);
    command(u"redo"_s)->trigger();
    command(u"lowerCase"_s)->trigger();
    QCOMPARE(editor->toPlainText().toLower(), u"one\ntwo\n"_s);
    const bool wraps = command(u"wordWrap"_s)->isChecked();
    QCOMPARE(wraps, editor->lineWrapMode() == QPlainTextEdit::WidgetWidth);
    command(u"wordWrap"_s)->trigger();
    QCOMPARE(editor->lineWrapMode() == QPlainTextEdit::WidgetWidth, !wraps);
    editor->document()->setModified(false);
}

void tst_WorkbenchTools::pictureTools()
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path(u"p.png"_s)));
    QVERIFY(m_own->openPath(path(u"p.png"_s)));
    auto *picture = shown<PictureDocument>();
    command(u"rotateLeft"_s)->trigger();
    QCOMPARE(picture->image().size(), QSize(20, 40));
    command(u"rotateRight"_s)->trigger();
    QCOMPARE(picture->image().size(), QSize(40, 20));
    QAction *filter = command(u"filter_invert"_s);
    const QImage before = filter->icon().pixmap(32).toImage();
    filter->trigger();
    QCOMPARE(picture->image().pixelColor(3, 3), QColor(Qt::cyan));
    // The previews are of the picture as it is.
    QVERIFY(filter->icon().pixmap(32).toImage() != before);
    QVERIFY(picture->isModified());
    command(u"undo"_s)->trigger();
    QCOMPARE(picture->image().pixelColor(3, 3), QColor(Qt::red));
    command(u"redo"_s)->trigger();
    QCOMPARE(picture->image().pixelColor(3, 3), QColor(Qt::cyan));
    command(u"actualSize"_s)->trigger();
    QCOMPARE(picture->zoom(), 1.0);
    command(u"zoomIn"_s)->trigger();
    QVERIFY(picture->zoom() > 1.0);
    command(u"zoomOut"_s)->trigger();
    command(u"zoomOut"_s)->trigger();
    QVERIFY(picture->zoom() < 1.0);
}

void tst_WorkbenchTools::tableTools()
{
    QVERIFY(m_own->openPath(createFile(u"t.csv"_s, "name,value\nb,2\na,1\n")));
    auto *table = shown<TableDocument>();
    const QAbstractItemModel *model = table->view()->model();
    const bool hasHeader = table->hasHeaderRow();
    QCOMPARE(command(u"headerRow"_s)->isChecked(), hasHeader);
    table->setHeaderRow(true);
    table->view()->setCurrentIndex(model->index(0, 0));
    command(u"sortAscending"_s)->trigger();
    QCOMPARE(model->index(0, 0).data().toString(), u"a"_s);
    command(u"sortDescending"_s)->trigger();
    QCOMPARE(model->index(0, 0).data().toString(), u"b"_s);
    command(u"insertRow"_s)->trigger();
    QCOMPARE(model->rowCount(), 3);
    command(u"undo"_s)->trigger();
    QCOMPARE(model->rowCount(), 2);
    command(u"removeRows"_s)->trigger();
    QCOMPARE(model->rowCount(), 1);
    command(u"insertColumn"_s)->trigger();
    QCOMPARE(model->columnCount(), 3);
    command(u"removeColumns"_s)->trigger();
    QCOMPARE(model->columnCount(), 2);
}

void tst_WorkbenchTools::theClipboardServesTables()
{
    QVERIFY(m_own->openPath(createFile(u"t.csv"_s, "name,value\nb,2\n")));
    QTableView *view = shown<TableDocument>()->view();
    view->setFocus();
    view->setCurrentIndex(view->model()->index(0, 0));
    const QString text = view->currentIndex().data().toString();
    command(u"copy"_s)->trigger();
    QCOMPARE(QApplication::clipboard()->text().trimmed(), text);
    command(u"cut"_s)->trigger();
    QCOMPARE(view->model()->index(0, 0).data().toString(), QString());
    command(u"paste"_s)->trigger();
    QCOMPARE(view->model()->index(0, 0).data().toString(), text);
}

void tst_WorkbenchTools::clipboardCommandsAreThereWhereTheyCanWork()
{
    const auto enabled = [this] {
        QString letters;
        for (const auto &name : {u"cut"_s, u"copy"_s, u"paste"_s})
            letters += command(name)->isEnabled() ? name.at(0) : u'-';
        return letters;
    };
    QApplication::clipboard()->clear();
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "one\n")));
    QPlainTextEdit *editor = shown<TextDocument>()->editor();
    QVERIFY(editor->hasFocus());
    QCOMPARE(enabled(), u"---"_s);
    editor->selectAll();
    QCOMPARE(enabled(), u"cc-"_s);
    command(u"copy"_s)->trigger();
    QCOMPARE(enabled(), u"ccp"_s);
    auto *field = m_own->findChild<QLineEdit *>(u"searchField"_s);
    field->setFocus();
    QCOMPARE(enabled(), u"--p"_s);
    field->setText(u"a"_s);
    field->selectAll();
    QCOMPARE(enabled(), u"ccp"_s);
    field->clear();
    QCOMPARE(enabled(), u"--p"_s);
    // A log can only be copied from.
    auto *log = m_own->findChild<QPlainTextEdit *>(u"messageText"_s);
    log->setFocus();
    log->selectAll();
    QCOMPARE(enabled(), u"-c-"_s);
    QVERIFY(m_own->openPath(createFile(u"t.csv"_s, "1,2\n")));
    QVERIFY(shown<TableDocument>()->view()->hasFocus());
    QCOMPARE(enabled(), u"ccp"_s);
    auto *tree = m_own->findChild<QTreeView *>(u"folders"_s);
    tree->setFocus();
    QString own = u"---"_s;
    const QList<QAction *> actions = tree->actions();
    for (const QAction *action : actions) {
        if (action->isEnabled() && action->shortcut() == QKeySequence(QKeySequence::Cut))
            own[0] = u'c';
        if (action->isEnabled() && action->shortcut() == QKeySequence(QKeySequence::Copy))
            own[1] = u'c';
        if (action->isEnabled() && action->shortcut() == QKeySequence(QKeySequence::Paste))
            own[2] = u'p';
    }
    QCOMPARE(enabled(), own);
    m_own->findChild<QTreeView *>(u"properties"_s)->setFocus();
    QCOMPARE(enabled(), u"---"_s);
}

void tst_WorkbenchTools::undoAndRedoAreThereWhenThereIsSomething()
{
    QAction *undo = command(u"undo"_s);
    QAction *redo = command(u"redo"_s);
    const auto verify = [undo, redo](bool canUndo, bool canRedo) {
        QCOMPARE(undo->isEnabled(), canUndo);
        QCOMPARE(redo->isEnabled(), canRedo);
    };
    verify(false, false);
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path(u"p.png"_s)));
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "one\n")));
    shown<TextDocument>()->editor()->insertPlainText(u"x"_s);
    verify(true, false);
    undo->trigger();
    verify(false, true);
    QVERIFY(m_own->openPath(path(u"p.png"_s)));
    verify(false, false);
    shown<PictureDocument>()->rotate(1);
    verify(true, false);
    undo->trigger();
    verify(false, true);
    QVERIFY(m_own->openPath(createFile(u"t.csv"_s, "1,2\n")));
    shown<TableDocument>()->insertRow();
    verify(true, false);
    undo->trigger();
    verify(false, true);
    m_own->tabs()->closeCurrent();
    m_own->tabs()->closeCurrent();
    m_own->tabs()->closeCurrent();
    verify(false, false);
}

void tst_WorkbenchTools::aCopyIsSaved()
{
    QVERIFY(!command(u"saveCopy"_s)->isEnabled());
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "one\n")));
    shown<TextDocument>()->editor()->insertPlainText(u"x"_s);
    ModalScript script;
    script.chooseFile(path(u"b.txt"_s));
    command(u"saveCopy"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(u"b.txt"_s), QByteArray("xone\n"));
    QCOMPARE(bytesOf(u"a.txt"_s), QByteArray("one\n"));
    QVERIFY(shown<TextDocument>()->isModified());
    script.answer(QMessageBox::Ok);
    QVERIFY(!m_own->tabs()->saveCopy(shown<TextDocument>(), path(u"missing/b.txt"_s)));
    QVERIFY(script.isDone());
    shown<TextDocument>()->undo();
}

void tst_WorkbenchTools::openingAgainReadsWhatOthersWrote()
{
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "one\n")));
    const TextDocument *before = shown<TextDocument>();
    QVERIFY(m_own->openPath(path(u"a.txt"_s)));
    QCOMPARE(shown<TextDocument>(), before);
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "others\n")));
    QCOMPARE(shown<TextDocument>()->text(), u"others\n"_s);
    QCOMPARE(m_own->tabs()->documents().size(), 1);
    // Changes of one's own are not given up for those of others.
    shown<TextDocument>()->editor()->insertPlainText(u"my "_s);
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "again\n")));
    QCOMPARE(shown<TextDocument>()->text(), u"my others\n"_s);
    shown<TextDocument>()->undo();
    // What cannot be read any more stays as it was read.
    createFile(u"a.txt"_s, QByteArray("\0", 1));
    ModalScript script;
    script.answer(QMessageBox::Ok);
    QVERIFY(!m_own->tabs()->open(path(u"a.txt"_s)));
    QVERIFY(script.isDone());
    QCOMPARE(shown<TextDocument>()->text(), u"others\n"_s);
}

void tst_WorkbenchTools::aFileThatIsRenamedInTheTreeStaysOpen()
{
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "one\n")));
    shown<TextDocument>()->editor()->insertPlainText(u"x"_s);
    rename(u"a.txt"_s, u"b.txt"_s);
    QCOMPARE(shown<TextDocument>()->path(), path(u"b.txt"_s));
    QCOMPARE(m_own->windowTitle(), u"b.txt[*] – Workbench"_s);
    auto *content = m_own->agent()->dockContainer()->contentWidget();
    QCOMPARE(content->tabText(0, 0), u"b.txt*"_s);
    QVERIFY(content->tabToolTip(0, 0).contains(u"b.txt"_s));
    QVERIFY(m_own->tabs()->saveCurrent());
    QCOMPARE(bytesOf(u"b.txt"_s), QByteArray("xone\n"));
    QVERIFY(!QFile::exists(path(u"a.txt"_s)));
}

void tst_WorkbenchTools::aFolderThatIsRenamedInTheTreeTakesItsFilesAlong()
{
    QVERIFY(QDir(path({})).mkdir(u"sub"_s));
    QVERIFY(m_own->openPath(createFile(u"sub/a.txt"_s, "one\n")));
    QVERIFY(m_own->tabs()->open(createFile(u"subway.txt"_s, "two\n")));
    QVERIFY(m_own->openPath(path({})));
    rename(u"sub"_s, u"other"_s);
    const QList<WorkbenchDocument *> all = m_own->tabs()->documents();
    QCOMPARE(all.at(0)->path(), path(u"other/a.txt"_s));
    QCOMPARE(all.at(1)->path(), path(u"subway.txt"_s));
}

void tst_WorkbenchTools::theOutlineSaysWhyItIsEmpty()
{
    const auto *outline = m_own->findChild<QTreeWidget *>(u"outline"_s);
    const auto said = [outline] { return outline->topLevelItem(0)->text(0); };
    QCOMPARE(said(), u"No document"_s);
    QImage image(40, 20, QImage::Format_RGB32);
    QVERIFY(image.save(path(u"p.png"_s)));
    QVERIFY(m_own->openPath(path(u"p.png"_s)));
    QCOMPARE(said(), u"No outline"_s);
    QVERIFY(m_own->openPath(createFile(u"a.md"_s, "text\n")));
    QCOMPARE(said(), u"No headings"_s);
    QVERIFY(m_own->openPath(createFile(u"e.csv"_s, QByteArray())));
    QCOMPARE(said(), u"No columns"_s);
}

void tst_WorkbenchTools::theOutlineStaysWhileItsHeadingsDo()
{
    QVERIFY(m_own->openPath(createFile(u"a.md"_s, "# one\n\n## two\n")));
    auto *outline = m_own->findChild<QTreeWidget *>(u"outline"_s);
    outline->topLevelItem(0)->setExpanded(false);
    QPlainTextEdit *editor = shown<TextDocument>()->editor();
    QSignalSpy spy(shown<TextDocument>(), &WorkbenchDocument::signalContentChanged);
    editor->insertPlainText(u"text\n\n"_s);
    QTRY_VERIFY(!spy.isEmpty());
    QVERIFY(!outline->topLevelItem(0)->isExpanded());
    // But they lead to where the headings are now.
    Q_EMIT outline->itemActivated(outline->topLevelItem(0)->child(0), 0);
    QCOMPARE(editor->textCursor().block().text(), u"## two"_s);
    spy.clear();
    editor->insertPlainText(u"# "_s);
    QTRY_VERIFY(!spy.isEmpty());
    QCOMPARE(outline->topLevelItemCount(), 2);
    editor->document()->setModified(false);
}

void tst_WorkbenchTools::previewsAreMadeOncePerPicture()
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path(u"p.png"_s)));
    QVERIFY(m_own->openPath(path(u"p.png"_s)));
    const qint64 before = command(u"filter_invert"_s)->icon().cacheKey();
    shown<PictureDocument>()->zoomIn();
    QCOMPARE(command(u"filter_invert"_s)->icon().cacheKey(), before);
    shown<PictureDocument>()->rotate(1);
    QVERIFY(command(u"filter_invert"_s)->icon().cacheKey() != before);
    shown<PictureDocument>()->undo();
}

void tst_WorkbenchTools::theNamesOfFiltersFitTheirTiles()
{
    constexpr int Border = 4;
    const QList<QAction *> filters = m_own->gallery()->matches(QString());
    QVERIFY(!filters.isEmpty());
    for (const QAction *filter : filters) {
        const QList<QObject *> users = filter->associatedObjects();
        const auto isTile = [](const QObject *user) { return user->inherits("QToolButton"); };
        const auto tile = std::find_if(users.cbegin(), users.cend(), isTile);
        QVERIFY(tile != users.cend());
        const auto *button = qobject_cast<const QToolButton *>(*tile);
        QVERIFY2(button->fontMetrics().horizontalAdvance(filter->text()) + 2 * Border
                     <= button->sizeHint().width(),
                 qPrintable(filter->text()));
    }
}

void tst_WorkbenchTools::searchesInATextRoundAndRound()
{
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "one two one\n")));
    const QPlainTextEdit *editor = shown<TextDocument>()->editor();
    for (const int start : {0, 8, 0}) {
        search(u"one"_s);
        QCOMPARE(editor->textCursor().selectionStart(), start);
    }
    search(u"nothing"_s);
    QCOMPARE(editor->textCursor().selectionStart(), 0);
    QVERIFY(m_own->findChild<QPlainTextEdit *>(u"messageText"_s)
                ->toPlainText()
                .contains(u"“nothing” was not found."_s));
}

void tst_WorkbenchTools::searchesInATable()
{
    QVERIFY(m_own->openPath(createFile(u"t.csv"_s, "name,value\nb,two\na,one\nc,two\n")));
    auto *table = shown<TableDocument>();
    table->setHeaderRow(true);
    table->view()->setCurrentIndex(table->view()->model()->index(0, 0));
    for (const int row : {0, 2, 0}) {
        search(u"TWO"_s);
        QCOMPARE(table->view()->currentIndex().row(), row);
        QCOMPARE(table->view()->currentIndex().column(), 1);
    }
}

void tst_WorkbenchTools::searchOffersFiltersForAPicture()
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path(u"p.png"_s)));
    QVERIFY(m_own->openPath(path(u"p.png"_s)));
    search(u"INVERT"_s);
    auto *menu = m_own->findChild<QMenu *>(u"filterMatches"_s);
    QVERIFY(menu);
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(shown<PictureDocument>()->image().pixelColor(3, 3), QColor(Qt::cyan));
    QTRY_VERIFY(!m_own->findChild<QMenu *>(u"filterMatches"_s));
}

void tst_WorkbenchTools::aFileThatOthersChangedIsOnlyReplacedWhenTheUserSaysSo()
{
    QVERIFY(m_own->openPath(createFile(u"a.txt"_s, "mine\n")));
    shown<TextDocument>()->editor()->insertPlainText(u"still "_s);
    createFile(u"a.txt"_s, "of others\n");
    ModalScript script;
    script.answer(QMessageBox::Cancel);
    QVERIFY(!m_own->tabs()->saveCurrent());
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(u"a.txt"_s), QByteArray("of others\n"));
    QVERIFY(shown<TextDocument>()->isModified());
    script.answer(u"Save Anyway"_s);
    QVERIFY(m_own->tabs()->saveCurrent());
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(u"a.txt"_s), QByteArray("still mine\n"));
}

QTEST_MAIN(tst_WorkbenchTools)

#include "tst_workbenchtools.moc"
