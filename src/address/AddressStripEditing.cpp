// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressFolders.h"
#include "AddressPaths.h"
#include "AddressStrip_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QStringListModel>

namespace VornFrame {

void AddressStripPrivate::initCompleter()
{
    completer = new QCompleter(q_ptr);
    completerModel = new QStringListModel(completer);
    completer->setModel(completerModel);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    q_ptr->setCompleter(completer);
    // In the context of the completer: a line edit cuts all connections from it when it loses the
    // focus.
    QObject::connect(completer, qOverload<const QString &>(&QCompleter::activated), completer,
                     [this](const QString &text) { complete(text); });
    // While its list is open, the completer keeps the loss of the focus from the line edit.
    QObject::connect(qApp, &QApplication::focusChanged, q_ptr,
                     [this](const QWidget *before, const QWidget *now) {
                         if (before == q_ptr && isEditing())
                             loseFocus(now ? Qt::OtherFocusReason : Qt::ActiveWindowFocusReason);
                     });
    QObject::connect(q_ptr, &QLineEdit::textEdited, q_ptr,
                     [this](const QString &text) { updateCompletions(text); });
}

bool AddressStripPrivate::isEditing() const
{
    return q_ptr->focusPolicy() != Qt::NoFocus;
}

void AddressStripPrivate::startEditing(const QString &text)
{
    q_ptr->setFocusPolicy(Qt::StrongFocus);
    q_ptr->setReadOnly(false);
    q_ptr->setCursor(Qt::IBeamCursor);
    clearLayout();
    path = AddressPaths::forEditing(path);
    q_ptr->setText(text);
    q_ptr->selectAll();
    // At last, because whoever loses the focus now may go to another path.
    q_ptr->setFocus(Qt::OtherFocusReason);
}

/// Gives the text up. The entries have to be made afterwards.
void AddressStripPrivate::endEditing()
{
    if (!isEditing())
        return;
    q_ptr->setFocusPolicy(Qt::NoFocus);
    q_ptr->setReadOnly(true);
    q_ptr->setCursor(Qt::ArrowCursor);
    completions.forget();
    // An open list would keep the loss of the focus from the line edit.
    if (QWidget *popup = openList())
        popup->hide();
}

void AddressStripPrivate::leaveEditing()
{
    if (!isEditing())
        return;
    if (path.isEmpty()) {
        endEditing();
        q_ptr->setText(QString());
    }
    navigate(path);
}

void AddressStripPrivate::loseFocus(Qt::FocusReason reason)
{
    // The box that tells of a missing folder takes the focus and gives it back.
    if (asking)
        return;
    if (q_ptr->isVisible() && reason != Qt::ActiveWindowFocusReason) {
        leaveEditing();
        return;
    }
    // The window may be in its destructor, where it takes no more children.
    const auto leave = [this] {
        if (!q_ptr->hasFocus())
            leaveEditing();
    };
    QMetaObject::invokeMethod(q_ptr, leave, Qt::QueuedConnection);
}

/// The list of completions if it is open. The completer makes one as soon as it is asked for it.
QWidget *AddressStripPrivate::openList() const
{
    QWidget *popup = QApplication::activePopupWidget();
    return popup && popup == completer->popup() ? popup : nullptr;
}

void AddressStripPrivate::commit()
{
    const QString text = q_ptr->text();
    if (AddressPaths::typed(text).isEmpty()) {
        leaveEditing();
        return;
    }
    const QString folder = AddressFolders::meantBy(text);
    if (folder.isEmpty())
        showMissing();
    else
        navigate(folder);
}

void AddressStripPrivate::showMissing()
{
    const QPointer<AddressStrip> guard(q_ptr);
    asking = true;
    if (QWidget *list = openList())
        list->hide();
    // Not the static function: its box would not survive the end of the strip.
    const QPointer<QMessageBox> box = new QMessageBox(
        QMessageBox::Critical, AddressStrip::tr("Error"),
        AddressStrip::tr("The director entered does not exist, please checek the spelling and try "
                         "again."),
        QMessageBox::Ok, q_ptr);
    box->exec();
    if (box)
        box->deleteLater();
    if (!guard)
        return;
    asking = false;
    if (isEditing())
        q_ptr->setFocus(Qt::OtherFocusReason);
}

void AddressStripPrivate::updateCompletions(const QString &text)
{
    if (!isEditing())
        return;
    const QStringList found = completions.of(text);
    if (found != completerModel->stringList())
        completerModel->setStringList(found);
}

void AddressStripPrivate::complete(const QString &text)
{
    const QPointer<AddressStrip> guard(q_ptr);
    ++completerCalls;
    const QString folder = AddressFolders::meantBy(text);
    navigate(folder.isEmpty() ? text : folder);
    if (guard)
        --completerCalls;
}

/// Whether a press on \a pressed is beside the strip and all that belongs to it.
bool AddressStripPrivate::isOutside(const QObject *pressed) const
{
    // Windows get each press first and only pass it on.
    if (asking || !pressed->isWidgetType() || pressed == q_ptr || q_ptr->underMouse())
        return false;
    const QWidget *list = openList();
    return list == nullptr || static_cast<const QWidget *>(pressed)->window() != list;
}

void AddressStrip::editText(const QString &text)
{
    Q_D(AddressStrip);
    d->startEditing(text);
}

bool AddressStrip::eventFilter(QObject *watched, QEvent *event)
{
    // This sees every event of the application. A second press soon after the one that closed the
    // list of completions is known as a double click only.
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
        return false;
    Q_D(AddressStrip);
    if (!d->isEditing() || !d->isOutside(watched))
        return false;
    const QPointer<QObject> receiver(watched);
    d->leaveEditing();
    // Whoever heard of the path may have deleted what was pressed.
    return receiver.isNull();
}

void AddressStrip::focusOutEvent(QFocusEvent *event)
{
    Q_D(AddressStrip);
    const QPointer<AddressStrip> guard(this);
    d->loseFocus(event->reason());
    if (guard)
        QLineEdit::focusOutEvent(event);
}

void AddressStrip::keyPressEvent(QKeyEvent *event)
{
    Q_D(AddressStrip);
    const QPointer<AddressStrip> guard(this);
    // With its list open, the completer has handed the key over.
    ++d->completerCalls;
    if (event->key() != Qt::Key_Return)
        QLineEdit::keyPressEvent(event);
    else if (d->isEditing())
        d->commit();
    if (guard)
        --d->completerCalls;
}

void AddressStrip::mouseReleaseEvent(QMouseEvent *event)
{
    Q_D(AddressStrip);
    if (event->button() != Qt::LeftButton)
        return;
    if (d->isEditing())
        QLineEdit::mouseReleaseEvent(event);
    else if (rect().contains(event->position().toPoint()))
        d->startEditing(AddressPaths::forEditing(d->path));
}

} // namespace VornFrame
