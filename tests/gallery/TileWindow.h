// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "gallery/RibbonGalleryItem.h"

#include "support/Input.h"

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QPixmap>
#include <QToolButton>

/// A tile of a gallery below the sheet of the ribbon, in a window that has room around it.
class TileWindow : public QWidget
{
public:
    static constexpr QRect TilePlace{30, 20, 90, 60};

    explicit TileWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        VornFrame::StyleSheets::load(this, VornFrame::ResourcePaths::RibbonSheet);
        setLayoutDirection(direction);
        resize(180, 120);
        m_tile->setFixedSize(TilePlace.size());
        m_tile->move(TilePlace.topLeft());
    }

    QAction *action() { return &m_action; }
    VornFrame::RibbonGalleryItem *tile() const { return m_tile; }
    QToolButton *star() const { return m_tile->findChild<QToolButton *>(); }

    /// Shows the window, with the pointer beside the tile.
    [[nodiscard]] bool showAlone()
    {
        if (!Input::show(this))
            return false;
        leave();
        return true;
    }
    /// Moves the pointer to the middle of the tile: not onto its star.
    void enter() { Input::move(m_tile); }
    void leave() { Input::move(this, rect().bottomRight() - QPoint(10, 10)); }

    /// The keys that nothing in the window took, without the modifiers.
    QList<int> keys() const { return m_keys; }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() != Qt::Key_Control)
            m_keys.append(event->key());
    }

private:
    QAction m_action{QStringLiteral("Heading")};
    VornFrame::RibbonGalleryItem *m_tile = new VornFrame::RibbonGalleryItem(&m_action, this);
    QList<int> m_keys;
};

inline QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(QSize(16, 16), 1).toImage();
}

inline bool showsIcon(const QToolButton *button, QLatin1StringView path)
{
    return imageOf(button->icon()) == imageOf(QIcon(path));
}
