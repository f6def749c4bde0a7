// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CommandLine.h"
#include "FilesSettings.h"
#include "FilesWindow.h"
#include "LightLook.h"
#include "Messages.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int Folder_Maximum = 2;

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

int takeScreenshot(const CommandLine &line)
{
    FilesWindow window{QString()};
    const QStringList missing = window.openFolders(line.arguments());
    if (!missing.isEmpty())
        return CommandLine::fail(FilesWindow::missingText(missing));
    return line.takeScreenshot(&window);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"files"_s);
    CommandLine line(tr("Two folders side by side, and what is in a file."));
    line.addArguments(u"folders"_s, u"[LEFT [RIGHT]]"_s,
                      tr("The folders to show on the left and on the right. Those of the last time "
                         "if there are none, or the home folder."));
    line.addSettings(tr("The file that keeps the layout and the folders."));
    line.process(application);
    if (line.arguments().size() > Folder_Maximum)
        return CommandLine::fail(tr("There are only two panes, for two folders."));

    LightLook::install();
    if (line.isScreenshot())
        return takeScreenshot(line);
    FilesWindow window(line.settings(FilesSettings::defaultPath()));
    const QStringList missing = window.openFolders(line.arguments());
    window.show();
    if (!missing.isEmpty())
        Messages::tell(
            &window,
            tr("%1\nThe home folder is shown instead.").arg(FilesWindow::missingText(missing)));
    return QCoreApplication::exec();
}
