// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileDocument.h"
#include "PictureFile.h"

class PictureView;
class QUndoStack;

/// A picture to look at and to change.
class PictureDocument : public FileDocument
{
    Q_OBJECT

public:
    /// \a file was loaded from \a path.
    PictureDocument(const QString &path, const PictureFile &file);
    ~PictureDocument() override;

    PictureView *view() const { return m_view; }
    QUndoStack *undoStack() const { return m_undoStack; }

    /// As it is now.
    QImage image() const;

    /// 1 is the actual size.
    qreal zoom() const;
    void setZoom(qreal zoom);
    void zoomIn();
    void zoomOut();
    void fit();
    void actualSize();

    /// Clockwise; negative ones turn the other way.
    void rotate(int quarterTurns);
    /// One of PictureFilters; others are ignored.
    void applyFilter(const QString &id);

    void setPath(const QString &path) override;
    bool canUndo() const override;
    bool canRedo() const override;
    void undo() override;
    void redo() override;
    bool isModified() const override;
    bool isChangedOnDisk() const override;
    /// A picture has none.
    QList<OutlineEntry> outline() const override;
    void goToLine(int line) override;
    QList<QPair<QString, QString>> properties() const override;

protected:
    FileStatus write(Loss loss) override;
    FileStatus writeCopy(const QString &path) override;

private:
    PictureFile m_file;
    PictureView *m_view;
    QUndoStack *m_undoStack;
};
