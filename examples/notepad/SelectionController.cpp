// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "SelectionController.h"

#include "NotepadActions.h"
#include "TextEditor.h"

#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

/// Counting waits until the selection stays as it is.
constexpr int StatisticsDelay = 80;

} // namespace

SelectionController::SelectionController(TextEditor *editor, NotepadActions *actions)
    : QObject(editor), m_editor(editor), m_actions(actions), m_statisticsLabel(new QLabel)
{
    m_statisticsLabel->setObjectName(u"statistics"_s);
    m_statisticsLabel->setTextFormat(Qt::PlainText);
    m_statisticsTimer.setSingleShot(true);
    m_statisticsTimer.setInterval(StatisticsDelay);
    connect(&m_statisticsTimer, &QTimer::timeout, this, &SelectionController::showStatistics);
    // Replacing selected text takes the selection away for a moment, which nobody needs to see.
    m_selectedTimer.setSingleShot(true);
    connect(&m_selectedTimer, &QTimer::timeout, this, &SelectionController::updateSelected);
    connect(editor, &QPlainTextEdit::selectionChanged, &m_statisticsTimer,
            qOverload<>(&QTimer::start));
    connect(editor, &QPlainTextEdit::selectionChanged, &m_selectedTimer,
            qOverload<>(&QTimer::start));
    connectTransform(actions->upperCase, TextTransforms::toUpperCase, Scope::Selection);
    connectTransform(actions->lowerCase, TextTransforms::toLowerCase, Scope::Selection);
    connectTransform(actions->titleCase, TextTransforms::toTitleCase, Scope::Selection);
    connectTransform(actions->sortLines, TextTransforms::sortLines, Scope::WholeLines);
    connectTransform(actions->reverseLines, TextTransforms::reverseLines, Scope::WholeLines);
    connectTransform(actions->removeDuplicates, TextTransforms::removeDuplicateLines,
                     Scope::WholeLines);
    connectTransform(actions->joinLines, TextTransforms::joinLines, Scope::WholeLines);
    connectTransform(actions->indent, TextTransforms::indentLines, Scope::WholeLines);
    connectTransform(actions->outdent, TextTransforms::outdentLines, Scope::WholeLines);
    connectTransform(actions->trim, TextTransforms::trimLineEnds, Scope::WholeLines);
    showStatistics();
}

void SelectionController::connectTransform(QAction *action, TextTransforms::Transform transform,
                                           Scope scope)
{
    action->setEnabled(false);
    connect(this, &SelectionController::selectedChanged, action, &QAction::setEnabled);
    connect(action, &QAction::triggered, this, [this, transform, scope] {
        if (scope == Scope::WholeLines)
            m_editor->selectWholeLines();
        const QString text = m_editor->selectedText();
        if (const QString changed = transform(text); changed != text)
            m_editor->replaceSelection(changed);
    });
}

void SelectionController::updateSelected()
{
    const bool isSelected = m_editor->textCursor().hasSelection();
    if (isSelected == m_isSelected)
        return;
    m_isSelected = isSelected;
    Q_EMIT selectedChanged(isSelected);
}

void SelectionController::showStatistics()
{
    const TextTransforms::Statistics numbers = TextTransforms::statistics(m_editor->selectedText());
    const QLocale locale;
    m_statisticsLabel->setText(tr("Lines: %1\nWords: %2\nCharacters: %3")
                                   .arg(locale.toString(numbers.lines),
                                        locale.toString(numbers.words),
                                        locale.toString(numbers.characters)));
}
