// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

/// A program that ends with the one that started it, even when that is killed, and that has no more
/// rights to files than their permissions give.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    ChildProcess();

    /// Asks the program to end, and ends it if it does not.
    ~ChildProcess() override;
};
