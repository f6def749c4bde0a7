// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileCheck.h"
#include "address/FileFixture.h"
#include "support/TestCase.h"

#include <filesystem>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class TestFileCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_files = std::make_unique<FileFixture>();
        m_files->write(u"docs/a"_s, "a");
        m_files->write(u"docs/sub/b"_s, "b");
        m_files->write(u"docs-old/a"_s, "old");
        m_files->write(u"file"_s, "file");
        m_files->write(u"other"_s, "other");
        m_files->makeLink(u"link to file"_s, u"file"_s);
        m_files->makeLink(u"link to docs"_s, u"docs"_s);
        m_files->makeLink(u"link to nothing"_s, u"nothing"_s);
        m_files->makeLink(u"cycle"_s, u"cycle"_s);
        std::filesystem::create_hard_link(native(u"file"_s), native(u"hard link"_s));
    }
    void cleanup()
    {
        m_files.reset();
        TestCase::cleanup();
    }

    void codes_data();
    void codes();

private:
    NativeFiles::Path native(const QString &relative) const
    {
        return NativeFiles::fromText(m_files->path(relative));
    }

    std::unique_ptr<FileFixture> m_files;
};

void TestFileCheck::codes_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("code");
    const auto row = [](int code, const char *name, const QString &source, const QString &target) {
        QTest::addRow("%d, %s", code, name) << source << target << code;
    };
    row(0, "missing source", u"none"_s, u"none too"_s);
    row(0, "missing source comes first", u"none"_s, u"none"_s);
    row(1, "one name", u"file"_s, u"file"_s);
    row(1, "one folder", u"docs"_s, u"docs/"_s);
    row(1, "another way to it", u"docs/a"_s, u"docs/sub/../a"_s);
    row(1, "hard link", u"file"_s, u"hard link"_s);
    row(1, "link and what it leads to", u"link to file"_s, u"file"_s);
    row(1, "what a link leads to, and the link", u"file"_s, u"link to file"_s);
    row(1, "through a link to its folder", u"docs/a"_s, u"link to docs/a"_s);
    row(1, "link to nothing, itself", u"link to nothing"_s, u"link to nothing"_s);
    row(2, "inside", u"docs"_s, u"docs/new"_s);
    row(2, "deep inside", u"docs"_s, u"docs/sub/new"_s);
    row(2, "inside, through a link", u"docs"_s, u"link to docs/sub/new"_s);
    row(2, "inside comes before what exists", u"docs"_s, u"docs/a"_s);
    row(2, "below what is missing", u"docs"_s, u"docs/none/none"_s);
    row(3, "files", u"file"_s, u"other"_s);
    row(3, "link and file", u"link to nothing"_s, u"file"_s);
    row(3, "file and link", u"other"_s, u"link to nothing"_s);
    row(3, "links to nothing", u"link to nothing"_s, u"cycle"_s);
    row(4, "folders", u"docs"_s, u"docs-old"_s);
    row(5, "file onto folder", u"file"_s, u"docs"_s);
    row(5, "folder onto file", u"docs"_s, u"file"_s);
    row(5, "folder onto a link to another folder", u"docs-old"_s, u"link to docs"_s);
    row(7, "new", u"file"_s, u"new"_s);
    row(7, "name that begins with the source's", u"docs"_s, u"docs-new"_s);
    row(7, "folder that begins with the source's", u"docs"_s, u"docs-old/docs"_s);
    row(7, "link to a folder into that folder", u"link to docs"_s, u"docs/link"_s);
    row(7, "folder to where it lies", u"docs/sub"_s, u"sub"_s);
}

void TestFileCheck::codes()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QTEST(int(FileCheck::check(native(source), native(target))), "code");
}

QTEST_MAIN(TestFileCheck)

#include "tst_filecheck.moc"
