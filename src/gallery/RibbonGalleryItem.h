// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "LateStyled.h"

#include <QToolButton>

#include <memory>

class QAction;

namespace VornFrame {

class RibbonGalleryItemPrivate;

/// A tile of a gallery: the icon of an action above its text, and where collecting is allowed a star
/// in its leading top corner that marks the action as a favourite.
class RibbonGalleryItem : public LateStyled<QToolButton>
{
    Q_OBJECT

public:
    /// A tile for \a action, which stays the caller's and becomes the tile's default action. Tiles
    /// are found by it. The icon is 24x24 px at first.
    RibbonGalleryItem(QAction *action, QWidget *parent);
    ~RibbonGalleryItem() override;

    /// Whether the star may be shown at all; false at first. Turned off it hides the star at once,
    /// deliberately also that of a favourite; turned on it shows it with the next entry of the mouse.
    void setCollectEnabled(bool on);

    /// Whether the action is a favourite; false at first. A favourite shows its star, filled.
    bool isCollected() const;
    /// Emits signalCollected(), deliberately also when nothing changes.
    void setCollected(bool on);

    /// What a click on the star does, for the keyboard; nothing where collecting is not allowed.
    void toggleCollected();

    /// The context for what follows when the action is deleted: it lives as long as the tile. A tool
    /// button itself takes leave of its action before that tells its end (Qt 6.4 to 6.8).
    QObject *actionContext() const;

    /// Has tile and star polished when they are first painted.
    void setTilePolishedLate();

    /// The fixed size of a tile that has one, without asking the style.
    QSize sizeHint() const override;

Q_SIGNALS:
    void signalCollected(bool collect);

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void initStyleOption(QStyleOptionToolButton *option) const override;

private:
    Q_DECLARE_PRIVATE(RibbonGalleryItem)
    Q_DISABLE_COPY_MOVE(RibbonGalleryItem)

    const std::unique_ptr<RibbonGalleryItemPrivate> d_ptr;
};

} // namespace VornFrame
