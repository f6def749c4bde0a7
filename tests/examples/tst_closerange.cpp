// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CloseRange.h"

#include <QTest>

/// Which tabs go when the user closes some.
class tst_CloseRange final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closesWhatTheModeSays_data();
    void closesWhatTheModeSays();
};

void tst_CloseRange::closesWhatTheModeSays_data()
{
    using Tabs = QList<int>;
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<int>>("tabs");

    QTest::newRow("current, first") << 0 << 0 << 4 << Tabs{0};
    QTest::newRow("current, middle") << 0 << 2 << 4 << Tabs{2};
    QTest::newRow("left, first") << 1 << 0 << 4 << Tabs{};
    QTest::newRow("left, middle") << 1 << 2 << 4 << Tabs{0, 1};
    QTest::newRow("left, last") << 1 << 3 << 4 << Tabs{0, 1, 2};
    QTest::newRow("right, first") << 2 << 0 << 4 << Tabs{1, 2, 3};
    QTest::newRow("right, middle") << 2 << 1 << 4 << Tabs{2, 3};
    QTest::newRow("right, last") << 2 << 3 << 4 << Tabs{};
    QTest::newRow("others, middle") << 3 << 1 << 4 << Tabs{0, 2, 3};
    QTest::newRow("others, only one") << 3 << 0 << 1 << Tabs{};
    QTest::newRow("all, middle") << 4 << 1 << 4 << Tabs{0, 1, 2, 3};
    QTest::newRow("all, only one") << 4 << 0 << 1 << Tabs{0};
    QTest::newRow("no such tab") << 4 << 4 << 4 << Tabs{};
    QTest::newRow("negative tab") << 2 << -1 << 4 << Tabs{};
    QTest::newRow("no such section") << 4 << 0 << -1 << Tabs{};
    QTest::newRow("no such mode") << 5 << 0 << 4 << Tabs{};
}

void tst_CloseRange::closesWhatTheModeSays()
{
    QFETCH(const int, mode);
    QFETCH(const int, index);
    QFETCH(const int, count);
    QTEST(CloseRange::tabs(VornFrame::CloseMode(mode), index, count), "tabs");
}

QTEST_GUILESS_MAIN(tst_CloseRange)

#include "tst_closerange.moc"
