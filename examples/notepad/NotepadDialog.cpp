// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "NotepadDialog.h"

#include "DocumentController.h"
#include "EditorStatusBar.h"
#include "FindController.h"
#include "FindField.h"
#include "NotepadActions.h"
#include "NotepadRibbon.h"
#include "SelectionController.h"
#include "ShortcutsDialog.h"
#include "StyleController.h"
#include "TextEditor.h"
#include "ViewController.h"

#include <VornFrame/VornFrameAgent.h>

#include <QClipboard>
#include <QDateTime>
#include <QFontComboBox>
#include <QGuiApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLocale>
#include <QTextBlock>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize(1000, 640);

} // namespace

NotepadDialog::NotepadDialog(QWidget *parent)
    : QDialog(parent, Qt::Window), m_actions(new NotepadActions(this)), m_editor(new TextEditor),
      m_status(new EditorStatusBar), m_document(new DocumentController(m_editor, m_actions, this)),
      m_find(new FindController(m_editor, m_actions)),
      m_selection(new SelectionController(m_editor, m_actions)),
      m_styles(new StyleController(m_editor, m_actions)),
      m_view(new ViewController(m_editor, m_actions, this))
{
    m_editor->setObjectName(u"editor"_s);
    m_editor->setAccessibleName(tr("Text"));
    createContent();
    connectEditActions();
    connectInsertActions();
    connectFindActions();
    connectStatus();
    setWindowIcon(QIcon(u":/notepad/notepad.svg"_s));
    resize(WindowSize);
    m_editor->setFocus();
}

/// The one call that dresses the window, and what comes before it.
void NotepadDialog::createContent()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_editor);
    layout->addWidget(m_status);

    auto *agent = new VornFrameAgent(this);
    m_ribbon = new NotepadRibbon(agent->ribbonBar(),
                                 {m_actions, m_find, m_selection, m_styles, m_view});
    agent->setup(this, content);
}

void NotepadDialog::connectEditActions()
{
    connect(m_actions->undo, &QAction::triggered, m_editor, &QPlainTextEdit::undo);
    connect(m_actions->redo, &QAction::triggered, m_editor, &QPlainTextEdit::redo);
    connect(m_actions->cut, &QAction::triggered, m_editor, &QPlainTextEdit::cut);
    connect(m_actions->copy, &QAction::triggered, m_editor, &QPlainTextEdit::copy);
    connect(m_actions->paste, &QAction::triggered, m_editor, &QPlainTextEdit::paste);
    connect(m_actions->selectAll, &QAction::triggered, m_editor, &QPlainTextEdit::selectAll);
    for (QAction *action : {m_actions->undo, m_actions->redo, m_actions->cut, m_actions->copy})
        action->setEnabled(false);
    connect(m_editor, &QPlainTextEdit::undoAvailable, m_actions->undo, &QAction::setEnabled);
    connect(m_editor, &QPlainTextEdit::redoAvailable, m_actions->redo, &QAction::setEnabled);
    connect(m_editor, &QPlainTextEdit::copyAvailable, m_actions->cut, &QAction::setEnabled);
    connect(m_editor, &QPlainTextEdit::copyAvailable, m_actions->copy, &QAction::setEnabled);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &NotepadDialog::updatePaste);
    updatePaste();
}

void NotepadDialog::connectInsertActions()
{
    connect(m_actions->insertDate, &QAction::triggered, m_editor, [this] {
        m_editor->insertPlainText(QLocale().toString(QDate::currentDate(), QLocale::LongFormat));
    });
    connect(m_actions->insertTime, &QAction::triggered, m_editor, [this] {
        m_editor->insertPlainText(QLocale().toString(QTime::currentTime(), QLocale::ShortFormat));
    });
    connect(m_actions->insertDateTime, &QAction::triggered, m_editor, [this] {
        const QDateTime now = QDateTime::currentDateTime();
        m_editor->insertPlainText(now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate));
    });
    connect(m_actions->insertFileName, &QAction::triggered, m_editor,
            [this] { m_editor->insertPlainText(m_document->name()); });
}

void NotepadDialog::connectFindActions()
{
    connect(m_actions->find, &QAction::triggered, this, [this] {
        m_find->takeSelection();
        m_ribbon->showFindPage();
        m_find->findField()->activate();
    });
    connect(m_actions->replace, &QAction::triggered, this, [this] {
        m_find->takeSelection();
        m_ribbon->showFindPage();
        m_find->replaceField()->activate();
    });
    connect(m_actions->quickFind, &QAction::triggered, m_find->quickField(), &FindField::activate);
    connect(m_actions->goToLine, &QAction::triggered, this, &NotepadDialog::goToLine);
    connect(m_actions->chooseFont, &QAction::triggered, this, [this] {
        m_ribbon->showHomePage();
        m_view->fontFamily()->setFocus(Qt::ShortcutFocusReason);
    });
    connect(m_actions->help, &QAction::triggered, this, &NotepadDialog::showHelp);
    connect(m_actions->close, &QAction::triggered, this, &NotepadDialog::reject);
}

void NotepadDialog::connectStatus()
{
    connect(m_document, &DocumentController::fileChanged, this, &NotepadDialog::showTitle);
    connect(m_document, &DocumentController::reported, m_status, &EditorStatusBar::showMessage);
    connect(m_find, &FindController::reported, m_status, &EditorStatusBar::showMessage);
    connect(m_styles, &StyleController::reported, m_status, &EditorStatusBar::showMessage);
    connect(m_editor, &QPlainTextEdit::modificationChanged, this, &QWidget::setWindowModified);
    connect(m_editor, &QPlainTextEdit::cursorPositionChanged, this, &NotepadDialog::showPosition);
    connect(m_editor, &QPlainTextEdit::textChanged, this, &NotepadDialog::showPosition);
    showTitle();
    showPosition();
}

void NotepadDialog::reject()
{
    if (m_document->mayLoseText())
        QDialog::reject();
}

void NotepadDialog::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A dialog would close, or press a button. Here these keys lead from the ribbon's fields to
        // the text.
        m_editor->setFocus(Qt::ShortcutFocusReason);
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void NotepadDialog::goToLine()
{
    bool isChosen = false;
    const int current = m_editor->textCursor().blockNumber() + 1;
    const int line = QInputDialog::getInt(this, tr("Go to Line"),
                                          tr("Line (1 to %1):").arg(m_editor->blockCount()),
                                          current, 1, m_editor->blockCount(), 1, &isChosen);
    if (!isChosen)
        return;
    m_editor->select(m_editor->document()->findBlockByNumber(line - 1).position(), 0);
    m_editor->setFocus();
}

void NotepadDialog::showHelp()
{
    ShortcutsDialog(this).exec();
}

void NotepadDialog::updatePaste()
{
    m_actions->paste->setEnabled(m_editor->canPaste());
}

void NotepadDialog::showPosition()
{
    const QTextCursor cursor = m_editor->textCursor();
    m_status->showPosition(cursor.blockNumber() + 1, cursor.positionInBlock() + 1);
    // A document ends with a paragraph separator that is no part of the text.
    m_status->showLength(m_editor->document()->characterCount() - 1);
}

void NotepadDialog::showTitle()
{
    // The star of a changed text stands where the title holds this mark; in a name it stands for
    // itself.
    QString name = m_document->name();
    name.replace(u"[*]"_s, u"[*][*]"_s);
    setWindowTitle(tr("%1[*] – Notepad").arg(name));
    // A document that becomes empty does not say that it is unchanged.
    setWindowModified(m_editor->document()->isModified());
    m_status->showFormat(m_document->file());
}
