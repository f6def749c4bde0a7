// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ChildProcess.h"
#include "TemporaryHome.h"

#include <QImage>
#include <QSize>

class Steps;

/// An X server with a screen that nobody sees, and a window manager on it.
class VirtualDisplay
{
public:
    /// Starts both and waits until windows are managed. \a size is in pixels.
    VirtualDisplay(QSize size, Steps *steps);

    /// What programs need to find it; empty when it could not be started.
    QString name() const { return m_name; }

    /// Of the whole screen, in pixels.
    QImage picture() const;

    /// The same even after a failure of the scenario; null when there is none.
    QImage lastPicture() const;

    /// Runs a program that tells something about the display, or does something there. Returns
    /// whether it could; \a output gets what it wrote.
    bool run(const QString &program, const QStringList &arguments,
             QByteArray *output = nullptr) const;

private:
    void startServer(QSize size);
    void pressFirstKey() const;
    void startManager();

    Steps *const m_steps;
    const TemporaryHome m_home;
    QString m_name;
    // The manager ends before its server.
    ChildProcess m_server;
    ChildProcess m_manager;
};
