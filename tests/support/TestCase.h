// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/QuietMacros.h"

#include <QFont>
#include <QLocale>
#include <QObject>
#include <QPalette>
#include <QString>
#include <QTest>
#include <QWidget>

/// The base of every test class of widgets.
///
/// All test functions see one look, whatever the machine's is: the Fusion style, a light palette
/// and the font DejaVu Sans in 9 pt. A warning fails the function that it comes in, unless that
/// function named it before with QTest::ignoreMessage(). After each function, the clean-up proves
/// that no window and no grab is left and that what the whole application shares is as it was
/// before: style sheet, palette, font, clipboard, layout direction, locale, cursor and pressed
/// mouse buttons.
///
/// A class that needs an init() or cleanup() of its own calls the one here from it.
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

private:
    /// What the whole application shares and a test function may touch.
    struct ApplicationState
    {
        static ApplicationState current();
        void restore() const;

        QString styleSheet;
        QPalette palette;
        QFont font;
        QString clipboardText;
        Qt::LayoutDirection layoutDirection = Qt::LeftToRight;
        QLocale locale;
        bool hasOverrideCursor = false;
        Qt::MouseButtons mouseButtons;
    };

    QWidgetList m_windowsBefore;
    ApplicationState m_stateBefore;
};
