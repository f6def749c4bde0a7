// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TestCase.h"

#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>

#include <QTemporaryDir>

#include <memory>

class DockLayout;
class PanelsWindow;
class QAction;
class QTabBar;

/// The base of the tests of the whole window: each function finds it shown and active, without
/// settings and without tabs, and an empty folder for its files.
class PanelsFixture : public TestCase
{
    Q_OBJECT

public:
    PanelsFixture();
    ~PanelsFixture() override;

protected:
    enum Section { MarkdownSection, TextSection, PictureSection };

    PanelsWindow *window() const { return m_window.get(); }
    VornFrame::DockContainer *container() const;
    VornFrame::DockContentWidget *content() const;
    DockLayout *dockLayout() const;
    QWidget *view(const QString &name) const;
    QAction *action(const QString &name) const;

    /// The bar with the tabs of \a section, which has to hold one.
    QTabBar *tabBar(int section) const;
    QStringList tabs(int section) const;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString createFile(const QString &name, const QByteArray &bytes) const;
    QString createPicture(const QString &name, QSize size) const;

    /// Creates text files of these names and opens them in tabs.
    void openTexts(const QStringList &names) const;

    /// The window is closed, and another one with the settings in \a settingsFile takes its place.
    void restart(const QString &settingsFile);

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PanelsWindow> m_window;
    QString m_clipboardText;
};
