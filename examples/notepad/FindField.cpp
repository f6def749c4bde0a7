// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FindField.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldHeight = 22;

} // namespace

FindField::FindField(const QString &name, QWidget *parent) : QLineEdit(parent)
{
    setAccessibleName(name);
    setPlaceholderText(name);
    setFixedHeight(FieldHeight);
}

void FindField::activate()
{
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void FindField::setFailed(bool failed)
{
    setStyleSheet(failed ? u"color: rgb(176, 32, 32)"_s : QString());
}

void FindField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT entered(event->modifiers().testFlag(Qt::ShiftModifier));
        return;
    case Qt::Key_Escape:
        Q_EMIT left();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}
