// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/TestCase.h"

#include "PageLoader.h"

#include <QFile>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// Files as pages.
class tst_PageLoader final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tellsTheKindOfAFile_data();
    void tellsTheKindOfAFile();
    void saysWhyAFileCannotBeRead_data();
    void saysWhyAFileCannotBeRead();
    void aTextIsReadOnlyAndHasLettersOfOneWidth();
    void aTextGoesToALine();
    void onlyMarkdownHasHeadings();
    void aPictureIsShownAtItsSizeAndScrolls();
    void aPictureSaysWhatItIs();

private:
    QString createFile(const QString &name, const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_PageLoader::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

QString tst_PageLoader::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(m_folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

void tst_PageLoader::tellsTheKindOfAFile_data()
{
    using Kind = PageLoader::Kind;
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");

    const QByteArray svg(R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="5"/>)");
    QTest::newRow("text") << u"a.txt"_s << QByteArray("a") << int(Kind::Text);
    QTest::newRow("empty") << u"a.txt"_s << QByteArray() << int(Kind::Text);
    QTest::newRow("empty without suffix") << u"a"_s << QByteArray() << int(Kind::Text);
    QTest::newRow("source") << u"a.cpp"_s << QByteArray("int a;") << int(Kind::Text);
    QTest::newRow("without suffix") << u"a"_s << QByteArray("some text\n") << int(Kind::Text);
    QTest::newRow("unknown suffix") << u"a.xyzzy"_s << QByteArray("text\n") << int(Kind::Text);
    QTest::newRow("not only ASCII")
        << u"a.txt"_s << QByteArray("gr\xc3\xbc\xc3\x9f") << int(Kind::Text);
    QTest::newRow("Markdown") << u"a.md"_s << QByteArray("# a") << int(Kind::Markdown);
    QTest::newRow("Markdown in capitals") << u"A.MD"_s << QByteArray("# a") << int(Kind::Markdown);
    QTest::newRow("drawing") << u"a.svg"_s << svg << int(Kind::Picture);
    QTest::newRow("portable bitmap")
        << u"a.pbm"_s << QByteArray("P1 1 1 0\n") << int(Kind::Picture);
}

void tst_PageLoader::tellsTheKindOfAFile()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    const PageLoader::Result result = PageLoader::load(createFile(name, bytes));
    QVERIFY2(result.page, qPrintable(result.reason));
    QTEST(int(result.kind), "kind");
    QCOMPARE(result.page->path(), m_folder->filePath(name));
}

void tst_PageLoader::saysWhyAFileCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");

    QTest::newRow("none") << u"none/a.txt"_s << QByteArray() << u"no such file"_s;
    QTest::newRow("folder") << u"."_s << QByteArray() << u"no file"_s;
    QTest::newRow("not UTF-8") << u"a.txt"_s << QByteArray("a\xff\xfe") << u"neither"_s;
    QTest::newRow("zeros") << u"a.dat"_s << QByteArray("a\0b", 3) << u"neither"_s;
    QTest::newRow("no picture") << u"a.png"_s << QByteArray("text") << u"picture"_s;
    QTest::newRow("too large") << u"a.txt"_s << QByteArray(PageLoader::MaximumSize + 1, 'a')
                               << u"16 MiB"_s;
}

void tst_PageLoader::saysWhyAFileCannotBeRead()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    if (!bytes.isEmpty())
        createFile(name, bytes);
    const PageLoader::Result result = PageLoader::load(m_folder->filePath(name));
    QVERIFY(!result.page);
    QVERIFY2(result.reason.contains(reason), qPrintable(result.reason));
}

void tst_PageLoader::aTextIsReadOnlyAndHasLettersOfOneWidth()
{
    const PageLoader::Result result = PageLoader::load(createFile(u"a.txt"_s, "a\r\nb"));
    auto *text = result.page->findChild<QPlainTextEdit *>();
    QCOMPARE(text->toPlainText(), u"a\nb"_s);
    QVERIFY(text->isReadOnly());
    QCOMPARE(text->accessibleName(), u"a.txt"_s);
    QCOMPARE(result.page->focusProxy(), text);
    // Also below a sheet that sets another font.
    QWidget parent;
    parent.setStyleSheet(u"QWidget { font-family: \"DejaVu Sans\"; }"_s);
    result.page->setParent(&parent);
    text->ensurePolished();
    QVERIFY(QFontInfo(text->font()).fixedPitch());
    QCOMPARE(text->fontMetrics().horizontalAdvance(u'i'),
             text->fontMetrics().horizontalAdvance(u'W'));
    result.page->setParent(nullptr);
}

void tst_PageLoader::aTextGoesToALine()
{
    const PageLoader::Result result = PageLoader::load(
        createFile(u"a.txt"_s, QByteArray("line\n").repeated(99) + "end"));
    auto *text = result.page->findChild<QPlainTextEdit *>();
    result.page->resize(200, 100);
    result.page->show();
    QVERIFY(QTest::qWaitForWindowExposed(result.page.get()));
    result.page->goToLine(50);
    QCOMPARE(text->textCursor().blockNumber(), 50);
    QCOMPARE(text->verticalScrollBar()->value(), 50);
    result.page->goToLine(99);
    QCOMPARE(text->textCursor().selectedText(), u"end"_s);
    result.page->goToLine(-1);
    result.page->goToLine(100);
    QCOMPARE(text->textCursor().blockNumber(), 99);
}

void tst_PageLoader::onlyMarkdownHasHeadings()
{
    QCOMPARE(PageLoader::load(createFile(u"a.txt"_s, "# a")).page->outline().size(), 0);
    QCOMPARE(PageLoader::load(createFile(u"a.md"_s, "# a")).page->outline().size(), 1);
}

void tst_PageLoader::aPictureIsShownAtItsSizeAndScrolls()
{
    const QString file = m_folder->filePath(u"a.png"_s);
    QVERIFY(QImage(300, 40, QImage::Format_RGB32).save(file));
    const PageLoader::Result result = PageLoader::load(file);
    QCOMPARE(result.page->findChild<QLabel *>()->size(), QSize(300, 40));
    result.page->resize(200, 100);
    result.page->show();
    QVERIFY(QTest::qWaitForWindowExposed(result.page.get()));
    const auto *area = result.page->findChild<QScrollArea *>();
    QCOMPARE_GT(area->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(area->verticalScrollBar()->maximum(), 0);
    result.page->goToLine(3);
}

void tst_PageLoader::aPictureSaysWhatItIs()
{
    const QString file = m_folder->filePath(u"a.png"_s);
    QVERIFY(QImage(300, 40, QImage::Format_Grayscale8).save(file));
    QStringList texts;
    const QList<OutlineEntry> entries = PageLoader::load(file).page->outline();
    for (const OutlineEntry &entry : entries) {
        texts.append(entry.text);
        QCOMPARE(entry.line, -1);
    }
    QCOMPARE(texts, (QStringList{u"Size: 300 × 40 pixels"_s, u"Depth: 8 bits per pixel"_s,
                                 u"Format: PNG"_s}));
}

QTEST_MAIN(tst_PageLoader)

#include "tst_pageloader.moc"
