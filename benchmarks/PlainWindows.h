// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QIcon>
#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QSize>
#include <QString>
#include <QTabWidget>
#include <QWidget>

#include <memory>

class QAction;
class QMenu;
class QToolButton;

// What the benchmarks measure VornFrame beside: the plainest Qt widgets that hold as much. What both
// sides are filled with stands here too, so that they are filled with the same.

constexpr QSize WindowSize(1400, 800);

// The ribbon's counterpart: a tab widget with pages of tool buttons.

constexpr int GroupsPerPage = 8;
constexpr int ActionsPerGroup = 10;

QString pageName(int page);
/// All names are equally wide, so that no page makes its window wider than another one did.
QString commandName(int page, int group, int action);
QIcon fileIcon();

QTabWidget *createPlainPages(int pages);
/// A window with \a top above an empty rest.
std::unique_ptr<QWidget> createWindow(QWidget *top);
std::unique_ptr<QWidget> createPlainPagesWindow(int pages);

// The dock container's counterpart: dock widgets around a tab widget of labels.

constexpr int Sides = 3;
constexpr int ViewsPerSide = 4;

QString viewName(int side, int view);
QString tabName(int tab);

void addPlainDocks(QMainWindow *window);
QTabWidget *createPlainTabs(int tabs);
std::unique_ptr<QMainWindow> createPlainDockWindow(int tabs);

// The gallery's counterpart: tool buttons in one frame.

/// The actions of a gallery; one in a hundred has the word "rare" in its text.
class Actions
{
public:
    explicit Actions(int count);

    int count() const { return int(m_actions.size()); }
    QAction *at(int index) const { return m_actions.at(index); }

private:
    QObject m_owner;
    QList<QAction *> m_actions;
};

/// Plain tool buttons in one frame, which is painted only after frame().setUpdatesEnabled(true).
class PlainButtons
{
public:
    static constexpr int Columns = 6;
    static constexpr QSize TileSize{90, 60};

    PlainButtons() { m_frame.setUpdatesEnabled(false); }

    void fill(const Actions &actions);
    QToolButton *add(QAction *action);
    void place();
    void show();
    void setButtonsVisible(bool visible);

    QFrame &frame() { return m_frame; }
    QWidget *window() { return m_frame.window(); }

private:
    QFrame m_frame;
    QList<QToolButton *> m_buttons;
};

/// Placed in a frame as large as that of an open gallery.
std::unique_ptr<PlainButtons> createPlainButtonWindow(const Actions &actions);

// The address bar's counterpart: push buttons, and a tool button with a menu for each folder.

void addFolders(QMenu *menu, const QString &folder);
/// For the absolute \a path and all folders above it.
QWidget *createPlainPathRow(const QString &path);
