// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QLabel>

#include <memory>

class QVariant;

namespace VornFrame {

class DockContentWidgetPrivate;

/// Which tabs of a section the user wants closed, in the order of the menu of a tab.
enum CloseMode {
    CloseCurrent = 0, ///< the tab itself
    CloseAllLeft = 1, ///< those before it
    CloseAllRight = 2, ///< those after it
    CloseAllExceptCurrent = 3, ///< those before and after it
    CloseAll = 4, ///< all tabs of the section
};

/// The work surface in the centre of a dock container: sections, chosen in a row of tabs along the
/// lower edge, each with a row of closable and movable document tabs of its own.
///
/// The widget never closes a tab: it reports the wish with signalTabCloseRequested(), and the
/// application answers with removeTab(). Without any tab it shows a placeholder picture in place of
/// the sections, and with auto-hide asks its container to hide it.
///
/// Sections and tabs have indexes with base 0. Sections are only ever added, so that theirs never
/// change; a section is listed in the row while it holds a tab. An index out of range is ignored,
/// and gives -1, null, false, or an empty text or value.
class VORNFRAME_EXPORT DockContentWidget : public QLabel
{
    Q_OBJECT

public:
    explicit DockContentWidget(QWidget *parent = nullptr);
    ~DockContentWidget() override;

    /// Appends an empty section named \a text and returns its index. It is not listed yet.
    int addSection(const QString &text);
    int sectionCount() const;
    int currentSection() const;

    QString sectionText(int section);

    /// Whether section \a section can be chosen; true at first. The name is misspelt for good:
    /// programs call it so.
    bool isSectionEnbaled(int section) const;
    void setSectionEnabled(int section, bool enabled);

    /// Whether section \a section is listed. The first tab of a section lists it and the last one
    /// to go takes it off the list, whatever was set here before.
    bool isSectionVisible(int section) const;
    void setSectionVisible(int section, bool visible);

    /// Whether the whole section area can be seen, not only its row of tabs. Adding a tab shows it.
    bool isSectionBarVisible() const;
    void setSectionBarVisible(bool visible);

    /// Appends a tab with \a widget, named \a text, to \a section and returns its index. The widget
    /// belongs to the section from now on; if it was a tab before, it leaves that place. Null, or a
    /// widget that this one lies in, is ignored and gives -1.
    ///
    /// The first tab of a section becomes its current one, with signalCurrentTabChanged(). The first
    /// tab of all shows the section area and is followed by signalCurrentSectionChanged(), though
    /// \a section need not be the one that is shown. While this widget is hidden, every tab added
    /// is followed by signalVisibleChanged(true).
    int addTab(int section, QWidget *widget, const QString &text);

    /// Takes the tab away; its widget is hidden and stays a child of the section, for the caller to
    /// delete or to place elsewhere. After the last tab of all come signalVisibleChanged(false),
    /// with auto-hide if this widget can be seen, and then signalCurrentSectionChanged(-1) and
    /// signalCurrentTabChanged(-1, -1).
    void removeTab(int section, int index);

    bool contains(QWidget *widget);
    /// The section that holds \a widget as a tab, -1 if none does.
    int sectionOf(QWidget *widget) const;
    /// The index of the tab with \a widget in its section, -1 if there is none.
    int tabOf(QWidget *widget) const;

    int tabCount(int section) const;
    int currentTab(int section) const;
    QWidget *currentWidget(int section) const;
    QWidget *widget(int section, int index) const;
    /// Shows \a section and in it the tab \a index.
    void setCurrentTab(int section, int index);

    bool isTabEnabled(int section, int index) const;
    void setTabEnabled(int section, int index, bool enabled);

    bool isTabVisible(int section, int index) const;
    void setTabVisible(int section, int index, bool visible);

    QString tabText(int section, int index);
    void setTabText(int section, int index, const QString &text);

    QString tabToolTip(int section, int index);
    void setTabToolTip(int section, int index, const QString &toolTip);

    /// A value of the application's own, which moves with the tab; invalid at first.
    QVariant tabData(int section, int index);
    void setTabData(int section, int index, const QVariant &value);

    /// The picture shown, centred and at its own size, while the section area is hidden; none at
    /// first.
    void setPlaceholderPixmap(const QPixmap &pixmap);

    /// Whether the last tab to go asks for this widget to be hidden; on at first. Setting it hides
    /// (on) or shows (off) this widget at once, also while it holds tabs.
    void setAutoHide(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user asked for tabs to be closed: those that \a mode says, seen from tab \a index.
    /// \a section is the section that is shown.
    void signalTabCloseRequested(VornFrame::CloseMode mode, int section, int index);
    /// Another section is shown, or the first tab of all came to \a section; -1 when the last tab
    /// of all went.
    void signalCurrentSectionChanged(int section);
    /// The current tab is another one now; -1 in a section without tabs, and both -1 when the last
    /// tab of all went. Not emitted when another widget takes the same place, as after the first of
    /// several tabs was removed: ask currentWidget() after each removeTab().
    void signalCurrentTabChanged(int section, int index);
    /// The widget wants to be shown, or hidden; a DockContainer does so.
    void signalVisibleChanged(bool visible);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    DockContentWidget(DockContentWidgetPrivate &d, QWidget *parent);

    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockContentWidget)
    Q_DISABLE_COPY_MOVE(DockContentWidget)

    const std::unique_ptr<DockContentWidgetPrivate> d_ptr;
};

} // namespace VornFrame
