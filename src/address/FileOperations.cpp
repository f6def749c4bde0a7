// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileOperations.h"

#include "FileCheck.h"
#include "FileCopier.h"
#include "FilePaste.h"
#include "FileRemoval.h"
#include "FileTask.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QUrl>
#include <QWidget>

#include <system_error>
#include <vector>

namespace VornFrame {

using namespace Qt::StringLiterals;

namespace {

using NativeFiles::Path;
using Answer = FilePaste::Answer;

constexpr auto MarkerType = "application/x-cut-or-copy"_L1;

/// One for the whole application: two operations on the same files would spoil each other's work.
bool operationIsRunning = false;

Path nativePath(const QString &path)
{
    // Qt would take away a name before "..", also that of a link, which leads elsewhere.
    const QStringList parts = path.split(u'/');
    if (parts.contains(".."_L1) && parts.constLast() != ".."_L1) {
        std::error_code error;
        return NativeFiles::resolved(std::filesystem::absolute(NativeFiles::fromText(path), error));
    }
    return NativeFiles::fromText(QFileInfo(path).absoluteFilePath());
}

QStringList localFiles(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

/// The source that a path means; its last part must be a name to give to the copy.
Path sourcePath(const QString &path)
{
    Path source = nativePath(path);
    const QString name = path.section(u'/', -1, -1, QString::SectionSkipEmpty);
    if (path.isEmpty() || name == "."_L1 || name == ".."_L1)
        return NativeFiles::fromText(QFileInfo(path).canonicalFilePath());
    return source;
}

std::vector<Path> sourcePaths(const QStringList &paths)
{
    std::vector<Path> sources;
    for (const QString &path : paths)
        sources.push_back(sourcePath(path));
    return sources;
}

QString folderOf(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() ? info.absolutePath() : path;
}

bool isCutData(const QMimeData *data)
{
    return data != nullptr && data->data(MarkerType) == "cut"_ba;
}

/// Runs \a work with a progress dialog over the widget \a parent. Returns false without doing
/// anything when another operation is at work, or none can be.
bool perform(QObject *parent, const std::function<void(FileTask &)> &work)
{
    if (operationIsRunning)
        return false;
    const QScopedValueRollback running(operationIsRunning, true);
    FileTask task(qobject_cast<QWidget *>(parent));
    return task.run([&work, &task] { work(task); });
}

// --- Boxes ----------------------------------------------------------------------------------

Answer askAboutConflict(const Path &target, bool isFile)
{
    QMessageBox box;
    // A name of a file is no markup.
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(FileOperations::tr("information"));
    box.setText(FileOperations::tr("This folder already contains a file named %1. Do you want to "
                                   "replace the existing file or save the new file as a copy?")
                    .arg(NativeFiles::toText(target.filename())));
    const QPushButton *replace = box.addButton(FileOperations::tr("Replace Current"),
                                               QMessageBox::ActionRole);
    const QPushButton *saveCopy = nullptr;
    if (isFile) {
        saveCopy = box.addButton(FileOperations::tr("Save a Copy"), QMessageBox::ActionRole);
        box.addButton(FileOperations::tr("Skip"), QMessageBox::ActionRole);
    }
    QPushButton *cancel = box.addButton(FileOperations::tr("Cancel"), QMessageBox::ActionRole);
    box.setEscapeButton(cancel);
    box.exec();
    // Not what exec() returns, which is 0 for the first button and for a closed box alike.
    if (box.clickedButton() == replace)
        return Answer::Replace;
    return saveCopy && box.clickedButton() == saveCopy ? Answer::SaveCopy : Answer::Skip;
}

QString copyErrorText(int code)
{
    switch (code) {
    case FileCheck::SourceMissing:
        return FileOperations::tr("Source file does not exist");
    case FileCheck::TargetInsideSource:
        return FileOperations::tr("Cannot copy or move the file from %1 to %2. The Target folder "
                                  "is a subfolder of the source folder.");
    case FileCheck::FileAndFolder:
        return FileOperations::tr("Cannot copy or move the file from %1 to %2. A file with the "
                                  "same name already exist.");
    case FileCheck::PermissionDenied:
        return FileOperations::tr(
            "Cannot copy or move the file from %1 to %2. File permission denied.");
    default:
        return FileOperations::tr("unknown error!");
    }
}

void showError(const QString &source, const QString &target, int code)
{
    QMessageBox box;
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(FileOperations::tr("Copy Error"));
    QString text = copyErrorText(code);
    if (text.contains(u"%1"_s))
        text = text.arg(source, target);
    box.setText(text);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

FileCopier::Report reportIn(FileTask &task)
{
    return [&task](const Path &source, const Path &target, int code) {
        task.ask(
            [&] { showError(NativeFiles::toText(source), NativeFiles::toText(target), code); });
    };
}

FilePaste::Dialogs dialogsIn(FileTask &task)
{
    return {[&task](const Path &target, bool isFile) {
                Answer answer = Answer::Skip;
                task.ask([&] { answer = askAboutConflict(target, isFile); });
                return answer;
            },
            reportIn(task)};
}

void putOnClipboard(const QStringList &paths, const QByteArray &marker)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    auto *data = new QMimeData; // the clipboard takes it over
    data->setUrls(urls);
    data->setData(MarkerType, marker);
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace

FileSelection::~FileSelection() = default;

FileOperations::FileOperations(const FileSelection &selection, QObject *parent)
    : QObject(parent), m_selection(selection)
{}

bool FileOperations::isRunning()
{
    return operationIsRunning;
}

void FileOperations::cutSelection()
{
    putOnClipboard(m_selection.selectedPaths(), "cut"_ba);
}

void FileOperations::copySelection()
{
    putOnClipboard(m_selection.selectedPaths(), "copy"_ba);
}

void FileOperations::paste(const QString &target)
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!data || !data->hasUrls())
        return;
    const QStringList paths = localFiles(*data);
    const bool isCut = isCutData(data);
    const QString folder = folderOf(target.isEmpty() ? m_selection.currentPath() : target);
    if (!QFileInfo(folder).isDir())
        return;

    const bool wasRun = perform(parent(), [&](FileTask &task) {
        FilePaste(isCut, dialogsIn(task), task.progress())
            .run(sourcePaths(paths), nativePath(folder));
    });
    // Something else may have been copied while a question was open.
    const QMimeData *left = QGuiApplication::clipboard()->mimeData();
    if (wasRun && isCutData(left) && localFiles(*left) == paths)
        QGuiApplication::clipboard()->clear();
}

void FileOperations::copyPath(const QString &source, const QString &target, bool overwrite)
{
    perform(parent(), [&](FileTask &task) {
        FileCopier copier(task.progress(), reportIn(task));
        copier.copy(sourcePath(source), nativePath(target), overwrite);
    });
}

bool FileOperations::removePath(const QString &path)
{
    bool isGone = false;
    if (!path.isEmpty()) {
        perform(parent(), [&](FileTask &task) {
            isGone = FileRemoval::remove(sourcePath(path), task.progress());
        });
    }
    return isGone;
}

void FileOperations::removeSelection()
{
    const QStringList paths = m_selection.selectedPaths();
    perform(parent(), [&](FileTask &task) {
        for (const QString &path : paths) {
            if (!task.progress().isCancelled())
                FileRemoval::remove(sourcePath(path), task.progress());
        }
    });
}

QString FileOperations::newFolder()
{
    const QString current = m_selection.currentPath();
    // Nothing is no folder; Qt would take it for the working directory.
    if (operationIsRunning || current.isEmpty())
        return {};
    const QDir base(folderOf(current));
    const QString name = tr("New Folder");
    QString candidate = name;
    for (int counter = 2; NativeFiles::factsOf(nativePath(base.filePath(candidate))).exists();
         ++counter)
        candidate = name + tr(" (%1)").arg(counter);
    const QString path = base.filePath(candidate);
    return QDir().mkpath(path) ? path : QString();
}

void FileOperations::showCopyError(const QString &source, const QString &target, int code)
{
    showError(source, target, code);
}

} // namespace VornFrame
