// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// How reading or writing a file ended; the reason is a sentence for the user, empty when all went
/// well.
struct FileStatus
{
    enum class Error {
        None,
        NotFound,
        NotRegular,
        TooLarge,
        Binary,
        NotUtf8,
        NotEncodable,
        ReadFailed,
        WriteFailed
    };

    Error error = Error::None;
    QString reason;

    bool ok() const { return error == Error::None; }
};
