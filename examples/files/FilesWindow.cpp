// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilesWindow.h"

#include "FilePane.h"
#include "FilesSettings.h"
#include "PlainLine.h"
#include "PreviewPane.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QSplitter>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Window_Size(1100, 720);
constexpr int Preview_Height = 220;

/// The folder that a pane shows for \a path; empty if there is none. A pane takes each backslash
/// for a separator.
QString folderFor(const QString &path)
{
    if (path.isEmpty())
        return {};
    QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    folder.replace(u'\\', u'/');
    return QFileInfo(folder).isDir() ? folder : QString();
}

} // namespace

FilesWindow::FilesWindow(const QString &settingsFile, QWidget *parent)
    : QMainWindow(parent), m_settingsFile(settingsFile),
      m_left(createPane(tr("left"), u"leftPane"_s)),
      m_right(createPane(tr("right"), u"rightPane"_s)), m_active(m_left), m_preview(new PreviewPane)
{
    // Resources in a static library need this call.
    Q_INIT_RESOURCE(files);
    Q_INIT_RESOURCE(support);
    setObjectName(u"filesWindow"_s);
    setWindowIcon(QIcon(u":/files/files.svg"_s));
    createLayout();
    createMenus();
    resize(Window_Size);
    loadSettings();
    showFolder(m_left);
    connect(qApp, &QApplication::focusChanged, this, &FilesWindow::followFocus);
}

FilesWindow::~FilesWindow()
{
    // The focus leaves the panes when they are deleted, and that is after the window.
    disconnect(qApp, nullptr, this, nullptr);
}

FilePane *FilesWindow::createPane(const QString &name, const QString &objectName)
{
    auto *pane = new FilePane(name, this);
    pane->setObjectName(objectName);
    connect(pane, &FilePane::folderChanged, this, [this, pane] { showFolder(pane); });
    connect(pane, &FilePane::currentPathChanged, this, [this, pane] { showPreview(pane); });
    connect(pane, &FilePane::fileOpened, this, &FilesWindow::openFile);
    return pane;
}

void FilesWindow::createLayout()
{
    m_panes = new QSplitter(Qt::Horizontal);
    m_panes->setObjectName(u"panes"_s);
    m_panes->setChildrenCollapsible(false);
    m_panes->addWidget(m_left);
    m_panes->addWidget(m_right);
    m_panes->setSizes({1, 1});
    m_preview->setObjectName(u"preview"_s);
    m_rows = new QSplitter(Qt::Vertical);
    m_rows->setObjectName(u"rows"_s);
    m_rows->setChildrenCollapsible(false);
    m_rows->addWidget(m_panes);
    m_rows->addWidget(m_preview);
    m_rows->setStretchFactor(0, 1);
    m_rows->setSizes({Window_Size.height() - Preview_Height, Preview_Height});
    setCentralWidget(m_rows);
}

void FilesWindow::createMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    QMenu *panes = menuBar()->addMenu(tr("&Panes"));
    panes->addAction(tr("&Other Pane"), Qt::Key_F6, this, &FilesWindow::goToOtherPane);
    panes->addAction(tr("&Same Folder in Other Pane"), Qt::CTRL | Qt::Key_D, this,
                     &FilesWindow::showSameFolder);
    panes->addAction(tr("S&wap Folders"), Qt::CTRL | Qt::Key_U, this, &FilesWindow::swapFolders);
    QMenu *view = menuBar()->addMenu(tr("&View"));
    m_previewAction = view->addAction(tr("&Preview"), Qt::Key_F3);
    m_previewAction->setCheckable(true);
    m_previewAction->setChecked(true);
    connect(m_previewAction, &QAction::toggled, m_preview, &QWidget::setVisible);
}

QStringList FilesWindow::openFolders(const QStringList &paths)
{
    QStringList missing;
    FilePane *pane = m_left;
    for (const QString &path : paths) {
        const QString folder = folderFor(path);
        pane->startIn(folder.isEmpty() ? QDir::homePath() : folder);
        if (folder.isEmpty())
            missing.append(path);
        pane = m_right;
    }
    showFolder(m_left);
    return missing;
}

QString FilesWindow::missingText(const QStringList &paths)
{
    QStringList lines;
    for (const QString &path : paths)
        lines.append(tr("There is no folder “%1”.").arg(path));
    return lines.join(u'\n');
}

void FilesWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        saveSettings();
}

FilePane *FilesWindow::otherPane() const
{
    return m_active == m_left ? m_right : m_left;
}

void FilesWindow::activate(FilePane *pane)
{
    m_active = pane;
    m_left->setActive(pane == m_left);
    m_right->setActive(pane == m_right);
    // This mark would stand for the star of a changed file; doubled, it stands for itself.
    QString folder = PlainLine::of(QDir::toNativeSeparators(pane->folder()));
    folder.replace(u"[*]"_s, u"[*][*]"_s);
    setWindowTitle(tr("%1 – Files").arg(folder));
    m_preview->showPath(pane->currentPath());
}

void FilesWindow::followFocus(QWidget *before, QWidget *now)
{
    Q_UNUSED(before)
    if (otherPane()->isAncestorOf(now))
        activate(otherPane());
}

/// A click on a folder in an address bar gives no focus, but the user is there now.
void FilesWindow::showFolder(FilePane *pane)
{
    activate(pane);
    pane->focusFiles();
    // The tree goes there after the bar, with nothing selected.
    m_preview->showPath(pane->folder());
}

void FilesWindow::showPreview(FilePane *pane)
{
    if (pane == m_active)
        m_preview->showPath(pane->currentPath());
}

void FilesWindow::openFile(const QString &path)
{
    m_previewAction->setChecked(true);
    m_preview->openFile(path);
}

void FilesWindow::goToOtherPane()
{
    otherPane()->focusFiles();
}

void FilesWindow::showSameFolder()
{
    FilePane *active = m_active;
    otherPane()->setFolder(active->folder());
    showFolder(active);
}

void FilesWindow::swapFolders()
{
    FilePane *active = m_active;
    const QString leftFolder = m_left->folder();
    m_left->setFolder(m_right->folder());
    m_right->setFolder(leftFolder);
    showFolder(active);
}

void FilesWindow::loadSettings()
{
    if (m_settingsFile.isEmpty())
        return;
    const FilesSettings settings = FilesSettings::load(m_settingsFile);
    restoreGeometry(settings.geometry);
    m_panes->restoreState(settings.panes);
    m_rows->restoreState(settings.preview);
    m_previewAction->setChecked(settings.isPreviewShown);
    m_left->startIn(folderFor(settings.leftFolder));
    m_right->startIn(folderFor(settings.rightFolder));
}

void FilesWindow::saveSettings() const
{
    if (m_settingsFile.isEmpty())
        return;
    FilesSettings settings;
    settings.geometry = saveGeometry();
    settings.panes = m_panes->saveState();
    settings.preview = m_rows->saveState();
    settings.leftFolder = m_left->folder();
    settings.rightFolder = m_right->folder();
    settings.isPreviewShown = m_previewAction->isChecked();
    if (!settings.save(m_settingsFile))
        qWarning("The layout could not be written to %s.", qUtf8Printable(m_settingsFile));
}
