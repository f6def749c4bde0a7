// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/AddressFileModel.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using VornFrame::AddressFileModel;

class tst_AddressFileModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fourColumnsAreAlignedToTheLeft_data();
    void fourColumnsAreAlignedToTheLeft();
    void otherDataIsThatOfAnyFileModel();
    void pathOfALinkIsItsOwn();

    void fileGetsANewName_data();
    void fileGetsANewName();
    void folderIsRenamedWithAllInIt();
    void linkIsRenamedItself();
    void impossibleNameIsRefusedInSilence_data();
    void impossibleNameIsRefusedInSilence();
    void takenNameIsRefused_data();
    void takenNameIsRefused();
    void otherLinkToTheSameFileIsNotReplaced_data();
    void otherLinkToTheSameFileIsNotReplaced();
    void ownNameIsNoChange();
    void vanishedFileCannotBeRenamed();
    void readOnlyModelRenamesNothing();
    void onlyTheNameCanBeEdited();

    void rowsCannotBeRemoved();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;
    QByteArray bytes(const QString &name) const;
    QStringList entries() const;
    bool rename(const QString &from, const QString &to) const;

    std::optional<QTemporaryDir> m_dir;
    std::unique_ptr<AddressFileModel> m_model;
};

void tst_AddressFileModel::init()
{
    TestCase::init();
    m_dir.emplace();
    QVERIFY(m_dir->isValid());
    write(u"file"_s, "one");
    m_model = std::make_unique<AddressFileModel>(nullptr);
    m_model->setReadOnly(false);
    m_model->setRootPath(m_dir->path());
}

void tst_AddressFileModel::cleanup()
{
    m_model.reset();
    m_dir.reset();
    TestCase::cleanup();
}

void tst_AddressFileModel::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray tst_AddressFileModel::bytes(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(none)";
}

QStringList tst_AddressFileModel::entries() const
{
    return QDir(m_dir->path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

bool tst_AddressFileModel::rename(const QString &from, const QString &to) const
{
    const QModelIndex index = m_model->index(path(from));
    return index.isValid() && m_model->setData(index, to);
}

void tst_AddressFileModel::fourColumnsAreAlignedToTheLeft_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("name") << 0;
    QTest::newRow("size") << 1;
    QTest::newRow("type") << 2;
    QTest::newRow("date") << 3;
}

void tst_AddressFileModel::fourColumnsAreAlignedToTheLeft()
{
    QFETCH(const int, column);

    const QModelIndex index = m_model->index(path(u"file"_s)).siblingAtColumn(column);
    QVERIFY(index.isValid());
    const QVariant alignment = m_model->data(index, Qt::TextAlignmentRole);
    QCOMPARE(alignment.toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(alignment.value<Qt::Alignment>(), Qt::AlignLeft | Qt::AlignVCenter);
}

void tst_AddressFileModel::otherDataIsThatOfAnyFileModel()
{
    const QModelIndex index = m_model->index(path(u"file"_s));
    QCOMPARE(m_model->data(index), QVariant(u"file"_s));
    QCOMPARE(m_model->data(index, QFileSystemModel::FilePathRole), QVariant(path(u"file"_s)));
    QVERIFY(!m_model->data({}, Qt::TextAlignmentRole).isValid());
}

void tst_AddressFileModel::pathOfALinkIsItsOwn()
{
    QVERIFY(QDir(m_dir->path()).mkdir(u"folder"_s));
    QVERIFY(QFile::link(path(u"folder"_s), path(u"link"_s)));
    QTRY_VERIFY(m_model->rowCount(m_model->index(m_dir->path())) == 3);

    QVERIFY(!m_model->resolveSymlinks());
    const QModelIndex index = m_model->index(path(u"link"_s));
    QCOMPARE(m_model->filePath(index), path(u"link"_s));
    QCOMPARE(m_model->fileName(index), u"link"_s);
}

void tst_AddressFileModel::fileGetsANewName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"other"_s;
    QTest::newRow("other case") << u"FILE"_s;
    QTest::newRow("hidden") << u".file"_s;
    QTest::newRow("three dots") << u"..."_s;
    QTest::newRow("spaces") << u"  a  "_s;
    QTest::newRow("markup") << u"<b>bold<"_s;
    QTest::newRow("quotes") << u"'a' \"b\" & c"_s;
    QTest::newRow("newline") << u"a\nb"_s;
    QTest::newRow("backslash") << u"a\\b"_s;
    QTest::newRow("right to left") << u"\u05e9\u05dc\u05d5\u05dd"_s;
    QTest::newRow("emoji") << u"\U0001F600"_s;
    QTest::newRow("255 bytes") << QString(255, u'x');
    QTest::newRow("percent") << u"%1 %20"_s;
}

void tst_AddressFileModel::fileGetsANewName()
{
    QFETCH(const QString, name);
    QSignalSpy renamed(m_model.get(), &QFileSystemModel::fileRenamed);

    QVERIFY(rename(u"file"_s, name));

    QCOMPARE(entries(), QStringList{name});
    QCOMPARE(bytes(name), "one");
    QCOMPARE(renamed.size(), 1);
    QCOMPARE(renamed.constFirst(), (QVariantList{m_dir->path(), u"file"_s, name}));
}

void tst_AddressFileModel::folderIsRenamedWithAllInIt()
{
    QVERIFY(QDir(m_dir->path()).mkpath(u"folder/sub"_s));
    write(u"folder/sub/inner"_s, "two");

    QVERIFY(rename(u"folder"_s, u"renamed"_s));

    QCOMPARE(entries(), (QStringList{u"file"_s, u"renamed"_s}));
    QCOMPARE(bytes(u"renamed/sub/inner"_s), "two");
}

void tst_AddressFileModel::linkIsRenamedItself()
{
    QVERIFY(QDir(m_dir->path()).mkdir(u"folder"_s));
    write(u"folder/inner"_s, "two");
    QVERIFY(QFile::link(path(u"folder"_s), path(u"link"_s)));

    QVERIFY(rename(u"link"_s, u"renamed"_s));

    QCOMPARE(entries(), (QStringList{u"file"_s, u"folder"_s, u"renamed"_s}));
    QCOMPARE(QFile::symLinkTarget(path(u"renamed"_s)), path(u"folder"_s));
    QCOMPARE(bytes(u"folder/inner"_s), "two");
}

void tst_AddressFileModel::impossibleNameIsRefusedInSilence_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << QString();
    QTest::newRow("dot") << u"."_s;
    QTest::newRow("dots") << u".."_s;
    QTest::newRow("out of the folder") << u"../out"_s;
    QTest::newRow("below") << u"sub/file"_s;
    QTest::newRow("absolute") << u"/tmp"_s;
    QTest::newRow("slash at the end") << u"file/"_s;
    QTest::newRow("256 bytes") << QString(256, u'x');
    QTest::newRow("end of a C string") << u"other\0rest"_s;
}

void tst_AddressFileModel::impossibleNameIsRefusedInSilence()
{
    QFETCH(const QString, name);
    const PopupBan noBox;
    QVERIFY(QDir(m_dir->path()).mkdir(u"sub"_s));
    QSignalSpy renamed(m_model.get(), &QFileSystemModel::fileRenamed);

    QVERIFY(!rename(u"file"_s, name));

    QCOMPARE(entries(), (QStringList{u"file"_s, u"sub"_s}));
    QCOMPARE(bytes(u"file"_s), "one");
    QCOMPARE(renamed.size(), 0);
}

void tst_AddressFileModel::takenNameIsRefused_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");

    for (const QString &source : {u"file"_s, u"folder"_s, u"link"_s}) {
        for (const QString &target :
             {u"taken"_s, u".hidden"_s, u"taken folder"_s, u"empty folder"_s, u"dangling"_s})
            QTest::addRow("%s to %s", qPrintable(source), qPrintable(target)) << source << target;
    }
}

void tst_AddressFileModel::takenNameIsRefused()
{
    QFETCH(const QString, source);
    QFETCH(const QString, target);
    const PopupBan noBox;
    QVERIFY(QDir(m_dir->path()).mkpath(u"folder"_s));
    QVERIFY(QDir(m_dir->path()).mkpath(u"taken folder"_s));
    QVERIFY(QDir(m_dir->path()).mkpath(u"empty folder"_s));
    write(u"folder/inner"_s, "inner");
    write(u"taken"_s, "taken");
    write(u".hidden"_s, "hidden");
    write(u"taken folder/inner"_s, "taken inner");
    QVERIFY(QFile::link(path(u"file"_s), path(u"link"_s)));
    QVERIFY(QFile::link(path(u"nowhere"_s), path(u"dangling"_s)));
    const QStringList before = entries();

    QVERIFY(!rename(source, target));

    QCOMPARE(entries(), before);
    QCOMPARE(bytes(u"file"_s), "one");
    QCOMPARE(bytes(u"folder/inner"_s), "inner");
    QCOMPARE(bytes(u"taken"_s), "taken");
    QCOMPARE(bytes(u".hidden"_s), "hidden");
    QCOMPARE(bytes(u"taken folder/inner"_s), "taken inner");
    QCOMPARE(QFile::symLinkTarget(path(u"dangling"_s)), path(u"nowhere"_s));
    QCOMPARE(QFile::symLinkTarget(path(u"link"_s)), path(u"file"_s));
}

void tst_AddressFileModel::otherLinkToTheSameFileIsNotReplaced_data()
{
    QTest::addColumn<QString>("other");

    QTest::newRow("other name") << u"other"_s;
    QTest::newRow("other case") << u"FILE"_s;
}

void tst_AddressFileModel::otherLinkToTheSameFileIsNotReplaced()
{
    QFETCH(const QString, other);
    std::filesystem::create_hard_link(path(u"file"_s).toStdU16String(),
                                      path(other).toStdU16String());
    const QStringList before = entries();

    QVERIFY(!rename(u"file"_s, other));

    QCOMPARE(entries(), before);
    QCOMPARE(bytes(u"file"_s), "one");
    QCOMPARE(bytes(other), "one");
}

void tst_AddressFileModel::ownNameIsNoChange()
{
    QSignalSpy renamed(m_model.get(), &QFileSystemModel::fileRenamed);
    QVERIFY(rename(u"file"_s, u"file"_s));
    QCOMPARE(renamed.size(), 0);
}

void tst_AddressFileModel::vanishedFileCannotBeRenamed()
{
    const PopupBan noBox;
    const QPersistentModelIndex index = m_model->index(path(u"file"_s));
    QVERIFY(QFile::remove(path(u"file"_s)));
    QVERIFY(!index.isValid() || !m_model->setData(index, u"other"_s));
    QCOMPARE(entries(), QStringList());
}

void tst_AddressFileModel::readOnlyModelRenamesNothing()
{
    m_model->setReadOnly(true);
    QVERIFY(!rename(u"file"_s, u"other"_s));
    QCOMPARE(entries(), QStringList{u"file"_s});
}

void tst_AddressFileModel::onlyTheNameCanBeEdited()
{
    const QModelIndex index = m_model->index(path(u"file"_s));
    QVERIFY(!m_model->setData(index.siblingAtColumn(1), u"other"_s));
    QVERIFY(!m_model->setData(index, u"other"_s, Qt::DisplayRole));
    QVERIFY(!m_model->setData({}, u"other"_s));
    QCOMPARE(entries(), QStringList{u"file"_s});
}

// A view asks for that after it has been the source of a drag that moved something.
void tst_AddressFileModel::rowsCannotBeRemoved()
{
    const QModelIndex index = m_model->index(path(u"file"_s));
    QVERIFY(!m_model->removeRows(index.row(), 1, index.parent()));
    QCOMPARE(bytes(u"file"_s), "one");
}

QTEST_MAIN(tst_AddressFileModel)

#include "tst_addressfilemodel.moc"
