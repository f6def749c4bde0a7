// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileContent.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

/// Reads files in the background: a slow disk must not hold up the window.
class ContentLoader : public QObject
{
    Q_OBJECT

public:
    explicit ContentLoader(QObject *parent = nullptr);
    ~ContentLoader() override;

    /// Begins to read the file at \a path. What was begun before is forgotten.
    void load(const QString &path);

    void cancel();

Q_SIGNALS:
    void loaded(const FileContent &content);

private:
    std::shared_ptr<std::atomic_bool> m_isCancelled;
    QThreadPool m_threads;
};
