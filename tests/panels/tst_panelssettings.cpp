// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsFixture.h"

#include "support/Input.h"

#include "DockLayout.h"
#include "PanelsSettings.h"
#include "PanelsWindow.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QSettings>
#include <QSplitter>

#include <functional>

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;

/// What is kept from one start to the next.
class tst_PanelsSettings final : public PanelsFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theLayoutIsKept_data();
    void theLayoutIsKept();
    void theWindowsSizeIsKept();
    void theScratchTextIsKept();
    void nothingIsWrittenWithoutAFile();
    void otherEntriesOfTheFileStay();
    void aBrokenFileStartsWithTheDefaultLayout_data();
    void aBrokenFileStartsWithTheDefaultLayout();
    void randomBytesStartWithTheDefaultLayout();
    void aTruncatedStateStartsWithTheDefaultLayout();
    void theScratchTextSurvivesAFileOfAnotherFormat();
    void aFileThatCannotBeWrittenIsSaid();
    void aBrokenFileIsMendedOnClose();

private:
    QString settingsFile() const { return path(u"panels.ini"_s); }
    QString layoutText() const;
    void verifyDefaultLayout();

    QString m_defaultLayout;
};

/// All of the layout that a person can see.
QString tst_PanelsSettings::layoutText() const
{
    QStringList parts;
    for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom}) {
        const SideController *side = dockLayout()->side(area);
        const QWidget *stack = container()->panelWidget(area)->stackedWidget();
        parts.append(
            u"%1:%2%3"_s.arg(area == DockContainer::Bottom ? stack->height() : stack->width())
                .arg(side->currentSlot())
                .arg(side->isMinimized() ? u"m"_s : QString()));
    }
    const QList<QWidget *> views = dockLayout()->views();
    for (const QWidget *view : views)
        parts.append(dockLayout()->isShown(view) ? u"on"_s : u"off"_s);
    return parts.join(u' ');
}

void tst_PanelsSettings::theLayoutIsKept_data()
{
    using Change = std::function<void(DockLayout *)>;
    QTest::addColumn<Change>("change");

    const auto sized = [](int left, int right, int bottom) {
        return [left, right, bottom](const DockLayout *layout) {
            QSplitter *columns = layout->side(DockContainer::Left)->splitter();
            columns->setSizes({left, columns->width() - left - right, right});
            QSplitter *rows = layout->side(DockContainer::Bottom)->splitter();
            rows->setSizes({rows->height() - bottom, bottom});
        };
    };
    const auto minimized = [](DockContainer::DockArea area) {
        return [area](const DockLayout *layout) { layout->side(area)->setMinimized(true); };
    };
    const auto without = [](const QStringList &names) {
        return [names](DockLayout *layout) {
            const QList<QWidget *> views = layout->views();
            for (const QWidget *view : views)
                layout->setShown(view, !names.contains(view->objectName()));
        };
    };
    QTest::newRow("as at first") << Change([](DockLayout *) {});
    QTest::newRow("other sizes") << Change(sized(211, 150, 133));
    QTest::newRow("a left width that ends a state") << Change(sized(0x7c, 150, 133));
    QTest::newRow("a right width that ends a state") << Change(sized(211, 0x7c, 133));
    QTest::newRow("left minimized") << Change(minimized(DockContainer::Left));
    QTest::newRow("right minimized") << Change(minimized(DockContainer::Right));
    QTest::newRow("bottom minimized") << Change(minimized(DockContainer::Bottom));
    QTest::newRow("one off") << Change(without({u"colors"_s}));
    QTest::newRow("half a slot off") << Change(without({u"objects"_s}));
    QTest::newRow("the current one off") << Change(without({u"messages"_s}));
    QTest::newRow("a side off") << Change(without({u"outline"_s}));
    QTest::newRow("all off") << Change(without(
        {u"objects"_s, u"properties"_s, u"colors"_s, u"outline"_s, u"messages"_s, u"scratch"_s}));
    QTest::newRow("other slots") << Change([](const DockLayout *layout) {
        layout->side(DockContainer::Left)->setCurrentSlot(1);
        layout->side(DockContainer::Bottom)->setCurrentSlot(1);
    });
    QTest::newRow("another slot, minimized") << Change([](const DockLayout *layout) {
        layout->side(DockContainer::Left)->setCurrentSlot(1);
        layout->side(DockContainer::Left)->setMinimized(true);
    });
}

void tst_PanelsSettings::theLayoutIsKept()
{
    using Change = std::function<void(DockLayout *)>;
    QFETCH(const Change, change);
    restart(settingsFile());
    // Within the screen of the tests, so that nothing is made to fit.
    window()->resize(780, 600);
    change(dockLayout());
    const QString before = layoutText();
    const DockState state = dockLayout()->state();
    restart(settingsFile());
    QCOMPARE(layoutText(), before);
    // What a minimized side takes when it comes back is kept too.
    for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom}) {
        dockLayout()->side(area)->setMinimized(false);
        QCOMPARE(dockLayout()->side(area)->extent(), state.sides[area].extent);
    }
}

void tst_PanelsSettings::theWindowsSizeIsKept()
{
    restart(settingsFile());
    window()->resize(701, 502);
    restart(settingsFile());
    QCOMPARE(window()->size(), QSize(701, 502));
}

void tst_PanelsSettings::theScratchTextIsKept()
{
    const QString text = u"first; \"second\"\n@Invalid() \\n %1 ß\n"_s;
    restart(settingsFile());
    window()->findChild<QPlainTextEdit *>(u"scratch"_s)->setPlainText(text);
    restart(settingsFile());
    QCOMPARE(window()->findChild<QPlainTextEdit *>(u"scratch"_s)->toPlainText(), text);
}

void tst_PanelsSettings::nothingIsWrittenWithoutAFile()
{
    restart(QString());
    window()->close();
    QCOMPARE(QDir(path(QString())).entryList(QDir::Files).size(), 0);
}

void tst_PanelsSettings::otherEntriesOfTheFileStay()
{
    createFile(u"panels.ini"_s, "[other]\nkey=value\n");
    restart(settingsFile());
    restart(settingsFile());
    QCOMPARE(QSettings(settingsFile(), QSettings::IniFormat).value(u"other/key"_s).toString(),
             u"value"_s);
}

void tst_PanelsSettings::verifyDefaultLayout()
{
    restart(QString());
    const QString wanted = layoutText();
    const QSize size = window()->size();
    restart(settingsFile());
    QCOMPARE(layoutText(), wanted);
    QCOMPARE(window()->size(), size);
    // A window writes its file when it closes; the next file must not be overwritten.
    restart(QString());
}

void tst_PanelsSettings::aBrokenFileStartsWithTheDefaultLayout_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no INI file") << QByteArray("<?xml version=\"1.0\"?>\n<layout/>\n");
    QTest::newRow("another program's")
        << QByteArray("[window]\ngeometry=10\nhiddenViews=objects\n");
    QTest::newRow("of a later format")
        << QByteArray("[General]\nformat=2\n[left]\nminimized=true\n");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("one long line") << QByteArray(100000, 'x');
    QTest::newRow("wrong types") << QByteArray(
        "[General]\nformat=1\n[left]\nsize=wide\nslot=@Size(1 2)\nminimized=@Rect(0 0 0 0)\n"
        "[right]\nsize=1, 2, 3\nslot=-1\n[bottom]\nsize=@Invalid()\nslot=99999999999\n"
        "[window]\ndocks=a, b\ngeometry=@Point(1 2)\nhiddenViews=@ByteArray(\\xff\\x1)\n"
        "[scratch]\ntext=@Size(3 4)\n");
    QTest::newRow("sizes out of range") << QByteArray(
        "[General]\nformat=1\n[left]\nsize=0\n[right]\nsize=-5\n[bottom]\nsize=2147483648\n");
    QTest::newRow("unknown views and slots") << QByteArray(
        "[General]\nformat=1\n[left]\nslot=7\n[window]\nhiddenViews=none, \"\", panelsWindow\n");
    QTest::newRow("broken values")
        << QByteArray("[General]\nformat=1\n[window]\ndocks=@Variant(\\0\\0\\0\\b)\n"
                      "geometry=@Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xf0)\n");
    QTest::newRow("a state of anything")
        << QByteArray("[General]\nformat=1\n[window]\ndocks=@ByteArray(anything|twelve bytes)\n"
                      "geometry=@ByteArray(anything)\n");
}

void tst_PanelsSettings::aBrokenFileStartsWithTheDefaultLayout()
{
    QFETCH(const QByteArray, bytes);
    createFile(u"panels.ini"_s, bytes);
    verifyDefaultLayout();
}

void tst_PanelsSettings::randomBytesStartWithTheDefaultLayout()
{
    QRandomGenerator generator(4711);
    for (int round = 0; round < 12; ++round) {
        QByteArray bytes(int(generator.bounded(1, 3000)), '\0');
        for (char &byte : bytes)
            byte = char(generator.bounded(256));
        createFile(u"panels.ini"_s, bytes);
        verifyDefaultLayout();
    }
}

void tst_PanelsSettings::aTruncatedStateStartsWithTheDefaultLayout()
{
    restart(settingsFile());
    window()->resize(780, 600);
    dockLayout()->side(DockContainer::Left)->splitter()->setSizes({211, 300, 199});
    window()->close();
    const QByteArray whole = PanelsSettings::load(settingsFile()).docks.container;
    QCOMPARE_GT(whole.size(), 40);
    for (qsizetype size = 0; size < whole.size(); size += 3) {
        PanelsSettings settings;
        settings.docks.container = whole.first(size);
        QVERIFY(settings.save(settingsFile()));
        verifyDefaultLayout();
    }
}

void tst_PanelsSettings::theScratchTextSurvivesAFileOfAnotherFormat()
{
    createFile(u"panels.ini"_s, "[General]\nformat=2\n[scratch]\ntext=mine\n");
    restart(settingsFile());
    QCOMPARE(window()->findChild<QPlainTextEdit *>(u"scratch"_s)->toPlainText(), u"mine"_s);
}

void tst_PanelsSettings::aFileThatCannotBeWrittenIsSaid()
{
    const QString file = path(u"panels.ini/below-a-file.ini"_s);
    createFile(u"panels.ini"_s, "");
    restart(file);
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(u"The layout could not be written to %1."_s.arg(file)));
    window()->close();
}

void tst_PanelsSettings::aBrokenFileIsMendedOnClose()
{
    createFile(u"panels.ini"_s, QByteArray("\xff\xfe[[[\n=\n]x\n\0\1", 14));
    restart(settingsFile());
    window()->resize(780, 600);
    dockLayout()->side(DockContainer::Right)->setMinimized(true);
    const QString before = layoutText();
    restart(settingsFile());
    QCOMPARE(layoutText(), before);
}

QTEST_MAIN(tst_PanelsSettings)

#include "tst_panelssettings.moc"
