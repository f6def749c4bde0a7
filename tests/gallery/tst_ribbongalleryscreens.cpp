// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryParts.h"

#include "support/TestCase.h"

#include <QApplication>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;
using namespace GalleryParts;
using namespace VornFrame;

/// With a second screen, which is lower, at the right of the first.
class tst_RibbonGalleryScreens : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void roomIsThatOnTheScreenOfTheGallery_data();
    void roomIsThatOnTheScreenOfTheGallery();
};

void tst_RibbonGalleryScreens::roomIsThatOnTheScreenOfTheGallery_data()
{
    QTest::addColumn<int>("screen");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("room");
    QTest::newRow("high screen") << 0 << 900 << 150;
    QTest::newRow("low screen") << 1 << 520 << 150;
    QTest::newRow("low screen, below its end") << 1 << 700 << 0;
}

void tst_RibbonGalleryScreens::roomIsThatOnTheScreenOfTheGallery()
{
    QFETCH(const int, screen);
    QFETCH(const int, top);
    QFETCH(const int, room);
    const QList<QScreen *> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    const QRect place = screens.at(screen)->geometry();
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        window.addGroup(name, 3);
    window.move(place.topLeft() + QPoint(100, 100));
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->width(), 301);
    QCOMPARE(window.screen(), screens.at(screen));
    const int offset = top - window.gallery()->mapToGlobal(QPoint(0, 0)).y();
    window.move(window.pos() + QPoint(0, offset));
    QCOMPARE(window.gallery()->mapToGlobal(QPoint(0, 0)).y(), top);
    QCOMPARE(window.screen(), screens.at(screen));

    buttonOf(window.gallery())->click();
    QCOMPARE(popupOf(window.gallery())->size(), QSize(301 + ScrollBar, room));
    menuOf(window.gallery())->close();
}

int main(int argc, char *argv[])
{
    // The platform reads its screens when the application starts, and in device pixels.
    qunsetenv("QT_SCALE_FACTOR");
    QTemporaryFile screens;
    if (!screens.open())
        return 1;
    screens.write(R"({"screens": [
        {"name": "first", "x": 0, "y": 0, "width": 1000, "height": 1080},
        {"name": "second", "x": 1000, "y": 0, "width": 1000, "height": 700}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toLocal8Bit());
    const QApplication application(argc, argv);
    tst_RibbonGalleryScreens test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ribbongalleryscreens.moc"
