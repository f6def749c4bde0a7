// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsSettings.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

/// Stands in the file so that a later version of the program can tell what it reads.
constexpr int Format = 1;

} // namespace

PanelsSettings PanelsSettings::load(const QString &path)
{
    PanelsSettings loaded;
    QSettings settings(path, QSettings::IniFormat);
    // The user's own text is kept whatever the rest is like.
    loaded.scratchText = settings.value(u"scratch/text"_s).toString();
    if (settings.status() != QSettings::NoError || settings.value(u"format"_s).toInt() != Format)
        return loaded;
    loaded.geometry = settings.value(u"window/geometry"_s).toByteArray();
    loaded.docks = DockState::load(settings);
    return loaded;
}

bool PanelsSettings::save(const QString &path) const
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(u"format"_s, Format);
    settings.setValue(u"window/geometry"_s, geometry);
    docks.save(settings);
    settings.setValue(u"scratch/text"_s, scratchText);
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

QString PanelsSettings::defaultPath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"VornFrame"_s, u"panels"_s)
        .fileName();
}
