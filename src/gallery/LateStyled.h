// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QWidget>

namespace VornFrame {

/// A \a Widget that asks the style as late as it can.
///
/// Below a style sheet each question costs a search through all rules. A gallery has thousands of
/// widgets, of which few ever come into sight, but Qt asks for each of them: when it is made, when it
/// gets a parent, and when its window opens, wherever it stands in it.
///
/// It has no meta-object of its own: to style sheets it is the widget that it is.
template <typename Widget>
class LateStyled : public Widget
{
public:
    using Widget::Widget;

    /// From now on requests to polish are put off until the widget is painted.
    void setPolishedLate() { m_late = true; }

    bool isPolished() const { return this->testAttribute(Qt::WA_WState_Polished); }

    void polishNow()
    {
        m_late = false;
        if (isPolished())
            return;
        QEvent polish(QEvent::Polish);
        Widget::event(&polish);
        // What it has missed.
        QEvent change(QEvent::StyleChange);
        Widget::event(&change);
    }

protected:
    bool event(QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::ParentChange:
        case QEvent::StyleChange:
            return !isPolished() || Widget::event(event);
        case QEvent::PolishRequest:
            return m_late || !this->isVisible() || Widget::event(event);
        case QEvent::Polish:
            // Qt polishes hidden children too, and whatever is about to be shown below a hidden
            // parent.
            if (!m_late && !this->isHidden())
                polishNow();
            return true;
        case QEvent::Show:
            if (!m_late)
                polishNow();
            return Widget::event(event);
        default:
            return Widget::event(event);
        }
    }

    void paintEvent(QPaintEvent *event) override
    {
        polishNow();
        Widget::paintEvent(event);
    }

private:
    bool m_late = false;
};

} // namespace VornFrame
