// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "NativeFiles.h"

#include <atomic>
#include <mutex>

namespace VornFrame {

/// How far a file operation is, and whether it shall go on. The thread that works writes it, the
/// one that shows it reads it, and cancels.
class FileProgress
{
public:
    FileProgress() = default;

    /// The file or folder that is being worked on.
    void setCurrent(const NativeFiles::Path &path)
    {
        const std::scoped_lock lock(m_mutex);
        m_current = path;
    }
    NativeFiles::Path current() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_current;
    }

    /// Bytes copied so far, and to copy in all; 0 where nobody knows.
    void add(qint64 bytes) { m_done += bytes; }
    qint64 done() const { return m_done; }
    void addTotal(qint64 bytes) { m_total += bytes; }
    qint64 total() const { return m_total; }

    void cancel() { m_isCancelled = true; }
    bool isCancelled() const { return m_isCancelled; }

private:
    Q_DISABLE_COPY_MOVE(FileProgress)

    mutable std::mutex m_mutex;
    NativeFiles::Path m_current;
    std::atomic<qint64> m_done = 0;
    std::atomic<qint64> m_total = 0;
    std::atomic<bool> m_isCancelled = false;
};

} // namespace VornFrame
