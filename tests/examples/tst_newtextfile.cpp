// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/TestCase.h"

#include "NewTextFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// Empty text files for the menu "New".
class tst_NewTextFile final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void createsAnEmptyFileInTheFolder();
    void createsItBesideAFile();
    void takesAFreeNameAndTouchesNoOther();
    void followsNoLink();
    void saysWhyThereIsNoFile();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;
    QByteArray contentOf(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_NewTextFile::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_NewTextFile::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
}

QByteArray tst_NewTextFile::contentOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "missing";
}

void tst_NewTextFile::createsAnEmptyFileInTheFolder()
{
    const NewTextFile::Result result = NewTextFile::create(m_folder->path());
    QCOMPARE(result.path, path(u"New Text File.txt"_s));
    QCOMPARE(result.reason, QString());
    QCOMPARE(contentOf(u"New Text File.txt"_s), QByteArray());
}

void tst_NewTextFile::createsItBesideAFile()
{
    write(u"a.md"_s, "text");
    QCOMPARE(NewTextFile::create(path(u"a.md"_s)).path, path(u"New Text File.txt"_s));
    QCOMPARE(contentOf(u"a.md"_s), "text");
}

void tst_NewTextFile::takesAFreeNameAndTouchesNoOther()
{
    write(u"New Text File.txt"_s, "1");
    QVERIFY(QDir(m_folder->path()).mkdir(u"New Text File (2).txt"_s));
    write(u"New Text File (4).txt"_s, "4");
    QCOMPARE(NewTextFile::create(m_folder->path()).path, path(u"New Text File (3).txt"_s));
    QCOMPARE(NewTextFile::create(m_folder->path()).path, path(u"New Text File (5).txt"_s));
    QCOMPARE(contentOf(u"New Text File.txt"_s), "1");
    QCOMPARE(contentOf(u"New Text File (4).txt"_s), "4");
}

void tst_NewTextFile::followsNoLink()
{
#ifdef Q_OS_UNIX
    QVERIFY(QFile::link(path(u"elsewhere"_s), path(u"New Text File.txt"_s)));
    QCOMPARE(NewTextFile::create(m_folder->path()).path, path(u"New Text File (2).txt"_s));
    QVERIFY(!QFile::exists(path(u"elsewhere"_s)));
#else
    QSKIP("A link is an ordinary file here.");
#endif
}

void tst_NewTextFile::saysWhyThereIsNoFile()
{
    const NewTextFile::Result result = NewTextFile::create(path(u"none/none"_s));
    QCOMPARE(result.path, QString());
    QCOMPARE(result.reason, u"No such file or directory"_s);
}

QTEST_MAIN(tst_NewTextFile)

#include "tst_newtextfile.moc"
