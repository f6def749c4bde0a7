// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ToolView.h"

class QListWidget;

/// The colours that have a name, each with a sample of it. A double click, or Return, puts the name
/// on the clipboard.
class ColorList : public ToolView
{
    Q_OBJECT

public:
    explicit ColorList(QWidget *parent = nullptr);

private:
    void copyName();

    QListWidget *m_list;
};
