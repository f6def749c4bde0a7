// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ObjectTree.h"

#include <QAction>
#include <QHeaderView>
#include <QIcon>
#include <QSignalBlocker>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

enum Column { ClassColumn, NameColumn };

constexpr int ObjectRole = Qt::UserRole;
constexpr int ClassColumn_Width = 150;

} // namespace

ObjectTree::ObjectTree(QObject *root, QWidget *parent)
    : ToolView(parent), m_root(root), m_tree(new QTreeWidget)
{
    setObjectName(u"objects"_s);
    setWindowTitle(tr("Objects"));
    setWindowIcon(QIcon(u":/panels/objects.svg"_s));
    m_tree->setObjectName(u"objectTree"_s);
    m_tree->setAccessibleName(windowTitle());
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setHeaderLabels({tr("Class"), tr("Name")});
    m_tree->header()->resizeSection(ClassColumn, ClassColumn_Width);
    m_tree->setUniformRowHeights(true);
    setContent(m_tree);
    QAction *refreshing = addCommand(tr("&Refresh"), u"refreshObjects"_s);
    refreshing->setShortcut(QKeySequence::Refresh);
    connect(refreshing, &QAction::triggered, this, &ObjectTree::refresh);
    connect(m_tree, &QTreeWidget::currentItemChanged, this,
            [this] { Q_EMIT objectChosen(chosenObject()); });
}

void ObjectTree::refresh()
{
    const QObject *chosen = chosenObject();
    {
        const QSignalBlocker blocker(m_tree);
        m_tree->clear();
        m_chosenItem = nullptr;
        m_count = 0;
        if (m_root)
            m_tree->addTopLevelItem(itemFor(m_root, chosen));
        m_tree->expandToDepth(0);
        m_tree->setCurrentItem(m_chosenItem);
    }
    if (m_chosenItem)
        m_tree->scrollToItem(m_chosenItem);
    setNote(tr("Objects: %1").arg(m_count));
    Q_EMIT objectChosen(chosenObject());
}

QObject *ObjectTree::chosenObject() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? item->data(ClassColumn, ObjectRole).value<QPointer<QObject>>() : nullptr;
}

QTreeWidgetItem *ObjectTree::itemFor(QObject *object, const QObject *chosen)
{
    const QString className = QString::fromLatin1(object->metaObject()->className());
    auto *item = new QTreeWidgetItem({className, object->objectName()});
    item->setSizeHint(ClassColumn, {0, Row_Height});
    item->setToolTip(ClassColumn, className);
    item->setData(ClassColumn, ObjectRole, QVariant::fromValue(QPointer<QObject>(object)));
    ++m_count;
    if (object == chosen)
        m_chosenItem = item;
    const QObjectList children = object->children();
    for (QObject *child : children)
        item->addChild(itemFor(child, chosen));
    return item;
}
