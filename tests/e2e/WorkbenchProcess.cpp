// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchProcess.h"

#include "Steps.h"
#include "TemporaryHome.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = int(std::chrono::milliseconds(Steps::Patience).count());

/// Whether a line that a program wrote to its standard error means that nothing is wrong.
bool isHarmless(const QByteArray &line)
{
    return line.isEmpty() || line.startsWith("This plugin does not support ");
}

QRect rectOf(const QString &text)
{
    const QStringList numbers = text.split(u' ');
    if (numbers.size() != 4)
        return {};
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(),
            numbers.at(3).toInt()};
}

} // namespace

WorkbenchProcess::WorkbenchProcess(const TemporaryHome *home, const Place &place, Steps *steps)
    : m_steps(steps)
{
    QProcessEnvironment environment = home->environment(place.display);
    environment.insert(u"QT_QPA_PLATFORM"_s, place.display.isEmpty() ? u"offscreen"_s : u"xcb"_s);
    environment.insert(u"QT_SCALE_FACTOR"_s, QString::number(place.scale));
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(home->path());
}

void WorkbenchProcess::start(const QString &program, const QStringList &arguments)
{
    if (m_steps->haveFailed())
        return;
    m_steps->add(u"start with "_s + arguments.join(u' '));
    m_process.start(program,
                    QStringList{u"--report"_s, u"--settings"_s, u"settings.ini"_s} + arguments);
    if (!m_process.waitForStarted(Patience))
        m_steps->fail(u"the workbench could not be started: "_s + m_process.errorString());
    place(u"widget workbench"_s);
}

QStringList WorkbenchProcess::ask(const QString &command)
{
    if (m_steps->haveFailed())
        return {};
    const QByteArray end = "end: " + command.toUtf8() + '\n';
    QByteArray output;
    m_process.write(command.toUtf8() + '\n');
    while (!output.endsWith(end)) {
        if (!m_process.waitForReadyRead(Patience)) {
            m_steps->fail(u"no answer to “%1”: %2 %3"_s.arg(
                command, m_process.errorString(),
                QString::fromUtf8(m_process.readAllStandardError())));
            return {};
        }
        output += m_process.readAllStandardOutput();
    }
    QStringList lines = QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
    lines.removeLast();
    return lines;
}

/// What follows \a command in the one line that answers it.
QString WorkbenchProcess::answerOf(const QString &command)
{
    const QString line = ask(command).value(0);
    if (!m_steps->haveFailed() && !line.startsWith(command + u": "_s))
        m_steps->fail(u"“%1” was answered by “%2”"_s.arg(command, line));
    return line.mid(command.size() + 2);
}

QString WorkbenchProcess::value(const QString &key)
{
    const QString start = key + u": "_s;
    const QStringList lines = ask(u"report"_s);
    for (const QString &line : lines) {
        if (line.startsWith(start))
            return line.mid(start.size());
    }
    m_steps->fail(u"the report says nothing about “%1”"_s.arg(key));
    return {};
}

void WorkbenchProcess::waitFor(const QString &key, const QString &expected)
{
    m_steps->add(u"wait until %1 is “%2”"_s.arg(key, expected));
    waitFor(key, [&expected](const QString &value) { return value == expected; });
}

void WorkbenchProcess::waitFor(const QString &key,
                               const std::function<bool(const QString &)> &isWanted)
{
    QString seen;
    m_steps->waitUntil(
        [this, &key, &isWanted, &seen] {
            seen = value(key);
            return isWanted(seen);
        },
        [this, &key, &seen] {
            return u"%1 is “%2”; the whole report:\n%3"_s.arg(key, seen,
                                                              ask(u"report"_s).join(u'\n'));
        });
}

QRect WorkbenchProcess::place(const QString &command)
{
    QRect before;
    QRect seen;
    m_steps->waitUntil(
        [this, &command, &before, &seen] {
            before = seen;
            seen = rectOf(answerOf(command));
            return seen.isValid() && seen == before;
        },
        [this, &command] {
            return u"“%1” cannot be seen; the whole report:\n%2"_s.arg(
                command, ask(u"report"_s).join(u'\n'));
        });
    return seen;
}

void WorkbenchProcess::waitUntilGone(const QString &command)
{
    m_steps->add(u"wait until %1 is gone"_s.arg(command));
    m_steps->waitUntil([this, &command] { return answerOf(command) == "-"_L1; },
                       [&command] { return u"“%1” can still be seen"_s.arg(command); });
}

void WorkbenchProcess::waitForEnd()
{
    if (m_steps->haveFailed())
        return;
    m_steps->add(u"wait for the end"_s);
    if (isRunning() && !m_process.waitForFinished(Patience)) {
        m_steps->fail(u"the workbench goes on; its report:\n"_s + ask(u"report"_s).join(u'\n'));
    }
    checkErrors();
    if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0)
        m_steps->fail(u"the workbench ended with code %1"_s.arg(m_process.exitCode()));
}

void WorkbenchProcess::terminate()
{
    if (m_steps->haveFailed())
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(Patience))
        m_steps->fail(u"the workbench does not end when it is told to"_s);
    checkErrors();
}

/// Warnings of Qt and findings of sanitizers.
void WorkbenchProcess::checkErrors()
{
    const QByteArray errors = m_process.readAllStandardError();
    const QByteArrayList lines = errors.split('\n');
    for (const QByteArray &line : lines) {
        if (!isHarmless(line)) {
            m_steps->fail(u"the workbench wrote to its standard error:\n"_s
                          + QString::fromUtf8(errors));
            return;
        }
    }
}
