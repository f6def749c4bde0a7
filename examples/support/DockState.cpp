// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockState.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

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

DockState DockState::load(QSettings &settings)
{
    DockState state;
    state.container = settings.value(u"window/docks"_s).toByteArray();
    state.hiddenViews = settings.value(u"window/hiddenViews"_s).toStringList();
    for (std::size_t i = 0; i < state.sides.size(); ++i)
        state.sides[i] = loadSide(settings, i);
    return state;
}

void DockState::save(QSettings &settings) const
{
    settings.setValue(u"window/docks"_s, container);
    settings.setValue(u"window/hiddenViews"_s, hiddenViews);
    for (std::size_t i = 0; i < sides.size(); ++i)
        saveSide(settings, i, sides[i]);
}
