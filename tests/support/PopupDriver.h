// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

class QMenu;
class QMessageBox;
class QWidget;

/// Drives the menu or message box that the next action of the test opens.
///
/// Both hold up the call that opens them until they are closed, so what happens meanwhile has to be
/// said before:
///
///     PopupDriver driver([](QMenu *menu) { Input::click(menu, ...); });
///     Input::press(button);
///     QVERIFY(driver.hasRun());
///
/// The function runs once, on the first popup of its type; if that is still open afterwards, it is
/// closed. If none comes, or one of another type, the test fails: in the end when the driver is
/// destroyed, and after the time-out, when whatever is open is closed, so that a wrong popup does
/// not hold up the test for ever.
class PopupDriver final : public QObject
{
    Q_OBJECT

public:
    explicit PopupDriver(std::function<void(QMenu *)> drive,
                         std::chrono::milliseconds timeout = std::chrono::seconds(5));
    explicit PopupDriver(std::function<void(QMessageBox *)> drive,
                         std::chrono::milliseconds timeout = std::chrono::seconds(5));
    ~PopupDriver() override;

    bool hasRun() const { return m_hasRun; }

private:
    /// Runs the test's function if the widget is what it waits for; whether it was.
    using TryDrive = std::function<bool(QWidget *)>;

    void start();
    void poll();

    const TryDrive m_tryDrive;
    const std::chrono::milliseconds m_timeout;
    QElapsedTimer m_elapsed;
    QTimer m_timer;
    bool m_hasRun = false;
    bool m_hasTimedOut = false;
};

/// Fails the test if a menu or a modal box opens while it lives, and closes that.
class PopupBan final : public QObject
{
    Q_OBJECT

public:
    PopupBan();
    ~PopupBan() override;

private:
    void poll();

    QTimer m_timer;
};
