// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QFrame>

#include <memory>

namespace VornFrame {

class RibbonBarPrivate;
class RibbonCorner;
class RibbonPage;

/// The band of command pages across the top of a window, 123 px high: a row of page tabs, a corner
/// for further widgets at its trailing end, and below them the current page.
///
/// Pages are only ever added, and a page lives in its bar as long as the bar: do not delete it or
/// move it elsewhere. Tab i and page i belong together, so an index (base 0, in the order added)
/// always means both. Temporary pages are context pages: their tabs stand on a blue plate, and
/// hideTemporaryPages() hides all of them at once.
///
/// Hiding a page hides its tab and leaves the current page as it is, so an application that hides
/// the current page chooses another one with setCurrentIndex().
///
/// The bar is at least as wide as its tab row and as the widest page that has been current so far.
/// A page that was never seen does not count, so choosing a wide page can widen a narrow window.
///
/// The object name is "RibbonBar", and a right click emits customContextMenuRequested().
class VORNFRAME_EXPORT RibbonBar : public QFrame
{
    Q_OBJECT

public:
    /// An empty bar, styled with the library's light ribbon sheet. A bar without \a parent makes a
    /// native window when it gets its first page; it goes when the bar is placed in a window.
    explicit RibbonBar(QWidget *parent = nullptr);
    ~RibbonBar() override;

    /// Appends \a page under a visible tab \a title and returns its index. The bar owns \a page
    /// from now on; the current page stays as it is. A null \a page adds nothing and gives -1; a
    /// page that is in the bar already keeps its tab, and its index is returned.
    int addPage(const QString &title, RibbonPage *page, bool temporary = false);

    /// Appends a new, empty page under a tab \a title and returns it. The bar owns the page.
    ///
    /// The tab of a temporary page is hidden at once. This overload always makes page 0 the shown
    /// page, without changing the checked tab: add the pages before choosing the current one.
    RibbonPage *addPage(const QString &title, bool temporary = false);

    /// Whether \a page is a page of this bar.
    bool contains(RibbonPage *page) const;

    /// The number of pages, hidden ones included.
    int count() const;

    /// The page that is shown below the tabs, null if there is none.
    RibbonPage *currentPage() const;

    /// The index of \a page, -1 if it is not a page of this bar.
    int indexOf(RibbonPage *page) const;

    /// The page at \a index, null if there is none.
    RibbonPage *page(int index) const;

    /// Checks tab \a index and shows its page; an index out of range is ignored. Works for hidden
    /// and disabled tabs too. Emits nothing.
    void setCurrentIndex(int index);

    /// The same for the index of \a page; an unknown page is ignored.
    void setCurrentPage(RibbonPage *page);

    /// Hides the tab and the page at \a index; an index out of range is ignored.
    ///
    /// Pages are counted by their titles here: with two pages of one title, the last page (not its
    /// tab) is out of reach of hidePage() and showPage().
    void hidePage(int index);

    /// Shows the tab and the page at \a index again; an index out of range is ignored. A page that
    /// is not the current one waits out of sight; the shortcuts of its actions work.
    void showPage(int index);

    /// hidePage(\a index) if \a hidden, else showPage(\a index).
    void setPageHidden(int index, bool hidden);

    /// showPage(\a index) if \a visible, else hidePage(\a index).
    void setPageVisible(int index, bool visible);

    /// Enables or disables the tab at \a index, not its page: a disabled tab cannot be clicked, but
    /// its page can still be made current. An index out of range is ignored.
    void setPageEnabled(int index, bool enabled);

    /// Hides the tabs and pages of all temporary pages.
    void hideTemporaryPages();

    /// The area at the trailing end of the tab row. The bar owns it; never null.
    RibbonCorner *corner() const;

Q_SIGNALS:
    /// The user clicked the tab at \a index; its page is shown. Not emitted for changes made by
    /// code.
    void signalCurrentPageChanged(int index);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    RibbonBar(RibbonBarPrivate &d, QWidget *parent);

    bool event(QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonBar)
    Q_DISABLE_COPY_MOVE(RibbonBar)

    const std::unique_ptr<RibbonBarPrivate> d_ptr;
};

} // namespace VornFrame
