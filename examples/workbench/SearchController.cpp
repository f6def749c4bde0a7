// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "SearchController.h"

#include "ActionFactory.h"
#include "DocumentTabs.h"
#include "FilterGallery.h"
#include "TableDocument.h"
#include "TextDocument.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Field_Size(180, 22);

} // namespace

SearchController::SearchController(const ActionFactory &actions, DocumentTabs *tabs,
                                   FilterGallery *gallery, QObject *parent)
    : QObject(parent), m_tabs(tabs), m_gallery(gallery)
{
    createField();
    const QAction *find = actions.create(u"find"_s, tr("Find"), QKeySequence::Find);
    connect(find, &QAction::triggered, m_field, [this] {
        m_field->setFocus(Qt::ShortcutFocusReason);
        m_field->selectAll();
    });
    const QAction *next = actions.create(u"findNext"_s, tr("Find Next"), QKeySequence::FindNext);
    connect(next, &QAction::triggered, this, &SearchController::submit);
}

void SearchController::createField()
{
    m_field = new QLineEdit;
    m_field->setObjectName(u"searchField"_s);
    m_field->setAccessibleName(tr("Search"));
    m_field->setPlaceholderText(tr("Search (Ctrl+F)"));
    m_field->setClearButtonEnabled(true);
    m_field->setFixedSize(Field_Size);
    connect(m_field, &QLineEdit::returnPressed, this, &SearchController::submit);
}

bool SearchController::findNext()
{
    if (m_field->text().isEmpty())
        return false;
    if (auto *text = qobject_cast<TextDocument *>(m_tabs->current()))
        return findInText(text);
    if (auto *table = qobject_cast<TableDocument *>(m_tabs->current()))
        return findInTable(table);
    return m_tabs->current() != nullptr && offerFilters();
}

void SearchController::submit()
{
    const QString wanted = m_field->text();
    if (!wanted.isEmpty() && !findNext())
        Q_EMIT signalMessage(tr("“%1” was not found.").arg(wanted));
}

bool SearchController::findInText(TextDocument *text) const
{
    QPlainTextEdit *editor = text->editor();
    if (editor->find(m_field->text()))
        return true;
    const QTextCursor before = editor->textCursor();
    editor->moveCursor(QTextCursor::Start);
    if (editor->find(m_field->text()))
        return true;
    editor->setTextCursor(before);
    return false;
}

bool SearchController::findInTable(TableDocument *table) const
{
    QTableView *view = table->view();
    const QAbstractItemModel *model = view->model();
    const int columns = model->columnCount();
    const int count = model->rowCount() * columns;
    const QModelIndex current = view->currentIndex();
    const int from = current.isValid() ? current.row() * columns + current.column() : -1;
    for (int step = 1; step <= count; ++step) {
        const int cell = (from + step) % count;
        const QModelIndex index = model->index(cell / columns, cell % columns);
        if (index.data().toString().contains(m_field->text(), Qt::CaseInsensitive)) {
            view->setCurrentIndex(index);
            return true;
        }
    }
    return false;
}

bool SearchController::offerFilters() const
{
    const QList<QAction *> filters = m_gallery->matches(m_field->text());
    if (filters.isEmpty())
        return false;
    auto *menu = new QMenu(m_field);
    menu->setObjectName(u"filterMatches"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(filters);
    menu->setActiveAction(filters.constFirst());
    menu->popup(m_field->mapToGlobal(QPoint(0, m_field->height())));
    return true;
}
