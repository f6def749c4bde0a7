// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QToolButton>

namespace VornFrame {

/// A tool button that can leave its polish to its first painting.
///
/// Qt polishes all widgets of a window when it opens, also those far outside the visible part of a
/// scroll area, and below a style sheet each of them costs a search through all rules. Of thousands
/// of tiles only the few that come into sight ever pay.
///
/// It has no meta-object of its own: to style sheets it is the tool button that it is.
class LateToolButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

    /// From now on requests to polish are put off until the button is painted.
    void setPolishedLate() { m_late = true; }

protected:
    bool event(QEvent *event) override
    {
        const bool isPolish = event->type() == QEvent::Polish
                              || event->type() == QEvent::PolishRequest;
        return (m_late && isPolish) || QToolButton::event(event);
    }

    void paintEvent(QPaintEvent *event) override
    {
        if (m_late) {
            m_late = false;
            if (!testAttribute(Qt::WA_WState_Polished)) {
                QEvent polish(QEvent::Polish);
                QToolButton::event(&polish);
            }
        }
        QToolButton::paintEvent(event);
    }

private:
    bool m_late = false;
};

} // namespace VornFrame
