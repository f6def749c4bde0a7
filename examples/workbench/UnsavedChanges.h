// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkbenchDocument.h"

#include <QList>
#include <QObject>
#include <QPointer>

class DocumentTabs;

/// The questions before documents are closed. All are asked before the first one is closed, so that
/// Cancel keeps all of them.
class UnsavedChanges : public QObject
{
    Q_OBJECT

public:
    /// Asks in boxes on \a window; \a tabs save.
    UnsavedChanges(DocumentTabs *tabs, QWidget *window);

    /// Asks for each of \a documents that has changes, and saves those that the user wants saved.
    /// False after Cancel, or when the tabs are gone meanwhile.
    bool ask(const QList<WorkbenchDocument *> &documents);

    /// Those of the last question that can be closed: not one that could not be saved, nor one that
    /// is gone meanwhile.
    QList<WorkbenchDocument *> closable() const;

Q_SIGNALS:
    /// The question about \a document comes next.
    void signalAsking(WorkbenchDocument *document);

private:
    using Documents = QList<QPointer<WorkbenchDocument>>;

    bool askFor(WorkbenchDocument *document, Documents *wanted) const;

    const QPointer<DocumentTabs> m_tabs;
    const QPointer<QWidget> m_window;
    Documents m_closable;
};
