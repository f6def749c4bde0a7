// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ReportChannel.h"

#include <QSocketNotifier>
#include <QStringList>
#include <QTextStream>

#include <array>

#include <unistd.h>

ReportChannel::ReportChannel(QObject *parent) : QObject(parent)
{
    auto *notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &ReportChannel::read);
}

void ReportChannel::answer(const QString &command, const QStringList &lines)
{
    QTextStream stream(stdout);
    for (const QString &line : lines)
        stream << line << '\n';
    stream << "end: " << command << '\n';
    stream.flush();
}

/// Not with QFile, which would wait until its whole buffer is full.
void ReportChannel::read()
{
    std::array<char, 4096> buffer{};
    const auto length = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (length <= 0) {
        // Nobody is there any more who could ask.
        deleteLater();
        return;
    }
    m_rest.append(buffer.data(), qsizetype(length));
    QByteArrayList lines = m_rest.split('\n');
    m_rest = lines.takeLast();
    for (const QByteArray &line : std::as_const(lines))
        Q_EMIT signalCommand(QString::fromUtf8(line.trimmed()));
}
