// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtMessageHandler>

/// Passes on every message of Qt and of the program, from any thread, as a signal.
///
/// While there is one, it stands before the message handler that was there before, which still gets
/// every message, and takes its place again after the last relay.
class MessageRelay : public QObject
{
    Q_OBJECT

public:
    explicit MessageRelay(QObject *parent = nullptr);
    ~MessageRelay() override;

Q_SIGNALS:
    /// Comes in a later turn of the event loop than the message.
    void received(QtMsgType type, const QString &text);
};
