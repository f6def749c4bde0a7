// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CommandLine.h"

#include "Screenshot.h"

#include <QTextStream>

#include <cstdlib>

using namespace Qt::StringLiterals;

CommandLine::CommandLine(const QString &description)
{
    m_parser.setApplicationDescription(description);
    m_parser.addHelpOption();
}

void CommandLine::addArguments(const QString &name, const QString &syntax,
                               const QString &description)
{
    m_parser.addPositionalArgument(name, description, syntax);
}

void CommandLine::addOption(const QString &name, const QString &description,
                            const QString &valueName)
{
    m_parser.addOption(QCommandLineOption(name, description, valueName));
}

void CommandLine::addSwitch(const QString &name, const QString &description)
{
    m_parser.addOption(QCommandLineOption(name, description));
}

void CommandLine::addSettings(const QString &description)
{
    addOption(u"settings"_s, description, u"FILE.ini"_s);
    m_hasSettings = true;
}

void CommandLine::process(const QCoreApplication &application)
{
    QString description = tr("Write a picture of the window, and end.");
    if (m_hasSettings)
        description += u' ' + tr("Settings are neither read nor written.");
    addOption(u"screenshot"_s, description, u"FILE.png"_s);
    m_parser.process(application);
    if (isScreenshot() && value(u"screenshot"_s).isEmpty())
        std::exit(fail(tr("The option --screenshot needs the name of a file.")));
}

QString CommandLine::settings(const QString &fallback) const
{
    const QString chosen = value(u"settings"_s);
    return chosen.isEmpty() ? fallback : chosen;
}

bool CommandLine::isScreenshot() const
{
    return m_parser.isSet(u"screenshot"_s);
}

int CommandLine::takeScreenshot(QWidget *window) const
{
    const QString path = value(u"screenshot"_s);
    if (!Screenshot::take(window, path))
        return fail(tr("“%1” could not be written.").arg(path));
    QTextStream(stdout) << path << Qt::endl;
    return EXIT_SUCCESS;
}

int CommandLine::fail(const QString &text)
{
    QTextStream(stderr) << text << Qt::endl;
    return EXIT_FAILURE;
}
