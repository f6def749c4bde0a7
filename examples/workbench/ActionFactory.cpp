// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ActionFactory.h"

#include <QAction>
#include <QFile>
#include <QIcon>
#include <QWidget>

using namespace Qt::StringLiterals;

QAction *ActionFactory::create(const QString &name, const QString &text,
                               const QKeySequence &keys) const
{
    auto *action = new QAction(text, m_window);
    action->setObjectName(name);
    const QString icon = u":/workbench/%1.svg"_s.arg(name);
    if (QFile::exists(icon))
        action->setIcon(QIcon(icon));
    QString toolTip = action->iconText().replace(u'\n', u' ');
    if (!keys.isEmpty()) {
        action->setShortcut(keys);
        toolTip += u" (%1)"_s.arg(keys.toString(QKeySequence::NativeText));
    }
    action->setToolTip(toolTip);
    m_window->addAction(action);
    return action;
}

QAction *ActionFactory::createSwitch(const QString &name, const QString &text,
                                     const QKeySequence &keys) const
{
    QAction *action = create(name, text, keys);
    action->setCheckable(true);
    return action;
}
