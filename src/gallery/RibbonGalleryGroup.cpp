// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryGroup.h"

#include "RibbonGalleryGroup_p.h"

#include "core/ResourcePaths.h"
#include "core/SharedIcons.h"
#include "RibbonGalleryItem.h"
#include "RibbonGalleryLayout.h"

#include <QAction>
#include <QGuiApplication>
#include <QHBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace VornFrame {

namespace {

constexpr QSize TitleIconSize(16, 16);
constexpr int TitleIconMargin = 4; ///< between the icon and the title
constexpr QMargins TitleMargins(4, 0, 4, 0);
constexpr QMargins ItemsMargins(3, 5, 3, 5);

/// As a person reads it: of two ampersands, one is shown.
QString shownText(const RibbonGalleryItem *tile)
{
    const QString text = tile->text();
    return text.contains(u'&') ? QString(text).replace("&&"_L1, "&"_L1) : text;
}

/// Only where it changes something: each time costs a layout.
void setShown(QWidget *widget, bool shown)
{
    if (widget->isHidden() == shown)
        widget->setVisible(shown);
}

} // namespace

void RibbonGalleryGroupPrivate::init(const QIcon &icon, const QString &title)
{
    iconLabel->setPixmap(icon.pixmap(TitleIconSize, qGuiApp->devicePixelRatio()));
    // Only hidden, never shown: it has no parent yet, and would be seen as a window.
    if (icon.isNull())
        iconLabel->hide();
    iconLabel->setMinimumWidth(TitleIconSize.width() + TitleIconMargin);
    titleLabel->setTextFormat(Qt::PlainText);
    titleLabel->setText(title);
    initMoveButton(toTopButton, ResourcePaths::ToTop, RibbonGalleryGroup::tr("Move to top"),
                   RibbonGalleryGroup::Top);
    initMoveButton(toBottomButton, ResourcePaths::ToBottom,
                   RibbonGalleryGroup::tr("Move to bottom"), RibbonGalleryGroup::Bottom);

    initTitle();
    itemsFrame->setObjectName(u"galleryGroupFrame"_s);
    layout = new RibbonGalleryLayout(itemsFrame, 0, 0, 0);
    layout->setContentsMargins(ItemsMargins);

    titleFrame->setPolishedLate();
    itemsFrame->setPolishedLate();
    for (LateStyled<QLabel> *label : {iconLabel, titleLabel})
        label->setPolishedLate();
    for (LateStyled<QPushButton> *button : {toTopButton, toBottomButton})
        button->setPolishedLate();
    q_ptr->setPolishedLate();

    auto *column = new QVBoxLayout(q_ptr);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(titleFrame);
    column->addWidget(itemsFrame);
}

void RibbonGalleryGroupPrivate::initTitle()
{
    titleFrame->setObjectName(u"galleryGroupTitle"_s);
    // As in the style sheet, which a group that has not been painted does not know yet.
    titleFrame->setFixedHeight(RibbonGalleryTitle::Height);
    titleFrame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *row = new QHBoxLayout(titleFrame);
    row->setSpacing(0);
    row->setContentsMargins(TitleMargins);
    row->setDirection(QBoxLayout::LeftToRight);
    row->addWidget(iconLabel);
    row->addWidget(titleLabel);
    row->addStretch(1);
    row->addWidget(toTopButton);
    row->addWidget(toBottomButton);
}

/// Before the group is first painted. All at once, so that its title does not move afterwards.
void RibbonGalleryGroupPrivate::polishParts() const
{
    if (titleFrame->isPolished())
        return;
    titleFrame->polishNow();
    itemsFrame->polishNow();
    for (LateStyled<QLabel> *label : {iconLabel, titleLabel})
        label->polishNow();
    for (LateStyled<QPushButton> *button : {toTopButton, toBottomButton})
        button->polishNow();
    titleFrame->updateGeometry();
    titleFrame->layout()->activate();
}

void RibbonGalleryGroupPrivate::initMoveButton(QPushButton *button, QLatin1StringView icon,
                                               const QString &text,
                                               RibbonGalleryGroup::Position position) const
{
    button->setIcon(SharedIcons::icon(icon));
    button->setIconSize(TitleIconSize);
    button->setAutoDefault(false);
    // A click leaves the focus in the search field.
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(text);
    button->setToolTip(text);
    QObject::connect(button, &QPushButton::clicked, q_ptr,
                     [this, position] { Q_EMIT q_ptr->signalPositionChange(position); });
}

qsizetype RibbonGalleryGroupPrivate::indexOf(const QAction *action) const
{
    const auto isOfAction = [action](const RibbonGalleryItem *tile) {
        return tile->defaultAction() == action;
    };
    const auto found = std::find_if(items.cbegin(), items.cend(), isOfAction);
    return found == items.cend() ? -1 : std::distance(items.cbegin(), found);
}

/// To the tile behind \a item, or to the one before the last.
void RibbonGalleryGroupPrivate::focusBeside(RibbonGalleryItem *item) const
{
    QList<RibbonGalleryItem *> tiles = q_ptr->reachableItems();
    const qsizetype index = tiles.indexOf(item);
    if (index < 0 || tiles.size() < 2)
        return;
    tiles.removeAt(index);
    tiles.at(std::min(index, tiles.size() - 1))->setFocus(Qt::OtherFocusReason);
}

RibbonGalleryGroup::RibbonGalleryGroup(const QIcon &icon, const QString &title, QWidget *parent)
    : LateStyled(parent), d_ptr(new RibbonGalleryGroupPrivate)
{
    Q_D(RibbonGalleryGroup);
    d->q_ptr = this;
    d->init(icon, title);
}

RibbonGalleryGroup::~RibbonGalleryGroup() = default;

int RibbonGalleryGroup::addItem(QAction *action, const QSize &iconSize, const QSize &size,
                                bool collectEnabled)
{
    Q_D(RibbonGalleryGroup);
    // Without a parent at first: a tool button asks the style when it is made, and below a style
    // sheet that is a search through all rules.
    auto *tile = new RibbonGalleryItem(action, nullptr);
    tile->setTilePolishedLate();
    tile->setIconSize(iconSize);
    tile->setFixedSize(size);
    tile->setCollectEnabled(collectEnabled);
    d->items.append(tile);
    d->layout->addWidget(tile);
    return count() - 1;
}

int RibbonGalleryGroup::count() const
{
    Q_D(const RibbonGalleryGroup);
    return static_cast<int>(d->items.size());
}

RibbonGalleryItem *RibbonGalleryGroup::item(int index) const
{
    Q_D(const RibbonGalleryGroup);
    return index >= 0 && index < count() ? d->items.at(index) : nullptr;
}

bool RibbonGalleryGroup::isItemCollected(int index) const
{
    const RibbonGalleryItem *tile = item(index);
    return tile != nullptr && tile->isCollected();
}

bool RibbonGalleryGroup::setItemCollected(int index, bool collected)
{
    RibbonGalleryItem *tile = item(index);
    if (tile)
        tile->setCollected(collected);
    return tile != nullptr;
}

bool RibbonGalleryGroup::setItemCollected(const QAction *action, bool collected)
{
    Q_D(RibbonGalleryGroup);
    return setItemCollected(static_cast<int>(d->indexOf(action)), collected);
}

bool RibbonGalleryGroup::removeItem(const QAction *action)
{
    Q_D(RibbonGalleryGroup);
    return removeItem(item(static_cast<int>(d->indexOf(action))));
}

bool RibbonGalleryGroup::removeItem(RibbonGalleryItem *item)
{
    Q_D(RibbonGalleryGroup);
    if (!d->items.contains(item))
        return false;
    if (item->hasFocus())
        d->focusBeside(item);
    d->items.removeOne(item);
    d->layout->removeWidget(item);
    item->hide();
    item->deleteLater();
    return true;
}

void RibbonGalleryGroup::setItemVisible(int index, bool visible)
{
    if (RibbonGalleryItem *tile = item(index))
        tile->setVisible(visible);
}

bool RibbonGalleryGroup::showMatches(const QString &text)
{
    Q_D(RibbonGalleryGroup);
    bool matched = false;
    // Each tile that comes or goes would have all others placed.
    d->layout->setEnabled(false);
    for (RibbonGalleryItem *tile : std::as_const(d->items)) {
        const bool matches = shownText(tile).contains(text, Qt::CaseSensitive);
        matched = matched || matches;
        if (matches == tile->isHidden())
            tile->setVisible(matches);
    }
    d->layout->setEnabled(true);
    setVisible(matched);
    return matched;
}

QList<RibbonGalleryItem *> RibbonGalleryGroup::reachableItems() const
{
    Q_D(const RibbonGalleryGroup);
    QList<RibbonGalleryItem *> tiles;
    if (isHidden())
        return tiles;
    for (RibbonGalleryItem *tile : d->items) {
        if (!tile->isHidden() && tile->isEnabled())
            tiles.append(tile);
    }
    return tiles;
}

QList<QWidget *> RibbonGalleryGroup::keyboardStops() const
{
    Q_D(const RibbonGalleryGroup);
    QList<QWidget *> stops;
    if (isHidden())
        return stops;
    for (QPushButton *button : {d->toTopButton, d->toBottomButton}) {
        if (!button->isHidden())
            stops.append(button);
    }
    const QList<RibbonGalleryItem *> tiles = reachableItems();
    if (!tiles.isEmpty())
        stops.append(tiles.first());
    return stops;
}

void RibbonGalleryGroup::setPosition(Position position)
{
    Q_D(RibbonGalleryGroup);
    setShown(d->toTopButton, position >= Middle);
    setShown(d->toBottomButton, position != Fixed && position != Bottom);
}

QString RibbonGalleryGroup::title() const
{
    Q_D(const RibbonGalleryGroup);
    return d->titleLabel->text();
}

void RibbonGalleryGroup::updateLayout()
{
    Q_D(RibbonGalleryGroup);
    d->layout->update();
}

void RibbonGalleryGroup::paintEvent(QPaintEvent *event)
{
    Q_D(RibbonGalleryGroup);
    d->polishParts();
    LateStyled::paintEvent(event);
}

} // namespace VornFrame
