// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ScratchPad.h"

#include <QIcon>

using namespace Qt::StringLiterals;

ScratchPad::ScratchPad(QWidget *parent) : QPlainTextEdit(parent)
{
    setObjectName(u"scratch"_s);
    setWindowTitle(tr("Scratch Pad"));
    setWindowIcon(QIcon(u":/panels/scratch.svg"_s));
    setAccessibleName(windowTitle());
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    setPlaceholderText(tr("Text written here is kept until the next start."));
}
