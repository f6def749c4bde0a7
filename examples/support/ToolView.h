// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

/// A view with a row of push buttons above its content, and a short note beside them.
///
/// Each button stands for an action of the view, so that its title menu can offer them too.
class ToolView : public QWidget
{
    Q_OBJECT

public:
    /// Of a line in a list, in px.
    static constexpr int Row_Height = 20;

    explicit ToolView(QWidget *parent = nullptr);

    QString note() const;

protected:
    /// Fills the view with \a content, which gets the focus that the view is given.
    void setContent(QWidget *content);

    /// Adds a button and its action.
    QAction *addCommand(const QString &text, const QString &name);

    void setNote(const QString &text);

    void changeEvent(QEvent *event) override;

private:
    void alignNote();

    QHBoxLayout *m_row;
    QLabel *m_note;
};
