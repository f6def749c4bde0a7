// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemModel>

#include <memory>

namespace VornFrame {

class AddressFileModelPrivate;

/// The files and folders that an address tree shows, with all columns aligned to the left.
class AddressFileModel : public QFileSystemModel
{
    Q_OBJECT

public:
    explicit AddressFileModel(QObject *parent);
    ~AddressFileModel() override;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Renames a file or folder; emits fileRenamed(). Says nothing and returns false where that
    /// cannot be done, among others because the name is taken. Nothing is ever replaced, and a link
    /// is renamed itself.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

private:
    Q_DECLARE_PRIVATE(AddressFileModel)
    Q_DISABLE_COPY_MOVE(AddressFileModel)

    const std::unique_ptr<AddressFileModelPrivate> d_ptr;
};

} // namespace VornFrame
