// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "UnsavedChanges.h"

#include "DocumentTabs.h"
#include "Messages.h"

#include <QFileInfo>

UnsavedChanges::UnsavedChanges(DocumentTabs *tabs, QWidget *window) : m_tabs(tabs), m_window(window)
{}

bool UnsavedChanges::ask(const QList<WorkbenchDocument *> &documents)
{
    m_closable = Documents(documents.cbegin(), documents.cend());
    const Documents all = m_closable;
    Documents wanted;
    for (const QPointer<WorkbenchDocument> &document : all) {
        if (document && document->isModified()) {
            Q_EMIT signalAsking(document);
            if (!askFor(document, &wanted))
                return false;
        }
        if (!m_tabs || !m_window)
            return false;
    }
    for (const QPointer<WorkbenchDocument> &document : std::as_const(wanted)) {
        if (m_tabs && document && !m_tabs->save(document))
            m_closable.removeOne(document);
    }
    return m_tabs != nullptr;
}

QList<WorkbenchDocument *> UnsavedChanges::closable() const
{
    QList<WorkbenchDocument *> documents;
    for (const QPointer<WorkbenchDocument> &document : m_closable) {
        if (document)
            documents.append(document);
    }
    return documents;
}

/// False after Cancel.
bool UnsavedChanges::askFor(WorkbenchDocument *document, Documents *wanted) const
{
    const QPointer<WorkbenchDocument> asked(document);
    switch (Messages::askToSave(m_window, QFileInfo(document->path()).fileName())) {
    case Messages::Answer::Save:
        wanted->append(asked);
        return true;
    case Messages::Answer::Discard:
        return true;
    case Messages::Answer::Cancel:
        break;
    }
    return false;
}
