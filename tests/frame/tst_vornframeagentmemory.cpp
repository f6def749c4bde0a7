// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "LookRestorer.h"

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonGallery.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/VornFrameAgent.h>

#include "support/Input.h"
#include "support/TestCase.h"

#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPixmapCache>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

#include <array>
#include <memory>
#include <utility>

#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
#    include <malloc.h>
#endif

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QSize WindowSize(780, 600);
constexpr int Sections = 3;

/// A window with something of everything: two ordinary pages and one for each section, a gallery, an
/// address bar with its tree among the views, tabs.
struct FullWindow
{
    explicit FullWindow(const QString &folder)
    {
        agent->setup(window.get(), true, true);
        addPages();
        agent->addressBar()->resetPath(folder);
        addViews();
        addSections();
        window->resize(WindowSize);
    }

    void addPages() const
    {
        RibbonBar *bar = agent->ribbonBar();
        for (int p = 0; p < 2 + Sections; ++p) {
            RibbonGroup *group = bar->addPage(u"Page %1"_s.arg(p), p >= 2)->addGroup(u"Group"_s);
            for (int a = 0; a < 4; ++a)
                group->addAction(new QAction(u"Command %1"_s.arg(a), bar));
        }
        auto *gallery = new RibbonGallery;
        gallery->setCollectEnabled(true);
        bar->page(0)->group(0)->addWidget(gallery);
        const int group = gallery->addGroup(u"Tiles"_s);
        for (int a = 0; a < 6; ++a)
            gallery->addItem(group, new QAction(u"Tile %1"_s.arg(a), bar));
        gallery->setItemCollected(group, 1, true);
    }

    void addViews() const
    {
        for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom}) {
            DockPanelWidget *side = agent->dockContainer()->panelWidget(area);
            side->addView(new QLabel(u"view"_s), QIcon(), u"View"_s);
            side->tabifyView(0, new QLabel(u"other view"_s), QIcon(), u"Other"_s);
        }
        agent->dockContainer()
            ->panelWidget(DockContainer::Left)
            ->addView(agent->addressBar()->treeView(), QIcon(), u"Tree"_s);
    }

    void addSections() const
    {
        DockContentWidget *tabs = content();
        for (int section = 0; section < Sections; ++section) {
            tabs->addSection(u"Section %1"_s.arg(section));
            agent->bindRibbonPagesAndDockPartition({agent->ribbonBar()->page(2 + section)},
                                                   section);
            for (int tab = 0; tab < 3; ++tab)
                tabs->addTab(section, new QLabel(u"tab"_s), u"Tab %1"_s.arg(tab));
        }
        agent->ribbonBar()->setCurrentIndex(0);
    }

    DockContentWidget *content() const { return agent->dockContainer()->contentWidget(); }

    std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    std::unique_ptr<VornFrameAgent> agent = std::make_unique<VornFrameAgent>();
};

void show(FullWindow &full)
{
    full.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(full.window.get()));
    QCoreApplication::processEvents();
}

void switchSections(FullWindow &full)
{
    show(full);
    for (const int section : {1, 2, 0, 2}) {
        full.content()->setCurrentTab(section, 1);
        QCoreApplication::processEvents();
    }
    QCOMPARE(full.content()->currentSection(), 2);
}

void openGalleryPopup(FullWindow &full)
{
    show(full);
    auto *menu = full.window->findChild<QMenu *>(u"galleryPopupMenu"_s);
    QVERIFY(menu);
    Input::click(full.window->findChild<QPushButton *>(u"popupButton"_s));
    QVERIFY(menu->isVisible());
    menu->close();
}

void closeByTheUser(FullWindow &full)
{
    show(full);
    QVERIFY(full.window->close());
}

void saveAndRestore(FullWindow &full)
{
    show(full);
    full.agent->dockContainer()->panelWidget(DockContainer::Left)->setMinimized(true);
    const QByteArray state = full.agent->dockContainer()->saveState();
    full.agent->dockContainer()->restoreState(state);
}

void neverShow(FullWindow & /*full*/) {}

void endAgentFirst(FullWindow &full)
{
    show(full);
    full.agent.reset();
    full.window->close();
}

void endWindowFirst(FullWindow &full)
{
    show(full);
    full.window.reset();
}

using Use = void (*)(FullWindow &);

/// Notices every window that is shown.
class ShowWatcher : public QObject
{
public:
    ShowWatcher() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = qobject_cast<const QWidget *>(watched);
        if (event->type() == QEvent::Show && widget && widget->isWindow())
            shown.append(QLatin1StringView(widget->metaObject()->className()));
        return false;
    }

    QStringList shown;
};

/// In bytes; 0 where nothing tells.
qint64 heap()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = ::mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
#else
    return 0;
#endif
}

/// Keeps drawn pictures from waiting for their next use, which counts as growth until there is no more
/// room for them.
class NoPixmapCache
{
    Q_DISABLE_COPY_MOVE(NoPixmapCache)

public:
    NoPixmapCache()
    {
        QPixmapCache::clear();
        QPixmapCache::setCacheLimit(0);
    }
    ~NoPixmapCache() { QPixmapCache::setCacheLimit(m_limit); }

private:
    const int m_limit = QPixmapCache::cacheLimit();
};

} // namespace

Q_DECLARE_METATYPE(Use)

class tst_VornFrameAgentMemory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSeenBeforeTheWindowIsShown();
    void everyObjectGoesWithItsWindow_data();
    void everyObjectGoesWithItsWindow();
    void aHundredWindowsKeepNothing();

private:
    const QTemporaryDir m_folder;
};

void tst_VornFrameAgentMemory::nothingIsSeenBeforeTheWindowIsShown()
{
    const LookRestorer restorer;
    const ShowWatcher watcher;
    FullWindow full(m_folder.path());
    QCoreApplication::processEvents();
    QCOMPARE(watcher.shown, QStringList());
    show(full);
    QCOMPARE(watcher.shown, QStringList{u"QMainWindow"_s});
}

void tst_VornFrameAgentMemory::everyObjectGoesWithItsWindow_data()
{
    QTest::addColumn<Use>("use");
    QTest::newRow("never shown") << Use(neverShow);
    QTest::newRow("shown") << Use(show);
    QTest::newRow("sections switched") << Use(switchSections);
    QTest::newRow("popup of the gallery opened") << Use(openGalleryPopup);
    QTest::newRow("layout saved and restored") << Use(saveAndRestore);
    QTest::newRow("closed by the user") << Use(closeByTheUser);
    QTest::newRow("agent first") << Use(endAgentFirst);
    QTest::newRow("window first") << Use(endWindowFirst);
}

void tst_VornFrameAgentMemory::everyObjectGoesWithItsWindow()
{
    QFETCH(const Use, use);
    const LookRestorer restorer;
    const auto widgets = QApplication::allWidgets().size();
    QList<QPointer<QObject>> objects;
    {
        FullWindow full(m_folder.path());
        QVERIFY(!full.agent->addressBar()->treeView()->isWindow());
        objects = {full.window.get(), full.agent.get()};
        const QList<QObject *> children = full.window->findChildren<QObject *>();
        for (QObject *child : children)
            objects.append(child);
        use(full);
        if (QTest::currentTestFailed())
            return;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QPointer<QObject> &object : std::as_const(objects))
        QVERIFY2(!object, object ? object->metaObject()->className() : "");
    QCOMPARE(QApplication::allWidgets().size(), widgets);
}

void tst_VornFrameAgentMemory::aHundredWindowsKeepNothing()
{
    // The sanitizers look for leaks in their own way, and are slow.
#if defined(__SANITIZE_ADDRESS__)
    constexpr int Windows = 16;
#else
    constexpr int Windows = 100;
#endif
    const LookRestorer restorer;
    const NoPixmapCache noCache;
    const std::array uses{neverShow,      show,           switchSections, openGalleryPopup,
                          saveAndRestore, closeByTheUser, endAgentFirst,  endWindowFirst};
    const auto open = [this, &uses](int times) {
        for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
            FullWindow full(m_folder.path());
            uses.at(std::size_t(i) % uses.size())(full);
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    // What everyone shares comes with the first windows.
    open(int(uses.size()));
    const auto widgets = QApplication::allWidgets().size();
    const auto windows = QGuiApplication::allWindows().size();
    const QString sheet = qApp->styleSheet();
    const QPalette palette = QApplication::palette();
    const qint64 before = heap();

    open(Windows);
    // Qt keeps about a hundred bytes for each window, under plain widgets as well; the smallest thing
    // that could be forgotten, an action, has more than this.
    constexpr qint64 Tolerance = 300;
    const qint64 kept = heap() - before;
    QVERIFY2(kept <= Windows * Tolerance, qPrintable(QString::number(kept)));
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(QGuiApplication::allWindows().size(), windows);
    QCOMPARE(qApp->styleSheet(), sheet);
    QCOMPARE(QApplication::palette(), palette);
}

QTEST_MAIN(tst_VornFrameAgentMemory)

#include "tst_vornframeagentmemory.moc"
