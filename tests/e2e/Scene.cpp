// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Screen_Size(1280, 900);

} // namespace

Scene::Scene(QString program, int scale)
    : m_program(std::move(program)), m_scale(scale), m_display(Screen_Size * scale, &m_steps),
      m_person(&m_display, scale, &m_steps)
{}

void Scene::write(const QString &name, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        m_steps.fail(u"%1 could not be written"_s.arg(name));
}

QByteArray Scene::bytesOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Scene::start(const QStringList &arguments)
{
    if (m_steps.haveFailed())
        return;
    m_workbench = std::make_unique<WorkbenchProcess>(
        &m_home, WorkbenchProcess::Place{m_display.name(), m_scale}, &m_steps);
    m_workbench->start(m_program, arguments);
    m_workbench->waitFor(u"active"_s, [](const QString &window) { return !window.isEmpty(); });
}

void Scene::close()
{
    m_person.press(u"alt+F4"_s);
}

void Scene::leave()
{
    if (m_steps.haveFailed())
        return;
    close();
    m_workbench->waitForEnd();
}

void Scene::click(const QString &command, Person::Button button)
{
    if (m_steps.haveFailed())
        return;
    m_steps.add(u"click on "_s + command);
    m_person.click(m_workbench->place(command).center(), button);
}

void Scene::doubleClick(const QString &command)
{
    if (m_steps.haveFailed())
        return;
    m_steps.add(u"double click on "_s + command);
    m_person.doubleClick(m_workbench->place(command).center());
}

void Scene::answer(const QString &button)
{
    if (m_steps.haveFailed())
        return;
    click(u"button "_s + button);
    m_workbench->waitFor(u"box"_s, QString());
}

QColor Scene::colorAt(QPoint point) const
{
    const QPoint pixel = point * m_scale + QPoint(m_scale / 2, m_scale / 2);
    return picture().pixelColor(pixel);
}

void Scene::waitForColor(QPoint point, const QColor &color)
{
    QColor seen;
    m_steps.waitUntil(
        [this, point, &color, &seen] {
            seen = colorAt(point);
            return seen == color;
        },
        [point, &color, &seen] {
            return u"the colour at %1, %2 is %3 instead of %4"_s.arg(point.x()).arg(point.y()).arg(
                seen.name(), color.name());
        });
}
