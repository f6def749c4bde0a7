// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class TextEditor;

/// The strip beside the text that shows the number of each line; a person cannot use it, only read
/// it.
class LineNumberArea : public QWidget
{
    Q_OBJECT

public:
    explicit LineNumberArea(TextEditor *editor);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    TextEditor *m_editor;
};
