// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureFilters.h"

#include "AreaFilters.h"
#include "ColorFilters.h"

#include <QPainter>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// In px, at twice the size of an icon in a gallery.
constexpr QSize Preview_Size(128, 96);

struct Entry
{
    const char *id;
    const char *name;
    const char *group;
    QImage (*apply)(const QImage &);
};

QImage mirror(const QImage &image)
{
    return image.mirrored(true, false);
}

QImage flip(const QImage &image)
{
    return image.mirrored(false, true);
}

QImage halfTurn(const QImage &image)
{
    return image.mirrored(true, true);
}

#define FILTER_GROUP(text) QT_TRANSLATE_NOOP("PictureFilters", text)
#define FILTER_NAME(text) QT_TRANSLATE_NOOP("PictureFilters", text)

constexpr const char *Colour = FILTER_GROUP("Colour");
constexpr const char *Light = FILTER_GROUP("Light");
constexpr const char *Detail = FILTER_GROUP("Detail");
constexpr const char *Effect = FILTER_GROUP("Effect");
constexpr const char *Shape = FILTER_GROUP("Shape");

constexpr std::array Entries{
    Entry{"grayscale", FILTER_NAME("Grayscale"), Colour, ColorFilters::grayscale},
    Entry{"sepia", FILTER_NAME("Sepia"), Colour, ColorFilters::sepia},
    Entry{"invert", FILTER_NAME("Invert"), Colour, ColorFilters::invert},
    Entry{"warm", FILTER_NAME("Warm"), Colour, ColorFilters::warm},
    Entry{"cool", FILTER_NAME("Cool"), Colour, ColorFilters::cool},
    Entry{"saturate", FILTER_NAME("Saturate"), Colour, ColorFilters::saturate},
    Entry{"desaturate", FILTER_NAME("Desaturate"), Colour, ColorFilters::desaturate},
    Entry{"red", FILTER_NAME("Red Channel"), Colour, ColorFilters::redChannel},
    Entry{"green", FILTER_NAME("Green Channel"), Colour, ColorFilters::greenChannel},
    Entry{"blue", FILTER_NAME("Blue Channel"), Colour, ColorFilters::blueChannel},
    Entry{"brighter", FILTER_NAME("Brighter"), Light, ColorFilters::brighter},
    Entry{"darker", FILTER_NAME("Darker"), Light, ColorFilters::darker},
    Entry{"moreContrast", FILTER_NAME("More Contrast"), Light, ColorFilters::moreContrast},
    Entry{"lessContrast", FILTER_NAME("Less Contrast"), Light, ColorFilters::lessContrast},
    Entry{"gammaUp", FILTER_NAME("Lift Shadows"), Light, ColorFilters::gammaUp},
    Entry{"gammaDown", FILTER_NAME("Deepen Shadows"), Light, ColorFilters::gammaDown},
    Entry{"blur", FILTER_NAME("Blur"), Detail, AreaFilters::blur},
    Entry{"strongBlur", FILTER_NAME("Strong Blur"), Detail, AreaFilters::strongBlur},
    Entry{"sharpen", FILTER_NAME("Sharpen"), Detail, AreaFilters::sharpen},
    Entry{"noise", FILTER_NAME("Reduce Noise"), Detail, AreaFilters::reduceNoise},
    Entry{"edges", FILTER_NAME("Find Edges"), Detail, AreaFilters::findEdges},
    Entry{"posterize", FILTER_NAME("Posterize"), Effect, ColorFilters::posterize},
    Entry{"threshold", FILTER_NAME("Threshold"), Effect, ColorFilters::threshold},
    Entry{"solarize", FILTER_NAME("Solarize"), Effect, ColorFilters::solarize},
    Entry{"emboss", FILTER_NAME("Emboss"), Effect, AreaFilters::emboss},
    Entry{"pixelate", FILTER_NAME("Pixelate"), Effect, AreaFilters::pixelate},
    Entry{"vignette", FILTER_NAME("Vignette"), Effect, AreaFilters::vignette},
    Entry{"mirror", FILTER_NAME("Mirror"), Shape, mirror},
    Entry{"flip", FILTER_NAME("Flip"), Shape, flip},
    Entry{"halfTurn", FILTER_NAME("Half Turn"), Shape, halfTurn},
};

#undef FILTER_GROUP
#undef FILTER_NAME

/// Null if there is no such filter.
const Entry *find(const QString &id)
{
    const auto isIt = [&id](const Entry &entry) { return id == QLatin1String(entry.id); };
    const auto *found = std::find_if(Entries.begin(), Entries.end(), isIt);
    return found == Entries.end() ? nullptr : found;
}

/// Something with a sky, a sun, hills and shadows, so that every filter shows.
QImage landscape()
{
    QImage image(Preview_Size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, Preview_Size.height());
    sky.setColorAt(0, QColor(60, 130, 210));
    sky.setColorAt(1, QColor(215, 230, 245));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(250, 205, 60));
    painter.drawEllipse(QPoint(96, 24), 13, 13);
    painter.setBrush(QColor(95, 105, 135));
    painter.drawPolygon(QPolygon{{-20, 96}, {42, 24}, {90, 96}});
    painter.setBrush(QColor(60, 140, 75));
    painter.drawEllipse(QRect(10, 58, 160, 90));
    painter.setBrush(QColor(35, 95, 55));
    painter.drawEllipse(QRect(-70, 68, 150, 70));
    painter.setBrush(QColor(185, 60, 50));
    painter.drawRect(92, 56, 16, 14);
    return image;
}

} // namespace

QList<PictureFilters::Filter> PictureFilters::all()
{
    QList<Filter> filters;
    for (const Entry &entry : Entries)
        filters.append({QString::fromLatin1(entry.id), tr(entry.name), tr(entry.group)});
    return filters;
}

QString PictureFilters::name(const QString &id)
{
    const Entry *entry = find(id);
    return entry ? tr(entry->name) : QString();
}

QImage PictureFilters::apply(const QString &id, const QImage &image)
{
    const Entry *entry = find(id);
    return entry && !image.isNull() ? entry->apply(image) : image;
}

QIcon PictureFilters::preview(const QString &id, const QImage &thumbnail)
{
    const bool isLarge = thumbnail.size().boundedTo(Preview_Size) != thumbnail.size();
    const QImage small = isLarge ? thumbnail.scaled(Preview_Size, Qt::KeepAspectRatio,
                                                    Qt::SmoothTransformation)
                                 : thumbnail;
    return QIcon(QPixmap::fromImage(apply(id, small)));
}

QIcon PictureFilters::filterIcon(const QString &id)
{
    return preview(id, landscape());
}
