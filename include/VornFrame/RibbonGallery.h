// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

class QAction;

namespace VornFrame {

class RibbonGalleryPrivate;

/// A strip of actions for a group of the ribbon (RibbonGroup::addWidget()), whose button drops down
/// all of them: in titled groups with a search field and, where collecting is enabled, with the
/// user's favourites on top.
///
/// The strip shows the favourites and then the first of the other actions. It is filled when the
/// gallery is shown, and anew when the popup was closed or a group was moved; actions that are added
/// to a visible gallery come into the strip then. The popup closes when the gallery is hidden.
///
/// Actions stay their owners'. A deleted action disappears from strip and popup; the indexes of the
/// items after it in its group go down by one.
class VORNFRAME_EXPORT RibbonGallery : public QWidget
{
    Q_OBJECT

public:
    /// An empty gallery.
    explicit RibbonGallery(QWidget *parent = nullptr);
    ~RibbonGallery() override;

    /// Appends a group with the title \a name and returns its index, from 0. The same name twice
    /// makes two groups.
    int addGroup(const QString &name);

    /// Appends \a action to the first group whose title is exactly \a group, or to a new group of
    /// that name; see the other overload.
    int addItem(const QString &group, QAction *action);
    /// Appends \a action to \a group, an index that addGroup() returned, and returns its index
    /// there, from 0. -1 for a group that does not exist and for a null action.
    ///
    /// The item has the icon size, the action size and, where collecting is enabled, the star of
    /// this moment. In any case signalTriggered() reports the action from now on, deliberately also
    /// when -1 is returned, and twice when it is added twice.
    int addItem(int group, QAction *action);

    /// The size in px of the icons of items that are added from now on, and of favourites and strip
    /// tiles that are made from now on; 24x24 at first.
    void setIconSize(const QSize &size);
    /// The same for the whole items; 90x60 at first.
    void setActionSize(const QSize &size);

    /// Whether items that are added from now on can be favourites; false at first.
    void setCollectEnabled(bool enabled);

    /// How many items the strip shows and a row of the popup is reckoned with; 6 at first. The strip
    /// follows when it is next filled. Use 1 at least: with less the strip stays empty. (The name is
    /// deliberately spelled so.)
    void setDispalyCount(int count);

    /// Makes an item a favourite or not: \a item is the index within the group with the index \a
    /// group. False when collecting is disabled or there is no such item. An item that is one
    /// already gets a second favourite.
    bool setItemCollected(int group, int item, bool collected);

    /// A gallery deliberately keeps no state: an empty array, or "AAAA" when the display count is 0.
    QByteArray saveState() const;
    /// Ignores \a state.
    void restoreState(const QByteArray &state);

Q_SIGNALS:
    /// \a action, which was added, was triggered: by the strip, the popup (closed by then) or
    /// anything else.
    void signalTriggered(QAction *action);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    RibbonGallery(RibbonGalleryPrivate &d, QWidget *parent);

    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonGallery)
    Q_DISABLE_COPY_MOVE(RibbonGallery)

    const std::unique_ptr<RibbonGalleryPrivate> d_ptr;
};

} // namespace VornFrame
