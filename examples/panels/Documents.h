// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentPage.h"

#include <VornFrame/DockContentWidget.h>

#include <QHash>
#include <QObject>

/// The open files in the tabs of a work surface: opening and closing them, and going from one to
/// another.
class Documents : public QObject
{
    Q_OBJECT

public:
    /// Adds its sections to \a content, which has to live as long as this.
    explicit Documents(VornFrame::DockContentWidget *content, QObject *parent = nullptr);

    /// Opens the file at \a path, or goes to its tab if it is open. Returns a sentence that says
    /// why that was not possible, empty when all went well.
    QString open(const QString &path);

    /// The page that can be seen; null if none can.
    DocumentPage *currentPage() const;

    /// Shows \a line, base 0, of the page that can be seen.
    void goToLine(int line) const;

    void closeCurrent();

    /// Goes on by \a step tabs of the section, round and round.
    void stepTab(int step);
    /// Goes on by \a step of the sections that are shown, round and round.
    void stepSection(int step);

    int sectionCount() const;
    QString sectionText(int section) const;
    /// Whether \a section has a tab that can be shown.
    bool hasTabs(int section) const;
    bool isSectionShown(int section) const;
    /// Takes \a section off the row of sections, or puts it there again and shows it. One without
    /// tabs stays off.
    void setSectionShown(int section, bool shown);

Q_SIGNALS:
    /// Another page can be seen, or none.
    void currentChanged();

private:
    void closeTabs(VornFrame::CloseMode mode, int section, int index);
    DocumentPage *pageOf(const QString &path) const;
    QList<int> shownSections() const;

    VornFrame::DockContentWidget *m_content;
    QHash<int, int> m_sectionOfKind;
};
