// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonGroup.h>

#include "RibbonGroup_p.h"

#include "core/DirectedMargins.h"
#include "core/LazyPolish.h"
#include "RibbonActionItem.h"

#include <QActionEvent>
#include <QMenu>
#include <QVBoxLayout>
#include <QWidgetAction>

namespace VornFrame {

using namespace Qt::StringLiterals;

namespace {

constexpr int GroupHeight = 95;
constexpr QMargins GroupMargins(0, 1, 3, 1);
constexpr int GroupSpacing = 3;
constexpr int ItemSpacing = 4;
constexpr int TitleHeight = 12;
constexpr int TitleFontSize = 10; // px, so that descenders are not cut
constexpr QSize SeparatorSize(1, 80);

} // namespace

void RibbonGroupPrivate::init(const QString &title)
{
    titleLabel->setAlignment(Qt::AlignCenter);
    titleLabel->setFixedHeight(TitleHeight);
    QFont titleFont = titleLabel->font();
    titleFont.setPixelSize(qMin(TitleFontSize, QFontInfo(titleFont).pixelSize()));
    titleLabel->setFont(titleFont);
    titleLabel->setTextFormat(Qt::PlainText);
    titleLabel->setObjectName(u"groupTitle"_s);
    titleLabel->installEventFilter(q_ptr);
    actionsLayout->setContentsMargins(0, 0, 0, 0);
    actionsLayout->setSpacing(ItemSpacing);

    auto *mainLayout = new QHBoxLayout(q_ptr);
    setDirectedMargins(q_ptr, GroupMargins);
    mainLayout->setSpacing(GroupSpacing);
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    // The row is centred in all the height there is, so that the titles of all groups are in line.
    column->addLayout(actionsLayout, 1);
    column->setAlignment(actionsLayout, Qt::AlignVCenter);
    column->addWidget(titleLabel);
    mainLayout->addLayout(column);
    mainLayout->addWidget(createSeparator());

    titleLabel->setText(title);
    q_ptr->setFixedHeight(GroupHeight);
    q_ptr->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
}

QFrame *RibbonGroupPrivate::createSeparator()
{
    auto *separator = new QFrame(q_ptr);
    separator->setObjectName(u"separator"_s);
    separator->installEventFilter(q_ptr);
    separator->setFixedSize(SeparatorSize);
    separator->setFrameShape(QFrame::VLine);
    return separator;
}

QWidget *RibbonGroupPrivate::createItem(QAction *action)
{
    if (auto *widgetAction = qobject_cast<QWidgetAction *>(action))
        return RibbonActionItem::createEmbedded(q_ptr, widgetAction);
    if (action->isSeparator())
        return createSeparator();
    QToolButton *button = RibbonActionItem::createButton(action, Qt::ToolButtonTextUnderIcon);
    button->setPopupMode(popupMode);
    return button;
}

RibbonGroup::RibbonGroup(const QString &title, QWidget *parent)
    : RibbonGroup(*new RibbonGroupPrivate, parent)
{
    Q_D(RibbonGroup);
    d->init(title);
}

RibbonGroup::RibbonGroup(RibbonGroupPrivate &d, QWidget *parent) : QWidget(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

RibbonGroup::~RibbonGroup() = default;

void RibbonGroup::addAction(QAction *action)
{
    if (action)
        QWidget::addAction(action);
}

QAction *RibbonGroup::addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode)
{
    Q_D(RibbonGroup);
    // The mode stays for the buttons that follow, deliberately.
    if (menu)
        d->popupMode = mode;
    return RibbonActionItem::addMenu(this, menu);
}

QAction *RibbonGroup::addSeparator()
{
    auto *action = new QAction(this);
    action->setSeparator(true);
    addAction(action);
    return action;
}

QAction *RibbonGroup::addWidget(QWidget *widget)
{
    return RibbonActionItem::addWidget(this, widget);
}

RibbonSubgroup *RibbonGroup::addSubgroup()
{
    Q_D(RibbonGroup);
    auto *subgroup = new RibbonSubgroup(this);
    d->actionsLayout->addWidget(subgroup);
    d->subgroups.append(subgroup);
    return subgroup;
}

RibbonSubgroup *RibbonGroup::subgroup(int index) const
{
    Q_D(const RibbonGroup);
    return d->subgroups.value(index);
}

int RibbonGroup::indexOfSubgroup(RibbonSubgroup *subgroup) const
{
    Q_D(const RibbonGroup);
    return subgroup ? int(d->subgroups.indexOf(subgroup)) : -1;
}

bool RibbonGroup::eventFilter(QObject *watched, QEvent *event)
{
    // Watched are the title and the separators.
    if (watched->isWidgetType() && isEarlyPolish(static_cast<QWidget *>(watched), event))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool RibbonGroup::event(QEvent *event)
{
    return isEarlyPolish(this, event) || QWidget::event(event);
}

void RibbonGroup::actionEvent(QActionEvent *event)
{
    Q_D(RibbonGroup);
    // Items are only ever added: a removed action deliberately leaves its item in place.
    if (event->type() != QEvent::ActionAdded)
        return;
    if (QWidget *item = d->createItem(event->action()))
        d->actionsLayout->addWidget(item);
}

void RibbonGroup::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        setDirectedMargins(this, GroupMargins);
    QWidget::changeEvent(event);
}

} // namespace VornFrame
