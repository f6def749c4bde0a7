// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextSearch.h"

#include <QObject>
#include <QTimer>

class FindField;
class NotepadActions;
class QLabel;
class TextEditor;

/// Finds and replaces in the editor, from two fields on the find page and one in the ribbon's
/// corner. The two find fields always hold the same text.
class FindController : public QObject
{
    Q_OBJECT

public:
    FindController(TextEditor *editor, NotepadActions *actions);

    /// The widgets for the ribbon, whose containers become their owners.
    FindField *findField() const { return m_findField; }
    FindField *replaceField() const { return m_replaceField; }
    FindField *quickField() const { return m_quickField; }

    /// Tells how many places there are, and which of them is selected.
    QLabel *resultLabel() const { return m_resultLabel; }

    /// Takes the selected text, if it is part of one line, as what to look for.
    void takeSelection();

Q_SIGNALS:
    /// What came of the last search or replacement.
    void reported(const QString &text);

private:
    void connectField(FindField *field);
    void connectActions();
    void setPattern(const QString &pattern);
    void setOptions();
    void find(bool backwards);
    void findWhileTyping();
    void replaceNext();
    void replaceAll();
    void replaceEach();
    void searchAgain();
    bool isMatchSelected() const;
    void selectMatch(const TextSearch::Match &match, const QString &note);
    void showCount();
    void showResult(const QString &text, bool isFailure);

    TextEditor *m_editor;
    NotepadActions *m_actions;
    FindField *m_findField;
    FindField *m_replaceField;
    FindField *m_quickField;
    QLabel *m_resultLabel;
    QTimer m_countTimer;
    QString m_pattern;
    TextSearch::Options m_options;
    /// Where the search began that goes on with each letter typed; -1 between searches.
    int m_anchor = -1;
};
