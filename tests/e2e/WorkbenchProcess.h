// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ChildProcess.h"

#include <QRect>
#include <QStringList>

#include <functional>

class Steps;
class TemporaryHome;

/// The workbench as it is run from the command line, and what it says about its window.
///
/// What it writes to its standard error fails the scenario when it ends.
class WorkbenchProcess
{
public:
    /// Where and how it is to run.
    struct Place
    {
        QString display; ///< none when it is empty: then it draws on no screen at all
        int scale = 1; ///< how many pixels a unit of its coordinates has
    };

    /// Its settings are in the file "settings.ini" of \a home.
    WorkbenchProcess(const TemporaryHome *home, const Place &place, Steps *steps);

    /// Runs \a program, until it can be asked. Paths among \a arguments are taken from the home
    /// folder.
    void start(const QString &program, const QStringList &arguments);

    /// The lines that answer \a command.
    QStringList ask(const QString &command);

    /// What the report says about \a key.
    QString value(const QString &key);

    /// Waits until it says \a expected.
    void waitFor(const QString &key, const QString &expected);

    /// The same as long as \a isWanted does not say yes.
    void waitFor(const QString &key, const std::function<bool(const QString &)> &isWanted);

    /// Where something is, as "widget NAME", "action NAME" and so on describe it, as soon as it can
    /// be seen and stays where it is. In the coordinates of the program, not in pixels.
    QRect place(const QString &command);

    /// Waits until that cannot be seen.
    void waitUntilGone(const QString &command);

    /// Waits until the program has ended by itself, without an error.
    void waitForEnd();

    /// Ends it by a signal, as a system does that shuts down.
    void terminate();

    bool isRunning() const { return m_process.state() == QProcess::Running; }

private:
    QString answerOf(const QString &command);
    void checkErrors();

    Steps *const m_steps;
    ChildProcess m_process;
};
