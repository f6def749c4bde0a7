// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonGallery.h>

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "gallery/PopupParts.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

/// A gallery in a window, with the sheet of a ribbon and beside a button, and its open popup.
namespace GalleryWindows {

using namespace PopupParts;

/// A gallery with six tiles in a row and three groups: "one" with the tiles "a0" to "a7", "two" with
/// "b0", and "three" with "c0" to "c6".
///
///     a0 a1 a2 a3 a4 a5
///     a6 a7
///     b0
///     c0 c1 c2 c3 c4 c5
///     c6
class GalleryWindow : public QWidget
{
public:
    explicit GalleryWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        VornFrame::StyleSheets::load(this, VornFrame::ResourcePaths::RibbonSheet);
        setLayoutDirection(direction);
        setGeometry(40, 10, 700, 200);
        m_other->setGeometry(10, 150, 80, 24);
        m_gallery->setGeometry(40, 10, 600, 68);
        m_gallery->setCollectEnabled(true);
        addGroup(u"one"_s, u'a', 8);
        addGroup(u"two"_s, u'b', 1);
        addGroup(u"three"_s, u'c', 7);
    }

    /// Leaves room for a popup of this height on the screen.
    void leaveRoom(int height)
    {
        const QRect screen = QApplication::primaryScreen()->geometry();
        const int top = screen.bottom() + 1 - 30 - height - m_gallery->y();
        setGeometry(QRect(QPoint(40, top), size()));
    }

    VornFrame::RibbonGallery *gallery() const { return m_gallery; }
    QPushButton *other() const { return m_other; }
    QPushButton *popupButton() const { return findChild<QPushButton *>(u"popupButton"_s); }
    QMenu *menu() const { return findChild<QMenu *>(u"galleryPopupMenu"_s); }
    VornFrame::RibbonGalleryPopup *popup() const
    {
        return menu()->findChild<VornFrame::RibbonGalleryPopup *>();
    }
    Parts parts() const { return Parts(popup()); }
    QScrollBar *scrollBar() const { return popup()->verticalScrollBar(); }

    void addGroup(const QString &name, QChar prefix, int count)
    {
        const int group = m_gallery->addGroup(name);
        for (int i = 0; i < count; ++i)
            m_gallery->addItem(group, new QAction(prefix + QString::number(i), this));
    }
    /// The first tile with this text that is not a favourite's copy.
    VornFrame::RibbonGalleryItem *tile(const QString &text) const
    {
        const auto tiles = popup()->findChildren<VornFrame::RibbonGalleryItem *>();
        for (VornFrame::RibbonGalleryItem *tile : tiles) {
            if (tile->text() == text && !parts().favourites()->isAncestorOf(tile))
                return tile;
        }
        return nullptr;
    }

    /// With the mouse.
    [[nodiscard]] bool open()
    {
        if (!isVisible() && !Input::show(this))
            return false;
        Input::click(popupButton());
        return QTest::qWaitFor([this] { return menu()->isVisible(); })
               && QTest::qWaitForWindowExposed(menu());
    }
    /// Keys come to the window that is active: a popup never is.
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(windowHandle(), static_cast<Qt::Key>(key), modifiers);
    }
    void type(char character) { QTest::keyClick(windowHandle(), character); }

    void focus(QWidget *widget) const { widget->setFocus(Qt::OtherFocusReason); }
    void focusTile(const QString &text) const { focus(tile(text)); }
    /// Where the focus is: the text of a tile, with a star for a favourite; or "search", "close",
    /// and the button of a group as in "^one" and "vone".
    QString focused() const
    {
        QWidget *widget = QApplication::focusWidget();
        if (!widget)
            return u"nothing"_s;
        if (widget == parts().searchEdit())
            return u"search"_s;
        if (widget == parts().closeButton())
            return u"close"_s;
        if (const auto *tile = qobject_cast<VornFrame::RibbonGalleryItem *>(widget))
            return (parts().favourites()->isAncestorOf(tile) ? u"*"_s : QString()) + tile->text();
        for (int i = 0; i < parts().titles().size(); ++i) {
            if (widget == toTop(parts().group(i)))
                return u'^' + parts().group(i)->title();
            if (widget == toBottom(parts().group(i)))
                return u'v' + parts().group(i)->title();
        }
        return QString::fromLatin1(widget->metaObject()->className());
    }
    /// The shown part of the popup holds all of \a widget.
    bool isInSight(const QWidget *widget) const
    {
        const QWidget *viewport = popup()->viewport();
        return viewport->rect().contains(QRect(widget->mapTo(viewport, QPoint()), widget->size()));
    }

private:
    QPushButton *m_other = new QPushButton(u"Other"_s, this);
    VornFrame::RibbonGallery *m_gallery = new VornFrame::RibbonGallery(this);
};

} // namespace GalleryWindows
