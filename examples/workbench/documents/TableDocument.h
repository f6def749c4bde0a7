// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileDocument.h"
#include "TableFile.h"

class TableModel;
class QTableView;
class QUndoStack;

/// A table to edit.
class TableDocument : public FileDocument
{
    Q_OBJECT

public:
    /// \a file was loaded from \a path.
    TableDocument(const QString &path, const TableFile &file);
    ~TableDocument() override;

    QTableView *view() const { return m_view; }
    TableModel *model() const { return m_model; }
    QUndoStack *undoStack() const { return m_undoStack; }

    /// Whether the first line names the columns. A table that looks like it begins with true.
    bool hasHeaderRow() const;
    void setHeaderRow(bool on);

    /// Below the current row, or at the end if there is none.
    void insertRow();
    /// All rows with a selected cell, or the current one.
    void removeRows();
    /// Behind the current column, or at the end if there is none.
    void insertColumn();
    /// All columns with a selected cell, or the current one.
    void removeColumns();
    /// By the current column.
    void sort(Qt::SortOrder order);
    /// A \a column that is none is ignored.
    void sort(int column, Qt::SortOrder order);
    void undo();
    void redo();

    /// The selected cells as lines with tabulators.
    void copy() const;
    void cut();
    /// From the current cell on, as far as there are rows and columns.
    void paste();
    /// Empties the selected cells.
    void clear();

    bool isModified() const override;
    bool isChangedOnDisk() const override;
    /// The columns.
    QList<OutlineEntry> outline() const override;
    void goToLine(int line) override;
    QList<QPair<QString, QString>> properties() const override;

protected:
    FileStatus write(Loss loss) override;
    FileStatus writeCopy(const QString &path) override;

private:
    void createView();
    void connectModel();
    void keepCurrentCell();
    void restoreCurrentCell();
    void setCurrentCell(int row, int column);
    QList<int> selectedRows() const;
    QList<int> selectedColumns() const;

    TableFile m_file;
    QUndoStack *m_undoStack;
    TableModel *m_model;
    QTableView *m_view;
    /// While all cells are other ones.
    QPoint m_keptCell;
};
