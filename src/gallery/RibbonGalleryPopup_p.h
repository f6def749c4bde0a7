// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryGroup.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSize>
#include <QVBoxLayout>

class QKeyEvent;

namespace VornFrame {

class RibbonGalleryItem;
class RibbonGalleryPopup;

class RibbonGalleryPopupPrivate
{
public:
    RibbonGalleryPopupPrivate();

    void init();
    void initSearchRow();
    QLayout *createSearchRow();

    bool isGroup(int index) const;
    void updatePosition(qsizetype index);
    void updatePositions();
    void moveGroup(RibbonGalleryGroup *group, RibbonGalleryGroup::Position position);

    /// What makes a favourite of a tile.
    struct Source
    {
        QAction *action;
        const QSize *iconSize;
        const QSize *size;
        bool collectEnabled;
    };
    void collect(const Source &source);
    void uncollect(const QAction *action);
    void uncollectEverywhere(const QAction *action);
    void dropWithAction(RibbonGalleryGroup *group, RibbonGalleryItem *tile);

    void search(const QString &text);
    int extraHeight(const RibbonGalleryGroup *group) const;
    int sumHeights(bool all) const;
    int contentWidth(int height) const;

    QWidget *focused() const;
    void focus(QWidget *widget, Qt::FocusReason reason);
    QList<RibbonGalleryItem *> reachableItems() const;
    QList<QWidget *> keyboardStops() const;
    bool handleKey(QKeyEvent *event);
    bool isForSearch(const QKeyEvent *event) const;
    void activateFocused();
    void focusInReadingOrder(RibbonGalleryItem *from, int step);
    RibbonGalleryItem *nearestInNextRow(bool below) const;
    QRect placeOf(const QWidget *widget) const;

    QList<RibbonGalleryGroup *> groups; ///< in the order shown, without the favourites
    RibbonGalleryGroup *collectedGroup;
    QVBoxLayout *groupsLayout = new QVBoxLayout;
    QLineEdit *searchEdit = new QLineEdit;
    QPushButton *closeButton = new QPushButton;
    QLabel *noMatchLabel = new QLabel;
    QFrame *contentFrame = nullptr;
    bool collectEnabled = false;
    int displayCount = 6;
    RibbonGalleryPopup *q_ptr = nullptr;
};

} // namespace VornFrame
