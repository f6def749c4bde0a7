// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class NotepadActions;
class QFontComboBox;
class QSpinBox;
class QWidget;
class TextEditor;

/// How the text looks on the screen: font, zoom, word wrap and what is shown beside it. Nothing of
/// this goes into the file.
class ViewController : public QObject
{
    Q_OBJECT

public:
    ViewController(TextEditor *editor, NotepadActions *actions, QWidget *window);

    /// The widgets for the ribbon, whose containers become their owners.
    QFontComboBox *fontFamily() const { return m_fontFamily; }
    QSpinBox *fontSize() const { return m_fontSize; }
    QSpinBox *zoom() const { return m_zoom; }

private:
    void createWidgets();
    void connectActions();
    void applyFont();
    void setFullScreen(bool on);

    TextEditor *m_editor;
    NotepadActions *m_actions;
    QWidget *m_window;
    QFontComboBox *m_fontFamily;
    QSpinBox *m_fontSize;
    QSpinBox *m_zoom;
};
