// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TravelFolder.h"

#include "Landscape.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Wide_Size(1200, 800);
constexpr QSize Square_Size(900, 900);

const char *const logText = R"(# Along the coast

Notes of nine days by ferry, from harbour to harbour.

## Day 1: Bergen

Rain in the morning, sun at noon. The ferry left at half past eight,
with forty people and two hundred crates of salted fish.

## Day 2: Ålesund

Up the stairs to the view over the town, before the others were awake.

- 418 steps
- one cup of coffee
- no cloud

## Day 3: Geiranger

The water was so still that the mountains stood in it upside down.
See fjord.png; no filter was used.

## Day 4: Trondheim

A day for letters, and for a new pair of boots.

## Day 5: Rørvik

Fog. We heard the lighthouse before we saw it.
)";

const char *const packingText = R"(rain coat
two jerseys
boots
sea charts 12 to 19
camera, three batteries
tin of biscuits
)";

const char *const harboursText = R"(Harbour,Day,Berths,Depth (m),Fee,Fuel
Bergen,1,240,11.5,180,yes
Florø,1,85,7.0,120,yes
Ålesund,2,310,10.0,210,yes
Geiranger,3,42,24.0,260,no
Kristiansund,3,150,9.5,140,yes
Trondheim,4,280,8.0,190,yes
Rørvik,5,96,6.5,110,yes
Brønnøysund,6,120,6.0,115,yes
Sandnessjøen,6,74,5.5,100,no
Bodø,7,205,9.0,170,yes
Svolvær,8,130,7.5,150,yes
Tromsø,9,260,10.5,220,yes
)";

} // namespace

TravelFolder::TravelFolder(const QString &path) : m_path(path)
{
    m_isOwn = QDir().mkdir(path);
    m_isComplete = m_isOwn && writeTexts() && writeTables() && writePictures();
}

TravelFolder::~TravelFolder()
{
    if (m_isOwn)
        QDir(m_path).removeRecursively();
}

QString TravelFolder::filePath(const QString &name) const
{
    return m_path + u'/' + name;
}

bool TravelFolder::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(filePath(name));
    if (!QDir(m_path).mkpath(QFileInfo(name).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(bytes) != bytes.size() || !file.flush())
        return false;
    // Shown by the window, so it must not be that of the day.
    const QDateTime time = QDateTime::fromString(u"2024-06-12T18:30:00Z"_s, Qt::ISODate);
    return file.setFileTime(time, QFileDevice::FileModificationTime);
}

bool TravelFolder::writeTexts() const
{
    return write(u"log.md"_s, logText) && write(u"packing.txt"_s, packingText)
           && write(u"Letters/to Ingrid.txt"_s, "Dear Ingrid,\n\nthe biscuits are gone.\n")
           && write(u"Letters/to the harbour master.txt"_s, "Dear Sir,\n\nabout berth 17:\n");
}

bool TravelFolder::writeTables() const
{
    return write(u"harbours.csv"_s, harboursText)
           && write(u"Charts/12 Bergen.csv"_s, "Light,Period\nMarstein,10\nHellisøy,20\n")
           && write(u"Charts/13 Stad.csv"_s, "Light,Period\nSvinøy,30\n");
}

bool TravelFolder::writePictures() const
{
    const auto save = [this](const QString &name, const QImage &image) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        return image.save(&buffer, "PNG") && write(name, bytes);
    };
    return save(u"fjord.png"_s, Landscape::fjord(Wide_Size))
           && save(u"lighthouse.png"_s, Landscape::lighthouse(Square_Size))
           && save(u"Pictures/lighthouse, small.png"_s, Landscape::lighthouse(Square_Size / 3));
}
