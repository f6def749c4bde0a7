// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "UndoController.h"

#include "DocumentTabs.h"
#include "PictureDocument.h"
#include "TableDocument.h"
#include "TextDocument.h"

#include <QPlainTextEdit>
#include <QUndoStack>

UndoController::UndoController(DocumentTabs *tabs) : QObject(tabs), m_tabs(tabs) {}

void UndoController::undo() const
{
    WorkbenchDocument *document = m_tabs->current();
    if (const auto *text = qobject_cast<TextDocument *>(document))
        text->editor()->undo();
    else if (const auto *picture = qobject_cast<PictureDocument *>(document))
        picture->undoStack()->undo();
    else if (const auto *table = qobject_cast<TableDocument *>(document))
        table->undoStack()->undo();
}

void UndoController::redo() const
{
    WorkbenchDocument *document = m_tabs->current();
    if (const auto *text = qobject_cast<TextDocument *>(document))
        text->editor()->redo();
    else if (const auto *picture = qobject_cast<PictureDocument *>(document))
        picture->undoStack()->redo();
    else if (const auto *table = qobject_cast<TableDocument *>(document))
        table->undoStack()->redo();
}
