// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/Input.h"
#include "support/TestCase.h"

#include "ContentLoader.h"
#include "ElidedLabel.h"
#include "FileContent.h"
#include "PictureView.h"
#include "PreviewPane.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// The preview and its views.
class tst_FilesPreview final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsAText();
    void showsAPicture();
    void saysWhyThereIsNeither();
    void showsNamesAsTheyAre();
    void showsOnlyTheLastOfMany();
    void readsNothingWhileItIsHidden();
    void anOpenedTextGetsTheFocus();
    void anOpenedFileIsReadAgain();
    void changesAreShown();
    void aLongNameDoesNotWidenTheWindow();
    void factsStandAtTheEndOfTheLine_data();
    void factsStandAtTheEndOfTheLine();
    void aPictureIsScaledDownButNotUp_data();
    void aPictureIsScaledDownButNotUp();
    void aScaledPictureHasThePixelsOfTheScreen();
    void aForgottenFileIsNotDelivered();
    void aLoaderMayGoWhileItReads();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString createFile(const QString &name, const QByteArray &bytes) const;
    QPlainTextEdit *text() const { return m_pane->findChild<QPlainTextEdit *>(); }
    QLabel *label(const QString &name) const { return m_pane->findChild<QLabel *>(name); }
    PictureView *picture() const { return m_pane->findChild<PictureView *>(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PreviewPane> m_pane;
};

void tst_FilesPreview::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_pane = std::make_unique<PreviewPane>();
    m_pane->resize(400, 200);
    QVERIFY(Input::show(m_pane.get()));
}

void tst_FilesPreview::cleanup()
{
    m_pane.reset();
    TestCase::cleanup();
}

QString tst_FilesPreview::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

void tst_FilesPreview::showsAText()
{
    m_pane->showPath(createFile(u"a.txt"_s, "some\r\ntext"));
    QTRY_VERIFY(text()->isVisible());
    QCOMPARE(text()->toPlainText(), u"some\ntext"_s);
    QVERIFY(text()->isReadOnly());
    QCOMPARE(text()->accessibleName(), u"a.txt"_s);
    QCOMPARE(label(u"previewName"_s)->text(), u"a.txt"_s);
    QVERIFY(label(u"previewFacts"_s)->text().startsWith(u"File · 10 bytes · "_s));
    QVERIFY(QFontInfo(text()->font()).fixedPitch());
}

void tst_FilesPreview::showsAPicture()
{
    QImage image(100, 50, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QVERIFY(image.save(path(u"a.png"_s)));
    m_pane->showPath(path(u"a.png"_s));
    QTRY_VERIFY(picture()->isVisible());
    QCOMPARE(picture()->accessibleName(), u"a.png"_s);
    const QImage shown = picture()->grab().toImage();
    const QRect rect = picture()->pictureRect();
    const auto ratio = int(picture()->devicePixelRatioF());
    QCOMPARE(rect.size(), QSize(100, 50));
    QCOMPARE(shown.pixelColor(rect.center() * ratio), QColor(Qt::blue));
    QCOMPARE(shown.pixelColor((rect.topLeft() - QPoint(2, 2)) * ratio), QColor(Qt::white));
}

void tst_FilesPreview::saysWhyThereIsNeither()
{
    m_pane->showPath(createFile(u"a.png"_s, "no picture"));
    QTRY_VERIFY(label(u"previewMessage"_s)->text().contains(u"could not be read"_s));
    QVERIFY(label(u"previewMessage"_s)->isVisible());
    m_pane->showPath(path(u"none"_s));
    QTRY_COMPARE(label(u"previewMessage"_s)->text(), u"It does not exist any more."_s);
    m_pane->showPath(m_folder->path());
    QTRY_COMPARE(label(u"previewMessage"_s)->text(), u"Number of entries: 1"_s);
}

void tst_FilesPreview::showsNamesAsTheyAre()
{
    const QString name = u"<b>&amp;\n[*] %1.txt"_s;
    m_pane->showPath(createFile(name, "text"));
    QTRY_COMPARE(label(u"previewName"_s)->text(), u"<b>&amp; [*] %1.txt"_s);
    QCOMPARE(label(u"previewName"_s)->textFormat(), Qt::PlainText);
    QCOMPARE(label(u"previewName"_s)->toolTip(), u"<p>&lt;b&gt;&amp;amp; [*] %1.txt</p>"_s);
    QCOMPARE(label(u"previewMessage"_s)->textFormat(), Qt::PlainText);
}

void tst_FilesPreview::showsOnlyTheLastOfMany()
{
    const QSignalSpy loaded(m_pane->findChild<ContentLoader *>(), &ContentLoader::loaded);
    for (const QString &name : {u"a.txt"_s, u"b.txt"_s, u"c.txt"_s})
        m_pane->showPath(createFile(name, name.toUtf8()));
    QTRY_COMPARE(text()->toPlainText(), u"c.txt"_s);
    QCOMPARE(loaded.size(), 1);
}

void tst_FilesPreview::readsNothingWhileItIsHidden()
{
    m_pane->hide();
    QSignalSpy loaded(m_pane->findChild<ContentLoader *>(), &ContentLoader::loaded);
    m_pane->showPath(createFile(u"a.txt"_s, "text"));
    constexpr int LongEnough = 200;
    QVERIFY(!loaded.wait(LongEnough));
    m_pane->show();
    QTRY_COMPARE(text()->toPlainText(), u"text"_s);
}

void tst_FilesPreview::anOpenedTextGetsTheFocus()
{
    auto *field = new QLineEdit;
    m_pane->layout()->addWidget(field);
    field->setFocus();
    m_pane->showPath(createFile(u"a.txt"_s, "a"));
    QTRY_VERIFY(text()->isVisible());
    QVERIFY(field->hasFocus());
    m_pane->openFile(createFile(u"b.png"_s, "b"));
    QTRY_VERIFY(label(u"previewMessage"_s)->isVisible());
    QVERIFY(field->hasFocus());
    m_pane->openFile(path(u"a.txt"_s));
    QTRY_VERIFY(text()->hasFocus());
}

void tst_FilesPreview::anOpenedFileIsReadAgain()
{
    m_pane->showPath(createFile(u"a.txt"_s, "before"));
    QTRY_COMPARE(text()->toPlainText(), u"before"_s);
    m_pane->openFile(createFile(u"a.txt"_s, "after"));
    QTRY_COMPARE(text()->toPlainText(), u"after"_s);
}

void tst_FilesPreview::changesAreShown()
{
    m_pane->showPath(m_folder->path());
    QTRY_COMPARE(label(u"previewMessage"_s)->text(), u"Number of entries: 0"_s);
    createFile(u"a.txt"_s, "before");
    QTRY_COMPARE(label(u"previewMessage"_s)->text(), u"Number of entries: 1"_s);
    m_pane->showPath(path(u"a.txt"_s));
    QTRY_COMPARE(text()->toPlainText(), u"before"_s);
    createFile(u"a.txt"_s, "after");
    QTRY_COMPARE(text()->toPlainText(), u"after"_s);
    QVERIFY(QFile::remove(path(u"a.txt"_s)));
    QTRY_COMPARE(label(u"previewMessage"_s)->text(), u"It does not exist any more."_s);
}

void tst_FilesPreview::aLongNameDoesNotWidenTheWindow()
{
    const int before = m_pane->minimumSizeHint().width();
    const QString name(250, u'x');
    m_pane->showPath(createFile(name, "\1\0\2"));
    QTRY_COMPARE(label(u"previewName"_s)->text(), name);
    QCOMPARE(m_pane->minimumSizeHint().width(), before);
}

void tst_FilesPreview::factsStandAtTheEndOfTheLine_data()
{
    QTest::addColumn<bool>("isReversed");
    QTest::addColumn<QString>("text");

    QTest::newRow("left to right") << false << u"text"_s;
    QTest::newRow("right to left") << true << u"text"_s;
    QTest::newRow("left to right, Hebrew") << false << u"שלום"_s;
    QTest::newRow("right to left, Hebrew") << true << u"שלום"_s;
}

void tst_FilesPreview::factsStandAtTheEndOfTheLine()
{
    QFETCH(const bool, isReversed);
    QFETCH(const QString, text);
    ElidedLabel line;
    line.setLayoutDirection(isReversed ? Qt::RightToLeft : Qt::LeftToRight);
    line.setLine(text);
    line.resize(300, 20);
    const auto inkIsOnTheLeft = [&line] {
        QImage image(line.size(), QImage::Format_RGB32);
        line.render(&image);
        const QImage half = image.copy(0, 0, image.width() / 2, image.height());
        QImage plain(half.size(), half.format());
        plain.fill(image.pixelColor(image.width() / 2, 1));
        return half != plain;
    };
    QCOMPARE(inkIsOnTheLeft(), !isReversed);
    line.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(inkIsOnTheLeft(), isReversed);
}

void tst_FilesPreview::aPictureIsScaledDownButNotUp_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("rect");

    QTest::newRow("small") << QSize(10, 20) << QRect(45, 15, 10, 20);
    QTest::newRow("as large") << QSize(100, 50) << QRect(0, 0, 100, 50);
    QTest::newRow("too wide") << QSize(1000, 100) << QRect(0, 20, 100, 10);
    QTest::newRow("too high") << QSize(100, 500) << QRect(45, 0, 10, 50);
    QTest::newRow("a line") << QSize(1000, 1) << QRect(0, 25, 100, 1);
}

void tst_FilesPreview::aPictureIsScaledDownButNotUp()
{
    QFETCH(const QSize, size);
    QFETCH(const QRect, rect);
    PictureView view;
    view.resize(100, 50);
    view.setPicture(QImage(size, QImage::Format_RGB32), size);
    QCOMPARE(view.pictureRect().size(), rect.size());
    const QPoint offset = view.pictureRect().center() - rect.center();
    QVERIFY2(qAbs(offset.x()) <= 1 && qAbs(offset.y()) <= 1, "it is not in the middle");
}

void tst_FilesPreview::aScaledPictureHasThePixelsOfTheScreen()
{
    // Lines of one pixel each, black and white: they are to be seen only in pixels of the screen.
    QImage lines(200, 100, QImage::Format_RGB32);
    lines.fill(Qt::white);
    for (int x = 0; x < lines.width(); x += 2) {
        for (int y = 0; y < lines.height(); ++y)
            lines.setPixelColor(x, y, Qt::black);
    }
    PictureView view;
    view.resize(100, 50);
    view.setPicture(lines, lines.size());
    QImage image(200, 100, QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    view.render(&image);
    if (view.devicePixelRatioF() < 2)
        QSKIP("Only for a screen of ratio 2.");
    QCOMPARE(image.pixelColor(100, 50), QColor(Qt::black));
    QCOMPARE(image.pixelColor(101, 50), QColor(Qt::white));
}

void tst_FilesPreview::aForgottenFileIsNotDelivered()
{
    ContentLoader loader;
    QSignalSpy loaded(&loader, &ContentLoader::loaded);
    loader.load(createFile(u"a.txt"_s, "a"));
    loader.cancel();
    loader.load(createFile(u"b.txt"_s, "b"));
    QVERIFY(loaded.wait());
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(loaded.at(0).at(0).value<FileContent>().text, u"b"_s);
}

void tst_FilesPreview::aLoaderMayGoWhileItReads()
{
    const QString file = createFile(u"a.txt"_s, "a");
    for (int i = 0; i < 50; ++i) {
        ContentLoader loader;
        loader.load(file);
    }
}

QTEST_MAIN(tst_FilesPreview)

#include "tst_filespreview.moc"
