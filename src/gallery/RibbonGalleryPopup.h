// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>

#include <memory>

class QAction;

namespace VornFrame {

class RibbonGalleryPopupPrivate;

/// What a gallery drops down: a search field, the favourites, then every group with its tiles. It
/// owns the groups and decides which actions the strip of the gallery shows.
///
/// Typing goes to the search field wherever the focus is. The arrow keys go from tile to tile, Enter
/// triggers the focused tile, or from the search field the first that matches a text; Ctrl+Space
/// marks the focused tile as a favourite. Tab goes from group to group.
class RibbonGalleryPopup : public QScrollArea
{
    Q_OBJECT

public:
    explicit RibbonGalleryPopup(QWidget *parent);
    ~RibbonGalleryPopup() override;

    /// Appends a group and returns its index, from 0. Names may occur twice.
    int addGroup(const QString &name, const QIcon &icon);
    /// Appends a tile for \a action, which stays the caller's, to \a group and returns its index
    /// there. -1 for a group that does not exist and for a null action.
    ///
    /// Both sizes are deliberately kept as pointers: a favourite gets those of the moment in which
    /// it is made. They must live as long as the popup. A tile goes when its action is deleted.
    int addItem(int group, QAction *action, const QSize *iconSize, const QSize *size,
                bool collectEnabled);
    /// The first group whose title is exactly \a name, or -1.
    int indexOfGroup(const QString &name) const;

    /// What the strip shows: the favourites, then the other tiles in order, displayCount at most.
    QList<QAction *> displayedActions() const;

    void setCollectEnabled(bool enabled);
    /// Tiles in the strip, and in a row when heights are summed up; 6 at first. Below 1 a row counts
    /// as one tile, and the strip stays empty.
    void setDisplayCount(int count);

    /// False for a group or item that does not exist.
    bool setItemCollected(int group, int item, bool collected);

    /// "AAAA" when the display count is 0, else nothing: deliberately no state at all.
    QByteArray saveState() const;
    /// Ignores \a state.
    static void restoreState(const QByteArray &state);

    /// The height in px that all groups (\a all) or only the visible ones need.
    int contentHeight(bool all) const;
    /// Gives the content the height that the visible groups need; emits signalHeightChanged().
    void updateHeight();

    /// Gives the content the size that it will have when it is shown as large as the popup is now, so
    /// that its tiles are placed once.
    void prepareToShow();

    /// Puts the keyboard's focus into the search field.
    void focusSearch();

Q_SIGNALS:
    /// The user moved a group.
    void signalGroupUpdated();
    /// The content needs \a height px now.
    void signalHeightChanged(int height);
    /// The strip may show something else now.
    void signalUpdateDisplayedItems();

protected:
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonGalleryPopup)
    Q_DISABLE_COPY_MOVE(RibbonGalleryPopup)

    const std::unique_ptr<RibbonGalleryPopupPrivate> d_ptr;
};

} // namespace VornFrame
