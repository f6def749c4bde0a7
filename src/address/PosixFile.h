// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cerrno>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace VornFrame {

/// Calls again what a signal interrupted, but not for ever: a broken file system may answer so
/// every time.
template <typename Call>
auto retried(Call call)
{
    constexpr int MaxTries = 100;
    auto result = call();
    for (int tries = 1; result == -1 && errno == EINTR && tries < MaxTries; ++tries)
        result = call();
    return result;
}

/// An open file or folder, closed with the object.
class PosixFile
{
public:
    PosixFile(const std::filesystem::path &path, int flags, mode_t mode = 0)
        : m_descriptor(retried([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); }))
    {}
    ~PosixFile() { close(); }

    bool isOpen() const { return m_descriptor != -1; }
    int descriptor() const { return m_descriptor; }

    /// Leaves the descriptor to the caller.
    int release() { return std::exchange(m_descriptor, -1); }

    /// An error here means that the data did not reach the disk, except when interrupted: the file
    /// is closed then.
    bool close()
    {
        if (!isOpen())
            return true;
        return ::close(release()) == 0 || errno == EINTR;
    }

private:
    Q_DISABLE_COPY_MOVE(PosixFile)

    int m_descriptor;
};

} // namespace VornFrame
