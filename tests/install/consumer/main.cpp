// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// A program of a user of the installed library: exits with 0 if the library works there.

#include <VornFrame/RibbonBar>
#include <VornFrame/VornFrame.h>
#include <VornFrame/VornFrameAgent.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>

#include <cstring>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);

    auto *content = new QLabel(QStringLiteral("content"));
    QDialog dialog;
    VornFrameAgent agent;
    agent.setup(&dialog, content);
    VornFrame::RibbonBar *ribbon = agent.ribbonBar();
    ribbon->addPage(QStringLiteral("Home"));
    dialog.show();
    QApplication::processEvents();

    const bool sameVersion = std::strcmp(VORNFRAME_VERSION_STR, EXPECTED_VERSION) == 0;
    const bool hasResources = QFile::exists(QStringLiteral(":/res/ribbonLight.css"));
    const bool works = ribbon->count() == 1 && ribbon->isVisible() && content->isVisible();
    return sameVersion && hasResources && works ? 0 : 1;
}
