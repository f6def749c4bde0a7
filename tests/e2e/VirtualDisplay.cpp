// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "VirtualDisplay.h"

#include "Steps.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = int(std::chrono::milliseconds(Steps::Patience).count());

} // namespace

VirtualDisplay::VirtualDisplay(QSize size, Steps *steps) : m_steps(steps)
{
    startServer(size);
    if (m_steps->haveFailed())
        return;
    pressFirstKey();
    startManager();
}

/// The server itself chooses a number that is free, and says it when it is ready.
void VirtualDisplay::startServer(QSize size)
{
    m_server.setProcessEnvironment(m_home.environment({}));
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                               u"%1x%2x24"_s.arg(size.width()).arg(size.height()), u"-nolisten"_s,
                               u"tcp"_s, u"-noreset"_s});
    QByteArray number;
    while (!number.contains('\n') && m_server.waitForReadyRead(Patience))
        number += m_server.readAllStandardOutput();
    if (number.contains('\n'))
        m_name = u':' + QString::fromLatin1(number.trimmed());
    else
        m_steps->fail(u"Xvfb could not be started: "_s + m_server.errorString());
}

/// The first key tells all programs of a new keyboard. While the manager looks at that, it knows
/// none of its own keys, so this has to be over before it comes.
void VirtualDisplay::pressFirstKey() const
{
    if (!run(u"xdotool"_s, {u"key"_s, u"Shift_L"_s}))
        m_steps->fail(u"xdotool could not be run"_s);
}

void VirtualDisplay::startManager()
{
    m_manager.setProcessEnvironment(m_home.environment(m_name));
    m_manager.setStandardOutputFile(QProcess::nullDevice());
    m_manager.setStandardErrorFile(QProcess::nullDevice());
    m_manager.start(u"openbox"_s, {u"--sm-disable"_s});
    if (!m_manager.waitForStarted(Patience)) {
        m_steps->fail(u"openbox could not be started: "_s + m_manager.errorString());
        return;
    }
    // Only a manager knows of desktops.
    m_steps->waitUntil([this] { return run(u"xdotool"_s, {u"get_desktop"_s}); },
                       [] { return u"openbox or xdotool does not work"_s; });
}

QImage VirtualDisplay::picture() const
{
    if (m_steps->haveFailed())
        return {};
    QImage image = lastPicture();
    if (image.isNull())
        m_steps->fail(u"import could not take a picture of the screen"_s);
    return image;
}

QImage VirtualDisplay::lastPicture() const
{
    QByteArray bytes;
    QImage image;
    const QStringList arguments{u"-silent"_s, u"-window"_s, u"root"_s, u"png:-"_s};
    if (run(u"import"_s, arguments, &bytes))
        image.loadFromData(bytes, "PNG");
    return image.convertToFormat(QImage::Format_RGB32);
}

bool VirtualDisplay::run(const QString &program, const QStringList &arguments,
                         QByteArray *output) const
{
    ChildProcess process;
    process.setProcessEnvironment(m_home.environment(m_name));
    process.start(program, arguments);
    if (!process.waitForFinished(Patience) || process.exitStatus() != QProcess::NormalExit)
        return false;
    if (output)
        *output = process.readAllStandardOutput();
    return process.exitCode() == 0;
}
