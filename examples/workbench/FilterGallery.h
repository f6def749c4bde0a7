// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonGallery.h>

#include <QHash>
#include <QImage>

/// The picture filters in a gallery of the ribbon, with previews of the picture that is shown.
class FilterGallery : public VornFrame::RibbonGallery
{
    Q_OBJECT

public:
    explicit FilterGallery(QWidget *parent = nullptr);

    /// The ids of the user's favourites, the oldest first.
    QStringList favourites();
    /// Makes the filters of these \a ids the favourites. Ids that there are not are ignored.
    void setFavourites(const QStringList &ids);

    /// Shows what the filters make of \a picture; a null one shows what they are like.
    void setPreviewOf(const QImage &picture);

    /// The actions of all filters whose names contain \a text, in whatever case.
    QList<QAction *> matches(const QString &text) const;

Q_SIGNALS:
    /// The user chose the filter of this \a id.
    void signalFilterChosen(const QString &id);

private:
    struct Place
    {
        int group = -1;
        int item = -1;
        QAction *action = nullptr;
    };

    bool isFavourite(const QAction *action) const;

    QStringList m_ids; ///< in the order of the catalogue
    QHash<QString, Place> m_places;
    QStringList m_favourites; ///< as far as it was heard of them
    qint64 m_pictureKey = 0; ///< of what the previews are of
    qreal m_ratio = 0; ///< of the screen for which they were made
    bool m_hasPreviews = false;
};
