// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressEntry.h"

#include <QBrush>
#include <QIcon>
#include <QPen>
#include <QRect>
#include <QSize>
#include <QString>

class QAction;
class QMenu;
class QPainter;

namespace VornFrame {

class AddressEntryPrivate
{
public:
    explicit AddressEntryPrivate(AddressEntry *entry) : q_ptr(entry) {}

    void init();

    void buildMenu();
    void shortenNames() const;
    void choose(const QAction *action);
    void placeMenu(QMenu *menu) const;

    /// Whether the entry has a part of its own for the arrow.
    bool isSplit() const;
    QString shownName() const;
    int nameWidth() const;
    QSize sizeFor(int width) const;
    void applySize();

    /// Where the arrow's part begins, in a left-to-right layout.
    int arrowLeft() const { return leftMargin + spacing + textWidth; }

    /// Where the parts are, mirrored in a right-to-left layout. Painting and hit test both take
    /// them from here.
    QRect arrowPart() const;
    QRect textRect() const;
    QRect arrowPictureRect() const;
    QRect mirrored(const QRect &rect) const;

    void setHovered(bool over);
    void updateOverArrow(QPoint position);

    void drawBackground(QPainter &painter) const;
    void drawParts(QPainter &painter) const;
    void drawSeparators(QPainter &painter) const;
    void drawName(QPainter &painter) const;
    void drawArrow(QPainter &painter) const;

    QString path; ///< empty for the drives
    bool hovered = false; ///< the pointer is over the entry, or it is pressed
    bool overArrow = false;
    bool menuRequested = false; ///< a press on the arrow opened the menu; recorded only
    QRect arrowRect; ///< the arrow's part in a left-to-right layout; set with the size
    int textWidth = 0; ///< of what is shown of the name; set with the size
    QIcon driveIcon;
    QIcon folderIcon;
    int leftMargin = 4; ///< before the name
    int rightMargin = 4; ///< after the name where there is no arrow
    QSize arrowSize{8, 8};
    int arrowMargin = 4; ///< between the arrow and the trailing edge
    int spacing = 6; ///< between the name and the arrow's part
    QSize arrowArea{arrowSize.width() + 8, 22};
    QPen pen{QColor(51, 51, 51), 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin}; ///< cosmetic
    QBrush normalBrush{Qt::white};
    QBrush secondaryBrush{QColor(245, 245, 245)};
    QBrush pressedBrush{QColor(217, 217, 217)};
    QBrush pressedSecondaryBrush{QColor(180, 222, 255)};
    int room = QWIDGETSIZE_MAX; ///< the width that the entry may have
    int choices = 0; ///< how many choices in the menu are being handled
    AddressEntry *q_ptr = nullptr;
};

} // namespace VornFrame
