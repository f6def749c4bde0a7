// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QIcon>

#include <memory>

namespace VornFrame {

class DockPanelPrivate;

/// The bar of one side: a checkable button for each slot, of which at most one is checked. An index
/// is a button's place among the buttons, with base 0; those out of range are ignored.
class DockPanel : public QFrame
{
    Q_OBJECT

public:
    /// Horizontal for the bottom side, vertical for the others.
    DockPanel(Qt::Orientation orientation, QWidget *parent);
    ~DockPanel() override;

    /// Appends a button and returns its index. The first one is checked at once.
    int addButton(const QString &text, const QIcon &icon);
    /// Adds the icon and the tool tip of one more view to the button at \a index and returns that
    /// index, -1 out of range.
    int tabifyButton(int index, const QString &text, const QIcon &icon);
    /// Appends a line, which takes no index.
    void addSeparator();

    /// The index of the checked button, -1 if none is.
    int checkedId() const;
    void setButtonChecked(int index, bool checked);
    void setButtonVisible(int index, bool visible);
    /// Checks the button at \a index and no other.
    void setCurrentIndex(int index);

    Qt::Orientation orientation() const;

Q_SIGNALS:
    /// The user clicked a button: its index, or -1 when that unchecked it.
    void signalCurrentChanged(int index);

protected:
    bool event(QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockPanel)
    Q_DISABLE_COPY_MOVE(DockPanel)

    const std::unique_ptr<DockPanelPrivate> d_ptr;
};

} // namespace VornFrame
