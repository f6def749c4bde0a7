// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "address/AddressTree.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QGuiApplication>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <memory>
#include <optional>

/// A tree over a folder of its own, with a trash of its own beside it. The folder holds the folder
/// "docs" with the file "inner.txt", and the files "alpha.txt", "beta.log" and "gamma.doc". Each
/// file holds its name.
class TreeFixture : public TestCase
{
    Q_OBJECT

public:
    static QStringList sortedNames()
    {
        return {QStringLiteral("docs"), QStringLiteral("alpha.txt"), QStringLiteral("beta.log"),
                QStringLiteral("gamma.doc")};
    }

    /// Shows the window and waits until the rows are there.
    [[nodiscard]] bool showTree()
    {
        tree->setRootPath(root());
        tree->resize(700, 400);
        return Input::show(tree.get())
               && QTest::qWaitFor([this] { return names() == sortedNames(); });
    }

    QString root() const { return m_dir->filePath(QStringLiteral("root")); }
    QString path(const QString &name) const { return root() + QLatin1Char('/') + name; }
    QString outside(const QString &name) const { return m_dir->filePath(name); }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "(none)";
    }

    QFileSystemModel *model() const { return qobject_cast<QFileSystemModel *>(tree->model()); }
    int rowCount() const { return model()->rowCount(tree->rootIndex()); }

    /// The names in the shown folder, from top to bottom.
    QStringList names() const
    {
        QStringList result;
        QModelIndex index = model()->index(0, 0, tree->rootIndex());
        for (; index.isValid(); index = index.siblingAtRow(index.row() + 1))
            result.append(model()->fileName(index));
        return result;
    }

    QModelIndex index(const QString &name) const { return model()->index(path(name)); }
    QPoint center(const QString &name) const { return tree->visualRect(index(name)).center(); }
    QPoint emptyPlace() const { return tree->viewport()->rect().bottomLeft() + QPoint(20, -10); }

    /// Selects the rows with these names, the last one being current.
    void select(const QStringList &names) const
    {
        tree->selectionModel()->clearSelection();
        for (const QString &name : names) {
            tree->selectionModel()->setCurrentIndex(index(name), QItemSelectionModel::Select
                                                                     | QItemSelectionModel::Rows);
        }
    }

    /// The action of the tree with this text.
    QAction *action(const QString &text) const
    {
        const QList<QAction *> actions = tree->actions();
        for (QAction *action : actions) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }

    static QClipboard *clipboard() { return QGuiApplication::clipboard(); }

    static void putFilesOnClipboard(const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        auto *data = new QMimeData;
        data->setUrls(urls);
        clipboard()->setMimeData(data);
    }

    /// The local files on the clipboard, behind the marker.
    static QStringList clipboardFiles()
    {
        const QMimeData *data = clipboard()->mimeData();
        QStringList files{
            QString::fromUtf8(data->data(QStringLiteral("application/x-cut-or-copy")))};
        const QList<QUrl> urls = data->urls();
        for (const QUrl &url : urls)
            files.append(url.toLocalFile());
        return files;
    }

    std::unique_ptr<VornFrame::AddressTree> tree;

protected Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_dir.emplace();
        QVERIFY(m_dir->isValid());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_dir->filePath(QStringLiteral("data"))));
        QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("data")));
        QVERIFY(QDir(root()).mkpath(QStringLiteral("docs")));
        for (const char *name : {"alpha.txt", "beta.log", "gamma.doc", "docs/inner.txt"})
            write(path(QLatin1String(name)), name);
        // What a test does in the wrong place shall hit nothing of others.
        m_workingFolder = QDir::currentPath();
        QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("working")));
        QVERIFY(QDir::setCurrent(outside(QStringLiteral("working"))));
        tree = std::make_unique<VornFrame::AddressTree>();
    }

    void cleanup()
    {
        tree.reset();
        clipboard()->clear();
        QVERIFY(QDir::setCurrent(m_workingFolder));
        m_dir.reset();
        TestCase::cleanup();
    }

private:
    std::optional<QTemporaryDir> m_dir;
    QString m_workingFolder;
};
