// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressStrip.h"

#include "AddressEntry.h"
#include "AddressFolders.h"
#include "AddressPaths.h"
#include "AddressStrip_p.h"

#include "core/SharedIcons.h"

#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QStyle>

#include <algorithm>

namespace VornFrame {

namespace {

constexpr QSize PictureSize(24, 24);
constexpr int PictureMargin = 4;
/// Stays free beside the entries, as a place to click on for editing.
constexpr int FreeRoom = 24;

void show(QWidget *widget, bool shows)
{
    if (widget->isHidden() == shows)
        widget->setVisible(shows);
}

} // namespace

void AddressStripPrivate::init()
{
    q_ptr->setFocusPolicy(Qt::NoFocus);
    // Otherwise text could be dropped below the entries.
    q_ptr->setReadOnly(true);
    q_ptr->setCursor(Qt::ArrowCursor);
    q_ptr->setContextMenuPolicy(Qt::NoContextMenu);
    q_ptr->setAccessibleName(AddressStrip::tr("Address"));
    initCompleter();
    layout = new QHBoxLayout(q_ptr);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft);
    // The strip is as wide as its place, however long the path is.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    // A completion is set as text after it has been taken.
    QObject::connect(q_ptr, &QLineEdit::textChanged, q_ptr, [this](const QString &text) {
        if (!isEditing() && !text.isEmpty())
            q_ptr->clear();
    });
    qApp->installEventFilter(q_ptr);
}

void AddressStripPrivate::clearLayout()
{
    while (QLayoutItem *item = layout->takeAt(0)) {
        if (QWidget *widget = item->widget()) {
            // It may be the one that led here.
            widget->hide();
            widget->deleteLater();
        }
        delete item;
    }
}

QString AddressStripPrivate::shownPath() const
{
    return isEditing() ? AddressPaths::normalized(path) : path;
}

/// Goes to \a newPath, also if it is shown already.
void AddressStripPrivate::navigate(const QString &newPath)
{
    if (newPath.isEmpty())
        return;
    path = AddressPaths::normalized(newPath);
    record();
    rebuild(history.size() - 1);
}

/// Only the last path counts: who goes back and then again to the path where he is finds it twice.
/// That is deliberate.
void AddressStripPrivate::record()
{
    if (!history.isEmpty() && history.constLast() == path)
        return;
    history.resize(std::min(history.size(), index + 1));
    history.append(path);
}

void AddressStripPrivate::goTo(qsizetype newIndex)
{
    if (newIndex < 0 || newIndex >= history.size())
        return;
    path = history.at(newIndex);
    rebuild(newIndex);
}

void AddressStripPrivate::rebuild(qsizetype newIndex)
{
    index = newIndex;
    const QString newPath = path;
    const QPointer<AddressStrip> guard(q_ptr);
    endEditing();
    q_ptr->clearFocus();
    // Whoever hears that the focus has gone may have gone on to another path.
    if (!guard || path != newPath || index != newIndex)
        return;
    q_ptr->setText(QString());
    clearLayout();
    addFolderPicture();
    addEntry(QString(), QString());
    const QList<AddressPaths::Part> parts = AddressPaths::parts(newPath);
    for (const AddressPaths::Part &part : parts)
        addEntry(part.name, part.path);
    arrange();

    updateActions();
    if (guard)
        Q_EMIT q_ptr->signalPathChanged(newPath);
}

void AddressStripPrivate::addFolderPicture()
{
    auto *picture = new QLabel(q_ptr);
    const QIcon icon = SharedIcons::standardIcon(QStyle::SP_DirOpenIcon);
    const QSize room = PictureSize.shrunkBy(
        {PictureMargin, PictureMargin, PictureMargin, PictureMargin});
    picture->setPixmap(icon.pixmap(room, q_ptr->devicePixelRatio()));
    picture->setScaledContents(true);
    picture->setFixedSize(PictureSize);
    picture->setMargin(PictureMargin);
    layout->addWidget(picture);
}

void AddressStripPrivate::addEntry(const QString &name, const QString &entryPath)
{
    auto *entry = new AddressEntry(q_ptr);
    entry->setName(name);
    entry->setPath(entryPath);
    entry->setFocusPolicy(Qt::NoFocus);
    entry->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    layout->addWidget(entry);
    QObject::connect(entry, &AddressEntry::signalClicked, q_ptr, &AddressStrip::setPath);
}

/// Shows the new entries at once, not one event later.
void AddressStripPrivate::arrange()
{
    if (!q_ptr->isVisible())
        return;
    for (int i = 0; i < layout->count(); ++i)
        layout->itemAt(i)->widget()->show();
    fitEntries();
}

/// Where the strip is too narrow, the folders nearest to the root are hidden, then the name of the
/// last one is shortened. The last one is always there.
void AddressStripPrivate::fitEntries()
{
    if (layout->count() == 0 || !q_ptr->isVisible())
        return;
    QList<AddressEntry *> entries = entriesInLayout();
    AddressEntry *root = entries.takeFirst();
    AddressEntry *last = entries.isEmpty() ? nullptr : entries.takeLast();
    const int lead = PictureSize.width() + root->sizeHint().width();
    const int room = q_ptr->width() - FreeRoom - lead;

    int used = last ? last->sizeHint().width() : 0;
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        used += (*entry)->sizeHint().width();
        show(*entry, used <= room);
    }
    const bool hasLead = last == nullptr || room >= last->minimumSizeHint().width();
    show(layout->itemAt(0)->widget(), hasLead);
    show(root, hasLead);
    if (last)
        last->setRoom(hasLead ? room : q_ptr->width());
    layout->activate();
}

QList<AddressEntry *> AddressStripPrivate::entriesInLayout() const
{
    QList<AddressEntry *> entries;
    for (int i = 0; i < layout->count(); ++i) {
        if (auto *entry = qobject_cast<AddressEntry *>(layout->itemAt(i)->widget()))
            entries.append(entry);
    }
    return entries;
}

void AddressStripPrivate::updateActions()
{
    const bool canGoBackward = !history.isEmpty() && index != 0;
    const bool canGoForward = !history.isEmpty() && index != history.size() - 1;
    const bool canGoUp = !AddressFolders::above(shownPath()).isEmpty();
    Q_EMIT q_ptr->signalActionsEnabled(canGoBackward, canGoForward, canGoUp);
}

AddressStrip::AddressStrip(QWidget *parent)
    : QLineEdit(parent), d_ptr(std::make_unique<AddressStripPrivate>(this))
{
    Q_D(AddressStrip);
    d->init();
}

AddressStrip::~AddressStrip()
{
    Q_D(AddressStrip);
    // The base class gives the focus up when there is no private object any more.
    disconnect(qApp, nullptr, this, nullptr);
    if (d->completerCalls == 0)
        return;
    // It is the completer or its list that led here, and they go on when this is done.
    d->completer->setParent(nullptr);
    setCompleter(nullptr);
    d->completer->deleteLater();
}

QString AddressStrip::path() const
{
    Q_D(const AddressStrip);
    return d->path;
}

void AddressStrip::setPath(const QString &path)
{
    Q_D(AddressStrip);
    // Beside an edited text no entries are shown, so they have to be made also for the same path.
    if (d->isEditing() || AddressPaths::normalized(path) != d->path)
        d->navigate(path);
}

void AddressStrip::resetPath(const QString &path)
{
    Q_D(AddressStrip);
    const bool hadNeighbours = d->history.size() > 1;
    d->history.clear();
    d->index = -1;
    const QPointer<AddressStrip> guard(this);
    setPath(path);
    // Where the path is shown already, nobody else says that the ways back and forth are gone.
    if (guard && hadNeighbours && d->history.isEmpty())
        d->updateActions();
}

void AddressStrip::backward()
{
    Q_D(AddressStrip);
    d->goTo(d->index - 1);
}

void AddressStrip::forward()
{
    Q_D(AddressStrip);
    d->goTo(d->index + 1);
}

void AddressStrip::dirup()
{
    Q_D(AddressStrip);
    const QPointer<AddressStrip> guard(this);
    setPath(AddressFolders::above(d->shownPath()));
    if (guard)
        d->updateActions();
}

void AddressStrip::browse()
{
    Q_D(AddressStrip);
    const QPointer<AddressStrip> guard(this);
    // Not the static function: its dialog would not survive the end of the strip.
    const QPointer<QFileDialog> dialog = new QFileDialog(this, tr("Select Folder"), d->shownPath());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!guard || !dialog)
        return;
    const QString chosen = dialog->selectedFiles().value(0);
    dialog->deleteLater();
    if (isAccepted && !chosen.isEmpty() && QDir(chosen) != QDir(d->shownPath()))
        setPath(chosen);
}

void AddressStrip::slotPathChanged(const QString &path)
{
    setPath(path);
}

bool AddressStrip::event(QEvent *event)
{
    Q_D(AddressStrip);
    const bool isHandled = QLineEdit::event(event);
    switch (event->type()) {
    case QEvent::LayoutRequest:
    case QEvent::Resize:
    case QEvent::Show:
        d->fitEntries();
        break;
    default:
        break;
    }
    return isHandled;
}

} // namespace VornFrame
