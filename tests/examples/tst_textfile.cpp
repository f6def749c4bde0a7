// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// While it lives, no file can grow beyond some bytes: to a program, that is a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

} // namespace

class tst_TextFile final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anUnchangedTextComesBackByteByByte_data();
    void anUnchangedTextComesBackByteByByte();
    void aLargeFileComesBack();
    void tellsTheKindOfLineEnds_data();
    void tellsTheKindOfLineEnds();
    void newLinesGetTheLineEndsOfTheFile();
    void untouchedLinesKeepTheirLineEnds_data();
    void untouchedLinesKeepTheirLineEnds();
    void lineEndsCanBeMadeAlike_data();
    void lineEndsCanBeMadeAlike();
    void theByteOrderMarkCanBeAddedAndTakenAway();
    void aFileThatHidesItsSizeIsRead();
    void aFileOfTheMaximumSizeIsRead();

    void whatIsNoTextFileIsRefused_data();
    void whatIsNoTextFileIsRefused();
    void aSpecialFileIsRefusedInsteadOfAwaited();
    void afterAFailedLoadEverythingIsAsBefore();

    void savingKeepsThePermissions();
    void savingWritesThroughALink_data();
    void savingWritesThroughALink();
    void savingIntoARingOfLinksFails();
    void savingToAFolderFails();
    void savingToASpecialFileLeavesItThere();
    void savingIntoAFolderThatIsGoneFails();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();
    void aCopyIsAnotherFile();

    void noticesThatTheFileChanged();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString createFile(const QString &name, const QByteArray &bytes) const;
    static QByteArray bytesOf(const QString &path);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_TextFile::init()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_TextFile::cleanup()
{
    m_folder.reset();
}

QString tst_TextFile::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

QByteArray tst_TextFile::bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void tst_TextFile::anUnchangedTextComesBackByteByByte_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QByteArray("") << QString();
    QTest::newRow("no line end") << QByteArray("a") << u"a"_s;
    QTest::newRow("only a line end") << QByteArray("\n") << u"\n"_s;
    QTest::newRow("LF") << QByteArray("a\nb\n") << u"a\nb\n"_s;
    QTest::newRow("LF, none at the end") << QByteArray("a\n\nb") << u"a\n\nb"_s;
    QTest::newRow("CRLF") << QByteArray("a\r\nb\r\n") << u"a\nb\n"_s;
    QTest::newRow("CRLF, none at the end") << QByteArray("a\r\n\r\nb") << u"a\n\nb"_s;
    QTest::newRow("CR") << QByteArray("a\rb\r") << u"a\nb\n"_s;
    QTest::newRow("mixed") << QByteArray("a\r\nb\nc\rd\n\re\r\n") << u"a\nb\nc\nd\n\ne\n"_s;
    QTest::newRow("paragraph separator") << QByteArray("a\xE2\x80\xA9"
                                                       "b\n")
                                         << u"a\nb\n"_s;
    QTest::newRow("noncharacters") << QByteArray("a\xEF\xB7\x90\xEF\xB7\x91") << u"a\n\n"_s;
    QTest::newRow("mark") << QByteArray("\xEF\xBB\xBF"
                                        "a\n")
                          << u"a\n"_s;
    QTest::newRow("only a mark") << QByteArray("\xEF\xBB\xBF") << QString();
    QTest::newRow("two marks") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF"
                                             "a")
                               << u"\uFEFFa"_s;
    QTest::newRow("letters of many bytes")
        << QByteArray("\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80") << u"é € \U0001F600"_s;
    QTest::newRow("spaces of all kinds")
        << QByteArray("\t\v\f \xC2\x85\xC2\xA0\xE2\x80\xA8") << u"\t\v\f \u0085\u00a0\u2028"_s;
}

void tst_TextFile::anUnchangedTextComesBackByteByByte()
{
    QFETCH(const QByteArray, bytes);
    const QString name = createFile(u"a.txt"_s, bytes);
    TextFile file;
    QVERIFY(file.load(name).ok());
    QCOMPARE(file.path(), name);
    QTEST(file.text(), "text");
    QVERIFY(file.save(name, file.text()).ok());
    QCOMPARE(bytesOf(name), bytes);
    // Once more from what the first save left.
    QVERIFY(file.save(name, file.text()).ok());
    QCOMPARE(bytesOf(name), bytes);
}

void tst_TextFile::aLargeFileComesBack()
{
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += "Line " + QByteArray::number(i) + (i % 3 == 0 ? ", \xC3\xA9\r\n" : "\n");
    const QString name = createFile(u"a.txt"_s, bytes);
    TextFile file;
    QVERIFY(file.load(name).ok());
    QCOMPARE(file.lineEnd(), TextFile::LineEnd::Mixed);
    QVERIFY(file.save(name, file.text()).ok());
    QVERIFY(bytesOf(name) == bytes);
}

void tst_TextFile::tellsTheKindOfLineEnds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<TextFile::LineEnd>("lineEnd");

    QTest::newRow("none") << QByteArray("a") << TextFile::LineEnd::Lf;
    QTest::newRow("LF") << QByteArray("a\nb") << TextFile::LineEnd::Lf;
    QTest::newRow("CRLF") << QByteArray("a\r\nb") << TextFile::LineEnd::CrLf;
    QTest::newRow("CR") << QByteArray("a\rb") << TextFile::LineEnd::Cr;
    QTest::newRow("LF and CRLF") << QByteArray("a\nb\r\n") << TextFile::LineEnd::Mixed;
    QTest::newRow("CR and CRLF") << QByteArray("a\r\r\n") << TextFile::LineEnd::Mixed;
    QTest::newRow("LF and CR") << QByteArray("a\n\r") << TextFile::LineEnd::Mixed;
}

void tst_TextFile::tellsTheKindOfLineEnds()
{
    QFETCH(const QByteArray, bytes);
    TextFile file;
    QVERIFY(file.load(createFile(u"a.txt"_s, bytes)).ok());
    QTEST(file.lineEnd(), "lineEnd");
}

void tst_TextFile::newLinesGetTheLineEndsOfTheFile()
{
    const QString name = createFile(u"a.txt"_s, "\xEF\xBB\xBF"
                                                "a\r\n");
    TextFile file;
    QVERIFY(file.load(name).ok());
    QVERIFY(file.save(name, u"a\nb\nc"_s).ok());
    QCOMPARE(bytesOf(name), QByteArray("\xEF\xBB\xBF"
                                       "a\r\nb\r\nc"));
}

void tst_TextFile::untouchedLinesKeepTheirLineEnds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("expected");

    // Before: a CRLF b LF c CR d CRLF
    QTest::newRow("a line changed") << u"a\nb\nC\nd\n"_s << QByteArray("a\r\nb\nC\rd\r\n");
    QTest::newRow("the first changed") << u"A\nb\nc\nd\n"_s << QByteArray("A\r\nb\nc\rd\r\n");
    QTest::newRow("a line more") << u"a\nb\nx\nc\nd\n"_s << QByteArray("a\r\nb\nx\nc\rd\r\n");
    QTest::newRow("a line less") << u"a\nc\nd\n"_s << QByteArray("a\r\nc\rd\r\n");
    QTest::newRow("a line more at the end")
        << u"a\nb\nc\nd\ne\n"_s << QByteArray("a\r\nb\nc\rd\r\ne\r\n");
    QTest::newRow("no line end at the end") << u"a\nb\nc\nd"_s << QByteArray("a\r\nb\nc\rd");
    QTest::newRow("nothing left") << QString() << QByteArray();
    QTest::newRow("one line left") << u"x"_s << QByteArray("x");
    QTest::newRow("all lines new") << u"1\n2\n"_s << QByteArray("1\r\n2\r\n");
}

void tst_TextFile::untouchedLinesKeepTheirLineEnds()
{
    QFETCH(const QString, text);
    const QString name = createFile(u"a.txt"_s, "a\r\nb\nc\rd\r\n");
    TextFile file;
    QVERIFY(file.load(name).ok());
    QVERIFY(file.save(name, text).ok());
    QTEST(bytesOf(name), "expected");
    // What was saved is now what an unchanged text comes back as.
    QVERIFY(file.save(name, text).ok());
    QTEST(bytesOf(name), "expected");
}

void tst_TextFile::lineEndsCanBeMadeAlike_data()
{
    QTest::addColumn<TextFile::LineEnd>("lineEnd");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("LF") << TextFile::LineEnd::Lf << QByteArray("a\nb\nc\n");
    QTest::newRow("CRLF") << TextFile::LineEnd::CrLf << QByteArray("a\r\nb\r\nc\r\n");
    QTest::newRow("CR") << TextFile::LineEnd::Cr << QByteArray("a\rb\rc\r");
    QTest::newRow("mixed is no choice") << TextFile::LineEnd::Mixed << QByteArray("a\r\nb\nc\r");
}

void tst_TextFile::lineEndsCanBeMadeAlike()
{
    QFETCH(const TextFile::LineEnd, lineEnd);
    const QString name = createFile(u"a.txt"_s, "a\r\nb\nc\r");
    TextFile file;
    QVERIFY(file.load(name).ok());
    file.setLineEnd(lineEnd);
    QCOMPARE(file.lineEnd(), lineEnd);
    QVERIFY(file.save(name, file.text()).ok());
    QTEST(bytesOf(name), "expected");
}

void tst_TextFile::theByteOrderMarkCanBeAddedAndTakenAway()
{
    const QString name = createFile(u"a.txt"_s, "a\n");
    TextFile file;
    QVERIFY(file.load(name).ok());
    QVERIFY(!file.hasByteOrderMark());
    file.setByteOrderMark(true);
    QVERIFY(file.save(name, file.text()).ok());
    QCOMPARE(bytesOf(name), QByteArray("\xEF\xBB\xBF"
                                       "a\n"));
    QVERIFY(file.load(name).ok());
    QVERIFY(file.hasByteOrderMark());
    file.setByteOrderMark(false);
    QVERIFY(file.save(name, file.text()).ok());
    QCOMPARE(bytesOf(name), QByteArray("a\n"));
}

void tst_TextFile::aFileThatHidesItsSizeIsRead()
{
    const QString name = u"/proc/self/status"_s;
    if (!QFileInfo::exists(name))
        return; // another system than Linux
    QCOMPARE(QFileInfo(name).size(), 0);
    TextFile file;
    QVERIFY(file.load(name).ok());
    QVERIFY(file.text().contains(u"Pid:"_s));
}

void tst_TextFile::aFileOfTheMaximumSizeIsRead()
{
    TextFile file;
    QVERIFY(file.load(createFile(u"a.txt"_s, QByteArray(TextFile::MaximumSize, 'a'))).ok());
    QCOMPARE(file.text().size(), TextFile::MaximumSize);
}

void tst_TextFile::whatIsNoTextFileIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<TextFile::Error>("error");

    const auto add = [](const char *row, const QByteArray &bytes, TextFile::Error error) {
        QTest::newRow(row) << u"a.txt"_s << bytes << error;
    };
    QTest::newRow("missing") << u"missing.txt"_s << QByteArray() << TextFile::Error::NotFound;
    QTest::newRow("folder") << u"."_s << QByteArray() << TextFile::Error::NotRegular;
    const QString unreadable = u"/proc/self/mem"_s; // on Linux, not even for root
    if (QFileInfo::exists(unreadable))
        QTest::newRow("unreadable") << unreadable << QByteArray() << TextFile::Error::ReadFailed;
    add("NUL", QByteArray("a\0b", 3), TextFile::Error::Binary);
    add("UTF-16",
        QByteArray("\xFF\xFE"
                   "a\0",
                   4),
        TextFile::Error::Binary);
    add("Latin-1", "caf\xE9\n", TextFile::Error::NotUtf8);
    add("cut in a letter", "a\xE2\x82", TextFile::Error::NotUtf8);
    add("overlong", "\xC0\xAF", TextFile::Error::NotUtf8);
    add("surrogate", "\xED\xA0\x80", TextFile::Error::NotUtf8);
    add("too large", QByteArray(TextFile::MaximumSize + 1, 'a'), TextFile::Error::TooLarge);
}

void tst_TextFile::whatIsNoTextFileIsRefused()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    createFile(u"a.txt"_s, bytes);
    const QString file = QDir(m_folder->path()).absoluteFilePath(name);
    const TextFile::Status status = TextFile().load(file);
    QTEST(status.error, "error");
    QVERIFY(!status.ok());
    QVERIFY(!status.reason.isEmpty());
}

void tst_TextFile::aSpecialFileIsRefusedInsteadOfAwaited()
{
    const QString name = path(u"pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    QCOMPARE(TextFile().load(name).error, TextFile::Error::NotRegular);
}

void tst_TextFile::afterAFailedLoadEverythingIsAsBefore()
{
    const QString good = createFile(u"a.txt"_s, "\xEF\xBB\xBF"
                                                "a\r\nb\n");
    const QString bad = createFile(u"b.txt"_s, QByteArray("\0", 1));
    TextFile file;
    QVERIFY(file.load(good).ok());
    QVERIFY(!file.load(bad).ok());
    QCOMPARE(file.path(), good);
    QCOMPARE(file.text(), u"a\nb\n"_s);
    QVERIFY(file.hasByteOrderMark());
    QCOMPARE(file.lineEnd(), TextFile::LineEnd::Mixed);
    QVERIFY(!file.isChangedOnDisk());
}

void tst_TextFile::savingKeepsThePermissions()
{
    const QString name = createFile(u"a.sh"_s, "a\n");
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                           | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(name, permissions));
    const QFile::Permissions before = QFile::permissions(name);
    TextFile file;
    QVERIFY(file.load(name).ok());
    QVERIFY(file.save(name, u"b\n"_s).ok());
    QCOMPARE(QFile::permissions(name), before);
}

void tst_TextFile::savingWritesThroughALink_data()
{
    QTest::addColumn<QStringList>("links");
    QTest::addColumn<bool>("targetExists");

    QTest::newRow("one link") << QStringList{u"target.txt"_s} << true;
    QTest::newRow("link to a link") << QStringList{u"target.txt"_s, u"link0"_s} << true;
    QTest::newRow("link to nowhere yet") << QStringList{u"target.txt"_s} << false;
    QTest::newRow("link through a folder") << QStringList{u"folder/../target.txt"_s} << true;
}

void tst_TextFile::savingWritesThroughALink()
{
    QFETCH(const QStringList, links);
    QFETCH(const bool, targetExists);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    if (targetExists)
        createFile(u"target.txt"_s, "old\n");
    QString link;
    for (qsizetype i = 0; i < links.size(); ++i) {
        link = path(u"link%1"_s.arg(i));
        // A relative link, as people make them.
        QCOMPARE(symlink(QFile::encodeName(links.at(i)).constData(),
                         QFile::encodeName(link).constData()),
                 0);
    }
    TextFile file;
    if (targetExists)
        QVERIFY(file.load(link).ok());
    QVERIFY(file.save(link, u"new\n"_s).ok());
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(!QFileInfo(path(u"target.txt"_s)).isSymLink());
    QCOMPARE(bytesOf(path(u"target.txt"_s)), QByteArray("new\n"));
    QCOMPARE(file.path(), link);
}

void tst_TextFile::savingIntoARingOfLinksFails()
{
    QVERIFY(QFile::link(path(u"b"_s), path(u"a"_s)));
    QVERIFY(QFile::link(path(u"a"_s), path(u"b"_s)));
    TextFile file;
    QCOMPARE(file.save(path(u"a"_s), u"text"_s).error, TextFile::Error::NotRegular);
    QVERIFY(QFileInfo(path(u"a"_s)).isSymLink());
    QVERIFY(QFileInfo(path(u"b"_s)).isSymLink());
}

void tst_TextFile::savingToAFolderFails()
{
    TextFile file;
    QCOMPARE(file.save(m_folder->path(), u"text"_s).error, TextFile::Error::NotRegular);
    QVERIFY(QFileInfo(m_folder->path()).isDir());
    QCOMPARE(file.path(), QString());
}

void tst_TextFile::savingToASpecialFileLeavesItThere()
{
    const QString name = path(u"pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    TextFile file;
    QCOMPARE(file.save(name, u"text"_s).error, TextFile::Error::NotRegular);
    QVERIFY(QFileInfo::exists(name));
    QVERIFY(!QFileInfo(name).isFile());
}

void tst_TextFile::savingIntoAFolderThatIsGoneFails()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    const QString name = createFile(u"folder/a.txt"_s, "a\r\n");
    TextFile file;
    QVERIFY(file.load(name).ok());
    QVERIFY(QDir(path(u"folder"_s)).removeRecursively());
    const TextFile::Status status = file.save(name, u"b\n"_s);
    QCOMPARE(status.error, TextFile::Error::WriteFailed);
    QVERIFY(!status.reason.isEmpty());
    QCOMPARE(file.text(), u"a\n"_s);
    QCOMPARE(file.lineEnd(), TextFile::LineEnd::CrLf);
}

void tst_TextFile::aFullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("size");

    QTest::newRow("no room") << 0 << 10;
    QTest::newRow("room for the first of many blocks") << 40000 << 1000000;
    QTest::newRow("room for all but the last byte") << 99999 << 100000;
}

void tst_TextFile::aFullDiskLeavesTheOldFile()
{
    QFETCH(const int, room);
    QFETCH(const int, size);
    const QString name = createFile(u"a.txt"_s, "old\n");
    TextFile file;
    QVERIFY(file.load(name).ok());
    TextFile::Status status;
    {
        const FullDisk disk(static_cast<rlim_t>(room));
        status = file.save(name, QString(size, u'x'));
    }
    QCOMPARE(status.error, TextFile::Error::WriteFailed);
    QVERIFY2(!status.reason.contains(u"Unknown"_s) && !status.reason.isEmpty(),
             qPrintable(status.reason));
    QCOMPARE(bytesOf(name), QByteArray("old\n"));
    QCOMPARE(file.text(), u"old\n"_s);
    QVERIFY(!file.isChangedOnDisk());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"a.txt"_s});
}

void tst_TextFile::aCopyIsAnotherFile()
{
    const QString name = createFile(u"a.txt"_s, "\xEF\xBB\xBF"
                                                "a\r\n");
    TextFile file;
    QVERIFY(file.load(name).ok());
    QVERIFY(file.saveCopy(path(u"b.txt"_s), u"b\n"_s).ok());
    QCOMPARE(bytesOf(path(u"b.txt"_s)), QByteArray("\xEF\xBB\xBF"
                                                   "b\r\n"));
    QCOMPARE(file.path(), name);
    QCOMPARE(file.text(), u"a\n"_s);
    QVERIFY(!file.isChangedOnDisk());
    QVERIFY(!file.saveCopy(m_folder->path(), u"b\n"_s).ok());
}

void tst_TextFile::noticesThatTheFileChanged()
{
    TextFile file;
    QVERIFY(!file.isChangedOnDisk());
    const QString name = createFile(u"a.txt"_s, "a\n");
    QVERIFY(file.load(name).ok());
    QVERIFY(!file.isChangedOnDisk());
    createFile(u"a.txt"_s, "b\n");
    QVERIFY(file.isChangedOnDisk());
    // Written again, but with the same bytes.
    createFile(u"a.txt"_s, "a\n");
    QVERIFY(!file.isChangedOnDisk());
    QVERIFY(file.save(name, u"c\n"_s).ok());
    QVERIFY(!file.isChangedOnDisk());
    QVERIFY(QFile::remove(name));
    QVERIFY(!file.isChangedOnDisk());
    QVERIFY(QDir(m_folder->path()).mkdir(u"a.txt"_s));
    QVERIFY(file.isChangedOnDisk());
}

QTEST_GUILESS_MAIN(tst_TextFile)

#include "tst_textfile.moc"
