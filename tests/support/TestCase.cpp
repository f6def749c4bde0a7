// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/TestCase.h"

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QRegularExpression>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

QFont fixedFont()
{
    return QFont(u"DejaVu Sans"_s, 9);
}

QPalette fixedPalette()
{
    const QColor grey(239, 239, 239);
    QPalette palette(grey, grey);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

/// Every warning but those of the offscreen platform about what it cannot do with a window.
QRegularExpression anyWarning()
{
    return QRegularExpression(u"^(?!This plugin does not support )"_s);
}

QString classesOf(const QWidgetList &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets)
        names.append(QLatin1StringView(widget->metaObject()->className()));
    return names.join(u", "_s);
}

} // namespace

TestCase::ApplicationState TestCase::ApplicationState::current()
{
    ApplicationState state;
    state.styleSheet = qApp->styleSheet();
    state.palette = QApplication::palette();
    state.font = QApplication::font();
    state.clipboardText = QGuiApplication::clipboard()->text();
    state.layoutDirection = QGuiApplication::layoutDirection();
    state.hasOverrideCursor = QGuiApplication::overrideCursor() != nullptr;
    state.mouseButtons = QGuiApplication::mouseButtons();
    return state;
}

void TestCase::ApplicationState::restore() const
{
    if (qApp->styleSheet() != styleSheet)
        qApp->setStyleSheet(styleSheet);
    QApplication::setPalette(palette);
    QApplication::setFont(font);
    if (QGuiApplication::clipboard()->text() != clipboardText)
        QGuiApplication::clipboard()->setText(clipboardText);
    QGuiApplication::setLayoutDirection(layoutDirection);
    QLocale::setDefault(locale);
    while (QGuiApplication::overrideCursor() && !hasOverrideCursor)
        QGuiApplication::restoreOverrideCursor();
}

void TestCase::initTestCase()
{
    // A test shows and closes many windows, one after the other.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QVERIFY(QApplication::setStyle(u"Fusion"_s));
    QApplication::setPalette(fixedPalette());
    QApplication::setFont(fixedFont());
    QCOMPARE(QFontInfo(QApplication::font()).family(), fixedFont().family());
}

void TestCase::init()
{
    QTest::failOnWarning(anyWarning());
    m_windowsBefore = QApplication::topLevelWidgets();
    m_stateBefore = ApplicationState::current();
}

void TestCase::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const ApplicationState after = ApplicationState::current();
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([this](QWidget *window) { return m_windowsBefore.contains(window); });
    // First of all: what one function leaves behind must not fail the next one too.
    m_stateBefore.restore();

    QCOMPARE(classesOf(windows), QString());
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
    QCOMPARE(after.styleSheet, m_stateBefore.styleSheet);
    QCOMPARE(after.palette, m_stateBefore.palette);
    QCOMPARE(after.font, m_stateBefore.font);
    QCOMPARE(after.clipboardText, m_stateBefore.clipboardText);
    QCOMPARE(after.layoutDirection, m_stateBefore.layoutDirection);
    QCOMPARE(after.locale, m_stateBefore.locale);
    QCOMPARE(after.hasOverrideCursor, m_stateBefore.hasOverrideCursor);
    QCOMPARE(after.mouseButtons, m_stateBefore.mouseButtons);
}
