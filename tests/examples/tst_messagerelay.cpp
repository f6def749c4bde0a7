// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/TestCase.h"

#include "MessageRelay.h"

#include <QSignalSpy>
#include <QThread>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QStringList &seen()
{
    static QStringList texts;
    return texts;
}

void remember(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    Q_UNUSED(type)
    Q_UNUSED(context)
    seen().append(text);
}

QtMessageHandler &belowLater()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// One that comes after the relay, and passes on.
void rememberLater(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    seen().append(u"later: "_s + text);
    belowLater()(type, context, text);
}

QtMessageHandler installed()
{
    const QtMessageHandler handler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(handler);
    return handler;
}

} // namespace

/// The relay of messages, and the handlers before and after it.
class tst_MessageRelay final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void messagesReachTheSignalAndTheHandlerBefore();
    void theHandlerBeforeComesBackAfterTheLastRelay();
    void aHandlerThatCameLaterStays();
    void messagesOfCategoriesNameThem();
    void messagesOfOtherThreadsComeInThisOne();
    void aMessageAboutAMessageComesOnce();

private:
    QtMessageHandler m_handlerOfTests = nullptr;
};

void tst_MessageRelay::init()
{
    seen().clear();
    m_handlerOfTests = qInstallMessageHandler(remember);
}

void tst_MessageRelay::cleanup()
{
    qInstallMessageHandler(m_handlerOfTests);
}

void tst_MessageRelay::messagesReachTheSignalAndTheHandlerBefore()
{
    const MessageRelay relay;
    QSignalSpy spy(&relay, &MessageRelay::received);
    qInfo("a");
    qWarning("b");
    QCOMPARE(seen(), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(spy.count(), 0);
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).value<QtMsgType>(), QtInfoMsg);
    QCOMPARE(spy.at(0).at(1).toString(), u"a"_s);
    QCOMPARE(spy.at(1).at(0).value<QtMsgType>(), QtWarningMsg);
    QCOMPARE(spy.at(1).at(1).toString(), u"b"_s);
}

void tst_MessageRelay::theHandlerBeforeComesBackAfterTheLastRelay()
{
    auto first = std::make_unique<MessageRelay>();
    const QtMessageHandler relaying = installed();
    QVERIFY(relaying != remember);
    auto second = std::make_unique<MessageRelay>();
    QVERIFY(installed() == relaying);
    qInfo("a");
    QCOMPARE(seen(), QStringList{u"a"_s});
    first.reset();
    QVERIFY(installed() == relaying);
    second.reset();
    QVERIFY(installed() == remember);
    qInfo("b");
    QCOMPARE(seen(), (QStringList{u"a"_s, u"b"_s}));
}

void tst_MessageRelay::aHandlerThatCameLaterStays()
{
    auto relay = std::make_unique<MessageRelay>();
    belowLater() = qInstallMessageHandler(rememberLater);
    relay.reset();
    QVERIFY(installed() == rememberLater);
    qInfo("a");
    const QStringList once{u"later: a"_s, u"a"_s};
    QCOMPARE(seen(), once);
    // One more must not end in a circle.
    relay = std::make_unique<MessageRelay>();
    QSignalSpy spy(relay.get(), &MessageRelay::received);
    qInfo("a");
    QCOMPARE(seen(), once + once);
    QTRY_COMPARE(spy.count(), 1);
    // The later one goes first, as it should, and so the relay can go too.
    qInstallMessageHandler(belowLater());
    relay.reset();
    QVERIFY(installed() == remember);
}

void tst_MessageRelay::messagesOfCategoriesNameThem()
{
    const MessageRelay relay;
    QSignalSpy spy(&relay, &MessageRelay::received);
    QMessageLogger(nullptr, 0, nullptr, "some.category").info("a");
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(1).toString(), u"some.category: a"_s);
}

void tst_MessageRelay::messagesOfOtherThreadsComeInThisOne()
{
    const MessageRelay relay;
    const QThread *here = QThread::currentThread();
    bool isHere = false;
    QSignalSpy spy(&relay, &MessageRelay::received);
    connect(
        &relay, &MessageRelay::received, this,
        [&isHere, here] { isHere = QThread::currentThread() == here; }, Qt::DirectConnection);
    const std::unique_ptr<QThread> other(QThread::create([] { qInfo("from there"); }));
    other->start();
    QVERIFY(other->wait());
    QTRY_COMPARE(spy.count(), 1);
    QVERIFY(isHere);
}

void tst_MessageRelay::aMessageAboutAMessageComesOnce()
{
    const MessageRelay relay;
    QSignalSpy spy(&relay, &MessageRelay::received);
    connect(&relay, &MessageRelay::received, this, [](QtMsgType type) {
        if (type == QtWarningMsg)
            qInfo("about it");
    });
    qWarning("a");
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(seen(), (QStringList{u"a"_s, u"about it"_s}));
}

QTEST_GUILESS_MAIN(tst_MessageRelay)

#include "tst_messagerelay.moc"
