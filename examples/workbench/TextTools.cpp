// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextTools.h"

#include "ActionFactory.h"
#include "DocumentTabs.h"
#include "TextDocument.h"

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/RibbonSubgroup.h>

#include <QAction>
#include <QPlainTextEdit>
#include <QTextCursor>

using namespace Qt::StringLiterals;

TextTools::TextTools(VornFrame::RibbonPage *page, const ActionFactory &actions, DocumentTabs *tabs)
    : QObject(page), m_tabs(tabs)
{
    addSelection(page, actions);
    addView(page, actions);
    connect(tabs, &DocumentTabs::signalCurrentChanged, this, &TextTools::showState);
}

TextDocument *TextTools::document() const
{
    return qobject_cast<TextDocument *>(m_tabs->current());
}

void TextTools::addSelection(VornFrame::RibbonPage *page, const ActionFactory &actions)
{
    VornFrame::RibbonGroup *group = page->addGroup(tr("Selection"));
    QAction *all = actions.create(u"selectAll"_s, tr("Select\nAll"));
    connect(all, &QAction::triggered, this, [this] {
        if (TextDocument *text = document())
            text->editor()->selectAll();
    });
    group->addAction(all);
    VornFrame::RibbonSubgroup *letters = group->addSubgroup();
    QAction *upper = actions.create(u"upperCase"_s, tr("Upper Case"));
    connect(upper, &QAction::triggered, this, [this] { changeCase(true); });
    letters->addAction(upper);
    QAction *lower = actions.create(u"lowerCase"_s, tr("Lower Case"));
    connect(lower, &QAction::triggered, this, [this] { changeCase(false); });
    letters->addAction(lower);
}

void TextTools::addView(VornFrame::RibbonPage *page, const ActionFactory &actions)
{
    m_wordWrap = actions.createSwitch(u"wordWrap"_s, tr("Word\nWrap"));
    connect(m_wordWrap, &QAction::triggered, this, &TextTools::setWordWrap);
    page->addGroup(tr("View"))->addAction(m_wordWrap);
}

void TextTools::changeCase(bool upper) const
{
    const TextDocument *text = document();
    if (!text)
        return;
    QTextCursor cursor = text->editor()->textCursor();
    if (!cursor.hasSelection())
        return;
    const int start = cursor.selectionStart();
    const QString selected = cursor.selectedText();
    cursor.insertText(upper ? selected.toUpper() : selected.toLower());
    // Still selected, for the next command.
    const int end = cursor.position();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    text->editor()->setTextCursor(cursor);
}

void TextTools::setWordWrap(bool on) const
{
    if (const TextDocument *text = document())
        text->editor()->setLineWrapMode(on ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void TextTools::showState()
{
    if (const TextDocument *text = document())
        m_wordWrap->setChecked(text->editor()->lineWrapMode() != QPlainTextEdit::NoWrap);
}
