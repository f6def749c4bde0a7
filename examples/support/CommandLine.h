// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>

class QWidget;

/// The command line of an example program: what is to be opened, and the options that all of them
/// have.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    /// \a description says what the program is.
    explicit CommandLine(const QString &description);

    /// What can be opened: its \a name, how the usage line shows it, and what is to be said of it.
    void addArguments(const QString &name, const QString &syntax, const QString &description);

    /// An option of this program alone. \a valueName stands for what has to follow it.
    void addOption(const QString &name, const QString &description, const QString &valueName);

    /// An option without a value.
    void addSwitch(const QString &name, const QString &description);

    /// An option for the file that keeps from one start to the next what \a description says.
    void addSettings(const QString &description);

    /// Reads the command line of \a application. The program ends here when it asks for help, or
    /// when it makes no sense.
    void process(const QCoreApplication &application);

    QStringList arguments() const { return m_parser.positionalArguments(); }
    bool isSet(const QString &name) const { return m_parser.isSet(name); }
    QString value(const QString &name) const { return m_parser.value(name); }

    /// The path of the file that keeps the settings; \a fallback unless another one is chosen.
    QString settings(const QString &fallback) const;

    /// Whether there is only a picture to be taken. Nobody is there then who could answer a message
    /// box.
    bool isScreenshot() const;

    /// Writes a picture of \a window as the command line says. Returns the program's exit code.
    int takeScreenshot(QWidget *window) const;

    /// Says \a text as the reason why the program ends, and returns its exit code.
    static int fail(const QString &text);

private:
    QCommandLineParser m_parser;
    bool m_hasSettings = false;
};
