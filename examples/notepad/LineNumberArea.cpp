// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "LineNumberArea.h"

#include "TextEditor.h"

#include <QPaintEvent>

LineNumberArea::LineNumberArea(TextEditor *editor) : QWidget(editor), m_editor(editor) {}

QSize LineNumberArea::sizeHint() const
{
    return {m_editor->lineNumberWidth(), 0};
}

void LineNumberArea::paintEvent(QPaintEvent *event)
{
    m_editor->paintLineNumbers(this, event->rect());
}
