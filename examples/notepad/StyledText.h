// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QTextCharFormat>

class QTextBlock;
class QTextCursor;
class QTextDocument;

/// Text with its styles as HTML: what a browser shows much as the editor does, and what comes back
/// from a file as it was.
///
/// Only what is written here is read here. Any other page would lose what the editor does not know,
/// so it is a plain text for this program: its source.
namespace StyledText {

/// A piece of text that looks the same all over.
struct Piece
{
    int start = 0; ///< in positions of the document
    int end = 0;
    QTextCharFormat format;
};

/// The pieces of \a block between \a start and \a end.
QList<Piece> pieces(const QTextBlock &block, int start, int end);

/// Whether there is anything in \a document that plain text could not hold.
bool hasStyles(const QTextDocument &document);

QString toHtml(const QTextDocument &document);

/// What \a selection selects; empty if there are no styles in it.
QString toHtml(const QTextCursor &selection);

/// Whether \a html was written here, to the last character, so that nothing gets lost when it is
/// read. False also for text with control characters, which HTML cannot hold.
bool isReadable(const QString &html);

/// Inserts readable \a html in place of what \a cursor selects.
void insert(const QString &html, QTextCursor cursor);

} // namespace StyledText
