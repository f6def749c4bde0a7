// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextEditor.h"

#include "LineNumberArea.h"
#include "StyledText.h"

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

/// Whether both are lines of the same lengths.
bool haveSameLines(const QString &text, const QString &other)
{
    const auto isAlike = [](QChar first, QChar second) {
        return (first == u'\n') == (second == u'\n');
    };
    return std::equal(text.cbegin(), text.cend(), other.cbegin(), other.cend(), isAlike);
}

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
    // All of the text would look like what is at the cursor now.
    setCurrentCharFormat(QTextCharFormat());
    setPlainText(text);
    // A document margin counts as a change that can be undone, each time that it is laid round an
    // empty text.
    document()->clearUndoRedoStacks();
    document()->setModified(false);
}

void TextEditor::setStyledText(const QString &html)
{
    setText(QString());
    StyledText::insert(html, QTextCursor(document()));
    moveCursor(QTextCursor::Start);
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
    if (StyledText::hasStyles(*document()) && haveSameLines(text, selectedText()))
        replacePieces(start, text);
    else
        cursor.insertText(text);
    select(start, text.size());
}

/// Puts \a text in place of as much text from \a start on, in which the lines are as long. Each piece
/// keeps its styles.
void TextEditor::replacePieces(int start, const QString &text)
{
    const int end = start + static_cast<int>(text.size());
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    QTextBlock block = document()->findBlock(start);
    for (; block.isValid() && block.position() < end; block = block.next()) {
        const QList<StyledText::Piece> pieces = StyledText::pieces(block, start, end);
        for (const StyledText::Piece &piece : pieces) {
            cursor.setPosition(piece.start);
            cursor.setPosition(piece.end, QTextCursor::KeepAnchor);
            cursor.insertText(text.mid(piece.start - start, piece.end - piece.start), piece.format);
        }
    }
    cursor.endEditBlock();
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
        // This also lays the block out. Its number stands beside its first line, however large the
        // letters are.
        const qreal height = blockBoundingRect(block).height();
        const QRect number(0, qRound(top), area->width() - LineNumber_Margin,
                           qRound(block.layout()->lineAt(0).height()));
        painter.drawText(QStyle::visualRect(layoutDirection(), area->rect(), number),
                         Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(block.blockNumber() + 1));
        top += height;
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
    const QString html = StyledText::toHtml(textCursor());
    if (!html.isEmpty())
        source->setHtml(html);
    return source;
}

void TextEditor::insertFromMimeData(const QMimeData *source)
{
    // Of styles, only those that the editor itself put there: a page would bring any font and size.
    if (source->hasHtml() && StyledText::isReadable(source->html()))
        StyledText::insert(source->html(), textCursor());
    else // A text file holds no NUL; with one it would not open again.
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
    const bool startsLine = event->matches(QKeySequence::InsertParagraphSeparator)
                            || event->matches(QKeySequence::InsertLineSeparator);
    const bool leavesHeading = startsLine && isAtEndOfHeading();
    if (startsLine) {
        // The base class would insert a line separator, which is no line end for other programs, or
        // take only a part of its style from a heading.
        textCursor().insertBlock();
        ensureCursorVisible();
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
    if (leavesHeading)
        makeNewLinePlain();
}

bool TextEditor::isAtEndOfHeading() const
{
    const QTextCursor cursor = textCursor();
    return cursor.blockFormat().headingLevel() > 0 && cursor.atBlockEnd();
}

/// What follows a heading is the text that it is the heading of.
void TextEditor::makeNewLinePlain()
{
    QTextCursor cursor = textCursor();
    cursor.joinPreviousEditBlock();
    cursor.setBlockFormat(QTextBlockFormat());
    cursor.setBlockCharFormat(QTextCharFormat());
    cursor.endEditBlock();
    setCurrentCharFormat(QTextCharFormat());
}

void TextEditor::paintEvent(QPaintEvent *event)
{
    drawGrounds();
    QPlainTextEdit::paintEvent(event);
    // As a marker does it on paper: the text can still be read, also on coloured paragraphs.
    QPainter painter(viewport());
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    if (m_currentLineMarked && !textCursor().hasSelection())
        drawCurrentLine(painter);
    if (!m_pattern.isEmpty())
        drawMarks(painter);
}

QList<QTextBlock> TextEditor::visibleBlocks() const
{
    QList<QTextBlock> blocks;
    const int bottom = viewport()->height();
    for (QTextBlock block = firstVisibleBlock();
         block.isValid() && blockBoundingGeometry(block).translated(contentOffset()).top() < bottom;
         block = block.next())
        blocks += block;
    return blocks;
}

/// The base class leaves an edge of coloured paragraphs white.
void TextEditor::drawGrounds() const
{
    QPainter painter(viewport());
    const QList<QTextBlock> blocks = visibleBlocks();
    for (const QTextBlock &block : blocks) {
        const QBrush ground = block.blockFormat().background();
        if (ground == Qt::NoBrush)
            continue;
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        painter.fillRect(QRectF(0, place.top(), viewport()->width(), place.height()), ground);
    }
}

void TextEditor::drawCurrentLine(QPainter &painter) const
{
    const QRect cursor = cursorRect();
    painter.fillRect(QRect(0, cursor.top(), viewport()->width(), cursor.height()),
                     CurrentLineColor);
}

void TextEditor::drawMarks(QPainter &painter) const
{
    const QList<QTextBlock> blocks = visibleBlocks();
    for (const QTextBlock &block : blocks)
        drawMarksOf(block, painter);
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
    for (; match.isValid() && match.start < end;
         match = TextSearch::findNext(text, m_pattern, match.end(), m_options)) {
        if (isSelected(block.position() + match.start, match.length))
            continue;
        const int firstOfMatch = layout->lineForTextPosition(int(match.start)).lineNumber();
        for (int i = std::max(first, firstOfMatch);
             i < last && layout->lineAt(i).textStart() < match.end(); ++i)
            drawMark(match, layout->lineAt(i), origin, painter);
    }
}

/// Whether any of the text has the colour of selected text.
bool TextEditor::isSelected(qsizetype start, qsizetype length) const
{
    const QTextCursor cursor = textCursor();
    return cursor.selectionStart() < start + length && start < cursor.selectionEnd();
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
