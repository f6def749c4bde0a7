// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Messages.h"

#include <QCoreApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace Messages {

void warn(QWidget *window, const QString &text, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, QCoreApplication::translate("Messages", "Panels"),
                    QString(), QMessageBox::Ok, window);
    box.setTextFormat(Qt::PlainText);
    // One text: the informative text below it would guess its format.
    box.setText(text + u"\n\n"_s + reason);
    box.exec();
}

} // namespace Messages
