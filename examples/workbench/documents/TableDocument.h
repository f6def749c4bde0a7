// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileDocument.h"
#include "TableFile.h"

#include <QPointer>

class CellDelegate;
class QTableView;
class QUndoStack;
class TableModel;

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

    /// The selected cells, or the current one, as lines with tabulators.
    void copy() const;
    void cut();
    /// From the current cell on; the table grows where it is too small.
    void paste();
    /// Empties the selected cells, or the current one.
    void clear();

    void setPath(const QString &path) override;
    bool canUndo() const override;
    bool canRedo() const override;
    void undo() override;
    void redo() override;
    /// Also while a cell is being typed into.
    bool isModified() const override;
    bool isChangedOnDisk() const override;
    /// The columns.
    QList<OutlineEntry> outline() const override;
    void goToLine(int line) override;
    QList<QPair<QString, QString>> properties() const override;

protected:
    void finishInput() override;
    FileStatus write(Loss loss) override;
    FileStatus writeCopy(const QString &path) override;

private:
    void createView();
    void createKeys();
    void connectModel();
    void followInput(QWidget *editor);
    void endInput(const QObject *editor);
    void keepCurrentCell();
    void restoreCurrentCell();
    void setCurrentCell(int row, int column);
    QList<int> selectedRows() const;
    QList<int> selectedColumns() const;

    TableFile m_file;
    QUndoStack *m_undoStack;
    TableModel *m_model;
    QTableView *m_view;
    CellDelegate *m_delegate;
    /// In which someone typed something that is not in the table yet.
    QPointer<QWidget> m_editedCell;
    /// While all cells are other ones.
    QPoint m_keptCell;
};
