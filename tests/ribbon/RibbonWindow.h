// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include "ribbon/RibbonTab.h"

#include "support/ImageChecks.h"
#include "support/Input.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QRadioButton>
#include <QSpinBox>
#include <QString>
#include <QStyle>
#include <QStyleOption>
#include <QVBoxLayout>

/// A window with a ribbon bar as it is in use, and where the parts of what is embedded in it are.
namespace RibbonWindows {

using namespace Qt::StringLiterals;

/// Letters that are nothing but area show the colour of a text, whatever the font makes of others.
inline QString blocks()
{
    return QString(4, QChar(0x2588));
}

/// A real ribbon bar at the top of a window.
class RibbonWindow : public QWidget
{
public:
    explicit RibbonWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        setLayoutDirection(direction);
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        layout->addWidget(m_bar);
        layout->addStretch();
        resize(900, 300);
    }

    VornFrame::RibbonBar *bar() const { return m_bar; }
    QList<VornFrame::RibbonTab *> tabs() const { return findChildren<VornFrame::RibbonTab *>(); }

    /// The one group that takes what the sheet styles for being embedded.
    VornFrame::RibbonGroup *group()
    {
        if (!m_group)
            m_group = m_bar->addPage(u"Page"_s)->addGroup(u"Group"_s);
        return m_group;
    }

    /// Shows the window, with the pointer where there is nothing of the ribbon.
    [[nodiscard]] bool showAlone()
    {
        if (!Input::show(this))
            return false;
        Input::move(this, QPoint(width() / 2, height() - 10));
        return true;
    }

    QImage image(int ratio) { return ImageChecks::rendered(this, ratio, true); }
    QRect areaOf(const QWidget *widget) const
    {
        return {widget->mapTo(this, QPoint()), widget->size()};
    }

private:
    VornFrame::RibbonBar *m_bar = new VornFrame::RibbonBar;
    VornFrame::RibbonGroup *m_group = nullptr;
};

/// A new widget in the group of \a window.
template <typename Widget>
Widget *embed(RibbonWindow &window)
{
    auto *widget = new Widget;
    window.group()->addWidget(widget);
    return widget;
}

inline QRect spinButton(const QSpinBox *spin, QStyle::SubControl which)
{
    QStyleOptionSpinBox option;
    option.initFrom(spin);
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    option.frame = true;
    option.subControls = QStyle::SC_All;
    return spin->style()->subControlRect(QStyle::CC_SpinBox, &option, which, spin);
}

inline QRect comboPart(const QComboBox *combo, QStyle::SubControl which)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.subControls = QStyle::SC_All;
    return combo->style()->subControlRect(QStyle::CC_ComboBox, &option, which, combo);
}

inline QRect indicator(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const bool isRadio = qobject_cast<const QRadioButton *>(button) != nullptr;
    return button->style()->subElementRect(
        isRadio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, button);
}

/// An image of \a area's size, \a background with the resource \a path in its middle.
inline QImage imageInMiddle(const QImage &image, const QRect &area, const QColor &background,
                            const QString &path)
{
    const QPixmap pixmap(path);
    QImage expected = image;
    QPainter painter(&expected);
    painter.fillRect(area, background);
    painter.drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, pixmap.size(), area),
                       pixmap);
    return expected;
}

inline constexpr int NormalItem = 0;
inline constexpr int HoveredItem = 1;
inline constexpr int SelectedItem = 2;

/// The list of a combo box. All its items but the first are blank: nothing covers their colours.
class OpenList
{
public:
    explicit OpenList(RibbonWindow &window) : m_combo(embed<QComboBox>(window))
    {
        m_combo->addItems({blocks(), u" "_s, u" "_s, u" "_s});
        m_combo->setCurrentIndex(SelectedItem);
        m_combo->setMinimumWidth(120);
    }
    ~OpenList() { m_combo->hidePopup(); }

    [[nodiscard]] bool open()
    {
        m_combo->showPopup();
        return QTest::qWaitForWindowExposed(view()->window());
    }
    QAbstractItemView *view() const { return m_combo->view(); }
    QRect item(int row) const
    {
        return view()
            ->visualRect(m_combo->model()->index(row, 0))
            .translated(view()->viewport()->geometry().topLeft());
    }

private:
    QComboBox *m_combo;
};

} // namespace RibbonWindows
