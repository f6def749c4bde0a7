// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyle>
#include <QWidget>

namespace VornFrame {

/// Has the style look for the rules that hold for \a widget now. A style sheet selects by properties
/// such as the layout direction, but looks at them only when it polishes. Null is ignored.
inline void polishAgain(QWidget *widget)
{
    if (widget && widget->testAttribute(Qt::WA_WState_Polished)) {
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
    }
}

} // namespace VornFrame
