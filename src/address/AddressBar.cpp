// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/AddressBar.h>

#include "AddressBar_p.h"
#include "AddressFolders.h"
#include "AddressPaths.h"
#include "AddressStrip.h"
#include "AddressTree.h"

#include "core/ResourcePaths.h"
#include "core/SharedIcons.h"
#include "core/StyleSheets.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

namespace VornFrame {

using namespace Qt::StringLiterals;

namespace {

/// The style sheet asks for more, and its limits win as soon as it is applied.
constexpr int BarHeight = 24;
constexpr QMargins BarMargins(5, 0, 5, 0);
constexpr int BarSpacing = 5;
constexpr int ButtonSpacing = 1;

QPushButton *newButton(QWidget *parent, const QString &name)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(u"addressButton"_s);
    button->setFlat(true);
    button->setToolTip(name);
    button->setAccessibleName(name);
    // In a dialog an auto-default button would answer Return from any line edit.
    button->setAutoDefault(false);
    // A click leaves the focus where the user works.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

AddressBarPrivate::AddressBarPrivate() = default;

AddressBarPrivate::~AddressBarPrivate()
{
    if (!isMenuOpen)
        return;
    // It may be a choice in the menu that led here, and the menu goes on when this is done.
    menu->hide();
    menu.release()->deleteLater();
}

void AddressBarPrivate::init()
{
    clipboard = QGuiApplication::clipboard();
    initButtons();
    strip = new AddressStrip(q_ptr);
    initLayout();
    initMenu();
    q_ptr->setFixedHeight(BarHeight);
    StyleSheets::load(q_ptr, ResourcePaths::AddressSheet);
    initConnections();
    q_ptr->resetPath(QDir::homePath());
}

void AddressBarPrivate::initButtons()
{
    backwardButton = newButton(q_ptr, AddressBar::tr("Backward"));
    forwardButton = newButton(q_ptr, AddressBar::tr("Forward"));
    dirUpButton = newButton(q_ptr, AddressBar::tr("Up"));
    browseButton = newButton(q_ptr, AddressBar::tr("Browse"));
    dirUpButton->setIcon(SharedIcons::icon(ResourcePaths::DirUp));
    browseButton->setIcon(SharedIcons::icon(ResourcePaths::Browse));
    backwardButton->setIcon(SharedIcons::icon(ResourcePaths::Backward));
    forwardButton->setIcon(SharedIcons::icon(ResourcePaths::Forward));
    updateIcons();
}

void AddressBarPrivate::initLayout()
{
    auto *layout = new QHBoxLayout(q_ptr);
    layout->setContentsMargins(BarMargins);
    layout->setSpacing(BarSpacing);
    auto *buttonLayout = new QHBoxLayout;
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->setSpacing(ButtonSpacing);
    for (QPushButton *button : buttons())
        buttonLayout->addWidget(button);
    layout->addLayout(buttonLayout);
    layout->addWidget(strip);
}

/// The shortcuts are those of the line edit that the path becomes, which answers to them itself. A
/// menu that is in no other menu and on no widget does not take them from anyone.
void AddressBarPrivate::initMenu()
{
    menu = std::make_unique<QMenu>();
    cutAction = menu->addAction(AddressBar::tr("Cut"));
    copyAction = menu->addAction(AddressBar::tr("Copy"));
    pasteAction = menu->addAction(AddressBar::tr("Paste"));
    pasteAndGoAction = menu->addAction(AddressBar::tr("Paste and Go"));
    selectAllAction = menu->addAction(AddressBar::tr("Select All"));
    deleteAction = menu->addAction(AddressBar::tr("Delete"));
    cutAction->setShortcut(QKeySequence::Cut);
    copyAction->setShortcut(QKeySequence::Copy);
    pasteAction->setShortcut(QKeySequence::Paste);
    selectAllAction->setShortcut(QKeySequence::SelectAll);
    deleteAction->setShortcut(QKeySequence::Delete);
    q_ptr->setContextMenuPolicy(Qt::CustomContextMenu);
}

void AddressBarPrivate::initConnections()
{
    QObject::connect(strip, &AddressStrip::signalActionsEnabled, q_ptr,
                     [this](bool backward, bool forward, bool dirUp) {
                         backwardButton->setEnabled(backward);
                         forwardButton->setEnabled(forward);
                         dirUpButton->setEnabled(dirUp);
                     });
    QObject::connect(strip, &AddressStrip::signalPathChanged, q_ptr,
                     &AddressBar::signalPathChanged);
    QObject::connect(backwardButton, &QPushButton::clicked, strip, &AddressStrip::backward);
    QObject::connect(forwardButton, &QPushButton::clicked, strip, &AddressStrip::forward);
    QObject::connect(dirUpButton, &QPushButton::clicked, strip, &AddressStrip::dirup);
    QObject::connect(browseButton, &QPushButton::clicked, strip, &AddressStrip::browse);

    QObject::connect(q_ptr, &AddressBar::customContextMenuRequested, q_ptr,
                     [this](QPoint position) { showMenu(position); });
    QObject::connect(cutAction, &QAction::triggered, q_ptr, [this] { cut(); });
    QObject::connect(copyAction, &QAction::triggered, q_ptr, [this] { copy(); });
    QObject::connect(pasteAction, &QAction::triggered, q_ptr, [this] { paste(); });
    QObject::connect(pasteAndGoAction, &QAction::triggered, q_ptr, [this] { pasteAndGo(); });
    QObject::connect(selectAllAction, &QAction::triggered, q_ptr,
                     [this] { strip->editText(path()); });
    QObject::connect(deleteAction, &QAction::triggered, q_ptr,
                     [this] { strip->editText(QString()); });
}

std::array<QPushButton *, 4> AddressBarPrivate::buttons() const
{
    return {backwardButton, forwardButton, dirUpButton, browseButton};
}

/// Backward points to where the row begins. Icons of the host are left alone.
void AddressBarPrivate::updateIcons()
{
    const QIcon toLeft = SharedIcons::icon(ResourcePaths::Backward);
    const QIcon toRight = SharedIcons::icon(ResourcePaths::Forward);
    const bool isMirrored = q_ptr->isRightToLeft();
    const auto turn = [&toLeft, &toRight](QPushButton *button, bool pointsLeft) {
        const qint64 key = button->icon().cacheKey();
        if (key == toLeft.cacheKey() || key == toRight.cacheKey())
            button->setIcon(pointsLeft ? toLeft : toRight);
    };
    turn(backwardButton, !isMirrored);
    turn(forwardButton, isMirrored);
}

void AddressBarPrivate::showMenu(QPoint position)
{
    menu->setLayoutDirection(q_ptr->layoutDirection());
    const QPointer<AddressBar> guard(q_ptr);
    isMenuOpen = true;
    menu->exec(q_ptr->mapToGlobal(position));
    if (guard)
        isMenuOpen = false;
}

void AddressBarPrivate::cut()
{
    copy();
    strip->editText(QString());
}

void AddressBarPrivate::copy() const
{
    clipboard->setText(path());
}

void AddressBarPrivate::paste()
{
    strip->editText(clipboard->text());
}

void AddressBarPrivate::pasteAndGo()
{
    const QString text = clipboard->text();
    // A line that was copied whole has its end with it.
    const QString folder = AddressFolders::meantBy(text);
    strip->setPath(folder.isEmpty() ? text : folder);
}

QString AddressBarPrivate::path() const
{
    return AddressPaths::normalized(strip->path());
}

AddressTree *AddressBarPrivate::madeTree()
{
    if (!tree) {
        tree = new AddressTree;
        tree->setStyleSheet(q_ptr->styleSheet());
        // The suffixes are not handed over: the tree gets the list only when it changes. That is
        // deliberate.
        tree->setRootPath(path());
        QObject::connect(tree, &AddressTree::signalPathChanged, strip,
                         &AddressStrip::slotPathChanged);
        QObject::connect(tree, &AddressTree::signalFileOpen, q_ptr, &AddressBar::signalFileOpen);
        QObject::connect(strip, &AddressStrip::signalPathChanged, tree,
                         &AddressTree::slotPathChanged);
    }
    return tree;
}

void AddressBarPrivate::passSuffixes() const
{
    if (tree)
        tree->setSuffixes(suffixes);
}

AddressBar::AddressBar(QWidget *parent) : AddressBar(*new AddressBarPrivate, parent)
{
    Q_D(AddressBar);
    d->init();
}

AddressBar::AddressBar(AddressBarPrivate &d, QWidget *parent) : QFrame(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

AddressBar::~AddressBar()
{
    Q_D(AddressBar);
    if (!d->tree || d->tree->parent())
        return;
    if (d->tree->isVisible()) // It may be what led here, and goes on when this is done.
        d->tree->deleteLater();
    else
        delete d->tree;
}

QString AddressBar::path() const
{
    Q_D(const AddressBar);
    return d->path();
}

void AddressBar::setPath(const QString &path)
{
    Q_D(AddressBar);
    d->strip->setPath(path);
}

void AddressBar::resetPath(const QString &path)
{
    Q_D(AddressBar);
    d->strip->resetPath(path);
}

void AddressBar::setButtonIcon(AddressButton button, const QIcon &icon)
{
    Q_D(AddressBar);
    const auto buttons = d->buttons();
    const auto index = static_cast<std::size_t>(button);
    if (index < buttons.size())
        buttons.at(index)->setIcon(icon);
}

void AddressBar::addSuffix(const QString &suffix)
{
    Q_D(AddressBar);
    if (!d->suffixes.contains(suffix))
        d->suffixes.append(suffix);
    d->passSuffixes();
}

void AddressBar::removeSuffix(const QString &suffix)
{
    Q_D(AddressBar);
    d->suffixes.removeOne(suffix);
    d->passSuffixes();
}

void AddressBar::clearSuffixs()
{
    Q_D(AddressBar);
    d->suffixes.clear();
    d->passSuffixes();
}

QTreeView *AddressBar::treeView()
{
    Q_D(AddressBar);
    return d->madeTree();
}

void AddressBar::addNewAction(QAction *action)
{
    Q_D(AddressBar);
    d->madeTree()->addNewAction(action);
}

QString AddressBar::actionTriggeredPath() const
{
    // Making the tree is not a change of the bar that anyone could see.
    return d_ptr->madeTree()->currentPath();
}

void AddressBar::changeEvent(QEvent *event)
{
    Q_D(AddressBar);
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange && d->strip)
        d->updateIcons();
}

} // namespace VornFrame
