// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>

#include <memory>

namespace VornFrame {

class RibbonGalleryLayoutPrivate;

/// A layout that places its items in reading direction and begins a new row where one is full. Its
/// items keep the size that they ask for; one that is wider than a row has a row of its own.
class RibbonGalleryLayout : public QLayout
{
public:
    /// All four contents margins become \a margin px. A negative spacing asks the parent: a layout
    /// for its spacing, a widget's style for the one between the items of a layout.
    RibbonGalleryLayout(QWidget *parent, int margin, int hSpacing, int vSpacing);
    ~RibbonGalleryLayout() override;

    /// Appends \a item and owns it from now on; null is ignored.
    void addItem(QLayoutItem *item) override;
    /// The item at \a index, from 0; null for an index that does not exist.
    QLayoutItem *itemAt(int index) const override;
    /// Like itemAt(), and gives the item to the caller.
    QLayoutItem *takeAt(int index) override;
    int count() const override;

    /// px between the items of a row and between rows; -1 where the style of each item decides.
    int horizontalSpacing() const;
    int verticalSpacing() const;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override;
    void setGeometry(const QRect &rect) override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    void invalidate() override;

private:
    Q_DECLARE_PRIVATE(RibbonGalleryLayout)
    Q_DISABLE_COPY_MOVE(RibbonGalleryLayout)

    const std::unique_ptr<RibbonGalleryLayoutPrivate> d_ptr;
};

} // namespace VornFrame
