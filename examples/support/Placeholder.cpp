// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Placeholder.h"

#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace Placeholder {

namespace {

constexpr int Icon_Size = 72;
constexpr int Icon_Gap = 16;
constexpr int Hint_Width = 320;
constexpr int Hint_MaximumHeight = 1000;
constexpr int Hint_Flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
constexpr QColor Hint_Color(97, 97, 97);

} // namespace

QPixmap draw(const QString &hint, const QIcon &icon, const QFont &font, qreal ratio)
{
    const QRect hintRect = QFontMetrics(font).boundingRect(
        QRect(0, Icon_Size + Icon_Gap, Hint_Width, Hint_MaximumHeight), Hint_Flags, hint);
    const QSize size(Hint_Width, hintRect.bottom() + 1);
    QPixmap pixmap(QSize(qCeil(size.width() * ratio), qCeil(size.height() * ratio)));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QSize iconSize(Icon_Size, Icon_Size);
    painter.drawPixmap((Hint_Width - Icon_Size) / 2, 0, icon.pixmap(iconSize, ratio));
    painter.setFont(font);
    painter.setPen(Hint_Color);
    painter.drawText(QRect(0, hintRect.top(), Hint_Width, hintRect.height()), Hint_Flags, hint);
    return pixmap;
}

} // namespace Placeholder
