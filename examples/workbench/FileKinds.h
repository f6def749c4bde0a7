// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The files that the program opens itself.
namespace FileKinds {

/// Their suffixes, without dot.
QStringList suffixes();

} // namespace FileKinds
