// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockPanel.h"

#include "DockPanel_p.h"

#include "DockButton.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace VornFrame {

namespace {

constexpr int BarSpacing = 6;
constexpr int BarEndMargin = 6;

} // namespace

void DockPanelPrivate::initLayout()
{
    const bool horizontal = orientation == Qt::Horizontal;
    // The style sheets select by this property, and a layout asks the style.
    q_ptr->setProperty("orientation", horizontal ? u"horizontal"_s : u"vertical"_s);
    if (horizontal)
        layout = new QHBoxLayout(q_ptr);
    else
        layout = new QVBoxLayout(q_ptr);
    layout->setSpacing(BarSpacing);
    if (horizontal) {
        layout->setContentsMargins(BarEndMargin, 0, BarEndMargin, 0);
        layout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        q_ptr->setSizePolicy(QSizePolicy::Expanding, q_ptr->sizePolicy().verticalPolicy());
        q_ptr->addSeparator();
    } else {
        layout->setContentsMargins(0, BarEndMargin, 0, BarEndMargin);
        layout->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
        q_ptr->setSizePolicy(q_ptr->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    }
}

DockButton *DockPanelPrivate::button(int index) const
{
    // Buttons are only ever added, so their place in the group is their id; looking up an id walks
    // the whole group.
    return qobject_cast<DockButton *>(group->buttons().value(index));
}

int DockPanelPrivate::buttonCount() const
{
    return int(viewCounts.size());
}

void DockPanelPrivate::uncheckAllBut(int index)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    for (QAbstractButton *button : buttons) {
        if (group->id(button) != index)
            button->setChecked(false);
    }
}

void DockPanelPrivate::slotClicked(int index)
{
    const DockButton *clicked = button(index);
    if (!clicked || !clicked->isChecked()) {
        Q_EMIT q_ptr->signalCurrentChanged(-1);
        return;
    }
    uncheckAllBut(index);
    Q_EMIT q_ptr->signalCurrentChanged(index);
}

void DockPanelPrivate::fitWidth()
{
    if (orientation == Qt::Horizontal)
        q_ptr->setFixedWidth(layout->sizeHint().width());
}

DockPanel::DockPanel(Qt::Orientation orientation, QWidget *parent)
    : QFrame(parent), d_ptr(std::make_unique<DockPanelPrivate>(orientation))
{
    Q_D(DockPanel);
    d->q_ptr = this;
    d->group = new QButtonGroup(this);
    d->group->setExclusive(false);
    connect(d->group, &QButtonGroup::idClicked, this, [d](int id) { d->slotClicked(id); });
    d->initLayout();
}

DockPanel::~DockPanel() = default;

int DockPanel::addButton(const QString &text, const QIcon &icon)
{
    Q_D(DockPanel);
    const int index = d->buttonCount();
    auto *button = new DockButton(d->orientation, this);
    const int margins = 2 * d->buttonMargin;
    button->setFixedSize(d->iconSize.width() + margins, d->iconSize.height() + margins);
    button->setIconSize(d->iconSize);
    button->setIcons({icon});
    button->setToolTips({text});
    d->layout->addWidget(button);
    // At once, so that the bar has its new size at once.
    button->show();
    d->group->addButton(button, index);
    if (index == 0)
        button->setChecked(true);
    d->viewCounts.append(1);
    d->fitWidth();
    return index;
}

int DockPanel::tabifyButton(int index, const QString &text, const QIcon &icon)
{
    Q_D(DockPanel);
    DockButton *button = d->button(index);
    if (!button)
        return -1;
    const int before = d->viewCounts.at(index);
    d->viewCounts[index] = before + 1;
    const int height = d->iconSize.height() * (before + 1) + d->spacing * before;
    const int margins = 2 * d->buttonMargin;
    button->setFixedSize(d->iconSize.width() + margins, height + margins);
    button->setIconSize({d->iconSize.width(), height});
    button->setIcons(button->icons() << icon);
    button->setToolTips(button->toolTips() << text);
    d->fitWidth();
    return index;
}

void DockPanel::addSeparator()
{
    Q_D(DockPanel);
    auto *line = new QFrame(this);
    line->setFrameShape(d->orientation == Qt::Horizontal ? QFrame::VLine : QFrame::HLine);
    d->layout->addWidget(line);
    line->show();
    d->fitWidth();
}

int DockPanel::checkedId() const
{
    Q_D(const DockPanel);
    return d->group->checkedId();
}

void DockPanel::setButtonChecked(int index, bool checked)
{
    Q_D(DockPanel);
    if (DockButton *button = d->button(index))
        button->setChecked(checked);
}

void DockPanel::setButtonVisible(int index, bool visible)
{
    Q_D(DockPanel);
    if (DockButton *button = d->button(index)) {
        button->setVisible(visible);
        d->fitWidth();
    }
}

void DockPanel::setCurrentIndex(int index)
{
    Q_D(DockPanel);
    DockButton *button = d->button(index);
    if (!button)
        return;
    button->setChecked(true);
    d->uncheckAllBut(index);
}

Qt::Orientation DockPanel::orientation() const
{
    Q_D(const DockPanel);
    return d->orientation;
}

bool DockPanel::event(QEvent *event)
{
    const bool handled = QFrame::event(event);
    Q_D(DockPanel);
    // The style sheet gives the lines their width when they are polished.
    if (event->type() == QEvent::LayoutRequest)
        d->fitWidth();
    return handled;
}

} // namespace VornFrame
