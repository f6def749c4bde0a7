// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ColorList.h"

#include <QAction>
#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QListWidget>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int Sample_Size = 16;
constexpr QColor Sample_Frame(125, 125, 125);
constexpr QColor Sample_Shade(191, 191, 191);

/// What shows through a colour that is not opaque.
void drawChequers(QPainter &painter, const QRect &rect)
{
    const QSize half = rect.size() / 2;
    painter.fillRect(rect, Qt::white);
    painter.fillRect(QRect(rect.topLeft(), half), Sample_Shade);
    painter.fillRect(QRect(rect.center() + QPoint(1, 1), half), Sample_Shade);
}

QIcon sample(const QColor &color)
{
    // Of the sharpest screen: the window may be moved there.
    const qreal ratio = qApp->devicePixelRatio();
    const int side = qRound(Sample_Size * ratio);
    QPixmap pixmap(side, side);
    pixmap.setDevicePixelRatio(ratio);
    QPainter painter(&pixmap);
    const QRect inside(1, 1, Sample_Size - 2, Sample_Size - 2);
    painter.fillRect(0, 0, Sample_Size, Sample_Size, Sample_Frame);
    drawChequers(painter, inside);
    painter.fillRect(inside, color);
    painter.end();
    QIcon icon(pixmap);
    // A chosen line keeps the colour as it is.
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

} // namespace

ColorList::ColorList(QWidget *parent) : ToolView(parent), m_list(new QListWidget)
{
    setObjectName(u"colors"_s);
    setWindowTitle(tr("Colours"));
    setWindowIcon(QIcon(u":/panels/colors.svg"_s));
    m_list->setObjectName(u"colorList"_s);
    m_list->setAccessibleName(windowTitle());
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setUniformItemSizes(true);
    m_list->setIconSize({Sample_Size, Sample_Size});
    const QStringList names = QColor::colorNames();
    for (const QString &name : names) {
        auto *item = new QListWidgetItem(sample(QColor(name)), name, m_list);
        item->setSizeHint({0, Row_Height});
    }
    setContent(m_list);
    setNote(tr("Colours: %1").arg(names.size()));

    QAction *copy = addCommand(tr("&Copy Name"), u"copyColorName"_s);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    copy->setEnabled(false);
    connect(copy, &QAction::triggered, this, &ColorList::copyName);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &ColorList::copyName);
    connect(m_list, &QListWidget::itemActivated, this, &ColorList::copyName);
    connect(m_list, &QListWidget::currentItemChanged, copy,
            [copy](const QListWidgetItem *item) { copy->setEnabled(item != nullptr); });
}

void ColorList::copyName()
{
    const QListWidgetItem *item = m_list->currentItem();
    if (!item)
        return;
    QGuiApplication::clipboard()->setText(item->text());
    setNote(tr("Copied: %1").arg(item->text()));
}
