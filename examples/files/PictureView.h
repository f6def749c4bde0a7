// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// A picture in the middle, scaled down to fit and never larger than it is.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    /// Shows \a image, which stands for a picture of \a size px.
    void setPicture(const QImage &image, QSize size);

    /// Where the picture is painted.
    QRect pictureRect() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void scaleTo(QSize pixels);

    QImage m_image;
    QSize m_size;
    QPixmap m_scaled; ///< in the pixels of the screen
};
