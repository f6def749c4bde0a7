// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonButton.h"

#include "RibbonButton_p.h"

#include "core/LazyPolish.h"

#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QtMath>

namespace VornFrame {

QMenu *RibbonButtonPrivate::menu() const
{
    const QAction *action = q_ptr->defaultAction();
    return action ? action->menu() : nullptr;
}

bool RibbonButtonPrivate::isSplit() const
{
    return menu() != nullptr && q_ptr->popupMode() != QToolButton::InstantPopup;
}

QString RibbonButtonPrivate::text() const
{
    const QAction *action = q_ptr->defaultAction();
    QString marked = action ? action->text() : q_ptr->text();
    if (!marked.contains(u'&'))
        return marked;
    QString plain;
    for (qsizetype i = 0; i < marked.size(); ++i) {
        if (marked.at(i) == u'&' && i + 1 < marked.size())
            ++i;
        plain += marked.at(i);
    }
    return plain;
}

QSize RibbonButtonPrivate::textSize() const
{
    const QString string = text();
    if (!measuredSize.isValid() || string != measuredText || q_ptr->font() != measuredFont) {
        measuredText = string;
        measuredFont = q_ptr->font();
        measuredSize = measure(string);
    }
    return measuredSize;
}

QSize RibbonButtonPrivate::measure(const QString &string) const
{
    const QFontMetrics metrics = q_ptr->fontMetrics();
    if (!isLarge())
        return {metrics.horizontalAdvance(string), metrics.height()};
    if (!string.contains(u'\n'))
        return {lineWidth(string), metrics.height()};
    QSize size = metrics.size(Qt::TextWordWrap, string);
    // Word-wrapped without a width, every word stands on a line of its own; two lines are meant as
    // they are.
    const QStringList lines = string.split(u'\n');
    if (lines.size() == 2)
        size.setWidth(qMax(lineWidth(lines.at(0)), lineWidth(lines.at(1))));
    return size;
}

int RibbonButtonPrivate::lineWidth(const QString &line) const
{
    // QFontMetrics::size() lays the text out for its answer and takes twice the time of the advance.
    // They are the same unless the last glyph reaches beyond its own width, or is a space.
    const QFontMetricsF metrics(q_ptr->font(), q_ptr);
    if (line.isEmpty() || line.back().isSpace() || metrics.rightBearing(line.back()) < 0)
        return q_ptr->fontMetrics().size(Qt::TextSingleLine, line).width();
    return qCeil(metrics.horizontalAdvance(line));
}

QSize RibbonButtonPrivate::sizeFor(int width) const
{
    if (isLarge()) {
        const int iconWidth = largeIconSize.width() + 2 * largeIconMargin;
        return {qMax(iconWidth, width + 2 * largeTextMargin), largeHeight};
    }
    if (!isSmall())
        return baseSize;
    const int common = smallLeftMargin + smallIconSize.width() + smallTextSpacing + width;
    if (q_ptr->popupMode() == QToolButton::DelayedPopup)
        return {common + smallRightMargin, baseSize.height()};
    return {common + arrowRightMargin + arrowSize.width() + menuRightPart, baseSize.height()};
}

QRect RibbonButtonPrivate::menuRectFor(QSize size) const
{
    if (isLarge()) {
        const int top = largeMenuTopMargin + largeTopMargin + largeIconSize.height();
        return {0, top, size.width(), size.height() - top};
    }
    if (!isSmall())
        return {};
    const int left = smallLeftMargin + smallTextSpacing + smallIconSize.width() + menuGap
                     + textWidth;
    return {left, 0, arrowSize.width() - menuGap + arrowRightMargin + menuRightPart, size.height()};
}

void RibbonButtonPrivate::applySize()
{
    textWidth = textSize().width();
    const QSize size = sizeFor(textWidth);
    menuRect = menuRectFor(size);
    q_ptr->setFixedSize(size);
}

void RibbonButtonPrivate::updateOverMenuPart(QPoint position)
{
    const bool over = menuPart().contains(position);
    if (over == overMenuPart)
        return;
    overMenuPart = over;
    q_ptr->update();
}

RibbonButton::RibbonButton(QWidget *parent)
    : QToolButton(parent), d_ptr(std::make_unique<RibbonButtonPrivate>(this))
{
    setMouseTracking(true);
}

RibbonButton::~RibbonButton() = default;

void RibbonButton::setAction(QAction *action)
{
    Q_D(RibbonButton);
    if (auto *menu = action->menu()) {
        connect(menu, &QMenu::aboutToHide, this, [this, d] {
            d->hovered = false;
            update();
        });
        menu->installEventFilter(this);
    }
    connect(action, &QAction::visibleChanged, this,
            [this, action] { setVisible(action->isVisible()); });
    setDefaultAction(action);
    if (!action->isVisible())
        hide();
}

QSize RibbonButton::sizeHint() const
{
    Q_D(const RibbonButton);
    ensurePolished();
    return d->sizeFor(d->textSize().width());
}

bool RibbonButton::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(RibbonButton);
    QMenu *menu = d->menu();
    if (menu && watched == menu && event->type() == QEvent::Show) {
        // One pixel up: the menu's frame covers the bottom line of the button.
        menu->move(menu->pos() - QPoint(0, 1));
        return true;
    }
    return QToolButton::eventFilter(watched, event);
}

bool RibbonButton::event(QEvent *event)
{
    return isEarlyPolish(this, event) || QToolButton::event(event);
}

void RibbonButton::changeEvent(QEvent *event)
{
    Q_D(RibbonButton);
    // On a change of style the base class asks for margins and delays that this button has no use
    // for, and below a style sheet each question costs a search through all rules.
    if (event->type() != QEvent::StyleChange)
        QToolButton::changeEvent(event);
    else if (testAttribute(Qt::WA_WState_Polished))
        QAbstractButton::changeEvent(event); // NOLINT(bugprone-parent-virtual-call)
    const bool sized = minimumSize() == maximumSize();
    if (event->type() == QEvent::FontChange && sized)
        d->applySize();
}

void RibbonButton::mousePressEvent(QMouseEvent *event)
{
    Q_D(RibbonButton);
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    // The base class would open menus by its own rules. The release is its own: a button that is
    // down is clicked.
    d->hovered = true;
    setDown(true);
    if (!d->menu() || popupMode() == QToolButton::DelayedPopup)
        return;
    if (popupMode() == QToolButton::MenuButtonPopup) {
        d->updateOverMenuPart(event->position().toPoint());
        if (!d->overMenuPart)
            return;
        d->menuPressed = true;
    }
    const QPointer<RibbonButton> self(this);
    showMenu();
    if (self && !d->menu()) {
        // A menu that was deleted while it was open has not told that it closed.
        d->hovered = false;
        setDown(false);
    }
}

void RibbonButton::mouseReleaseEvent(QMouseEvent *event)
{
    // QToolButton's own handler goes on with the button after the click (Qt 6.4), and the command
    // may have deleted it by then.
    QAbstractButton::mouseReleaseEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void RibbonButton::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(RibbonButton);
    event->accept();
    d->updateOverMenuPart(event->position().toPoint());
    QToolButton::mouseMoveEvent(event);
}

void RibbonButton::enterEvent(QEnterEvent *event)
{
    Q_D(RibbonButton);
    d->hovered = true;
    // Not every style repaints a button when the pointer comes and goes.
    update();
    QToolButton::enterEvent(event);
}

void RibbonButton::leaveEvent(QEvent *event)
{
    Q_D(RibbonButton);
    d->hovered = false;
    update();
    QToolButton::leaveEvent(event);
}

void RibbonButton::paintEvent(QPaintEvent * /*event*/)
{
    Q_D(RibbonButton);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    if ((d->hovered && isEnabled()) || isChecked())
        d->drawBackground(painter);
    d->drawIcon(painter);
    d->drawText(painter);
    d->drawArrow(painter);
}

void RibbonButton::resizeEvent(QResizeEvent *event)
{
    Q_D(RibbonButton);
    QToolButton::resizeEvent(event);
    d->applySize();
}

} // namespace VornFrame
