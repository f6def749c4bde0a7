// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ViewPage.h"

#include "ActionFactory.h"
#include "DockLayout.h"

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include <QAction>

using namespace Qt::StringLiterals;

ViewPage::ViewPage(VornFrame::RibbonPage *page, const ActionFactory &actions, DockLayout *layout)
    : QObject(page), m_layout(layout)
{
    addSwitches(page, actions);
    addLayout(page, actions);
    showState();
}

void ViewPage::showState()
{
    for (auto it = m_switches.cbegin(); it != m_switches.cend(); ++it)
        it.value()->setChecked(m_layout->isShown(it.key()));
}

void ViewPage::addSwitches(VornFrame::RibbonPage *page, const ActionFactory &actions)
{
    VornFrame::RibbonGroup *group = page->addGroup(tr("Panels"));
    int number = 0;
    const QList<QWidget *> views = m_layout->views();
    for (QWidget *view : views) {
        ++number;
        QAction *action = actions.createSwitch(u"show_"_s + view->objectName(), view->windowTitle(),
                                               {u"Ctrl+%1"_s.arg(number)});
        action->setIcon(view->windowIcon());
        connect(action, &QAction::triggered, this, [this, view](bool checked) {
            m_layout->setShown(view, checked);
            showState();
        });
        group->addAction(action);
        m_switches.insert(view, action);
    }
}

void ViewPage::addLayout(VornFrame::RibbonPage *page, const ActionFactory &actions)
{
    VornFrame::RibbonGroup *group = page->addGroup(tr("Layout"));
    QAction *keep = actions.create(u"keepLayout"_s, tr("Save as\nDefault"));
    connect(keep, &QAction::triggered, this, &ViewPage::keepLayout);
    group->addAction(keep);
    QAction *reset = actions.create(u"resetLayout"_s, tr("Reset\nLayout"));
    connect(reset, &QAction::triggered, this, &ViewPage::resetLayout);
    group->addAction(reset);
}

void ViewPage::keepLayout()
{
    m_default = m_layout->state();
    Q_EMIT signalMessage(tr("This layout is the default now."));
}

void ViewPage::resetLayout()
{
    m_layout->apply(m_default);
    showState();
    Q_EMIT signalMessage(tr("The default layout is back."));
}
