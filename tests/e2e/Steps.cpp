// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Steps.h"

#include <QDeadlineTimer>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int Trail_Length = 12;
constexpr unsigned long Poll_Interval = 20; // ms

} // namespace

Steps::Steps(std::chrono::milliseconds patience) : m_patience(patience) {}

void Steps::add(const QString &step)
{
    if (!haveFailed())
        m_steps.append(step);
}

void Steps::fail(const QString &reason)
{
    if (!haveFailed())
        m_reason = reason;
}

QString Steps::failure() const
{
    const QStringList last = m_steps.mid(qMax(qsizetype(0), m_steps.size() - Trail_Length));
    return m_reason + u"\nafter: "_s + last.join(u"\n       "_s);
}

bool Steps::waitUntil(const std::function<bool()> &isThere, const std::function<QString()> &reason)
{
    const QDeadlineTimer deadline(m_patience);
    while (!haveFailed()) {
        if (isThere())
            return !haveFailed();
        if (deadline.hasExpired())
            fail(reason());
        else
            QThread::msleep(Poll_Interval);
    }
    return false;
}
