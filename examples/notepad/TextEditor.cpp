// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextEditor.h"

#include "LineNumberArea.h"

#include <QMimeData>
#include <QPainter>
#include <QStyle>
#include <QTextBlock>
#include <QUrl>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int DocumentMargin = 6;
constexpr int LineNumber_Margin = 10;
constexpr int LineNumber_MinimumDigits = 3;
constexpr int TabWidth = 4;
constexpr int WheelNotch = 120;

constexpr QColor CurrentLineColor(237, 245, 252);
constexpr QColor MarkColor(255, 226, 143);
constexpr QColor LineNumberBackground(245, 245, 245);
constexpr QColor LineNumberLine(230, 230, 230);
constexpr QColor LineNumberColor(140, 140, 140);
constexpr QColor CurrentLineNumberColor(0, 64, 115);

} // namespace

TextEditor::TextEditor(QWidget *parent)
    : QPlainTextEdit(parent), m_lineNumbers(new LineNumberArea(this))
{
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(DocumentMargin);
    setText(QString());
    connect(this, &QPlainTextEdit::blockCountChanged, this, &TextEditor::layOutLineNumbers);
    connect(this, &QPlainTextEdit::updateRequest, this, &TextEditor::scrollLineNumbers);
    connect(this, &QPlainTextEdit::cursorPositionChanged, m_lineNumbers,
            qOverload<>(&QWidget::update));
    connect(this, &QPlainTextEdit::cursorPositionChanged, viewport(),
            qOverload<>(&QWidget::update));
    connect(this, &QPlainTextEdit::selectionChanged, viewport(), qOverload<>(&QWidget::update));
    layOutLineNumbers();
    updateTabWidth();
}

QString TextEditor::text() const
{
    return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void TextEditor::setText(const QString &text)
{
    setPlainText(text);
    // A document margin counts as a change that can be undone, each time that it is laid round an
    // empty text.
    document()->clearUndoRedoStacks();
    document()->setModified(false);
}

QString TextEditor::selectedText() const
{
    return textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

void TextEditor::select(qsizetype start, qsizetype length)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(int(start));
    cursor.setPosition(int(start + length), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

void TextEditor::selectWholeLines()
{
    const QTextCursor cursor = textCursor();
    const QTextBlock first = document()->findBlock(cursor.selectionStart());
    QTextBlock last = document()->findBlock(cursor.selectionEnd());
    // A selection that ends where a line starts touches nothing of that line.
    if (last != first && cursor.selectionEnd() == last.position())
        last = last.previous();
    select(first.position(), last.position() + last.length() - 1 - first.position());
}

void TextEditor::replaceSelection(const QString &text)
{
    QTextCursor cursor = textCursor();
    const int start = cursor.selectionStart();
    cursor.insertText(text);
    select(start, cursor.position() - start);
}

void TextEditor::replaceText(const QString &text)
{
    const int position = textCursor().position();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    cursor.endEditBlock();
    select(std::min<qsizetype>(position, text.size()), 0);
}

void TextEditor::setLineNumbersVisible(bool visible)
{
    m_lineNumbers->setVisible(visible);
    layOutLineNumbers();
}

void TextEditor::setCurrentLineMarked(bool marked)
{
    m_currentLineMarked = marked;
    viewport()->update();
}

void TextEditor::setWhiteSpaceVisible(bool visible)
{
    QTextOption option = document()->defaultTextOption();
    option.setFlags(option.flags().setFlag(QTextOption::ShowTabsAndSpaces, visible));
    document()->setDefaultTextOption(option);
}

void TextEditor::setMarkedPattern(const QString &pattern, TextSearch::Options options)
{
    m_pattern = pattern;
    m_options = options;
    viewport()->update();
}

int TextEditor::lineNumberWidth() const
{
    const auto digits = QString::number(blockCount()).size();
    const QString widest(std::max<qsizetype>(digits, LineNumber_MinimumDigits), u'9');
    return fontMetrics().horizontalAdvance(widest) + 2 * LineNumber_Margin;
}

void TextEditor::paintLineNumbers(QWidget *area, const QRect &exposed) const
{
    QPainter painter(area);
    painter.fillRect(exposed, LineNumberBackground);
    painter.fillRect(QRect(area->width() - 1, exposed.top(), 1, exposed.height()), LineNumberLine);
    painter.setFont(font());
    const int current = textCursor().blockNumber();
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= exposed.bottom()) {
        const bool isCurrent = block.blockNumber() == current;
        painter.setPen(isCurrent ? CurrentLineNumberColor : LineNumberColor);
        const QRect number(0, qRound(top), area->width() - LineNumber_Margin,
                           fontMetrics().height());
        painter.drawText(QStyle::visualRect(layoutDirection(), area->rect(), number),
                         Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(block.blockNumber() + 1));
        top += blockBoundingRect(block).height();
        block = block.next();
    }
}

bool TextEditor::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText();
}

QMimeData *TextEditor::createMimeDataFromSelection() const
{
    auto *source = new QMimeData; // the clipboard, or the drag, becomes the owner
    source->setText(selectedText());
    return source;
}

void TextEditor::insertFromMimeData(const QMimeData *source)
{
    // A text file holds no NUL; with one it would not open again.
    textCursor().insertText(source->text().remove(QChar::Null));
    ensureCursorVisible();
}

void TextEditor::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile()) {
        QPlainTextEdit::dropEvent(event);
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT fileDropped(urls.first().toLocalFile());
}

void TextEditor::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateTabWidth();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        layOutLineNumbers();
}

void TextEditor::keyPressEvent(QKeyEvent *event)
{
    // The base class would insert a line separator, which is no line end for other programs.
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void TextEditor::paintEvent(QPaintEvent *event)
{
    {
        // Under the text, which the base class paints without a background.
        QPainter painter(viewport());
        if (m_currentLineMarked && !textCursor().hasSelection())
            drawCurrentLine(painter);
        if (!m_pattern.isEmpty())
            drawMarks(painter);
    }
    QPlainTextEdit::paintEvent(event);
}

void TextEditor::drawCurrentLine(QPainter &painter) const
{
    const QRect cursor = cursorRect();
    painter.fillRect(QRect(0, cursor.top(), viewport()->width(), cursor.height()),
                     CurrentLineColor);
}

void TextEditor::drawMarks(QPainter &painter) const
{
    QTextBlock block = firstVisibleBlock();
    while (block.isValid()
           && blockBoundingGeometry(block).translated(contentOffset()).top()
                  < viewport()->height()) {
        drawMarksOf(block, painter);
        block = block.next();
    }
}

/// Only the lines that can be seen: a file may be one line of millions of characters.
void TextEditor::drawMarksOf(const QTextBlock &block, QPainter &painter) const
{
    const QPointF origin = blockBoundingGeometry(block).translated(contentOffset()).topLeft();
    const QTextLayout *layout = block.layout();
    int first = 0;
    while (first < layout->lineCount() && origin.y() + layout->lineAt(first).rect().bottom() < 0)
        ++first;
    int last = first;
    while (last < layout->lineCount()
           && origin.y() + layout->lineAt(last).y() < viewport()->height())
        ++last;
    if (first == last)
        return;

    const QString text = block.text();
    const int start = std::max(0, layout->lineAt(first).textStart() - int(m_pattern.size()));
    const int end = layout->lineAt(last - 1).textStart() + layout->lineAt(last - 1).textLength();
    TextSearch::Match match = TextSearch::findNext(text, m_pattern, start, m_options);
    while (match.isValid() && match.start < end) {
        const int firstOfMatch = layout->lineForTextPosition(int(match.start)).lineNumber();
        for (int i = std::max(first, firstOfMatch);
             i < last && layout->lineAt(i).textStart() < match.end(); ++i)
            drawMark(match, layout->lineAt(i), origin, painter);
        match = TextSearch::findNext(text, m_pattern, match.end(), m_options);
    }
}

void TextEditor::drawMark(const TextSearch::Match &match, const QTextLine &line, QPointF origin,
                          QPainter &painter)
{
    const int start = std::max(int(match.start), line.textStart());
    const int end = std::min(int(match.end()), line.textStart() + line.textLength());
    const qreal left = line.cursorToX(start);
    const QRectF mark(left, line.y(), line.cursorToX(end) - left, line.height());
    painter.fillRect(mark.normalized().translated(origin), MarkColor);
}

void TextEditor::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    layOutLineNumbers();
}

void TextEditor::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    // Fine wheels report parts of a notch.
    m_wheelAngle += event->angleDelta().y();
    const int steps = m_wheelAngle / WheelNotch;
    m_wheelAngle -= steps * WheelNotch;
    if (steps != 0)
        Q_EMIT zoomRequested(steps);
    event->accept();
}

void TextEditor::layOutLineNumbers()
{
    const int width = m_lineNumbers->isVisibleTo(this) ? lineNumberWidth() : 0;
    // Margins, unlike layouts, are not mirrored.
    if (isRightToLeft())
        setViewportMargins(0, 0, width, 0);
    else
        setViewportMargins(width, 0, 0, 0);
    m_lineNumbers->setGeometry(
        QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, width, height())));
}

void TextEditor::scrollLineNumbers(const QRect &rect, int dy)
{
    if (dy != 0)
        m_lineNumbers->scroll(0, dy);
    else
        m_lineNumbers->update(0, rect.y(), m_lineNumbers->width(), rect.height());
}

void TextEditor::updateTabWidth()
{
    setTabStopDistance(TabWidth * fontMetrics().horizontalAdvance(u' '));
}
