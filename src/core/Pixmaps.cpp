// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Pixmaps.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QString>

namespace VornFrame::Pixmaps {

using namespace Qt::StringLiterals;

QPixmap rendered(QLatin1StringView path, QSize size, qreal ratio, QIcon::Mode mode)
{
    const QString key = u"VornFrame|%1|%2x%3|%4|%5"_s.arg(path)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ratio)
                            .arg(int(mode));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QIcon(path).pixmap(size, ratio, mode);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

qreal deviceRatio(const QPainter &painter)
{
    return painter.paintEngine()->paintDevice()->devicePixelRatioF();
}

} // namespace VornFrame::Pixmaps
