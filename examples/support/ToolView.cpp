// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ToolView.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int Row_Margin = 4;

} // namespace

ToolView::ToolView(QWidget *parent) : QWidget(parent), m_row(new QHBoxLayout), m_note(new QLabel)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(m_row);
    m_row->setContentsMargins(Row_Margin, Row_Margin, Row_Margin, Row_Margin);
    m_row->addWidget(m_note, 1);
    m_note->setTextFormat(Qt::PlainText);
    // A long note is cut; it must not hold the side at its width.
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    alignNote();
}

QString ToolView::note() const
{
    return m_note->text();
}

void ToolView::setContent(QWidget *content)
{
    layout()->addWidget(content);
    setFocusProxy(content);
}

QAction *ToolView::addCommand(const QString &text, const QString &name)
{
    auto *action = new QAction(text, this);
    action->setObjectName(name);
    addAction(action);
    auto *button = new QPushButton(text);
    button->setAccessibleName(text);
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, button,
            [action, button] { button->setEnabled(action->isEnabled()); });
    m_row->addWidget(button);
    return action;
}

void ToolView::setNote(const QString &text)
{
    m_note->setText(text);
    m_note->setToolTip(text.isEmpty() ? text : u"<p>%1</p>"_s.arg(text.toHtmlEscaped()));
}

void ToolView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        alignNote();
}

/// A label goes by the direction of its text, but all notes stand below the titles.
void ToolView::alignNote()
{
    const Qt::Alignment side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    m_note->setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
}
