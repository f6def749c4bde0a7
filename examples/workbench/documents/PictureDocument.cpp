// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureDocument.h"

#include "PictureCommand.h"
#include "PictureFilters.h"
#include "PictureView.h"
#include "WaitCursor.h"

#include <QFileInfo>
#include <QLocale>
#include <QTransform>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// In bytes, of all the pictures that can be undone.
constexpr qint64 Undo_Memory = qint64(512) * 1024 * 1024;
constexpr qint64 Undo_Steps = 50;

/// As many as the memory has room for, but always a few.
int undoLimit(const QImage &image)
{
    // What filters make has 32 bits a pixel.
    const qint64 bytes = std::max(qint64(image.width()) * image.height() * 4,
                                  qint64(image.sizeInBytes()));
    return int(std::clamp(Undo_Memory / bytes, qint64(3), Undo_Steps));
}

} // namespace

PictureDocument::PictureDocument(const QString &path, const PictureFile &file)
    : FileDocument(Picture, path), m_file(file), m_view(new PictureView(this)),
      m_undoStack(new QUndoStack(this))
{
    m_view->setObjectName(u"picture"_s);
    m_view->setAccessibleName(QFileInfo(path).fileName());
    m_view->setImage(file.image());
    m_undoStack->setUndoLimit(undoLimit(file.image()));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    connect(m_view, &PictureView::imageChanged, this, &PictureDocument::signalContentChanged);
    connect(m_view, &PictureView::zoomChanged, this, &PictureDocument::signalContentChanged);
    connect(m_undoStack, &QUndoStack::canUndoChanged, this, &PictureDocument::signalHistoryChanged);
    connect(m_undoStack, &QUndoStack::canRedoChanged, this, &PictureDocument::signalHistoryChanged);
    connect(m_undoStack, &QUndoStack::cleanChanged, this,
            [this](bool isClean) { Q_EMIT signalModifiedChanged(!isClean); });
}

PictureDocument::~PictureDocument()
{
    // It would tell of its end when this is no document any more.
    m_undoStack->disconnect(this);
}

QImage PictureDocument::image() const
{
    return m_view->image();
}

qreal PictureDocument::zoom() const
{
    return m_view->zoom();
}

void PictureDocument::setZoom(qreal zoom)
{
    m_view->setZoom(zoom);
}

void PictureDocument::zoomIn()
{
    m_view->zoomIn();
}

void PictureDocument::zoomOut()
{
    m_view->zoomOut();
}

void PictureDocument::fit()
{
    m_view->fit();
}

void PictureDocument::actualSize()
{
    m_view->actualSize();
}

void PictureDocument::rotate(int quarterTurns)
{
    const int turns = (quarterTurns % 4 + 4) % 4;
    if (turns == 0)
        return;
    const QImage after = image().transformed(QTransform().rotate(90.0 * turns));
    m_undoStack->push(new PictureCommand(m_view, after, tr("Rotate")));
}

void PictureDocument::applyFilter(const QString &id)
{
    const QString name = PictureFilters::name(id);
    if (name.isEmpty())
        return;
    const WaitCursor cursor;
    const QImage after = PictureFilters::apply(id, image());
    m_undoStack->push(new PictureCommand(m_view, after, name));
    Q_EMIT signalMessage(tr("%1: %2").arg(QFileInfo(path()).fileName(), name));
}

void PictureDocument::setPath(const QString &path)
{
    FileDocument::setPath(path);
    m_file.setPath(path);
    m_view->setAccessibleName(QFileInfo(path).fileName());
}

bool PictureDocument::canUndo() const
{
    return m_undoStack->canUndo();
}

bool PictureDocument::canRedo() const
{
    return m_undoStack->canRedo();
}

void PictureDocument::undo()
{
    m_undoStack->undo();
}

void PictureDocument::redo()
{
    m_undoStack->redo();
}

bool PictureDocument::isModified() const
{
    return !m_undoStack->isClean();
}

bool PictureDocument::isChangedOnDisk() const
{
    return m_file.isChangedOnDisk();
}

QList<OutlineEntry> PictureDocument::outline() const
{
    return {};
}

void PictureDocument::goToLine(int line)
{
    Q_UNUSED(line)
}

QList<QPair<QString, QString>> PictureDocument::properties() const
{
    const QLocale locale;
    const QImage picture = image();
    QList<QPair<QString, QString>> list{
        {tr("Size"), tr("%1 × %2 px").arg(picture.width()).arg(picture.height())},
        {tr("Depth"), tr("%1 bits per pixel").arg(picture.depth())},
        {tr("Format"), m_file.formatName()},
        {tr("Zoom"), tr("%1 %").arg(locale.toString(zoom() * 100, 'f', 0))},
        {tr("Size on disk"), locale.formattedDataSize(QFileInfo(path()).size())},
    };
    if (m_file.imageCount() > 1)
        list.append({tr("Pictures in the file"), locale.toString(m_file.imageCount())});
    return list;
}

FileStatus PictureDocument::write(Loss loss)
{
    FileStatus status = m_file.save(image(), loss == Loss::Accepted ? PictureFile::Loss::Accepted
                                                                    : PictureFile::Loss::Refused);
    if (status.ok()) {
        m_undoStack->setClean();
        Q_EMIT signalContentChanged();
    }
    return status;
}

FileStatus PictureDocument::writeCopy(const QString &path)
{
    return PictureFile::saveCopy(path, image());
}
