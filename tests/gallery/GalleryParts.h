// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonGallery.h>

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "gallery/RibbonGalleryGroup.h"
#include "gallery/RibbonGalleryItem.h"
#include "gallery/RibbonGalleryPopup.h"

#include "support/Input.h"

#include <QAction>
#include <QFrame>
#include <QGuiApplication>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QStringList>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

/// A gallery in a window, and its parts.
namespace GalleryParts {

using namespace Qt::StringLiterals;

/// What the popup reckons with, in px.
inline constexpr int SearchRow = 32;
inline constexpr int FirstRow = 98;
inline constexpr int OtherRow = 74;
inline constexpr int ScrollBar = 17;

inline QFrame *frameOf(const VornFrame::RibbonGallery *gallery)
{
    return gallery->findChild<QFrame *>(u"itemsFrame"_s, Qt::FindDirectChildrenOnly);
}

inline QPushButton *buttonOf(const VornFrame::RibbonGallery *gallery)
{
    return gallery->findChild<QPushButton *>(u"popupButton"_s, Qt::FindDirectChildrenOnly);
}

inline QMenu *menuOf(const VornFrame::RibbonGallery *gallery)
{
    return buttonOf(gallery)->findChild<QMenu *>(u"galleryPopupMenu"_s, Qt::FindDirectChildrenOnly);
}

inline VornFrame::RibbonGalleryPopup *popupOf(const VornFrame::RibbonGallery *gallery)
{
    return menuOf(gallery)->findChild<VornFrame::RibbonGalleryPopup *>();
}

inline QLineEdit *searchOf(const VornFrame::RibbonGallery *gallery)
{
    return popupOf(gallery)->findChild<QLineEdit *>();
}

/// The tiles of the strip in their order, the blank ones too.
inline QList<VornFrame::RibbonGalleryItem *> tilesOf(const VornFrame::RibbonGallery *gallery)
{
    QList<VornFrame::RibbonGalleryItem *> tiles;
    const QLayout *layout = frameOf(gallery)->layout();
    for (int i = 0; i < layout->count(); ++i)
        tiles.append(qobject_cast<VornFrame::RibbonGalleryItem *>(layout->itemAt(i)->widget()));
    return tiles;
}

/// The texts of the tiles in the strip; those of blank ones are empty.
inline QStringList stripOf(const VornFrame::RibbonGallery *gallery)
{
    QStringList texts;
    const QList<VornFrame::RibbonGalleryItem *> tiles = tilesOf(gallery);
    for (const VornFrame::RibbonGalleryItem *tile : tiles)
        texts.append(tile->text());
    return texts;
}

/// The groups of the popup in the order in which they were made.
inline QList<VornFrame::RibbonGalleryGroup *> groupsOf(const VornFrame::RibbonGallery *gallery)
{
    auto groups = popupOf(gallery)->findChildren<VornFrame::RibbonGalleryGroup *>();
    groups.removeIf([](const auto *group) { return group->title() == "collected"_L1; });
    return groups;
}

inline VornFrame::RibbonGalleryGroup *favouritesOf(const VornFrame::RibbonGallery *gallery)
{
    const auto groups = popupOf(gallery)->findChildren<VornFrame::RibbonGalleryGroup *>();
    for (auto *group : groups) {
        if (group->title() == "collected"_L1)
            return group;
    }
    return nullptr;
}

inline QStringList textsOf(const VornFrame::RibbonGalleryGroup *group)
{
    QStringList texts;
    for (int i = 0; i < group->count(); ++i)
        texts.append(group->item(i)->text());
    return texts;
}

inline QToolButton *starOf(const VornFrame::RibbonGalleryItem *tile)
{
    return tile->findChild<QToolButton *>(u"collectedButton"_s);
}

/// A gallery below the sheet of the ribbon, beneath a field that has the focus.
class GalleryWindow : public QWidget
{
public:
    explicit GalleryWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        VornFrame::StyleSheets::load(this, VornFrame::ResourcePaths::RibbonSheet);
        setLayoutDirection(direction);
        auto *column = new QVBoxLayout(this);
        column->addWidget(m_field);
        auto *row = new QHBoxLayout;
        row->addWidget(new VornFrame::RibbonGallery);
        row->addStretch();
        column->addLayout(row);
        column->addStretch();
        resize(200, 150);
        move(10, 10);
    }
    ~GalleryWindow() override { deleteGallery(); }

    /// Shows the window, with the pointer where there is nothing.
    [[nodiscard]] bool showAlone()
    {
        m_field->setFocus();
        if (!Input::show(this))
            return false;
        Input::move(this, rect().bottomRight() - QPoint(3, 3));
        return true;
    }
    /// Clicks the button of the gallery.
    [[nodiscard]] bool openPopup()
    {
        Input::click(buttonOf(gallery()));
        return QTest::qWaitForWindowExposed(menuOf(gallery()));
    }
    /// Moves the window so that a popup can be \a height px high.
    void leaveRoom(int height)
    {
        const int screen = QGuiApplication::primaryScreen()->geometry().height();
        const int top = gallery()->mapToGlobal(QPoint(0, 0)).y();
        move(x(), y() + screen - 30 - height - top);
    }
    /// What makes the strip follow.
    void showAgain()
    {
        gallery()->hide();
        gallery()->show();
    }

    /// Null when it was deleted.
    VornFrame::RibbonGallery *gallery() const { return findChild<VornFrame::RibbonGallery *>(); }
    QLineEdit *field() const { return m_field; }
    void deleteGallery() const { delete gallery(); }

    /// A new action in \a group.
    QAction *addItem(int group, const QString &text)
    {
        auto *action = new QAction(text, &m_actions);
        gallery()->addItem(group, action);
        return action;
    }
    /// A new group with these items; returns its index.
    int addGroup(const QString &name, std::initializer_list<QString> items)
    {
        const int group = gallery()->addGroup(name);
        for (const QString &text : items)
            addItem(group, text);
        return group;
    }
    /// A new group with \a count items.
    int addGroup(const QString &name, int count)
    {
        const int group = gallery()->addGroup(name);
        for (int i = 0; i < count; ++i)
            addItem(group, name + QString::number(i));
        return group;
    }
    QAction *action(int group, int item) const
    {
        return groupsOf(gallery()).at(group)->item(item)->defaultAction();
    }

private:
    QObject m_actions;
    QLineEdit *m_field = new QLineEdit;
};

} // namespace GalleryParts
