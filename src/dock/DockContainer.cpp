// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/DockContainer.h>

#include "DockContainer_p.h"

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

/// The style sheet has rules for each layout direction, and looks for them only when told to.
void polishAgain(QWidget *widget)
{
    if (widget && widget->testAttribute(Qt::WA_WState_Polished)) {
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
    }
}

/// Whether QSplitter understands \a state and gets what a level splitter of \a count widgets can
/// live with. QSplitter itself believes every byte: it makes room for as many sizes as the state
/// says and turns to any orientation.
bool isSplitterState(const QByteArray &state, int count)
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
        return false;
    for (int i = 0; i < count; ++i) {
        qint32 size = 0;
        stream >> size;
        if (size < -1 || size > QWIDGETSIZE_MAX) // -1: never laid out
            return false;
    }
    bool childrenCollapsible = false;
    qint32 handleWidth = 0;
    bool opaqueResize = false;
    qint32 orientation = 0;
    stream >> childrenCollapsible >> handleWidth >> opaqueResize >> orientation;
    // The handles never have a width; a large one would take that of the column.
    return stream.status() == QDataStream::Ok && handleWidth == 0 && orientation == Qt::Horizontal;
}

} // namespace

void DockContainerPrivate::init()
{
    // The sheet first and then from the outside to the inside: what is added to a styled parent is
    // polished once. A widget that is polished with its sheet on reads that twice.
    q_ptr->ensurePolished();
    StyleSheets::load(q_ptr, ResourcePaths::DockSheet);
    for (DockPanelWidget *side : {left, bottom, right})
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
                     [this](bool minimized) { resizeSide(LeftSide, leftWidth, minimized); });
    QObject::connect(right, &DockPanelWidget::signalMinimized, q_ptr,
                     [this](bool minimized) { resizeSide(RightSide, rightWidth, minimized); });
    QObject::connect(bottom, &DockPanelWidget::signalMinimized, q_ptr,
                     [this](bool minimized) { resizeBottom(minimized); });
    QObject::connect(content, &DockContentWidget::signalVisibleChanged, q_ptr,
                     [this](bool visible) { setContentVisible(visible); });
    // Whatever moves the bottom side in the window.
    for (QObject *mover : std::initializer_list<QObject *>{
             bottom->stackedWidget(), vSplitter->parentWidget(), hSplitter, q_ptr})
        mover->installEventFilter(q_ptr);
}

void DockContainerPrivate::followHorizontalMove()
{
    const auto follow = [](DockPanelWidget *side, qint32 &remembered) {
        const QWidget *stack = side->stackedWidget();
        const int width = stack ? stack->width() : 0;
        side->setMinimized(width == 0);
        if (width != 0)
            remembered = width;
    };
    follow(left, leftWidth);
    follow(right, rightWidth);
}

void DockContainerPrivate::followVerticalMove()
{
    const QWidget *stack = bottom->stackedWidget();
    const int height = stack ? stack->height() : 0;
    bottom->setMinimized(height == 0);
    if (height != 0)
        bottomHeight = height;
}

/// The first layout: QSplitter would give the sides all that their widgets ask for and the content
/// the rest.
void DockContainerPrivate::arrangeSides()
{
    QList<int> sizes = hSplitter->sizes();
    if (sizes.size() <= RightSide)
        return;
    const auto arrange = [this, &sizes](int index, const DockPanelWidget *side, qint32 remembered) {
        const int before = sizes.at(index);
        if (side->isMinimized())
            sizes[index] = 0;
        else if (remembered > 0 && (before == 0 || !widthsRestored))
            sizes[index] = roomFor(remembered, hSplitter->width());
        else if (!widthsRestored)
            sizes[index] = firstRoomFor(hSplitter->widget(index)->sizeHint().width(),
                                        hSplitter->width());
        sizes[Column] += before - sizes.at(index);
    };
    arrange(LeftSide, left, leftWidth);
    arrange(RightSide, right, rightWidth);
    hSplitter->setSizes(sizes);
}

/// The same for the bottom side, when the content is seen beside it for the first time.
void DockContainerPrivate::arrangeBottom()
{
    if (!arranged || bottomArranged || content->isHidden() || vSplitter->count() <= BottomSide)
        return;
    bottomArranged = true;
    const int whole = vSplitter->height();
    int height = 0;
    if (bottom->isMinimized())
        height = 0;
    else if (bottomHeight > 0)
        height = roomFor(bottomHeight, whole);
    else
        height = firstRoomFor(vSplitter->widget(BottomSide)->sizeHint().height(), whole);
    vSplitter->setSizes({whole - height, height});
}

/// The column in the middle gives or takes the room.
void DockContainerPrivate::resizeSide(int index, qint32 &width, bool minimized) const
{
    QList<int> sizes = hSplitter->sizes();
    if (!arranged || sizes.size() <= RightSide)
        return;
    const int before = sizes.at(index);
    if (minimized && before > 0)
        width = before;
    sizes[index] = minimized ? 0 : roomFor(width, hSplitter->width());
    sizes[Column] += before - sizes.at(index);
    hSplitter->setSizes(sizes);
}

void DockContainerPrivate::resizeBottom(bool minimized)
{
    QList<int> sizes = vSplitter->sizes();
    if (!arranged || sizes.size() <= BottomSide)
        return;
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
    if (visible) {
        content->show();
        if (content->height() == 0 && savedContentHeight != 0)
            makeRoomForContent();
        arrangeBottom();
        // The content may come back before the bottom side got the room that it left.
        if (!bottom->isMinimized() && bottom->count() > 0
            && vSplitter->sizes().value(BottomSide) == 0)
            resizeBottom(false);
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
    if (sizes.size() <= BottomSide)
        return;
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
    if (!isSplitterState(state, hSplitter->count()))
        return;
    const bool collapsible = hSplitter->childrenCollapsible();
    const bool opaqueResize = hSplitter->opaqueResize();
    widthsRestored = hSplitter->restoreState(state);
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
        if (i != Column)
            d->hSplitter->setCollapsible(i, collapsible);
    }
    for (int i = 0; i < d->vSplitter->count(); ++i)
        d->vSplitter->setCollapsible(i, collapsible);
}

void DockContainer::setAllDockViewVisible(bool visible)
{
    Q_D(DockContainer);
    for (const DockPanelWidget *side : {d->left, d->bottom, d->right}) {
        if (QWidget *stack = side->stackedWidget())
            stack->setVisible(visible);
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
    const QList<int> sizes = d->hSplitter->sizes();
    if (sizes.value(LeftSide) == 0)
        d->left->setMinimized(true);
    if (sizes.value(RightSide) == 0)
        d->right->setMinimized(true);
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
    if (d->arranged)
        return;
    d->arranged = true;
    d->arrangeSides();
    d->arrangeBottom();
}

void DockContainer::changeEvent(QEvent *event)
{
    Q_D(DockContainer);
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        for (const DockPanelWidget *side : {d->left, d->right}) {
            polishAgain(side->panel());
            polishAgain(side->stackedWidget());
        }
        d->alignBottomBar();
    }
}

bool DockContainer::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(const DockContainer);
    if (event->type() == QEvent::Move)
        d->alignBottomBar();
    return QFrame::eventFilter(watched, event);
}

} // namespace VornFrame
