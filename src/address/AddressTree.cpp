// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressTree.h"

#include "AddressTree_p.h"

#include "FileNameDelegate.h"

#include "core/PolishAgain.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <QScopedValueRollback>
#include <QUrl>

#include <initializer_list>
#include <utility>

namespace VornFrame {

using namespace Qt::StringLiterals;

namespace {

constexpr int NameColumnWidth = 200;
constexpr int OtherColumnWidth = 100;

/// An action, and the one combination of key and modifiers that triggers it.
struct ActionKey
{
    QAction *action = nullptr;
    int key = 0;
    Qt::KeyboardModifiers modifiers;
};

} // namespace

// --- Set-up -----------------------------------------------------------------------------------

void AddressTreePrivate::init()
{
    initModel();
    initView();
    initActions();
    initConnections();
    updateActions();
    updatePasteAction();
}

void AddressTreePrivate::initModel()
{
    model = new AddressFileModel(q_ptr);
    model->setNameFilters(nameFilters);
    model->setReadOnly(false);
    q_ptr->setModel(model);
    operations = new FileOperations(*q_ptr, q_ptr);
}

void AddressTreePrivate::initView()
{
    q_ptr->setAccessibleName(AddressTree::tr("Files"));
    q_ptr->setItemDelegate(new FileNameDelegate(q_ptr));
    q_ptr->setSelectionMode(QAbstractItemView::ExtendedSelection);
    q_ptr->setSelectionBehavior(QAbstractItemView::SelectRows);
    q_ptr->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // A double click goes into the folder.
    q_ptr->setExpandsOnDoubleClick(false);
    q_ptr->setUniformRowHeights(true);
    q_ptr->setAcceptDrops(true);
    q_ptr->setDragEnabled(true);
    q_ptr->setDropIndicatorShown(true);
    q_ptr->setContextMenuPolicy(Qt::CustomContextMenu);
    q_ptr->setColumnWidth(0, NameColumnWidth);
    for (int column = 1; column < model->columnCount(); ++column)
        q_ptr->setColumnWidth(column, OtherColumnWidth);
    q_ptr->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    q_ptr->sortByColumn(0, Qt::AscendingOrder);
    q_ptr->setSortingEnabled(true);
}

QAction *AddressTreePrivate::addAction(const QString &text, const QKeySequence &shortcut,
                                       void (AddressTreePrivate::*reaction)())
{
    auto *action = new QAction(text, q_ptr);
    action->setShortcut(shortcut);
    // Not with children: while a name is edited in place, the keys belong to the editor.
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, q_ptr, [this, reaction] { (this->*reaction)(); });
    q_ptr->addAction(action);
    return action;
}

void AddressTreePrivate::initActions()
{
    using P = AddressTreePrivate;
    openAction = addAction(AddressTree::tr("Open"), {}, &P::openCurrent);
    cutAction = addAction(AddressTree::tr("Cut"), QKeySequence::Cut, &P::cutSelection);
    copyAction = addAction(AddressTree::tr("Copy"), QKeySequence::Copy, &P::copySelection);
    pasteAction = addAction(AddressTree::tr("Paste"), QKeySequence::Paste, &P::pasteFiles);
    deleteAction = addAction(AddressTree::tr("Delete"), QKeySequence::Delete, &P::removeSelection);
    renameAction = addAction(AddressTree::tr("Rename"), Qt::Key_F2, &P::renameCurrent);
    folderAction = addAction(AddressTree::tr("Folder"), {}, &P::makeFolder);
    openInExplorerAction = addAction(AddressTree::tr("Open in Explorer"), {}, &P::openFolder);
    openWithDefaultAction = addAction(AddressTree::tr("Open with Default"), {}, &P::openCurrent);
    copyAbsolutePathAction = addAction(AddressTree::tr("Copy Absolute Path"), {}, &P::copyAbsolute);
    copyRelativePathAction = addAction(AddressTree::tr("Copy Relative Path"), {}, &P::copyRelative);
    newMenu = new QMenu(AddressTree::tr("New"), q_ptr);
    newMenu->addAction(folderAction);
}

void AddressTreePrivate::initConnections()
{
    QObject::connect(clipboard, &QClipboard::dataChanged, q_ptr, [this] { updatePasteAction(); });
    QObject::connect(q_ptr->selectionModel(), &QItemSelectionModel::selectionChanged, q_ptr,
                     [this] { updateActions(); });
    QObject::connect(q_ptr, &QTreeView::collapsed, q_ptr,
                     [this](const QModelIndex &index) { deselectBelow(index); });
    QObject::connect(q_ptr, &QTreeView::doubleClicked, q_ptr,
                     [this](const QModelIndex &index) { noteDoubleClick(index); });
    QObject::connect(q_ptr, &QWidget::customContextMenuRequested, q_ptr, [this](QPoint pos) {
        showContextMenu(q_ptr->indexAt(pos), q_ptr->viewport()->mapToGlobal(pos));
    });
    QObject::connect(model, &QFileSystemModel::fileRenamed, q_ptr,
                     [this](const QString &folder, const QString &oldName, const QString &newName) {
                         noteRenaming(folder, oldName, newName);
                     });
    QObject::connect(model, &QFileSystemModel::rowsInserted, q_ptr,
                     [this](const QModelIndex &parent, int first, int last) {
                         followRenaming(parent, first, last);
                     });
}

/// Empty before there is one: the model starts in the working directory, for which nobody asked.
QString AddressTreePrivate::shownFolder() const
{
    return rootPath.isEmpty() ? QString() : model->rootPath();
}

// --- Selection --------------------------------------------------------------------------------

/// Whether \a index lies below the shown folder.
bool AddressTreePrivate::isShown(const QModelIndex &index) const
{
    if (!index.isValid())
        return false;
    const QModelIndex root = q_ptr->rootIndex();
    QModelIndex parent = index.parent();
    while (parent.isValid() && parent != root)
        parent = parent.parent();
    return parent == root;
}

QModelIndexList AddressTreePrivate::selectedRows() const
{
    QModelIndexList rows = q_ptr->selectionModel()->selectedRows();
    // Nobody shall delete what nobody sees.
    rows.removeIf([this](const QModelIndex &row) { return !isShown(row); });
    return rows;
}

void AddressTreePrivate::selectRow(const QModelIndex &index)
{
    q_ptr->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect
                                                        | QItemSelectionModel::Rows);
}

/// The model learns only later of what has gone.
void AddressTreePrivate::deselectVanished()
{
    const QModelIndexList rows = selectedRows();
    for (const QModelIndex &row : rows) {
        const QFileInfo file(model->filePath(row));
        if (!file.exists() && !file.isSymLink())
            q_ptr->selectionModel()->select(row, QItemSelectionModel::Deselect
                                                     | QItemSelectionModel::Rows);
    }
}

/// What is hidden in a collapsed folder must not stay selected, or it would be deleted unseen.
void AddressTreePrivate::deselectBelow(const QModelIndex &index)
{
    const auto isBelow = [&index](QModelIndex row) {
        do
            row = row.parent();
        while (row.isValid() && row != index);
        return row.isValid();
    };
    const QModelIndexList rows = q_ptr->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows) {
        if (isBelow(row))
            q_ptr->selectionModel()->select(row, QItemSelectionModel::Deselect
                                                     | QItemSelectionModel::Rows);
    }
}

void AddressTreePrivate::updateActions()
{
    // Copy stays enabled without a selection while Cut does not; that is intended.
    const qsizetype count = selectedRows().size();
    for (QAction *action : std::initializer_list<QAction *>{
             openAction, renameAction, openInExplorerAction, openWithDefaultAction,
             copyAbsolutePathAction, copyRelativePathAction})
        action->setEnabled(count == 1);
    cutAction->setEnabled(count >= 1);
    deleteAction->setEnabled(count >= 1);
}

void AddressTreePrivate::updatePasteAction()
{
    const QMimeData *data = clipboard->mimeData();
    pasteAction->setEnabled(data != nullptr && data->hasUrls());
}

/// The enabled action that a key triggers; null for the keys of the tree view.
QAction *AddressTreePrivate::actionOf(const QKeyEvent *event) const
{
    if (q_ptr->state() == AddressTree::EditingState)
        return nullptr;
    for (const ActionKey &candidate :
         std::initializer_list<ActionKey>{{copyAction, Qt::Key_C, Qt::ControlModifier},
                                          {pasteAction, Qt::Key_V, Qt::ControlModifier},
                                          {cutAction, Qt::Key_X, Qt::ControlModifier},
                                          {deleteAction, Qt::Key_Delete, Qt::NoModifier},
                                          {renameAction, Qt::Key_F2, Qt::NoModifier}}) {
        if (event->key() == candidate.key && event->modifiers() == candidate.modifiers
            && candidate.action->isEnabled())
            return candidate.action;
    }
    return nullptr;
}

// --- Drag and drop ----------------------------------------------------------------------------

Qt::DropAction AddressTreePrivate::actionFor(const QList<QUrl> &urls) const
{
    // A drive and its separator; where paths have no drives, still the first three characters.
    constexpr int DriveLength = 3;
    const auto driveOf = [](const QString &path) {
        return QFileInfo(path).absoluteFilePath().left(DriveLength);
    };
    const QString source = urls.isEmpty() ? QString() : urls.constFirst().toLocalFile();
    return driveOf(source) == driveOf(rootPath) ? Qt::MoveAction : Qt::CopyAction;
}

/// The action chosen when the URLs were dragged in. Those that never were have none yet, and must
/// not get that of an earlier drag.
Qt::DropAction AddressTreePrivate::rememberedActionFor(const QList<QUrl> &urls)
{
    if (std::exchange(draggedUrls, {}) != QUrl::toStringList(urls))
        dragAction = actionFor(urls);
    return dragAction;
}

// --- AddressTree ------------------------------------------------------------------------------

AddressTree::AddressTree(QWidget *parent)
    : QTreeView(parent), d_ptr(std::make_unique<AddressTreePrivate>())
{
    Q_D(AddressTree);
    d->q_ptr = this;
    d->init();
}

AddressTree::~AddressTree() = default;

void AddressTree::setRootPath(const QString &path)
{
    Q_D(AddressTree);
    if (path == d->rootPath)
        return;
    d->rootPath = path;
    d->renamedPath.clear();
    d->model->setRootPath(path);
    const QModelIndex root = d->model->index(d->model->rootPath());
    // Current, but not selected: the Delete key would trash the folder that one looks at.
    selectionModel()->clearSelection();
    selectionModel()->setCurrentIndex(root, QItemSelectionModel::NoUpdate);
    setRootIndex(root);
}

void AddressTree::setSuffixes(const QStringList &suffixes)
{
    Q_D(AddressTree);
    d->suffixes = suffixes;
}

void AddressTree::addNewAction(QAction *action)
{
    Q_D(AddressTree);
    if (action)
        d->newMenu->addAction(action);
}

QString AddressTree::currentPath() const
{
    Q_D(const AddressTree);
    if (currentIndex().isValid() && !d->selectedRows().isEmpty())
        return d->model->filePath(currentIndex());
    return d->shownFolder();
}

QStringList AddressTree::selectedPaths() const
{
    Q_D(const AddressTree);
    QStringList paths;
    const QModelIndexList rows = d->selectedRows();
    for (const QModelIndex &row : rows)
        paths.append(d->model->filePath(row));
    return paths;
}

void AddressTree::slotPathChanged(const QString &path)
{
    setRootPath(path);
}

void AddressTree::keyboardSearch(const QString &search)
{
    Q_D(AddressTree);
    // The shown folder itself is no row to start from.
    if (!d->isShown(currentIndex()))
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    QTreeView::keyboardSearch(search);
    if (!currentIndex().isValid())
        selectionModel()->setCurrentIndex(rootIndex(), QItemSelectionModel::NoUpdate);
}

bool AddressTree::event(QEvent *event)
{
    Q_D(AddressTree);
    // The same keys may be shortcuts of the window too; here they are the tree's, as a line edit's
    // are its own.
    if (event->type() == QEvent::ShortcutOverride
        && d->actionOf(static_cast<QKeyEvent *>(event)) != nullptr) {
        event->accept();
        return true;
    }
    // The place that Qt gives for the menu key is that of the current row, and there is none.
    if (event->type() == QEvent::ContextMenu && d->selectedRows().isEmpty()
        && static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard) {
        d->showContextMenu({}, viewport()->mapToGlobal(viewport()->rect().center()));
        return true;
    }
    return QTreeView::event(event);
}

void AddressTree::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        polishAgain(header());
}

void AddressTree::keyPressEvent(QKeyEvent *event)
{
    Q_D(AddressTree);
    if (QAction *action = d->actionOf(event))
        action->trigger();
    else
        QTreeView::keyPressEvent(event);
}

void AddressTree::mouseDoubleClickEvent(QMouseEvent *event)
{
    Q_D(AddressTree);
    {
        const QScopedValueRollback inDoubleClick(d->isInDoubleClick, true);
        QTreeView::mouseDoubleClickEvent(event);
    }
    const QPersistentModelIndex index = std::exchange(d->doubleClicked, {});
    if (index.isValid())
        d->openIndex(index);
}

void AddressTree::dragEnterEvent(QDragEnterEvent *event)
{
    Q_D(AddressTree);
    if (!event->mimeData()->hasUrls()) {
        event->ignore();
        return;
    }
    const QList<QUrl> urls = event->mimeData()->urls();
    d->dragAction = d->actionFor(urls);
    d->draggedUrls = QUrl::toStringList(urls);
    event->acceptProposedAction();
    event->setDropAction(d->dragAction);
}

void AddressTree::dragMoveEvent(QDragMoveEvent *event)
{
    event->accept();
}

void AddressTree::dropEvent(QDropEvent *event)
{
    Q_D(AddressTree);
    if (!event->mimeData()->hasUrls() || FileOperations::isRunning()) {
        event->ignore();
        return;
    }
    const QList<QUrl> urls = event->mimeData()->urls();
    const bool isMove = d->rememberedActionFor(urls) == Qt::MoveAction;
    const QModelIndex index = indexAt(event->position().toPoint());
    const QString target = index.isValid() ? d->model->filePath(index) : d->shownFolder();
    // Never reported as a move: after that, the source application would remove its files, whether
    // all of them have arrived here or not. Pasting removes what it has moved.
    event->setDropAction(event->possibleActions().testFlag(Qt::CopyAction) ? Qt::CopyAction
                                                                           : Qt::IgnoreAction);
    event->accept();

    auto *files = new QMimeData; // the clipboard takes it over
    files->setUrls(urls);
    files->setData(u"application/x-cut-or-copy"_s, isMove ? "cut"_ba : "copy"_ba);
    d->clipboard->setMimeData(files);
    d->pasteInto(target);
}

QModelIndex AddressTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    Q_D(AddressTree);
    if (d->isShown(currentIndex()))
        return QTreeView::moveCursor(action, modifiers);
    // From the shown folder itself Qt would go past the first row, or out to its parent.
    const int rows = d->model->rowCount(rootIndex());
    return d->model->index(action == MoveEnd ? rows - 1 : 0, 0, rootIndex());
}

QItemSelectionModel::SelectionFlags AddressTree::selectionCommand(const QModelIndex &index,
                                                                  const QEvent *event) const
{
    Q_D(const AddressTree);
    // Keys act on the current index, and that may be the shown folder.
    if (index.isValid() && !d->isShown(index))
        return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

} // namespace VornFrame
