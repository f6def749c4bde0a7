// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextPage.h"

#include "MarkdownHeadings.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

TextPage::TextPage(const QString &path, const QString &text, bool isMarkdown)
    : DocumentPage(path), m_isMarkdown(isMarkdown), m_editor(new QPlainTextEdit)
{
    const QString family = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    // The sheet of the dock container sets the font of all that is in it; only a sheet can differ.
    m_editor->setStyleSheet(u"QPlainTextEdit { font-family: \"%1\"; }"_s.arg(family));
    m_editor->setObjectName(u"text"_s);
    m_editor->setAccessibleName(QFileInfo(path).fileName());
    m_editor->setFrameShape(QFrame::NoFrame);
    m_editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_editor->setReadOnly(true);
    m_editor->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_editor->setTabChangesFocus(true);
    m_editor->setPlainText(text);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_editor);
    setFocusProxy(m_editor);
}

QList<OutlineEntry> TextPage::outline() const
{
    return m_isMarkdown ? MarkdownHeadings::find(m_editor->toPlainText()) : QList<OutlineEntry>();
}

void TextPage::goToLine(int line)
{
    const QTextBlock block = m_editor->document()->findBlockByNumber(line);
    if (!block.isValid())
        return;
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    m_editor->setTextCursor(cursor);
    // A scroll bar of this widget counts lines.
    m_editor->verticalScrollBar()->setValue(block.firstLineNumber());
    m_editor->horizontalScrollBar()->setValue(0);
}
