// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileDocument.h"
#include "TextFile.h"

#include <QTimer>

class QPlainTextEdit;

/// A text to edit, in a font whose letters are all as wide.
class TextDocument : public FileDocument
{
    Q_OBJECT

public:
    /// \a file was loaded from \a path.
    TextDocument(const QString &path, const TextFile &file);

    QPlainTextEdit *editor() const { return m_editor; }

    /// The text with "\n" between its lines. Other than QPlainTextEdit::toPlainText(), it keeps
    /// spaces of every kind.
    QString text() const;

    /// Whether the text has headings.
    bool isMarkdown() const { return m_isMarkdown; }

    void setPath(const QString &path) override;
    bool canUndo() const override;
    bool canRedo() const override;
    void undo() override;
    void redo() override;
    bool isModified() const override;
    bool isChangedOnDisk() const override;
    QList<OutlineEntry> outline() const override;
    void goToLine(int line) override;
    QList<QPair<QString, QString>> properties() const override;

protected:
    FileStatus write(Loss loss) override;
    FileStatus writeCopy(const QString &path) override;

private:
    void createEditor();
    QString lineEndName() const;

    TextFile m_file;
    const bool m_isMarkdown;
    QPlainTextEdit *m_editor;
    /// Counts down while someone types: an outline need not follow every letter.
    QTimer m_contentTimer;
};
