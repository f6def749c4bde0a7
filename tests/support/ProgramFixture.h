// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/QuietMacros.h"

#include <QColor>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The base of the tests of an example program as it is run from the command line.
///
/// Each function runs the program on its own, without a display and with an empty home folder; it
/// finds an empty folder for its files, in which the program runs. The functions that are here are
/// run for every program; a program adds its own, and its rows of what can go wrong.
class ProgramFixture : public QObject
{
    Q_OBJECT

public:
    /// One pixel of a picture.
    struct Sample
    {
        QPoint at;
        QColor color;
    };

    /// What the functions have to know of a program.
    struct Program
    {
        QString path;
        QSize size; ///< of its window
        QList<Sample> samples; ///< as seen from left to right; the other way they are mirrored
        QStringList arguments; ///< something to open
        QStringList help; ///< what its help says, beside what all programs say
    };

    explicit ProgramFixture(Program program);
    ~ProgramFixture() override;

protected Q_SLOTS:
    void init();
    void saysWhatWentWrong_data();

private Q_SLOTS:
    void takesAScreenshot_data();
    void takesAScreenshot();
    void aScreenshotLooksTheSameEachTime();
    void saysWhatWentWrong();
    void helpNamesTheOptions();

protected:
    struct Outcome
    {
        int code = -1;
        QString output;
        QString errors;
    };

    /// Runs the program until it ends; \a scale is how large it shows everything.
    Outcome run(const QStringList &arguments, const QString &scale = QStringLiteral("1")) const;

    /// The picture of a program that was run with \a arguments; null when there is none.
    QImage screenshot(const QStringList &arguments) const;

    /// Proves that a picture neither needs nor touches settings: those in the file \a settings
    /// would change how the program looks.
    void checkScreenshotWithout(const QByteArray &settings) const;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;
    QByteArray bytesOf(const QString &name) const;

private:
    const Program m_program;
    std::unique_ptr<QTemporaryDir> m_folder;
};
