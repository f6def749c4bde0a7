// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextDocument.h"

#include "MarkdownHeadings.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QLocale>
#include <QMimeDatabase>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds Content_Delay(200);

bool isMarkdownFile(const QString &path)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    return type.inherits(u"text/markdown"_s);
}

qsizetype wordCount(const QString &text)
{
    qsizetype count = 0;
    bool isInWord = false;
    for (const QChar letter : text) {
        const bool isSpace = letter.isSpace();
        count += !isSpace && !isInWord ? 1 : 0;
        isInWord = !isSpace;
    }
    return count;
}

/// Letters that take two places of a string count once.
qsizetype letterCount(const QString &text)
{
    qsizetype count = text.size();
    for (const QChar letter : text)
        count -= letter.isLowSurrogate() ? 1 : 0;
    return count;
}

} // namespace

TextDocument::TextDocument(const QString &path, const TextFile &file)
    : FileDocument(Text, path), m_file(file), m_isMarkdown(isMarkdownFile(path)),
      m_editor(new QPlainTextEdit(this))
{
    createEditor();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_editor);
    setFocusProxy(m_editor);
    m_contentTimer.setSingleShot(true);
    m_contentTimer.setInterval(Content_Delay);
    connect(&m_contentTimer, &QTimer::timeout, this, &TextDocument::signalContentChanged);
    connect(m_editor, &QPlainTextEdit::textChanged, &m_contentTimer, qOverload<>(&QTimer::start));
    connect(m_editor, &QPlainTextEdit::undoAvailable, this, &TextDocument::signalHistoryChanged);
    connect(m_editor, &QPlainTextEdit::redoAvailable, this, &TextDocument::signalHistoryChanged);
    connect(m_editor, &QPlainTextEdit::modificationChanged, this,
            &TextDocument::signalModifiedChanged);
}

void TextDocument::createEditor()
{
    const QString family = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    // The sheet of the dock container sets the font of all that is in it; only a sheet can differ.
    m_editor->setStyleSheet(u"QPlainTextEdit { font-family: \"%1\"; }"_s.arg(family));
    m_editor->setObjectName(u"text"_s);
    m_editor->setAccessibleName(QFileInfo(path()).fileName());
    m_editor->setFrameShape(QFrame::NoFrame);
    m_editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_editor->setPlainText(m_file.text());
    m_editor->document()->setModified(false);
}

QString TextDocument::text() const
{
    return m_editor->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void TextDocument::setPath(const QString &path)
{
    FileDocument::setPath(path);
    m_file.setPath(path);
    m_editor->setAccessibleName(QFileInfo(path).fileName());
}

bool TextDocument::canUndo() const
{
    return m_editor->document()->isUndoAvailable();
}

bool TextDocument::canRedo() const
{
    return m_editor->document()->isRedoAvailable();
}

void TextDocument::undo()
{
    m_editor->undo();
}

void TextDocument::redo()
{
    m_editor->redo();
}

bool TextDocument::isModified() const
{
    return m_editor->document()->isModified();
}

bool TextDocument::isChangedOnDisk() const
{
    return m_file.isChangedOnDisk();
}

QList<OutlineEntry> TextDocument::outline() const
{
    return m_isMarkdown ? MarkdownHeadings::find(text()) : QList<OutlineEntry>();
}

void TextDocument::goToLine(int line)
{
    const QTextBlock block = m_editor->document()->findBlockByNumber(line);
    if (!block.isValid())
        return;
    m_editor->setTextCursor(QTextCursor(block));
    // A scroll bar of this widget counts lines.
    m_editor->verticalScrollBar()->setValue(block.firstLineNumber());
    m_editor->horizontalScrollBar()->setValue(0);
}

QString TextDocument::lineEndName() const
{
    switch (m_file.lineEnd()) {
    case TextFile::LineEnd::Lf:
        return tr("LF");
    case TextFile::LineEnd::CrLf:
        return tr("CR LF");
    case TextFile::LineEnd::Cr:
        return tr("CR");
    case TextFile::LineEnd::Mixed:
        break;
    }
    return tr("Mixed");
}

QList<QPair<QString, QString>> TextDocument::properties() const
{
    const QLocale locale;
    const QString all = text();
    return {
        {tr("Lines"), locale.toString(m_editor->blockCount())},
        {tr("Words"), locale.toString(wordCount(all))},
        {tr("Characters"), locale.toString(letterCount(all))},
        {tr("Encoding"), m_file.encodingName()},
        {tr("Line ends"), lineEndName()},
        {tr("Size on disk"), locale.formattedDataSize(QFileInfo(path()).size())},
    };
}

FileStatus TextDocument::write(Loss loss)
{
    FileStatus status = m_file.save(path(), text());
    if (status.error == FileStatus::Error::NotEncodable && loss == Loss::Accepted) {
        const TextCodec::Encoding before = m_file.encoding();
        m_file.setEncoding(TextCodec::Encoding::Utf8);
        status = m_file.save(path(), text());
        if (status.ok())
            Q_EMIT signalMessage(tr("%1 is in UTF-8 now.").arg(QFileInfo(path()).fileName()));
        else
            m_file.setEncoding(before);
    }
    if (status.ok()) {
        m_editor->document()->setModified(false);
        Q_EMIT signalContentChanged();
    }
    return status;
}

FileStatus TextDocument::writeCopy(const QString &path)
{
    FileStatus status = m_file.saveCopy(path, text());
    if (status.error == FileStatus::Error::NotEncodable) {
        // A new file may have the encoding that it needs.
        TextFile copy = m_file;
        copy.setEncoding(TextCodec::Encoding::Utf8);
        status = copy.saveCopy(path, text());
    }
    return status;
}
