// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#if defined(__GNUC__) && QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
// The QTRY_ macros of Qt 6.8 make an int of a long, in the midst of the code that uses them.
#    pragma GCC diagnostic ignored "-Wconversion"
#endif
