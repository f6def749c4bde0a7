// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleChecks.h"

#include "StyleCatalog.h"

#include <QTextBlock>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace StyleChecks {

namespace {

QString describe(const QTextFragment &fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    const QStringList names = StyleCatalog::namesOf(format);
    if (format != StyleCatalog::instance().textFormat(names))
        return u"<%1, but it looks different>"_s.arg(names.join(u' '));
    return u"<%1>%2"_s.arg(names.join(u' '), fragment.text());
}

QString describe(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    const QString name = StyleCatalog::namesOf(format).join(u' ');
    QString text = name + u':';
    if (format != StyleCatalog::instance().blockFormat(name))
        text += u" (looks different)"_s;
    for (auto it = block.begin(); it != block.end(); ++it)
        text += u' ' + describe(it.fragment());
    return text;
}

} // namespace

QStringList stylesOf(const QTextDocument &document)
{
    QStringList result;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        result += describe(block);
    return result;
}

} // namespace StyleChecks
