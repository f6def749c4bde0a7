// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/AddressEntry.h"
#include "address/FolderTree.h"

#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QMenu>
#include <QMoveEvent>
#include <QScreen>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;
using namespace VornFrame;

/// With a second screen at the right of the first.
namespace {

/// Where a menu was moved to.
class Places : public QObject
{
public:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Move)
            all.append(static_cast<QMoveEvent *>(event)->pos());
        return false;
    }

    QList<QPoint> all;
};

} // namespace

class tst_AddressEntryScreens : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void menusOpenOnTheScreenOfTheArrow();
};

void tst_AddressEntryScreens::menusOpenOnTheScreenOfTheArrow()
{
    QCOMPARE(QGuiApplication::screens().size(), 2);
    const QRect first = QGuiApplication::screens().constFirst()->geometry();
    const FolderTree tree({u"parent/child"_s});
    QWidget window;
    window.resize(700, 100);
    auto *entry = new AddressEntry(&window);
    entry->move(600, 30);
    entry->setName(u"parent"_s);
    entry->setPath(tree.path(u"parent"_s));
    // Most of the window is on the first screen, and the entry on the second.
    window.move(first.right() - 500, 200);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.screen()->geometry(), first);
    Places places;
    entry->menu()->installEventFilter(&places);
    PopupDriver driver([](QMenu * /*menu*/) {});
    const QPoint onArrow(entry->width() - 8, 10);
    Input::press(entry, onArrow);
    QVERIFY(driver.hasRun());
    Input::release(entry, onArrow);
    // In Qt 6.8 the offscreen platform itself may put it elsewhere afterwards.
    QVERIFY(places.all.contains(entry->mapToGlobal(QPoint(entry->width() - 16, 22))));
}

int main(int argc, char *argv[])
{
    // The platform reads its screens when the application starts.
    QTemporaryFile screens;
    if (!screens.open())
        return 1;
    screens.write(R"({"screens": [
        {"name": "first", "x": 0, "y": 0, "width": 1000, "height": 800},
        {"name": "second", "x": 1000, "y": 0, "width": 1000, "height": 800}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toLocal8Bit());
    const QApplication application(argc, argv);
    tst_AddressEntryScreens test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_addressentryscreens.moc"
