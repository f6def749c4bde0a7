// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/VornFrameAgent.h>

#include "VornFrameAgent_p.h"

#include "core/StyleSheets.h"

#include <QApplication>
#include <QDialog>
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
    Q_D(VornFrameAgent);
    // Before the set-up itself: setting the application's sheet can lead back here.
    if (std::exchange(d->setupOnce, true))
        return;
    if (dialog)
        d->setupDialog(dialog, content);
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
