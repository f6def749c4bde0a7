// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressCompletions.h"
#include "AddressStrip.h"

#include <QList>
#include <QString>
#include <QStringList>

class QCompleter;
class QHBoxLayout;
class QStringListModel;

namespace VornFrame {

class AddressEntry;

class AddressStripPrivate
{
public:
    explicit AddressStripPrivate(AddressStrip *strip) : q_ptr(strip) {}

    void init();
    void initCompleter();

    bool isEditing() const;
    void startEditing(const QString &text);
    void endEditing();
    void leaveEditing();
    void loseFocus(Qt::FocusReason reason);
    void commit();
    void showMissing();
    void updateCompletions(const QString &text);
    void complete(const QString &text);
    bool isOutside(const QObject *pressed) const;
    QWidget *openList() const;

    /// The path with "/" as separator, also while it is edited.
    QString shownPath() const;
    void navigate(const QString &newPath);
    void record();
    void goTo(qsizetype newIndex);
    void updateActions();

    void clearLayout();
    void rebuild(qsizetype newIndex);
    void addFolderPicture();
    void addEntry(const QString &name, const QString &entryPath);
    void arrange();
    void fitEntries();
    QList<AddressEntry *> entriesInLayout() const;

    QString path; ///< with backslashes while it is edited
    QStringList history; ///< oldest first; the same path may stand there twice
    qsizetype index = -1; ///< of the shown path in the history; -1 if that is empty
    QCompleter *completer = nullptr;
    QStringListModel *completerModel = nullptr;
    AddressCompletions completions;
    QHBoxLayout *layout = nullptr;
    bool asking = false; ///< a box about the typed path is open
    int completerCalls = 0; ///< how many calls of the completer are at work
    AddressStrip *q_ptr = nullptr;
};

} // namespace VornFrame
