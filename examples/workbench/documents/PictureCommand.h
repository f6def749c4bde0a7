// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QUndoCommand>

class PictureView;

/// Replaces the picture of a view by another, and back.
class PictureCommand : public QUndoCommand
{
public:
    PictureCommand(PictureView *view, const QImage &after, const QString &text);

    void undo() override;
    void redo() override;

private:
    PictureView *m_view;
    /// Neighbours on the stack share their pixels.
    const QImage m_before;
    const QImage m_after;
};
