// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TableCommands.h"

#include "TableModel.h"

#include <QCoreApplication>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("TableCommands", text);
}

} // namespace

CellsCommand::CellsCommand(TableModel *model, int fileRow, const QStringList &after)
    : QUndoCommand(tr("Edit Cell")), m_model(model), m_fileRow(fileRow),
      m_before(model->fileRows().at(fileRow).cells), m_after(after)
{}

void CellsCommand::undo()
{
    m_model->replaceCells(m_fileRow, m_before);
}

void CellsCommand::redo()
{
    m_model->replaceCells(m_fileRow, m_after);
}

InsertRowsCommand::InsertRowsCommand(TableModel *model, int fileRow, const QList<CsvRow> &rows,
                                     QUndoCommand *parent)
    : QUndoCommand(tr("Insert Row"), parent), m_model(model), m_fileRow(fileRow), m_rows(rows)
{}

void InsertRowsCommand::undo()
{
    m_model->removeFileRows(m_fileRow, int(m_rows.size()));
}

void InsertRowsCommand::redo()
{
    m_model->insertFileRows(m_fileRow, m_rows);
}

RemoveRowsCommand::RemoveRowsCommand(TableModel *model, int fileRow, int count,
                                     QUndoCommand *parent)
    : QUndoCommand(tr("Remove Rows"), parent), m_model(model), m_fileRow(fileRow),
      m_rows(model->fileRows().mid(fileRow, count))
{}

void RemoveRowsCommand::undo()
{
    m_model->insertFileRows(m_fileRow, m_rows);
}

void RemoveRowsCommand::redo()
{
    m_model->removeFileRows(m_fileRow, int(m_rows.size()));
}

TableCommand::TableCommand(TableModel *model, const QList<CsvRow> &after, const QString &text)
    : QUndoCommand(text), m_model(model), m_before(model->fileRows()), m_after(after)
{}

void TableCommand::undo()
{
    m_model->replaceAll(m_before);
}

void TableCommand::redo()
{
    m_model->replaceAll(m_after);
}
