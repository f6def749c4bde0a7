// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextTransforms.h"

#include <QObject>
#include <QTimer>

class NotepadActions;
class QAction;
class QLabel;
class TextEditor;

/// What can be done with the selected text, and how long it is.
class SelectionController : public QObject
{
    Q_OBJECT

public:
    SelectionController(TextEditor *editor, NotepadActions *actions);

    /// Lines, words and characters of the selection; for the ribbon, whose container becomes its
    /// owner.
    QLabel *statisticsLabel() const { return m_statisticsLabel; }

Q_SIGNALS:
    /// There is a selection now, or there is none any more.
    void selectedChanged(bool isSelected);

private:
    enum class Scope { Selection, WholeLines };

    void connectTransform(QAction *action, TextTransforms::Transform transform, Scope scope);
    void updateSelected();
    void showStatistics();

    TextEditor *m_editor;
    NotepadActions *m_actions;
    QLabel *m_statisticsLabel;
    QTimer m_selectedTimer;
    QTimer m_statisticsTimer;
    bool m_isSelected = false;
};
