// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilterGallery.h"

#include "PictureFilters.h"

#include <QAction>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Display_Count = 6;
constexpr QSize Preview_Size(32, 32);
/// With room for the longest name.
constexpr QSize Tile_Size(112, 60);

QString actionName(const QString &id)
{
    return u"filter_"_s + id;
}

} // namespace

FilterGallery::FilterGallery(QWidget *parent) : RibbonGallery(parent)
{
    setObjectName(u"filterGallery"_s);
    setAccessibleName(tr("Filters"));
    // Before the items: they keep what holds when they come.
    setIconSize(Preview_Size);
    setActionSize(Tile_Size);
    setDispalyCount(Display_Count);
    setCollectEnabled(true);
    QHash<QString, int> groups;
    const auto filters = PictureFilters::all();
    for (const auto &filter : filters) {
        if (!groups.contains(filter.group))
            groups.insert(filter.group, addGroup(filter.group));
        auto *action = new QAction(filter.name, this);
        action->setObjectName(actionName(filter.id));
        action->setToolTip(filter.name);
        const int group = groups.value(filter.group);
        m_places.insert(filter.id, {group, addItem(group, action), action});
        m_ids.append(filter.id);
    }
    connect(this, &RibbonGallery::signalTriggered, this, [this](const QAction *action) {
        Q_EMIT signalFilterChosen(action->objectName().mid(actionName({}).size()));
    });
    setPreviewOf({});
}

/// A gallery neither reports favourites nor a change of them, so they are looked for when they are
/// needed. Those that were known keep their order.
QStringList FilterGallery::favourites()
{
    m_favourites.removeIf(
        [this](const QString &id) { return !isFavourite(m_places.value(id).action); });
    for (const QString &id : std::as_const(m_ids)) {
        if (!m_favourites.contains(id) && isFavourite(m_places.value(id).action))
            m_favourites.append(id);
    }
    return m_favourites;
}

void FilterGallery::setFavourites(const QStringList &ids)
{
    const QStringList before = favourites();
    for (const QString &id : before)
        setItemCollected(m_places.value(id).group, m_places.value(id).item, false);
    m_favourites.clear();
    for (const QString &id : ids) {
        // A second time would make a second favourite.
        if (m_favourites.contains(id) || !m_places.contains(id))
            continue;
        setItemCollected(m_places.value(id).group, m_places.value(id).item, true);
        m_favourites.append(id);
    }
}

void FilterGallery::setPreviewOf(const QImage &picture)
{
    const qreal ratio = devicePixelRatioF();
    // Zooming tells of the same picture again and again, and a large one takes its time.
    if (m_hasPreviews && m_pictureKey == picture.cacheKey() && qFuzzyCompare(m_ratio, ratio))
        return;
    m_pictureKey = picture.cacheKey();
    m_ratio = ratio;
    m_hasPreviews = true;
    QImage thumbnail;
    if (!picture.isNull()) {
        thumbnail = picture.scaled(Preview_Size * ratio, Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation);
        thumbnail.setDevicePixelRatio(ratio);
    }
    for (const QString &id : std::as_const(m_ids))
        m_places.value(id).action->setIcon(thumbnail.isNull()
                                               ? PictureFilters::filterIcon(id)
                                               : PictureFilters::preview(id, thumbnail));
}

QList<QAction *> FilterGallery::matches(const QString &text) const
{
    QList<QAction *> actions;
    for (const QString &id : m_ids) {
        QAction *action = m_places.value(id).action;
        if (action->text().contains(text, Qt::CaseInsensitive))
            actions.append(action);
    }
    return actions;
}

/// The popup shows a favourite twice: in its group, and among the favourites on top.
bool FilterGallery::isFavourite(const QAction *action) const
{
    if (!action)
        return false;
    const QList<QObject *> users = action->associatedObjects();
    const auto count = std::count_if(users.cbegin(), users.cend(), [this](const QObject *user) {
        const auto *tile = qobject_cast<const QToolButton *>(user);
        return tile != nullptr && tile->window() != window();
    });
    return count > 1;
}
