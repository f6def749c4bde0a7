// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TableModel.h"

#include "TableCommands.h"

#include <QUndoStack>

#include <algorithm>

TableModel::TableModel(const QList<CsvRow> &rows, QChar separator, QUndoStack *undoStack,
                       QObject *parent)
    : QAbstractTableModel(parent), m_rows(rows), m_separator(separator), m_undoStack(undoStack),
      m_columnCount(widest(rows))
{}

int TableModel::widest(const QList<CsvRow> &rows)
{
    qsizetype count = 0;
    for (const CsvRow &row : rows)
        count = std::max(count, row.cells.size());
    return int(count);
}

void TableModel::setHeaderRow(bool on)
{
    if (on == m_hasHeader)
        return;
    beginResetModel();
    m_hasHeader = on;
    endResetModel();
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : std::max(0, int(m_rows.size()) - fileRow(0));
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columnCount;
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    // A line may be shorter than others.
    const QStringList &cells = m_rows.at(fileRow(index.row())).cells;
    return index.column() < cells.size() ? CsvText::value(cells.at(index.column())) : QString();
}

bool TableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    const QString text = value.toString();
    // Untouched cells keep their own way to be written.
    if (text == data(index).toString())
        return true;
    const int line = fileRow(index.row());
    QStringList cells = m_rows.at(line).cells;
    setCells(&cells, index.column(), {text});
    m_undoStack->push(new CellsCommand(this, line, cells));
    return true;
}

void TableModel::setCells(QStringList *cells, int column, const QStringList &values) const
{
    while (cells->size() < column + values.size())
        cells->append(QString());
    for (qsizetype i = 0; i < values.size(); ++i) {
        QString &cell = (*cells)[column + i];
        if (CsvText::value(cell) != values.at(i))
            cell = CsvText::cell(values.at(i), m_separator, CsvText::isQuoted(cell));
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (orientation == Qt::Horizontal && m_hasHeader && !m_rows.isEmpty()) {
        const QStringList &cells = m_rows.constFirst().cells;
        if (section < cells.size() && !cells.at(section).isEmpty())
            return CsvText::value(cells.at(section));
    }
    return section + 1;
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable : flags;
}

void TableModel::replaceCells(int fileRow, const QStringList &cells)
{
    m_rows[fileRow].cells = cells;
    const int row = fileRow - this->fileRow(0);
    if (row < 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columnCount - 1);
    else
        Q_EMIT dataChanged(index(row, 0), index(row, m_columnCount - 1));
}

void TableModel::insertFileRows(int fileRow, const QList<CsvRow> &rows)
{
    // Without a column, or from the header on, more changes than rows.
    const int row = fileRow - this->fileRow(0);
    if (m_columnCount == 0 || row < 0) {
        QList<CsvRow> all = m_rows;
        for (qsizetype i = 0; i < rows.size(); ++i)
            all.insert(fileRow + i, rows.at(i));
        replaceAll(all);
        return;
    }
    beginInsertRows({}, row, row + int(rows.size()) - 1);
    for (qsizetype i = 0; i < rows.size(); ++i)
        m_rows.insert(fileRow + i, rows.at(i));
    endInsertRows();
}

void TableModel::removeFileRows(int fileRow, int count)
{
    const int row = fileRow - this->fileRow(0);
    if (row < 0) {
        QList<CsvRow> all = m_rows;
        all.remove(fileRow, count);
        replaceAll(all);
        return;
    }
    beginRemoveRows({}, row, row + count - 1);
    m_rows.remove(fileRow, count);
    endRemoveRows();
}

void TableModel::replaceAll(const QList<CsvRow> &rows)
{
    beginResetModel();
    m_rows = rows;
    m_columnCount = widest(rows);
    endResetModel();
}
