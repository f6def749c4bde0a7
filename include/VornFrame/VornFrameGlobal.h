// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

/// \file
///
/// The export macro `VORNFRAME_EXPORT` and the version macros; included by every header of the
/// library.

#include <VornFrame/VornFrameExport.h>
#include <VornFrame/VornFrameVersion.h>
