// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Messages.h"

#include <QCoreApplication>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace Messages {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Messages", text);
}

void prepare(QMessageBox &box, const QString &text)
{
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
}

} // namespace

void warn(QWidget *window, const QString &text, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Notepad"), QString(), QMessageBox::Ok, window);
    // One text: the informative text below it would guess its format.
    prepare(box, text + u"\n\n"_s + reason);
    box.exec();
}

void inform(QWidget *window, const QString &text)
{
    QMessageBox box(QMessageBox::Information, tr("Notepad"), QString(), QMessageBox::Ok, window);
    prepare(box, text);
    box.exec();
}

Answer askToSave(QWidget *window, const QString &name)
{
    const auto buttons = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    QMessageBox box(QMessageBox::Warning, tr("Unsaved Changes"), QString(), buttons, window);
    prepare(box, tr("Save the changes to “%1”?").arg(name));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Answer::Save;
    case QMessageBox::Discard:
        return Answer::Discard;
    default:
        return Answer::Cancel;
    }
}

bool confirm(QWidget *window, const QString &text, const QString &action)
{
    QMessageBox box(QMessageBox::Warning, tr("Notepad"), QString(), QMessageBox::Cancel, window);
    prepare(box, text);
    const QPushButton *button = box.addButton(action, QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == button;
}

} // namespace Messages
