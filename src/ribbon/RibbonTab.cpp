// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonTab.h"

#include "RibbonTab_p.h"

namespace VornFrame {

RibbonTab::RibbonTab(const QString &text, QWidget *parent)
    : QPushButton(parent), d_ptr(std::make_unique<RibbonTabPrivate>())
{
    Q_D(RibbonTab);
    d->q_ptr = this;
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setText(text);
}

RibbonTab::~RibbonTab() = default;

bool RibbonTab::isTemporary() const
{
    Q_D(const RibbonTab);
    return d->temporary;
}

void RibbonTab::setTemporary(bool temporary)
{
    Q_D(RibbonTab);
    d->temporary = temporary;
}

QSize RibbonTab::sizeHint() const
{
    Q_D(const RibbonTab);
    // The button's own hint comes first: it polishes the button, which gives it the font of the
    // style sheet.
    const int height = QPushButton::sizeHint().height();
    return {2 * d->margin + fontMetrics().horizontalAdvance(text()), height};
}

} // namespace VornFrame
