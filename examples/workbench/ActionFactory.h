// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QString>

class QAction;
class QWidget;

/// Makes the commands of a window: its actions, with object names, icons and keys.
class ActionFactory
{
public:
    explicit ActionFactory(QWidget *window) : m_window(window) {}

    /// An action of the window, so that its \a keys work wherever the focus is and whichever page
    /// of the ribbon is shown. Its icon is the one of its \a name.
    QAction *create(const QString &name, const QString &text, const QKeySequence &keys = {}) const;

    /// The same for one that is on or off.
    QAction *createSwitch(const QString &name, const QString &text,
                          const QKeySequence &keys = {}) const;

private:
    QWidget *m_window;
};
