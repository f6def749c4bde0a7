// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>

#include <memory>

namespace VornFrame {

class AddressEntryPrivate;

/// One folder of the path in an address strip: a click goes there, the arrow opens a menu of its
/// sub-folders. The entry with an empty path stands for the drives and shows its arrow alone.
///
/// The entry is 22 px high and as wide as it needs to be, unless it has not so much room.
class AddressEntry : public QToolButton
{
    Q_OBJECT

public:
    explicit AddressEntry(QWidget *parent);
    ~AddressEntry() override;

    /// The name of the folder is shown as it is: no mark in it makes a shortcut.
    void setName(const QString &name);

    /// The folder that the entry stands for, with "/" as separator; empty for the drives. Lists
    /// what is below it in the menu; an entry without anything below has no menu.
    void setPath(const QString &path);

    /// Makes the entry at most \a width px wide by shortening the name that it shows.
    void setRoom(int width);

    /// The size for the whole name, however much room there is.
    QSize sizeHint() const override;

    /// The size for a name of a few letters.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user clicked the entry, or chose a folder below it.
    void signalClicked(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DECLARE_PRIVATE(AddressEntry)
    Q_DISABLE_COPY_MOVE(AddressEntry)

    const std::unique_ptr<AddressEntryPrivate> d_ptr;
};

} // namespace VornFrame
