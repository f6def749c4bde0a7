// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TestCase.h"

#include <QTemporaryDir>

#include <memory>

class NotepadDialog;
class QAction;
class QPushButton;
class TextEditor;

namespace VornFrame {
class RibbonBar;
}

/// The base of the tests of the whole window: each function finds it shown and active, with an
/// empty text, and an empty folder for its files.
class DialogFixture : public TestCase
{
    Q_OBJECT

public:
    DialogFixture();
    ~DialogFixture() override;

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    NotepadDialog *dialog() const { return m_dialog.get(); }
    TextEditor *editor() const;
    VornFrame::RibbonBar *bar() const;

    /// The command of this object name.
    QAction *action(const QString &name) const;

    /// The tab of this \a title, which has no marks for mnemonics.
    QPushButton *tab(const QString &title) const;

    /// The text that a person reads in the label of this \a name.
    QString label(const QString &name) const;

    QString path(const QString &name) const { return m_folder->filePath(name); }

    /// The path of a new file that holds \a bytes.
    QString createFile(const QString &name, const QByteArray &bytes) const;
    static QByteArray bytesOf(const QString &path);

    /// Opens a new file that holds \a bytes, without any question.
    QString openFile(const QString &name, const QByteArray &bytes) const;

    /// Selects \a length characters from \a start on, and waits until the window knows.
    void select(int start, int length) const;

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<NotepadDialog> m_dialog;
    QString m_clipboardText;
};
