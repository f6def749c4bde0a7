// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentController.h"

#include "Messages.h"
#include "NotepadActions.h"
#include "StyledText.h"
#include "TextEditor.h"
#include "WaitCursor.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// Does \a work under a pointer that shows that large files take their time.
template <typename Work>
auto waiting(Work work)
{
    const WaitCursor cursor;
    return work();
}

bool isSameFile(const QString &path, const QString &other)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(other).canonicalFilePath();
}

bool isHtmlName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == u"html" || suffix == u"htm";
}

} // namespace

DocumentController::DocumentController(TextEditor *editor, NotepadActions *actions, QWidget *window)
    : QObject(window), m_editor(editor), m_actions(actions), m_window(window)
{
    connect(actions->newFile, &QAction::triggered, this, &DocumentController::newFile);
    connect(actions->open, &QAction::triggered, this, &DocumentController::open);
    connect(actions->reload, &QAction::triggered, this, &DocumentController::reload);
    connect(actions->save, &QAction::triggered, this, &DocumentController::save);
    connect(actions->saveAs, &QAction::triggered, this, &DocumentController::saveAs);
    connect(actions->saveCopy, &QAction::triggered, this, &DocumentController::saveCopy);
    connect(actions->lineEndLf, &QAction::triggered, this,
            [this] { setLineEnd(TextFile::LineEnd::Lf); });
    connect(actions->lineEndCrLf, &QAction::triggered, this,
            [this] { setLineEnd(TextFile::LineEnd::CrLf); });
    connect(actions->byteOrderMark, &QAction::triggered, this,
            &DocumentController::setByteOrderMark);
    // The program that the file comes from waits until the drop is over.
    connect(editor, &TextEditor::fileDropped, this, &DocumentController::openDropped,
            Qt::QueuedConnection);
    showFile();
}

QString DocumentController::name() const
{
    return m_file.path().isEmpty() ? tr("Untitled") : QFileInfo(m_file.path()).fileName();
}

TextFile::Status DocumentController::load(const QString &path)
{
    return waiting([this, &path] {
        TextFile::Status status = m_file.load(path);
        if (status.ok()) {
            showText();
            showFile();
            Q_EMIT reported(tr("Opened “%1”").arg(name()));
        }
        return status;
    });
}

void DocumentController::showText()
{
    m_isStyledFile = isHtmlName(m_file.path()) && StyledText::isReadable(m_file.text());
    m_areStylesDropped = false;
    if (m_isStyledFile)
        m_editor->setStyledText(m_file.text());
    else
        m_editor->setText(m_file.text());
}

bool DocumentController::openPath(const QString &path)
{
    const TextFile::Status status = load(path);
    if (!status.ok())
        Messages::warn(m_window,
                       tr("“%1” could not be opened.").arg(QDir::toNativeSeparators(path)),
                       status.reason);
    return status.ok();
}

bool DocumentController::mayLoseText()
{
    if (!m_editor->document()->isModified())
        return true;
    switch (Messages::askToSave(m_window, name())) {
    case Messages::Answer::Save:
        return save();
    case Messages::Answer::Discard:
        return true;
    case Messages::Answer::Cancel:
        break;
    }
    return false;
}

void DocumentController::newFile()
{
    if (!mayLoseText())
        return;
    m_file = TextFile();
    showText();
    showFile();
}

void DocumentController::open()
{
    if (!mayLoseText())
        return;
    const QString filter = tr(
        "Text files (*.txt *.md *.log *.csv *.html *.htm *.ini *.json *.xml);;All files (*)");
    const QString path = QFileDialog::getOpenFileName(m_window, tr("Open"), folder(), filter,
                                                      nullptr);
    if (!path.isEmpty())
        openPath(path);
}

void DocumentController::openDropped(const QString &path)
{
    if (mayLoseText())
        openPath(path);
}

void DocumentController::reload()
{
    const QString text = tr("Read “%1” again and lose the changes that were not saved?")
                             .arg(name());
    if (!m_editor->document()->isModified() || Messages::confirm(m_window, text, tr("Reload")))
        openPath(m_file.path());
}

bool DocumentController::save()
{
    if (m_file.path().isEmpty())
        return saveAs();
    const QString text =
        tr("“%1” was changed by another program since it was opened. Replace what is there now?")
            .arg(name());
    if (m_file.isChangedOnDisk() && !Messages::confirm(m_window, text, tr("Replace")))
        return false;
    return saveTo(m_file.path());
}

bool DocumentController::saveAs()
{
    const QString path = askForTarget(tr("Save As"));
    return !path.isEmpty() && saveTo(path);
}

void DocumentController::saveCopy()
{
    const QString path = askForTarget(tr("Save a Copy"));
    if (path.isEmpty())
        return;
    if (isSameFile(path, m_file.path())) {
        saveTo(path);
        return;
    }
    const std::optional<QString> text = textFor(path);
    if (!text)
        return;
    const TextFile::Status status = waiting(
        [this, &path, &text] { return m_file.saveCopy(path, *text); });
    if (status.ok())
        Q_EMIT reported(tr("Saved a copy as “%1”").arg(QDir::toNativeSeparators(path)));
    else
        sayNotSaved(path, status);
}

/// What the file at \a path is to hold; nothing if the text shall not be saved there.
std::optional<QString> DocumentController::textFor(const QString &path) const
{
    if (!keepsStyles(path))
        return mayDropStyles(path) ? std::optional(m_editor->text()) : std::nullopt;
    const QString html = StyledText::toHtml(*m_editor->document());
    if (StyledText::isReadable(html))
        return html;
    sayNotSaved(path, {TextFile::Error::WriteFailed,
                       tr("It holds control characters, which HTML cannot keep.")});
    return std::nullopt;
}

/// The file that is open stays what it is: somebody may be writing a page by hand. A page that is
/// written by hand has no styles, so it is plain text under a new name too.
bool DocumentController::keepsStyles(const QString &path) const
{
    if (path == m_file.path() || isSameFile(path, m_file.path()))
        return m_isStyledFile;
    return isHtmlName(path) && StyledText::hasStyles(*m_editor->document());
}

/// Whether the text may be saved to \a path without its styles: there are none, or the user does
/// not need them.
bool DocumentController::mayDropStyles(const QString &path) const
{
    const bool isKnown = path == m_file.path() && m_areStylesDropped;
    if (isKnown || !StyledText::hasStyles(*m_editor->document()))
        return true;
    const QString text = tr("“%1” is plain text, which holds no styles. Save As keeps them, in "
                            "another file with a name that ends in .html.")
                             .arg(QFileInfo(path).fileName());
    return Messages::confirm(m_window, text, tr("Save Without Styles"));
}

bool DocumentController::saveTo(const QString &path)
{
    const bool isStyledFile = keepsStyles(path);
    const std::optional<QString> text = textFor(path);
    if (!text)
        return false;
    const TextFile::Status status = waiting(
        [this, &path, &text] { return m_file.save(path, *text); });
    if (!status.ok()) {
        sayNotSaved(path, status);
        return false;
    }
    m_isStyledFile = isStyledFile;
    m_areStylesDropped = !isStyledFile && StyledText::hasStyles(*m_editor->document());
    m_editor->document()->setModified(false);
    showFile();
    Q_EMIT reported(tr("Saved “%1”").arg(name()));
    return true;
}

void DocumentController::sayNotSaved(const QString &path, const TextFile::Status &status) const
{
    Messages::warn(m_window, tr("“%1” could not be saved.").arg(QDir::toNativeSeparators(path)),
                   status.reason);
}

QString DocumentController::askForTarget(const QString &title) const
{
    const bool isStyled = StyledText::hasStyles(*m_editor->document());
    const QString newName = name() + (isStyled ? u".html"_s : u".txt"_s);
    const QString proposal = m_file.path().isEmpty() ? QDir(folder()).filePath(newName)
                                                     : m_file.path();
    const QString filter = tr("Text files (*.txt);;Text with styles (*.html *.htm);;All files (*)");
    QString chosenFilter = tr("All files (*)");
    return QFileDialog::getSaveFileName(m_window, title, proposal, filter, &chosenFilter);
}

QString DocumentController::folder() const
{
    if (m_file.path().isEmpty())
        return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(m_file.path()).absolutePath();
}

void DocumentController::setLineEnd(TextFile::LineEnd lineEnd)
{
    if (m_file.lineEnd() != lineEnd) {
        m_file.setLineEnd(lineEnd);
        m_editor->document()->setModified(true);
    }
    showFile();
}

void DocumentController::setByteOrderMark(bool on)
{
    m_file.setByteOrderMark(on);
    m_editor->document()->setModified(true);
    showFile();
}

void DocumentController::showFile()
{
    m_actions->lineEndLf->setChecked(m_file.lineEnd() == TextFile::LineEnd::Lf);
    m_actions->lineEndCrLf->setChecked(m_file.lineEnd() == TextFile::LineEnd::CrLf);
    m_actions->byteOrderMark->setChecked(m_file.hasByteOrderMark());
    m_actions->reload->setEnabled(!m_file.path().isEmpty());
    m_actions->insertFileName->setEnabled(!m_file.path().isEmpty());
    Q_EMIT fileChanged();
}
