// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileStatus.h"
#include "WorkbenchDocument.h"

/// A document that is saved with care: what others wrote to its file meanwhile is not overwritten
/// by accident.
class FileDocument : public WorkbenchDocument
{
    Q_OBJECT

public:
    using WorkbenchDocument::WorkbenchDocument;

    /// Does nothing for a document that is not modified and whose file is there.
    QString save() final;

    /// Saves in spite of the reason that save() gave, or this. Returns why even that was not
    /// possible, which may be another thing to decide.
    QString saveAnyway();

    /// Whether saveAnyway() can overrule the reason that the last of them gave; a person should be
    /// asked first.
    bool canSaveAnyway() const { return m_doubt != Doubt::None; }

    /// Writes the document as it is to another file; it stays modified. Returns why it could not.
    QString saveCopy(const QString &path);

    /// Whether the file holds other bytes than when it was last read or saved.
    virtual bool isChangedOnDisk() const = 0;

protected:
    enum class Loss { Refused, Accepted };

    /// Takes over what is being typed somewhere in the document.
    virtual void finishInput() {}

    /// Writes the document to path(); from then on it is not modified. With Loss::Accepted it may
    /// change how the file is written where that is needed to keep all of the content.
    virtual FileStatus write(Loss loss) = 0;

    virtual FileStatus writeCopy(const QString &path) = 0;

private:
    /// What speaks against saving, and can be overruled.
    enum class Doubt { None, File, Loss };

    QString writeWith(Loss loss);

    Doubt m_doubt = Doubt::None;
};
