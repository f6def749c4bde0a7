// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "dock/DockButton.h"
#include "dock/DockPanel.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QIcon>
#include <QPixmap>

/// A bar of buttons in a window of its own, and where its parts are.
namespace BarWindows {

using namespace Qt::StringLiterals;
using VornFrame::DockButton;
using VornFrame::DockPanel;

inline QIcon icon(Qt::GlobalColor color)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(color);
    return pixmap;
}

inline QButtonGroup *groupOf(const DockPanel &panel)
{
    return panel.findChild<QButtonGroup *>({}, Qt::FindDirectChildrenOnly);
}

inline DockButton *buttonOf(const DockPanel &panel, int index)
{
    return qobject_cast<DockButton *>(groupOf(panel)->button(index));
}

inline int buttonCountOf(const DockPanel &panel)
{
    return int(groupOf(panel)->buttons().size());
}

inline QWidget *itemOf(const DockPanel &panel, int place)
{
    return panel.layout()->itemAt(place)->widget();
}

/// Adds buttons "0", "1" and so on.
inline void addButtons(DockPanel &panel, int count)
{
    for (int i = 0; i < count; ++i)
        panel.addButton(QString::number(i), icon(Qt::red));
}

/// A bar at the edge of a window, with the sheet of the container or the application's.
class BarWindow : public QWidget
{
public:
    explicit BarWindow(const QString &direction,
                       Qt::LayoutDirection layoutDirection = Qt::LeftToRight)
        : m_bar(new DockPanel(direction == u"bottom"_s ? Qt::Horizontal : Qt::Vertical, this))
    {
        setLayoutDirection(layoutDirection);
        const bool isBottom = direction == u"bottom"_s;
        m_bar->setProperty("direction", direction);
        VornFrame::StyleSheets::load(this, isBottom ? VornFrame::ResourcePaths::GlobalSheet
                                                    : VornFrame::ResourcePaths::DockSheet);
        auto *layout = new QBoxLayout(isBottom ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight,
                                      this);
        layout->setContentsMargins({});
        layout->setSpacing(0);
        layout->addWidget(m_bar);
        layout->addStretch();
        resize(600, 600);
    }

    DockPanel &bar() const { return *m_bar; }

private:
    DockPanel *m_bar;
};

} // namespace BarWindows
