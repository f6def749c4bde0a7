// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QFrame>

#include <memory>

namespace VornFrame {

class RibbonCornerPrivate;

/// The area at the trailing end of a ribbon bar's tab row, for widgets that belong to no page: a
/// search field, a help button, the name of the signed-in user. Every RibbonBar has exactly one,
/// see RibbonBar::corner().
class VORNFRAME_EXPORT RibbonCorner : public QFrame
{
    Q_OBJECT

public:
    /// An empty corner; RibbonBar makes its own.
    explicit RibbonCorner(QWidget *parent = nullptr);
    ~RibbonCorner() override;

    /// Appends \a widget after the widgets added before it, 2 px apart. The corner becomes its
    /// parent.
    ///
    /// The tab row is 28 px high and does not grow: taller widgets are cut. A widget gets the width
    /// that it asks for, not more. A null \a widget is ignored; a widget that is in the corner
    /// already moves to the end.
    void addWidget(QWidget *widget);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    RibbonCorner(RibbonCornerPrivate &d, QWidget *parent);

    void changeEvent(QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonCorner)
    Q_DISABLE_COPY_MOVE(RibbonCorner)

    const std::unique_ptr<RibbonCornerPrivate> d_ptr;
};

} // namespace VornFrame
