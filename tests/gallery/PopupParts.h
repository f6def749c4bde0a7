// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "gallery/RibbonGalleryGroup.h"
#include "gallery/RibbonGalleryItem.h"
#include "gallery/RibbonGalleryLayout.h"
#include "gallery/RibbonGalleryPopup.h"

#include "support/Input.h"

#include <QAction>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <initializer_list>

/// The popup of a gallery in a window, and the parts of popups and their groups, found by the way
/// from parent to child.
namespace PopupParts {

using namespace Qt::StringLiterals;

inline constexpr QSize IconSize(24, 24);
inline constexpr QSize TileSize(90, 60);

// What a popup reckons with, in px.
inline constexpr int SearchRow = 32;
inline constexpr int FirstRow = 98;
inline constexpr int OtherRow = 74;
inline constexpr int NothingShown = 62;

/// The order in the title of a group; a stretch stands before the buttons.
enum class TitlePart { Icon = 0, Title = 1, Stretch = 2, ToTop = 3, ToBottom = 4 };

inline QFrame *titleFrame(const VornFrame::RibbonGalleryGroup *group)
{
    return group->findChild<QFrame *>(u"galleryGroupTitle"_s, Qt::FindDirectChildrenOnly);
}

inline QFrame *itemsFrame(const VornFrame::RibbonGalleryGroup *group)
{
    return group->findChild<QFrame *>(u"galleryGroupFrame"_s, Qt::FindDirectChildrenOnly);
}

template <typename Widget>
Widget *titlePart(const VornFrame::RibbonGalleryGroup *group, TitlePart part)
{
    return qobject_cast<Widget *>(
        titleFrame(group)->layout()->itemAt(static_cast<int>(part))->widget());
}

inline QLabel *iconLabel(const VornFrame::RibbonGalleryGroup *group)
{
    return titlePart<QLabel>(group, TitlePart::Icon);
}

inline QLabel *titleLabel(const VornFrame::RibbonGalleryGroup *group)
{
    return titlePart<QLabel>(group, TitlePart::Title);
}

inline QPushButton *toTop(const VornFrame::RibbonGalleryGroup *group)
{
    return titlePart<QPushButton>(group, TitlePart::ToTop);
}

inline QPushButton *toBottom(const VornFrame::RibbonGalleryGroup *group)
{
    return titlePart<QPushButton>(group, TitlePart::ToBottom);
}

inline QToolButton *starOf(const VornFrame::RibbonGalleryItem *tile)
{
    return tile->findChild<QToolButton *>(u"collectedButton"_s);
}

/// Has \a window painted and all layouts done that follow from that.
inline void settle(QWidget *window)
{
    QVERIFY(!window->grab().isNull());
    QCoreApplication::sendPostedEvents();
}

/// The texts of the tiles in their order, without those that are hidden.
inline QStringList shownTexts(const VornFrame::RibbonGalleryGroup *group)
{
    QStringList texts;
    for (int i = 0; i < group->count(); ++i) {
        if (!group->item(i)->isHidden())
            texts.append(group->item(i)->text());
    }
    return texts;
}

inline QStringList texts(const VornFrame::RibbonGalleryGroup *group)
{
    QStringList texts;
    for (int i = 0; i < group->count(); ++i)
        texts.append(group->item(i)->text());
    return texts;
}

inline QStringList texts(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

class Parts
{
public:
    explicit Parts(const VornFrame::RibbonGalleryPopup *popup) : m_popup(popup) {}

    QFrame *content() const { return qobject_cast<QFrame *>(m_popup->widget()); }
    QVBoxLayout *column() const { return qobject_cast<QVBoxLayout *>(content()->layout()); }
    QHBoxLayout *searchRow() const
    {
        return qobject_cast<QHBoxLayout *>(column()->itemAt(0)->layout());
    }
    QLineEdit *searchEdit() const
    {
        return qobject_cast<QLineEdit *>(searchRow()->itemAt(0)->widget());
    }
    QPushButton *closeButton() const
    {
        return qobject_cast<QPushButton *>(searchRow()->itemAt(1)->widget());
    }
    QVBoxLayout *groupsLayout() const
    {
        return qobject_cast<QVBoxLayout *>(column()->itemAt(1)->layout());
    }
    VornFrame::RibbonGalleryGroup *favourites() const { return groupAt(0); }
    /// In the order shown.
    VornFrame::RibbonGalleryGroup *group(int index) const { return groupAt(1 + index); }
    QLabel *noMatchLabel() const
    {
        return qobject_cast<QLabel *>(
            groupsLayout()->itemAt(groupsLayout()->count() - 1)->widget());
    }

    VornFrame::RibbonGalleryItem *tile(int group, int index) const
    {
        return this->group(group)->item(index);
    }

    /// Of the groups in the order shown, without the favourites.
    QStringList titles() const
    {
        QStringList titles;
        for (int i = 1; i < groupsLayout()->count() - 1; ++i)
            titles.append(groupAt(i)->title());
        return titles;
    }
    /// Which buttons the groups offer, in the order shown: "v" for to the bottom, "^" for to the top.
    QStringList buttons() const
    {
        QStringList buttons;
        for (int i = 1; i < groupsLayout()->count() - 1; ++i) {
            buttons.append((toTop(groupAt(i))->isHidden() ? QString() : u"^"_s)
                           + (toBottom(groupAt(i))->isHidden() ? QString() : u"v"_s));
        }
        return buttons;
    }

private:
    VornFrame::RibbonGalleryGroup *groupAt(int index) const
    {
        return qobject_cast<VornFrame::RibbonGalleryGroup *>(
            groupsLayout()->itemAt(index)->widget());
    }

    const VornFrame::RibbonGalleryPopup *m_popup;
};

/// A popup in a window, with actions of its own.
class PopupWindow : public QWidget
{
public:
    explicit PopupWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        setLayoutDirection(direction);
        resize(600, 700);
        m_popup->setGeometry(0, 0, 580, 690);
    }

    VornFrame::RibbonGalleryPopup *popup() const { return m_popup; }
    Parts parts() const { return Parts(m_popup); }

    /// A new action in \a group, with a star or without one.
    QAction *addItem(int group, const QString &text, bool collectEnabled = true)
    {
        auto *action = new QAction(text, this);
        addItem(group, action, collectEnabled);
        return action;
    }
    int addItem(int group, QAction *action, bool collectEnabled = true)
    {
        return m_popup->addItem(group, action, &iconSize, &tileSize, collectEnabled);
    }
    /// A new group with these tiles; returns its index.
    int addGroup(const QString &name, std::initializer_list<QString> items,
                 bool collectEnabled = true)
    {
        const int index = m_popup->addGroup(name, QIcon());
        for (const QString &text : items)
            addItem(index, text, collectEnabled);
        return index;
    }
    /// A new group with \a count tiles.
    int addGroup(const QString &name, int count)
    {
        const int index = m_popup->addGroup(name, QIcon());
        for (int i = 0; i < count; ++i)
            addItem(index, name + QString::number(i));
        return index;
    }

    QSize iconSize = IconSize;
    QSize tileSize = TileSize;

private:
    VornFrame::RibbonGalleryPopup *m_popup = new VornFrame::RibbonGalleryPopup(this);
};

/// Three groups: "one" with "a" and "b", "two" with "c", and "three" with "d" and "e".
class FilledWindow : public PopupWindow
{
public:
    explicit FilledWindow(Qt::LayoutDirection direction = Qt::LeftToRight) : PopupWindow(direction)
    {
        addGroup(u"one"_s, {u"a"_s, u"b"_s});
        addGroup(u"two"_s, {u"c"_s});
        addGroup(u"three"_s, {u"d"_s, u"e"_s});
    }
};

} // namespace PopupParts
