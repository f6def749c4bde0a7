// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class DocumentTabs;

/// Undo and redo of the current document, whatever its kind.
class UndoController : public QObject
{
    Q_OBJECT

public:
    /// \a tabs have to live as long as this, which belongs to them.
    explicit UndoController(DocumentTabs *tabs);

    void undo() const;
    void redo() const;

private:
    DocumentTabs *m_tabs;
};
