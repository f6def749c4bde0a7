// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHBoxLayout>
#include <QList>
#include <QPointer>

namespace VornFrame {

class RibbonCorner;

class RibbonCornerPrivate
{
    Q_DISABLE_COPY_MOVE(RibbonCornerPrivate)

public:
    RibbonCornerPrivate() = default;
    virtual ~RibbonCornerPrivate() = default;

    void init();

    QHBoxLayout *layout = new QHBoxLayout;
    QList<QPointer<QWidget>> widgets; ///< in the order added, for subclasses
    RibbonCorner *q_ptr = nullptr;
};

} // namespace VornFrame
