// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

[[nodiscard]] auto restoredApplicationSheet()
{
    return qScopeGuard([sheet = qApp->styleSheet()] { qApp->setStyleSheet(sheet); });
}

class StyleChangeCounter : public QObject
{
    Q_OBJECT

public:
    explicit StyleChangeCounter(QObject *watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange)
            ++count;
        return false;
    }

    int count = 0;
};

} // namespace

class tst_StyleSheets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void loadSetsTheTextOfTheResource_data();
    void loadSetsTheTextOfTheResource();
    void loadReadsUtf8();
    void loadReplacesTheSheetOfTheWidget();
    void loadLeavesTheApplicationAndOtherWidgetsAlone();
    void aMissingResourceCountsAsAnEmptySheet();
    void theGlobalSheetStandsBehindTheOneOfTheWindow_data();
    void theGlobalSheetStandsBehindTheOneOfTheWindow();
    void theGlobalSheetReplacesTheSheetOfTheApplication();
    void installingAgainDoesNotPileUp();
    void installingAgainPolishesNothingAnew();
    void aLaterWindowTakesTheApplicationOver();
};

void tst_StyleSheets::loadSetsTheTextOfTheResource_data()
{
    QTest::addColumn<QString>("path");
    for (const auto &path : {u":/vornframe/vornframelight.css"_s, u":/res/ribbonLight.css"_s,
                             u":/res/addressLight.css"_s, u":/res/dockLight.css"_s})
        QTest::newRow(qPrintable(path)) << path;
}

void tst_StyleSheets::loadSetsTheTextOfTheResource()
{
    QFETCH(const QString, path);
    QWidget widget;
    StyleSheets::load(&widget, QLatin1StringView(path.toLatin1()));
    QVERIFY(widget.styleSheet().size() > 100);
    QCOMPARE(widget.styleSheet(), textOf(path));
}

void tst_StyleSheets::loadReadsUtf8()
{
    QWidget widget;
    StyleSheets::load(&widget, ResourcePaths::RibbonSheet);
    QVERIFY(widget.styleSheet().contains(u"font-family: \"\u5fae\u8f6f\u96c5\u9ed1\""_s));
}

void tst_StyleSheets::loadReplacesTheSheetOfTheWidget()
{
    QWidget widget;
    widget.setStyleSheet(u"QWidget { color: red; }"_s);
    StyleSheets::load(&widget, ResourcePaths::RibbonSheet);
    QCOMPARE(widget.styleSheet(), textOf(u":/res/ribbonLight.css"_s));
}

void tst_StyleSheets::loadLeavesTheApplicationAndOtherWidgetsAlone()
{
    QWidget parent;
    auto *widget = new QWidget(&parent);
    StyleSheets::load(widget, ResourcePaths::RibbonSheet);
    QCOMPARE(parent.styleSheet(), QString());
    QCOMPARE(qApp->styleSheet(), QString());
}

void tst_StyleSheets::aMissingResourceCountsAsAnEmptySheet()
{
    QWidget widget;
    widget.setStyleSheet(u"QWidget { color: red; }"_s);
    StyleSheets::load(&widget, ":/res/no-such-file.css"_L1);
    QCOMPARE(widget.styleSheet(), QString());
}

void tst_StyleSheets::theGlobalSheetStandsBehindTheOneOfTheWindow_data()
{
    QTest::addColumn<QString>("windowSheet");

    QTest::newRow("window without a sheet") << QString();
    QTest::newRow("window with a sheet") << u"QLabel { color: rgb(1, 2, 3); }"_s;
    QTest::newRow("window whose sheet says more than ASCII")
        << u"QLabel { font-family: \"Gr\u00fcn\"; }"_s;
}

void tst_StyleSheets::theGlobalSheetStandsBehindTheOneOfTheWindow()
{
    QFETCH(const QString, windowSheet);
    const auto restored = restoredApplicationSheet();
    QWidget window;
    window.setStyleSheet(windowSheet);

    StyleSheets::installGlobalSheet(&window);

    QCOMPARE(qApp->styleSheet(), windowSheet + textOf(u":/vornframe/vornframelight.css"_s));
    QCOMPARE(window.styleSheet(), windowSheet);
}

void tst_StyleSheets::theGlobalSheetReplacesTheSheetOfTheApplication()
{
    const auto restored = restoredApplicationSheet();
    qApp->setStyleSheet(u"QLabel { color: red; }"_s);
    const QWidget window;

    StyleSheets::installGlobalSheet(&window);

    QCOMPARE(qApp->styleSheet(), textOf(u":/vornframe/vornframelight.css"_s));
}

void tst_StyleSheets::installingAgainDoesNotPileUp()
{
    const auto restored = restoredApplicationSheet();
    QWidget window;
    window.setStyleSheet(u"QLabel { color: red; }"_s);

    StyleSheets::installGlobalSheet(&window);
    const QString once = qApp->styleSheet();
    StyleSheets::installGlobalSheet(&window);

    QCOMPARE(qApp->styleSheet(), once);
}

void tst_StyleSheets::installingAgainPolishesNothingAnew()
{
    const auto restored = restoredApplicationSheet();
    QWidget window;
    StyleSheets::installGlobalSheet(&window);
    window.ensurePolished();
    StyleChangeCounter counter(&window);

    StyleSheets::installGlobalSheet(&window);
    QCOMPARE(counter.count, 0);
    qApp->setStyleSheet(u"QLabel { color: red; }"_s);
    QVERIFY(counter.count > 0);
}

void tst_StyleSheets::aLaterWindowTakesTheApplicationOver()
{
    const auto restored = restoredApplicationSheet();
    QWidget first;
    first.setStyleSheet(u"QLabel { color: red; }"_s);
    QWidget second;
    second.setStyleSheet(u"QLabel { color: blue; }"_s);

    StyleSheets::installGlobalSheet(&first);
    StyleSheets::installGlobalSheet(&second);

    QCOMPARE(qApp->styleSheet(),
             u"QLabel { color: blue; }"_s + textOf(u":/vornframe/vornframelight.css"_s));
}

QTEST_MAIN(tst_StyleSheets)

#include "tst_stylesheets.moc"
