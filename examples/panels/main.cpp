// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CommandLine.h"
#include "Documents.h"
#include "LightLook.h"
#include "PanelsSettings.h"
#include "PanelsWindow.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

int takeScreenshot(const CommandLine &line)
{
    PanelsWindow window{QString()};
    const QStringList files = line.arguments();
    for (const QString &file : files) {
        const QString reason = window.documents()->open(file);
        if (!reason.isEmpty())
            return CommandLine::fail(PanelsWindow::failureText(file) + u' ' + reason);
    }
    return line.takeScreenshot(&window);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"panels"_s);
    CommandLine line(tr("Text files and pictures, with views around them."));
    line.addArguments(u"files"_s, u"[FILE...]"_s, tr("The files to open."));
    line.addSettings(tr("The file that keeps the layout."));
    line.process(application);

    LightLook::install();
    if (line.isScreenshot())
        return takeScreenshot(line);
    PanelsWindow window(line.settings(PanelsSettings::defaultPath()));
    window.show();
    window.openFiles(line.arguments());
    return QCoreApplication::exec();
}
