// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QWidget>

#include <optional>

/// What a person does with the mouse.
///
/// The events take the way of real ones, through the window of the widget: the widget under the
/// pointer gets them, with the entering, leaving and grabbing that belongs to it, and an open popup
/// gets them first. Positions are in the coordinates of the widget; without one, its centre is
/// meant. The window has to be shown before, and the pointer has to stay inside of it, off its top
/// left pixel.
namespace Input {

using Position = std::optional<QPoint>;

/// Shows \a window and waits until it is active; false if that does not happen.
[[nodiscard]] bool show(QWidget *window);

void move(QWidget *widget, Position to = {});
void press(QWidget *widget, Position at = {}, Qt::MouseButton button = Qt::LeftButton);
void release(QWidget *widget, Position at = {}, Qt::MouseButton button = Qt::LeftButton);
void click(QWidget *widget, Position at = {}, Qt::MouseButton button = Qt::LeftButton);
void rightClick(QWidget *widget, Position at = {});
void doubleClick(QWidget *widget, Position at = {});

/// Presses the left button at \a from, moves to \a to in several steps and releases it there.
void drag(QWidget *widget, QPoint from, QPoint to);

/// Turns the wheel by \a steps notches; away from the user is positive.
void wheel(QWidget *widget, int steps, Position at = {});

} // namespace Input
