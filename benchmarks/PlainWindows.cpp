// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PlainWindows.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

QString pageName(int page)
{
    return u"Page %1"_s.arg(page);
}

QString commandName(int page, int group, int action)
{
    const int number = (page * GroupsPerPage + group) * ActionsPerGroup + action;
    return u"Command %1"_s.arg(number, 4, 10, QLatin1Char('0'));
}

QIcon fileIcon()
{
    return QApplication::style()->standardIcon(QStyle::SP_FileIcon);
}

namespace {

void addPlainPage(QTabWidget *tabs, int number, const QIcon &icon)
{
    auto *page = new QWidget;
    auto *layout = new QHBoxLayout(page);
    for (int g = 0; g < GroupsPerPage; ++g) {
        for (int a = 0; a < ActionsPerGroup; ++a) {
            auto *button = new QToolButton(page);
            button->setText(commandName(number, g, a));
            button->setIcon(icon);
            layout->addWidget(button);
        }
    }
    tabs->addTab(page, pageName(number));
}

} // namespace

QTabWidget *createPlainPages(int pages)
{
    auto *tabs = new QTabWidget;
    const QIcon icon = fileIcon();
    for (int p = 0; p < pages; ++p)
        addPlainPage(tabs, p, icon);
    return tabs;
}

std::unique_ptr<QWidget> createWindow(QWidget *top)
{
    auto window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(window.get());
    layout->addWidget(top);
    layout->addWidget(new QWidget);
    window->resize(WindowSize);
    return window;
}

std::unique_ptr<QWidget> createPlainPagesWindow(int pages)
{
    return createWindow(createPlainPages(pages));
}

QString viewName(int side, int view)
{
    return u"View %1"_s.arg(side * ViewsPerSide + view);
}

QString tabName(int tab)
{
    return u"Document %1"_s.arg(tab);
}

void addPlainDocks(QMainWindow *window)
{
    constexpr std::array<Qt::DockWidgetArea, Sides> Areas{
        Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea, Qt::BottomDockWidgetArea};
    for (int side = 0; side < Sides; ++side) {
        QDockWidget *first = nullptr;
        for (int view = 0; view < ViewsPerSide; ++view) {
            auto *dock = new QDockWidget(viewName(side, view), window);
            dock->setObjectName(viewName(side, view));
            dock->setWidget(new QLabel(viewName(side, view)));
            window->addDockWidget(Areas[std::size_t(side)], dock);
            if (first)
                window->tabifyDockWidget(first, dock);
            else
                first = dock;
        }
    }
}

QTabWidget *createPlainTabs(int tabs)
{
    auto *content = new QTabWidget;
    for (int tab = 0; tab < tabs; ++tab)
        content->addTab(new QLabel(tabName(tab)), tabName(tab));
    return content;
}

std::unique_ptr<QMainWindow> createPlainDockWindow(int tabs)
{
    auto window = std::make_unique<QMainWindow>();
    addPlainDocks(window.get());
    window->setCentralWidget(createPlainTabs(tabs));
    window->resize(WindowSize);
    return window;
}

Actions::Actions(int count)
{
    const QIcon icon = fileIcon();
    for (int i = 0; i < count; ++i) {
        const QString text = i % 100 == 0 ? u"Action %1 rare"_s : u"Action %1"_s;
        m_actions.append(new QAction(icon, text.arg(i), &m_owner));
    }
}

void PlainButtons::fill(const Actions &actions)
{
    for (int i = 0; i < actions.count(); ++i)
        add(actions.at(i));
}

QToolButton *PlainButtons::add(QAction *action)
{
    auto *button = new QToolButton(&m_frame);
    button->setDefaultAction(action);
    m_buttons.append(button);
    return button;
}

void PlainButtons::place()
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        const QPoint cell(i % Columns * TileSize.width(), i / Columns * TileSize.height());
        m_buttons.at(i)->setGeometry(QRect(cell, TileSize));
    }
}

void PlainButtons::show()
{
    m_frame.show();
    QCoreApplication::processEvents();
}

void PlainButtons::setButtonsVisible(bool visible)
{
    for (QToolButton *button : std::as_const(m_buttons))
        button->setVisible(visible);
}

std::unique_ptr<PlainButtons> createPlainButtonWindow(const Actions &actions)
{
    constexpr int Height = 700;
    auto buttons = std::make_unique<PlainButtons>();
    buttons->fill(actions);
    buttons->place();
    buttons->frame().setUpdatesEnabled(true);
    buttons->frame().resize(PlainButtons::Columns * PlainButtons::TileSize.width(), Height);
    return buttons;
}

void addFolders(QMenu *menu, const QString &folder)
{
    const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
    const QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names)
        menu->addAction(icon, name);
}

QWidget *createPlainPathRow(const QString &path)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    for (const auto icon : {QStyle::SP_ArrowBack, QStyle::SP_ArrowForward, QStyle::SP_ArrowUp,
                            QStyle::SP_DirOpenIcon}) {
        auto *button = new QPushButton(row);
        button->setIcon(button->style()->standardIcon(icon));
        layout->addWidget(button);
    }
    QString folder;
    const QStringList names = path.split(u'/');
    for (const QString &name : names) {
        folder += name + u'/';
        auto *button = new QToolButton(row);
        button->setText(name);
        auto *menu = new QMenu(button);
        addFolders(menu, folder);
        button->setMenu(menu);
        layout->addWidget(button);
    }
    layout->addStretch();
    return row;
}
