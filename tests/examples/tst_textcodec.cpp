// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextCodec.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// From bytes to text and back.
class tst_TextCodec final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesComeBack_data();
    void bytesComeBack();
    void refusesWhatIsNoText_data();
    void refusesWhatIsNoText();
    void aFailureChangesNothing();
    void onlyUtf8IsTakenWhereOthersAreNotWanted();
    void namesTheFirstLetterThatLatin1DoesNotHave();
};

void tst_TextCodec::bytesComeBack_data()
{
    using Encoding = TextCodec::Encoding;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<TextCodec::Encoding>("encoding");
    QTest::addColumn<bool>("hasMark");

    QTest::newRow("nothing") << QByteArray("") << QString() << Encoding::Utf8 << false;
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA9") << u"é"_s << Encoding::Utf8 << false;
    QTest::newRow("UTF-8, mark") << QByteArray("\xEF\xBB\xBF\xC3\xA9") << u"é"_s << Encoding::Utf8
                                 << true;
    QTest::newRow("UTF-16, little endian")
        << QByteArray("\xFF\xFE\xE9\0\n\0", 6) << u"é\n"_s << Encoding::Utf16LittleEndian << true;
    QTest::newRow("UTF-16, big endian")
        << QByteArray("\xFE\xFF\0\xE9\0\n", 6) << u"é\n"_s << Encoding::Utf16BigEndian << true;
    QTest::newRow("UTF-16, letter of four bytes")
        << QByteArray("\xFE\xFF\xD8\x3D\xDE\x00", 6) << u"\U0001F600"_s << Encoding::Utf16BigEndian
        << true;
    QTest::newRow("UTF-16, two marks")
        << QByteArray("\xFF\xFE\xFF\xFE", 4) << u"\uFEFF"_s << Encoding::Utf16LittleEndian << true;
    QTest::newRow("UTF-16, nothing else")
        << QByteArray("\xFF\xFE") << QString() << Encoding::Utf16LittleEndian << true;
    QTest::newRow("Latin-1") << QByteArray("caf\xE9\r\n\x80\x9F\xFF") << u"café\r\n\u0080\u009fÿ"_s
                             << Encoding::Latin1 << false;
    QTest::newRow("Latin-1, controls")
        << QByteArray("\xE9\t\v\f\b\x1B[0m") << u"é\t\v\f\b\x1B[0m"_s << Encoding::Latin1 << false;
}

void tst_TextCodec::bytesComeBack()
{
    QFETCH(const QByteArray, bytes);
    TextCodec codec;
    QString text;
    const FileStatus status = codec.decode(bytes, TextCodec::Encodings::All, &text);
    QVERIFY2(status.ok(), qPrintable(status.reason));
    QTEST(text, "text");
    QTEST(codec.encoding(), "encoding");
    QTEST(codec.hasByteOrderMark(), "hasMark");
    QVERIFY(codec.check(text).ok());
    QCOMPARE(codec.encode(text), bytes);
}

void tst_TextCodec::refusesWhatIsNoText_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("zero") << QByteArray("a\0", 2);
    QTest::newRow("zero in UTF-16") << QByteArray("\xFF\xFE\0\0", 4);
    QTest::newRow("half a letter of UTF-16") << QByteArray("\xFF\xFE\x61");
    QTest::newRow("controls that no text has") << QByteArray("\xE9\x01");
}

void tst_TextCodec::refusesWhatIsNoText()
{
    QFETCH(const QByteArray, bytes);
    TextCodec codec;
    QString text;
    const FileStatus status = codec.decode(bytes, TextCodec::Encodings::All, &text);
    QCOMPARE(status.error, FileStatus::Error::Binary);
    QVERIFY(!status.reason.isEmpty());
}

void tst_TextCodec::aFailureChangesNothing()
{
    TextCodec codec;
    QString text;
    QVERIFY(codec.decode("\xFF\xFE\x61\x62", TextCodec::Encodings::All, &text).ok());
    const QString before = text;
    QVERIFY(!codec.decode(QByteArray("\0", 1), TextCodec::Encodings::All, &text).ok());
    QCOMPARE(text, before);
    QCOMPARE(codec.encoding(), TextCodec::Encoding::Utf16LittleEndian);
    QVERIFY(codec.hasByteOrderMark());
}

void tst_TextCodec::onlyUtf8IsTakenWhereOthersAreNotWanted()
{
    TextCodec codec;
    QString text;
    QCOMPARE(codec.decode("\xE9", TextCodec::Encodings::OnlyUtf8, &text).error,
             FileStatus::Error::NotUtf8);
    QVERIFY(codec.decode("\xC3\xA9", TextCodec::Encodings::OnlyUtf8, &text).ok());
}

void tst_TextCodec::namesTheFirstLetterThatLatin1DoesNotHave()
{
    TextCodec codec;
    QVERIFY(codec.check(u"€"_s).ok());
    codec.setEncoding(TextCodec::Encoding::Latin1);
    QVERIFY(codec.check(u"é"_s).ok());
    const FileStatus status = codec.check(u"é\n\U0001F600€"_s);
    QCOMPARE(status.error, FileStatus::Error::NotEncodable);
    QVERIFY2(status.reason.contains(u"“\U0001F600” (line 2)"_s), qPrintable(status.reason));
}

QTEST_GUILESS_MAIN(tst_TextCodec)

#include "tst_textcodec.moc"
