// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Person.h"

#include "Steps.h"
#include "VirtualDisplay.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Drag_Steps = 8;
constexpr int Wheel_Up = 4;
constexpr int Wheel_Down = 5;

} // namespace

Person::Person(const VirtualDisplay *display, int scale, Steps *steps)
    : m_display(display), m_scale(scale), m_steps(steps)
{}

QStringList Person::moveArguments(QPoint to) const
{
    // Into the middle of the pixels that stand for the point.
    const QPoint pixel = to * m_scale + QPoint(m_scale / 2, m_scale / 2);
    return {u"mousemove"_s, QString::number(pixel.x()), QString::number(pixel.y())};
}

void Person::act(const QStringList &arguments) const
{
    if (m_steps->haveFailed())
        return;
    m_steps->add(arguments.join(u' '));
    if (!m_display->run(u"xdotool"_s, arguments))
        m_steps->fail(u"xdotool failed: "_s + arguments.join(u' '));
}

void Person::move(QPoint to) const
{
    act(moveArguments(to));
}

void Person::click(QPoint at, Button button) const
{
    act(moveArguments(at) + QStringList{u"click"_s, QString::number(button)});
}

void Person::doubleClick(QPoint at) const
{
    act(moveArguments(at)
        + QStringList{u"click"_s, u"--repeat"_s, u"2"_s, u"--delay"_s, u"40"_s, u"1"_s});
}

void Person::drag(QPoint from, QPoint to) const
{
    startDrag(from, to);
    drop();
}

void Person::startDrag(QPoint from, QPoint to) const
{
    QStringList arguments = moveArguments(from) + QStringList{u"mousedown"_s, u"1"_s};
    for (int step = 1; step <= Drag_Steps; ++step)
        arguments += moveArguments(from + (to - from) * step / Drag_Steps);
    act(arguments);
}

void Person::drop() const
{
    act({u"mouseup"_s, u"1"_s});
}

void Person::wheel(QPoint at, int notches) const
{
    act(moveArguments(at)
        + QStringList{u"click"_s, u"--repeat"_s, QString::number(qAbs(notches)),
                      QString::number(notches < 0 ? Wheel_Up : Wheel_Down)});
}

void Person::type(const QString &text) const
{
    act({u"type"_s, u"--delay"_s, u"8"_s, text});
}

void Person::press(const QString &keys) const
{
    act({u"key"_s, keys});
}
