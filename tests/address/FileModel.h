// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What file operations should do to a tree of files: a tree in memory, where the same is done in
/// the plainest way.
class FileModel
{
public:
    using Path = std::filesystem::path;

    /// A box that was shown, and the button that was pressed in it.
    struct Box
    {
        QString text;
        QString answer;
    };

    /// As the tree below \a root is on the disk.
    explicit FileModel(const Path &root);

    /// Every file, link and folder, one a line.
    QByteArrayList lines() const;

    /// All paths, the root too.
    std::vector<Path> paths() const;

    /// What is done. \a boxes are those that the operation has shown; each is taken off when the
    /// model comes to the same point. The wrong ones, and those that are missing, stay in faults().
    void paste(const std::vector<Path> &sources, const Path &target, bool isCut, QList<Box> boxes);
    void copyPath(const Path &source, const Path &target, bool overwrite, QList<Box> boxes);
    void remove(const std::vector<Path> &paths);
    void newFolder(const Path &current);

    /// Whether a source lies inside the folder that it would be merged with. What comes out depends
    /// on the order in which the disk lists its files.
    bool isTangled(const std::vector<Path> &sources, const Path &target) const;

    QByteArrayList faults() const { return m_faults; }

private:
    enum class Kind { File, Link, Folder, Special };

    /// A file may have several names.
    struct Body
    {
        QByteArray content;
        long long modified = 0;
    };
    struct Node;
    using NodePointer = std::shared_ptr<Node>;
    struct Node
    {
        bool isFolder() const { return kind == Kind::Folder; }

        Kind kind = Kind::Folder;
        unsigned mode = 0;
        std::shared_ptr<Body> body;
        std::string text; ///< of a link
        std::map<std::string, NodePointer> children;
    };
    using Bodies = std::map<unsigned long long, std::shared_ptr<Body>>;

    static NodePointer read(const Path &path, Bodies *bodies);
    static void addLines(const Node &node, const std::string &path, QByteArrayList *lines);
    static void addPaths(const Node &node, const Path &path, std::vector<Path> *paths);
    static NodePointer copied(const Node &source);

    NodePointer find(const Path &path, bool follow, int depth = 0) const;
    std::optional<Path> folderFor(const Path &target) const;
    bool isSame(const Path &source, const Path &target) const;
    bool holds(const Node &folder, const Path &path) const;
    void pasteOne(const Path &source, const Path &folder, bool isCut);
    void go(const Path &source, const Path &target, bool isCut, bool overwrite);
    bool copy(const Path &source, const Path &target, bool overwrite);
    Path freeName(const Path &source, const Path &folder) const;
    bool showsError(const Path &source, const Path &target);
    QString taken(const QString &text);
    void finish();

    Path m_root;
    NodePointer m_top;
    QList<Box> m_boxes;
    QByteArrayList m_faults;
};
