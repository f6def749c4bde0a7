// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ViewController.h"

#include "NotepadActions.h"
#include "TextEditor.h"

#include <QFontComboBox>
#include <QFontDatabase>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldHeight = 22;
constexpr int FontFamilyWidth = 160;
constexpr int FontSizeWidth = 60;
constexpr int ZoomWidth = 76;

constexpr int FontSize_Minimum = 6;
constexpr int FontSize_Maximum = 72;
constexpr int FontSize_Default = 11;
constexpr int Zoom_Minimum = 25;
constexpr int Zoom_Maximum = 400;
constexpr int Zoom_Default = 100;
constexpr int Zoom_Step = 10;

} // namespace

ViewController::ViewController(TextEditor *editor, NotepadActions *actions, QWidget *window)
    : QObject(window), m_editor(editor), m_actions(actions), m_window(window),
      m_fontFamily(new QFontComboBox), m_fontSize(new QSpinBox), m_zoom(new QSpinBox)
{
    createWidgets();
    connectActions();
    m_actions->wordWrap->setChecked(true);
    m_actions->lineNumbers->setChecked(true);
    m_actions->currentLine->setChecked(true);
    applyFont();
}

void ViewController::createWidgets()
{
    m_fontFamily->setObjectName(u"fontFamily"_s);
    m_fontFamily->setAccessibleName(tr("Font"));
    m_fontFamily->setToolTip(tr("Font (Ctrl+Shift+F)\nThe type that shows the text"));
    m_fontFamily->setFixedSize(FontFamilyWidth, FieldHeight);
    m_fontFamily->setCurrentFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_fontSize->setObjectName(u"fontSize"_s);
    m_fontSize->setAccessibleName(tr("Font size"));
    m_fontSize->setToolTip(tr("Font Size\nIn points"));
    m_fontSize->setFixedSize(FontSizeWidth, FieldHeight);
    m_fontSize->setRange(FontSize_Minimum, FontSize_Maximum);
    m_fontSize->setValue(FontSize_Default);
    m_zoom->setObjectName(u"zoom"_s);
    m_zoom->setAccessibleName(tr("Zoom"));
    m_zoom->setToolTip(tr("Zoom\nIn percent of the font's size"));
    m_zoom->setFixedSize(ZoomWidth, FieldHeight);
    m_zoom->setRange(Zoom_Minimum, Zoom_Maximum);
    m_zoom->setSingleStep(Zoom_Step);
    m_zoom->setSuffix(tr(" %"));
    m_zoom->setValue(Zoom_Default);
    connect(m_fontFamily, &QFontComboBox::currentFontChanged, this, &ViewController::applyFont);
    connect(m_fontSize, &QSpinBox::valueChanged, this, &ViewController::applyFont);
    connect(m_zoom, &QSpinBox::valueChanged, this, &ViewController::applyFont);
}

void ViewController::connectActions()
{
    connect(m_actions->bold, &QAction::toggled, this, &ViewController::applyFont);
    connect(m_actions->fontLarger, &QAction::triggered, m_fontSize, &QSpinBox::stepUp);
    connect(m_actions->fontSmaller, &QAction::triggered, m_fontSize, &QSpinBox::stepDown);
    connect(m_actions->zoomIn, &QAction::triggered, m_zoom, &QSpinBox::stepUp);
    connect(m_actions->zoomOut, &QAction::triggered, m_zoom, &QSpinBox::stepDown);
    connect(m_actions->zoomReset, &QAction::triggered, m_zoom,
            [this] { m_zoom->setValue(Zoom_Default); });
    connect(m_editor, &TextEditor::zoomRequested, m_zoom, &QSpinBox::stepBy);
    connect(m_actions->wordWrap, &QAction::toggled, m_editor, [this](bool on) {
        m_editor->setLineWrapMode(on ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    });
    connect(m_actions->lineNumbers, &QAction::toggled, m_editor,
            &TextEditor::setLineNumbersVisible);
    connect(m_actions->currentLine, &QAction::toggled, m_editor, &TextEditor::setCurrentLineMarked);
    connect(m_actions->whiteSpace, &QAction::toggled, m_editor, &TextEditor::setWhiteSpaceVisible);
    connect(m_actions->fullScreen, &QAction::toggled, this, &ViewController::setFullScreen);
}

void ViewController::applyFont()
{
    QFont font = m_fontFamily->currentFont();
    font.setPointSizeF(m_fontSize->value() * m_zoom->value() / 100.0);
    font.setBold(m_actions->bold->isChecked());
    m_editor->setFont(font);
    m_actions->zoomIn->setEnabled(m_zoom->value() < m_zoom->maximum());
    m_actions->zoomOut->setEnabled(m_zoom->value() > m_zoom->minimum());
    m_actions->zoomReset->setEnabled(m_zoom->value() != Zoom_Default);
    m_actions->fontLarger->setEnabled(m_fontSize->value() < m_fontSize->maximum());
    m_actions->fontSmaller->setEnabled(m_fontSize->value() > m_fontSize->minimum());
}

void ViewController::setFullScreen(bool on)
{
    // The rest of the state, such as maximized, comes back when the window leaves the full screen.
    m_window->setWindowState(m_window->windowState().setFlag(Qt::WindowFullScreen, on));
}
