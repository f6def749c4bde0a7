// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentPage.h"

#include <QPointer>
#include <QTreeWidget>

/// The headings of the document that is shown, or what is to be said of a picture. A click on a
/// heading, or Return, moves the document to it.
class OutlineView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit OutlineView(QWidget *parent = nullptr);

    /// \a page is only looked at, and may go at any time; null for none.
    void setPage(DocumentPage *page);

private:
    void addEntries(const QList<OutlineEntry> &entries);
    void goTo(const QTreeWidgetItem *item);

    QPointer<DocumentPage> m_page;
};
