// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPlainTextEdit>

/// A place for plain text of the user's own.
class ScratchPad : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ScratchPad(QWidget *parent = nullptr);
};
