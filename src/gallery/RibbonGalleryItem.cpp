// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryItem.h"

#include "RibbonGalleryItem_p.h"

#include "core/ResourcePaths.h"
#include "core/SharedIcons.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionToolButton>

using namespace Qt::StringLiterals;

namespace VornFrame {

namespace {

constexpr QSize TileIconSize(24, 24);
constexpr QSize StarIconSize(16, 16);
constexpr QSize StarSize(18, 18); ///< the icon and its border
constexpr int TextMargin = 3; ///< beside a shortened text

} // namespace

RibbonGalleryItemPrivate::RibbonGalleryItemPrivate(RibbonGalleryItem *q)
    : collectButton(new LateStyled<QToolButton>(q)), q_ptr(q)
{}

void RibbonGalleryItemPrivate::init(QAction *action)
{
    initCollectButton();
    q_ptr->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    q_ptr->setIconSize(TileIconSize);
    q_ptr->setDefaultAction(action);
    QObject::connect(collectButton, &QToolButton::clicked, collectButton, [this] {
        collected = !collected;
        updateState();
    });
    updateState();
}

void RibbonGalleryItemPrivate::initCollectButton()
{
    collectButton->setCheckable(true);
    collectButton->hide();
    collectButton->setObjectName(u"collectedButton"_s);
    collectButton->setIconSize(StarIconSize);
    // A tile is one stop of the keyboard, with a key of its own for the star.
    collectButton->setFocusPolicy(Qt::NoFocus);
    collectButton->resize(StarSize);
}

void RibbonGalleryItemPrivate::updateState()
{
    collectButton->setIcon(
        SharedIcons::icon(collected ? ResourcePaths::Collected : ResourcePaths::Collect));
    if (collected)
        showCollectButton();
    else
        collectButton->hide();
    Q_EMIT q_ptr->signalCollected(collected);
}

/// Names the star too: most stars are never seen, and a name costs as much as the rest of them.
void RibbonGalleryItemPrivate::showCollectButton()
{
    if (collectButton->accessibleName().isEmpty()) {
        collectButton->setAccessibleName(RibbonGalleryItem::tr("Favorite"));
        collectButton->setToolTip(RibbonGalleryItem::tr("Favorite"));
    }
    collectButton->show();
}

void RibbonGalleryItemPrivate::placeCollectButton()
{
    const QRect leading(QPoint(0, 0), collectButton->size());
    collectButton->move(
        QStyle::visualRect(q_ptr->layoutDirection(), q_ptr->rect(), leading).topLeft());
}

bool RibbonGalleryItemPrivate::hasFixedSize() const
{
    return q_ptr->minimumSize() == q_ptr->maximumSize();
}

RibbonGalleryItem::RibbonGalleryItem(QAction *action, QWidget *parent)
    : LateStyled(parent), d_ptr(new RibbonGalleryItemPrivate(this))
{
    Q_D(RibbonGalleryItem);
    d->init(action);
}

RibbonGalleryItem::~RibbonGalleryItem() = default;

void RibbonGalleryItem::setCollectEnabled(bool on)
{
    Q_D(RibbonGalleryItem);
    d->collectEnabled = on;
    if (!on)
        d->collectButton->hide();
}

bool RibbonGalleryItem::isCollected() const
{
    Q_D(const RibbonGalleryItem);
    return d->collected;
}

void RibbonGalleryItem::setCollected(bool on)
{
    Q_D(RibbonGalleryItem);
    d->collected = on;
    d->updateState();
}

void RibbonGalleryItem::toggleCollected()
{
    Q_D(RibbonGalleryItem);
    if (d->collectEnabled)
        d->collectButton->click();
}

QObject *RibbonGalleryItem::actionContext() const
{
    Q_D(const RibbonGalleryItem);
    return d->collectButton;
}

void RibbonGalleryItem::setTilePolishedLate()
{
    Q_D(RibbonGalleryItem);
    setPolishedLate();
    d->collectButton->setPolishedLate();
}

QSize RibbonGalleryItem::sizeHint() const
{
    Q_D(const RibbonGalleryItem);
    return d->hasFixedSize() ? minimumSize() : QToolButton::sizeHint();
}

void RibbonGalleryItem::enterEvent(QEnterEvent *event)
{
    Q_D(RibbonGalleryItem);
    if (d->collectEnabled)
        d->showCollectButton();
    LateStyled::enterEvent(event);
}

void RibbonGalleryItem::leaveEvent(QEvent *event)
{
    Q_D(RibbonGalleryItem);
    // Only a favourite keeps its star; whether collecting is allowed is deliberately not asked.
    if (!d->collected)
        d->collectButton->hide();
    LateStyled::leaveEvent(event);
}

void RibbonGalleryItem::changeEvent(QEvent *event)
{
    Q_D(RibbonGalleryItem);
    LateStyled::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        d->placeCollectButton();
}

void RibbonGalleryItem::focusInEvent(QFocusEvent *event)
{
    Q_D(RibbonGalleryItem);
    // A window that opens gives the focus to some widget: that is not worth a frame. One that comes
    // back shows what it showed.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        d->showsFocus = reason != Qt::MouseFocusReason;
    LateStyled::focusInEvent(event);
}

void RibbonGalleryItem::keyPressEvent(QKeyEvent *event)
{
    // All keys but the one that presses a button are for the gallery around: it knows the neighbours.
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier)
        LateStyled::keyPressEvent(event);
    else
        event->ignore();
}

void RibbonGalleryItem::resizeEvent(QResizeEvent *event)
{
    Q_D(RibbonGalleryItem);
    LateStyled::resizeEvent(event);
    d->placeCollectButton();
}

void RibbonGalleryItem::initStyleOption(QStyleOptionToolButton *option) const
{
    Q_D(const RibbonGalleryItem);
    QToolButton::initStyleOption(option);
    if (!option)
        return;
    if (!d->showsFocus)
        option->state &= ~QStyle::State_HasFocus;
    // A style would cut a text that is too long at both ends.
    if (d->hasFixedSize())
        option->text = option->fontMetrics.elidedText(
            option->text, Qt::ElideRight, width() - 2 * TextMargin, Qt::TextShowMnemonic);
}

} // namespace VornFrame
