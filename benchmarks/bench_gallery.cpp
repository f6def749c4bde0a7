// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT
// clazy:excludeall=non-pod-global-static (the macros that register the cases)

// What a gallery costs beside as many plain tool buttons in one frame. Every case measures its
// baseline in turn with itself; the counter "ratio" is that of the two medians. The gallery stands in
// a shown ribbon, below its style sheet; the plain buttons have no sheet, no star and no layout.

#include "BenchmarkSupport.h"
#include "PlainWindows.h"

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonGallery.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

#include <memory>

#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr int Columns = PlainButtons::Columns;
constexpr QSize TileSize = PlainButtons::TileSize;
constexpr QSize BarSize(700, 150);

/// A gallery in a shown ribbon.
class Gallery
{
public:
    Gallery()
    {
        m_gallery->setCollectEnabled(true);
        m_bar.addPage(u"Page"_s)->addGroup(u"Group"_s)->addWidget(m_gallery);
        m_bar.resize(BarSize);
        m_bar.show();
        QCoreApplication::processEvents();
    }

    void fill(const Actions &actions, int groups)
    {
        const int perGroup = actions.count() / groups;
        for (int g = 0; g < groups; ++g) {
            const int group = m_gallery->addGroup(u"Group %1"_s.arg(g));
            for (int i = 0; i < perGroup; ++i)
                m_gallery->addItem(group, actions.at(g * perGroup + i));
        }
    }

    void open()
    {
        m_gallery->findChild<QPushButton *>(u"popupButton"_s)->click();
        QCoreApplication::processEvents();
    }

    void close()
    {
        menu()->close();
        QCoreApplication::processEvents();
    }

    void search(const QString &text)
    {
        check();
        m_searchEdit->setText(text);
    }

    void setFirstCollected(bool collected)
    {
        check();
        m_gallery->setItemCollected(0, 0, collected);
        QCoreApplication::processEvents();
    }

    /// Finds the button that moves the last group to the top: its group has no other one.
    void findLast()
    {
        const QList<QFrame *> titles = menu()->findChildren<QFrame *>(u"galleryGroupTitle"_s);
        for (QFrame *title : titles) {
            const QList<QPushButton *> buttons = title->findChildren<QPushButton *>();
            if (!buttons.first()->isHidden() && buttons.last()->isHidden()) {
                m_toTop = buttons.first();
                break;
            }
        }
    }

    void moveLastToTop()
    {
        check();
        m_toTop->click();
        QCoreApplication::processEvents();
    }

private:
    /// Nothing costs much in a popup that somebody has closed.
    void check() const
    {
        if (!menu()->isVisible())
            qFatal("The popup is closed");
    }

    QMenu *menu() const { return m_gallery->findChild<QMenu *>(); }

    RibbonBar m_bar;
    RibbonGallery *m_gallery = new RibbonGallery;
    QLineEdit *m_searchEdit = m_gallery->findChild<QLineEdit *>();
    QPushButton *m_toTop = nullptr;
};

/// An open popup and plain buttons that are shown.
struct OpenedGallery
{
    OpenedGallery(int tiles, int groups) : actions(tiles)
    {
        gallery.fill(actions, groups);
        plain.fill(actions);
        plain.place();
        plain.show();
        gallery.open();
    }

    Actions actions;
    Gallery gallery;
    PlainButtons plain;
};

/// Arguments: tiles, groups.
void add(benchmark::State &state)
{
    const Actions actions(int(state.range(0)));
    std::unique_ptr<Gallery> gallery;
    std::unique_ptr<PlainButtons> plain;
    const auto prepare = [&] {
        gallery = std::make_unique<Gallery>();
        plain = std::make_unique<PlainButtons>();
    };
    sideBySide(
        state, prepare, [&] { gallery->fill(actions, int(state.range(1))); },
        [&] { plain->fill(actions); });
}
BENCHMARK(add)
    ->Apply(timed)
    ->Iterations(9)
    ->Args({500, 10})
    ->Args({500, 200})
    ->Args({10'000, 10})
    ->Args({10'000, 200});

/// The baseline is a window with the buttons that is shown for the first time, and painted.
void openFirst(benchmark::State &state)
{
    const Actions actions(int(state.range(0)));
    std::unique_ptr<Gallery> gallery;
    std::unique_ptr<PlainButtons> plain;
    const auto prepare = [&] {
        gallery = std::make_unique<Gallery>();
        gallery->fill(actions, int(state.range(1)));
        QCoreApplication::processEvents();
        plain = createPlainButtonWindow(actions);
        QCoreApplication::processEvents();
    };
    sideBySide(
        state, prepare, [&] { gallery->open(); }, [&] { plain->show(); });
}
BENCHMARK(openFirst)
    ->Apply(timed)
    ->Iterations(9)
    ->Args({500, 10})
    ->Args({10'000, 10})
    ->Args({10'000, 200});

void openAgain(benchmark::State &state)
{
    const Actions actions(int(state.range(0)));
    Gallery gallery;
    gallery.fill(actions, int(state.range(1)));
    const std::unique_ptr<PlainButtons> plain = createPlainButtonWindow(actions);
    const auto prepare = [&] {
        gallery.open();
        gallery.close();
        plain->show();
        plain->frame().hide();
        QCoreApplication::processEvents();
    };
    sideBySide(
        state, prepare, [&] { gallery.open(); }, [&] { plain->show(); });
}
BENCHMARK(openAgain)
    ->Apply(timed)
    ->Iterations(9)
    ->Args({500, 10})
    ->Args({10'000, 10})
    ->Args({10'000, 200});

/// The baseline hides and shows as many buttons. Neither is painted.
void search(benchmark::State &state, const QString &before, const QString &after)
{
    OpenedGallery scene(int(state.range(0)), int(state.range(1)));
    Gallery &gallery = scene.gallery;
    sideBySide(
        state,
        [&] {
            QCoreApplication::processEvents();
            gallery.search(before);
            QCoreApplication::processEvents();
        },
        [&] { gallery.search(after); },
        [&] {
            scene.plain.setButtonsVisible(false);
            scene.plain.setButtonsVisible(true);
        });
}

void searchFromNoneToAll(benchmark::State &state)
{
    search(state, u"nothing has this"_s, u"Action"_s);
}
BENCHMARK(searchFromNoneToAll)
    ->Apply(timed)
    ->Iterations(9)
    ->Args({500, 10})
    ->Args({10'000, 10})
    ->Args({10'000, 200});

void searchFromAllToFew(benchmark::State &state)
{
    search(state, u"Action"_s, u"rare"_s);
}
BENCHMARK(searchFromAllToFew)
    ->Apply(timed)
    ->Iterations(9)
    ->Args({500, 10})
    ->Args({10'000, 10})
    ->Args({10'000, 200});

/// The baseline adds one button to the others and shows it.
void collect(benchmark::State &state)
{
    OpenedGallery scene(int(state.range(0)), 10);
    Gallery &gallery = scene.gallery;
    sideBySide(
        state, [&] { gallery.setFirstCollected(false); }, [&] { gallery.setFirstCollected(true); },
        [&] {
            scene.plain.add(scene.actions.at(0))->show();
            QCoreApplication::processEvents();
        });
}
BENCHMARK(collect)->Apply(timed)->Iterations(9)->Arg(500)->Arg(10'000);

/// The baseline hides one button.
void uncollect(benchmark::State &state)
{
    OpenedGallery scene(int(state.range(0)), 10);
    Gallery &gallery = scene.gallery;
    QToolButton *last = scene.plain.add(scene.actions.at(0));
    const auto prepare = [&] {
        gallery.setFirstCollected(false);
        gallery.setFirstCollected(true);
        last->show();
        QCoreApplication::processEvents();
    };
    sideBySide(
        state, prepare, [&] { gallery.setFirstCollected(false); },
        [&] {
            last->hide();
            QCoreApplication::processEvents();
        });
}
BENCHMARK(uncollect)->Apply(timed)->Iterations(9)->Arg(500)->Arg(10'000);

/// The baseline moves one of as many frames with buttons within a column.
void moveGroup(benchmark::State &state)
{
    const Actions actions(int(state.range(0)));
    const int groups = int(state.range(1));
    Gallery gallery;
    gallery.fill(actions, groups);
    QWidget column;
    auto *layout = new QVBoxLayout(&column);
    for (int g = 0; g < groups; ++g) {
        auto *frame = new QFrame;
        const int rows = actions.count() / groups / Columns + 1;
        frame->setFixedHeight(rows * TileSize.height());
        for (int i = 0; i < actions.count() / groups; ++i) {
            auto *button = new QToolButton(frame);
            button->setDefaultAction(actions.at(i));
            button->move(i % Columns * TileSize.width(), i / Columns * TileSize.height());
        }
        layout->addWidget(frame);
    }
    column.show();
    QCoreApplication::processEvents();
    gallery.open();
    sideBySide(
        state, [&] { gallery.findLast(); }, [&] { gallery.moveLastToTop(); },
        [&] {
            QWidget *last = layout->itemAt(groups - 1)->widget();
            layout->removeWidget(last);
            layout->insertWidget(0, last);
            QCoreApplication::processEvents();
        });
}
BENCHMARK(moveGroup)->Apply(timed)->Iterations(9)->Args({2'000, 200})->Args({10'000, 200});

/// Bytes on the heap for each tile, and for each plain button.
void memory(benchmark::State &state)
{
    const Actions actions(int(state.range(0)));
    Gallery gallery;
    PlainButtons plain;
    const auto heap = [] { return double(::mallinfo2().uordblks); };
    for (auto _ : state) {
        const double before = heap();
        gallery.fill(actions, 10);
        QCoreApplication::processEvents();
        const double between = heap();
        plain.fill(actions);
        QCoreApplication::processEvents();
        state.counters["bytes_per_tile"] = (between - before) / actions.count();
        state.counters["bytes_per_button"] = (heap() - between) / actions.count();
        state.SetIterationTime(0);
    }
}
BENCHMARK(memory)->Apply(timed)->Iterations(1)->Arg(10'000);

} // namespace
