// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "LateStyled.h"
#include "RibbonGalleryItem.h" // complete, so that signals with tiles can be queued and spied on

#include <QFrame>

#include <memory>

class QAction;
class QIcon;

namespace VornFrame {

class RibbonGalleryGroupPrivate;

/// A titled group of tiles in the popup of a gallery, which the user can move to the top or to the
/// bottom of the list. Its layout places the tiles in rows.
class RibbonGalleryGroup : public LateStyled<QFrame>
{
    Q_OBJECT

public:
    /// Where a group stands, which decides on the buttons that it offers; also what the user asks
    /// for (Top and Bottom).
    enum Position {
        Fixed = 0, ///< the favourites: no button
        Top = 1, ///< the first group: only to the bottom
        Middle = 2, ///< both
        Bottom = 3, ///< the last group: only to the top
    };
    Q_ENUM(Position)

    /// A null \a icon takes no room.
    RibbonGalleryGroup(const QIcon &icon, const QString &title, QWidget *parent);
    ~RibbonGalleryGroup() override;

    /// Appends a tile of the fixed \a size for \a action, with an icon of \a iconSize, both in px;
    /// returns its index. \a collectEnabled says whether the tile offers its star.
    int addItem(QAction *action, const QSize &iconSize, const QSize &size, bool collectEnabled);

    int count() const;
    /// The tile at \a index, from 0; null for an index that does not exist.
    RibbonGalleryItem *item(int index) const;

    /// False also for an index that does not exist.
    bool isItemCollected(int index) const;
    /// Has the tile emit RibbonGalleryItem::signalCollected(). False when there is no such tile; of
    /// several tiles for \a action the first is meant.
    bool setItemCollected(int index, bool collected);
    bool setItemCollected(const QAction *action, bool collected);

    /// Takes the first tile for \a action out and destroys it when control returns to the event
    /// loop: the tile may be what asked for it. False when there is none.
    bool removeItem(const QAction *action);
    /// The same for \a item; false when it is not in the group.
    bool removeItem(RibbonGalleryItem *item);

    /// Ignores an index that does not exist.
    void setItemVisible(int index, bool visible);
    /// Shows the tiles whose text contains \a text, case-sensitively, and hides the others; hides
    /// the group when there is none. Returns whether there is one. The empty text is in every text.
    bool showMatches(const QString &text);

    /// The tiles that the keyboard can go to now, in order.
    QList<RibbonGalleryItem *> reachableItems() const;
    /// Where Tab stops in the group: the buttons that are shown, then the first tile.
    QList<QWidget *> keyboardStops() const;

    void setPosition(Position position);

    QString title() const;

    /// Has the tiles placed again.
    void updateLayout();

Q_SIGNALS:
    /// Declared for hosts of the group; nothing emits it.
    void signalCollect(VornFrame::RibbonGalleryItem *item, bool collected);
    /// The user asks for the group to be moved to the top or to the bottom.
    void signalPositionChange(VornFrame::RibbonGalleryGroup::Position position);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonGalleryGroup)
    Q_DISABLE_COPY_MOVE(RibbonGalleryGroup)

    const std::unique_ptr<RibbonGalleryGroupPrivate> d_ptr;
};

} // namespace VornFrame
