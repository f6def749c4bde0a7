// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QIcon>
#include <QImage>
#include <QList>
#include <QString>

/// The filters for pictures: a catalogue of them, and their effect.
///
/// Every filter makes a picture of the same size. An opaque one stays opaque, and the colours of
/// transparent pixels do not bleed into others.
class PictureFilters
{
    Q_DECLARE_TR_FUNCTIONS(PictureFilters)

public:
    struct Filter
    {
        QString id;
        QString name; ///< for the user
        QString group; ///< for the user
    };

    /// All filters, those of a group one after another.
    static QList<Filter> all();

    /// The name of a filter; empty for an \a id that none has.
    static QString name(const QString &id);

    /// \a image with the filter \a id; for an id that none has, \a image itself.
    static QImage apply(const QString &id, const QImage &image);

    /// What the filter makes of \a thumbnail.
    static QIcon preview(const QString &id, const QImage &thumbnail);

    /// What the filter makes of a little landscape.
    static QIcon filterIcon(const QString &id);
};
