// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleSheets.h"

#include "ResourcePaths.h"

#include <QApplication>
#include <QFile>
#include <QWidget>

namespace VornFrame::StyleSheets {

namespace {

QString read(QLatin1StringView path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

} // namespace

void load(QWidget *widget, QLatin1StringView path)
{
    widget->setStyleSheet(read(path));
}

void installGlobalSheet(const QWidget *window)
{
    const QString sheet = window->styleSheet() + read(ResourcePaths::GlobalSheet);
    // A second window brings the same sheet again; setting it would polish every widget of the
    // application anew.
    if (qApp->styleSheet() != sheet)
        qApp->setStyleSheet(sheet);
}

} // namespace VornFrame::StyleSheets
