// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressFileModel.h"

#include "NativeFiles.h"

#include <QDir>
#include <QRandomGenerator>

#include <algorithm>

namespace VornFrame {

using namespace Qt::StringLiterals;

namespace {

constexpr int LastAlignedColumn = 3;

bool isFileName(const QString &name)
{
#ifdef Q_OS_WIN
    // A colon would make a second stream of another file.
    static constexpr QStringView Forbidden = u"/\\:*?\"<>|";
#else
    static constexpr QStringView Forbidden = u"/";
#endif
    const auto isForbidden = [](QChar character) {
        return character.isNull() || Forbidden.contains(character);
    };
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1
           && std::none_of(name.cbegin(), name.cend(), isForbidden);
}

/// Whether the two paths are one entry of a file system that does not tell cases apart.
bool differInCaseOnly(const QString &from, const QString &to)
{
    return from.compare(to, Qt::CaseInsensitive) == 0
           && NativeFiles::factsOf(NativeFiles::fromText(from)).identity
                  == NativeFiles::factsOf(NativeFiles::fromText(to)).identity;
}

/// By way of a third name, so that at no time anything can be replaced: they could also be two
/// links to one file.
bool changeCase(const QString &folder, const QString &from, const QString &to)
{
    using NativeFiles::fromText;
    QString between;
    do {
        constexpr int Base = 36;
        between = QDir(folder).filePath(
            u".rename-"_s + QString::number(QRandomGenerator::global()->generate64(), Base));
    } while (NativeFiles::factsOf(fromText(between)).exists());
    if (!NativeFiles::moveTo(fromText(from), fromText(between)))
        return false;
    if (NativeFiles::moveTo(fromText(between), fromText(to)))
        return true;
    NativeFiles::moveTo(fromText(between), fromText(from));
    return false;
}

bool renameIn(const QString &folder, const QString &oldName, const QString &newName)
{
    const QString from = QDir(folder).filePath(oldName);
    const QString to = QDir(folder).filePath(newName);
    if (NativeFiles::moveTo(NativeFiles::fromText(from), NativeFiles::fromText(to)))
        return true;
    return differInCaseOnly(from, to) && changeCase(folder, from, to);
}

} // namespace

class AddressFileModelPrivate
{
public:
    AddressFileModel *q_ptr = nullptr;
};

AddressFileModel::AddressFileModel(QObject *parent)
    : QFileSystemModel(parent), d_ptr(std::make_unique<AddressFileModelPrivate>())
{
    Q_D(AddressFileModel);
    d->q_ptr = this;
    // Otherwise the path of a link may be that of what it leads to, and deleting the link would
    // delete that.
    setResolveSymlinks(false);
}

AddressFileModel::~AddressFileModel() = default;

QVariant AddressFileModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole && index.isValid() && index.column() <= LastAlignedColumn)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return QFileSystemModel::data(index, role);
}

// Not that of Qt: it copies and removes where it cannot rename, writes through links that lead
// nowhere (Qt 6.4 to 6.8), and shows the name as markup when it fails.
bool AddressFileModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != 0 || role != Qt::EditRole
        || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const QString oldName = fileName(index);
    const QString newName = value.toString();
    if (newName == oldName)
        return true;
    const QString folder = filePath(index.parent());
    if (!isFileName(newName) || !renameIn(folder, oldName, newName))
        return false;
    Q_EMIT fileRenamed(folder, oldName, newName);
    return true;
}

} // namespace VornFrame
