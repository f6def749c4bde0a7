// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/EditScene.h"
#include "address/FolderTree.h"

#include "support/Input.h"
#include "support/TestCase.h"

#include <QCompleter>
#include <QPointer>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class tst_AddressStripCompletion : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void foldersAreOffered_data();
    void foldersAreOffered();
    void atMostTwoHundredFoldersAreOffered();
    void everyOfferIsGoneTo_data();
    void everyOfferIsGoneTo();
    void aClickedOfferIsGoneTo();
    void anOfferOfTheShownPathShowsTheEntries();
    void theStripMayGoWhenAnOfferIsClicked();
};

void tst_AddressStripCompletion::foldersAreOffered_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("offers");
    QTest::newRow("below") << u"%1/"_s << QStringList{u"%1/Abc"_s, u"%1/abd"_s, u"%1/b &c"_s};
    QTest::newRow("backslashes") << u"%2\\"_s
                                 << QStringList{u"%2\\Abc"_s, u"%2\\abd"_s, u"%2\\b &c"_s};
    QTest::newRow("begun") << u"%1/B"_s << QStringList{u"%1/b &c"_s};
    QTest::newRow("any case") << u"%1/aB"_s << QStringList{u"%1/Abc"_s, u"%1/abd"_s};
    QTest::newRow("whole") << u"%1/Abc"_s << QStringList{u"%1/Abc/below"_s};
    QTest::newRow("nothing like it") << u"%1/x"_s << QStringList{};
    QTest::newRow("missing folder") << u"%1/x/"_s << QStringList{};
    QTest::newRow("a file") << u"%1/file/"_s << QStringList{};
    QTest::newRow("no separator") << u"Abc"_s << QStringList{};
}

void tst_AddressStripCompletion::foldersAreOffered()
{
    QFETCH(const QString, typed);
    QFETCH(QStringList, offers);
    const FolderTree tree({u"Abc/below"_s, u"abd"_s, u"b &c"_s, u".hidden"_s, u"back\\slash"_s});
    tree.addFile(u"file"_s);
    const auto filled = [&tree](QString text) {
        return text.replace(u"%1"_s, tree.path()).replace(u"%2"_s, backslashed(tree.path()));
    };
    for (QString &offer : offers)
        offer = filled(offer);
    const EditScene scene(u"/tmp"_s);
    QVERIFY(scene.offers().isEmpty());
    scene.edit();
    scene.type(filled(typed));
    QCOMPARE(scene.offers(), offers);
}

void tst_AddressStripCompletion::atMostTwoHundredFoldersAreOffered()
{
    QStringList folders;
    for (int i = 0; i < 300; ++i)
        folders.append(u"folder%1"_s.arg(i, 3, 10, QChar(u'0')));
    folders.append(u"last"_s);
    const FolderTree tree(folders);
    const EditScene scene(u"/tmp"_s);
    scene.edit();
    scene.type(tree.path() + u'/');
    QCOMPARE(scene.offers().size(), 200);
    scene.type(u"l"_s);
    QCOMPARE(scene.offers(), QStringList(tree.path(u"last"_s)));
}

void tst_AddressStripCompletion::everyOfferIsGoneTo_data()
{
    QTest::addColumn<QString>("separator");
    QTest::newRow("slash") << u"/"_s;
    QTest::newRow("backslash") << u"\\"_s;
}

void tst_AddressStripCompletion::everyOfferIsGoneTo()
{
    QFETCH(const QString, separator);
    const QStringList names{u" space "_s, u"a&b"_s, u"c\nd"_s, u"\u05e9"_s};
    const FolderTree tree(names);
    const EditScene scene(u"/tmp"_s);
    for (const QString &name : names) {
        scene.edit();
        scene.type(tree.path().replace(u'/', separator) + separator);
        const QStringList offers = scene.offers();
        QCOMPARE(offers.size(), names.size());
        for (const QString &offer : offers) {
            if (offer.endsWith(name))
                Q_EMIT scene.strip->completer()->activated(offer);
        }
        QVERIFY(scene.shows(tree.path(name)));
    }
}

void tst_AddressStripCompletion::aClickedOfferIsGoneTo()
{
    const FolderTree tree({u"abc"_s, u"abd"_s});
    const EditScene scene(u"/tmp"_s);
    scene.edit();
    scene.type(tree.path() + u"/ab"_s);
    QVERIFY(scene.list()->isVisible());
    const QRect row = scene.list()->visualRect(scene.list()->model()->index(1, 0));
    Input::press(scene.list()->viewport(), row.center());
    QVERIFY(scene.isEditing());
    Input::release(scene.list()->viewport(), row.center());
    QVERIFY(scene.shows(tree.path(u"abd"_s)));
    QVERIFY(!scene.list()->isVisible());
    QCOMPARE(scene.ways(), u"b-u"_s);
}

void tst_AddressStripCompletion::anOfferOfTheShownPathShowsTheEntries()
{
    const FolderTree tree({u"abc"_s});
    const EditScene scene(tree.path(u"abc"_s));
    scene.edit();
    scene.type(tree.path() + u"/a"_s);
    QVERIFY(scene.list()->isVisible());
    QTest::keyClick(scene.list(), Qt::Key_Down);
    QTest::keyClick(scene.list(), Qt::Key_Return);
    QVERIFY(scene.shows(tree.path(u"abc"_s)));
    QVERIFY(!scene.list()->isVisible());
}

void tst_AddressStripCompletion::theStripMayGoWhenAnOfferIsClicked()
{
    const FolderTree tree({u"abc"_s});
    const EditScene scene(u"/tmp"_s);
    const QPointer<AddressStrip> strip = scene.strip;
    scene.edit();
    scene.type(tree.path() + u'/');
    connect(strip, &AddressStrip::signalPathChanged, &scene.window, [strip] { delete strip; });
    const QRect row = scene.list()->visualRect(scene.list()->model()->index(0, 0));
    Input::click(scene.list()->viewport(), row.center());
    QVERIFY(!strip);
}

QTEST_MAIN(tst_AddressStripCompletion)

#include "tst_addressstripcompletion.moc"
