// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Documents.h"
#include "LightLook.h"
#include "PanelsSettings.h"
#include "PanelsWindow.h"
#include "Screenshot.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct Options
{
    QStringList files;
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
    parser.setApplicationDescription(tr("Text files and pictures, with views around them."));
    parser.addHelpOption();
    parser.addPositionalArgument(u"files"_s, tr("The files to open."), u"[FILE...]"_s);
    const QCommandLineOption screenshot(
        u"screenshot"_s,
        tr("Write a picture of the window, and end. Settings are neither read nor written."),
        u"FILE.png"_s);
    const QCommandLineOption settings(u"settings"_s, tr("The file that keeps the layout."),
                                      u"FILE.ini"_s);
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
    PanelsWindow window{QString()};
    for (const QString &file : options.files) {
        const QString reason = window.documents()->open(file);
        if (!reason.isEmpty())
            return fail(PanelsWindow::failureText(file) + u' ' + reason);
    }
    if (!Screenshot::take(&window, options.screenshot))
        return fail(tr("“%1” could not be written.").arg(options.screenshot));
    QTextStream(stdout) << options.screenshot << Qt::endl;
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"panels"_s);
    const Options options = parse(application);
    LightLook::install();
    if (options.isScreenshot)
        return takeScreenshot(options);
    PanelsWindow window(options.settings.isEmpty() ? PanelsSettings::defaultPath()
                                                   : options.settings);
    window.show();
    window.openFiles(options.files);
    return QCoreApplication::exec();
}
