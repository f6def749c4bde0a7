// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilesSettings.h"
#include "FilesWindow.h"
#include "LightLook.h"
#include "Messages.h"
#include "Screenshot.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int Folder_Maximum = 2;

struct Options
{
    QStringList folders;
    QString screenshot;
    QString settings;
    bool isScreenshot = false;
};

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

int fail(const QString &text)
{
    QTextStream(stderr) << text << Qt::endl;
    return EXIT_FAILURE;
}

Options parse(const QApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Two folders side by side, and what is in a file."));
    parser.addHelpOption();
    parser.addPositionalArgument(
        u"folders"_s,
        tr("The folders to show on the left and on the right. Those of the last time "
           "if there are none, or the home folder."),
        u"[LEFT [RIGHT]]"_s);
    const QCommandLineOption screenshot(
        u"screenshot"_s,
        tr("Write a picture of the window, and end. Settings are neither read nor written."),
        u"FILE.png"_s);
    const QCommandLineOption settings(
        u"settings"_s, tr("The file that keeps the layout and the folders."), u"FILE.ini"_s);
    parser.addOptions({screenshot, settings});
    parser.process(application);
    return {parser.positionalArguments(), parser.value(screenshot), parser.value(settings),
            parser.isSet(screenshot)};
}

/// Nobody is there who could answer a message box.
int takeScreenshot(const Options &options)
{
    if (options.screenshot.isEmpty())
        return fail(tr("The option --screenshot needs the name of a file."));
    FilesWindow window{QString()};
    const QStringList missing = window.openFolders(options.folders);
    if (!missing.isEmpty())
        return fail(FilesWindow::missingText(missing));
    if (!Screenshot::take(&window, options.screenshot))
        return fail(tr("“%1” could not be written.").arg(options.screenshot));
    QTextStream(stdout) << options.screenshot << Qt::endl;
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"files"_s);
    const Options options = parse(application);
    if (options.folders.size() > Folder_Maximum)
        return fail(tr("There are only two panes, for two folders."));
    LightLook::install();
    if (options.isScreenshot)
        return takeScreenshot(options);
    FilesWindow window(options.settings.isEmpty() ? FilesSettings::defaultPath()
                                                  : options.settings);
    const QStringList missing = window.openFolders(options.folders);
    window.show();
    if (!missing.isEmpty())
        Messages::warn(
            &window,
            tr("%1\nThe home folder is shown instead.").arg(FilesWindow::missingText(missing)));
    return QCoreApplication::exec();
}
