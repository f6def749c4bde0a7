// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonGroup.h>

#include <QHBoxLayout>
#include <QList>
#include <QPointer>

namespace VornFrame {

class RibbonPage;

class RibbonPagePrivate
{
    Q_DISABLE_COPY_MOVE(RibbonPagePrivate)

public:
    RibbonPagePrivate() = default;
    virtual ~RibbonPagePrivate() = default;

    void init();

    QHBoxLayout *layout = new QHBoxLayout;
    QList<QPointer<RibbonGroup>> groups; ///< in the order added; null where the group was deleted
    RibbonPage *q_ptr = nullptr;
};

} // namespace VornFrame
