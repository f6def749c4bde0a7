// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextFile.h"

#include <QFrame>

class QLabel;

/// The line below the text: what was done last, where the cursor is, and how the file is written.
class EditorStatusBar : public QFrame
{
    Q_OBJECT

public:
    explicit EditorStatusBar(QWidget *parent = nullptr);

    /// Shows \a text until the next one.
    void showMessage(const QString &text);

    /// \a line and \a column from 1 on.
    void showPosition(int line, int column);
    void showLength(qsizetype characters);
    void showFormat(const TextFile &file);

private:
    QLabel *addLabel(const QString &name, const QString &toolTip);

    QLabel *m_message;
    QLabel *m_position;
    QLabel *m_length;
    QLabel *m_encoding;
    QLabel *m_lineEnds;
};
