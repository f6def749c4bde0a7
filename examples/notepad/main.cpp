// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentController.h"
#include "NotepadDialog.h"
#include "Screenshot.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

int fail(const QString &text)
{
    QTextStream(stderr) << text << Qt::endl;
    return EXIT_FAILURE;
}

/// Nobody is there who could answer a message box.
int takeScreenshot(NotepadDialog &dialog, const QString &file, const QString &picture)
{
    if (!file.isEmpty()) {
        const TextFile::Status status = dialog.document()->load(file);
        if (!status.ok())
            return fail(QCoreApplication::translate("main", "“%1” could not be opened. %2")
                            .arg(file, status.reason));
    }
    if (!Screenshot::take(&dialog, picture))
        return fail(QCoreApplication::translate("main", "“%1” could not be written.").arg(picture));
    QTextStream(stdout) << picture << Qt::endl;
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"notepad"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "A small text editor with a ribbon."));
    parser.addHelpOption();
    parser.addPositionalArgument(
        u"file"_s, QCoreApplication::translate("main", "The text file to open."), u"[FILE]"_s);
    const QCommandLineOption screenshot(
        u"screenshot"_s,
        QCoreApplication::translate("main", "Write a picture of the window, and end."),
        u"FILE.png"_s);
    parser.addOption(screenshot);
    parser.process(application);
    const QString file = parser.positionalArguments().value(0);
    if (parser.positionalArguments().size() > 1)
        return fail(QCoreApplication::translate("main", "Only one file can be opened at a time."));

    NotepadDialog dialog;
    if (parser.isSet(screenshot))
        return takeScreenshot(dialog, file, parser.value(screenshot));
    dialog.show();
    if (!file.isEmpty())
        dialog.document()->openPath(file);
    return QCoreApplication::exec();
}
