// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionFactory;
class DocumentTabs;
class FilterGallery;
class QLineEdit;
class TableDocument;
class TextDocument;

/// The search field in the corner of the ribbon. Return looks in the current document for what was
/// typed, from the cursor on and round again; for a picture, it offers the filters of that name.
class SearchController : public QObject
{
    Q_OBJECT

public:
    /// All have to live as long as this.
    SearchController(const ActionFactory &actions, DocumentTabs *tabs, FilterGallery *gallery,
                     QObject *parent = nullptr);

    /// The field, which is to be placed in the ribbon.
    QLineEdit *field() const { return m_field; }

    /// Looks for the next place. False when there is none.
    bool findNext();

Q_SIGNALS:
    /// Something for the log.
    void signalMessage(const QString &text);

private:
    void createField();
    void submit();
    bool findInText(TextDocument *text) const;
    bool findInTable(TableDocument *table) const;
    bool offerFilters() const;

    DocumentTabs *m_tabs;
    FilterGallery *m_gallery;
    QLineEdit *m_field = nullptr;
};
