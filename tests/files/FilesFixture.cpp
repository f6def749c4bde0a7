// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilesFixture.h"

#include "support/Input.h"

#include "FilePane.h"
#include "FilesWindow.h"
#include "LightLook.h"

#include <VornFrame/AddressBar.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

QModelIndex rowOf(const QTreeView *tree, const QString &name)
{
    const QModelIndex root = tree->rootIndex();
    for (int row = 0; row < tree->model()->rowCount(root); ++row) {
        const QModelIndex index = tree->model()->index(row, 0, root);
        if (index.data(Qt::EditRole).toString() == name)
            return index;
    }
    return {};
}

} // namespace

FilesFixture::FilesFixture() = default;
FilesFixture::~FilesFixture() = default;

void FilesFixture::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"home"_s));
    m_homeBefore = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->filePath(u"data"_s)));
    LightLook::install();
    restart(QString());
}

void FilesFixture::cleanup()
{
    m_window.reset();
    m_folder.reset();
    qputenv("HOME", m_homeBefore);
    qunsetenv("XDG_DATA_HOME");
    qApp->setStyleSheet(QString());
    TestCase::cleanup();
}

void FilesFixture::restart(const QString &settings, const QStringList &folders)
{
    if (m_window)
        m_window->close();
    m_window.reset();
    m_window = std::make_unique<FilesWindow>(settings);
    m_window->openFolders(folders);
    QVERIFY(Input::show(m_window.get()));
}

FilePane *FilesFixture::pane(const QString &name) const
{
    return m_window->findChild<FilePane *>(name);
}

VornFrame::AddressBar *FilesFixture::barOf(const FilePane *pane)
{
    return pane->findChild<VornFrame::AddressBar *>();
}

QTreeView *FilesFixture::treeOf(const FilePane *pane)
{
    return barOf(pane)->treeView();
}

bool FilesFixture::select(const FilePane *pane, const QString &name)
{
    QTreeView *tree = treeOf(pane);
    if (!QTest::qWaitFor([tree, &name] { return rowOf(tree, name).isValid(); }))
        return false;
    tree->setCurrentIndex(rowOf(tree, name));
    return true;
}

void FilesFixture::selectNone(const FilePane *pane)
{
    treeOf(pane)->selectionModel()->clearSelection();
}

QString FilesFixture::previewName() const
{
    return m_window->findChild<QLabel *>(u"previewName"_s)->text();
}

QString FilesFixture::previewText() const
{
    const auto *text = m_window->findChild<QPlainTextEdit *>(u"previewText"_s);
    const auto *message = m_window->findChild<QLabel *>(u"previewMessage"_s);
    if (text->isVisible())
        return text->toPlainText();
    return message->isVisible() ? message->text() : QString();
}

QString FilesFixture::home() const
{
    return m_folder->filePath(u"home"_s);
}

QString FilesFixture::settingsFile() const
{
    return m_folder->filePath(u"files.ini"_s);
}

QString FilesFixture::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

QString FilesFixture::createFolder(const QString &name) const
{
    if (!QDir(home()).mkpath(name))
        qFatal("a folder for the test could not be created");
    return path(name);
}
