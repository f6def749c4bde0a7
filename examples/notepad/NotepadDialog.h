// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class DocumentController;
class EditorStatusBar;
class FindController;
class NotepadActions;
class NotepadRibbon;
class SelectionController;
class StyleController;
class TextEditor;
class ViewController;

/// The window of the program: a ribbon, the text, and a status line. It closes only when the text
/// may go.
class NotepadDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NotepadDialog(QWidget *parent = nullptr);

    DocumentController *document() const { return m_document; }
    NotepadRibbon *ribbon() const { return m_ribbon; }

    /// Asks about unsaved changes first. Closing the window comes here too.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void createContent();
    void connectEditActions();
    void connectInsertActions();
    void connectFindActions();
    void connectStatus();
    void goToLine();
    void showHelp();
    void updatePaste();
    void showPosition();
    void showTitle();

    NotepadActions *m_actions;
    TextEditor *m_editor;
    EditorStatusBar *m_status;
    DocumentController *m_document;
    FindController *m_find;
    SelectionController *m_selection;
    StyleController *m_styles;
    ViewController *m_view;
    NotepadRibbon *m_ribbon = nullptr;
};
