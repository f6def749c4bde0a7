// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/Input.h"

#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace Input {

namespace {

constexpr int DragSteps = 4;
constexpr int AnglePerWheelStep = 120;

/// Where the pointer is, for the functions of QTest.
struct Target
{
    Target(const QWidget *widget, const Position &position)
        : window(widget->window()->windowHandle())
    {
        QTEST_ASSERT(window);
        point = widget->mapTo(widget->window(), position.value_or(widget->rect().center()));
        // QTest takes the top left pixel for "anywhere" and goes to the centre of the window.
        QTEST_ASSERT(!point.isNull());
    }

    QWindow *window;
    QPoint point;
};

} // namespace

bool show(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowActive(window) && QTest::qWaitForWindowExposed(window);
}

void move(QWidget *widget, Position to)
{
    const Target target(widget, to);
    QTest::mouseMove(target.window, target.point);
}

void press(QWidget *widget, Position at, Qt::MouseButton button)
{
    const Target target(widget, at);
    QTest::mousePress(target.window, button, {}, target.point);
}

void release(QWidget *widget, Position at, Qt::MouseButton button)
{
    const Target target(widget, at);
    QTest::mouseRelease(target.window, button, {}, target.point);
}

void click(QWidget *widget, Position at, Qt::MouseButton button)
{
    const Target target(widget, at);
    QTest::mouseClick(target.window, button, {}, target.point);
}

void rightClick(QWidget *widget, Position at)
{
    click(widget, at, Qt::RightButton);
}

void doubleClick(QWidget *widget, Position at)
{
    const Target target(widget, at);
    QTest::mouseDClick(target.window, Qt::LeftButton, {}, target.point);
}

void drag(QWidget *widget, QPoint from, QPoint to)
{
    const QPointer<QWidget> guard(widget);
    press(widget, from);
    for (int step = 1; guard && step <= DragSteps; ++step)
        move(widget, from + (to - from) * step / DragSteps);
    if (guard)
        release(widget, to);
}

void wheel(QWidget *widget, int steps, Position at)
{
    const Target target(widget, at);
    const QPoint angle(0, steps * AnglePerWheelStep);
    QWheelEvent event(target.point, target.window->mapToGlobal(target.point), {}, angle,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    // From outside: others are not handed on to the parent of a widget that ignores them.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(target.window, &event);
}

} // namespace Input
