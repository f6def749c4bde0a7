// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"

#include "ActionFactory.h"
#include "ClipboardController.h"
#include "DockLayout.h"
#include "FileKinds.h"
#include "FilterGallery.h"
#include "HomePage.h"
#include "MessageLog.h"
#include "Messages.h"
#include "NewTextFile.h"
#include "OutlineView.h"
#include "PictureTools.h"
#include "Placeholder.h"
#include "PropertyList.h"
#include "SearchController.h"
#include "TableTools.h"
#include "TextTools.h"
#include "TreeActions.h"
#include "ViewPage.h"

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonCorner.h>
#include <VornFrame/RibbonPage.h>

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>
#include <QWindow>

using namespace Qt::StringLiterals;
using VornFrame::AddressBar;
using VornFrame::DockContainer;
using VornFrame::RibbonBar;
using VornFrame::RibbonPage;

namespace {

/// Of a QFileSystemModel.
enum Column { NameColumn, SizeColumn, TypeColumn, DateColumn };

constexpr QSize Window_Size(1100, 720);
constexpr int SizeColumn_Width = 84;
constexpr QSize HelpButton_Size(24, 22);

RibbonPage *addPage(RibbonBar *bar, const QString &name, const QString &title,
                    bool isTemporary = false)
{
    RibbonPage *page = bar->addPage(title, isTemporary);
    page->setObjectName(name);
    return page;
}

/// What stands in the outline of a \a document without one.
QString outlineHint(const WorkbenchDocument *document)
{
    if (!document)
        return WorkbenchWindow::tr("No document");
    switch (document->kind()) {
    case WorkbenchDocument::Text:
        return WorkbenchWindow::tr("No headings");
    case WorkbenchDocument::Picture:
        return WorkbenchWindow::tr("No outline");
    case WorkbenchDocument::Table:
        return WorkbenchWindow::tr("No columns");
    }
    return {};
}

} // namespace

WorkbenchWindow::WorkbenchWindow(const QString &settingsFile, DocumentTabs::Loader loader,
                                 QWidget *parent)
    : QMainWindow(parent), m_settingsFile(settingsFile)
{
    // Resources in a static library need this call.
    Q_INIT_RESOURCE(workbench);
    Q_INIT_RESOURCE(support);
    setObjectName(u"workbench"_s);
    setWindowIcon(QIcon(u":/workbench/workbench.svg"_s));
    m_agent.setup(this, true, true);
    m_agent.dockContainer()->setObjectName(u"docks"_s);
    m_tabs = new DocumentTabs(m_agent.dockContainer()->contentWidget(), std::move(loader), this);
    createTree();
    createViews();
    createRibbon();
    connect(m_tabs, &DocumentTabs::signalCurrentChanged, this, &WorkbenchWindow::showContent);
    connect(m_tabs, &DocumentTabs::signalContentChanged, this, &WorkbenchWindow::showContent);
    connect(m_tabs, &DocumentTabs::signalFailed, this, &WorkbenchWindow::fail);
    connect(m_tabs, &DocumentTabs::signalMessage, this,
            [this](const QString &text) { log(QtInfoMsg, text); });
    showContent();
    resize(Window_Size);
    loadSettings();
}

WorkbenchWindow::~WorkbenchWindow()
{
    // Tabs that go with the window are nobody's business any more.
    m_tabs->disconnect(this);
    delete m_tabs;
}

bool WorkbenchWindow::openPath(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return false;
    const QString folder = info.isDir() ? info.absoluteFilePath() : info.absolutePath();
    m_agent.addressBar()->setPath(QDir::cleanPath(folder));
    if (!info.isDir())
        m_tabs->open(info.absoluteFilePath());
    return true;
}

void WorkbenchWindow::openLastFiles()
{
    // A box for each file that is gone meanwhile would only be in the way.
    const QScopedValueRollback logging(m_isFailureLoggedOnly, true);
    const QStringList files = m_settings.files;
    for (const QString &file : files)
        m_tabs->open(file);
    if (files.contains(m_settings.currentFile) && QFileInfo::exists(m_settings.currentFile))
        m_tabs->open(m_settings.currentFile);
}

void WorkbenchWindow::fail(const QString &text, const QString &reason)
{
    log(QtWarningMsg, text + u' ' + reason);
    if (!m_isFailureLoggedOnly)
        Messages::warn(this, text, reason);
}

void WorkbenchWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!std::exchange(m_wasShown, true))
        showFirst();
}

void WorkbenchWindow::closeEvent(QCloseEvent *event)
{
    const QPointer<WorkbenchWindow> guard(this);
    // Each question shows what it is about.
    const QString seen = m_tabs->current() ? m_tabs->current()->path() : QString();
    const bool mayClose = m_tabs->askAll();
    event->setAccepted(mayClose);
    if (mayClose && guard)
        saveSettings(seen);
}

void WorkbenchWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    // Also when it was the window manager, or the geometry of the last time.
    if (event->type() == QEvent::WindowStateChange && m_homePage)
        m_homePage->showFullScreen(isFullScreen());
}

/// The tree belongs to the bar, and hears of the suffixes only from now on.
void WorkbenchWindow::createTree()
{
    AddressBar *bar = m_agent.addressBar();
    bar->setObjectName(u"addressBar"_s);
    m_tree = bar->treeView();
    m_tree->setObjectName(u"folders"_s);
    m_tree->setWindowTitle(tr("Folder"));
    m_tree->setWindowIcon(QIcon(u":/workbench/folders.svg"_s));
    m_tree->setFrameShape(QFrame::NoFrame);
    // A side is narrow: there is room for names and sizes, and for names in any case.
    for (const int column : {TypeColumn, DateColumn})
        m_tree->hideColumn(column);
    m_tree->header()->setMinimumSectionSize(SizeColumn_Width);
    m_tree->header()->resizeSection(SizeColumn, SizeColumn_Width);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    const QStringList suffixes = FileKinds::suffixes();
    for (const QString &suffix : suffixes)
        bar->addSuffix(suffix);
    connect(bar, &AddressBar::signalFileOpen, m_tabs, &DocumentTabs::open);
    if (const auto *model = qobject_cast<QFileSystemModel *>(m_tree->model()))
        connect(model, &QFileSystemModel::fileRenamed, m_tabs, &DocumentTabs::followRename);
    m_treeActions = new TreeActions(m_tree, this);
}

void WorkbenchWindow::createViews()
{
    m_outline = new OutlineView;
    m_properties = new PropertyList;
    m_messages = new MessageLog;
    m_layout = new DockLayout(m_agent.dockContainer(), this);
    m_layout->side(DockContainer::Left)->addView(m_tree);
    SideController *right = m_layout->side(DockContainer::Right);
    right->addView(m_outline);
    right->addViewBeside(m_outline, m_properties);
    m_layout->side(DockContainer::Bottom)->addView(m_messages);
    connect(m_outline, &OutlineView::lineChosen, this, [this](int line) {
        if (WorkbenchDocument *document = m_tabs->current())
            document->goToLine(line);
    });
}

void WorkbenchWindow::createRibbon()
{
    const ActionFactory actions(this);
    RibbonBar *bar = m_agent.ribbonBar();
    m_homePage = new HomePage(addPage(bar, u"homePage"_s, tr("&Home")), actions, m_tabs,
                              m_treeActions, new ClipboardController(m_treeActions, m_tabs, this));
    m_viewPage = new ViewPage(addPage(bar, u"viewPage"_s, tr("&View")), actions, m_layout);
    RibbonPage *texts = addPage(bar, u"textTools"_s, tr("&Text Tools"), true);
    RibbonPage *pictures = addPage(bar, u"pictureTools"_s, tr("&Picture Tools"), true);
    RibbonPage *tables = addPage(bar, u"tableTools"_s, tr("T&able Tools"), true);
    new TextTools(texts, actions, m_tabs);
    m_gallery = (new PictureTools(pictures, actions, m_tabs))->gallery();
    new TableTools(tables, actions, m_tabs);
    m_agent.bindRibbonPagesAndDockPartition({texts}, WorkbenchDocument::Text);
    m_agent.bindRibbonPagesAndDockPartition({pictures}, WorkbenchDocument::Picture);
    m_agent.bindRibbonPagesAndDockPartition({tables}, WorkbenchDocument::Table);
    createCorner(actions);
    connectPages();
}

void WorkbenchWindow::createCorner(const ActionFactory &actions)
{
    const auto *search = new SearchController(actions, m_tabs, m_gallery, this);
    QLineEdit *field = search->field();
    connect(search, &SearchController::signalMessage, this, [this, field](const QString &text) {
        log(QtInfoMsg, text);
        // Not in the status bar, where it would hide the button of the log.
        QToolTip::showText(field->mapToGlobal(QPoint(0, field->height())), text, field);
    });
    QAction *help = actions.create(u"help"_s, tr("Help"), QKeySequence::HelpContents);
    connect(help, &QAction::triggered, this, &WorkbenchWindow::showHelp);
    auto *button = new QToolButton;
    button->setObjectName(u"helpButton"_s);
    button->setDefaultAction(help);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(HelpButton_Size);
    button->setStyleSheet(u"QToolButton { border: none; border-radius: 2px; }"
                          "QToolButton:hover { background-color: rgb(38, 140, 221); }"_s);
    m_agent.ribbonBar()->corner()->addWidget(field);
    m_agent.ribbonBar()->corner()->addWidget(button);
}

void WorkbenchWindow::connectPages()
{
    connect(m_homePage, &HomePage::signalOpenRequested, this, &WorkbenchWindow::chooseFiles);
    connect(m_homePage, &HomePage::signalOpenSelectedRequested, this,
            &WorkbenchWindow::openSelected);
    connect(m_homePage, &HomePage::signalSaveCopyRequested, this, &WorkbenchWindow::saveCopy);
    connect(m_homePage, &HomePage::signalFullScreenRequested, this,
            &WorkbenchWindow::setFullScreen);
    connect(m_homePage->newTextFile(), &QAction::triggered, this, &WorkbenchWindow::createTextFile);
    m_agent.addressBar()->addNewAction(m_homePage->newTextFile());
    connect(m_viewPage, &ViewPage::signalMessage, this,
            [this](const QString &text) { log(QtInfoMsg, text); });
}

void WorkbenchWindow::log(QtMsgType type, const QString &text)
{
    m_messages->append(type, text);
}

void WorkbenchWindow::chooseFiles()
{
    const QPointer<WorkbenchWindow> guard(this);
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Open"),
                                                            m_agent.addressBar()->path());
    for (const QString &file : files) {
        if (guard)
            m_tabs->open(file);
    }
}

void WorkbenchWindow::saveCopy()
{
    const QPointer<WorkbenchWindow> guard(this);
    const QPointer<WorkbenchDocument> document(m_tabs->current());
    if (!document)
        return;
    const QString path = QFileDialog::getSaveFileName(this, tr("Save a Copy"), document->path());
    if (guard && document && !path.isEmpty())
        m_tabs->saveCopy(document, path);
}

void WorkbenchWindow::openSelected()
{
    openPath(m_agent.addressBar()->actionTriggeredPath());
}

void WorkbenchWindow::createTextFile()
{
    const NewTextFile::Result result = NewTextFile::create(
        m_agent.addressBar()->actionTriggeredPath());
    if (result.path.isEmpty()) {
        fail(tr("The file could not be created."), result.reason);
        return;
    }
    if (const auto *model = qobject_cast<QFileSystemModel *>(m_tree->model()))
        m_tree->setCurrentIndex(model->index(result.path));
    m_tabs->open(result.path);
}

void WorkbenchWindow::setFullScreen(bool on)
{
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, on));
}

void WorkbenchWindow::showHelp()
{
    Messages::inform(this, tr("Choose a folder in the address bar, and a file in the tree: texts, "
                              "pictures and tables open in tabs.\n\n"
                              "Ctrl+O\tOpen files\n"
                              "Ctrl+S\tSave\n"
                              "Ctrl+W\tClose the tab\n"
                              "Ctrl+PgDown\tNext tab\n"
                              "F6\tNext section\n"
                              "Ctrl+F\tSearch\n"
                              "F3\tSearch again\n"
                              "Ctrl+1 to Ctrl+4\tShow and hide the panels\n"
                              "F11\tFull screen"));
}

void WorkbenchWindow::showContent()
{
    const WorkbenchDocument *document = m_tabs->current();
    m_outline->setEntries(document ? document->outline() : QList<OutlineEntry>(),
                          outlineHint(document));
    m_properties->setProperties(document ? document->properties()
                                         : QList<QPair<QString, QString>>());
    if (!document) {
        setWindowTitle(tr("Workbench"));
        setWindowModified(false);
        return;
    }
    // This mark would stand for the star of a changed file; doubled, it stands for itself.
    QString name = QFileInfo(document->path()).fileName();
    name.replace(u"[*]"_s, u"[*][*]"_s);
    setWindowTitle(tr("%1[*] – Workbench").arg(name));
    setWindowModified(document->isModified());
}

void WorkbenchWindow::showPlaceholder()
{
    const QString hint = tr("Double-click a file in the tree, or open one with Open (Ctrl+O): "
                            "texts, pictures and CSV tables.");
    m_agent.dockContainer()->contentWidget()->setPlaceholderPixmap(
        Placeholder::draw(hint, windowIcon(), font(), devicePixelRatioF()));
}

/// What needs the sizes that the window has only now, or its screen.
void WorkbenchWindow::showFirst()
{
    // Otherwise the keys begin at a button of the address bar.
    m_tree->setFocus(Qt::OtherFocusReason);
    m_layout->apply(m_settings.docks);
    m_viewPage->showState();
    showPlaceholder();
    connect(windowHandle(), &QWindow::screenChanged, this, &WorkbenchWindow::showPlaceholder);
}

void WorkbenchWindow::loadSettings()
{
    if (!m_settingsFile.isEmpty())
        m_settings = WorkbenchSettings::load(m_settingsFile);
    restoreGeometry(m_settings.geometry);
    m_viewPage->setDefaultLayout(m_settings.defaultDocks);
    m_gallery->setFavourites(m_settings.favourites);
    m_agent.addressBar()->resetPath(QFileInfo(m_settings.folder).isDir() ? m_settings.folder
                                                                         : QDir::homePath());
}

void WorkbenchWindow::saveSettings(const QString &currentFile)
{
    if (m_settingsFile.isEmpty() || !m_wasShown)
        return;
    WorkbenchSettings settings;
    settings.geometry = saveGeometry();
    settings.docks = m_layout->state();
    settings.defaultDocks = m_viewPage->defaultLayout();
    settings.folder = m_agent.addressBar()->path();
    const QList<WorkbenchDocument *> documents = m_tabs->documents();
    for (const WorkbenchDocument *document : documents)
        settings.files.append(document->path());
    settings.currentFile = currentFile;
    settings.favourites = m_gallery->favourites();
    if (!settings.save(m_settingsFile))
        qWarning("The settings could not be written to %s.", qUtf8Printable(m_settingsFile));
}
