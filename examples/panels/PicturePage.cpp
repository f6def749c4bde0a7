// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PicturePage.h"

#include <QFileInfo>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PicturePage::PicturePage(const QString &path, const QImage &image, const QString &format)
    : DocumentPage(path), m_size(image.deviceIndependentSize().toSize()), m_depth(image.depth()),
      m_format(format)
{
    const QString name = QFileInfo(path).fileName();
    auto *label = new QLabel;
    label->setObjectName(u"picture"_s);
    label->setAccessibleName(name);
    label->setPixmap(QPixmap::fromImage(image));
    label->setFixedSize(m_size);
    auto *area = new QScrollArea;
    area->setObjectName(u"pictureArea"_s);
    area->setAccessibleName(name);
    area->setFrameShape(QFrame::NoFrame);
    area->setAlignment(Qt::AlignCenter);
    area->setBackgroundRole(QPalette::Base);
    area->setWidget(label);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(area);
    setFocusProxy(area);
}

QList<OutlineEntry> PicturePage::outline() const
{
    return {
        {tr("Size: %1 × %2 pixels").arg(m_size.width()).arg(m_size.height())},
        {tr("Depth: %1 bits per pixel").arg(m_depth)},
        {tr("Format: %1").arg(m_format)},
    };
}

void PicturePage::goToLine(int line)
{
    Q_UNUSED(line)
}
