// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// File operations with other file systems mounted around and inside, without the rights that they
// would need, and with a trash that does not work.

#include "address/FaultScene.h"
#include "support/QuietMacros.h"

#include <QTemporaryDir>
#include <QTest>

#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

using namespace FaultBench;
using namespace Qt::StringLiterals;

using Work = FaultScene::Work;
using Trash = FaultScene::Trash;

namespace {

QStringList asNobody()
{
    return {u"setpriv"_s, u"--reuid"_s, u"65534"_s, u"--regid"_s, u"65534"_s, u"--clear-groups"_s};
}

/// The owner of everything, but bound by the permissions like all others.
QStringList withoutOverride()
{
    const QString caps = u"-dac_override,-dac_read_search,-fowner"_s;
    return {u"setpriv"_s, u"--bounding-set"_s, caps, u"--inh-caps"_s, caps};
}

void giveAway(const Path &path)
{
    constexpr uid_t Nobody = 65534;
    QVERIFY(::lchown(path.c_str(), Nobody, Nobody) == 0);
    std::error_code error;
    for (fs::recursive_directory_iterator entry(path, error);
         entry != fs::recursive_directory_iterator(); entry.increment(error))
        QVERIFY(::lchown(entry->path().c_str(), Nobody, Nobody) == 0);
}

} // namespace

class tst_FileMounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void targetIsReadOnly_data();
    void targetIsReadOnly();
    void sourceIsReadOnly_data() { targetIsReadOnly_data(); }
    void sourceIsReadOnly();
    void mountInsideIsNotEmptied_data();
    void mountInsideIsNotEmptied();
    void mountInsideIsSeenThroughALink();
    void mountThatComesLaterIsNotEmptied();
    void linkThatComesLaterIsNotFollowed();
    void boundSourceIsTheSameFile_data();
    void boundSourceIsTheSameFile();
    void targetInsideTheSourceThroughABind();
    void folderBoundIntoItself();
    void sourceBoundIntoTheTarget();
    void linkToTheSourceFolderAsTarget();
    void folderWithTheTrashStays();
    void trashAtTheTopOfADiskStays();
    void boundFolderOfTheTrashDisk();

    void trashFails_data();
    void trashFails();
    void longNamesGoToTheTrash_data();
    void longNamesGoToTheTrash();
    void takenNamesGoToTheTrash();

    void missingRights_data();
    void missingRights();
    void immutable_data();
    void immutable();

private:
    void operate(const QStringList &words, const QStringList &prefix = {});
    Path path(const char *name) const { return m_base / "disk" / name; }

    std::unique_ptr<QTemporaryDir> m_folder;
    Path m_base;
    std::unique_ptr<Mount> m_disk;
    QByteArray m_output;
};

void tst_FileMounts::initTestCase()
{
    const QString reason = enterMountSpace();
    if (!reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_FileMounts::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    // Others than root must come through.
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    m_base = m_folder->path().toStdString();
    m_disk = makeDisk(m_base / "disk");
    if (!m_disk->isMounted())
        QSKIP("this system mounts no disks in memory");
    fs::create_directories(path("data"));
}

void tst_FileMounts::cleanup()
{
    m_disk.reset();
    m_folder.reset();
}

void tst_FileMounts::operate(const QStringList &words, const QStringList &prefix)
{
    Operation operation(words, path("data"), prefix);
    const bool isFinished = operation.finish();
    m_output = operation.output();
    QVERIFY2(isFinished, m_output.constData());
}

// --- Mounts ---------------------------------------------------------------------------------

void tst_FileMounts::targetIsReadOnly_data()
{
    QTest::addColumn<Work>("work");
    QTest::addColumn<Trash>("trash");
    QTest::newRow("copy") << Work::Copy << Trash::Home;
    QTest::newRow("replace") << Work::Replace << Trash::None;
    QTest::newRow("cut") << Work::Cut << Trash::Home;
    QTest::newRow("cut, no trash") << Work::Cut << Trash::None;
    QTest::newRow("cut and merge, no trash") << Work::CutAndReplace << Trash::None;
}

void tst_FileMounts::targetIsReadOnly()
{
    QFETCH(const Work, work);
    QFETCH(const Trash, trash);
    FaultScene scene(path("source"), path("target"), path("data"));
    scene.make(work, trash, {path("")});
    const Mount bind(path("target"), {u"--bind"_s, text(path("target"))});
    QVERIFY(run(u"mount"_s, {u"-o"_s, u"remount,bind,ro"_s, text(path("target"))}));
    operate(scene.words());
    QCOMPARE(scene.faults(), QString());
    QVERIFY(fs::exists(path("source/one")));
    QVERIFY(fs::exists(path("source/sub/two")));
}

void tst_FileMounts::sourceIsReadOnly()
{
    QFETCH(const Work, work);
    QFETCH(const Trash, trash);
    FaultScene scene(path("source"), path("target"), path("data"));
    scene.make(work, trash, {path("")});
    const Mount bind(path("source"), {u"--bind"_s, text(path("source"))});
    QVERIFY(run(u"mount"_s, {u"-o"_s, u"remount,bind,ro"_s, text(path("source"))}));
    operate(scene.words());
    QCOMPARE(scene.faults(), QString());
    QVERIFY(fs::exists(path("source/one")));
    QVERIFY(fs::exists(path("target/one")));
}

void tst_FileMounts::mountInsideIsNotEmptied_data()
{
    QTest::addColumn<bool>("isBind");
    QTest::addColumn<QString>("verb");
    QTest::newRow("disk in a deleted folder") << false << u"remove"_s;
    QTest::newRow("disk in a cut folder") << false << u"cut"_s;
    QTest::newRow("bound folder in a deleted folder") << true << u"remove"_s;
    QTest::newRow("bound folder in a cut folder") << true << u"cut"_s;
}

void tst_FileMounts::mountInsideIsNotEmptied()
{
    QFETCH(const bool, isBind);
    QFETCH(const QString, verb);
    for (const bool hasTrash : {true, false}) {
        // A name that the table of mounts has to escape.
        const Path inside = path("folder/a \n\\ mount");
        makeFile(path("folder/first"), "first");
        makeFile(path("other/precious"), "precious");
        fs::create_directories(path("target"));
        if (!hasTrash) {
            fs::remove_all(path("data/Trash"));
            makeFile(path("data/Trash"), "none");
            fs::remove_all(path(".Trash-0"));
            makeFile(path(".Trash-0"), "none");
        }
        const Mount mount(inside, isBind ? QStringList{u"--bind"_s, text(path("other"))}
                                         : QStringList{u"-t"_s, u"tmpfs"_s, u"tmpfs"_s});
        QVERIFY(mount.isMounted());
        makeFile(inside / "precious", "precious");
        if (verb == "remove"_L1)
            operate({verb, text(path("folder"))});
        else
            operate({u"paste"_s, u"cut"_s, text(path("target")), text(path("folder"))});
        QVERIFY(fs::exists(path("folder/first")));
        QVERIFY(readAll(inside / "precious").startsWith("precious"));
        // The mount point itself neither.
        operate({u"remove"_s, text(inside)});
        QVERIFY(readAll(inside / "precious").startsWith("precious"));
        fs::remove_all(path("target"));
    }
}

void tst_FileMounts::mountInsideIsSeenThroughALink()
{
    makeFile(path("data/Trash"), "none");
    makeFile(path(".Trash-0"), "none");
    const Mount mount(path("real/folder/mount"), {u"-t"_s, u"tmpfs"_s, u"tmpfs"_s});
    makeFile(path("real/folder/mount/precious"), "precious");
    fs::create_symlink("real", path("link"));
    operate({u"remove"_s, text(path("link/folder"))});
    QVERIFY(fs::exists(path("real/folder/mount/precious")));
    operate({u"remove"_s, text(path("link"))});
    QVERIFY(!fs::exists(fs::symlink_status(path("link"))));
    QVERIFY(fs::exists(path("real/folder/mount/precious")));
}

/// Removing a big folder can take minutes.
void tst_FileMounts::mountThatComesLaterIsNotEmptied()
{
    if (!hasProgram(u"strace"_s))
        QSKIP("strace is not installed");
    makeFile(path("data/Trash"), "none");
    makeFile(path(".Trash-0"), "none");
    fs::create_directories(path("folder/sub"));
    // Disks in memory list what came last first.
    makeFile(path("folder/first"), "first");
    const QStringList prefix = {u"strace"_s, u"-f"_s,
                                u"-o"_s,     u"/dev/null"_s,
                                u"-P"_s,     text(path("folder/first")),
                                u"-e"_s,     u"inject=unlink,unlinkat:delay_exit=1500000"_s};
    Operation operation({u"remove"_s, text(path("folder"))}, path("data"), prefix);
    QTRY_VERIFY(!fs::exists(path("folder/first")));
    const Mount mount(path("folder/sub"), {u"-t"_s, u"tmpfs"_s, u"tmpfs"_s});
    makeFile(path("folder/sub/precious"), "precious");
    QVERIFY2(operation.finish(), operation.output().constData());
    QVERIFY(operation.output().contains("left"));
    QVERIFY(readAll(path("folder/sub/precious")).startsWith("precious"));
}

void tst_FileMounts::linkThatComesLaterIsNotFollowed()
{
    if (!hasProgram(u"strace"_s))
        QSKIP("strace is not installed");
    makeFile(path("data/Trash"), "none");
    makeFile(path(".Trash-0"), "none");
    makeFile(path("other/second"), "precious");
    // Disks in memory list what came last first.
    makeFile(path("folder/second"), "second");
    makeFile(path("folder/first"), "first");
    const QStringList prefix = {u"strace"_s, u"-f"_s,
                                u"-o"_s,     u"/dev/null"_s,
                                u"-P"_s,     text(path("folder/first")),
                                u"-e"_s,     u"inject=unlink,unlinkat:delay_exit=1500000"_s};
    Operation operation({u"remove"_s, text(path("folder"))}, path("data"), prefix);
    QTRY_VERIFY(!fs::exists(path("folder/first")));
    fs::rename(path("folder"), path("moved"));
    fs::create_symlink("other", path("folder"));
    QVERIFY2(operation.finish(), operation.output().constData());
    QVERIFY(readAll(path("other/second")).startsWith("precious"));
    QVERIFY(readAll(path("moved/second")).startsWith("second"));
}

void tst_FileMounts::boundSourceIsTheSameFile_data()
{
    QTest::addColumn<QString>("marker");
    QTest::newRow("cut") << u"cut"_s;
    QTest::newRow("copy") << u"copy"_s;
}

void tst_FileMounts::boundSourceIsTheSameFile()
{
    QFETCH(const QString, marker);
    makeFile(path("real/file"), "file");
    makeFile(path("real/sub/deep"), "deep");
    const Mount mount(path("bound"), {u"--bind"_s, text(path("real"))});
    operate({u"--answer"_s, u"Replace Current"_s, u"paste"_s, marker, text(path("bound")),
             text(path("real/file")), text(path("real/sub"))});
    QCOMPARE(m_output, QByteArray());
    QVERIFY(readAll(path("real/file")).startsWith("file"));
    QVERIFY(readAll(path("real/sub/deep")).startsWith("deep"));
    QCOMPARE(fs::exists(path("real/Copy_2_of_file")), marker == "copy"_L1);
}

void tst_FileMounts::targetInsideTheSourceThroughABind()
{
    makeFile(path("real/sub/deep"), "deep");
    const Mount mount(path("bound"), {u"--bind"_s, text(path("real/sub"))});
    operate({u"paste"_s, u"cut"_s, text(path("bound")), text(path("real"))});
    // The names do not tell, so it begins; but it ends, and what was cut is still there.
    QVERIFY(fs::exists(path("real/sub/deep")));
    QVERIFY(!fs::exists(path("real/sub/real/sub/real")));
}

void tst_FileMounts::folderBoundIntoItself()
{
    makeFile(path("real/file"), "file");
    fs::create_directories(path("real/again"));
    fs::create_directories(path("target"));
    const Mount mount(path("real/again"), {u"--bind"_s, text(path(""))});
    for (const QString &marker : {u"copy"_s, u"cut"_s}) {
        operate({u"--answer"_s, u"Replace Current"_s, u"paste"_s, marker, text(path("target")),
                 text(path("real"))});
        QVERIFY(fs::exists(path("real/file")));
        QVERIFY(readAll(path("target/real/file")).startsWith("file"));
        QVERIFY(fs::exists(path("real/again/real/file")));
    }
}

void tst_FileMounts::sourceBoundIntoTheTarget()
{
    makeFile(path("folder/sub/deep/file"), "file");
    fs::create_directories(path("target/folder/sub"));
    const Mount mount(path("target/folder/sub"), {u"--bind"_s, text(path("folder/sub/deep"))});
    operate({u"--answer"_s, u"Replace Current"_s, u"paste"_s, u"cut"_s, text(path("target")),
             text(path("folder"))});
    QVERIFY(readAll(path("folder/sub/deep/file")).startsWith("file"));
    QVERIFY(!fs::exists(path("folder/sub/deep/deep")));
}

void tst_FileMounts::linkToTheSourceFolderAsTarget()
{
    makeFile(path("real/file"), "file");
    fs::create_symlink("real", path("link"));
    operate({u"--answer"_s, u"Replace Current"_s, u"paste"_s, u"cut"_s, text(path("link")),
             text(path("real/file"))});
    QCOMPARE(m_output, QByteArray());
    QVERIFY(readAll(path("real/file")).startsWith("file"));
    operate({u"paste"_s, u"cut"_s, text(path("link")), text(path("real"))});
    QVERIFY2(m_output.contains("is a subfolder"), m_output.constData());
    QVERIFY(fs::exists(path("real/file")));
}

void tst_FileMounts::folderWithTheTrashStays()
{
    makeFile(path("old"), "old");
    operate({u"remove"_s, text(path("old"))});
    QVERIFY(fs::exists(path("data/Trash/files/old")));
    makeFile(path("data/other"), "other");
    fs::create_directories(path("target"));
    fs::create_symlink("data", path("link"));
    for (const char *folder : {"data", "data/Trash", "data/Trash/files"}) {
        operate({u"remove"_s, text(path(folder))});
        QCOMPARE(m_output, QByteArray("left\n"));
    }
    operate({u"remove"_s, text(path("link/Trash"))});
    operate({u"paste"_s, u"cut"_s, text(path("target")), text(path("data"))});
    QVERIFY(fs::exists(path("data/Trash/files/old")));
    QVERIFY(fs::exists(path("data/other")));
}

/// The trash of another disk is no less worth.
void tst_FileMounts::trashAtTheTopOfADiskStays()
{
    const auto other = makeDisk(m_base / "other");
    makeFile(m_base / "other/old", "old");
    operate({u"remove"_s, text(m_base / "other/old")});
    QVERIFY(fs::exists(m_base / "other/.Trash-0/files/old"));
    operate({u"remove"_s, text(m_base / "other/.Trash-0")});
    QVERIFY(fs::exists(m_base / "other/.Trash-0/files/old"));
    operate({u"remove"_s, text(m_base / "other/.Trash-0/files")});
    QVERIFY(fs::exists(m_base / "other/.Trash-0/files/old"));
}

/// The same disk, yet nothing can be moved from one mount to the other.
void tst_FileMounts::boundFolderOfTheTrashDisk()
{
    fs::create_directories(path("real"));
    const Mount mount(m_base / "bound", {u"--bind"_s, text(path("real"))});
    makeFile(m_base / "bound/file", "file");
    operate({u"remove"_s, text(m_base / "bound/file")});
    QCOMPARE(m_output, QByteArray("gone\n"));
    QVERIFY(fs::exists(path("data/Trash/files/file"))
            || fs::exists(m_base / "bound/.Trash-0/files/file"));
}

// --- The trash ------------------------------------------------------------------------------

void tst_FileMounts::trashFails_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how :
         {"no data folder", "file in its place", "file as files", "file as info", "read-only",
          "full", "files on another disk", "info on another disk", "link to nowhere", "other disk"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void tst_FileMounts::trashFails()
{
    QFETCH(const QString, how);
    const Path trash = path("data/Trash");
    std::vector<std::unique_ptr<Mount>> mounts;
    bool works = false;
    if (how == "no data folder"_L1) {
        fs::remove_all(path("data"));
        works = true;
    } else if (how == "file in its place"_L1) {
        makeFile(trash, "none");
    } else if (how == "file as files"_L1) {
        makeFile(trash / "files", "none");
    } else if (how == "file as info"_L1) {
        makeFile(trash / "info", "none");
    } else if (how == "link to nowhere"_L1) {
        fs::create_symlink("nowhere", trash);
    } else if (how == "read-only"_L1) {
        fs::create_directories(trash);
        mounts.push_back(std::make_unique<Mount>(trash, QStringList{u"--bind"_s, text(trash)}));
        QVERIFY(run(u"mount"_s, {u"-o"_s, u"remount,bind,ro"_s, text(trash)}));
    } else if (how == "full"_L1) {
        mounts.push_back(makeDisk(path("data"), u"nr_inodes=2"_s));
    } else if (how.endsWith(" on another disk"_L1)) {
        mounts.push_back(makeDisk(trash / how.section(u' ', 0, 0).toStdString()));
    } else {
        mounts.push_back(makeDisk(path("data")));
        works = true; // at the top of the file's own disk
    }
    makeFile(path("folder/file"), "file");
    makeFile(path("single"), "single");
    makeFile(path("precious"), "precious");
    fs::create_symlink("../precious", path("folder/link"));
    fs::create_symlink("folder", path("to folder"));
    const FileCensus before = FileCensus::of({path("")});
    for (const char *name : {"to folder", "folder", "single"}) {
        operate({u"remove"_s, text(path(name))});
        QCOMPARE(m_output, QByteArray("gone\n"));
        QVERIFY(!fs::exists(fs::symlink_status(path(name))));
        QCOMPARE(fs::exists(path("folder/file")), QByteArray(name) == "to folder");
    }
    QVERIFY(fs::exists(path("precious")));
    const QByteArrayList lost = before.lostIn(FileCensus::of({path("")}));
    QVERIFY2(lost.isEmpty() || !works, lost.join(", ").constData());
}

void tst_FileMounts::longNamesGoToTheTrash_data()
{
    QTest::addColumn<int>("length");
    for (int length = 244; length <= 255; ++length)
        QTest::addRow("%d bytes", length) << length;
}

void tst_FileMounts::longNamesGoToTheTrash()
{
    QFETCH(const int, length);
    // So that shortening comes to every byte of a character.
    std::string name(size_t(length % 4), 'x');
    while (name.size() + 4 <= size_t(length))
        name += "\xF0\x9F\x98\x80";
    for (int i = 0; i < 3; ++i) {
        makeFile(path("folder") / name, QByteArray::number(i));
        const FileCensus before = FileCensus::of({path("")});
        operate({u"remove"_s, text(path("folder") / name)});
        QCOMPARE(m_output, QByteArray("gone\n"));
        QVERIFY(!fs::exists(path("folder") / name));
        QCOMPARE(before.lostIn(FileCensus::of({path("")})), QByteArrayList());
    }
}

void tst_FileMounts::takenNamesGoToTheTrash()
{
    makeFile(path("data/Trash/files/name"), "without info");
    makeFile(path("data/Trash/info/name.2.trashinfo"), "without file");
    makeFile(path("data/Trash/files/name.3/deep"), "a folder");
    makeFile(path("name"), "name");
    const FileCensus before = FileCensus::of({path("")});
    operate({u"remove"_s, text(path("name"))});
    QCOMPARE(before.lostIn(FileCensus::of({path("")})), QByteArrayList());
    QVERIFY(readAll(path("data/Trash/files/name.4")).startsWith("name"));
    QVERIFY(readAll(path("data/Trash/info/name.4.trashinfo")).contains("Path="));
    QVERIFY(!fs::exists(path("data/Trash/info/name.trashinfo")));
}

// --- Rights ---------------------------------------------------------------------------------

void tst_FileMounts::missingRights_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<int>("mode");
    QTest::addColumn<Work>("work");
    QTest::addColumn<Trash>("trash");
    const std::vector<std::pair<const char *, int>> places = {
        {"source/one", 0},          {"source/sub", 0},        {"source/sub", 0444},
        {"source/sub", 0555},       {"source/sub/inner", 0},  {"source/sub/inner", 0111},
        {"source/sub/two", 0},      {"source/sub/two", 0222}, {"source", 0555},
        {"source", 0111},           {"target", 0555},         {"target", 0333},
        {"target/sub", 0555},       {"target/sub/two", 0},    {"data", 0},
        {"data/Trash/files", 0555}, {"data/Trash", 0444},
    };
    for (const auto &[where, mode] : places) {
        for (const auto &[name, work] :
             {std::pair("copy", Work::Copy), std::pair("cut and merge", Work::CutAndReplace),
              std::pair("delete", Work::Delete)}) {
            QTest::addRow("%s of %s with mode %o", name, where, unsigned(mode))
                << QString::fromLatin1(where) << mode << work
                << (QByteArray(where).startsWith("data") || work != Work::Delete ? Trash::Unsure
                                                                                 : Trash::Home);
        }
    }
}

void tst_FileMounts::missingRights()
{
    QFETCH(const QString, where);
    QFETCH(const int, mode);
    QFETCH(const Work, work);
    QFETCH(const Trash, trash);
    if (!hasProgram(u"setpriv"_s))
        QSKIP("setpriv is not installed");
    for (const bool isRoot : {false, true}) {
        const Path folder = path(isRoot ? "root" : "nobody");
        const Path place = folder / where.toStdString();
        FaultScene scene(folder / "source", folder / "target", folder / "data");
        fs::create_directories(folder / "data/Trash/files");
        scene.make(work, trash);
        if (!fs::exists(place))
            return;
        if (!isRoot)
            giveAway(folder);
        QVERIFY(::chmod(place.c_str(), mode_t(mode)) == 0);
        Operation operation(scene.words(), scene.dataHome(),
                            isRoot ? withoutOverride() : asNobody());
        QVERIFY2(operation.finish(), operation.output().constData());
        QCOMPARE(scene.faults(), QString());
        // Nothing goes out of a folder that may not be changed.
        if (where == "source"_L1) {
            QVERIFY(fs::exists(folder / "source/one"));
            QVERIFY(fs::exists(folder / "source/sub/two"));
        }
    }
}

void tst_FileMounts::immutable_data()
{
    QTest::addColumn<QString>("where");
    QTest::newRow("file") << u"source/one"_s;
    QTest::newRow("file in a folder") << u"source/sub/two"_s;
    QTest::newRow("folder") << u"source/sub"_s;
    QTest::newRow("target file") << u"target/one"_s;
    QTest::newRow("target folder") << u"target"_s;
}

void tst_FileMounts::immutable()
{
    QFETCH(const QString, where);
    // Disks in memory know no such thing.
    const QTemporaryDir own(QStringLiteral("/var/tmp/vornframe-XXXXXX"));
    const Path folder = own.path().toStdString();
    for (const Trash trash : {Trash::Unsure, Trash::None}) {
        const Path runFolder = folder / std::to_string(int(trash));
        FaultScene scene(runFolder / "source", runFolder / "target", runFolder / "data");
        scene.make(Work::CutAndReplace, trash);
        const QString place = text(runFolder / where.toStdString());
        if (!run(u"chattr"_s, {u"+i"_s, place}))
            QSKIP("this file system knows no immutable files");
        Operation operation(scene.words(), scene.dataHome());
        const bool isFinished = operation.finish();
        const QString faults = scene.faults();
        if (!run(u"chattr"_s, {u"-i"_s, place}))
            run(u"chattr"_s, {u"-R"_s, u"-i"_s, text(runFolder)});
        QVERIFY(isFinished);
        QCOMPARE(faults, QString());
    }
}

QTEST_GUILESS_MAIN(tst_FileMounts)
#include "tst_filemounts.moc"
