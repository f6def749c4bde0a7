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
#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QPointer>
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
    // Lists of pointers hand null to memcmp() when both are empty (Qt 6.4).
    if (std::equal(actions.cbegin(), actions.cend(), displayedActions.cbegin(),
                   displayedActions.cend()))
        return;
    const qsizetype focusedIndex = indexOfFocus();
    const QAction *focusedAction = displayedActions.value(focusedIndex);
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
    if (focusedIndex >= 0)
        restoreFocus(focusedAction, focusedIndex);
}

void RibbonGalleryPrivate::addDisplayedItem(QAction *action)
{
    auto *tile = new RibbonGalleryItem(action, itemsFrame);
    tile->setIconSize(iconSize);
    tile->setFixedSize(actionSize);
    tile->setCollectEnabled(false);
    itemsLayout->addWidget(tile);
    items.append(tile);
    QObject::connect(action, &QObject::destroyed, tile->actionContext(),
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

/// Of the tile that the focus of the window is on, also while the popup is open; -1 for none.
qsizetype RibbonGalleryPrivate::indexOfFocus() const
{
    const QWidget *focused = q_ptr->window()->focusWidget();
    const auto isFocused = [focused](const RibbonGalleryItem *tile) { return tile == focused; };
    const auto found = std::find_if(items.cbegin(), items.cend(), isFocused);
    return found == items.cend() ? -1 : std::distance(items.cbegin(), found);
}

/// From the tile that has the focus to the next one that can get it, where \a step leads.
void RibbonGalleryPrivate::moveFocus(int step)
{
    const qsizetype from = indexOfFocus();
    if (from < 0)
        return;
    for (qsizetype i = from + step; i >= 0 && i < items.size(); i += step) {
        if (items.at(i)->isEnabled()) {
            items.at(i)->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

/// The focus was on the tile for \a action, the one at \a index, before there were new tiles.
void RibbonGalleryPrivate::restoreFocus(const QAction *action, qsizetype index)
{
    if (items.isEmpty())
        return;
    const qsizetype same = displayedActions.indexOf(action);
    const QPointer<QWidget> inPopup(popupMenu->isVisible() ? QApplication::focusWidget() : nullptr);
    RibbonGalleryItem *tile = items.at(same >= 0 ? same : std::min(index, items.size() - 1));
    tile->show(); // the layout would only when control returns to the event loop
    tile->setFocus(Qt::OtherFocusReason);
    // When the popup closes, the focus goes to where the window has it.
    if (inPopup)
        inPopup->setFocus(Qt::PopupFocusReason);
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

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): the counterpart of saveState()
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

void RibbonGallery::hideEvent(QHideEvent *event)
{
    Q_D(RibbonGallery);
    QWidget::hideEvent(event);
    // A menu would stay, alone on the screen.
    d->popupMenu->close();
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
