// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PropertyText.h"

#include <QColor>
#include <QFrame>
#include <QIcon>
#include <QLocale>
#include <QMetaProperty>
#include <QPixmap>
#include <QRect>
#include <QSizePolicy>
#include <QTest>

using namespace Qt::StringLiterals;

/// Values of properties in words.
class tst_PropertyText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysAValueInALine_data();
    void saysAValueInALine();
    void enumerationsAreSaidByName();
    void objectsAreSaidByClassAndName();
};

void tst_PropertyText::saysAValueInALine_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QVariant() << QString();
    QTest::newRow("text") << QVariant(u"a b"_s) << u"a b"_s;
    QTest::newRow("lines") << QVariant(u"a\nb"_s) << u"a↵b"_s;
    QTest::newRow("long") << QVariant(QString(201, u'x')) << QString(QString(200, u'x') + u'…');
    QTest::newRow("number") << QVariant(-3) << u"-3"_s;
    QTest::newRow("truth") << QVariant(true) << u"true"_s;
    QTest::newRow("colour") << QVariant(QColor(1, 2, 3)) << u"#010203"_s;
    QTest::newRow("size") << QVariant(QSize(4, 5)) << u"QSize(4, 5)"_s;
    QTest::newRow("rectangle") << QVariant(QRect(1, 2, 3, 4)) << u"QRect(1,2 3x4)"_s;
    QTest::newRow("list") << QVariant(QStringList{u"a"_s, u"b"_s}) << u"a, b"_s;
    QTest::newRow("locale") << QVariant(QLocale(QLocale::German, QLocale::Austria)) << u"de_AT"_s;
    QTest::newRow("no icon") << QVariant(QIcon()) << u"none"_s;
    QTest::newRow("no pixmap") << QVariant(QPixmap()) << u"none"_s;
    QTest::newRow("no object") << QVariant::fromValue<QObject *>(nullptr) << u"none"_s;
}

void tst_PropertyText::saysAValueInALine()
{
    QFETCH(const QVariant, value);
    QTEST(PropertyText::text(value), "text");
    QPixmap pixmap(3, 2);
    QCOMPARE(PropertyText::text(pixmap), u"3 × 2"_s);
    pixmap.fill(Qt::red);
    QCOMPARE(PropertyText::text(QIcon(pixmap)), u"icon"_s);
}

void tst_PropertyText::enumerationsAreSaidByName()
{
    const QMetaObject &meta = QFrame::staticMetaObject;
    const QMetaProperty shape = meta.property(meta.indexOfProperty("frameShape"));
    QCOMPARE(PropertyText::text(shape, QFrame::HLine), u"HLine"_s);
    QCOMPARE(PropertyText::text(shape, 99), u"99"_s);
    const QMetaProperty hints = meta.property(meta.indexOfProperty("inputMethodHints"));
    QCOMPARE(PropertyText::text(hints, int(Qt::ImhDigitsOnly | Qt::ImhLatinOnly)),
             u"ImhDigitsOnly|ImhLatinOnly"_s);
}

void tst_PropertyText::objectsAreSaidByClassAndName()
{
    QObject object;
    QCOMPARE(PropertyText::text(QVariant::fromValue(&object)), u"QObject"_s);
    object.setObjectName(u"a"_s);
    QCOMPARE(PropertyText::text(QVariant::fromValue(&object)), u"QObject “a”"_s);
}

QTEST_MAIN(tst_PropertyText)

#include "tst_propertytext.moc"
