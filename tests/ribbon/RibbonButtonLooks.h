// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ribbon/RibbonButton.h"

#include "support/ImageChecks.h"

#include <QAction>
#include <QApplication>
#include <QEnterEvent>
#include <QFontMetrics>
#include <QIcon>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <array>

/// What ribbon buttons look like, worked out apart from their own code, and buttons to compare it
/// with.
namespace RibbonButtonLooks {

using namespace Qt::StringLiterals;

enum class Form { Large, Small, IconOnly };
enum class Menu { None, Delayed, Split, Instant };
enum class State {
    Normal,
    HoveredMain,
    HoveredMenu,
    DownMain,
    DownMenu,
    Checked,
    CheckedHoveredMenu,
    Disabled,
    DisabledChecked,
    ShortText,
    TwoLines,
    ThreeLines
};

/// What a button looks like follows from these.
struct Look
{
    Form form = Form::Large;
    Menu menu = Menu::None;
    State state = State::Normal;
    int ratio = 1;
    Qt::LayoutDirection direction = Qt::LeftToRight;

    bool isLarge() const { return form == Form::Large; }
    bool isSmall() const { return form == Form::Small; }
    bool isSplit() const { return menu == Menu::Delayed || menu == Menu::Split; }
    bool isEnabled() const { return state != State::Disabled && state != State::DisabledChecked; }
    bool isDown() const { return state == State::DownMain || state == State::DownMenu; }
    bool isChecked() const
    {
        return state == State::Checked || state == State::CheckedHoveredMenu
               || state == State::DisabledChecked;
    }
    bool isHovered() const { return isDown() || isOverMenuPart() || state == State::HoveredMain; }
    bool isOverMenuPart() const
    {
        return state == State::HoveredMenu || state == State::DownMenu
               || state == State::CheckedHoveredMenu;
    }
    bool hasBackground() const { return (isHovered() && isEnabled()) || isChecked(); }

    /// Whether two parts can be told from one another; the icon-only form is too small for that.
    bool hasParts() const { return isSplit() && form != Form::IconOnly; }

    /// Whether the arrow stands on the text: in the large form on the second of two lines, and in
    /// the small form where no room is kept for it.
    bool hasTextUnderArrow() const
    {
        return state == State::TwoLines || state == State::ThreeLines
               || (isSmall() && menu == Menu::Delayed);
    }

    QString text() const
    {
        if (state == State::TwoLines)
            return u"Paste as\nplain text"_s;
        if (state == State::ThreeLines)
            return u"One of\nTwo\nThree"_s;
        return state == State::ShortText ? u"Go"_s : u"Options"_s;
    }
};

inline constexpr QColor FrameColor(125, 125, 125);
inline constexpr QColor LightColor(191, 191, 191);
inline constexpr QColor AccentColor(38, 140, 221);
inline constexpr QColor SurfaceColor(245, 245, 245);
inline constexpr QColor PressedColor(217, 217, 217);
inline constexpr QColor HoverColor(255, 255, 255);

inline QColor iconColor(QIcon::Mode mode, QIcon::State state)
{
    if (mode == QIcon::Disabled)
        return state == QIcon::On ? QColor(200, 220, 200) : QColor(220, 200, 200);
    return state == QIcon::On ? QColor(20, 150, 20) : QColor(200, 20, 20);
}

inline QIcon testIcon()
{
    constexpr QSize Size(48, 48);
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        for (const QIcon::State state : {QIcon::On, QIcon::Off}) {
            QPixmap pixmap(Size);
            pixmap.fill(iconColor(mode, state));
            icon.addPixmap(pixmap, mode, state);
        }
    }
    return icon;
}

/// Where the parts of a button belong, worked out apart from the button's own code.
class Geometry
{
public:
    Geometry(const Look &look, const QFontMetrics &metrics) : m_look(look), m_metrics(metrics)
    {
        const QString text = look.text();
        const QStringList lines = text.split(u'\n');
        if (look.isLarge() && lines.size() == 1) {
            m_text = metrics.size(Qt::TextSingleLine, text);
            m_textWidth = m_text.width();
        } else if (!look.isLarge()) {
            // On a single line, a line break is painted as a space.
            m_text.setWidth(metrics.horizontalAdvance(QString(text).replace(u'\n', u' ')));
            m_text.setHeight(metrics.size(Qt::TextSingleLine, text).height());
            m_textWidth = metrics.horizontalAdvance(text);
        } else {
            m_text = metrics.size(Qt::TextWordWrap, text);
            if (lines.size() == 2)
                m_text.setWidth(qMax(metrics.size(Qt::TextSingleLine, lines.at(0)).width(),
                                     metrics.size(Qt::TextSingleLine, lines.at(1)).width()));
            m_textWidth = m_text.width();
        }
    }

    QSize size() const
    {
        if (m_look.isLarge())
            return {qMax(36, m_textWidth + 10), 72};
        if (!m_look.isSmall())
            return {22, 22};
        const bool hasMenuPart = m_look.menu == Menu::Split || m_look.menu == Menu::Instant;
        return {m_textWidth + (hasMenuPart ? 46 : 34), 22};
    }

    QRect whole() const { return {QPoint(), size()}; }
    QRect icon() const { return seen(iconBeforeMirroring()); }
    QRect text() const { return seen({textPosition(), m_text}); }
    QRect arrow() const
    {
        if (m_look.isLarge())
            return seen({(size().width() - 8) / 2, 72 - 8 - 4, 8, 4});
        return seen({size().width() - 6 - 8, 9, 8, 4});
    }
    QRect divider() const
    {
        if (m_look.isLarge())
            return {1, 35, size().width() - 2, 1};
        return seen({m_textWidth + 26, 1, 1, 20});
    }

    /// What of the main part is neither frame nor divider.
    QRect mainPartInside() const
    {
        if (m_look.isLarge())
            return {1, 1, size().width() - 2, 34};
        return seen({1, 1, size().width() - 20 - 1, 20});
    }
    QRect menuPartInside() const
    {
        if (m_look.isLarge())
            return {1, 36, size().width() - 2, 35};
        return seen(QRect(m_textWidth + 27, 1, 20, 20).intersected(inside()));
    }
    QRect inside() const { return whole().adjusted(1, 1, -1, -1); }
    QList<QRect> corners() const
    {
        constexpr QSize Corner(3, 3);
        const QPoint end(size().width() - 3, size().height() - 3);
        return {{QPoint(0, 0), Corner},
                {QPoint(end.x(), 0), Corner},
                {QPoint(0, end.y()), Corner},
                {end, Corner}};
    }

    /// A place to point at.
    QPoint inPart(bool menuPart) const
    {
        if (m_look.isLarge())
            return {size().width() / 2, menuPart ? 60 : 10};
        return seen(QRect(menuPart ? size().width() - 3 : 5, 11, 1, 1)).topLeft();
    }

    /// \a rect as it is seen in the direction of the layout.
    QRect seen(const QRect &rect) const
    {
        if (m_look.direction == Qt::LeftToRight)
            return rect;
        return {size().width() - rect.x() - rect.width(), rect.y(), rect.width(), rect.height()};
    }

private:
    QRect iconBeforeMirroring() const
    {
        if (m_look.isLarge())
            return {qMax(6, (size().width() - 24) / 2), 7, 24, 24};
        return {3, (22 - 16) / 2, 16, 16};
    }
    QPoint textPosition() const
    {
        if (m_look.isLarge())
            return {qMax(5, (size().width() - m_text.width()) / 2), 37};
        return {24, (22 - m_metrics.height()) / 2};
    }

    Look m_look;
    QFontMetrics m_metrics;
    QSize m_text; ///< as painted
    int m_textWidth = 0; ///< as counted in the size of the button
};

/// One button in one look.
class Scene
{
public:
    explicit Scene(const Look &look, const QIcon &icon = testIcon(), const QString &text = {})
        : m_look(look), m_button(&m_host)
    {
        m_host.setLayoutDirection(look.direction);
        QAction *action = look.menu == Menu::None ? &m_action : m_menu.menuAction();
        action->setText(text.isNull() ? look.text() : text);
        action->setIcon(icon);
        action->setCheckable(true);
        action->setChecked(look.isChecked());
        action->setEnabled(look.isEnabled());
        m_button.setToolButtonStyle(style());
        m_button.setAction(action);
        m_button.setPopupMode(popupMode());
        // The button takes its own size, whatever it is given, with the event that rendering sends.
        m_button.resize(150, 150);
        ImageChecks::rendered(&m_button, 1);
        if (look.isHovered())
            hover(look.isOverMenuPart());
        m_button.setDown(look.isDown());
    }

    Geometry geometry() const { return {m_look, m_button.fontMetrics()}; }
    VornFrame::RibbonButton *button() { return &m_button; }
    QMenu *menu() { return &m_menu; }
    QImage image() { return ImageChecks::rendered(&m_button, m_look.ratio); }

    void hover(bool menuPart)
    {
        const QPointF at = geometry().inPart(menuPart);
        const QPointF globalAt = m_button.mapToGlobal(at);
        QEnterEvent enter(at, at, globalAt);
        QApplication::sendEvent(&m_button, &enter);
        QMouseEvent move(QEvent::MouseMove, at, globalAt, Qt::NoButton, {}, {});
        QApplication::sendEvent(&m_button, &move);
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&m_button, &event);
    }

private:
    Qt::ToolButtonStyle style() const
    {
        if (m_look.isLarge())
            return Qt::ToolButtonTextUnderIcon;
        return m_look.isSmall() ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly;
    }
    QToolButton::ToolButtonPopupMode popupMode() const
    {
        if (m_look.menu == Menu::Split)
            return QToolButton::MenuButtonPopup;
        return m_look.menu == Menu::Instant ? QToolButton::InstantPopup : QToolButton::DelayedPopup;
    }

    Look m_look;
    QWidget m_host;
    QMenu m_menu;
    QAction m_action;
    VornFrame::RibbonButton m_button;
};

/// The whole picture of a button, painted from what is said about it and not by it.
class ExpectedPicture
{
public:
    ExpectedPicture(const Look &look, const Geometry &geometry, const QFont &font)
        : m_look(look), m_geometry(geometry), m_font(font)
    {}

    QColor fill() const
    {
        if (m_look.isSplit())
            return m_look.isDown() || m_look.isChecked() ? PressedColor : HoverColor;
        if (m_look.isDown())
            return m_look.menu == Menu::None ? SurfaceColor : PressedColor;
        return m_look.isChecked() ? PressedColor : HoverColor;
    }
    QColor dividerColor() const
    {
        if (m_look.isLarge() && !m_look.isOverMenuPart())
            return LightColor;
        return m_look.isLarge() && m_look.isDown() ? AccentColor : FrameColor;
    }
    QColor textColor() const { return m_look.isEnabled() ? QColor(Qt::black) : LightColor; }
    QColor icon() const
    {
        return iconColor(m_look.isEnabled() ? QIcon::Normal : QIcon::Disabled,
                         m_look.isChecked() ? QIcon::On : QIcon::Off);
    }

    QImage image() const
    {
        QImage image = ImageChecks::blank(m_geometry.size(), m_look.ratio);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.setFont(m_font);
        if (m_look.hasBackground())
            drawBackground(painter);
        painter.fillRect(m_geometry.icon(), icon());
        painter.setPen(textColor());
        if (m_look.form != Form::IconOnly)
            painter.drawText(m_geometry.text(), textFlags(), m_look.text());
        if (m_look.menu != Menu::None && m_look.form != Form::IconOnly)
            QIcon(u":/res/arrow.svg"_s)
                .paint(&painter, m_geometry.arrow(), Qt::AlignCenter, mode());
        return image;
    }

private:
    QIcon::Mode mode() const { return m_look.isEnabled() ? QIcon::Normal : QIcon::Disabled; }
    int textFlags() const
    {
        if (!m_look.isLarge())
            return Qt::AlignLeading | Qt::TextSingleLine | Qt::TextDontClip;
        const int wrap = m_look.state == State::ThreeLines ? Qt::TextWordWrap : 0;
        return Qt::AlignHCenter | Qt::TextDontClip | wrap;
    }
    void drawBackground(QPainter &painter) const
    {
        painter.save();
        if (m_look.direction == Qt::RightToLeft) {
            painter.translate(m_geometry.size().width(), 0);
            painter.scale(-1, 1);
        }
        painter.translate(0.5, 0.5);
        const QRect frame = m_geometry.whole().adjusted(0, 0, -1, -1);
        if (m_look.isSplit()) {
            drawPart(painter);
            painter.setPen(FrameColor);
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(frame, 2, 2);
            drawDivider(painter);
        } else {
            painter.setPen(FrameColor);
            painter.setBrush(fill());
            painter.drawRoundedRect(frame, 2, 2);
        }
        painter.restore();
    }
    void drawPart(QPainter &painter) const
    {
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill());
        const qreal width = m_geometry.size().width();
        QRectF part;
        QRectF squared;
        if (m_look.isLarge()) {
            part = m_look.isOverMenuPart() ? QRectF(0, 35, width, 37) : QRectF(0, 0, width, 35);
            squared = QRectF(0, m_look.isOverMenuPart() ? 35 : 20, width, 15);
        } else if (!m_look.isSmall()) {
            part = m_geometry.whole();
            squared = QRectF(11, 0, 11, 22);
        } else if (m_look.isOverMenuPart()) {
            const qreal left = m_look.menu == Menu::Delayed ? width - 8 : width - 20;
            part = QRectF(left, 0, 20, 22);
            squared = QRectF(left, 0, 10, 22);
        } else {
            part = QRectF(0, 0, width - 20, 22);
            squared = QRectF(width - 30, 0, 10, 22);
        }
        painter.drawRoundedRect(part, 2, 2);
        painter.drawRect(squared);
    }
    void drawDivider(QPainter &painter) const
    {
        painter.setPen(dividerColor());
        const QSize size = m_geometry.size();
        if (m_look.isLarge()) {
            painter.drawLine(1, 35, size.width() - 2, 35);
            return;
        }
        int x = 0;
        if (m_look.isSmall())
            x = m_look.menu == Menu::Delayed ? size.width() - 8 : size.width() - 20;
        painter.drawLine(x, 1, x, size.height() - 2);
    }

    Look m_look;
    Geometry m_geometry;
    QFont m_font;
};

inline constexpr std::array FormNames = {"large", "small", "icon-only"};
inline constexpr std::array MenuNames = {"no menu", "delayed menu", "split", "instant menu"};
inline constexpr std::array StateNames = {"normal",
                                          "hovered main part",
                                          "hovered menu part",
                                          "down over main part",
                                          "down over menu part",
                                          "checked",
                                          "checked and hovered menu part",
                                          "disabled",
                                          "disabled and checked",
                                          "short text",
                                          "two lines",
                                          "three lines"};

} // namespace RibbonButtonLooks
