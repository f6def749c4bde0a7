// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "gallery/PopupParts.h"

#include <QPointer>
#include <QStringList>
#include <QTest>

#include <utility>

/// A popup whose favourites are watched.
namespace FavouriteWindows {

using namespace PopupParts;

/// What three groups of one row each need, without favourites and with one row of them.
inline constexpr int Plain = SearchRow + 3 * FirstRow;
inline constexpr int WithRow = 130 + 3 * FirstRow;

inline void addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

/// A popup that tells in one list what happens to it: heights with the favourites of that moment,
/// and which tiles and favourites are marked.
class LoggedWindow : public FilledWindow
{
public:
    explicit LoggedWindow(Qt::LayoutDirection direction = Qt::LeftToRight) : FilledWindow(direction)
    {
        popup()->setCollectEnabled(true);
        QObject::connect(popup(), &VornFrame::RibbonGalleryPopup::signalHeightChanged, this,
                         [this](int height) { addHeight(height); });
        QObject::connect(popup(), &VornFrame::RibbonGalleryPopup::signalGroupUpdated, this,
                         [this] { m_log.append(u"groups"_s); });
        QObject::connect(popup(), &VornFrame::RibbonGalleryPopup::signalUpdateDisplayedItems, this,
                         [this] { m_log.append(u"strip"_s); });
    }

    ~LoggedWindow() override { popup()->disconnect(this); }

    /// Shows the window; what it tells then is not in the list.
    [[nodiscard]] bool open()
    {
        const bool isOpen = Input::show(this);
        m_log.clear();
        return isOpen;
    }
    void watch(int group, int index) { watch(parts().tile(group, index), QString::number(group)); }
    QStringList takeLog() { return std::exchange(m_log, {}); }
    QStringList favourites() const { return texts(parts().favourites()); }
    VornFrame::RibbonGalleryItem *favourite(int index) const
    {
        return parts().favourites()->item(index);
    }

    QAction *actionOf(int group, int index) const
    {
        return parts().tile(group, index)->defaultAction();
    }
    /// With the mouse, which brings the star of a tile first.
    static void clickStar(VornFrame::RibbonGalleryItem *tile)
    {
        Input::move(tile);
        QVERIFY(starOf(tile)->isVisible());
        Input::click(starOf(tile));
    }

private:
    void watch(const VornFrame::RibbonGalleryItem *tile, const QString &name)
    {
        QObject::connect(tile, &VornFrame::RibbonGalleryItem::signalCollected, this,
                         [this, tile, name](bool on) { addMark(name, tile->text(), on); });
    }
    void addMark(const QString &name, const QString &text, bool on)
    {
        m_log.append(u"%1 %2 %3"_s.arg(name, text, on ? u"on"_s : u"off"_s));
    }
    void addHeight(int height)
    {
        QString favourites;
        for (int i = 0; i < parts().favourites()->count(); ++i) {
            favourites += favourite(i)->text();
            if (favourite(i)->isCollected())
                favourites += u'*';
            if (!m_watched.contains(favourite(i)))
                watch(favourite(i), u"copy"_s);
            m_watched.append(favourite(i));
        }
        const bool isShown = parts().favourites()->isVisible();
        m_log.append(u"%1 %2 %3"_s.arg(height)
                         .arg(isShown ? u"shown"_s : u"hidden"_s, favourites)
                         .trimmed());
    }

    QStringList m_log;
    QList<QPointer<VornFrame::RibbonGalleryItem>> m_watched;
};

inline QString line(int height, const char *rest)
{
    return QString::number(height) + u' ' + QLatin1StringView(rest);
}

} // namespace FavouriteWindows
