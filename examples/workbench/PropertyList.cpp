// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PropertyList.h"

#include "ToolView.h"

#include <QHeaderView>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

/// In px, around a name.
constexpr int Name_Room = 12;

} // namespace

PropertyList::PropertyList(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(u"properties"_s);
    setWindowTitle(tr("Properties"));
    setWindowIcon(QIcon(u":/support/properties.svg"_s));
    setAccessibleName(windowTitle());
    setFrameShape(QFrame::NoFrame);
    setHeaderLabels({tr("Name"), tr("Value")});
    // The values get what is left: they are the longer ones.
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
}

void PropertyList::setProperties(const QList<QPair<QString, QString>> &properties)
{
    clear();
    for (const auto &[name, value] : properties) {
        auto *item = new QTreeWidgetItem({name, value});
        item->setSizeHint(
            0, {fontMetrics().horizontalAdvance(name) + Name_Room, ToolView::Row_Height});
        item->setToolTip(1, u"<p>%1</p>"_s.arg(value.toHtmlEscaped()));
        addTopLevelItem(item);
    }
}
