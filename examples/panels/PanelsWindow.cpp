// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsWindow.h"

#include "ColorList.h"
#include "DockLayout.h"
#include "Documents.h"
#include "MessageLog.h"
#include "Messages.h"
#include "ObjectTree.h"
#include "OutlineView.h"
#include "PanelsMenus.h"
#include "PanelsSettings.h"
#include "Placeholder.h"
#include "PropertyTable.h"
#include "ScratchPad.h"

#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPixmap>
#include <QWindow>

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;

namespace {

constexpr QSize WindowSize(1100, 720);

} // namespace

PanelsWindow::PanelsWindow(const QString &settingsFile, QWidget *parent)
    : QMainWindow(parent), m_settingsFile(settingsFile)
{
    // Resources in a static library need this call.
    Q_INIT_RESOURCE(panels);
    Q_INIT_RESOURCE(support);
    setObjectName(u"panelsWindow"_s);
    setWindowIcon(QIcon(u":/panels/panels.svg"_s));
    m_container = new DockContainer;
    m_container->setObjectName(u"docks"_s);
    setCentralWidget(m_container);
    createViews();
    m_container->setupMainWindow(this);
    m_documents = new Documents(m_container->contentWidget(), this);
    const auto *menus = new PanelsMenus(this, m_documents, m_layout);
    connect(menus, &PanelsMenus::openWished, this, &PanelsWindow::chooseFiles);
    connectViews();
    showCurrent();
    resize(WindowSize);
    loadSettings();
}

void PanelsWindow::createViews()
{
    m_objects = new ObjectTree(this);
    m_properties = new PropertyTable;
    m_colors = new ColorList;
    m_outline = new OutlineView;
    m_messages = new MessageLog;
    m_messages->followMessageHandler();
    m_scratch = new ScratchPad;
    m_layout = new DockLayout(m_container, this);
    SideController *left = m_layout->side(DockContainer::Left);
    left->addView(m_objects);
    left->addViewBeside(m_objects, m_properties);
    left->addSeparator();
    left->addView(m_colors);
    m_layout->side(DockContainer::Right)->addView(m_outline);
    SideController *bottom = m_layout->side(DockContainer::Bottom);
    bottom->addView(m_messages);
    bottom->addView(m_scratch);
}

void PanelsWindow::connectViews()
{
    connect(m_objects, &ObjectTree::objectChosen, m_properties, &PropertyTable::setObject);
    connect(m_documents, &Documents::currentChanged, this, &PanelsWindow::showCurrent);
    connect(m_outline, &OutlineView::lineChosen, m_documents, &Documents::goToLine);
}

void PanelsWindow::openFiles(const QStringList &paths)
{
    for (const QString &path : paths) {
        const QString reason = m_documents->open(path);
        if (!reason.isEmpty())
            Messages::warn(this, failureText(path), reason);
    }
}

QString PanelsWindow::failureText(const QString &path)
{
    return tr("“%1” could not be opened.").arg(path);
}

void PanelsWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!std::exchange(m_wasShown, true))
        showFirst();
}

void PanelsWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        saveSettings();
}

void PanelsWindow::chooseFiles()
{
    const DocumentPage *page = m_documents->currentPage();
    const QString folder = page ? QFileInfo(page->path()).path() : QDir::currentPath();
    openFiles(QFileDialog::getOpenFileNames(this, tr("Open"), folder));
}

void PanelsWindow::loadSettings()
{
    if (m_settingsFile.isEmpty())
        return;
    const PanelsSettings settings = PanelsSettings::load(m_settingsFile);
    restoreGeometry(settings.geometry);
    m_scratch->setPlainText(settings.scratchText);
    m_docks = settings.docks;
}

void PanelsWindow::saveSettings() const
{
    if (m_settingsFile.isEmpty() || !m_wasShown)
        return;
    PanelsSettings settings;
    settings.geometry = saveGeometry();
    settings.docks = m_layout->state();
    settings.scratchText = m_scratch->toPlainText();
    if (!settings.save(m_settingsFile))
        qWarning("The layout could not be written to %s.", qUtf8Printable(m_settingsFile));
}

/// What needs the sizes that the window has only now, or its screen.
void PanelsWindow::showFirst()
{
    m_layout->apply(m_docks);
    m_objects->refresh();
    showPlaceholder();
    connect(windowHandle(), &QWindow::screenChanged, this, &PanelsWindow::showPlaceholder);
}

void PanelsWindow::showCurrent()
{
    DocumentPage *page = m_documents->currentPage();
    m_outline->setEntries(page ? page->outline() : QList<OutlineEntry>(),
                          page ? tr("No headings") : tr("No document"));
    if (!page) {
        setWindowTitle(tr("Panels"));
        return;
    }
    // This mark would stand for the star of a changed file; doubled, it stands for itself.
    QString name = QFileInfo(page->path()).fileName();
    name.replace(u"[*]"_s, u"[*][*]"_s);
    setWindowTitle(tr("%1 – Panels").arg(name));
}

void PanelsWindow::showPlaceholder()
{
    const QString hint = tr("Open text files and pictures with File > Open (Ctrl+O), or name them "
                            "on the command line.");
    m_container->contentWidget()->setPlaceholderPixmap(
        Placeholder::draw(hint, windowIcon(), font(), devicePixelRatioF()));
}
