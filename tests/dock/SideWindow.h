// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockPanelWidget.h>

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "dock/DockButton.h"
#include "dock/DockPanel.h"
#include "dock/DockTitle.h"
#include "dock/DockView.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QIcon>
#include <QSplitter>
#include <QStackedWidget>

/// One side of a dock in a window of its own: where its parts are, and how it got there.
namespace SideWindows {

using namespace Qt::StringLiterals;

inline QIcon icon(Qt::GlobalColor color = Qt::red)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(color);
    return pixmap;
}

inline VornFrame::DockPanel *barOf(const VornFrame::DockPanelWidget &side)
{
    return qobject_cast<VornFrame::DockPanel *>(side.panel());
}

inline QStackedWidget *stackOf(const VornFrame::DockPanelWidget &side)
{
    return qobject_cast<QStackedWidget *>(side.stackedWidget());
}

inline VornFrame::DockButton *buttonOf(const VornFrame::DockPanelWidget &side, int index)
{
    const auto *group = side.panel()->findChild<QButtonGroup *>();
    return qobject_cast<VornFrame::DockButton *>(group->button(index));
}

inline QSplitter *pageOf(const VornFrame::DockPanelWidget &side, int index)
{
    return qobject_cast<QSplitter *>(stackOf(side)->widget(index));
}

/// The view at \a position in the slot \a index.
inline VornFrame::DockView *viewOf(const VornFrame::DockPanelWidget &side, int index,
                                   int position = 0)
{
    return qobject_cast<VornFrame::DockView *>(pageOf(side, index)->widget(position));
}

inline VornFrame::DockTitle *titleOf(const VornFrame::DockView *view)
{
    return qobject_cast<VornFrame::DockTitle *>(view->layout()->itemAt(0)->widget());
}

inline QWidget *collapseButtonOf(const VornFrame::DockView *view)
{
    return titleOf(view)->layout()->itemAt(0)->widget();
}

inline QWidget *menuButtonOf(const VornFrame::DockView *view)
{
    return titleOf(view)->layout()->itemAt(2)->widget();
}

/// Adds views "0", "1" and so on.
inline void addViews(VornFrame::DockPanelWidget &side, int count)
{
    for (int i = 0; i < count; ++i)
        side.addView(new QWidget, icon(), QString::number(i));
}

/// The indexes of the checked buttons.
inline QList<int> checkedButtons(const VornFrame::DockPanelWidget &side)
{
    QList<int> checked;
    for (int i = 0; i < side.count(); ++i) {
        if (buttonOf(side, i)->isChecked())
            checked.append(i);
    }
    return checked;
}

/// A side whose bar and stack lie beside each other in a window, or one below the other.
class SideWindow : public QWidget
{
public:
    explicit SideWindow(
        VornFrame::DockPanelWidget::DockPanelDirection direction = VornFrame::DockPanelWidget::Left,
        bool withSheet = true)
        : m_side(new VornFrame::DockPanelWidget(direction, this))
    {
        if (withSheet)
            VornFrame::StyleSheets::load(this, VornFrame::ResourcePaths::DockSheet);
        const bool isBottom = direction == VornFrame::DockPanelWidget::Bottom;
        auto *layout = new QBoxLayout(isBottom ? QBoxLayout::BottomToTop : QBoxLayout::LeftToRight,
                                      this);
        layout->setContentsMargins({});
        layout->setSpacing(0);
        layout->addWidget(m_side->panel());
        layout->addWidget(m_side->stackedWidget(), 1);
        resize(500, 600);
    }

    VornFrame::DockPanelWidget &side() const { return *m_side; }

private:
    VornFrame::DockPanelWidget *m_side;
};

} // namespace SideWindows
