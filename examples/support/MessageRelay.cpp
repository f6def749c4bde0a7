// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "MessageRelay.h"

#include <QList>
#include <QMutex>
#include <QScopedValueRollback>

#include <cstring>
#include <utility>

namespace {

struct Registry
{
    QMutex mutex;
    QList<MessageRelay *> relays;
    QtMessageHandler previous = nullptr;
    bool isInstalled = false;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

QString textOf(const QMessageLogContext &context, const QString &message)
{
    if (!context.category || std::strcmp(context.category, "default") == 0)
        return message;
    return QLatin1StringView(context.category) + QLatin1StringView(": ") + message;
}

/// Queued: a message may come from another thread, or from the midst of painting.
QtMessageHandler post(QtMsgType type, const QString &text)
{
    Registry &all = registry();
    const QMutexLocker locker(&all.mutex);
    for (MessageRelay *relay : std::as_const(all.relays)) {
        QMetaObject::invokeMethod(
            relay, [relay, type, text] { Q_EMIT relay->received(type, text); },
            Qt::QueuedConnection);
    }
    return all.previous;
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // A message about the passing on of a message would go round in circles, and wait for itself.
    thread_local bool isPosting = false;
    if (isPosting)
        return;
    QtMessageHandler previous = nullptr;
    {
        const QScopedValueRollback posting(isPosting, true);
        previous = post(type, textOf(context, message));
    }
    if (previous)
        previous(type, context, message);
}

} // namespace

MessageRelay::MessageRelay(QObject *parent) : QObject(parent)
{
    Registry &all = registry();
    const QMutexLocker locker(&all.mutex);
    all.relays.append(this);
    if (all.isInstalled)
        return;
    all.isInstalled = true;
    all.previous = qInstallMessageHandler(handle);
}

MessageRelay::~MessageRelay()
{
    Registry &all = registry();
    const QMutexLocker locker(&all.mutex);
    all.relays.removeOne(this);
    if (!all.relays.isEmpty())
        return;
    const QtMessageHandler current = qInstallMessageHandler(all.previous);
    all.isInstalled = current != handle;
    // Somebody came after us and may pass messages on to us. It stays, and so do we below it.
    if (all.isInstalled)
        qInstallMessageHandler(current);
}
