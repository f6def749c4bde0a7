// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ToolView.h"

#include <QtMessageHandler>

class QPlainTextEdit;

/// The messages of the program since the start, the last ones when there are many.
class MessageLog : public ToolView
{
    Q_OBJECT

public:
    explicit MessageLog(QWidget *parent = nullptr);

    /// Adds all messages from now on that go through the message handler of Qt.
    void followMessageHandler();

    /// Adds a message.
    void append(QtMsgType type, const QString &text);

private:
    void clear();
    void showCount();

    QPlainTextEdit *m_text;
    int m_count = 0;
};
