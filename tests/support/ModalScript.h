// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QTimer>

#include <functional>

/// What a person answers to the modal windows that the next action of the test opens, one after
/// another.
///
/// A window of another kind than the next answer is for, or one too many, fails the test and is
/// closed; so does an answer that nothing asked for, in the end.
class ModalScript final : public QObject
{
    Q_OBJECT

public:
    ModalScript();
    ~ModalScript() override;

    /// Presses \a button in a message box.
    ModalScript &answer(QMessageBox::StandardButton button);

    /// Presses the button of this \a text in a message box.
    ModalScript &answer(const QString &text);

    /// Chooses the file at \a path in a file dialog; an empty one cancels.
    ModalScript &chooseFile(const QString &path);

    /// Accepts an input dialog with \a value.
    ModalScript &enter(int value);

    /// Closes a dialog of any kind, after handing it to \a look.
    ModalScript &close(std::function<void(QWidget *)> look);

    bool isDone() const { return m_steps.isEmpty(); }

    /// The texts of the message boxes that came.
    QStringList texts() const { return m_texts; }

private:
    /// Whether the step knew what to do with the window.
    using Step = std::function<bool(QWidget *window)>;

    void poll();
    bool press(QWidget *window, const std::function<QAbstractButton *(QMessageBox *)> &choose);

    QList<Step> m_steps;
    QStringList m_texts;
    QTimer m_timer;
};
