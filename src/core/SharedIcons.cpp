// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "SharedIcons.h"

#include <QCoreApplication>
#include <QHash>
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

} // namespace VornFrame::SharedIcons
