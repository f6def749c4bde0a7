// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CommandLine.h"
#include "DocumentController.h"
#include "NotepadDialog.h"
#include "NotepadRibbon.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

int takeScreenshot(const CommandLine &line, NotepadDialog &dialog, const QString &file)
{
    if (!file.isEmpty()) {
        const TextFile::Status status = dialog.document()->load(file);
        if (!status.ok())
            return CommandLine::fail(tr("“%1” could not be opened. %2").arg(file, status.reason));
    }
    return line.takeScreenshot(&dialog);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"notepad"_s);
    CommandLine line(tr("A small text editor with a ribbon."));
    line.addArguments(u"file"_s, u"[FILE]"_s, tr("The text file to open."));
    line.addOption(u"page"_s, tr("The page of the ribbon to begin with."), u"TITLE"_s);
    line.process(application);
    if (line.arguments().size() > 1)
        return CommandLine::fail(tr("Only one file can be opened at a time."));

    const QString file = line.arguments().value(0);
    const QString page = line.value(u"page"_s);
    NotepadDialog dialog;
    if (!page.isEmpty() && !dialog.ribbon()->showPage(page))
        return CommandLine::fail(tr("There is no page “%1” on the ribbon.").arg(page));
    if (line.isScreenshot())
        return takeScreenshot(line, dialog, file);
    dialog.show();
    if (!file.isEmpty())
        dialog.document()->openPath(file);
    return QCoreApplication::exec();
}
