// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonGallery.h>

#include "RibbonGallery_p.h"

#include "core/PolishAgain.h"
#include "core/ResourcePaths.h"
#include "core/SharedIcons.h"
#include "RibbonGalleryItem.h"
#include "RibbonGalleryMetrics.h"
#include "RibbonGalleryPopup.h"

#include <QAction>
#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QWidgetAction>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace VornFrame {

namespace {

constexpr QMargins StripMargins(5, 0, 5, 0);
constexpr QSize PopupIconSize(17, 17);
constexpr int ScreenMargin = 30; ///< kept free below the popup

} // namespace

void RibbonGalleryPrivate::init()
{
    initPopupButton();
    itemsFrame = new QFrame(q_ptr);
    itemsFrame->setObjectName(u"itemsFrame"_s);
    itemsFrame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    itemsLayout->setContentsMargins(StripMargins);
    itemsLayout->setSpacing(0);
    itemsLayout->setAlignment(Qt::AlignLeft);
    itemsFrame->setLayout(itemsLayout);

    auto *row = new QHBoxLayout(q_ptr);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(itemsFrame);
    row->addWidget(popupButton);
    initPopup();
}

void RibbonGalleryPrivate::initPopupButton()
{
    popupButton->setObjectName(u"popupButton"_s);
    popupButton->setFocusPolicy(Qt::NoFocus);
    popupButton->setIcon(SharedIcons::icon(ResourcePaths::DownArrowNormal));
    popupButton->setIconSize(PopupIconSize);
    popupButton->setSizePolicy(popupButton->sizePolicy().horizontalPolicy(),
                               QSizePolicy::Expanding);
    popupButton->setAutoDefault(false);
    popupButton->setAccessibleName(RibbonGallery::tr("Show all items"));
    QObject::connect(popupButton, &QPushButton::clicked, q_ptr, [this] { openPopup(); });
}

void RibbonGalleryPrivate::initPopup()
{
    popup = new RibbonGalleryPopup(nullptr);
    popupMenu->setObjectName(u"galleryPopupMenu"_s);
    auto *action = new QWidgetAction(popupMenu);
    action->setDefaultWidget(popup);
    popupMenu->addAction(action);
    const auto refill = [this] { updateDisplayedItems(); };
    QObject::connect(popup, &RibbonGalleryPopup::signalUpdateDisplayedItems, q_ptr, refill);
    QObject::connect(popup, &RibbonGalleryPopup::signalGroupUpdated, q_ptr, refill);
    QObject::connect(popup, &RibbonGalleryPopup::signalHeightChanged, q_ptr,
                     [this](int height) { setPopupHeight(height); });
}

void RibbonGalleryPrivate::trigger(QAction *action)
{
    if (popupMenu->isVisible())
        popupMenu->close();
    Q_EMIT q_ptr->signalTriggered(action);
}

void RibbonGalleryPrivate::updateDisplayedItems()
{
    const QList<QAction *> actions = popup->displayedActions();
    if (actions == displayedActions)
        return;
    displayedActions = actions;
    const QList<RibbonGalleryItem *> former = std::exchange(items, {});
    for (RibbonGalleryItem *tile : former) {
        itemsLayout->removeWidget(tile);
        delete tile;
    }
    for (QAction *action : actions)
        addDisplayedItem(action);
    // Blank tiles deliberately stay: the next time the new tiles come after them.
    for (qsizetype count = actions.size(); count < displayCount; ++count)
        addBlankItem();
}

void RibbonGalleryPrivate::addDisplayedItem(QAction *action)
{
    auto *tile = new RibbonGalleryItem(action, itemsFrame);
    tile->setIconSize(iconSize);
    tile->setFixedSize(actionSize);
    tile->setCollectEnabled(false);
    itemsLayout->addWidget(tile);
    items.append(tile);
    QObject::connect(action, &QObject::destroyed, tile,
                     [this, tile](const QObject *gone) { removeDisplayedItem(tile, gone); });
}

void RibbonGalleryPrivate::addBlankItem()
{
    auto *action = new QAction;
    action->setEnabled(false);
    auto *tile = new RibbonGalleryItem(action, itemsFrame);
    action->setParent(tile);
    tile->setFixedSize(actionSize);
    itemsLayout->addWidget(tile);
}

/// \a action was deleted by its owner.
void RibbonGalleryPrivate::removeDisplayedItem(RibbonGalleryItem *tile, const QObject *action)
{
    displayedActions.removeIf([action](const QAction *other) { return other == action; });
    items.removeOne(tile);
    itemsLayout->removeWidget(tile);
    tile->hide();
    tile->deleteLater();
    // What follows it comes into the strip, once for all that are deleted together.
    QMetaObject::invokeMethod(
        q_ptr, [this] { updateDisplayedItems(); }, Qt::QueuedConnection);
}

/// From the tile that has the focus to the one \a step tiles further.
void RibbonGalleryPrivate::moveFocus(int step)
{
    const auto isFocused = [](const RibbonGalleryItem *tile) { return tile->hasFocus(); };
    const auto from = std::find_if(items.cbegin(), items.cend(), isFocused);
    if (from == items.cend())
        return;
    const qsizetype next = std::distance(items.cbegin(), from) + step;
    if (next >= 0 && next < items.size())
        items.at(next)->setFocus(Qt::OtherFocusReason);
}

void RibbonGalleryPrivate::openPopup()
{
    const int needed = popup->contentHeight(true);
    popup->verticalScrollBar()->setValue(0);
    fitMenu(needed, needed);
    popup->prepareToShow();
    popupMenu->popup(q_ptr->mapToGlobal(QPoint(0, 0)));
    // A menu would keep away from the edge of the screen; this one covers the strip. Its content
    // has settled by now.
    fitMenu(needed, needed);
    popup->focusSearch();
}

void RibbonGalleryPrivate::setPopupHeight(int height)
{
    fitMenu(height, popup->contentHeight(false));
}

/// What there is for the popup on the screen of the gallery, from the top of the strip down.
int RibbonGalleryPrivate::room() const
{
    const QRect screen = q_ptr->screen()->geometry();
    const int top = q_ptr->mapToGlobal(QPoint(0, 0)).y();
    return std::max(0, screen.y() + screen.height() - ScreenMargin - top);
}

/// Gives popup and menu as much of \a height as there is room for, at the width of the strip, and
/// with room for a scroll bar where that is less than \a neededHeight. From right to left the
/// scroll bar stands out to the left.
void RibbonGalleryPrivate::fitMenu(int height, int neededHeight)
{
    using namespace RibbonGalleryMetrics;
    const int fitting = std::min(height, room());
    popup->setFixedHeight(fitting);
    popup->setFixedWidth(q_ptr->width() + (fitting < neededHeight ? ScrollBarWidth : 0));
    popupMenu->setFixedSize(popup->size() + QSize(2 * MenuBorder, 2 * MenuBorder));
    const int left = q_ptr->isRightToLeft() ? q_ptr->width() - popupMenu->width() : 0;
    popupMenu->move(q_ptr->mapToGlobal(QPoint(left, 0)));
}

RibbonGallery::RibbonGallery(QWidget *parent) : RibbonGallery(*new RibbonGalleryPrivate, parent)
{
    Q_D(RibbonGallery);
    d->init();
}

RibbonGallery::RibbonGallery(RibbonGalleryPrivate &d, QWidget *parent) : QWidget(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

RibbonGallery::~RibbonGallery()
{
    Q_D(RibbonGallery);
    // An open popup speaks up when it is hidden, tiles when their actions go, which may be children
    // of the gallery: all that has to happen while there is someone to listen.
    delete d->popupMenu;
    delete d->itemsFrame;
}

int RibbonGallery::addGroup(const QString &name)
{
    Q_D(RibbonGallery);
    return d->popup->addGroup(name, QIcon());
}

int RibbonGallery::addItem(const QString &group, QAction *action)
{
    Q_D(RibbonGallery);
    int index = d->popup->indexOfGroup(group);
    if (index == -1)
        index = d->popup->addGroup(group, QIcon());
    return addItem(index, action);
}

int RibbonGallery::addItem(int group, QAction *action)
{
    Q_D(RibbonGallery);
    const int index = d->popup->addItem(group, action, &d->iconSize, &d->actionSize,
                                        d->collectEnabled);
    if (action)
        connect(action, &QAction::triggered, this, [d, action] { d->trigger(action); });
    return index;
}

void RibbonGallery::setIconSize(const QSize &size)
{
    Q_D(RibbonGallery);
    d->iconSize = size;
}

void RibbonGallery::setActionSize(const QSize &size)
{
    Q_D(RibbonGallery);
    d->actionSize = size.expandedTo(QSize(0, 0)).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void RibbonGallery::setCollectEnabled(bool enabled)
{
    Q_D(RibbonGallery);
    d->collectEnabled = enabled;
    d->popup->setCollectEnabled(enabled);
}

void RibbonGallery::setDispalyCount(int count)
{
    Q_D(RibbonGallery);
    d->displayCount = count;
    d->popup->setDisplayCount(count);
}

bool RibbonGallery::setItemCollected(int group, int item, bool collected)
{
    Q_D(RibbonGallery);
    return d->collectEnabled && d->popup->setItemCollected(group, item, collected);
}

QByteArray RibbonGallery::saveState() const
{
    Q_D(const RibbonGallery);
    return d->popup->saveState();
}

void RibbonGallery::restoreState(const QByteArray &state)
{
    RibbonGalleryPopup::restoreState(state);
}

void RibbonGallery::changeEvent(QEvent *event)
{
    Q_D(RibbonGallery);
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange && d->popup)
        polishAgain(d->popupButton);
}

void RibbonGallery::keyPressEvent(QKeyEvent *event)
{
    Q_D(RibbonGallery);
    const int step = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        d->moveFocus(-step);
        break;
    case Qt::Key_Right:
        d->moveFocus(step);
        break;
    case Qt::Key_Down:
        d->openPopup();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto *tile = qobject_cast<RibbonGalleryItem *>(focusWidget()))
            tile->click();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void RibbonGallery::showEvent(QShowEvent *event)
{
    Q_D(RibbonGallery);
    QWidget::showEvent(event);
    d->updateDisplayedItems();
}

} // namespace VornFrame
