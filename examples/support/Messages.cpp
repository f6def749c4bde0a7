// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Messages.h"

#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace Messages {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Messages", text);
}

/// A box that its window may delete while it is open.
QPointer<QMessageBox> createBox(QWidget *window, QMessageBox::Icon icon, const QString &title,
                                const QString &text, QMessageBox::StandardButtons buttons)
{
    QPointer<QMessageBox> box = new QMessageBox(icon, title, QString(), buttons, window);
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    return box;
}

/// Shows \a box until it is answered, and deletes it. An answer that has no button is 0.
int run(const QPointer<QMessageBox> &box)
{
    const int answer = box->exec();
    delete box;
    return answer;
}

} // namespace

void warn(QWidget *window, const QString &text, const QString &reason)
{
    // One text: the informative text below it would guess its format.
    run(createBox(window, QMessageBox::Warning, tr("Warning"), text + u"\n\n"_s + reason,
                  QMessageBox::Ok));
}

void tell(QWidget *window, const QString &text)
{
    const QPointer<QMessageBox> box = createBox(window, QMessageBox::Warning, tr("Warning"), text,
                                                QMessageBox::Ok);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void inform(QWidget *window, const QString &text)
{
    run(createBox(window, QMessageBox::Information, tr("Information"), text, QMessageBox::Ok));
}

Answer askToSave(QWidget *window, const QString &name)
{
    const QPointer<QMessageBox> box = createBox(window, QMessageBox::Warning, tr("Unsaved Changes"),
                                                tr("Save the changes to “%1”?").arg(name),
                                                QMessageBox::Save | QMessageBox::Discard
                                                    | QMessageBox::Cancel);
    box->setDefaultButton(QMessageBox::Save);
    switch (run(box)) {
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
    const QPointer<QMessageBox> box = createBox(window, QMessageBox::Warning, tr("Warning"), text,
                                                QMessageBox::Cancel);
    const QPushButton *button = box->addButton(action, QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->exec();
    const bool isConfirmed = box != nullptr && box->clickedButton() == button;
    delete box;
    return isConfirmed;
}

} // namespace Messages
