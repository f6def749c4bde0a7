// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileProgress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>

#include <condition_variable>
#include <functional>
#include <mutex>

class QProgressBar;

namespace VornFrame {

/// Does work with files in a thread of its own, so that a slow disk never stops the painting, while
/// the caller waits. For the first second nothing else happens in the application; then a modal
/// dialog shows the progress and offers to cancel.
class FileTask
{
    Q_DECLARE_TR_FUNCTIONS(VornFrame::FileTask)

public:
    /// The progress is shown over \a window, which may be null and may die meanwhile.
    explicit FileTask(QWidget *window);

    /// Returns when \a work is done; false when the system has no thread for it, and nothing was
    /// done.
    bool run(const std::function<void()> &work);

    /// For the work: runs \a question in the thread of the caller and waits for it.
    void ask(const std::function<void()> &question);

    FileProgress &progress() { return m_progress; }

private:
    Q_DISABLE_COPY_MOVE(FileTask)

    using Lock = std::unique_lock<std::mutex>;

    void wait(Lock &lock);
    void answer(Lock &lock);
    void showProgress();
    void makeDialog();

    const QPointer<QWidget> m_window;
    FileProgress m_progress;
    /// Null until the work has taken long. It dies with the window, if that is deleted meanwhile.
    QPointer<QProgressDialog> m_dialog;
    QProgressBar *m_bar = nullptr; ///< belongs to the dialog
    QElapsedTimer m_clock;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    const std::function<void()> *m_question = nullptr;
    bool m_isDone = false;
};

} // namespace VornFrame
