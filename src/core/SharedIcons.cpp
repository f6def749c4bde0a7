// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "SharedIcons.h"

#include <QApplication>
#include <QHash>
#include <QPointer>
#include <QString>

#include <utility>

namespace VornFrame::SharedIcons {

namespace {

using Key = std::pair<QString, QString>;

QHash<Key, QIcon> &cache()
{
    static QHash<Key, QIcon> icons;
    return icons;
}

struct StandardIcons
{
    QPointer<QStyle> style;
    QHash<QStyle::StandardPixmap, QIcon> icons;
};

StandardIcons &standardIcons()
{
    static StandardIcons icons;
    return icons;
}

} // namespace

QIcon icon(QLatin1StringView path)
{
    return toggleIcon(path, {});
}

QIcon toggleIcon(QLatin1StringView off, QLatin1StringView on)
{
    // Pictures must not outlive the application.
    if (cache().isEmpty())
        qAddPostRoutine([] { cache().clear(); });
    QIcon &icon = cache()[{off, on}];
    if (icon.isNull()) {
        icon.addFile(off, {}, QIcon::Normal, QIcon::Off);
        if (!on.isEmpty())
            icon.addFile(on, {}, QIcon::Normal, QIcon::On);
    }
    return icon;
}

QIcon standardIcon(QStyle::StandardPixmap icon)
{
    StandardIcons &standard = standardIcons();
    if (standard.style != QApplication::style()) {
        if (standard.style.isNull())
            qAddPostRoutine([] { standardIcons() = {}; });
        standard = {QApplication::style(), {}};
    }
    QIcon &result = standard.icons[icon];
    if (result.isNull())
        result = standard.style->standardIcon(icon);
    return result;
}

} // namespace VornFrame::SharedIcons
