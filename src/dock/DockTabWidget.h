// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTabWidget>

namespace VornFrame {

/// The tab widget of a section. Its size hints count only the pages that have been seen: QTabWidget
/// measures and polishes all of them, before the first is shown.
class DockTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit DockTabWidget(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    Q_DISABLE_COPY_MOVE(DockTabWidget)

    bool isPlain() const;
    QSize aroundPages(QSize pages, QSize bar) const;
};

} // namespace VornFrame
