// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextFile.h"

#include <QObject>

#include <optional>

class NotepadActions;
class TextEditor;

/// The way of the text between the editor and its file: new, open, save, and the questions before
/// something would be lost.
///
/// A file is plain text, read and written to the letter, and styles are a matter of the window:
/// markup never gets into such a file. Styles are kept in HTML files that this program wrote from
/// styled text; any other HTML file is plain text too, its source. So a text with styles becomes a
/// file of its own when it is saved under a name that ends in .html or .htm, and whenever a save
/// would drop styles the user is asked first.
class DocumentController : public QObject
{
    Q_OBJECT

public:
    DocumentController(TextEditor *editor, NotepadActions *actions, QWidget *window);

    const TextFile &file() const { return m_file; }

    /// The name of the file without its folder, or a word for a text that has none.
    QString name() const;

    /// Puts the text of the file at \a path into the editor, without any question. If that fails,
    /// the text that is there stays.
    TextFile::Status load(const QString &path);

    /// The same for a person: says what went wrong. Returns whether it went well.
    bool openPath(const QString &path);

    /// Whether the text may go: there is nothing unsaved, or the user saved it now or does not want
    /// it.
    bool mayLoseText();

    /// Saves to the text's own file, or asks for one. Returns whether the text is safe on the disk.
    bool save();
    bool saveAs();

Q_SIGNALS:
    /// Another file or name, another kind of line ends, or a byte order mark more or less.
    void fileChanged();

    /// Something went well, \a text says what.
    void reported(const QString &text);

private:
    void newFile();
    void open();
    void openDropped(const QString &path);
    void reload();
    void saveCopy();
    void showText();
    std::optional<QString> textFor(const QString &path) const;
    bool keepsStyles(const QString &path) const;
    bool mayDropStyles(const QString &path) const;
    bool saveTo(const QString &path);
    void sayNotSaved(const QString &path, const TextFile::Status &status) const;
    QString askForTarget(const QString &title) const;
    QString folder() const;
    void setLineEnd(TextFile::LineEnd lineEnd);
    void setByteOrderMark(bool on);
    void showFile();

    TextEditor *m_editor;
    NotepadActions *m_actions;
    QWidget *m_window;
    TextFile m_file;
    /// Whether the file holds the styles of the text.
    bool m_isStyledFile = false;
    /// The user knows that the file does not hold them.
    bool m_areStylesDropped = false;
};
