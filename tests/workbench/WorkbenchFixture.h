// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TestCase.h"

#include "ScriptedDocument.h"

#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>

#include <QTemporaryDir>

#include <memory>

class QAction;
class QTabBar;
class WorkbenchWindow;

/// The base of the tests of the whole window: each function finds it shown and active, without
/// settings and tabs, in an empty folder.
///
/// Its documents are scripted ones: "t1" is a text, "p1" a picture, "c1" a table, and what begins
/// with "x" cannot be opened.
class WorkbenchFixture : public TestCase
{
    Q_OBJECT

public:
    WorkbenchFixture();
    ~WorkbenchFixture() override;

    static WorkbenchDocument *load(const QString &path, QString *reason);

protected:
    WorkbenchWindow *window() const { return m_window.get(); }
    VornFrame::DockContentWidget *content() const;
    QAction *action(const QString &name) const;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString createFile(const QString &name, const QByteArray &bytes = "text\n") const;

    /// Creates files of these names and opens them in tabs.
    void open(const QStringList &names) const;
    ScriptedDocument *document(const QString &name) const;
    /// The texts of the tabs of a section.
    QStringList tabs(int section) const;
    /// The bar with the tabs of \a section, which has to hold one.
    QTabBar *tabBar(int section) const;
    /// The name of the document that can be seen.
    QString current() const;

    /// The window is closed, and another one with the settings in \a settingsFile takes its place.
    void restart(const QString &settingsFile);

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WorkbenchWindow> m_window;
    QByteArray m_home;
    QString m_clipboardText;
};
