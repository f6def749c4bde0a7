// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QFrame>

#include <memory>

class QAction;
class QIcon;
class QTreeView;

namespace VornFrame {

class AddressBarPrivate;

/// The address of the folder that the user is in, and the ways to others: buttons for backward,
/// forward, up and browse, and the path itself, one part to click on for each folder.
///
/// A click beside the path lets the user type one; the right button offers to copy and paste it. On
/// demand there is a file tree that goes with the bar, treeView(), with the operations on files.
///
/// Paths have "/" as separator, whatever the system: "/home/u", "C:/Users", "//server/share". The
/// bar starts at the user's home folder.
class VORNFRAME_EXPORT AddressBar : public QFrame
{
    Q_OBJECT

public:
    /// The buttons, for setButtonIcon().
    enum AddressButton { Backward = 0, Forward = 1, DirUp = 2, Browse = 3 };

    /// A bar of 28 px height, styled with the library's light address sheet.
    explicit AddressBar(QWidget *parent = nullptr);
    ~AddressBar() override;

    /// The folder that is shown, also while the user types another one.
    QString path() const;

    /// Goes to \a path and records it in the history, without asking whether there is such a
    /// folder. Backslashes become "/", and separators at its end are dropped. A text that the user
    /// is typing is given up. An empty path is ignored, and so is the one that is shown, unless the
    /// user is typing; else signalPathChanged() follows.
    void setPath(const QString &path);

    /// Forgets the history, then goes to \a path as setPath(). If that is shown already, the
    /// history stays empty, and the path is not recorded until it is left and entered again.
    void resetPath(const QString &path);

    /// Gives a button another icon. Another value than those of the enumeration is ignored.
    void setButtonIcon(AddressButton button, const QIcon &icon);

    /// Names a suffix, without dot, of files that the host opens itself: the tree reports them with
    /// signalFileOpen() where it opens others with the system's programs. It does not change which
    /// files are shown. Upper and lower case differ; a suffix that is there already is not added
    /// again.
    ///
    /// A tree that is made later does not know of the suffixes until the list is changed the next
    /// time, so ask for treeView() before.
    void addSuffix(const QString &suffix);

    /// Takes a suffix away; one that is not there is ignored.
    void removeSuffix(const QString &suffix);

    /// Takes all suffixes away. The name is spelt so.
    void clearSuffixs();

    /// The file tree of the bar, made on the first call. It shows the folder of the bar and leads
    /// the bar when the user goes to another one. Its model is a QFileSystemModel.
    ///
    /// It has no parent until the host places it somewhere, which is then its owner; a tree that
    /// was never placed goes with the bar. A tree that was deleted is made anew.
    QTreeView *treeView();

    /// Adds \a action to the menu "New" of the tree, which is made if there is none yet. The host
    /// keeps the action. Null is ignored.
    void addNewAction(QAction *action);

    /// Where a "New" action makes something: what is selected in the tree, else the folder that
    /// it shows. The tree is made if there is none yet.
    QString actionTriggeredPath() const;

Q_SIGNALS:
    /// The shown path was made anew, be it by the user or the host. It can be the same as before:
    /// when the user gave up typing another one. The tree goes there too, but slots that were
    /// connected before it was made are called before.
    void signalPathChanged(const QString &path);

    /// The user opened a file of a suffix that the host has named.
    void signalFileOpen(const QString &path);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    AddressBar(AddressBarPrivate &d, QWidget *parent);

    void changeEvent(QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(AddressBar)
    Q_DISABLE_COPY_MOVE(AddressBar)

    const std::shared_ptr<AddressBarPrivate> d_ptr;
};

} // namespace VornFrame
