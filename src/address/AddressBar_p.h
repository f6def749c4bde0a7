// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/AddressBar.h>

#include <QClipboard>
#include <QPointer>
#include <QStringList>

#include <array>
#include <memory>

class QAction;
class QMenu;
class QPushButton;

namespace VornFrame {

class AddressStrip;
class AddressTree;

class AddressBarPrivate
{
    Q_DISABLE_COPY_MOVE(AddressBarPrivate)

public:
    AddressBarPrivate();
    virtual ~AddressBarPrivate();

    void init();
    void initButtons();
    void initLayout();
    void initMenu();
    void initConnections();

    std::array<QPushButton *, 4> buttons() const;
    void updateIcons();
    void showMenu(QPoint position);

    void cut();
    void copy() const;
    void paste();
    void pasteAndGo();

    QString path() const;
    AddressTree *madeTree();
    void passSuffixes() const;

    AddressStrip *strip = nullptr;
    QPointer<AddressTree> tree; ///< null until it is asked for; its parent owns it once it has one
    QPushButton *backwardButton = nullptr;
    QPushButton *forwardButton = nullptr;
    QPushButton *dirUpButton = nullptr;
    QPushButton *browseButton = nullptr;
    QStringList suffixes;
    QAction *copyAction = nullptr;
    QAction *cutAction = nullptr;
    QAction *pasteAction = nullptr;
    QAction *pasteAndGoAction = nullptr;
    QAction *selectAllAction = nullptr;
    QAction *deleteAction = nullptr;
    std::unique_ptr<QMenu> menu;
    bool isMenuOpen = false;
    QClipboard *clipboard = nullptr;
    AddressBar *q_ptr = nullptr;
};

} // namespace VornFrame
