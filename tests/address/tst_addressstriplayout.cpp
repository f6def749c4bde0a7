// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FolderTree.h"
#include "address/StripWindow.h"

#include "support/Input.h"
#include "support/TestCase.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class tst_AddressStripLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theLayoutIsAsDescribed();
    void entriesThatDoNotFitAreHidden_data();
    void entriesThatDoNotFitAreHidden();
    void resizingShowsWhatFits();
    void aLongNameIsShortened();
    void rightToLeftStartsAtTheRight();
    void entriesStandAtOnce();
};

void tst_AddressStripLayout::theLayoutIsAsDescribed()
{
    StripWindow scene;
    scene.strip->setPath(u"/a/b"_s);
    auto *layout = qobject_cast<QHBoxLayout *>(scene.strip->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->alignment(), Qt::AlignLeft);
    QCOMPARE(layout->count(), 4);
    const auto *picture = qobject_cast<QLabel *>(layout->itemAt(0)->widget());
    QVERIFY(picture);
    QVERIFY(!picture->pixmap(Qt::ReturnByValue).isNull());
    QVERIFY(picture->hasScaledContents());
    QCOMPARE(picture->size(), QSize(24, 24));
    QCOMPARE(picture->margin(), 4);
    const QList<AddressEntry *> entries = scene.entries();
    for (const AddressEntry *entry : entries) {
        QCOMPARE(entry->focusPolicy(), Qt::NoFocus);
        QCOMPARE(entry->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    }
    QCOMPARE(entries.constFirst()->popupMode(), QToolButton::InstantPopup);
}

void tst_AddressStripLayout::entriesThatDoNotFitAreHidden_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {900, 400, 300, 250, 200, 150, 120, 80, 40})
        QTest::addRow("%d px", width) << width;
}

void tst_AddressStripLayout::entriesThatDoNotFitAreHidden()
{
    QFETCH(const int, width);
    StripWindow scene;
    scene.layout->setContentsMargins(0, 0, 0, 0);
    scene.other->hide();
    scene.strip->setMinimumWidth(10);
    scene.window.setMinimumWidth(10);
    scene.window.resize(width, 60);
    scene.strip->setPath(u"/first/second/third/fourth/the last folder"_s);
    QVERIFY(Input::show(&scene.window));
    QCOMPARE(scene.strip->width(), width);
    const QList<AddressEntry *> entries = scene.entries();
    QCOMPARE(entries.size(), 6);
    QVERIFY(entries.constLast()->isVisible());
    QVERIFY(width < 120 || entries.constFirst()->isVisible());
    QCOMPARE(entries.at(1)->isVisible(), width >= 400);
    int end = 0;
    bool isHiddenBefore = true;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const AddressEntry *entry = entries.at(i);
        if (!entry->isVisible()) {
            QVERIFY(isHiddenBefore);
            continue;
        }
        isHiddenBefore = i == 0;
        QVERIFY(entry->x() >= end);
        end = entry->geometry().right() + 1;
    }
    QVERIFY(end <= width);
}

void tst_AddressStripLayout::resizingShowsWhatFits()
{
    StripWindow scene(700);
    scene.strip->setPath(u"/first/second/third/fourth/last"_s);
    QVERIFY(Input::show(&scene.window));
    const auto visible = [&scene] {
        int count = 0;
        const QList<AddressEntry *> entries = scene.entries();
        for (const AddressEntry *entry : entries)
            count += entry->isVisible() ? 1 : 0;
        return count;
    };
    QCOMPARE(visible(), 6);
    scene.window.resize(280, 60);
    QTRY_VERIFY(visible() < 5);
    QVERIFY(visible() > 1);
    QCOMPARE(scene.entries().size(), 6);
    scene.window.resize(700, 60);
    QTRY_COMPARE(visible(), 6);
}

void tst_AddressStripLayout::aLongNameIsShortened()
{
    const FolderTree tree({QString(255, u'x')});
    StripWindow scene(500);
    QVERIFY(Input::show(&scene.window));
    scene.strip->setPath(tree.path(QString(255, u'x')));
    const AddressEntry *last = scene.entries().constLast();
    QVERIFY(last->isVisible());
    QVERIFY(last->geometry().right() < scene.strip->width());
    QCOMPARE(last->text().size(), 255);
    // With room to spare it is whole again.
    scene.window.resize(5000, 60);
    QTRY_COMPARE(last->width(), last->sizeHint().width());
    QCoreApplication::processEvents();
}

void tst_AddressStripLayout::rightToLeftStartsAtTheRight()
{
    StripWindow scene;
    scene.window.setLayoutDirection(Qt::RightToLeft);
    scene.strip->setPath(u"/a/b"_s);
    QVERIFY(Input::show(&scene.window));
    const QWidget *picture = scene.strip->layout()->itemAt(0)->widget();
    QCOMPARE(picture->geometry().right() + 1, scene.strip->width());
    int start = picture->x();
    const QList<AddressEntry *> entries = scene.entries();
    for (const AddressEntry *entry : entries) {
        QCOMPARE(entry->geometry().right() + 1, start);
        start = entry->x();
    }
}

void tst_AddressStripLayout::entriesStandAtOnce()
{
    StripWindow scene;
    scene.strip->setPath(u"/a"_s);
    QVERIFY(Input::show(&scene.window));
    scene.strip->setPath(u"/first/second"_s);
    int x = 24;
    const QList<AddressEntry *> entries = scene.entries();
    for (const AddressEntry *entry : entries) {
        QVERIFY(entry->isVisible());
        QCOMPARE(entry->x(), x);
        x += entry->width();
    }
    Input::click(entries.at(1));
    QVERIFY(scene.shows(u"/first"_s));
}

QTEST_MAIN(tst_AddressStripLayout)

#include "tst_addressstriplayout.moc"
