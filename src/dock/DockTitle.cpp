// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockTitle.h"

#include "DockTitle_p.h"

#include "core/LazyPolish.h"
#include "core/ResourcePaths.h"
#include "core/SharedIcons.h"

#include <QHBoxLayout>

#include <initializer_list>

namespace VornFrame {

namespace {

constexpr QMargins TitleMargins(4, 0, 4, 0);
constexpr int TitleSpacing = 4;
constexpr QSize CollapseIconSize(17, 17);
constexpr QSize MenuIconSize(10, 10);

} // namespace

void DockTitlePrivate::initCollapseButton()
{
    collapseButton->setIcon(
        SharedIcons::toggleIcon(ResourcePaths::DownArrowNormal, ResourcePaths::RightArrowNormal));
    collapseButton->setIconSize(CollapseIconSize);
    collapseButton->setFlat(true);
    collapseButton->setCheckable(true);
    collapseButton->setAccessibleName(DockTitle::tr("Collapse"));
    // In a dialog an auto-default button would answer Return from any line edit.
    collapseButton->setAutoDefault(false);
    collapseButton->hide();
    QObject::connect(collapseButton, &QPushButton::clicked, q_ptr, &DockTitle::signalCollapsed);
}

void DockTitlePrivate::initLabel()
{
    label->setTextFormat(Qt::PlainText);
    alignLabel();
    label->setSizePolicy(label->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

/// A label goes by the direction of its text; a title stands at the leading edge in any language.
void DockTitlePrivate::alignLabel()
{
    const Qt::Alignment leading = q_ptr->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    label->setAlignment(leading | Qt::AlignAbsolute | Qt::AlignVCenter);
}

/// Most views are never asked for their menu, so it is made when it is.
QMenu *DockTitlePrivate::madeMenu()
{
    if (!menu) {
        menu = new QMenu(q_ptr);
        minimizeAction = menu->addAction(DockTitle::tr("minimize to bar"));
        QObject::connect(minimizeAction, &QAction::triggered, q_ptr, &DockTitle::signalMinimize);
    }
    return menu;
}

void DockTitlePrivate::initMenuButton()
{
    menuButton->setIcon(SharedIcons::icon(ResourcePaths::Menu));
    menuButton->setIconSize(MenuIconSize);
    menuButton->setFlat(true);
    menuButton->setAccessibleName(DockTitle::tr("View menu"));
    menuButton->setAutoDefault(false);
    QObject::connect(menuButton, &QPushButton::clicked, q_ptr, [this] {
        madeMenu()->exec(menuButton->mapToGlobal(QPoint(0, menuButton->height())));
    });

    q_ptr->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(q_ptr, &DockTitle::customContextMenuRequested, q_ptr,
                     [this](QPoint pos) { madeMenu()->exec(q_ptr->mapToGlobal(pos)); });
}

void DockTitlePrivate::initLayout()
{
    auto *layout = new QHBoxLayout(q_ptr);
    layout->setContentsMargins(TitleMargins);
    layout->setSpacing(TitleSpacing);
    layout->addWidget(collapseButton);
    layout->addWidget(label);
    layout->addWidget(menuButton);
}

DockTitle::DockTitle(QWidget *parent) : QFrame(parent), d_ptr(std::make_unique<DockTitlePrivate>())
{
    Q_D(DockTitle);
    d->q_ptr = this;
    d->initCollapseButton();
    d->initLabel();
    d->initMenuButton();
    d->initLayout();
    for (QWidget *part :
         std::initializer_list<QWidget *>{d->collapseButton, d->label, d->menuButton})
        dropEarlyPolish(part);
}

DockTitle::~DockTitle() = default;

QMenu *DockTitle::menu() const
{
    // Not a change that anyone could see.
    return d_ptr->madeMenu();
}

void DockTitle::setText(const QString &text)
{
    Q_D(DockTitle);
    d->label->setText(text);
}

void DockTitle::setCollapseButtonVisible(bool visible)
{
    Q_D(DockTitle);
    d->collapseButton->setVisible(visible);
}

void DockTitle::changeEvent(QEvent *event)
{
    Q_D(DockTitle);
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        d->alignLabel();
}

bool DockTitle::event(QEvent *event)
{
    return isEarlyPolish(this, event) || QFrame::event(event);
}

} // namespace VornFrame
