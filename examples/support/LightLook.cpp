// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "LightLook.h"

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QStyleHints>

using namespace Qt::StringLiterals;

namespace LightLook {

namespace {

void setLightColors()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QGuiApplication::styleHints()->setColorScheme(Qt::ColorScheme::Light);
#else
    const QPalette palette = QApplication::palette();
    const bool isDark = palette.color(QPalette::Window).lightness()
                        < palette.color(QPalette::WindowText).lightness();
    if (isDark)
        QApplication::setPalette(QPalette(QColor(239, 239, 239)));
#endif
}

} // namespace

void install()
{
    setLightColors();
    QFile file(u":/vornframe/vornframelight.css"_s);
    if (file.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
}

} // namespace LightLook
