// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileTask.h"

#include <QFileInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>

#include <chrono>

namespace VornFrame {

namespace {

using namespace std::chrono_literals;

constexpr qint64 DialogDelay = 1000; // ms
constexpr auto RefreshInterval = 40ms;
constexpr int LabelWidth = 360; // px
constexpr int ProgressSteps = 1000;
// Folders are copied by recursion, to the longest path that a system takes. What a thread has by
// itself is less than that needs: 512 KiB on macOS, 128 KiB with some C libraries.
constexpr uint StackSize = 16U * 1024 * 1024; // bytes

} // namespace

FileTask::FileTask(QWidget *window) : m_window(window ? window->window() : nullptr) {}

bool FileTask::run(const std::function<void()> &work)
{
    m_clock.start();
    const std::unique_ptr<QThread> thread(QThread::create([this, &work] {
        work();
        const std::scoped_lock lock(m_mutex);
        m_isDone = true;
        m_changed.notify_all();
    }));
    thread->setStackSize(StackSize);
    thread->start();
    if (!thread->isRunning() && !thread->isFinished())
        return false;
    {
        Lock lock(m_mutex);
        while (!m_isDone) {
            if (m_question)
                answer(lock);
            else
                wait(lock);
        }
    }
    thread->wait();
    delete m_dialog;
    return true;
}

void FileTask::ask(const std::function<void()> &question)
{
    Lock lock(m_mutex);
    m_question = &question;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return m_question == nullptr; });
}

void FileTask::wait(Lock &lock)
{
    const auto isAwaited = [this] { return m_isDone || m_question != nullptr; };
    const qint64 left = DialogDelay - m_clock.elapsed();
    if (!m_dialog && left > 0) {
        m_changed.wait_for(lock, std::chrono::milliseconds(left), isAwaited);
        return;
    }
    lock.unlock();
    showProgress();
    lock.lock();
    m_changed.wait_for(lock, RefreshInterval, isAwaited);
}

/// The time that the user thinks is no work.
void FileTask::answer(Lock &lock)
{
    lock.unlock();
    (*m_question)();
    m_clock.start();
    lock.lock();
    m_question = nullptr;
    m_changed.notify_all();
}

void FileTask::showProgress()
{
    if (!m_dialog)
        makeDialog();
    const QString name = QFileInfo(NativeFiles::toText(m_progress.current())).fileName();
    const QFontMetrics metrics(m_dialog->font());
    const QLocale locale;
    const qint64 total = m_progress.total();
    const qint64 done = qMin(m_progress.done(), total);
    const QString bytes =
        total == 0
            ? QString()
            : tr("%1 of %2").arg(locale.formattedDataSize(done), locale.formattedDataSize(total));
    m_dialog->setLabelText(metrics.elidedText(name, Qt::ElideMiddle, LabelWidth).simplified()
                           + QLatin1Char('\n') + bytes);
    // The user can close it.
    if (!m_dialog->isVisible())
        m_dialog->show();
    m_bar->setMaximum(total == 0 ? 0 : ProgressSteps);
    m_bar->setValue(total == 0 ? 0 : int(double(done) / double(total) * ProgressSteps));
    QCoreApplication::processEvents();
}

void FileTask::makeDialog()
{
    m_dialog = new QProgressDialog(QString(), tr("Cancel"), 0, 0, m_window);
    m_dialog->setWindowTitle(tr("Files"));
    // Not a button of ours: with another one Qt makes a second shortcut for Escape, and neither works.
    auto *button = m_dialog->findChild<QPushButton *>();
    button->setAutoDefault(false);
    // It stays, and keeps the rest of the application from the user, until the work has noticed.
    // Whatever the connection is: Qt makes it by name, which that by function does not undo.
    QObject::disconnect(m_dialog, &QProgressDialog::canceled, m_dialog, nullptr);
    const auto cancel = [this, button] {
        m_progress.cancel();
        button->setEnabled(false);
    };
    QObject::connect(m_dialog, &QProgressDialog::canceled, button, cancel);
    QObject::connect(m_dialog, &QProgressDialog::rejected, button, cancel);
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setAutoClose(false);
    m_dialog->setAutoReset(false);
    // A name of a file is no markup.
    auto *label = new QLabel(m_dialog);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    label->setMinimumWidth(LabelWidth);
    m_dialog->setLabel(label);
    // Set by itself: QProgressDialog::setValue() handles events, in which the dialog may die.
    m_bar = new QProgressBar(m_dialog);
    m_bar->setAccessibleName(tr("Progress"));
    m_dialog->setBar(m_bar);
    m_dialog->show();
}

} // namespace VornFrame
