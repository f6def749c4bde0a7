// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Feeds restoreState() of a dock container in a shown window with any bytes. What must hold
// whatever they are: the window stays where it is, the sides are laid out, and each of them can be
// minimized and restored.

#include <VornFrame/DockContainer.h>
#include <VornFrame/DockPanelWidget.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLoggingCategory>
#include <QMainWindow>
#include <QSplitter>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

class Window : public QMainWindow
{
public:
    Window() : container(new DockContainer)
    {
        setCentralWidget(container);
        container->setupMainWindow(this);
        for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom})
            container->panelWidget(area)->addView(new QLabel(u"View"_s), QIcon(), u"View"_s);
        setGeometry(20, 30, 800, 600);
        show();
        QCoreApplication::processEvents();
        m_geometry = geometry();
        m_splitter = container->findChild<QSplitter *>(QString(), Qt::FindDirectChildrenOnly);
        m_state = container->saveState();
    }

    /// Every input finds the same layout.
    void reset() const
    {
        for (const auto area : {DockContainer::Left, DockContainer::Right})
            container->panelWidget(area)->setMinimized(false);
        container->restoreState(m_state);
    }

    void check() const
    {
        require(geometry() == m_geometry, "the window stays");
        require(m_splitter->orientation() == Qt::Horizontal, "the sides stand beside the content");
        require(m_splitter->handleWidth() == 0, "handles take no room");
        require(m_splitter->count() == 3, "two sides and a column");
        int whole = 0;
        const QList<int> sizes = m_splitter->sizes();
        for (const int size : sizes) {
            require(size >= 0, "sizes are not negative");
            whole += size;
        }
        require(whole == m_splitter->width(), "the sizes fill the splitter");
        require(m_splitter->childrenCollapsible(), "sides can be dragged to nothing");
        checkRoundTrip();
    }

    void checkToggling() const
    {
        toggleSides();
        toggleSides();
        require(geometry() == m_geometry, "the window stays when sides are toggled");
    }

    DockContainer *container;

private:
    void checkRoundTrip() const
    {
        const QByteArray saved = container->saveState();
        container->restoreState(saved);
        require(container->saveState() == saved, "save, restore, save gives the same bytes");
    }

    void toggleSides() const
    {
        for (const auto area : {DockContainer::Left, DockContainer::Right}) {
            const DockPanelWidget *side = container->panelWidget(area);
            side->panel()->findChild<QAbstractButton *>()->click();
            require(side->isMinimized() == (side->stackedWidget()->width() == 0),
                    "a side has room or is minimized");
        }
    }

    QRect m_geometry;
    QSplitter *m_splitter = nullptr;
    QByteArray m_state;
};

Window *window = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*.warning=false"_s);
    // Both live until the process ends: the fuzzer leaves by exit().
    static int ownArgc = 1;
    static const auto *application = new QApplication(ownArgc, *argv);
    Q_UNUSED(argc)
    Q_UNUSED(application)
    window = new Window;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const auto bytes = QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
    window->reset();
    window->container->restoreState(bytes);
    window->check();
    // Most of the time would go into these two; the hash makes a failure come again.
    const std::size_t dice = qHash(bytes);
    if (dice % 16 == 0)
        window->checkToggling();
    if (dice % 64 == 1)
        QCoreApplication::processEvents();
    return 0;
}
