// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TableDocument.h"

#include "CellDelegate.h"
#include "TableCommands.h"
#include "TableModel.h"
#include "TableSorter.h"

#include <QAction>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLocale>
#include <QSet>
#include <QTableView>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// So many rows tell how wide a column is: all of them would take too long.
constexpr int Width_Rows = 200;
/// In px. A longer text is cut.
constexpr int Width_Maximum = 320;
/// In px. Numbers that grow with the rows have room here.
constexpr int Width_Minimum = 64;
/// In px.
constexpr int Row_Height = 24;
constexpr int Undo_Steps = 200;

/// Whether the first of \a rows looks like the names of the columns: all there, all different, and
/// none a number.
bool looksLikeHeader(const QList<CsvRow> &rows)
{
    if (rows.size() < 2)
        return false;
    const QStringList &cells = rows.constFirst().cells;
    QSet<QString> names;
    for (const QString &cell : cells) {
        const QString name = CsvText::value(cell).trimmed();
        bool isNumber = false;
        name.toDouble(&isNumber);
        if (name.isEmpty() || isNumber || names.contains(name))
            return false;
        names.insert(name);
    }
    return true;
}

/// \a numbers, each once, from the last to the first.
QList<int> descending(const QSet<int> &numbers)
{
    QList<int> list = numbers.values();
    std::sort(list.begin(), list.end(), std::greater<>());
    return list;
}

QString separatorName(QChar separator)
{
    return separator == u'\t' ? TableDocument::tr("Tabulator") : QString(separator);
}

QString lineEndName(const QString &lineEnd)
{
    if (lineEnd.size() > 1)
        return TableDocument::tr("CR LF");
    return lineEnd == u'\r' ? TableDocument::tr("CR") : TableDocument::tr("LF");
}

} // namespace

TableDocument::TableDocument(const QString &path, const TableFile &file)
    : FileDocument(Table, path), m_file(file), m_undoStack(new QUndoStack(this)),
      m_model(new TableModel(file.rows(), file.separator(), m_undoStack, this)),
      m_view(new QTableView(this)), m_delegate(new CellDelegate(m_view))
{
    m_undoStack->setUndoLimit(Undo_Steps);
    m_model->setHeaderRow(looksLikeHeader(file.rows()));
    createView();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    createKeys();
    connectModel();
}

TableDocument::~TableDocument()
{
    // They would tell of their end when this is no document any more.
    m_undoStack->disconnect(this);
    const QList<QWidget *> editors = m_view->viewport()->findChildren<QWidget *>();
    for (QWidget *editor : editors)
        editor->disconnect(this);
}

void TableDocument::createView()
{
    m_view->setObjectName(u"table"_s);
    m_view->setAccessibleName(QFileInfo(path()).fileName());
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setItemDelegate(m_delegate);
    m_view->setWordWrap(false);
    m_view->setModel(m_model);
    m_view->horizontalHeader()->setResizeContentsPrecision(Width_Rows);
    m_view->horizontalHeader()->setMaximumSectionSize(Width_Maximum);
    m_view->horizontalHeader()->setMinimumSectionSize(Width_Minimum);
    m_view->resizeColumnsToContents();
    // From here on, the user may make them as wide and as narrow as they like.
    m_view->horizontalHeader()->setMaximumSectionSize(-1);
    m_view->horizontalHeader()->setMinimumSectionSize(-1);
    m_view->verticalHeader()->setDefaultSectionSize(Row_Height);
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->setCurrentIndex(m_model->index(0, 0));
}

/// A view itself knows only one of them, and that for a single cell.
void TableDocument::createKeys()
{
    const auto add = [this](QKeySequence::StandardKey keys, const auto &react) {
        auto *action = new QAction(m_view);
        action->setShortcuts(keys);
        // Not while a cell is edited: the keys belong to its editor then.
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, react);
        m_view->addAction(action);
    };
    add(QKeySequence::Copy, &TableDocument::copy);
    add(QKeySequence::Cut, &TableDocument::cut);
    add(QKeySequence::Paste, &TableDocument::paste);
    add(QKeySequence::Delete, &TableDocument::clear);
}

void TableDocument::connectModel()
{
    connect(m_delegate, &CellDelegate::edited, this, &TableDocument::followInput);
    connect(m_undoStack, &QUndoStack::canUndoChanged, this, &TableDocument::signalHistoryChanged);
    connect(m_undoStack, &QUndoStack::canRedoChanged, this, &TableDocument::signalHistoryChanged);
    connect(m_model, &TableModel::modelAboutToBeReset, this, &TableDocument::keepCurrentCell);
    connect(m_model, &TableModel::modelReset, this, &TableDocument::restoreCurrentCell);
    connect(m_model, &TableModel::modelReset, this, &TableDocument::signalContentChanged);
    connect(m_undoStack, &QUndoStack::indexChanged, this, &TableDocument::signalContentChanged);
    connect(m_undoStack, &QUndoStack::cleanChanged, this,
            [this] { Q_EMIT signalModifiedChanged(isModified()); });
}

void TableDocument::followInput(QWidget *editor)
{
    if (editor == m_editedCell)
        return;
    m_editedCell = editor;
    connect(editor, &QObject::destroyed, this, &TableDocument::endInput);
    Q_EMIT signalModifiedChanged(isModified());
}

void TableDocument::endInput(const QObject *editor)
{
    // A widget is still pointed to when it tells of its end.
    if (m_editedCell == editor)
        m_editedCell = nullptr;
    Q_EMIT signalModifiedChanged(isModified());
}

void TableDocument::finishInput()
{
    if (QWidget *editor = std::exchange(m_editedCell, nullptr))
        m_delegate->finish(editor);
}

void TableDocument::keepCurrentCell()
{
    const QModelIndex current = m_view->currentIndex();
    m_keptCell = QPoint(current.column(), current.row());
}

void TableDocument::restoreCurrentCell()
{
    setCurrentCell(m_keptCell.y(), m_keptCell.x());
}

void TableDocument::setCurrentCell(int row, int column)
{
    const int lastRow = m_model->rowCount() - 1;
    const int lastColumn = m_model->columnCount() - 1;
    m_view->setCurrentIndex(
        m_model->index(std::clamp(row, std::min(0, lastRow), lastRow),
                       std::clamp(column, std::min(0, lastColumn), lastColumn)));
}

bool TableDocument::hasHeaderRow() const
{
    return m_model->hasHeaderRow();
}

void TableDocument::setHeaderRow(bool on)
{
    m_model->setHeaderRow(on);
}

QList<int> TableDocument::selectedRows() const
{
    QSet<int> rows;
    const QModelIndexList indexes = m_view->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        rows.insert(index.row());
    if (rows.isEmpty() && m_view->currentIndex().isValid())
        rows.insert(m_view->currentIndex().row());
    return descending(rows);
}

QList<int> TableDocument::selectedColumns() const
{
    QSet<int> columns;
    const QModelIndexList indexes = m_view->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        columns.insert(index.column());
    if (columns.isEmpty() && m_view->currentIndex().isValid())
        columns.insert(m_view->currentIndex().column());
    return descending(columns);
}

void TableDocument::insertRow()
{
    const QModelIndex current = m_view->currentIndex();
    const int row = current.isValid() ? current.row() + 1 : m_model->rowCount();
    CsvRow line;
    for (int i = 0; i < std::max(1, m_model->columnCount()); ++i)
        line.cells.append(QString());
    // A header that is not there yet comes first.
    const int fileRow = std::min(m_model->fileRow(row), int(m_model->fileRows().size()));
    m_undoStack->push(new InsertRowsCommand(m_model, fileRow, {line}));
    setCurrentCell(row, current.column());
}

void TableDocument::removeRows()
{
    const QList<int> rows = selectedRows();
    if (rows.isEmpty())
        return;
    auto command = std::make_unique<QUndoCommand>(tr("Remove Rows"));
    // From the end, so that the numbers of the others stay right.
    for (qsizetype i = 0; i < rows.size();) {
        qsizetype end = i + 1;
        while (end < rows.size() && rows.at(end) == rows.at(end - 1) - 1)
            ++end;
        const int first = rows.at(end - 1);
        // The command belongs to the one around it.
        new RemoveRowsCommand(m_model, m_model->fileRow(first), int(end - i), command.get());
        i = end;
    }
    const QModelIndex current = m_view->currentIndex();
    m_undoStack->push(command.release());
    setCurrentCell(rows.constLast(), current.column());
}

void TableDocument::insertColumn()
{
    const QModelIndex current = m_view->currentIndex();
    const int column = current.isValid() ? current.column() + 1 : m_model->columnCount();
    QList<CsvRow> rows = m_model->fileRows();
    if (rows.isEmpty())
        rows.append(CsvRow());
    for (CsvRow &row : rows) {
        // A line that ends before has nothing to move.
        if (row.cells.size() >= column)
            row.cells.insert(column, QString());
    }
    m_undoStack->push(new TableCommand(m_model, rows, tr("Insert Column")));
    setCurrentCell(current.row(), column);
}

void TableDocument::removeColumns()
{
    const QList<int> columns = selectedColumns();
    if (columns.isEmpty())
        return;
    QList<CsvRow> rows = m_model->fileRows();
    for (CsvRow &row : rows) {
        for (const int column : columns) {
            if (column < row.cells.size())
                row.cells.removeAt(column);
        }
    }
    m_undoStack->push(new TableCommand(m_model, rows, tr("Remove Columns")));
}

void TableDocument::sort(Qt::SortOrder order)
{
    sort(m_view->currentIndex().column(), order);
}

void TableDocument::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= m_model->columnCount())
        return;
    const QList<CsvRow> rows = TableSorter::sorted(m_model->fileRows(), m_model->fileRow(0), column,
                                                   order);
    m_undoStack->push(new TableCommand(m_model, rows, tr("Sort")));
}

void TableDocument::setPath(const QString &path)
{
    FileDocument::setPath(path);
    m_file.setPath(path);
    m_view->setAccessibleName(QFileInfo(path).fileName());
}

bool TableDocument::canUndo() const
{
    return m_undoStack->canUndo();
}

bool TableDocument::canRedo() const
{
    return m_undoStack->canRedo();
}

void TableDocument::undo()
{
    m_undoStack->undo();
}

void TableDocument::redo()
{
    m_undoStack->redo();
}

void TableDocument::copy() const
{
    QList<int> rows = selectedRows();
    QList<int> columns = selectedColumns();
    std::reverse(rows.begin(), rows.end());
    std::reverse(columns.begin(), columns.end());
    QStringList lines;
    for (const int row : std::as_const(rows)) {
        QStringList cells;
        for (const int column : std::as_const(columns))
            cells.append(CsvText::cell(m_model->index(row, column).data().toString(), u'\t'));
        lines.append(cells.join(u'\t'));
    }
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void TableDocument::cut()
{
    copy();
    clear();
}

void TableDocument::paste()
{
    const QModelIndex start = m_view->currentIndex();
    const QList<CsvRow> lines = CsvText::parse(QGuiApplication::clipboard()->text(), u'\t');
    if (lines.isEmpty())
        return;
    QList<CsvRow> rows = m_model->fileRows();
    // A table without cells begins at the first.
    const qsizetype first = std::min(qsizetype(m_model->fileRow(std::max(0, start.row()))),
                                     rows.size());
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (first + line == rows.size())
            rows.append(CsvRow());
        QStringList values = lines.at(line).cells;
        std::transform(values.begin(), values.end(), values.begin(), CsvText::value);
        m_model->setCells(&rows[first + line].cells, std::max(0, start.column()), values);
    }
    m_undoStack->push(new TableCommand(m_model, rows, tr("Paste")));
}

void TableDocument::clear()
{
    QModelIndexList indexes = m_view->selectionModel()->selectedIndexes();
    if (indexes.isEmpty())
        indexes.append(m_view->currentIndex());
    indexes.removeIf([](const QModelIndex &index) { return index.data().toString().isEmpty(); });
    // Without a step, nothing is modified.
    if (indexes.isEmpty())
        return;
    m_undoStack->beginMacro(tr("Clear"));
    for (const QModelIndex &index : std::as_const(indexes))
        m_model->setData(index, QString());
    m_undoStack->endMacro();
}

bool TableDocument::isModified() const
{
    return m_editedCell != nullptr || !m_undoStack->isClean();
}

bool TableDocument::isChangedOnDisk() const
{
    return m_file.isChangedOnDisk();
}

QList<OutlineEntry> TableDocument::outline() const
{
    QList<OutlineEntry> entries;
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const QString name = m_model->headerData(column, Qt::Horizontal).toString();
        entries.append({hasHeaderRow() ? name : tr("Column %1").arg(name), 1, column});
    }
    return entries;
}

void TableDocument::goToLine(int line)
{
    if (line < 0 || line >= m_model->columnCount())
        return;
    setCurrentCell(m_view->currentIndex().row(), line);
    m_view->selectColumn(line);
    m_view->scrollTo(m_view->currentIndex());
}

QList<QPair<QString, QString>> TableDocument::properties() const
{
    const QLocale locale;
    return {
        {tr("Rows"), locale.toString(m_model->rowCount())},
        {tr("Columns"), locale.toString(m_model->columnCount())},
        {tr("Separator"), separatorName(m_file.separator())},
        {tr("Encoding"), m_file.encodingName()},
        {tr("Line ends"), lineEndName(m_file.lineEnd())},
        {tr("Size on disk"), locale.formattedDataSize(QFileInfo(path()).size())},
    };
}

FileStatus TableDocument::write(Loss loss)
{
    FileStatus status = m_file.save(m_model->fileRows());
    if (status.error == FileStatus::Error::NotEncodable && loss == Loss::Accepted) {
        const TextCodec::Encoding before = m_file.encoding();
        m_file.setEncoding(TextCodec::Encoding::Utf8);
        status = m_file.save(m_model->fileRows());
        if (status.ok())
            Q_EMIT signalMessage(tr("%1 is in UTF-8 now.").arg(QFileInfo(path()).fileName()));
        else
            m_file.setEncoding(before);
    }
    if (status.ok()) {
        m_undoStack->setClean();
        Q_EMIT signalContentChanged();
    }
    return status;
}

FileStatus TableDocument::writeCopy(const QString &path)
{
    FileStatus status = m_file.saveCopy(path, m_model->fileRows());
    if (status.error == FileStatus::Error::NotEncodable) {
        // A new file may have the encoding that it needs.
        TableFile copy = m_file;
        copy.setEncoding(TextCodec::Encoding::Utf8);
        status = copy.saveCopy(path, m_model->fileRows());
    }
    return status;
}
