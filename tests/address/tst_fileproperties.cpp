// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Random operations on random trees of files, beside a model of what they should do.

#include "address/FileCensus.h"
#include "address/FileModel.h"
#include "address/FileOperations.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <fstream>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

using namespace Qt::StringLiterals;
using namespace VornFrame;

using Path = FileModel::Path;

namespace {

constexpr unsigned Trees = 2000;
constexpr unsigned TreesInARow = 100;

class Selection final : public FileSelection
{
public:
    QStringList selectedPaths() const override { return paths; }
    QString currentPath() const override { return current; }

    QStringList paths;
    QString current;
};

class Random
{
public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    int below(int end) { return int(m_engine() % unsigned(end)); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename List>
    const auto &oneOf(const List &list)
    {
        return list[size_t(below(int(list.size())))];
    }

private:
    std::mt19937 m_engine;
};

/// A copied link may lead out of the tree.
bool isWithin(const Path &path, const Path &root)
{
    std::error_code error;
    const Path real = fs::weakly_canonical(path, error);
    return !error
           && std::mismatch(root.begin(), root.end(), real.begin(), real.end()).first == root.end();
}

QString text(const Path &path)
{
    return QFile::decodeName(path.c_str());
}

bool hasText(const Path &path)
{
    return QFile::encodeName(text(path)).toStdString() == path.native();
}

/// Names meet again and again, or nothing would ever be in the way.
std::vector<std::string> hostileNames()
{
    std::string longest;
    while (longest.size() < 251)
        longest += "\xC3\xA4";
    return {"a",          "b",         "c",   "a",        "b",  "d.txt", ".hidden", "a b",
            "two\nlines", "\"quotes'", "R&D", "%1 of %2", "\\", "-rf",   "<b>x"};
}

std::vector<std::string> rarerNames()
{
    std::string longest;
    while (longest.size() < 250)
        longest += "\xC3\xA4";
    return {longest + ".tar",
            std::string(255, 'x'),
            "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
            "\xF0\x9F\x98\x80",
            "raw \xFF\xFE",
            "New Folder",
            "Copy_2_of_a",
            " ",
            "~",
            "*"};
}

/// Makes a random tree.
class Gardener
{
public:
    Gardener(Random &random, Path root) : m_random(random), m_root(std::move(root)) {}

    void plant(int entries)
    {
        m_folders = {m_root};
        for (int i = 0; i < entries; ++i) {
            static const std::vector<std::string> names = hostileNames();
            static const std::vector<std::string> rare = rarerNames();
            const std::string &name = m_random.chance(80) ? m_random.oneOf(names)
                                                          : m_random.oneOf(rare);
            const Path path = m_random.oneOf(m_folders) / name;
            if (!fs::exists(fs::symlink_status(path)))
                plantOne(path);
        }
        // Only now, or nothing could be planted in them.
        const std::array<unsigned, 3> modes = {0755, 0700, ::geteuid() == 0 ? 0555U : 0750U};
        for (const Path &folder : m_folders)
            ::chmod(folder.c_str(), folder == m_root ? 0755U : modes.at(size_t(m_random.below(3))));
    }

private:
    void plantOne(const Path &path)
    {
        const int kind = m_random.below(100);
        if (kind < 35) {
            fs::create_directory(path);
            m_folders.push_back(path);
        } else if (kind < 75 || m_files.empty()) {
            plantFile(path);
        } else if (kind < 80) {
            fs::create_hard_link(m_random.oneOf(m_files), path);
        } else if (kind < 83) {
            ::mkfifo(path.c_str(), 0644);
        } else {
            plantLink(path);
        }
    }

    void plantFile(const Path &path)
    {
        static int number = 0;
        std::ofstream file(path, std::ios::binary);
        if (m_random.chance(15))
            file.seekp(20000);
        if (m_random.chance(85))
            file << "content " << ++number;
        file.close();
        if (m_random.chance(10))
            fs::resize_file(path, 30000);
        constexpr std::array<unsigned, 5> Modes = {0644, 0600, 0444, 0755, 04755};
        ::chmod(path.c_str(), Modes.at(size_t(m_random.below(5))));
        // Also before 1970.
        const timespec time = {m_random.below(2'000'000'000) - 500'000'000,
                               m_random.below(1'000'000'000)};
        const std::array<timespec, 2> times = {time, time};
        ::utimensat(AT_FDCWD, path.c_str(), times.data(), 0);
        m_files.push_back(path);
    }

    void plantLink(const Path &path)
    {
        const Path up = path.parent_path() == m_root ? Path(".") : Path("..");
        const std::array<Path, 7> targets = {"a", "b",       path.filename(),  up / "a",
                                             up,  "nowhere", "/nowhere/at/all"};
        fs::create_symlink(m_random.oneOf(targets), path);
    }

    Random &m_random;
    const Path m_root;
    std::vector<Path> m_folders;
    std::vector<Path> m_files;
};

} // namespace

class tst_FileProperties : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothingIsLostAndTheModelIsRight_data();
    void nothingIsLostAndTheModelIsRight();

private:
    void tryTree(unsigned seed);
    bool step(Random &random, FileModel &model);
    void answerBox();
    std::vector<Path> somePaths(Random &random, const FileModel &model, int most) const;
    void paste(Random &random, FileModel &model);
    void copy(Random &random, FileModel &model);

    std::unique_ptr<QTemporaryDir> m_folder;
    Path m_root;
    Selection m_selection;
    FileOperations m_operations{m_selection};
    QTimer m_driver;
    Random *m_random = nullptr;
    QList<FileModel::Box> m_boxes;
    QByteArray m_log;
};

void tst_FileProperties::initTestCase()
{
    TestCase::initTestCase();
    connect(&m_driver, &QTimer::timeout, this, &tst_FileProperties::answerBox);
}

void tst_FileProperties::init()
{
    TestCase::init();
    // A cut puts everything on the disk, which takes long where other programs write a lot.
    const QString memory = u"/dev/shm"_s;
    const QString base = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    m_folder = std::make_unique<QTemporaryDir>(base + u"/vornframe-XXXXXX"_s);
    QVERIFY(m_folder->isValid());
    m_driver.start(0);
}

void tst_FileProperties::cleanup()
{
    m_driver.stop();
    QGuiApplication::clipboard()->clear();
    m_folder.reset();
    TestCase::cleanup();
}

void tst_FileProperties::answerBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    const QList<QAbstractButton *> buttons = box->buttons();
    const int choice = m_random->below(int(buttons.size()) + 1);
    if (choice == int(buttons.size())) {
        m_boxes.append({box->text(), QString()});
        box->close();
    } else {
        m_boxes.append({box->text(), buttons.at(choice)->text().remove(u'&')});
        buttons.at(choice)->click();
    }
}

std::vector<Path> tst_FileProperties::somePaths(Random &random, const FileModel &model,
                                                int most) const
{
    std::vector<Path> all = model.paths();
    std::vector<Path> paths;
    const int count = 1 + random.below(most);
    for (int i = 0; i < count; ++i) {
        const Path &path = random.oneOf(all);
        if (path != m_root && hasText(path))
            paths.push_back(path);
    }
    return paths;
}

void tst_FileProperties::paste(Random &random, FileModel &model)
{
    const std::vector<Path> sources = somePaths(random, model, 3);
    const std::vector<Path> all = model.paths();
    const Path target = random.oneOf(all);
    const bool isCut = random.chance(50);
    m_selection.paths.clear();
    for (const Path &source : sources)
        m_selection.paths.append(text(source));
    m_log += (isCut ? "cut " : "copy ") + m_selection.paths.join(u" | "_s).toUtf8() + " to "
             + text(target).toUtf8() + '\n';
    if (!hasText(target) || !isWithin(target, m_root))
        return;
    if (isCut)
        m_operations.cutSelection();
    else
        m_operations.copySelection();
    const bool isTangled = model.isTangled(sources, target);
    if (random.chance(50)) {
        m_operations.paste(text(target));
    } else {
        m_selection.current = text(target);
        m_operations.paste();
    }
    if (isTangled)
        model = FileModel(m_root);
    else
        model.paste(sources, target, isCut, m_boxes);
}

void tst_FileProperties::copy(Random &random, FileModel &model)
{
    const std::vector<Path> sources = somePaths(random, model, 1);
    const std::vector<Path> all = model.paths();
    Path target = random.oneOf(all);
    if (sources.empty() || !hasText(target))
        return;
    const Path &source = sources.front();
    if (random.chance(50))
        target /= "fresh";
    const bool overwrite = random.chance(50);
    // Into a file, or out of a folder into the one above it.
    const Path parent = target.parent_path();
    std::error_code error;
    if (target == m_root || !isWithin(parent, m_root)
        || !fs::is_directory(fs::status(parent, error)))
        return;
    m_log += "copy path " + text(source).toUtf8() + " to " + text(target).toUtf8() + '\n';
    const bool isTangled = text(source).startsWith(text(target) + u'/');
    m_operations.copyPath(text(source), text(target), overwrite);
    if (isTangled)
        model = FileModel(m_root);
    else
        model.copyPath(source, target, overwrite, m_boxes);
}

/// Whether model and disk agree.
bool tst_FileProperties::step(Random &random, FileModel &model)
{
    m_boxes.clear();
    const int choice = random.below(100);
    if (choice < 60) {
        paste(random, model);
    } else if (choice < 80) {
        copy(random, model);
    } else if (choice < 93) {
        const std::vector<Path> paths = somePaths(random, model, 2);
        m_selection.paths.clear();
        for (const Path &path : paths)
            m_selection.paths.append(text(path));
        m_log += "delete " + m_selection.paths.join(u" | "_s).toUtf8() + '\n';
        m_operations.removeSelection();
        model.remove(paths);
    } else {
        const std::vector<Path> all = model.paths();
        const Path &current = random.oneOf(all);
        std::error_code error;
        // A folder that cannot be would be made with all above it.
        if (hasText(current) && isWithin(current, m_root)
            && (fs::is_directory(current, error) || fs::is_regular_file(current, error))) {
            m_selection.current = text(current);
            m_log += "new folder in " + text(current).toUtf8() + '\n';
            m_operations.newFolder();
            model.newFolder(current);
        }
    }
    for (const FileModel::Box &box : std::as_const(m_boxes))
        m_log += "  [" + box.answer.toUtf8() + "] " + box.text.toUtf8() + '\n';
    const QByteArrayList expected = model.lines();
    const QByteArrayList actual = FileModel(m_root).lines();
    for (const QByteArray &line : expected) {
        if (!actual.contains(line))
            m_log += "  missing: " + line + '\n';
    }
    for (const QByteArray &line : actual) {
        if (!expected.contains(line))
            m_log += "  too much: " + line + '\n';
    }
    for (const QByteArray &fault : model.faults())
        m_log += "  " + fault + '\n';
    return expected == actual && model.faults().isEmpty();
}

void tst_FileProperties::tryTree(unsigned seed)
{
    Random random(seed);
    m_random = &random;
    m_log.clear();
    const Path base = Path(m_folder->path().toStdString()) / std::to_string(seed);
    m_root = base / "tree";
    fs::create_directories(m_root);
    fs::create_directories(base / "data");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString((base / "data").native()));
    Gardener(random, m_root).plant(4 + random.below(16));
    FileModel model(m_root);
    const FileCensus before = FileCensus::of({base});
    m_log += model.lines().join('\n') + '\n';
    constexpr int Steps = 6;
    for (int i = 0; i < Steps; ++i) {
        const bool isRight = step(random, model);
        const FileCensus after = FileCensus::of({base});
        const QByteArrayList lost = before.lostIn(after) + after.leftovers()
                                    + before.strangeIn(after);
        if (!isRight || !lost.isEmpty()) {
            const QByteArray report = "seed " + QByteArray::number(seed) + '\n' + m_log
                                      + "lost: " + lost.join(", ");
            QFAIL(report.constData());
        }
    }
    std::error_code error;
    fs::remove_all(base, error);
}

void tst_FileProperties::nothingIsLostAndTheModelIsRight_data()
{
    QTest::addColumn<unsigned>("first");
    for (unsigned first = 0; first < Trees; first += TreesInARow)
        QTest::addRow("trees from seed %u", first) << first;
}

void tst_FileProperties::nothingIsLostAndTheModelIsRight()
{
    QFETCH(const unsigned, first);
    for (unsigned seed = first; seed < first + TreesInARow; ++seed) {
        tryTree(seed);
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_MAIN(tst_FileProperties)
#include "tst_fileproperties.moc"
