// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StateReport.h"

#include "DocumentTabs.h"
#include "FilterGallery.h"
#include "TextDocument.h"

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/VornFrameAgent.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;

namespace {

QString nowhere()
{
    return u"-"_s;
}

QString textOf(const QRect &rect)
{
    return u"%1 %2 %3 %4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

/// Where \a rect of \a widget is on the screen, as far as the widgets around it show it.
QString placeOf(const QWidget *widget, QRect rect)
{
    if (!widget->isVisible())
        return nowhere();
    rect &= widget->rect();
    for (; !widget->isWindow(); widget = widget->parentWidget())
        rect = rect.translated(widget->pos()) & widget->parentWidget()->rect();
    return rect.isEmpty() ? nowhere()
                          : textOf(QRect(widget->mapToGlobal(rect.topLeft()), rect.size()));
}

QString placeOf(const QWidget *widget)
{
    return placeOf(widget, widget->rect());
}

/// With the star of changes as it is shown.
QString titleOf(const QWidget *window)
{
    const QString star = window->isWindowModified() ? u"*"_s : QString();
    return window->windowTitle().replace(u"[*]"_s, star);
}

QString nameOf(const QWidget *window)
{
    return window->objectName().isEmpty() ? titleOf(window) : window->objectName();
}

QString plain(QString text)
{
    return text.remove(u'&').replace(u'\n', u' ');
}

/// Those that can be seen, with an open popup first: it lies on top of all others.
QWidgetList shownWindows()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget *window) { return !window->isVisible(); });
    for (QWidget *top : {QApplication::activeModalWidget(), QApplication::activePopupWidget()}) {
        if (top && windows.removeOne(top))
            windows.prepend(top);
    }
    return windows;
}

} // namespace

StateReport::StateReport(QWidget *window, VornFrameAgent *agent, DocumentTabs *tabs,
                         FilterGallery *gallery)
    : m_window(window), m_agent(agent), m_tabs(tabs), m_gallery(gallery)
{}

QStringList StateReport::answer(const QString &command) const
{
    if (!m_window || !m_agent || !m_tabs || !m_gallery)
        return {u"error: no window"_s};
    if (command == "report"_L1)
        return state();
    const QString kind = command.section(u' ', 0, 0);
    const QString name = command.section(u' ', 1);
    const QString found = place(kind, name);
    if (found.isEmpty())
        return {u"error: unknown command"_s};
    return {command + u": "_s + found};
}

/// Empty for a kind that there is not.
QString StateReport::place(const QString &kind, const QString &name) const
{
    if (kind == "widget"_L1)
        return widgetPlace(name);
    if (kind == "action"_L1)
        return actionPlace(name);
    if (kind == "button"_L1)
        return buttonPlace(name);
    if (kind == "section"_L1)
        return sectionPlace(name.toInt());
    if (kind == "tab"_L1)
        return tabPlace(name.section(u' ', 0, 0).toInt(), name.section(u' ', 1).toInt());
    if (kind == "file"_L1)
        return filePlace(name);
    if (kind == "entry"_L1)
        return entryPlace(name);
    return {};
}

QStringList StateReport::state() const
{
    const VornFrame::DockContentWidget *content = m_agent->dockContainer()->contentWidget();
    const WorkbenchDocument *current = m_tabs->current();
    const QWidget *focus = QApplication::focusWidget();
    const QWidget *modal = QApplication::activeModalWidget();
    const QWidget *active = QApplication::activeWindow();
    QStringList lines{
        u"title: "_s + titleOf(m_window),
        u"window: "_s + placeOf(m_window),
        u"active: "_s + (active ? nameOf(active) : QString()),
        u"folder: "_s + folder(),
        u"breadcrumbs: "_s + breadcrumbs(),
        u"section: %1"_s.arg(content->currentSection()),
        u"document: "_s + (current ? current->path() : QString()),
    };
    lines += sections();
    lines.append(u"ribbon page: "_s + ribbonPage());
    lines.append(u"temporary pages: "_s + temporaryPages());
    lines.append(u"favourites: "_s + m_gallery->favourites().join(u' '));
    lines += panels();
    lines.append(u"focus: "_s + (focus ? focus->objectName() : QString()));
    lines.append(u"box: "_s + (modal ? modal->windowTitle() : QString()));
    lines.append(u"box text: "_s + boxText());
    lines.append(u"message: "_s + lastMessage());
    lines.append(u"selection: "_s + selection());
    return lines;
}

QString StateReport::boxText()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    return box ? box->text().replace(u'\n', u' ') : QString();
}

/// Of the log.
QString StateReport::lastMessage() const
{
    const auto *log = m_window->findChild<QPlainTextEdit *>(u"messageText"_s);
    return log ? log->document()->lastBlock().text() : QString();
}

/// In the text that is seen: where the selection begins, and what is selected.
QString StateReport::selection() const
{
    const auto *text = qobject_cast<TextDocument *>(m_tabs->current());
    if (!text)
        return {};
    const QTextCursor cursor = text->editor()->textCursor();
    return u"%1 %2"_s.arg(cursor.selectionStart())
        .arg(cursor.selectedText().replace(QChar::ParagraphSeparator, u' '));
}

QString StateReport::folder() const
{
    return m_agent->addressBar()->path();
}

QString StateReport::breadcrumbs() const
{
    const QStringList names = folder().split(u'/', Qt::SkipEmptyParts);
    return names.join(u" > "_s);
}

/// A modified document is marked by a star.
QStringList StateReport::sections() const
{
    VornFrame::DockContentWidget *content = m_agent->dockContainer()->contentWidget();
    QStringList lines;
    for (int section = 0; section < content->sectionCount(); ++section) {
        QStringList names;
        for (int tab = 0; tab < content->tabCount(section); ++tab) {
            const auto *document = qobject_cast<WorkbenchDocument *>(content->widget(section, tab));
            if (document)
                names.append(QFileInfo(document->path()).fileName()
                             + (document->isModified() ? u"*"_s : QString()));
        }
        lines.append(u"tabs %1: %2"_s.arg(section).arg(names.join(u" | "_s)));
        lines.append(u"current tab %1: %2"_s.arg(section).arg(content->currentTab(section)));
    }
    return lines;
}

/// Pages are known by their object names: a bar does not tell their titles.
QString StateReport::ribbonPage() const
{
    const QWidget *page = m_agent->ribbonBar()->currentPage();
    return page ? page->objectName() : QString();
}

/// A bar does not tell which tabs it shows, but a page that it hides is hidden explicitly.
QString StateReport::temporaryPages()
{
    QStringList names;
    for (const auto &name : {u"Text Tools"_s, u"Picture Tools"_s, u"Table Tools"_s}) {
        if (buttonPlace(name) != nowhere())
            names.append(name);
    }
    return names.join(u" | "_s);
}

QStringList StateReport::panels() const
{
    QStringList lines;
    const QList<QPair<QString, DockContainer::DockArea>> sides{
        {u"left"_s, DockContainer::Left},
        {u"right"_s, DockContainer::Right},
        {u"bottom"_s, DockContainer::Bottom}};
    for (const auto &[name, area] : sides) {
        const VornFrame::DockPanelWidget *side = m_agent->dockContainer()->panelWidget(area);
        const QWidget *stack = side->stackedWidget();
        lines.append(u"panel %1: %2%3"_s.arg(name, placeOf(stack),
                                             side->isMinimized() ? u" minimized"_s : QString()));
    }
    return lines;
}

QString StateReport::widgetPlace(const QString &name)
{
    const QWidgetList windows = shownWindows();
    for (const QWidget *window : windows) {
        if (window->objectName() == name)
            return placeOf(window);
        const QList<QWidget *> found = window->findChildren<QWidget *>(name);
        for (const QWidget *widget : found) {
            QString place = placeOf(widget);
            if (place != nowhere())
                return place;
        }
    }
    return nowhere();
}

/// What stands for an action: an entry of an open menu, or a button.
QString StateReport::actionPlace(const QString &name) const
{
    auto *action = m_window->findChild<QAction *>(name);
    if (!action)
        return nowhere();
    QString place = nowhere();
    const QList<QObject *> objects = action->associatedObjects();
    for (QObject *object : objects) {
        const auto *menu = qobject_cast<QMenu *>(object);
        if (menu && menu->isVisible())
            return placeOf(menu, menu->actionGeometry(action));
        const auto *button = qobject_cast<QToolButton *>(object);
        const QString found = button ? placeOf(button) : nowhere();
        if (found == nowhere())
            continue;
        // On an open popup rather than under it.
        if (place == nowhere() || button->window() == QApplication::activePopupWidget())
            place = found;
    }
    return place;
}

QString StateReport::buttonPlace(const QString &text)
{
    const QWidgetList windows = shownWindows();
    for (const QWidget *window : windows) {
        const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            if (plain(button->text()) != text && button->accessibleName() != text)
                continue;
            QString place = placeOf(button);
            if (place != nowhere())
                return place;
        }
    }
    return nowhere();
}

QString StateReport::entryPlace(const QString &text)
{
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    for (QAction *entry : entries) {
        if (plain(entry->text()) == text)
            return placeOf(menu, menu->actionGeometry(entry));
    }
    return nowhere();
}

QString StateReport::sectionPlace(int section) const
{
    const auto *content = m_agent->dockContainer()->contentWidget();
    const auto *bar = content->findChild<QTabBar *>(u"dockSectionBar"_s);
    if (!bar || !content->isSectionVisible(section))
        return nowhere();
    return placeOf(bar, bar->tabRect(section));
}

QString StateReport::tabPlace(int section, int tab) const
{
    const QWidget *page = m_agent->dockContainer()->contentWidget()->widget(section, tab);
    for (const QWidget *around = page; around; around = around->parentWidget()) {
        const auto *tabs = qobject_cast<const QTabWidget *>(around);
        if (tabs)
            return placeOf(tabs->tabBar(), tabs->tabBar()->tabRect(tab));
    }
    return nowhere();
}

QString StateReport::filePlace(const QString &name) const
{
    QTreeView *tree = m_agent->addressBar()->treeView();
    const auto *model = qobject_cast<QFileSystemModel *>(tree->model());
    if (!model)
        return nowhere();
    const QString path = QFileInfo(name).isAbsolute() ? name : folder() + u'/' + name;
    const QModelIndex index = model->index(path);
    return index.isValid() ? placeOf(tree->viewport(), tree->visualRect(index)) : nowhere();
}
