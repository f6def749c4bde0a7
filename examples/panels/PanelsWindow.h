// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockState.h"

#include <QMainWindow>

class ColorList;
class DockLayout;
class Documents;
class MessageLog;
class ObjectTree;
class OutlineView;
class PropertyTable;
class ScratchPad;

namespace VornFrame {
class DockContainer;
}

/// The window of the program: files in the centre, views around them.
class PanelsWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The window keeps its layout in the INI file \a settingsFile; an empty name keeps nothing.
    explicit PanelsWindow(const QString &settingsFile, QWidget *parent = nullptr);

    Documents *documents() const { return m_documents; }

    /// Opens all files at \a paths, and says of each in a message box when it cannot be opened.
    void openFiles(const QStringList &paths);

    /// What to say of the file at \a path.
    static QString failureText(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void createViews();
    void connectViews();
    void chooseFiles();
    void loadSettings();
    void saveSettings() const;
    void showFirst();
    void showCurrent();
    void showPlaceholder();

    const QString m_settingsFile;
    VornFrame::DockContainer *m_container = nullptr;
    ObjectTree *m_objects = nullptr;
    PropertyTable *m_properties = nullptr;
    ColorList *m_colors = nullptr;
    OutlineView *m_outline = nullptr;
    MessageLog *m_messages = nullptr;
    ScratchPad *m_scratch = nullptr;
    DockLayout *m_layout = nullptr;
    Documents *m_documents = nullptr;
    DockState m_docks; ///< the layout to start with
    bool m_wasShown = false;
};
