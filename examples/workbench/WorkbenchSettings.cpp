// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchSettings.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

/// Stands in the file so that a later version of the program can tell what it reads.
constexpr int Format = 1;

const QString &defaultGroup()
{
    static const QString name = u"default"_s;
    return name;
}

} // namespace

WorkbenchSettings WorkbenchSettings::load(const QString &path)
{
    QSettings settings(path, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError || settings.value(u"format"_s).toInt() != Format)
        return {};
    WorkbenchSettings loaded;
    loaded.geometry = settings.value(u"window/geometry"_s).toByteArray();
    loaded.docks = DockState::load(settings);
    settings.beginGroup(defaultGroup());
    loaded.defaultDocks = DockState::load(settings);
    settings.endGroup();
    loaded.folder = settings.value(u"folder"_s).toString();
    loaded.files = settings.value(u"files/open"_s).toStringList();
    loaded.currentFile = settings.value(u"files/current"_s).toString();
    loaded.favourites = settings.value(u"gallery/favourites"_s).toStringList();
    return loaded;
}

bool WorkbenchSettings::save(const QString &path) const
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(u"format"_s, Format);
    settings.setValue(u"window/geometry"_s, geometry);
    docks.save(settings);
    settings.beginGroup(defaultGroup());
    defaultDocks.save(settings);
    settings.endGroup();
    settings.setValue(u"folder"_s, folder);
    settings.setValue(u"files/open"_s, files);
    settings.setValue(u"files/current"_s, currentFile);
    settings.setValue(u"gallery/favourites"_s, favourites);
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

QString WorkbenchSettings::defaultPath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"VornFrame"_s, u"workbench"_s)
        .fileName();
}
