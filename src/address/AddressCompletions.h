// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace VornFrame {

/// Finds the folders that a person who types a path can mean.
class AddressCompletions
{
public:
    /// As many as are offered at most.
    static constexpr int Maximum = 200;

    /// How \a text can go on: with the rest of the name at its end, whatever its case, or with a
    /// folder below the one that it names. All begin as \a text does, with its separators.
    QStringList of(const QString &text);

    /// Forgets the folders that were listed, so that they are listed anew.
    void forget();

private:
    const QStringList &namesIn(const QString &folder);

    QHash<QString, QStringList> m_names; ///< of the folders that were typed so far
};

} // namespace VornFrame
