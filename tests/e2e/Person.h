// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPoint>

class Steps;
class VirtualDisplay;

/// Pointer and keys as a person uses them: real events, that the programs on a display get from its
/// X server. Points are in the coordinates of programs of this scale.
class Person
{
public:
    enum Button { Left = 1, Middle = 2, Right = 3 };

    Person(const VirtualDisplay *display, int scale, Steps *steps);

    void move(QPoint to) const;
    void click(QPoint at, Button button = Left) const;
    void doubleClick(QPoint at) const;

    /// Presses the left button at \a from, and releases it at \a to, on a straight line between.
    void drag(QPoint from, QPoint to) const;

    /// The two halves of that, for what has to be seen in between.
    void startDrag(QPoint from, QPoint to) const;
    void drop() const;

    /// Turns the wheel; up when \a notches is negative.
    void wheel(QPoint at, int notches) const;

    /// Letters as they are on a keyboard with US layout.
    void type(const QString &text) const;

    /// A key or combination of keys, by the names of X: "Return", "ctrl+s".
    void press(const QString &keys) const;

private:
    void act(const QStringList &arguments) const;
    QStringList moveArguments(QPoint to) const;

    const VirtualDisplay *const m_display;
    const int m_scale;
    Steps *const m_steps;
};
