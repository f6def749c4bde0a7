// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EditorStatusBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr int BarHeight = 26;
constexpr QMargins BarMargins(10, 0, 10, 0);
constexpr int LabelSpacing = 12;
constexpr QSize SeparatorSize(1, 14);

QString lineEndText(TextFile::LineEnd lineEnd)
{
    switch (lineEnd) {
    case TextFile::LineEnd::Lf:
        return EditorStatusBar::tr("Unix (LF)");
    case TextFile::LineEnd::CrLf:
        return EditorStatusBar::tr("Windows (CRLF)");
    case TextFile::LineEnd::Cr:
        return EditorStatusBar::tr("Old Mac (CR)");
    case TextFile::LineEnd::Mixed:
        break;
    }
    return EditorStatusBar::tr("Mixed line ends");
}

} // namespace

EditorStatusBar::EditorStatusBar(QWidget *parent) : QFrame(parent), m_message(new QLabel(this))
{
    setObjectName(u"statusBar"_s);
    setFixedHeight(BarHeight);
    setStyleSheet(u"#statusBar { background-color: rgb(230, 230, 230); border: none;"
                  " border-top: 1px solid rgb(191, 191, 191); }"
                  "QLabel { color: rgb(66, 66, 66); }"
                  "#separator { background-color: rgb(191, 191, 191); }"_s);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(BarMargins);
    layout->setSpacing(LabelSpacing);
    m_message->setObjectName(u"message"_s);
    m_message->setTextFormat(Qt::PlainText);
    // A long message is cut, but does not make the window wider.
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_message, 1);
    m_position = addLabel(u"position"_s, tr("Line and column of the cursor"));
    m_length = addLabel(u"length"_s, tr("Length of the text"));
    m_encoding = addLabel(u"encoding"_s, tr("Encoding of the file"));
    m_lineEnds = addLabel(u"lineEnds"_s, tr("Line ends of the file"));
}

QLabel *EditorStatusBar::addLabel(const QString &name, const QString &toolTip)
{
    auto *separator = new QWidget;
    separator->setObjectName(u"separator"_s);
    separator->setAttribute(Qt::WA_StyledBackground);
    separator->setFixedSize(SeparatorSize);
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setToolTip(toolTip);
    layout()->addWidget(separator);
    layout()->addWidget(label);
    return label;
}

void EditorStatusBar::showMessage(const QString &text)
{
    m_message->setText(text);
}

void EditorStatusBar::showPosition(int line, int column)
{
    const QLocale locale;
    m_position->setText(
        tr("Line %1, column %2").arg(locale.toString(line), locale.toString(column)));
}

void EditorStatusBar::showLength(qsizetype characters)
{
    m_length->setText(tr("Length: %1").arg(QLocale().toString(characters)));
}

void EditorStatusBar::showFormat(const TextFile &file)
{
    m_encoding->setText(file.hasByteOrderMark() ? tr("UTF-8 with BOM") : tr("UTF-8"));
    m_lineEnds->setText(lineEndText(file.lineEnd()));
}
