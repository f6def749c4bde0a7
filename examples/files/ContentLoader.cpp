// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ContentLoader.h"

#include "FileReader.h"

namespace {

/// One may hang on a disk that does not answer while the other goes on.
constexpr int Thread_Count = 2;

} // namespace

ContentLoader::ContentLoader(QObject *parent) : QObject(parent)
{
    m_threads.setMaxThreadCount(Thread_Count);
}

ContentLoader::~ContentLoader()
{
    cancel();
    m_threads.waitForDone();
}

void ContentLoader::load(const QString &path)
{
    cancel();
    const auto isCancelled = std::make_shared<std::atomic_bool>(false);
    m_isCancelled = isCancelled;
    m_threads.start([this, path, isCancelled] {
        const FileContent content = FileReader::read(path, *isCancelled);
        const auto deliver = [this, content, isCancelled] {
            if (!*isCancelled)
                Q_EMIT loaded(content);
        };
        QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
    });
}

void ContentLoader::cancel()
{
    if (m_isCancelled)
        *m_isCancelled = true;
    m_threads.clear();
}
