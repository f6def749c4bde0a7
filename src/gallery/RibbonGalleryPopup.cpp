// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryPopup.h"

#include "RibbonGalleryPopup_p.h"

#include "core/ResourcePaths.h"
#include "core/SharedIcons.h"
#include "RibbonGalleryItem.h"
#include "RibbonGalleryMetrics.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>

namespace VornFrame {

namespace {

constexpr QSize CloseIconSize(12, 12);
constexpr QMargins SearchRowMargins(4, 4, 4, 4);
constexpr int SearchRowSpacing = 8;

} // namespace

RibbonGalleryPopupPrivate::RibbonGalleryPopupPrivate()
    : collectedGroup(new RibbonGalleryGroup(SharedIcons::icon(ResourcePaths::Collected),
                                            RibbonGalleryPopup::tr("collected"), nullptr))
{}

void RibbonGalleryPopupPrivate::init()
{
    contentFrame = new QFrame(q_ptr);
    contentFrame->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    initSearchRow();
    noMatchLabel->setText(RibbonGalleryPopup::tr("No items match your search criteria."));
    // With both vertical flags, of which the first wins.
    noMatchLabel->setAlignment(Qt::AlignHCenter | Qt::AlignTop | Qt::AlignVCenter);
    noMatchLabel->setFixedHeight(RibbonGalleryMetrics::NoMatchHeight);
    noMatchLabel->hide();

    auto *column = new QVBoxLayout(contentFrame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setAlignment(Qt::AlignTop);
    column->addLayout(createSearchRow());
    column->addLayout(groupsLayout);
    groupsLayout->setContentsMargins(0, 0, 0, 0);
    groupsLayout->setSpacing(0);
    groupsLayout->setAlignment(Qt::AlignTop);
    collectedGroup->setPosition(RibbonGalleryGroup::Fixed);
    groupsLayout->addWidget(collectedGroup);
    groupsLayout->addWidget(noMatchLabel);

    q_ptr->setWidget(contentFrame);
    q_ptr->setWidgetResizable(false);
    q_ptr->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    q_ptr->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    q_ptr->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    q_ptr->setAccessibleName(RibbonGalleryPopup::tr("Gallery"));
    // While it is empty this costs nothing, and the ancestors leave it alone when they are polished:
    // a popup with thousands of tiles waits until it is opened.
    contentFrame->ensurePolished();
}

void RibbonGalleryPopupPrivate::initSearchRow()
{
    searchEdit->addAction(SharedIcons::icon(ResourcePaths::Search), QLineEdit::TrailingPosition);
    searchEdit->setAccessibleName(RibbonGalleryPopup::tr("Search"));
    QObject::connect(searchEdit, &QLineEdit::textChanged, q_ptr,
                     [this](const QString &text) { search(text); });

    closeButton->setIcon(SharedIcons::icon(ResourcePaths::Close));
    closeButton->setIconSize(CloseIconSize);
    closeButton->setAutoDefault(false);
    closeButton->setFocusPolicy(Qt::TabFocus);
    closeButton->setAccessibleName(RibbonGalleryPopup::tr("Close"));
    closeButton->setToolTip(RibbonGalleryPopup::tr("Close"));
    QObject::connect(closeButton, &QPushButton::clicked, q_ptr, [this] {
        if (QWidget *menu = q_ptr->parentWidget())
            menu->close();
    });
}

QLayout *RibbonGalleryPopupPrivate::createSearchRow()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(SearchRowMargins);
    row->setSpacing(SearchRowSpacing);
    row->addWidget(searchEdit);
    row->addWidget(closeButton);
    return row;
}

bool RibbonGalleryPopupPrivate::isGroup(int index) const
{
    return index >= 0 && index < groups.size();
}

void RibbonGalleryPopupPrivate::updatePosition(qsizetype index)
{
    if (index < 0 || index >= groups.size())
        return;
    // A single group is the first one, deliberately: it can be moved to the bottom, not to the top.
    if (index == 0)
        groups.at(index)->setPosition(RibbonGalleryGroup::Top);
    else if (index == groups.size() - 1)
        groups.at(index)->setPosition(RibbonGalleryGroup::Bottom);
    else
        groups.at(index)->setPosition(RibbonGalleryGroup::Middle);
}

/// After a group came or went to an end of the list: all others keep their place between.
void RibbonGalleryPopupPrivate::updatePositions()
{
    for (const qsizetype index : {qsizetype{0}, qsizetype{1}, groups.size() - 2, groups.size() - 1})
        updatePosition(index);
}

void RibbonGalleryPopupPrivate::moveGroup(RibbonGalleryGroup *group,
                                          RibbonGalleryGroup::Position position)
{
    groups.removeOne(group);
    groupsLayout->removeWidget(group);
    // Groups are placed before the line that says that nothing matches. What is neither for the top
    // nor for the bottom deliberately leaves the list, and stands before what is in it.
    const int end = groupsLayout->count() - 1;
    const int begin = end - static_cast<int>(groups.size());
    if (position == RibbonGalleryGroup::Top)
        groups.prepend(group);
    else if (position == RibbonGalleryGroup::Bottom)
        groups.append(group);
    groupsLayout->insertWidget(position == RibbonGalleryGroup::Bottom ? end : begin, group);
    updatePositions();
    Q_EMIT q_ptr->signalGroupUpdated();
}

void RibbonGalleryPopupPrivate::collect(const Source &source)
{
    // A tile that is marked twice deliberately gets two favourites.
    RibbonGalleryItem *copy = collectedGroup->item(collectedGroup->addItem(
        source.action, *source.iconSize, *source.size, source.collectEnabled));
    collectedGroup->show();
    q_ptr->updateHeight();
    collectedGroup->show();
    copy->setCollected(true);
    QAction *action = source.action;
    QObject::connect(copy, &RibbonGalleryItem::signalCollected, copy,
                     [this, action] { uncollectEverywhere(action); });
    QObject::connect(action, &QObject::destroyed, copy->actionContext(),
                     [this, copy] { dropWithAction(collectedGroup, copy); });
}

void RibbonGalleryPopupPrivate::uncollect(const QAction *action)
{
    collectedGroup->removeItem(action);
    q_ptr->updateHeight();
    if (collectedGroup->count() == 0)
        collectedGroup->hide();
}

/// The star of a favourite was clicked, whatever it shows now.
void RibbonGalleryPopupPrivate::uncollectEverywhere(const QAction *action)
{
    collectedGroup->removeItem(action);
    q_ptr->updateHeight();
    for (RibbonGalleryGroup *group : std::as_const(groups))
        group->setItemCollected(action, false);
}

void RibbonGalleryPopupPrivate::dropWithAction(RibbonGalleryGroup *group, RibbonGalleryItem *tile)
{
    group->removeItem(tile);
    if (q_ptr->isVisible())
        q_ptr->updateHeight();
}

void RibbonGalleryPopupPrivate::search(const QString &text)
{
    // Nothing is placed before all groups have settled, and so nothing is painted before. (To turn
    // updates off would go through all tiles, twice.)
    contentFrame->layout()->setEnabled(false);
    bool noMatch = true;
    if (collectEnabled && collectedGroup->showMatches(text))
        noMatch = false;
    for (RibbonGalleryGroup *group : std::as_const(groups)) {
        if (group->showMatches(text))
            noMatch = false;
    }
    noMatchLabel->setVisible(noMatch);
    contentFrame->layout()->setEnabled(true);
    q_ptr->updateHeight();
    contentFrame->layout()->activate();
}

/// What the rows of \a group need beyond the first; an empty group has one row.
int RibbonGalleryPopupPrivate::extraHeight(const RibbonGalleryGroup *group) const
{
    const int extraRows = (group->count() - 1) / std::max(displayCount, 1);
    return std::max(extraRows, 0) * RibbonGalleryMetrics::RowHeight;
}

/// Of \a all groups, or of those that can be seen. Hides the favourites when there are none.
int RibbonGalleryPopupPrivate::sumHeights(bool all) const
{
    using namespace RibbonGalleryMetrics;
    int height = SearchRowHeight;
    if (collectedGroup->count() == 0)
        collectedGroup->hide();
    else if (all || collectedGroup->isVisible())
        height += GroupHeight + extraHeight(collectedGroup);
    for (const RibbonGalleryGroup *group : groups) {
        if (all || group->isVisible())
            height += GroupHeight + extraHeight(group);
    }
    return height == SearchRowHeight ? SearchRowHeight + NoMatchHeight : height;
}

/// At that \a height, and beside a scroll bar where the popup is lower.
int RibbonGalleryPopupPrivate::contentWidth(int height) const
{
    const int scrollBar = height > q_ptr->height() ? RibbonGalleryMetrics::ScrollBarWidth : 0;
    return std::max(0, q_ptr->width() - scrollBar);
}

RibbonGalleryPopup::RibbonGalleryPopup(QWidget *parent)
    : QScrollArea(parent), d_ptr(new RibbonGalleryPopupPrivate)
{
    Q_D(RibbonGalleryPopup);
    d->q_ptr = this;
    d->init();
}

RibbonGalleryPopup::~RibbonGalleryPopup() = default;

int RibbonGalleryPopup::addGroup(const QString &name, const QIcon &icon)
{
    Q_D(RibbonGalleryPopup);
    auto *group = new RibbonGalleryGroup(icon, name, nullptr);
    // Before the line that says that nothing matches.
    d->groupsLayout->insertWidget(d->groupsLayout->count() - 1, group);
    d->groups.append(group);
    d->updatePositions();
    connect(group, &RibbonGalleryGroup::signalPositionChange, group,
            [d, group](RibbonGalleryGroup::Position position) { d->moveGroup(group, position); });
    return static_cast<int>(d->groups.size()) - 1;
}

int RibbonGalleryPopup::addItem(int group, QAction *action, const QSize *iconSize,
                                const QSize *size, bool collectEnabled)
{
    Q_D(RibbonGalleryPopup);
    if (!d->isGroup(group) || !action)
        return -1;
    RibbonGalleryGroup *owner = d->groups.at(group);
    const int index = owner->addItem(action, *iconSize, *size, collectEnabled);
    RibbonGalleryItem *tile = owner->item(index);
    if (collectEnabled) {
        const RibbonGalleryPopupPrivate::Source source{action, iconSize, size, collectEnabled};
        connect(tile, &RibbonGalleryItem::signalCollected, tile, [d, source](bool collected) {
            collected ? d->collect(source) : d->uncollect(source.action);
        });
    }
    connect(action, &QObject::destroyed, tile->actionContext(),
            [d, owner, tile] { d->dropWithAction(owner, tile); });
    return index;
}

int RibbonGalleryPopup::indexOfGroup(const QString &name) const
{
    Q_D(const RibbonGalleryPopup);
    const auto isNamed = [&name](const RibbonGalleryGroup *group) {
        return group->title() == name;
    };
    const auto found = std::find_if(d->groups.cbegin(), d->groups.cend(), isNamed);
    return found == d->groups.cend() ? -1
                                     : static_cast<int>(std::distance(d->groups.cbegin(), found));
}

QList<QAction *> RibbonGalleryPopup::displayedActions() const
{
    Q_D(const RibbonGalleryPopup);
    QList<QAction *> actions;
    const auto take = [d, &actions](const RibbonGalleryGroup *group, bool collected) {
        for (int i = 0; i < group->count() && actions.size() < d->displayCount; ++i) {
            QAction *action = group->item(i)->defaultAction();
            // The tile of a favourite is skipped: its copy was taken before. One whose action is
            // just being deleted has none any more.
            if (action && (collected || !group->isItemCollected(i)))
                actions.append(action);
        }
    };
    take(d->collectedGroup, true);
    for (const RibbonGalleryGroup *group : d->groups)
        take(group, false);
    return actions;
}

void RibbonGalleryPopup::setCollectEnabled(bool enabled)
{
    Q_D(RibbonGalleryPopup);
    d->collectEnabled = enabled;
}

void RibbonGalleryPopup::setDisplayCount(int count)
{
    Q_D(RibbonGalleryPopup);
    d->displayCount = count;
}

bool RibbonGalleryPopup::setItemCollected(int group, int item, bool collected)
{
    Q_D(RibbonGalleryPopup);
    return d->isGroup(group) && d->groups.at(group)->setItemCollected(item, collected);
}

QByteArray RibbonGalleryPopup::saveState() const
{
    Q_D(const RibbonGalleryPopup);
    return d->displayCount == 0 ? QByteArrayLiteral("AAAA") : QByteArray();
}

void RibbonGalleryPopup::restoreState(const QByteArray &state)
{
    Q_UNUSED(state)
}

int RibbonGalleryPopup::contentHeight(bool all) const
{
    Q_D(const RibbonGalleryPopup);
    return d->sumHeights(all);
}

void RibbonGalleryPopup::updateHeight()
{
    Q_D(RibbonGalleryPopup);
    const int height = d->sumHeights(false);
    d->contentFrame->setFixedHeight(height);
    Q_EMIT signalHeightChanged(height);
    d->contentFrame->setFixedWidth(d->contentWidth(height));
    d->collectedGroup->updateLayout();
}

void RibbonGalleryPopup::prepareToShow()
{
    Q_D(RibbonGalleryPopup);
    const int height = d->sumHeights(true);
    d->contentFrame->setFixedSize(d->contentWidth(height), height);
}

void RibbonGalleryPopup::focusSearch()
{
    Q_D(RibbonGalleryPopup);
    d->focus(d->searchEdit, Qt::PopupFocusReason);
}

void RibbonGalleryPopup::hideEvent(QHideEvent *event)
{
    Q_D(RibbonGalleryPopup);
    d->searchEdit->clear();
    QTimer::singleShot(0, this, [this] { Q_EMIT signalUpdateDisplayedItems(); });
    QScrollArea::hideEvent(event);
}

// A menu around the popup would take a click on a title or between the tiles for a choice, and close.
void RibbonGalleryPopup::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void RibbonGalleryPopup::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void RibbonGalleryPopup::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

void RibbonGalleryPopup::showEvent(QShowEvent *event)
{
    updateHeight();
    QScrollArea::showEvent(event);
}

} // namespace VornFrame
