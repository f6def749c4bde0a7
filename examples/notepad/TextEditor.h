// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextSearch.h"

#include <QPlainTextEdit>

class LineNumberArea;
class QTextBlock;
class QTextLine;

/// The text field of the program. Beyond its base class it numbers lines, marks the current line and
/// all places of a search, and gives and takes text to the letter (the base class turns no-break
/// spaces into spaces).
///
/// Text can have styles. The field lays out lines as a plain-text field does, so that large files
/// stay quick; it shows fonts and colours, but no indents and no alignment.
class TextEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextEditor(QWidget *parent = nullptr);

    /// The whole text with "\n" between lines. Positions in it are those of text cursors.
    QString text() const;

    /// Replaces everything, the undo history too.
    void setText(const QString &text);

    /// The same with the styles of \a html, a page that StyledText can read.
    void setStyledText(const QString &html);

    QString selectedText() const;

    /// Selects \a length characters from \a start on and scrolls there.
    void select(qsizetype start, qsizetype length);

    /// Selects all of each line that the selection touches.
    void selectWholeLines();

    /// Puts \a text in place of the selection as one step to undo, and selects it. Styles stay
    /// where the lines are as long as before; else all of it has those of the first letter.
    void replaceSelection(const QString &text);

    /// Puts \a text in place of everything as one step to undo; the cursor stays as near as it can.
    void replaceText(const QString &text);

    void setLineNumbersVisible(bool visible);
    void setCurrentLineMarked(bool marked);
    void setWhiteSpaceVisible(bool visible);

    /// Marks every place of \a pattern; an empty one marks nothing.
    void setMarkedPattern(const QString &pattern, TextSearch::Options options);

    /// For the line number area: its width, and its painting in \a area.
    int lineNumberWidth() const;
    void paintLineNumbers(QWidget *area, const QRect &exposed) const;

Q_SIGNALS:
    /// The user turned the wheel with Ctrl held, \a steps notches away from himself.
    void zoomRequested(int steps);

    /// The user dropped one file onto the text.
    void fileDropped(const QString &path);

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    QMimeData *createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData *source) override;

    void changeEvent(QEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void replacePieces(int start, const QString &text);
    bool isAtEndOfHeading() const;
    void makeNewLinePlain();
    bool isSelected(qsizetype start, qsizetype length) const;
    QList<QTextBlock> visibleBlocks() const;
    void drawGrounds() const;
    void drawCurrentLine(QPainter &painter) const;
    void drawMarks(QPainter &painter) const;
    void drawMarksOf(const QTextBlock &block, QPainter &painter) const;
    static void drawMark(const TextSearch::Match &match, const QTextLine &line, QPointF origin,
                         QPainter &painter);
    void layOutLineNumbers();
    void scrollLineNumbers(const QRect &rect, int dy);
    void updateTabWidth();

    LineNumberArea *m_lineNumbers;
    QString m_pattern;
    TextSearch::Options m_options;
    int m_wheelAngle = 0;
    bool m_currentLineMarked = true;
};
