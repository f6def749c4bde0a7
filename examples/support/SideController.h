// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockPanelWidget.h>

#include <QList>
#include <QObject>

class QSplitter;
class QWidget;

/// One side of a dock container, for a program that switches single views on and off, and keeps the
/// layout from one start to the next.
///
/// A view is known by itself; its title and icon are those of a window.
class SideController : public QObject
{
    Q_OBJECT

public:
    /// \a side has to live as long as this.
    explicit SideController(VornFrame::DockPanelWidget *side, QObject *parent = nullptr);

    /// Docks \a view in a slot of its own.
    void addView(QWidget *view);
    /// Docks \a view in the slot of \a neighbour.
    void addViewBeside(QWidget *neighbour, QWidget *view);
    void addSeparator();

    QList<QWidget *> views() const;

    /// Whether \a view is switched on, which does not mean that it can be seen.
    bool isShown(const QWidget *view) const;
    /// Switches \a view on, and makes it the one that can be seen; or off, with its button when its
    /// slot holds no other. A side without views vanishes with its bar.
    void setShown(const QWidget *view, bool shown);
    /// Switches \a view on and gives it the focus.
    void activate(QWidget *view);

    /// Whether no view is switched on.
    bool isEmpty() const;

    bool isMinimized() const;
    /// Also gives the room back; an empty side ignores it.
    void setMinimized(bool minimized);

    int currentSlot() const { return m_currentSlot; }
    /// An index out of range, or of a slot without views, is ignored.
    void setCurrentSlot(int slot);

    /// What the side takes of the window when it is not minimized, in px.
    int extent() const { return m_extent; }

    /// The splitter that this side shares with its neighbours.
    QSplitter *splitter() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Place
    {
        QWidget *view = nullptr;
        int slot = -1;
        bool isShown = true;
    };

    void append(QWidget *view, int slot);
    Place *placeOf(const QWidget *view);
    int slotOf(const QWidget *view) const;
    int firstShownSlot() const;
    bool isSlotShown(int slot) const;
    void enterSlot(int slot);
    void leaveSlot(int slot);

    VornFrame::DockPanelWidget *m_side;
    QList<Place> m_places;
    int m_currentSlot = -1;
    int m_extent = 0;
};
