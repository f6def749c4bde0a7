// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"

#include "support/TestCase.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

QPixmap picture()
{
    return ImageChecks::checkerboard({40, 20}, 1);
}

/// Two sections: one with the tabs "a" and "b", one with none.
void fill(DockContentWidget *content)
{
    content->addSection(u"First"_s);
    content->addSection(u"Second"_s);
    content->addTab(0, new QWidget, u"a"_s);
    content->addTab(0, new QWidget, u"b"_s);
}

} // namespace

class tst_DockContentPlaceholder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void placeholderShowsWhileThereIsNoTab();
    void placeholderIsStoredBehindTabs();
    void placeholderShowsInPlaceOfAHiddenSectionArea();
    void placeholderNeverShowsBehindTabs_data();
    void placeholderNeverShowsBehindTabs();
    void placeholderIsPaintedInTheCentre_data();
    void placeholderIsPaintedInTheCentre();
    void aLargePlaceholderDoesNotGrowTheWindow();
    void autoHideHidesAndShowsAtOnce();
    void autoHideHidesAlsoOpenTabs();
};

void tst_DockContentPlaceholder::placeholderShowsWhileThereIsNoTab()
{
    DockContentWidget content;
    content.resize(400, 300);
    QVERIFY(Input::show(&content));
    content.setPlaceholderPixmap(picture());
    QCOMPARE(content.pixmap().size(), QSize(40, 20));
    content.addSection(u"S"_s);
    QCOMPARE(content.pixmap().size(), QSize(40, 20));
    content.addTab(0, new QWidget, u"a"_s);
    QVERIFY(content.pixmap().isNull());
    const std::unique_ptr<QWidget> removed(content.widget(0, 0));
    content.removeTab(0, 0);
    QCOMPARE(content.pixmap().size(), QSize(40, 20));
    content.setPlaceholderPixmap({});
    QVERIFY(content.pixmap().isNull());
}

void tst_DockContentPlaceholder::placeholderIsStoredBehindTabs()
{
    DockContentWidget content;
    content.resize(400, 300);
    QVERIFY(Input::show(&content));
    fill(&content);
    content.setPlaceholderPixmap(picture());
    QVERIFY(content.pixmap().isNull());
    while (content.tabCount(0) > 0) {
        const std::unique_ptr<QWidget> removed(content.widget(0, 0));
        content.removeTab(0, 0);
    }
    QCOMPARE(content.pixmap().size(), QSize(40, 20));
}

void tst_DockContentPlaceholder::placeholderShowsInPlaceOfAHiddenSectionArea()
{
    DockContentWidget content;
    content.resize(400, 300);
    fill(&content);
    content.setPlaceholderPixmap(picture());
    QVERIFY(Input::show(&content));
    QVERIFY(content.pixmap().isNull());
    content.setSectionBarVisible(false);
    QCOMPARE(content.pixmap().size(), QSize(40, 20));
    content.setSectionBarVisible(true);
    QVERIFY(content.pixmap().isNull());
}

void tst_DockContentPlaceholder::placeholderNeverShowsBehindTabs_data()
{
    QTest::addColumn<bool>("tabFirst");
    QTest::addColumn<bool>("showFirst");
    QTest::newRow("tab, picture, shown") << true << false;
    QTest::newRow("picture, tab, shown") << false << false;
    QTest::newRow("shown, tab, picture") << true << true;
    QTest::newRow("shown, picture, tab") << false << true;
}

void tst_DockContentPlaceholder::placeholderNeverShowsBehindTabs()
{
    QFETCH(const bool, tabFirst);
    QFETCH(const bool, showFirst);
    DockContentWidget content;
    content.resize(400, 300);
    content.addSection(u"S"_s);
    if (showFirst)
        QVERIFY(Input::show(&content));
    if (!tabFirst)
        content.setPlaceholderPixmap(picture());
    content.addTab(0, new QWidget, u"a"_s);
    if (tabFirst)
        content.setPlaceholderPixmap(picture());
    if (!showFirst)
        QVERIFY(Input::show(&content));
    QVERIFY(content.pixmap().isNull());
    content.hide();
    content.show();
    QVERIFY(content.pixmap().isNull());
}

void tst_DockContentPlaceholder::placeholderIsPaintedInTheCentre_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("ratio 1") << 1;
    QTest::newRow("ratio 2") << 2;
}

void tst_DockContentPlaceholder::placeholderIsPaintedInTheCentre()
{
    QFETCH(const int, ratio);
    DockContentWidget content;
    content.resize(400, 300);
    QPixmap red(40, 20);
    red.fill(Qt::red);
    content.setPlaceholderPixmap(red);
    QVERIFY(Input::show(&content));
    const QRect centre(180, 140, 40, 20);
    const QImage image = ImageChecks::rendered(&content, ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, centre, Qt::red));
    QCOMPARE(ImageChecks::paintedRect(image, content.rect()), centre);
}

void tst_DockContentPlaceholder::aLargePlaceholderDoesNotGrowTheWindow()
{
    ContainerWindow window;
    window.fill();
    window.content()->setAutoHide(false);
    QVERIFY(Input::show(&window));
    const QSize before = window.size();
    QPixmap huge(3000, 2000);
    huge.fill(Qt::red);
    window.content()->setPlaceholderPixmap(huge);
    window.content()->removeTab(0, 0);
    QCoreApplication::processEvents();
    QCOMPARE(window.size(), before);
    QVERIFY(window.content()->width() < 900);
}

void tst_DockContentPlaceholder::autoHideHidesAndShowsAtOnce()
{
    DockContentWidget content;
    TabLog log(&content);
    content.setAutoHide(false);
    QVERIFY(content.isVisible());
    content.setAutoHide(true);
    QVERIFY(content.isHidden());
    content.setAutoHide(true);
    QVERIFY(content.isHidden());
    content.setAutoHide(false);
    QVERIFY(content.isVisible());
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentPlaceholder::autoHideHidesAlsoOpenTabs()
{
    DockContentWidget content;
    fill(&content);
    content.show();
    TabLog log(&content);
    content.setAutoHide(true);
    QVERIFY(content.isHidden());
    QCOMPARE(content.tabCount(0), 2);
    content.setAutoHide(false);
    QVERIFY(content.isVisible());
    QVERIFY(content.isSectionBarVisible());
    QCOMPARE(log.take(), QStringList());
}

QTEST_MAIN(tst_DockContentPlaceholder)

#include "tst_dockcontentplaceholder.moc"
