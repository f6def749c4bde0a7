// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QString>

/// Puts the application's look back as it was, whatever a set-up did to it.
class LookRestorer
{
    Q_DISABLE_COPY_MOVE(LookRestorer)

public:
    LookRestorer() = default;
    ~LookRestorer()
    {
        qApp->setStyleSheet(m_sheet);
        QApplication::setPalette(m_palette);
    }

private:
    const QString m_sheet = qApp->styleSheet();
    const QPalette m_palette = QApplication::palette();
};

inline QString globalSheet()
{
    QFile file(QStringLiteral(":/vornframe/vornframelight.css"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
