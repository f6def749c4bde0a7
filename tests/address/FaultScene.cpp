// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FaultScene.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

using namespace FaultBench;
using namespace Qt::StringLiterals;

namespace {

// Where they are in the source folder, and in the target folder too.
constexpr std::array Copied = {"one",           "sub/two",  "sub/.hidden",
                               "sub/name \xff", "sub/link", "sub/inner/three"};
constexpr std::array Replaced = {"one", "sub/two"};

} // namespace

FaultScene::FaultScene(Path sourceDisk, Path targetDisk, Path dataHome)
    : m_source(std::move(sourceDisk)), m_target(std::move(targetDisk)),
      m_dataHome(std::move(dataHome))
{}

void FaultScene::make(Work work, Trash trash, const std::vector<Path> &tops)
{
    m_work = work;
    m_trash = trash;
    m_tops = tops;
    makeFile(m_source / "one", "one", 9000);
    makeFile(m_source / "sub/two", "two");
    makeFile(m_source / "sub/.hidden", "hidden");
    makeFile(m_source / "sub/name \xff", "raw");
    makeFile(m_source / "sub/inner/three", "three");
    makeFile(m_source / "sub/nothing", "", 0);
    fs::create_symlink("two", m_source / "sub/link");
    fs::create_directories(m_source / "sub/empty");
    fs::create_directories(m_target);
    makeFile(m_target / "sub-other", "other");
    if (replaces()) {
        makeFile(m_target / "one", "old one", 8000);
        makeFile(m_target / "sub/two", "old two");
        makeFile(m_target / "sub/stays", "stays");
    }
    fs::create_directories(m_dataHome);
    if (trash == Trash::None) {
        makeFile(m_dataHome / "Trash", "no trash", 10);
        for (const Path &top : tops)
            makeFile(top / ".Trash-0", "no trash", 10);
    }
    m_before = FileCensus::of(roots());
}

QStringList FaultScene::words(const QStringList &options) const
{
    if (m_work == Work::Delete)
        return options + QStringList{u"remove"_s, text(m_source / "sub")};
    QStringList words = options;
    if (replaces())
        words += {u"--answer"_s, u"Replace Current"_s};
    words += {u"paste"_s, cuts() ? u"cut"_s : u"copy"_s, text(m_target)};
    return words + QStringList{text(m_source / "one"), text(m_source / "sub")};
}

QString FaultScene::faults(bool isHurt) const
{
    const FileCensus after = FileCensus::of(roots());
    FileCensus kept = m_before;
    if (m_trash != Trash::Home && replaces()) {
        // Without a trash, what is replaced is gone; but only then.
        for (const char *name : Replaced) {
            const QByteArray now = FileCensus::contentOf(m_target / name);
            if (now == FileCensus::contentOf(m_source / name) || !fs::exists(m_source / name))
                kept.forget(FileCensus::contentOf(m_target / name));
        }
    }
    QByteArrayList lost = kept.lostIn(after);
    if (m_trash != Trash::Home && replaces()) {
        const auto isReplaced = [this](const QByteArray &path) {
            return std::any_of(Replaced.cbegin(), Replaced.cend(), [&](const char *name) {
                return path == QByteArray::fromStdString((m_target / name).native())
                       && fs::exists(m_target / name);
            });
        };
        lost.removeIf(isReplaced);
    }
    if (m_trash != Trash::Home && m_work == Work::Delete)
        lost.removeIf([this](const QByteArray &path) {
            return path.startsWith(QByteArray::fromStdString((m_source / "sub/").native()));
        });
    QByteArrayList wrong;
    if (!lost.isEmpty())
        wrong.append("lost: " + lost.join(", "));
    if (!isHurt && !after.leftovers().isEmpty())
        wrong.append("left behind: " + after.leftovers().join(", "));
    QByteArrayList strange = m_before.strangeIn(after);
    if (isHurt)
        strange.removeIf([](const QByteArray &path) { return path.contains("/.vornframe-"); });
    if (!strange.isEmpty())
        wrong.append("not complete: " + strange.join(", "));
    return QString::fromLocal8Bit(wrong.join("; "));
}

bool FaultScene::isDone() const
{
    std::error_code error;
    if (m_work == Work::Delete)
        return !fs::exists(m_source / "sub", error);
    const FileCensus arrived = FileCensus::of({m_target});
    const bool isCut = !fs::exists(m_source / "one", error) && !fs::exists(m_source / "sub", error);
    return std::all_of(
               Copied.cbegin(), Copied.cend(),
               [&](const char *name) { return !FileCensus::contentOf(m_target / name).isEmpty(); })
           && (isCut || !cuts());
}

std::vector<Path> FaultScene::roots() const
{
    std::vector<Path> roots = {m_source, m_target, m_dataHome};
    for (const Path &top : m_tops)
        roots.push_back(top);
    return roots;
}
