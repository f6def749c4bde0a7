// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PropertyText.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDebug>
#include <QIcon>
#include <QLocale>
#include <QMetaProperty>
#include <QPalette>
#include <QPixmap>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace PropertyText {

namespace {

/// In characters.
constexpr int Text_Length = 200;

QString tr(const char *text)
{
    return QCoreApplication::translate("PropertyText", text);
}

QString oneLine(QString text)
{
    if (text.size() > Text_Length)
        text = text.left(Text_Length) + u'…';
    return text.replace(u'\n', u'↵');
}

QString objectText(const QObject *object)
{
    if (!object)
        return tr("none");
    const QString className = QString::fromLatin1(object->metaObject()->className());
    return object->objectName().isEmpty() ? className
                                          : u"%1 “%2”"_s.arg(className, object->objectName());
}

QString pixmapText(const QPixmap &pixmap)
{
    return pixmap.isNull() ? tr("none") : u"%1 × %2"_s.arg(pixmap.width()).arg(pixmap.height());
}

/// What a debugger would show, without the type before it.
QString debugText(const QVariant &value)
{
    QString text;
    QDebug(&text).nospace().noquote() << value;
    const QString head = u"QVariant(%1, "_s.arg(QLatin1StringView(value.typeName()));
    if (text.startsWith(head))
        text = text.mid(head.size()).chopped(1);
    return text;
}

} // namespace

QString text(const QMetaProperty &property, const QVariant &value)
{
    if (!property.isEnumType())
        return text(value);
    const QMetaEnum names = property.enumerator();
    const int number = value.toInt();
    const QByteArray keys = names.isFlag() ? names.valueToKeys(number)
                                           : QByteArray(names.valueToKey(number));
    return keys.isEmpty() ? QString::number(number) : QString::fromLatin1(keys);
}

QString text(const QVariant &value)
{
    if (!value.isValid())
        return {};
    if (value.metaType().flags().testFlag(QMetaType::PointerToQObject))
        return objectText(value.value<QObject *>());
    switch (value.typeId()) {
    case QMetaType::QIcon:
        return value.value<QIcon>().isNull() ? tr("none") : tr("icon");
    case QMetaType::QPixmap:
        return pixmapText(value.value<QPixmap>());
    case QMetaType::QPalette:
        return tr("palette");
    case QMetaType::QLocale:
        return value.toLocale().name();
    case QMetaType::QStringList:
        return oneLine(value.toStringList().join(u", "_s));
    default:
        break;
    }
    return oneLine(value.canConvert<QString>() ? value.toString() : debugText(value));
}

} // namespace PropertyText
