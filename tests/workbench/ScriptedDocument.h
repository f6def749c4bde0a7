// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkbenchDocument.h"

#include <QFileInfo>

/// A document that has changes, and can be saved, as the test says.
class ScriptedDocument final : public WorkbenchDocument
{
    Q_OBJECT

public:
    ScriptedDocument(Kind kind, const QString &path) : WorkbenchDocument(kind, path)
    {
        setFocusPolicy(Qt::StrongFocus);
    }

    void setModified(bool modified)
    {
        m_isModified = modified;
        Q_EMIT signalModifiedChanged(modified);
    }

    /// What save() returns from now on.
    void setFailure(const QString &reason) { m_failure = reason; }

    int saveCount() const { return m_saveCount; }

    bool isModified() const override { return m_isModified; }

    QString save() override
    {
        if (m_failure.isEmpty()) {
            ++m_saveCount;
            setModified(false);
        }
        return m_failure;
    }

    QList<OutlineEntry> outline() const override
    {
        return {{QStringLiteral("Heading of ") + QFileInfo(path()).fileName(), 1, 3}};
    }

    void goToLine(int line) override { m_line = line; }
    int line() const { return m_line; }

    QList<QPair<QString, QString>> properties() const override
    {
        return {{QStringLiteral("Modified"),
                 m_isModified ? QStringLiteral("yes") : QStringLiteral("no")}};
    }

private:
    bool m_isModified = false;
    QString m_failure;
    int m_saveCount = 0;
    int m_line = -1;
};
