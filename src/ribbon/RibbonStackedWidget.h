// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStackedWidget>

#include <memory>

namespace VornFrame {

class RibbonPage;
class RibbonStackedWidgetPrivate;

/// The pages of a RibbonBar, 95 px high; only the current one is seen. Indexes have base 0.
class RibbonStackedWidget : public QStackedWidget
{
    Q_OBJECT

public:
    explicit RibbonStackedWidget(QWidget *parent);
    ~RibbonStackedWidget() override;

    /// Appends \a page, takes it over and returns its index. The current page stays as it is.
    int addPage(const QString &title, RibbonPage *page);

    /// Appends a new page, makes page 0 the current one and returns the new page.
    RibbonPage *addPage(const QString &title);

    /// Hides or shows page \a index, which must be below the number of distinct titles; others are
    /// ignored. A page that is shown without being the current one waits out of sight, and Tab does
    /// not lead into it.
    void hidePage(int index);
    void showPage(int index);

    /// Like setCurrentIndex(), but in a stack that is not visible the page is laid out and polished
    /// only when it is first shown.
    void setCurrentPage(int index);

    /// The page at \a index, null out of range.
    RibbonPage *page(int index) const;

    /// The size of the largest page seen so far. Pages count from the moment that they are first
    /// the current one: asking the others would polish every button of every page before the window
    /// opens.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonStackedWidget)
    Q_DISABLE_COPY_MOVE(RibbonStackedWidget)

    const std::unique_ptr<RibbonStackedWidgetPrivate> d_ptr;
};

} // namespace VornFrame
