// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FindController.h"

#include "FindField.h"
#include "NotepadActions.h"
#include "StyledText.h"
#include "TextEditor.h"

#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldWidth = 220;
constexpr int QuickFieldWidth = 180;
constexpr int ResultHeight = 18;

/// Counting waits until the user pauses, so that typing in a large text stays fluent.
constexpr int CountDelay = 120;

} // namespace

FindController::FindController(TextEditor *editor, NotepadActions *actions)
    : QObject(editor), m_editor(editor), m_actions(actions), m_findField(new FindField(tr("Find"))),
      m_replaceField(new FindField(tr("Replace with"))),
      m_quickField(new FindField(tr("Quick find"))), m_resultLabel(new QLabel)
{
    m_findField->setObjectName(u"findField"_s);
    m_replaceField->setObjectName(u"replaceField"_s);
    m_quickField->setObjectName(u"quickField"_s);
    m_resultLabel->setObjectName(u"findResult"_s);
    m_resultLabel->setTextFormat(Qt::PlainText);
    m_findField->setClearButtonEnabled(true);
    m_quickField->addAction(m_actions->findNext, QLineEdit::TrailingPosition);
    m_findField->setFixedWidth(FieldWidth);
    m_replaceField->setFixedWidth(FieldWidth);
    m_quickField->setFixedWidth(QuickFieldWidth);
    m_resultLabel->setFixedSize(FieldWidth, ResultHeight);
    m_countTimer.setSingleShot(true);
    m_countTimer.setInterval(CountDelay);
    connect(&m_countTimer, &QTimer::timeout, this, &FindController::showCount);
    connectField(m_findField);
    connectField(m_quickField);
    connect(m_replaceField, &FindField::entered, this, &FindController::replaceNext);
    connect(m_replaceField, &FindField::left, m_editor, qOverload<>(&QWidget::setFocus));
    connectActions();
    setPattern(QString());
}

void FindController::connectField(FindField *field)
{
    connect(field, &QLineEdit::textEdited, this, [this](const QString &text) {
        setPattern(text);
        findWhileTyping();
    });
    connect(field, &FindField::entered, this, &FindController::find);
    connect(field, &FindField::left, m_editor, qOverload<>(&QWidget::setFocus));
    connect(field, &QLineEdit::editingFinished, this, [this] { m_anchor = -1; });
}

void FindController::connectActions()
{
    connect(m_actions->findNext, &QAction::triggered, this, [this] { find(false); });
    connect(m_actions->findPrevious, &QAction::triggered, this, [this] { find(true); });
    connect(m_actions->replaceNext, &QAction::triggered, this, &FindController::replaceNext);
    connect(m_actions->replaceAll, &QAction::triggered, this, &FindController::replaceAll);
    connect(m_actions->matchCase, &QAction::toggled, this, &FindController::setOptions);
    connect(m_actions->wholeWords, &QAction::toggled, this, &FindController::setOptions);
    connect(m_editor, &QPlainTextEdit::textChanged, &m_countTimer, qOverload<>(&QTimer::start));
    connect(m_editor, &QPlainTextEdit::selectionChanged, &m_countTimer,
            qOverload<>(&QTimer::start));
}

void FindController::takeSelection()
{
    const QString text = m_editor->selectedText();
    if (!text.isEmpty() && !text.contains(u'\n'))
        setPattern(text);
}

void FindController::setPattern(const QString &pattern)
{
    m_pattern = pattern;
    for (FindField *field : {m_findField, m_quickField}) {
        if (field->text() != pattern)
            field->setText(pattern);
    }
    for (QAction *action : {m_actions->findNext, m_actions->findPrevious, m_actions->replaceNext,
                            m_actions->replaceAll})
        action->setEnabled(!pattern.isEmpty());
    m_editor->setMarkedPattern(m_pattern, m_options);
    m_countTimer.start();
}

void FindController::setOptions()
{
    m_options.matchCase = m_actions->matchCase->isChecked();
    m_options.wholeWords = m_actions->wholeWords->isChecked();
    setPattern(m_pattern);
}

void FindController::find(bool backwards)
{
    if (m_pattern.isEmpty())
        return;
    const QString text = m_editor->text();
    const QTextCursor cursor = m_editor->textCursor();
    m_anchor = -1;
    QString note;
    TextSearch::Match match = backwards ? TextSearch::findPrevious(
                                  text, m_pattern, cursor.selectionStart(), m_options)
                                        : TextSearch::findNext(text, m_pattern,
                                                               cursor.selectionEnd(), m_options);
    if (!match.isValid()) {
        match = backwards ? TextSearch::findPrevious(text, m_pattern, text.size(), m_options)
                          : TextSearch::findNext(text, m_pattern, 0, m_options);
        note = backwards ? tr("went on from the end") : tr("went on from the start");
    }
    selectMatch(match, note);
}

/// Each further letter narrows the search from where it began, instead of jumping ahead.
void FindController::findWhileTyping()
{
    if (m_anchor < 0)
        m_anchor = m_editor->textCursor().selectionStart();
    const QString text = m_editor->text();
    TextSearch::Match match = TextSearch::findNext(text, m_pattern, m_anchor, m_options);
    if (!match.isValid())
        match = TextSearch::findNext(text, m_pattern, 0, m_options);
    m_editor->select(match.isValid() ? match.start : m_anchor, match.length);
    showCount();
}

void FindController::replaceNext()
{
    if (isMatchSelected()) {
        m_editor->replaceSelection(m_replaceField->text());
        QTextCursor cursor = m_editor->textCursor();
        cursor.setPosition(cursor.selectionEnd());
        m_editor->setTextCursor(cursor);
    }
    find(false);
}

void FindController::replaceAll()
{
    if (m_pattern.isEmpty())
        return;
    const TextSearch::Replaced replaced = TextSearch::replaceAll(m_editor->text(), m_pattern,
                                                                 m_replaceField->text(), m_options);
    if (StyledText::hasStyles(*m_editor->document()))
        replaceEach();
    else if (replaced.count > 0)
        m_editor->replaceText(replaced.text);
    m_countTimer.stop();
    showResult(tr("%1 replaced").arg(QLocale().toString(replaced.count)), replaced.count == 0);
    Q_EMIT reported(m_resultLabel->text());
}

/// Place by place, so that all other text keeps its styles.
void FindController::replaceEach()
{
    const QString text = m_editor->text();
    const QString replacement = m_replaceField->text();
    QTextCursor cursor(m_editor->document());
    cursor.beginEditBlock();
    qsizetype shift = 0;
    TextSearch::Match match = TextSearch::findNext(text, m_pattern, 0, m_options);
    while (match.isValid()) {
        cursor.setPosition(int(match.start + shift));
        cursor.setPosition(int(match.end() + shift), QTextCursor::KeepAnchor);
        cursor.insertText(replacement);
        shift += replacement.size() - match.length;
        match = TextSearch::findNext(text, m_pattern, match.end(), m_options);
    }
    cursor.endEditBlock();
}

bool FindController::isMatchSelected() const
{
    const QTextCursor cursor = m_editor->textCursor();
    return cursor.selectionEnd() - cursor.selectionStart() == m_pattern.size()
           && TextSearch::isMatchAt(m_editor->text(), m_pattern, cursor.selectionStart(),
                                    m_options);
}

void FindController::selectMatch(const TextSearch::Match &match, const QString &note)
{
    if (match.isValid())
        m_editor->select(match.start, match.length);
    showCount();
    if (match.isValid() && !note.isEmpty())
        showResult(
            tr("%1, %2", "third of five, went on from the start").arg(m_resultLabel->text(), note),
            false);
    Q_EMIT reported(m_resultLabel->text());
}

void FindController::showCount()
{
    m_countTimer.stop();
    if (m_pattern.isEmpty()) {
        showResult(QString(), false);
        return;
    }
    const int start = m_editor->textCursor().selectionStart();
    const TextSearch::Count count = TextSearch::count(m_editor->text(), m_pattern, start,
                                                      m_options);
    const QLocale locale;
    if (count.total == 0)
        showResult(tr("Not found"), true);
    else if (count.position > 0 && isMatchSelected())
        showResult(
            tr("%1 of %2").arg(locale.toString(count.position), locale.toString(count.total)),
            false);
    else
        showResult(tr("%1 found").arg(locale.toString(count.total)), false);
}

void FindController::showResult(const QString &text, bool isFailure)
{
    m_resultLabel->setText(text);
    m_resultLabel->setStyleSheet(isFailure ? u"color: rgb(176, 32, 32)"_s
                                           : u"color: rgb(97, 97, 97)"_s);
    for (FindField *field : {m_findField, m_quickField}) {
        field->setFailed(isFailure);
        field->setToolTip(text);
    }
}
