// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockButton.h"

#include "DockButton_p.h"

#include "DockMetrics.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace VornFrame {

void DockButtonPrivate::composeIcon()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal ratio = screen ? screen->devicePixelRatio() : 1.0;
    QIcon icon = icons.size() == 1 ? icons.first() : QIcon(composed(ratio));
    if (!q_ptr->isChecked())
        icon = QIcon(icon.pixmap(q_ptr->iconSize(), ratio, QIcon::Disabled));
    q_ptr->setIcon(icon);
}

QPixmap DockButtonPrivate::composed(qreal ratio) const
{
    if (icons.isEmpty())
        return {};
    const QSize cell(qRound(DockMetrics::IconSize.width() * ratio),
                     qRound(DockMetrics::IconSize.height() * ratio));
    const int gap = int(ratio * DockMetrics::IconSpacing);
    const int count = int(icons.size());
    // Deliberately one cell wide for both orientations: the button grows in height alone, so only
    // the first icon of a horizontal one is seen.
    QPixmap picture(cell.width(), count * cell.height() + (count - 1) * gap);
    picture.fill(Qt::transparent);
    const QPoint step = orientation == Qt::Vertical ? QPoint(0, cell.height() + gap)
                                                    : QPoint(cell.width() + gap, 0);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (int i = 0; i < count; ++i) {
        const QPixmap pixmap = icons.at(i).pixmap(DockMetrics::IconSize, ratio);
        // An icon that has no picture of this size lies in the middle of its cell.
        QRect target({}, pixmap.size());
        target.moveCenter(QRect(i * step, cell).center());
        painter.drawPixmap(target, pixmap);
    }
    painter.end();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QString DockButtonPrivate::toolTipAt(int y) const
{
    const int band = q_ptr->height() / int(toolTips.size());
    for (int i = 0; i < toolTips.size(); ++i) {
        if (i * band <= y && y <= (i + 1) * band)
            return toolTips.at(i);
    }
    return toolTips.first();
}

DockButton::DockButton(Qt::Orientation orientation, QWidget *parent)
    : QPushButton(parent), d_ptr(std::make_unique<DockButtonPrivate>(orientation))
{
    Q_D(DockButton);
    d->q_ptr = this;
    setFlat(true);
    setCheckable(true);
    // In a dialog an auto-default button would answer Return from any line edit.
    setAutoDefault(false);
    // The tool tip follows the pointer without a pressed button.
    setMouseTracking(true);
    connect(this, &DockButton::toggled, this, [d] { d->composeIcon(); });
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::physicalDotsPerInchChanged, this, [d] { d->composeIcon(); });
}

DockButton::~DockButton() = default;

QList<QIcon> DockButton::icons() const
{
    Q_D(const DockButton);
    return d->icons;
}

void DockButton::setIcons(const QList<QIcon> &icons)
{
    Q_D(DockButton);
    d->icons = icons;
    d->composeIcon();
}

QStringList DockButton::toolTips() const
{
    Q_D(const DockButton);
    return d->toolTips;
}

void DockButton::setToolTips(const QStringList &toolTips)
{
    Q_D(DockButton);
    d->toolTips = toolTips;
    setToolTip(toolTips.value(0));
    setAccessibleName(toolTips.join(QLatin1StringView(", ")));
}

void DockButton::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(const DockButton);
    QPushButton::mouseMoveEvent(event);
    // Deliberately by the height, also in a horizontal bar, whose buttons grow downward too.
    if (!d->toolTips.isEmpty())
        setToolTip(d->toolTipAt(qRound(event->position().y())));
}

} // namespace VornFrame
