// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ElidedLabel.h"

#include "PlainLine.h"

#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    // A long text must not hold the window at its width.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::setLine(const QString &text)
{
    setText(PlainLine::of(text));
    setToolTip(u"<p>%1</p>"_s.arg(this->text().toHtmlEscaped()));
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    // The side goes by the layout, not by the direction of the text.
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, rect(), int(side | Qt::AlignAbsolute), palette(), isEnabled(),
                          shown, foregroundRole());
}
