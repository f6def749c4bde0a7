// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/PopupDriver.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTest>

#include <utility>

namespace {

constexpr std::chrono::milliseconds PollInterval(5);

QWidget *openPopup()
{
    QWidget *popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::activeModalWidget();
}

void closePopups()
{
    // A popup that refuses to close must not keep us here for ever.
    constexpr int Attempts = 20;
    for (int i = 0; i < Attempts && openPopup(); ++i)
        openPopup()->close();
}

template <typename Popup>
std::function<bool(QWidget *)> forType(std::function<void(Popup *)> drive)
{
    return [drive = std::move(drive)](QWidget *widget) {
        auto *popup = qobject_cast<Popup *>(widget);
        if (popup)
            drive(popup);
        return popup != nullptr;
    };
}

} // namespace

PopupDriver::PopupDriver(std::function<void(QMenu *)> drive, std::chrono::milliseconds timeout)
    : m_tryDrive(forType(std::move(drive))), m_timeout(timeout)
{
    start();
}

PopupDriver::PopupDriver(std::function<void(QMessageBox *)> drive,
                         std::chrono::milliseconds timeout)
    : m_tryDrive(forType(std::move(drive))), m_timeout(timeout)
{
    start();
}

PopupDriver::~PopupDriver()
{
    if (!m_hasRun && !m_hasTimedOut)
        QTest::qFail("the expected popup never came", __FILE__, __LINE__);
}

void PopupDriver::start()
{
    m_elapsed.start();
    connect(&m_timer, &QTimer::timeout, this, &PopupDriver::poll);
    m_timer.start(PollInterval);
}

void PopupDriver::poll()
{
    const QPointer<QWidget> popup(openPopup());
    if (popup) {
        m_timer.stop(); // the test's function may run an event loop
        m_hasRun = m_tryDrive(popup);
        if (popup && m_hasRun)
            popup->close();
    }
    if (m_hasRun)
        return;
    if (m_elapsed.hasExpired(m_timeout.count())) {
        m_timer.stop();
        m_hasTimedOut = true;
        closePopups();
        QFAIL("the expected popup did not come in time");
    }
    m_timer.start();
}

PopupBan::PopupBan()
{
    connect(&m_timer, &QTimer::timeout, this, &PopupBan::poll);
    m_timer.start(PollInterval);
}

PopupBan::~PopupBan()
{
    poll();
}

void PopupBan::poll()
{
    if (!openPopup())
        return;
    closePopups();
    QFAIL("a popup opened where none is expected");
}
