// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/VornFrameAgent.h>

#include "VornFrameAgent_p.h"

#include "core/StyleSheets.h"

#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleHints>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr int RuleHeight = 1;

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness()
           < palette.color(QPalette::WindowText).lightness();
}

QPalette lightPalette()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
    const QPalette palette = fusion ? fusion->standardPalette() : QPalette();
    // From Qt 6.5 on, Fusion's palette follows the system's scheme; then its light grey makes a
    // palette.
    const QColor fusionGrey(239, 239, 239);
    return fusion && !isDark(palette) ? palette : QPalette(fusionGrey);
}
#endif

void setLightColorScheme()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QGuiApplication::styleHints()->setColorScheme(Qt::ColorScheme::Light);
#else
    if (isDark(QApplication::palette()))
        QApplication::setPalette(lightPalette());
#endif
}

QFrame *createRule()
{
    auto *rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFixedHeight(RuleHeight);
    // The misplaced parenthesis is deliberate; the sheet is compared by its text.
    rule->setStyleSheet(u"border:none; background-color: rgb(125, 125, 125;)"_s);
    return rule;
}

} // namespace

/// Whether this is the first call. To be asked before the set-up itself: setting the application's
/// sheet can lead back to it.
bool VornFrameAgentPrivate::beginSetup()
{
    return !std::exchange(setupOnce, true);
}

void VornFrameAgentPrivate::setupDialog(QDialog *dialog, QWidget *content) const
{
    delete dialog->layout();
    auto *layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (ribbonBar)
        layout->addWidget(ribbonBar);
    layout->addWidget(createRule());
    if (content)
        layout->addWidget(content);
    StyleSheets::installGlobalSheet(dialog);
}

void VornFrameAgentPrivate::setupMainWindow(QMainWindow *window, bool withAddressBar,
                                            bool withDockPanels)
{
    const QPointer<VornFrameAgent> agent = q_ptr;
    auto *central = new QWidget;
    window->setCentralWidget(central);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (ribbonBar)
        layout->addWidget(ribbonBar);
    if (withAddressBar) {
        addressBar = new AddressBar;
        layout->addWidget(addressBar);
    }
    dockContainer = new DockContainer;
    layout->addWidget(dockContainer, 1);
    if (withDockPanels) {
        dockContainer->setupMainWindow(window);
    } else {
        for (const auto area : {DockContainer::Left, DockContainer::Bottom, DockContainer::Right})
            dockContainer->panelWidget(area)->panel()->hide();
    }
    if (agent)
        followSections(agent);
    StyleSheets::installGlobalSheet(window);
}

void VornFrameAgentPrivate::followSections(const QPointer<VornFrameAgent> &agent) const
{
    // The connection outlives this object by a moment: until those who hear of the agent's end have
    // been told.
    QObject::connect(dockContainer->contentWidget(),
                     &DockContentWidget::signalCurrentSectionChanged, agent.data(),
                     [this, agent](int section) {
                         if (agent)
                             showPagesOf(section);
                     });
}

/// \a section has become the current one. Pages that come and go are seen by the host, which may
/// delete agent and window meanwhile.
void VornFrameAgentPrivate::showPagesOf(int section) const
{
    const QPointer<RibbonBar> bar = ribbonBar;
    const Pages pages = bindings.value(section);
    if (bar)
        bar->hideTemporaryPages();
    if (bar && pages.isEmpty())
        bar->setCurrentIndex(0);
    for (qsizetype i = 0; bar && i < pages.size(); ++i) {
        if (!pages.at(i))
            continue;
        const int index = bar->indexOf(pages.at(i));
        bar->setPageVisible(index, true);
        if (i == 0 && bar)
            bar->setCurrentIndex(index);
    }
}

VornFrameAgent::VornFrameAgent(QObject *parent) : VornFrameAgent(*new VornFrameAgentPrivate, parent)
{}

VornFrameAgent::VornFrameAgent(VornFrameAgentPrivate &d, QObject *parent)
    : QObject(parent), d_ptr(&d)
{
    d.q_ptr = this;
    setLightColorScheme();
}

VornFrameAgent::~VornFrameAgent() = default;

void VornFrameAgent::setup(QDialog *dialog, QWidget *content)
{
    // Whoever sees widgets come and go in the window may delete the agent meanwhile.
    const std::shared_ptr<VornFrameAgentPrivate> d = d_ptr;
    if (d->beginSetup() && dialog)
        d->setupDialog(dialog, content);
}

void VornFrameAgent::setup(QMainWindow *window, bool addressBar, bool dockPanels)
{
    // Whoever sees widgets come and go in the window may delete the agent meanwhile.
    const std::shared_ptr<VornFrameAgentPrivate> d = d_ptr;
    if (d->beginSetup() && window)
        d->setupMainWindow(window, addressBar, dockPanels);
}

bool VornFrameAgent::bindRibbonPagesAndDockPartition(const QList<RibbonPage *> &pages, int section)
{
    Q_D(VornFrameAgent);
    if (pages.isEmpty() || !d->dockContainer)
        return false;
    d->bindings.insert(section, VornFrameAgentPrivate::Pages(pages.cbegin(), pages.cend()));
    return true;
}

RibbonBar *VornFrameAgent::ribbonBar() const
{
    Q_D(const VornFrameAgent);
    return d->ribbonBar;
}

AddressBar *VornFrameAgent::addressBar() const
{
    Q_D(const VornFrameAgent);
    return d->addressBar;
}

DockContainer *VornFrameAgent::dockContainer() const
{
    Q_D(const VornFrameAgent);
    return d->dockContainer;
}
