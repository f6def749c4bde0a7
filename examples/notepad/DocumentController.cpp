// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentController.h"

#include "Messages.h"
#include "NotepadActions.h"
#include "TextEditor.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// Does \a work under a pointer that shows that large files take their time.
template <typename Work>
auto waiting(Work work)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    auto result = work();
    QGuiApplication::restoreOverrideCursor();
    return result;
}

bool isSameFile(const QString &path, const QString &other)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(other).canonicalFilePath();
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
            m_editor->setText(m_file.text());
            showFile();
            Q_EMIT reported(tr("Opened “%1”").arg(name()));
        }
        return status;
    });
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
    m_editor->setText(QString());
    showFile();
}

void DocumentController::open()
{
    if (!mayLoseText())
        return;
    const QString filter = tr(
        "Text files (*.txt *.md *.log *.csv *.ini *.json *.xml);;All files (*)");
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
    const TextFile::Status status = waiting(
        [this, &path] { return m_file.saveCopy(path, m_editor->text()); });
    if (status.ok())
        Q_EMIT reported(tr("Saved a copy as “%1”").arg(QDir::toNativeSeparators(path)));
    else
        sayNotSaved(path, status);
}

bool DocumentController::saveTo(const QString &path)
{
    const TextFile::Status status = waiting(
        [this, &path] { return m_file.save(path, m_editor->text()); });
    if (!status.ok()) {
        sayNotSaved(path, status);
        return false;
    }
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
    const QString proposal = m_file.path().isEmpty() ? QDir(folder()).filePath(name() + u".txt"_s)
                                                     : m_file.path();
    const QString filter = tr("Text files (*.txt);;All files (*)");
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
