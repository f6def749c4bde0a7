// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

#include <memory>

namespace VornFrame {

class AddressStripPrivate;

/// The path field of an address bar. At rest it shows the path as a row of entries to click on; a
/// click beside them turns it into a line edit with the path as text. It keeps the history of the
/// paths that were visited.
///
/// Paths have "/" as separator; only the text in edit mode shows backslashes. What is typed may
/// contain either.
class AddressStrip : public QLineEdit
{
    Q_OBJECT

public:
    explicit AddressStrip(QWidget *parent);
    ~AddressStrip() override;

    /// The path that is shown, empty before the first one; with backslashes while it is edited.
    QString path() const;

    /// Goes to \a path and records it in the history; the text that is being edited is given up.
    /// An empty path is ignored, and so is the one that is shown already, unless it is edited.
    void setPath(const QString &path);

    /// Forgets the history, then goes to \a path. Where that is shown already, the history stays
    /// empty.
    void resetPath(const QString &path);

    /// Shows \a text for editing, all of it selected.
    void editText(const QString &text);

    /// Go along the history; nothing happens at its ends.
    void backward();
    void forward();

    /// Goes to the folder above, which is recorded in the history. Nothing happens if there is none.
    void dirup();

    /// Lets the user choose a folder in a dialog and goes there.
    void browse();

Q_SIGNALS:
    /// The entries were made anew for \a path.
    void signalPathChanged(const QString &path);
    /// Whether there is somewhere to go backward, forward and up to.
    void signalActionsEnabled(bool backward, bool forward, bool dirup);

public Q_SLOTS:
    /// Goes to \a path as setPath(), for the file tree.
    void slotPathChanged(const QString &path);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Q_DECLARE_PRIVATE(AddressStrip)
    Q_DISABLE_COPY_MOVE(AddressStrip)

    const std::unique_ptr<AddressStripPrivate> d_ptr;
};

} // namespace VornFrame
