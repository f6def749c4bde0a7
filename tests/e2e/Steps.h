// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

/// What was done in a scenario, and the first thing that went wrong in it.
///
/// After a failure all that follows does nothing, so that it is the first reason that is told.
class Steps
{
public:
    /// How long a program may take for something, on a slow machine too.
    static constexpr std::chrono::seconds Patience{20};

    /// Nothing is waited for longer than \a patience.
    explicit Steps(std::chrono::milliseconds patience = Patience);

    void add(const QString &step);
    void fail(const QString &reason);
    bool haveFailed() const { return !m_reason.isEmpty(); }

    /// The reason, and the last steps before it.
    QString failure() const;

    /// Asks \a isThere until it says yes. Otherwise the scenario fails with what \a reason says.
    bool waitUntil(const std::function<bool()> &isThere, const std::function<QString()> &reason);

private:
    const std::chrono::milliseconds m_patience;
    QStringList m_steps;
    QString m_reason;
};
