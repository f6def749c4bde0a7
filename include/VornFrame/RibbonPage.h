// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QWidget>

#include <memory>

namespace VornFrame {

class RibbonGroup;
class RibbonPagePrivate;

/// The content of one tab of a ribbon bar: a row of groups, packed to the leading edge.
class VORNFRAME_EXPORT RibbonPage : public QWidget
{
    Q_OBJECT

public:
    /// An empty page; RibbonBar::addPage() makes one too.
    explicit RibbonPage(QWidget *parent = nullptr);
    ~RibbonPage() override;

    /// Appends an empty group with the given \a title and returns it. The page owns the group.
    RibbonGroup *addGroup(const QString &title);

    /// The group at \a index (base 0, in the order added); null for any other index and for a group
    /// that was deleted since. Deleting a group does not move the indexes of the others.
    RibbonGroup *group(int index) const;

    /// The index of \a group, -1 if it is not a group of this page.
    int indexOf(RibbonGroup *group) const;

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    RibbonPage(RibbonPagePrivate &d, QWidget *parent);

    void changeEvent(QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonPage)
    Q_DISABLE_COPY_MOVE(RibbonPage)

    const std::unique_ptr<RibbonPagePrivate> d_ptr;
};

} // namespace VornFrame
