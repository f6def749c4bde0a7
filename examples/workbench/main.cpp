// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CommandLine.h"
#include "DocumentLoader.h"
#include "ReportChannel.h"
#include "StateReport.h"
#include "WorkbenchWindow.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

QString missingText(const QString &path)
{
    return tr("There is no file and no folder “%1”.").arg(path);
}

int takeScreenshot(const CommandLine &line)
{
    WorkbenchWindow window(QString(), &DocumentLoader::load);
    const QStringList paths = line.arguments();
    for (const QString &path : paths) {
        if (!window.openPath(path))
            return CommandLine::fail(missingText(path));
    }
    return line.takeScreenshot(&window);
}

/// Answers what standard input asks about \a window.
void startReport(WorkbenchWindow *window)
{
    auto *channel = new ReportChannel(window);
    const StateReport report(window, window->agent(), window->tabs(), window->gallery());
    QObject::connect(channel, &ReportChannel::signalCommand, window,
                     [report](const QString &command) {
                         ReportChannel::answer(command, report.answer(command));
                     });
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"workbench"_s);
    CommandLine line(tr("A folder, with its texts, pictures and tables in tabs."));
    line.addArguments(u"paths"_s, u"[FOLDER|FILE...]"_s,
                      tr("The folder to show, and files to open. The folder of the last time if "
                         "there are none, or the home folder."));
    line.addSettings(tr("The file that keeps layout, folder, tabs and favourites."));
    line.addSwitch(u"report"_s, tr("Answer questions from standard input about the window."));
    line.process(application);
    if (line.isScreenshot())
        return takeScreenshot(line);
    WorkbenchWindow window(line.settings(WorkbenchSettings::defaultPath()), &DocumentLoader::load);
    window.show();
    if (line.isSet(u"report"_s))
        startReport(&window);
    window.openLastFiles();
    const QStringList paths = line.arguments();
    for (const QString &path : paths) {
        if (!window.openPath(path))
            window.fail(missingText(path), tr("The last folder is shown instead."));
    }
    return QCoreApplication::exec();
}
