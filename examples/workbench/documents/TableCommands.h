// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "CsvText.h"

#include <QUndoCommand>

class TableModel;

/// Gives a line other cells.
class CellsCommand : public QUndoCommand
{
public:
    CellsCommand(TableModel *model, int fileRow, const QStringList &after);

    void undo() override;
    void redo() override;

private:
    TableModel *m_model;
    const int m_fileRow;
    const QStringList m_before;
    const QStringList m_after;
};

/// Inserts lines.
class InsertRowsCommand : public QUndoCommand
{
public:
    InsertRowsCommand(TableModel *model, int fileRow, const QList<CsvRow> &rows,
                      QUndoCommand *parent = nullptr);

    void undo() override;
    void redo() override;

private:
    TableModel *m_model;
    const int m_fileRow;
    const QList<CsvRow> m_rows;
};

/// Removes lines that follow one another.
class RemoveRowsCommand : public QUndoCommand
{
public:
    RemoveRowsCommand(TableModel *model, int fileRow, int count, QUndoCommand *parent = nullptr);

    void undo() override;
    void redo() override;

private:
    TableModel *m_model;
    const int m_fileRow;
    const QList<CsvRow> m_rows;
};

/// Replaces all lines by others: columns that come and go, and sorting.
class TableCommand : public QUndoCommand
{
public:
    TableCommand(TableModel *model, const QList<CsvRow> &after, const QString &text);

    void undo() override;
    void redo() override;

private:
    TableModel *m_model;
    const QList<CsvRow> m_before;
    const QList<CsvRow> m_after;
};
