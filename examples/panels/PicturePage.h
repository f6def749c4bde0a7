// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentPage.h"

#include <QImage>

/// A picture at its own size.
class PicturePage : public DocumentPage
{
    Q_OBJECT

public:
    /// \a format is the name of the file's format.
    PicturePage(const QString &path, const QImage &image, const QString &format);

    QList<OutlineEntry> outline() const override;
    void goToLine(int line) override;

private:
    const QSize m_size;
    const int m_depth;
    const QString m_format;
};
