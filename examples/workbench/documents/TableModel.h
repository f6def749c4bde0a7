// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "CsvText.h"

#include <QAbstractTableModel>

class QUndoStack;

/// The cells of a table for a view. Whoever edits a cell does so through the undo stack; the other
/// changes are for the commands on it.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// \a undoStack has to live as long as this.
    TableModel(const QList<CsvRow> &rows, QChar separator, QUndoStack *undoStack,
               QObject *parent = nullptr);

    /// Whether the first line of the file has the names of the columns; then it is no row of this
    /// model.
    bool hasHeaderRow() const { return m_hasHeader; }
    void setHeaderRow(bool on);

    /// The lines of the file, header and all.
    QList<CsvRow> fileRows() const { return m_rows; }
    /// The line of the file that \a row is.
    int fileRow(int row) const { return row + (m_hasHeader ? 1 : 0); }

    /// Replaces \a cells from \a column on by those of \a values, written as this table writes
    /// them. What says the same already stays as it is.
    void setCells(QStringList *cells, int column, const QStringList &values) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Gives the line \a fileRow other cells, not more than there are columns.
    void replaceCells(int fileRow, const QStringList &cells);
    /// The line has to be behind the header. \a rows may not be wider than the table.
    void insertFileRows(int fileRow, const QList<CsvRow> &rows);
    void removeFileRows(int fileRow, int count);
    /// Any other change at once.
    void replaceAll(const QList<CsvRow> &rows);

private:
    static int widest(const QList<CsvRow> &rows);

    QList<CsvRow> m_rows;
    const QChar m_separator;
    QUndoStack *m_undoStack;
    int m_columnCount = 0;
    bool m_hasHeader = false;
};
