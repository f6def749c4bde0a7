// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsSettings.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

/// Stands in the file so that a later version of the program can tell what it reads.
constexpr int Format = 1;
constexpr int Extent_Maximum = 10000;

constexpr std::array<const char *, DockState::SideCount> Side_Names{"left", "right", "bottom"};

QString groupOf(std::size_t side)
{
    return QLatin1StringView(Side_Names.at(side));
}

/// The number of \a key if there is one from \a least to \a most, else \a fallback.
int number(const QSettings &settings, const QString &key, int least, int most, int fallback)
{
    bool isNumber = false;
    const int value = settings.value(key).toInt(&isNumber);
    return isNumber && value >= least && value <= most ? value : fallback;
}

DockState::Side loadSide(QSettings &settings, std::size_t index)
{
    DockState::Side side = DockState().sides[index];
    settings.beginGroup(groupOf(index));
    side.extent = number(settings, u"size"_s, 1, Extent_Maximum, side.extent);
    side.currentSlot = number(settings, u"slot"_s, 0, Extent_Maximum, side.currentSlot);
    side.isMinimized = settings.value(u"minimized"_s, false).toBool();
    settings.endGroup();
    return side;
}

void saveSide(QSettings &settings, std::size_t index, const DockState::Side &side)
{
    settings.beginGroup(groupOf(index));
    settings.setValue(u"size"_s, side.extent);
    settings.setValue(u"slot"_s, side.currentSlot);
    settings.setValue(u"minimized"_s, side.isMinimized);
    settings.endGroup();
}

} // namespace

PanelsSettings PanelsSettings::load(const QString &path)
{
    PanelsSettings loaded;
    QSettings settings(path, QSettings::IniFormat);
    // The user's own text is kept whatever the rest is like.
    loaded.scratchText = settings.value(u"scratch/text"_s).toString();
    if (settings.status() != QSettings::NoError
        || number(settings, u"format"_s, Format, Format, 0) != Format) {
        return loaded;
    }
    loaded.geometry = settings.value(u"window/geometry"_s).toByteArray();
    loaded.docks.container = settings.value(u"window/docks"_s).toByteArray();
    loaded.docks.hiddenViews = settings.value(u"window/hiddenViews"_s).toStringList();
    for (std::size_t i = 0; i < loaded.docks.sides.size(); ++i)
        loaded.docks.sides[i] = loadSide(settings, i);
    return loaded;
}

bool PanelsSettings::save(const QString &path) const
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(u"format"_s, Format);
    settings.setValue(u"window/geometry"_s, geometry);
    settings.setValue(u"window/docks"_s, docks.container);
    settings.setValue(u"window/hiddenViews"_s, docks.hiddenViews);
    for (std::size_t i = 0; i < docks.sides.size(); ++i)
        saveSide(settings, i, docks.sides[i]);
    settings.setValue(u"scratch/text"_s, scratchText);
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

QString PanelsSettings::defaultPath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"VornFrame"_s, u"panels"_s)
        .fileName();
}
