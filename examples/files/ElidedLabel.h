// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/// A line of plain text that ends in "…" where it is too long. Its tool tip is the whole text.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Shows \a text, its line ends as spaces.
    void setLine(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
};
