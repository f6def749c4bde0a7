// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilesSettings.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

/// Stands in the file so that a later version of the program can tell what it reads.
constexpr int Format = 1;

} // namespace

FilesSettings FilesSettings::load(const QString &path)
{
    const QSettings settings(path, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError || settings.value(u"format"_s).toInt() != Format)
        return {};
    FilesSettings loaded;
    loaded.geometry = settings.value(u"window/geometry"_s).toByteArray();
    loaded.panes = settings.value(u"window/panes"_s).toByteArray();
    loaded.preview = settings.value(u"window/preview"_s).toByteArray();
    loaded.isPreviewShown = settings.value(u"window/isPreviewShown"_s, true).toBool();
    loaded.leftFolder = settings.value(u"folders/left"_s).toString();
    loaded.rightFolder = settings.value(u"folders/right"_s).toString();
    return loaded;
}

bool FilesSettings::save(const QString &path) const
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(u"format"_s, Format);
    settings.setValue(u"window/geometry"_s, geometry);
    settings.setValue(u"window/panes"_s, panes);
    settings.setValue(u"window/preview"_s, preview);
    settings.setValue(u"window/isPreviewShown"_s, isPreviewShown);
    settings.setValue(u"folders/left"_s, leftFolder);
    settings.setValue(u"folders/right"_s, rightFolder);
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

QString FilesSettings::defaultPath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"VornFrame"_s, u"files"_s)
        .fileName();
}
