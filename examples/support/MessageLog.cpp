// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "MessageLog.h"

#include "MessageRelay.h"

#include <QAction>
#include <QIcon>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

/// In lines.
constexpr int Log_Length = 1000;

} // namespace

MessageLog::MessageLog(QWidget *parent) : ToolView(parent), m_text(new QPlainTextEdit)
{
    setObjectName(u"messages"_s);
    setWindowTitle(tr("Messages"));
    setWindowIcon(QIcon(u":/support/messages.svg"_s));
    m_text->setObjectName(u"messageText"_s);
    m_text->setAccessibleName(windowTitle());
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setTabChangesFocus(true);
    m_text->setMaximumBlockCount(Log_Length);
    setContent(m_text);
    const QAction *clearing = addCommand(tr("C&lear"), u"clearMessages"_s);
    connect(clearing, &QAction::triggered, this, &MessageLog::clear);
    showCount();
}

void MessageLog::followMessageHandler()
{
    connect(new MessageRelay(this), &MessageRelay::received, this, &MessageLog::append);
}

void MessageLog::append(QtMsgType type, const QString &text)
{
    switch (type) {
    case QtDebugMsg:
        m_text->appendPlainText(tr("Debug: %1").arg(text));
        break;
    case QtInfoMsg:
        m_text->appendPlainText(tr("Information: %1").arg(text));
        break;
    case QtWarningMsg:
        m_text->appendPlainText(tr("Warning: %1").arg(text));
        break;
    case QtCriticalMsg:
    case QtFatalMsg:
        m_text->appendPlainText(tr("Error: %1").arg(text));
        break;
    }
    ++m_count;
    showCount();
}

void MessageLog::clear()
{
    m_text->clear();
    m_count = 0;
    showCount();
}

void MessageLog::showCount()
{
    setNote(m_count == 0 ? tr("No messages") : tr("Messages: %1").arg(m_count));
}
