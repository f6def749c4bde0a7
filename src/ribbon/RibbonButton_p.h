// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonButton.h"

#include <QBrush>
#include <QFont>
#include <QPen>
#include <QRect>
#include <QSize>

class QMenu;
class QPainter;

namespace VornFrame {

class RibbonButtonPrivate
{
public:
    static QPen solidPen(const QColor &color, qreal width)
    {
        return {color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
    }

    explicit RibbonButtonPrivate(RibbonButton *button) : q_ptr(button) {}

    bool isLarge() const { return q_ptr->toolButtonStyle() == Qt::ToolButtonTextUnderIcon; }
    bool isSmall() const { return q_ptr->toolButtonStyle() == Qt::ToolButtonTextBesideIcon; }
    QMenu *menu() const;

    /// Whether the button has a menu part that is highlighted and pressed for itself.
    bool isSplit() const;

    /// The action's text without the marks of its mnemonic.
    QString text() const;

    /// The size of text() as this form of the button draws it. Layouts and painting ask for it
    /// again and again, and shaping text is what they cost most, so it is measured once for a text
    /// and font.
    QSize textSize() const;
    QSize measure(const QString &string) const;
    int lineWidth(const QString &line) const;

    /// The size of the button for a text of the given width.
    QSize sizeFor(int width) const;

    /// The menu part of a button of the given size, in a left-to-right layout.
    QRect menuRectFor(QSize size) const;

    /// Makes the size that the text asks for the button's fixed size.
    void applySize();

    /// Where the parts of the button are, mirrored in a right-to-left layout. Painting and hit
    /// tests both take them from here.
    QRect iconRect() const;
    QRect textRect() const;
    QRect arrowRect() const;
    QRect menuPart() const;
    QRect mirrored(const QRect &rect) const;

    void updateOverMenuPart(QPoint position);

    void drawBackground(QPainter &painter) const;
    void drawSplitBackground(QPainter &painter) const;
    void drawHoveredPart(QPainter &painter) const;
    void drawPlainBackground(QPainter &painter) const;
    const QPen &dividerPen() const;
    void drawIcon(QPainter &painter) const;
    void drawText(QPainter &painter) const;
    void drawArrow(QPainter &painter) const;

    bool hovered = false; ///< the pointer is over the button
    bool overMenuPart = false; ///< the pointer is over the menu part
    bool menuPressed = false; ///< the menu part was pressed in split mode; recorded only
    QRect menuRect; ///< the menu part in a left-to-right layout; set with the size
    int textWidth = 0; ///< set with the size
    int largeHeight = 72;
    QSize baseSize{22, 22}; ///< the icon-only form; its height is the small form's too
    int radius = 2;
    QSize largeIconSize{24, 24};
    QSize smallIconSize{16, 16};
    int largeTopMargin = 7; ///< above the icon
    int largeMenuTopMargin = 4; ///< with the top margin and the icon's height: top of menuRect
    int largeTextSpacing = 6; ///< between icon and text
    int largeArrowBottomMargin = 8; ///< between arrow and bottom edge
    int largeIconMargin = 6; ///< at least on each side of the icon
    int smallLeftMargin = 3; ///< before the icon
    int smallTextSpacing = 5; ///< between icon and text
    int smallRightMargin = 10; ///< after the text where there is no menu part
    int largeTextMargin = 5; ///< at least on each side of the text
    QSize arrowSize{8, 4};
    int arrowRightMargin = 6; ///< small: between arrow and right edge
    int menuRightPart = 8; ///< small: added to the width of the arrow
    int menuGap = 2; ///< small: between the end of the text and menuRect
    QPen textPen = solidPen(Qt::black, 0); ///< cosmetic by its width
    QPen framePen = solidPen({125, 125, 125}, 1);
    QPen lightPen = solidPen({191, 191, 191}, 1);
    QPen accentPen = solidPen({38, 140, 221}, 1);
    QBrush normalBrush{Qt::white}; ///< hovered
    QBrush surfaceBrush{QColor(245, 245, 245)}; ///< a plain button pressed
    QBrush pressedBrush{QColor(217, 217, 217)}; ///< checked or pressed
    mutable QString measuredText; ///< what measuredSize was measured from
    mutable QFont measuredFont;
    mutable QSize measuredSize;
    RibbonButton *q_ptr = nullptr;
};

} // namespace VornFrame
