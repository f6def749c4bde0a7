// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilePane.h"

#include "Messages.h"
#include "NewTextFile.h"

#include <VornFrame/AddressBar.h>

#include <QAction>
#include <QFileSystemModel>
#include <QIcon>
#include <QPainter>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using VornFrame::AddressBar;

namespace {

/// In px.
constexpr int ActiveLine_Height = 2;

const QStringList &suffixes()
{
    static const QStringList list{u"txt"_s, u"md"_s,  u"csv"_s, u"ini"_s, u"log"_s, u"json"_s,
                                  u"xml"_s, u"cpp"_s, u"h"_s,   u"py"_s,  u"sh"_s,  u"png"_s,
                                  u"jpg"_s, u"gif"_s, u"svg"_s, u"bmp"_s, u"jpeg"_s};
    return list;
}

} // namespace

FilePane::FilePane(const QString &name, QWidget *parent)
    : QWidget(parent), m_bar(new AddressBar(this)), m_tree(m_bar->treeView()),
      m_folder(m_bar->path())
{
    m_bar->setAccessibleName(tr("Address, %1").arg(name));
    m_tree->setAccessibleName(tr("Files, %1").arg(name));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, ActiveLine_Height, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addWidget(m_tree, 1);
    setFocusProxy(m_tree);
    // After treeView(): only then does the tree hear of them.
    for (const QString &suffix : suffixes())
        m_bar->addSuffix(suffix);
    createActions();
    connectBar();
}

void FilePane::createActions()
{
    auto *newText = new QAction(QIcon(u":/support/text.svg"_s), tr("Text File"), this);
    newText->setObjectName(u"newTextFile"_s);
    connect(newText, &QAction::triggered, this, &FilePane::createTextFile);
    m_bar->addNewAction(newText);
}

void FilePane::connectBar()
{
    connect(m_bar, &AddressBar::signalPathChanged, this, &FilePane::showFolder);
    connect(m_bar, &AddressBar::signalFileOpen, this, &FilePane::fileOpened);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FilePane::currentPathChanged);
}

void FilePane::setFolder(const QString &path)
{
    m_bar->setPath(path);
}

void FilePane::startIn(const QString &path)
{
    // From where it is already, the bar would go nowhere, and forget that it is there.
    if (path != m_folder)
        m_bar->resetPath(path);
}

QString FilePane::currentPath() const
{
    return m_bar->actionTriggeredPath();
}

void FilePane::setActive(bool active)
{
    m_isActive = active;
    update();
}

void FilePane::focusFiles()
{
    m_tree->setFocus(Qt::OtherFocusReason);
}

void FilePane::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (m_isActive)
        QPainter(this).fillRect(0, 0, width(), ActiveLine_Height, palette().highlight());
}

/// The bar says it again whenever an edit of the path ends, also of one that changed nothing.
void FilePane::showFolder(const QString &path)
{
    if (path == m_folder)
        return;
    m_folder = path;
    Q_EMIT folderChanged(path);
}

void FilePane::createTextFile()
{
    const NewTextFile::Result result = NewTextFile::create(m_bar->actionTriggeredPath());
    if (result.path.isEmpty()) {
        Messages::tell(window(), tr("The file could not be created: %1.").arg(result.reason));
        return;
    }
    if (const auto *model = qobject_cast<QFileSystemModel *>(m_tree->model()))
        m_tree->setCurrentIndex(model->index(result.path));
    focusFiles();
}
