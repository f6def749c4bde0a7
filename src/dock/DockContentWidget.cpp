// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/DockContentWidget.h>

#include "DockContentWidget_p.h"

#include "DockTabWidget.h"

#include "core/LazyPolish.h"
#include "core/PolishAgain.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QToolButton>
#include <QVariant>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace VornFrame {

namespace {

constexpr int SectionMargin = 3;

} // namespace

DockContentWidgetPrivate::DockContentWidgetPrivate()
{
    sectionWidget->setObjectName(u"dockSectionWidget"_s);
    sectionWidget->setTabPosition(QTabWidget::South);
    sectionWidget->tabBar()->setObjectName(u"dockSectionBar"_s);
}

void DockContentWidgetPrivate::init()
{
    auto *layout = new QVBoxLayout(q_ptr);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(sectionWidget);
    sectionWidget->hide();
    sectionWidget->installEventFilter(q_ptr);
    sectionWidget->tabBar()->installEventFilter(q_ptr);
    sectionWidget->tabBar()->setAccessibleName(DockContentWidget::tr("Sections"));
    q_ptr->setAlignment(Qt::AlignCenter);
    initCloseActions();
    QObject::connect(sectionWidget, &QTabWidget::currentChanged, q_ptr,
                     [this](int index) { changeSection(index); });
}

void DockContentWidgetPrivate::initCloseActions()
{
    const std::array<QString, 5> texts{
        DockContentWidget::tr("Close Current"),
        DockContentWidget::tr("Close All Left"),
        DockContentWidget::tr("Close All Right"),
        DockContentWidget::tr("Close All(Except Current)"),
        DockContentWidget::tr("Close All"),
    };
    for (std::size_t i = 0; i < texts.size(); ++i) {
        closeActions[i] = new QAction(texts[i], q_ptr);
        const auto mode = CloseMode(i);
        // Deliberately the section that is shown, not the one that the menu was opened in.
        QObject::connect(closeActions[i], &QAction::triggered, q_ptr, [this, mode] {
            Q_EMIT q_ptr->signalTabCloseRequested(mode, sectionWidget->currentIndex(), menuTab);
        });
    }
}

void DockContentWidgetPrivate::wireSection(QTabWidget *tabs)
{
    QTabBar *bar = tabs->tabBar();
    QObject::connect(bar, &QTabBar::customContextMenuRequested, q_ptr,
                     [this, bar](QPoint pos) { showCloseMenu(bar, pos); });
    QObject::connect(bar, &QTabBar::tabCloseRequested, q_ptr, [this](int index) {
        Q_EMIT q_ptr->signalTabCloseRequested(CloseCurrent, sectionWidget->currentIndex(), index);
    });
    QObject::connect(tabs, &QTabWidget::currentChanged, q_ptr,
                     [this, tabs](int index) { changeTab(tabs, index); });
    tabs->installEventFilter(q_ptr);
}

QTabWidget *DockContentWidgetPrivate::section(int index) const
{
    return sections.value(index);
}

/// The bar that holds the tab; null if there is no such tab.
QTabBar *DockContentWidgetPrivate::tabBar(int section, int index) const
{
    const QTabWidget *tabs = sections.value(section);
    return tabs && index >= 0 && index < tabs->count() ? tabs->tabBar() : nullptr;
}

int DockContentWidgetPrivate::sectionOf(const QTabWidget *tabs) const
{
    return sectionWidget->indexOf(tabs->parentWidget());
}

bool DockContentWidgetPrivate::hasTabs() const
{
    return std::any_of(sections.cbegin(), sections.cend(),
                       [](const QTabWidget *tabs) { return tabs->count() > 0; });
}

void DockContentWidgetPrivate::changeSection(int index)
{
    const QPointer<DockContentWidget> guard(q_ptr);
    Q_EMIT q_ptr->signalCurrentSectionChanged(index);
    // A slot closed the window, or chose another section meanwhile, and that has been reported.
    if (!guard || sectionWidget->currentIndex() != index)
        return;
    const QTabWidget *tabs = section(index);
    const int previousSection = std::exchange(lastSection, index);
    if (!tabs)
        return;
    const int previousTab = std::exchange(lastTab, tabs->currentIndex());
    if (index != previousSection || lastTab != previousTab)
        Q_EMIT q_ptr->signalCurrentTabChanged(index, lastTab);
}

void DockContentWidgetPrivate::changeTab(const QTabWidget *tabs, int index)
{
    const int current = sectionOf(tabs);
    sectionWidget->setTabVisible(current, tabs->count() > 0);
    if (current == lastSection && index == lastTab)
        return;
    if (index >= 0) {
        // Noted before it is told: a slot may change the tab again.
        lastSection = current;
        lastTab = index;
        Q_EMIT q_ptr->signalCurrentTabChanged(current, index);
    } else if (!movingTabs && !hasTabs()) {
        // The last widget was deleted or taken elsewhere by its owner.
        leaveFilled();
    }
}

/// Appends a tab without a word about sections; -1 if a slot removed it at once.
int DockContentWidgetPrivate::insertTab(QTabWidget *tabs, QWidget *widget, const QString &text)
{
    const QScopedValueRollback moving(movingTabs, true);
    dropEarlyPolish(widget);
    const int index = tabs->addTab(widget, text);
    if (hasTabs())
        enterFilled();
    if (hasTabs())
        return index;
    if (lastTab >= 0)
        leaveFilled();
    return -1;
}

void DockContentWidgetPrivate::enterFilled()
{
    if (!sectionWidget->isVisible()) {
        sectionWidget->show();
        refreshPlaceholder();
    }
    if (!q_ptr->isVisible())
        Q_EMIT q_ptr->signalVisibleChanged(true);
}

void DockContentWidgetPrivate::leaveFilled()
{
    const bool wasVisible = q_ptr->isVisible();
    sectionWidget->hide();
    refreshPlaceholder();
    if (wasVisible && autoHide)
        Q_EMIT q_ptr->signalVisibleChanged(false);
    if (hasTabs()) // a slot added one
        return;
    lastSection = -1;
    lastTab = -1;
    const QPointer<DockContentWidget> guard(q_ptr);
    Q_EMIT q_ptr->signalCurrentSectionChanged(-1);
    if (guard)
        Q_EMIT q_ptr->signalCurrentTabChanged(-1, -1);
}

void DockContentWidgetPrivate::refreshPlaceholder() const
{
    const QPixmap wanted = sectionWidget->isVisible() ? QPixmap() : placeholder;
    if (q_ptr->pixmap().cacheKey() != wanted.cacheKey())
        q_ptr->setPixmap(wanted);
}

/// Chooses the section that the mouse \a event pressed; returns whether there is one. QTabBar would
/// go on with itself afterwards, but a slot may have closed the window.
bool DockContentWidgetPrivate::pressSection(const QMouseEvent *event) const
{
    QTabBar *bar = sectionWidget->tabBar();
    const int pressed = bar->tabAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || pressed < 0 || !bar->isTabEnabled(pressed))
        return false;
    bar->setCurrentIndex(pressed);
    return true;
}

void DockContentWidgetPrivate::showCloseMenu(const QTabBar *bar, QPoint pos)
{
    const int tab = bar->tabAt(pos);
    if (tab < 0)
        return;
    menuTab = tab;
    const int count = bar->count();
    auto *menu = new QMenu(q_ptr);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(closeActions[CloseCurrent]);
    if (tab > 0)
        menu->addAction(closeActions[CloseAllLeft]);
    if (tab < count - 1)
        menu->addAction(closeActions[CloseAllRight]);
    if (count > 1) {
        menu->addAction(closeActions[CloseAllExceptCurrent]);
        menu->addAction(closeActions[CloseAll]);
    }
    menu->exec(bar->mapToGlobal(pos));
}

void DockContentWidgetPrivate::requestMiddleClose(const QTabWidget *tabs, QPoint pos) const
{
    const QTabBar *bar = tabs->tabBar();
    // The bar starts where the tab widget does, at its leading edge.
    if (tabs->isRightToLeft())
        pos.rx() -= tabs->width() - bar->width();
    const int tab = bar->tabAt(pos);
    if (tab >= 0)
        Q_EMIT q_ptr->signalTabCloseRequested(CloseCurrent, sectionOf(tabs), tab);
}

/// The sheet has rules for both directions, for the tabs and for the scroll buttons.
void DockContentWidgetPrivate::polishTabBar(QTabBar *bar)
{
    const QList<QToolButton *> scrollButtons = bar->findChildren<QToolButton *>();
    for (QToolButton *button : scrollButtons)
        polishAgain(button);
    polishAgain(bar);
    QEvent styleChange(QEvent::StyleChange);
    QCoreApplication::sendEvent(bar, &styleChange);
}

DockContentWidget::DockContentWidget(QWidget *parent)
    : DockContentWidget(*new DockContentWidgetPrivate, parent)
{
    Q_D(DockContentWidget);
    d->init();
}

DockContentWidget::DockContentWidget(DockContentWidgetPrivate &d, QWidget *parent)
    : QLabel(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

DockContentWidget::~DockContentWidget()
{
    Q_D(DockContentWidget);
    // The tab widgets report each tab that goes with them.
    d->sectionWidget->disconnect(this);
    for (QTabWidget *tabs : std::as_const(d->sections))
        tabs->disconnect(this);
}

int DockContentWidget::addSection(const QString &text)
{
    Q_D(DockContentWidget);
    auto *page = new QWidget;
    const int index = d->sectionWidget->addTab(page, text);
    // While it is empty: what it gets is polished when it is first shown and not with the window.
    page->ensurePolished();
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(SectionMargin, SectionMargin, SectionMargin, SectionMargin);
    auto *tabs = new DockTabWidget(page);
    layout->addWidget(tabs);
    tabs->setObjectName(u"dockTabWidget"_s);
    tabs->setTabsClosable(true);
    tabs->setMovable(true);
    tabs->tabBar()->setObjectName(u"dockTabBar"_s);
    tabs->tabBar()->setAccessibleName(text);
    tabs->tabBar()->setContextMenuPolicy(Qt::CustomContextMenu);
    d->sectionWidget->setTabVisible(index, false);
    d->sections.insert(index, tabs);
    d->wireSection(tabs);
    return index;
}

int DockContentWidget::sectionCount() const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->count();
}

int DockContentWidget::currentSection() const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->currentIndex();
}

QString DockContentWidget::sectionText(int section)
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->tabText(section);
}

bool DockContentWidget::isSectionEnbaled(int section) const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->isTabEnabled(section);
}

void DockContentWidget::setSectionEnabled(int section, bool enabled)
{
    Q_D(DockContentWidget);
    d->sectionWidget->setTabEnabled(section, enabled);
}

bool DockContentWidget::isSectionVisible(int section) const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->isTabVisible(section);
}

void DockContentWidget::setSectionVisible(int section, bool visible)
{
    Q_D(DockContentWidget);
    d->sectionWidget->setTabVisible(section, visible);
}

bool DockContentWidget::isSectionBarVisible() const
{
    Q_D(const DockContentWidget);
    return d->sectionWidget->isVisible();
}

void DockContentWidget::setSectionBarVisible(bool visible)
{
    Q_D(DockContentWidget);
    d->sectionWidget->setVisible(visible);
}

int DockContentWidget::addTab(int section, QWidget *widget, const QString &text)
{
    Q_D(DockContentWidget);
    QTabWidget *tabs = d->section(section);
    if (!tabs || !widget || widget == tabs || widget->isAncestorOf(tabs))
        return -1;
    const bool hadTabs = d->hasTabs();
    const int index = d->insertTab(tabs, widget, text);
    if (index >= 0 && !hadTabs) {
        d->lastSection = section;
        d->lastTab = index;
        Q_EMIT signalCurrentSectionChanged(section); // a slot may close the window
    }
    return index;
}

void DockContentWidget::removeTab(int section, int index)
{
    Q_D(DockContentWidget);
    QTabWidget *tabs = d->section(section);
    if (!tabs)
        return;
    {
        const QScopedValueRollback moving(d->movingTabs, true);
        tabs->removeTab(index);
    }
    if (!d->hasTabs())
        d->leaveFilled();
}

bool DockContentWidget::contains(QWidget *widget)
{
    return sectionOf(widget) >= 0;
}

int DockContentWidget::sectionOf(QWidget *widget) const
{
    Q_D(const DockContentWidget);
    for (int section = 0; section < sectionCount(); ++section) {
        const QTabWidget *tabs = d->section(section);
        if (tabs && tabs->indexOf(widget) >= 0)
            return section;
    }
    return -1;
}

int DockContentWidget::tabOf(QWidget *widget) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->section(sectionOf(widget));
    return tabs ? tabs->indexOf(widget) : -1;
}

int DockContentWidget::tabCount(int section) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->section(section);
    return tabs ? tabs->count() : -1;
}

int DockContentWidget::currentTab(int section) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->section(section);
    return tabs ? tabs->currentIndex() : -1;
}

QWidget *DockContentWidget::currentWidget(int section) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->section(section);
    return tabs ? tabs->currentWidget() : nullptr;
}

QWidget *DockContentWidget::widget(int section, int index) const
{
    Q_D(const DockContentWidget);
    const QTabWidget *tabs = d->section(section);
    return tabs ? tabs->widget(index) : nullptr;
}

void DockContentWidget::setCurrentTab(int section, int index)
{
    Q_D(DockContentWidget);
    QTabWidget *tabs = d->section(section);
    if (!tabs)
        return;
    const QPointer<QTabWidget> guard(tabs);
    d->sectionWidget->setCurrentIndex(section);
    if (guard) // no slot closed the window
        tabs->setCurrentIndex(index);
}

bool DockContentWidget::isTabEnabled(int section, int index) const
{
    Q_D(const DockContentWidget);
    const QTabBar *bar = d->tabBar(section, index);
    return bar != nullptr && bar->isTabEnabled(index);
}

void DockContentWidget::setTabEnabled(int section, int index, bool enabled)
{
    Q_D(DockContentWidget);
    if (d->tabBar(section, index))
        d->section(section)->setTabEnabled(index, enabled);
}

bool DockContentWidget::isTabVisible(int section, int index) const
{
    Q_D(const DockContentWidget);
    const QTabBar *bar = d->tabBar(section, index);
    return bar != nullptr && bar->isTabVisible(index);
}

void DockContentWidget::setTabVisible(int section, int index, bool visible)
{
    Q_D(DockContentWidget);
    if (d->tabBar(section, index))
        d->section(section)->setTabVisible(index, visible);
}

QString DockContentWidget::tabText(int section, int index)
{
    Q_D(const DockContentWidget);
    const QTabBar *bar = d->tabBar(section, index);
    return bar ? bar->tabText(index) : QString();
}

void DockContentWidget::setTabText(int section, int index, const QString &text)
{
    Q_D(DockContentWidget);
    if (d->tabBar(section, index))
        d->section(section)->setTabText(index, text);
}

QString DockContentWidget::tabToolTip(int section, int index)
{
    Q_D(const DockContentWidget);
    const QTabBar *bar = d->tabBar(section, index);
    return bar ? bar->tabToolTip(index) : QString();
}

void DockContentWidget::setTabToolTip(int section, int index, const QString &toolTip)
{
    Q_D(DockContentWidget);
    if (QTabBar *bar = d->tabBar(section, index))
        bar->setTabToolTip(index, toolTip);
}

QVariant DockContentWidget::tabData(int section, int index)
{
    Q_D(const DockContentWidget);
    const QTabBar *bar = d->tabBar(section, index);
    return bar ? bar->tabData(index) : QVariant();
}

void DockContentWidget::setTabData(int section, int index, const QVariant &value)
{
    Q_D(DockContentWidget);
    if (QTabBar *bar = d->tabBar(section, index))
        bar->setTabData(index, value);
}

void DockContentWidget::setPlaceholderPixmap(const QPixmap &pixmap)
{
    Q_D(DockContentWidget);
    d->placeholder = pixmap;
    d->refreshPlaceholder();
}

void DockContentWidget::setAutoHide(bool on)
{
    Q_D(DockContentWidget);
    setVisible(!on);
    d->autoHide = on;
}

QSize DockContentWidget::sizeHint() const
{
    return QLabel::sizeHint().expandedTo(layout() ? layout()->totalSizeHint() : QSize());
}

QSize DockContentWidget::minimumSizeHint() const
{
    // The picture may be cut, so that a large one does not blow the window up.
    return layout() ? layout()->totalMinimumSize() : QSize();
}

void DockContentWidget::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    Q_D(DockContentWidget);
    d->polishTabBar(d->sectionWidget->tabBar());
    for (const QTabWidget *tabs : std::as_const(d->sections))
        d->polishTabBar(tabs->tabBar());
}

bool DockContentWidget::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(DockContentWidget);
    if (watched == d->sectionWidget) {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            d->refreshPlaceholder();
    } else if (watched == d->sectionWidget->tabBar()) {
        if (event->type() == QEvent::MouseButtonPress)
            return d->pressSection(static_cast<QMouseEvent *>(event));
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const auto *tabs = qobject_cast<QTabWidget *>(watched);
        if (tabs && mouse->button() == Qt::MiddleButton)
            d->requestMiddleClose(tabs, mouse->position().toPoint());
    }
    return QLabel::eventFilter(watched, event);
}

} // namespace VornFrame
