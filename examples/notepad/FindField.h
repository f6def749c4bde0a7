// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

/// A line of text on the ribbon that is used and left with the keyboard.
class FindField : public QLineEdit
{
    Q_OBJECT

public:
    /// \a name says what the field is for, to those who see it while it is empty and to those who
    /// hear it.
    explicit FindField(const QString &name, QWidget *parent = nullptr);

    /// Makes the field ready to type in: focused, its text selected.
    void activate();

    /// Shows the text in red when it was not found.
    void setFailed(bool failed);

Q_SIGNALS:
    /// The user pressed Return, or Shift+Return for \a backwards.
    void entered(bool backwards);

    /// The user pressed Escape.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
