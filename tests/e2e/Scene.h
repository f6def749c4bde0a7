// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Person.h"
#include "Steps.h"
#include "TemporaryHome.h"
#include "VirtualDisplay.h"
#include "WorkbenchProcess.h"

#include <QColor>

#include <memory>

/// A person at a screen, with the workbench and a home folder for its files.
class Scene
{
public:
    /// A screen whose coordinates have \a scale pixels; \a program is the workbench's file.
    explicit Scene(QString program, int scale = 1);

    Steps *steps() { return &m_steps; }
    const Person *person() const { return &m_person; }
    WorkbenchProcess *workbench() { return m_workbench.get(); }

    /// Files are named by their paths in the home folder.
    QString path(const QString &name = QString()) const { return m_home.path(name); }
    void write(const QString &name, const QByteArray &bytes);
    QByteArray bytesOf(const QString &name) const;

    /// Starts the workbench, and waits until one of its windows has the keyboard.
    void start(const QStringList &arguments);

    /// Closes its window as a person does; leave() also waits until the program has ended.
    void close();
    void leave();

    /// Clicks on what \a command of the report describes, in its middle.
    void click(const QString &command, Person::Button button = Person::Left);
    void doubleClick(const QString &command);

    /// Clicks on a button of an open box, and waits until the box is gone.
    void answer(const QString &button);

    /// The screen as it is now, in pixels.
    QImage picture() const { return m_display.picture(); }

    /// The same even after a failure; null when there is none.
    QImage lastPicture() const { return m_display.lastPicture(); }

    /// The colour at a point of the program's coordinates.
    QColor colorAt(QPoint point) const;

    /// Waits until it has this colour.
    void waitForColor(QPoint point, const QColor &color);

private:
    const QString m_program;
    const int m_scale;
    Steps m_steps;
    TemporaryHome m_home;
    VirtualDisplay m_display;
    Person m_person;
    std::unique_ptr<WorkbenchProcess> m_workbench;
};
