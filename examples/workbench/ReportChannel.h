// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>

/// Answers questions from standard input, line by line, on standard output. So another process can
/// ask the program what it shows.
class ReportChannel : public QObject
{
    Q_OBJECT

public:
    explicit ReportChannel(QObject *parent = nullptr);

    /// Writes \a lines, and after them one that says "end: " and the \a command that they answer.
    static void answer(const QString &command, const QStringList &lines);

Q_SIGNALS:
    void signalCommand(const QString &command);

private:
    void read();

    QByteArray m_rest; ///< the beginning of a line that is not complete yet
};
