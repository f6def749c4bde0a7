// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileModel.h"

#include <QFile>

#include <algorithm>
#include <fstream>
#include <iterator>

#include <sys/stat.h>

namespace fs = std::filesystem;

using namespace Qt::StringLiterals;

namespace {

QString text(const fs::path &path)
{
    return QFile::decodeName(path.c_str());
}

/// At most 255 bytes; what is too long is taken off before the suffix.
QString copyName(int counter, const QString &name)
{
    const QString start = u"Copy_"_s + QString::number(counter) + u"_of_"_s;
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString suffix = dot > 0 && name.size() - dot <= 64 ? name.mid(dot) : QString();
    QList<uint> stem = QStringView(name).chopped(suffix.size()).toUcs4();
    const auto whole = [&] {
        return start
               + QString::fromUcs4(reinterpret_cast<const char32_t *>(stem.constData()),
                                   stem.size())
               + suffix;
    };
    while (whole().toUtf8().size() > 255 && !stem.isEmpty())
        stem.removeLast();
    return whole();
}

} // namespace

FileModel::FileModel(const Path &root) : m_root(root)
{
    Bodies bodies;
    m_top = read(root, &bodies);
}

// --- The tree -------------------------------------------------------------------------------

FileModel::NodePointer FileModel::read(const Path &path, Bodies *bodies)
{
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0)
        return {};
    auto node = std::make_shared<Node>();
    node->mode = status.st_mode & 07777U;
    if (S_ISDIR(status.st_mode)) {
        node->kind = Kind::Folder;
        for (const fs::directory_entry &entry : fs::directory_iterator(path))
            node->children[entry.path().filename().native()] = read(entry.path(), bodies);
    } else if (S_ISLNK(status.st_mode)) {
        node->kind = Kind::Link;
        node->text = fs::read_symlink(path).native();
    } else if (S_ISREG(status.st_mode)) {
        node->kind = Kind::File;
        std::shared_ptr<Body> &body = (*bodies)[status.st_ino];
        if (!body) {
            body = std::make_shared<Body>();
            std::ifstream file(path, std::ios::binary);
            const std::string bytes((std::istreambuf_iterator<char>(file)), {});
            body->content = QByteArray::fromStdString(bytes);
            body->modified = status.st_mtim.tv_sec * 1'000'000'000LL + status.st_mtim.tv_nsec;
        }
        node->body = body;
    } else {
        node->kind = Kind::Special;
    }
    return node;
}

QByteArrayList FileModel::lines() const
{
    QByteArrayList lines;
    addLines(*m_top, std::string(), &lines);
    return lines;
}

void FileModel::addLines(const Node &node, const std::string &path, QByteArrayList *lines)
{
    QByteArray line = QByteArray::fromStdString(path) + ' ' + QByteArray::number(int(node.kind));
    if (node.kind == Kind::Link)
        line += ' ' + QByteArray::fromStdString(node.text);
    else
        line += ' ' + QByteArray::number(node.mode, 8);
    if (node.body)
        line += ' ' + QByteArray::number(node.body->modified) + ' '
                + node.body->content.toPercentEncoding().replace("%00", QByteArray());
    lines->append(line);
    for (const auto &[name, child] : node.children) {
        auto below = path;
        below += '/';
        below += name;
        addLines(*child, below, lines);
    }
}

std::vector<FileModel::Path> FileModel::paths() const
{
    std::vector<Path> paths;
    addPaths(*m_top, m_root, &paths);
    return paths;
}

void FileModel::addPaths(const Node &node, const Path &path, std::vector<Path> *paths)
{
    paths->push_back(path);
    for (const auto &[name, child] : node.children)
        addPaths(*child, path / name, paths);
}

FileModel::NodePointer FileModel::find(const Path &path, bool follow, int depth) const
{
    constexpr int MaxDepth = 40;
    const Path relative = path.lexically_relative(m_root);
    if (depth > MaxDepth || relative.empty())
        return {};
    std::vector<NodePointer> above = {m_top};
    Path walked = m_root;
    for (auto part = relative.begin(); part != relative.end(); ++part) {
        if (part->empty() || *part == ".")
            continue;
        const auto child = above.back()->children.find(part->native());
        if (child == above.back()->children.end())
            return {};
        const bool isLast = std::next(part) == relative.end();
        NodePointer node = child->second;
        if (node->kind == Kind::Link && (follow || !isLast)) {
            Path rest = Path(node->text).is_absolute() ? Path(node->text) : walked / node->text;
            for (auto next = std::next(part); next != relative.end(); ++next)
                rest /= *next;
            return find(rest.lexically_normal(), follow, depth + 1);
        }
        above.push_back(node);
        walked /= *part;
    }
    return above.back();
}

std::optional<FileModel::Path> FileModel::folderFor(const Path &target) const
{
    const NodePointer node = find(target, true);
    if (!node)
        return std::nullopt;
    const Path folder = node->kind == Kind::File ? target.parent_path() : target;
    const NodePointer found = find(folder, true);
    if (!found || !found->isFolder())
        return std::nullopt;
    // Without links.
    const std::vector<Path> all = paths();
    return *std::find_if(all.cbegin(), all.cend(),
                         [&](const Path &path) { return find(path, false) == found; });
}

bool FileModel::isSame(const Path &source, const Path &target) const
{
    const auto leadToOne = [&](bool follow) {
        const NodePointer one = find(source, follow);
        const NodePointer other = find(target, follow);
        return one && other && (one == other || (one->body && one->body == other->body));
    };
    return leadToOne(false) || leadToOne(true);
}

/// Whether \a path, of which the last part may be missing, is somewhere in \a folder.
bool FileModel::holds(const Node &folder, const Path &path) const
{
    const NodePointer parent = find(path.parent_path(), true);
    const auto isAt = [&parent](const auto &self, const Node &node) -> bool {
        return &node == parent.get()
               || std::any_of(node.children.cbegin(), node.children.cend(),
                              [&](const auto &child) { return self(self, *child.second); });
    };
    return parent && isAt(isAt, folder);
}

// --- Operations -----------------------------------------------------------------------------

QString FileModel::taken(const QString &text)
{
    if (m_boxes.isEmpty() || m_boxes.constFirst().text != text) {
        m_faults.append("missing box: " + text.toUtf8());
        return {};
    }
    return m_boxes.takeFirst().answer;
}

void FileModel::finish()
{
    for (const Box &box : std::as_const(m_boxes))
        m_faults.append("unexpected box: " + box.text.toUtf8());
}

/// The errors that end the copying of one source.
bool FileModel::showsError(const Path &source, const Path &target)
{
    const NodePointer from = find(source, false);
    const NodePointer to = find(target, false);
    const QString both = u"Cannot copy or move the file from "_s + text(source) + u" to "_s
                         + text(target) + u". "_s;
    if (from && isSame(source, target))
        return false;
    if (!from)
        taken(u"Source file does not exist"_s);
    else if (from->isFolder() && holds(*from, target))
        taken(both + u"The Target folder is a subfolder of the source folder."_s);
    else if (to && from->isFolder() != to->isFolder())
        taken(both + u"A file with the same name already exist."_s);
    else
        return false;
    return true;
}

void FileModel::paste(const std::vector<Path> &sources, const Path &target, bool isCut,
                      QList<Box> boxes)
{
    m_boxes = std::move(boxes);
    if (const std::optional<Path> folder = folderFor(target)) {
        for (const Path &source : sources)
            pasteOne(source, *folder, isCut);
    }
    finish();
}

void FileModel::pasteOne(const Path &source, const Path &folder, bool isCut)
{
    const Path target = folder / source.filename();
    if (showsError(source, target))
        return;
    const NodePointer from = find(source, false);
    if (isSame(source, target)) {
        if (!isCut)
            go(source, find(target, false) ? freeName(source, folder) : target, false, false);
        return;
    }
    if (!find(target, false)) {
        go(source, target, isCut, false);
        return;
    }
    const QString answer = taken(
        u"This folder already contains a file named "_s + text(target.filename())
        + u". Do you want to replace the existing file or save the new file as a copy?"_s);
    if (answer == "Replace Current"_L1)
        go(source, target, isCut, true);
    else if (answer == "Save a Copy"_L1)
        go(source, freeName(source, folder), isCut, false);
}

void FileModel::go(const Path &source, const Path &target, bool isCut, bool overwrite)
{
    if (copy(source, target, overwrite) && isCut)
        find(source.parent_path(), true)->children.erase(source.filename().native());
}

FileModel::Path FileModel::freeName(const Path &source, const Path &folder) const
{
    for (int counter = 2;; ++counter) {
        const QString name = copyName(counter, text(source.filename()));
        Path target = folder / QFile::encodeName(name).toStdString();
        if (!find(target, false))
            return target;
    }
}

FileModel::NodePointer FileModel::copied(const Node &source)
{
    auto copy = std::make_shared<Node>();
    copy->kind = source.kind;
    copy->text = source.text;
    copy->mode = source.mode & 0777U;
    if (source.body)
        copy->body = std::make_shared<Body>(*source.body);
    return copy;
}

/// Whether all of it was copied.
bool FileModel::copy(const Path &source, const Path &target, bool overwrite)
{
    const NodePointer from = find(source, false);
    const NodePointer parent = find(target.parent_path(), true);
    if (!from || !parent || from->kind == Kind::Special)
        return false;
    NodePointer to = find(target, false);
    if (!from->isFolder()) {
        const bool mayReplace = overwrite && to
                                && (to->kind == Kind::File || to->kind == Kind::Link)
                                && !isSame(source, target);
        if (to && !mayReplace)
            return false;
        parent->children[target.filename().native()] = copied(*from);
        return true;
    }
    if (!to) {
        to = copied(*from);
        parent->children[target.filename().native()] = to;
    }
    bool isComplete = true;
    const std::map<std::string, NodePointer> children = from->children;
    for (const bool isFolder : {false, true}) {
        for (const auto &[name, child] : children) {
            if (child->isFolder() != isFolder)
                continue;
            const NodePointer there = find(target / name, false);
            if (isFolder && there && !there->isFolder()) {
                showsError(source / name, target / name);
                isComplete = false;
            } else if (!copy(source / name, target / name, overwrite)) {
                isComplete = false;
            }
        }
    }
    return isComplete;
}

void FileModel::copyPath(const Path &source, const Path &target, bool overwrite, QList<Box> boxes)
{
    m_boxes = std::move(boxes);
    if (!showsError(source, target) && !isSame(source, target))
        copy(source, target, overwrite);
    finish();
}

void FileModel::remove(const std::vector<Path> &paths)
{
    for (const Path &path : paths) {
        if (find(path, false) && path != m_root)
            find(path.parent_path(), true)->children.erase(path.filename().native());
    }
}

void FileModel::newFolder(const Path &current)
{
    const NodePointer node = find(current, true);
    const Path base = node && node->kind == Kind::File ? current.parent_path() : current;
    const NodePointer folder = find(base, true);
    if (!folder || !folder->isFolder())
        return;
    std::string name = "New Folder";
    for (int counter = 2; folder->children.count(name) != 0; ++counter)
        name = "New Folder (" + std::to_string(counter) + ')';
    auto made = std::make_shared<Node>();
    made->mode = 0755;
    folder->children[name] = made;
}

bool FileModel::isTangled(const std::vector<Path> &sources, const Path &target) const
{
    const std::optional<Path> folder = folderFor(target);
    if (!folder)
        return false;
    return std::any_of(sources.cbegin(), sources.cend(), [&](const Path &source) {
        const NodePointer merged = find(*folder / source.filename(), false);
        return merged && merged->isFolder() && holds(*merged, source);
    });
}
