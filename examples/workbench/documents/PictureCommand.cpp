// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureCommand.h"

#include "PictureView.h"

PictureCommand::PictureCommand(PictureView *view, const QImage &after, const QString &text)
    : QUndoCommand(text), m_view(view), m_before(view->image()), m_after(after)
{}

void PictureCommand::undo()
{
    m_view->setImage(m_before);
}

void PictureCommand::redo()
{
    m_view->setImage(m_after);
}
