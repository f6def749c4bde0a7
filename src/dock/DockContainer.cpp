// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/DockContainer.h>

#include "DockContainer_p.h"

#include "core/PolishAgain.h"
#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"

#include <QByteArray>
#include <QDataStream>
#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>
#include <QtEndian>
#include <QTimer>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

namespace VornFrame {

namespace {

enum HorizontalIndex { LeftSide, Column, RightSide };
enum VerticalIndex { Content, BottomSide };

constexpr char StateSeparator = '|';
constexpr qsizetype SidesSize = 3 * sizeof(qint32);

void setStretches(QSplitter *splitter, std::initializer_list<int> factors)
{
    int index = 0;
    for (const int factor : factors)
        splitter->setStretchFactor(index++, factor);
}

/// The room for a side that is restored. A saved state can hold any number, and the window may be
/// smaller than it was.
int roomFor(qint32 remembered, int whole)
{
    return remembered > 0 && remembered <= whole ? remembered : whole / 4;
}

/// The room for a side that has never had any.
int firstRoomFor(int wanted, int whole)
{
    return qMin(wanted, whole / 4);
}

/// The sizes in \a state, if QSplitter understands it and gets what a level splitter of \a count
/// widgets can live with; else none. QSplitter itself believes every byte: it makes room for as many
/// sizes as the state says and turns to any orientation.
QList<qint32> sizesIn(const QByteArray &state, int count)
{
    constexpr qint32 Marker = 0xff;
    constexpr qint32 NewestVersion = 1;
    QDataStream stream(state);
    stream.setVersion(QDataStream::Qt_5_0);
    qint32 marker = 0;
    qint32 version = 0;
    qint32 length = 0;
    stream >> marker >> version >> length;
    if (marker != Marker || version < 0 || version > NewestVersion || length != count)
        return {};
    QList<qint32> sizes(count);
    for (qint32 &size : sizes) {
        stream >> size;
        if (size < -1 || size > QWIDGETSIZE_MAX) // -1: never laid out
            return {};
    }
    bool childrenCollapsible = false;
    qint32 handleWidth = 0;
    bool opaqueResize = false;
    qint32 orientation = 0;
    stream >> childrenCollapsible >> handleWidth >> opaqueResize >> orientation;
    // The handles never have a width; a large one would take that of the column.
    const bool isSound = stream.status() == QDataStream::Ok && handleWidth == 0
                         && orientation == Qt::Horizontal;
    return isSound ? sizes : QList<qint32>();
}

} // namespace

void DockContainerPrivate::init()
{
    // The sheet first and then from the outside to the inside: what is added to a styled parent is
    // polished once. A widget that is polished with its sheet on reads that twice.
    q_ptr->ensurePolished();
    StyleSheets::load(q_ptr, ResourcePaths::DockSheet);
    for (DockPanelWidget *side : {left.data(), bottom.data(), right.data()})
        side->setParent(q_ptr);
    initLayout();
    initConnections();
}

void DockContainerPrivate::initLayout()
{
    content->hide();
    auto *layout = new QHBoxLayout(q_ptr);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(left->panel());
    layout->addWidget(hSplitter);
    layout->addWidget(right->panel());

    auto *column = new QWidget;
    hSplitter->setHandleWidth(0);
    hSplitter->addWidget(left->stackedWidget());
    hSplitter->addWidget(column);
    hSplitter->addWidget(right->stackedWidget());
    setStretches(hSplitter, {1, 5, 1});
    hSplitter->setCollapsible(Column, false);

    auto *columnLayout = new QVBoxLayout(column);
    columnLayout->setContentsMargins({});
    columnLayout->setSpacing(0);
    columnLayout->addWidget(vSplitter);
    columnLayout->addWidget(bottom->panel(), 0, Qt::AlignLeft);

    vSplitter->setHandleWidth(0);
    vSplitter->addWidget(content);
    vSplitter->addWidget(bottom->stackedWidget());
    setStretches(vSplitter, {50, 1});
}

void DockContainerPrivate::initConnections()
{
    QObject::connect(hSplitter, &QSplitter::splitterMoved, q_ptr,
                     [this] { followHorizontalMove(); });
    QObject::connect(vSplitter, &QSplitter::splitterMoved, q_ptr, [this] { followVerticalMove(); });
    QObject::connect(left, &DockPanelWidget::signalMinimized, q_ptr,
                     [this](bool minimized) { resizeSide(left, LeftSide, leftWidth, minimized); });
    QObject::connect(right, &DockPanelWidget::signalMinimized, q_ptr, [this](bool minimized) {
        resizeSide(right, RightSide, rightWidth, minimized);
    });
    QObject::connect(bottom, &DockPanelWidget::signalMinimized, q_ptr,
                     [this](bool minimized) { resizeBottom(minimized); });
    QObject::connect(content, &DockContentWidget::signalVisibleChanged, q_ptr,
                     [this](bool visible) { setContentVisible(visible); });
    // A side may get its first view when the window has long been shown.
    for (const DockPanelWidget *side : {left.data(), right.data(), bottom.data()})
        QObject::connect(side, &DockPanelWidget::signalCurrentIndexChanged, q_ptr,
                         [this] { settleSoon(); });
    // What moves the bottom side in the window, and what can be hidden and shown.
    for (QObject *watched : std::initializer_list<QObject *>{
             left->stackedWidget(), right->stackedWidget(), bottom->stackedWidget(), content.data(),
             vSplitter->parentWidget(), hSplitter, q_ptr})
        watched->installEventFilter(q_ptr);
}

/// The container owns them, but a program may delete what it is given.
bool DockContainerPrivate::isWhole() const
{
    const auto isWholeSide = [](const DockPanelWidget *side) {
        return side != nullptr && side->stackedWidget() != nullptr;
    };
    return isWholeSide(left) && isWholeSide(right) && isWholeSide(bottom) && content != nullptr;
}

void DockContainerPrivate::followHorizontalMove()
{
    if (!isWhole())
        return;
    const auto follow = [](DockPanelWidget *side, qint32 &remembered) {
        const int width = side->stackedWidget()->width();
        side->setMinimized(width == 0);
        if (width != 0)
            remembered = width;
    };
    follow(left, leftWidth);
    follow(right, rightWidth);
}

void DockContainerPrivate::followVerticalMove()
{
    if (!isWhole())
        return;
    const int height = bottom->stackedWidget()->height();
    bottom->setMinimized(height == 0);
    if (height != 0)
        bottomHeight = height;
}

void DockContainerPrivate::settleSoon()
{
    if (wasShown)
        QMetaObject::invokeMethod(
            q_ptr, [this] { settle(); }, Qt::QueuedConnection);
}

/// Gives the sides that are seen for the first time their room, and takes or gives it where a side
/// was minimized or restored while it could not be seen.
void DockContainerPrivate::settle()
{
    if (!wasShown || !isWhole())
        return;
    arrangeSides();
    arrangeBottom();
    const auto isOutOfStep = [](const DockPanelWidget *side, int size) {
        return side->count() > 0 && !side->stackedWidget()->isHidden()
               && side->isMinimized() != (size == 0);
    };
    if (isOutOfStep(left, hSplitter->sizes().at(LeftSide)))
        resizeSide(left, LeftSide, leftWidth, left->isMinimized());
    if (isOutOfStep(right, hSplitter->sizes().at(RightSide)))
        resizeSide(right, RightSide, rightWidth, right->isMinimized());
    if (isOutOfStep(bottom, vSplitter->sizes().at(BottomSide)))
        resizeBottom(bottom->isMinimized());
}

/// QSplitter would give the sides all that their widgets ask for and the content the rest.
void DockContainerPrivate::arrangeSides()
{
    QList<int> sizes = hSplitter->sizes();
    const int whole = hSplitter->width();
    const auto arrange = [&](int index, const DockPanelWidget *side, bool &arranged,
                             qint32 remembered) {
        if (arranged || side->stackedWidget()->isHidden())
            return;
        arranged = side->count() > 0;
        const int before = sizes.at(index);
        if (side->isMinimized())
            sizes[index] = 0;
        else if (remembered > 0 && (before == 0 || !widthsRestored))
            sizes[index] = roomFor(remembered, whole);
        else if (!widthsRestored)
            sizes[index] = firstRoomFor(side->stackedWidget()->sizeHint().width(), whole);
        sizes[Column] += before - sizes.at(index);
    };
    arrange(LeftSide, left, leftArranged, leftWidth);
    arrange(RightSide, right, rightArranged, rightWidth);
    hSplitter->setSizes(sizes);
}

/// The same for the bottom side, when it is seen beside the content for the first time.
void DockContainerPrivate::arrangeBottom()
{
    const QWidget *stack = bottom->stackedWidget();
    if (!wasShown || bottomArranged || content->isHidden() || stack->isHidden())
        return;
    bottomArranged = bottom->count() > 0;
    const int whole = vSplitter->height();
    int height = 0;
    if (!bottom->isMinimized())
        height = bottomHeight > 0 ? roomFor(bottomHeight, whole)
                                  : firstRoomFor(stack->sizeHint().height(), whole);
    vSplitter->setSizes({whole - height, height});
}

/// Sides that nobody can see are left to settle().
bool DockContainerPrivate::canResize(const DockPanelWidget *side) const
{
    return wasShown && isWhole() && !side->stackedWidget()->isHidden();
}

/// The column in the middle gives or takes the room.
void DockContainerPrivate::resizeSide(const DockPanelWidget *side, int index, qint32 &width,
                                      bool minimized) const
{
    if (!canResize(side))
        return;
    QList<int> sizes = hSplitter->sizes();
    const int before = sizes.at(index);
    if (minimized && before > 0)
        width = before;
    sizes[index] = minimized ? 0 : roomFor(width, hSplitter->width());
    sizes[Column] += before - sizes.at(index);
    hSplitter->setSizes(sizes);
}

void DockContainerPrivate::resizeBottom(bool minimized)
{
    if (!canResize(bottom))
        return;
    QList<int> sizes = vSplitter->sizes();
    const int before = sizes.at(BottomSide);
    if (minimized) {
        if (content->isHidden())
            savedContentHeight = before;
        if (before > 0)
            bottomHeight = before;
        sizes[BottomSide] = 0;
    } else {
        const int whole = vSplitter->height();
        if (!content->isHidden() && (bottomHeight == 0 || bottomHeight == whole))
            bottomHeight = whole / 4;
        sizes[BottomSide] = roomFor(bottomHeight, whole);
    }
    sizes[Content] += before - sizes.at(BottomSide);
    vSplitter->setSizes(sizes);
}

void DockContainerPrivate::setContentVisible(bool visible)
{
    if (!isWhole())
        return;
    if (visible) {
        content->show();
        if (content->height() == 0 && savedContentHeight != 0)
            makeRoomForContent();
        // The content may also come back before the bottom side got the room that it left.
        settle();
        return;
    }
    savedContentHeight = content->height();
    content->hide();
    if (savedContentHeight == vSplitter->height()) // the bottom side had no room
        bottom->setMinimized(false);
}

void DockContainerPrivate::makeRoomForContent() const
{
    QList<int> sizes = vSplitter->sizes();
    if (sizes.at(BottomSide) != 0) {
        sizes[Content] = savedContentHeight;
        sizes[BottomSide] -= savedContentHeight;
    }
    if (!bottom->isMinimized() && (sizes.at(Content) <= 0 || sizes.at(BottomSide) <= 0)) {
        const int whole = vSplitter->height();
        // A side without views would be an empty strip.
        sizes[Content] = bottom->count() > 0 ? whole * 3 / 4 : whole;
        sizes[BottomSide] = whole - sizes.at(Content);
    }
    vSplitter->setSizes(sizes);
}

void DockContainerPrivate::alignBottomBar() const
{
    if (!mainWindow || !statusBar || !mainWindow->isAncestorOf(vSplitter))
        return;
    // The bottom side starts where its splitter does; minimized, it lies somewhere out of sight.
    const QRect area(vSplitter->mapTo(mainWindow, QPoint()), vSplitter->size());
    const QRect seen = QStyle::visualRect(q_ptr->layoutDirection(), mainWindow->rect(), area);
    statusBar->movePanel(seen.left());
}

void DockContainerPrivate::restoreWidths(const QByteArray &state)
{
    const QList<qint32> sizes = sizesIn(state, hSplitter->count());
    if (sizes.isEmpty())
        return;
    const bool collapsible = hSplitter->childrenCollapsible();
    const bool opaqueResize = hSplitter->opaqueResize();
    // A container that was never shown saves no widths.
    widthsRestored = hSplitter->restoreState(state)
                     && std::any_of(sizes.cbegin(), sizes.cend(),
                                    [](qint32 size) { return size > 0; });
    // These are no matter of the layout, though QSplitter saves them too.
    hSplitter->setChildrenCollapsible(collapsible);
    if (hSplitter->opaqueResize() != opaqueResize)
        hSplitter->setOpaqueResize(opaqueResize);
}

DockContainer::DockContainer(QWidget *parent) : DockContainer(*new DockContainerPrivate, parent)
{
    Q_D(DockContainer);
    d->init();
}

DockContainer::DockContainer(DockContainerPrivate &d, QWidget *parent) : QFrame(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

DockContainer::~DockContainer() = default;

DockContentWidget *DockContainer::contentWidget() const
{
    Q_D(const DockContainer);
    return d->content;
}

DockPanelWidget *DockContainer::panelWidget(DockArea area) const
{
    Q_D(const DockContainer);
    switch (area) {
    case Left:
        return d->left;
    case Bottom:
        return d->bottom;
    case Right:
        break;
    }
    return d->right;
}

void DockContainer::setupMainWindow(QMainWindow *window)
{
    Q_D(DockContainer);
    if (!window || window == d->mainWindow)
        return;
    d->mainWindow = window;
    if (!d->statusBar)
        d->statusBar = new DockStatusBar(nullptr);
    if (d->bottom)
        d->statusBar->setPanel(d->bottom->panel());
    window->setStatusBar(d->statusBar);
    d->alignBottomBar();
}

void DockContainer::updateState()
{
    Q_D(const DockContainer);
    d->alignBottomBar();
}

void DockContainer::setPanelCollapsible(bool collapsible)
{
    Q_D(DockContainer);
    for (int i = 0; i < d->hSplitter->count(); ++i) {
        // Not by its index, which changes when a side is deleted.
        if (!d->hSplitter->widget(i)->isAncestorOf(d->vSplitter))
            d->hSplitter->setCollapsible(i, collapsible);
    }
    for (int i = 0; i < d->vSplitter->count(); ++i)
        d->vSplitter->setCollapsible(i, collapsible);
}

void DockContainer::setAllDockViewVisible(bool visible)
{
    Q_D(DockContainer);
    for (const DockPanelWidget *side : {d->left.data(), d->bottom.data(), d->right.data()}) {
        if (QWidget *stack = side ? side->stackedWidget() : nullptr)
            stack->setVisible(visible);
    }
    if (visible) {
        d->hSplitter->refresh();
        d->vSplitter->refresh();
        d->settle();
    }
}

QByteArray DockContainer::saveState() const
{
    Q_D(const DockContainer);
    const std::array<qint32, 3> sides{d->leftWidth, d->bottomHeight, d->rightWidth};
    std::array<char, SidesSize> bytes{};
    qToLittleEndian<qint32>(sides.data(), sides.size(), bytes.data());
    QByteArray state = d->hSplitter->saveState();
    state.append(StateSeparator);
    state.append(bytes.data(), bytes.size());
    return state;
}

void DockContainer::restoreState(const QByteArray &state)
{
    Q_D(DockContainer);
    // Deliberately every such byte separates, also one within a number.
    const QList<QByteArray> pieces = state.split(StateSeparator);
    if (pieces.size() != 2 || pieces.last().size() < SidesSize)
        return;
    d->restoreWidths(state);
    if (d->isWhole()) {
        const QList<int> sizes = d->hSplitter->sizes();
        if (sizes.at(LeftSide) == 0)
            d->left->setMinimized(true);
        if (sizes.at(RightSide) == 0)
            d->right->setMinimized(true);
    }
    std::array<qint32, 3> sides{};
    qFromLittleEndian<qint32>(pieces.last().constData(), sides.size(), sides.data());
    d->leftWidth = sides[0];
    d->bottomHeight = sides[1];
    d->rightWidth = sides[2];
    QTimer::singleShot(0, this, [d] { d->alignBottomBar(); });
}

void DockContainer::showEvent(QShowEvent *event)
{
    Q_D(DockContainer);
    QFrame::showEvent(event);
    if (!std::exchange(d->wasShown, true))
        d->settle();
}

void DockContainer::changeEvent(QEvent *event)
{
    Q_D(DockContainer);
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        for (const DockPanelWidget *side : {d->left.data(), d->right.data()}) {
            polishAgain(side ? side->panel() : nullptr);
            polishAgain(side ? side->stackedWidget() : nullptr);
        }
        d->alignBottomBar();
    }
}

bool DockContainer::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(DockContainer);
    if (event->type() == QEvent::Move)
        d->alignBottomBar();
    else if (event->type() == QEvent::ShowToParent && watched != this)
        d->settleSoon();
    return QFrame::eventFilter(watched, event);
}

} // namespace VornFrame
