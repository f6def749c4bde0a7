// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHBoxLayout>
#include <QList>
#include <QMenu>
#include <QPushButton>
#include <QSize>

class QAction;
class QFrame;

namespace VornFrame {

class RibbonGallery;
class RibbonGalleryItem;
class RibbonGalleryPopup;

class RibbonGalleryPrivate
{
    Q_DISABLE_COPY_MOVE(RibbonGalleryPrivate)

public:
    RibbonGalleryPrivate() = default;
    virtual ~RibbonGalleryPrivate() = default;

    void init();
    void initPopupButton();
    void initPopup();

    void trigger(QAction *action);
    void updateDisplayedItems();
    void addDisplayedItem(QAction *action);
    void addBlankItem();
    void removeDisplayedItem(RibbonGalleryItem *tile, const QObject *action);
    qsizetype indexOfFocus() const;
    void moveFocus(int step);
    void restoreFocus(const QAction *action, qsizetype index);

    void openPopup();
    void setPopupHeight(int height);
    int room() const;
    void fitMenu(int height, int neededHeight);

    QHBoxLayout *itemsLayout = new QHBoxLayout;
    QPushButton *popupButton = new QPushButton;
    QMenu *popupMenu = new QMenu(popupButton);
    RibbonGalleryPopup *popup = nullptr; ///< the menu owns it
    QList<QAction *> displayedActions;
    QList<RibbonGalleryItem *> items; ///< the tiles of the strip without the blank ones
    QSize iconSize{24, 24};
    QSize actionSize{90, 60};
    bool collectEnabled = false;
    int displayCount = 6;
    QFrame *itemsFrame = nullptr;
    RibbonGallery *q_ptr = nullptr;
};

} // namespace VornFrame
