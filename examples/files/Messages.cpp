// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Messages.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace Messages {

void warn(QWidget *window, const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Warning,
                                QCoreApplication::translate("Messages", "Files"), QString(),
                                QMessageBox::Ok, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->open();
}

} // namespace Messages
