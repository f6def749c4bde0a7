// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PropertyTable.h"

#include "PropertyText.h"

#include <QHeaderView>
#include <QIcon>
#include <QMetaProperty>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

enum Column { NameColumn, TypeColumn, ValueColumn };

constexpr int NameColumn_Width = 110;
constexpr int TypeColumn_Width = 70;
/// In px, when there is no room for more.
constexpr int ValueColumn_Width = 60;

} // namespace

PropertyTable::PropertyTable(QWidget *parent) : ToolView(parent), m_table(new QTreeWidget)
{
    setObjectName(u"properties"_s);
    setWindowTitle(tr("Properties"));
    setWindowIcon(QIcon(u":/support/properties.svg"_s));
    m_table->setObjectName(u"propertyTable"_s);
    m_table->setAccessibleName(windowTitle());
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setHeaderLabels({tr("Name"), tr("Type"), tr("Value")});
    m_table->header()->resizeSection(NameColumn, NameColumn_Width);
    m_table->header()->resizeSection(TypeColumn, TypeColumn_Width);
    m_table->header()->resizeSection(ValueColumn, ValueColumn_Width);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    setContent(m_table);
    setObject(nullptr);
}

void PropertyTable::setObject(QObject *object)
{
    if (m_object)
        m_object->disconnect(this);
    m_object = object;
    m_table->clear();
    if (!object) {
        setNote(tr("No object chosen"));
        return;
    }
    connect(object, &QObject::destroyed, this, [this] { setObject(nullptr); });
    setNote(PropertyText::text(QVariant::fromValue(object)));
    addStaticProperties();
    addDynamicProperties();
}

void PropertyTable::addRow(const QString &name, const QString &type, const QString &value)
{
    auto *item = new QTreeWidgetItem({name, type, value});
    item->setSizeHint(NameColumn, {0, Row_Height});
    item->setToolTip(ValueColumn, u"<p>%1</p>"_s.arg(value.toHtmlEscaped()));
    m_table->addTopLevelItem(item);
}

void PropertyTable::addStaticProperties()
{
    const QMetaObject *meta = m_object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.isReadable()) {
            addRow(QString::fromLatin1(property.name()), QString::fromLatin1(property.typeName()),
                   PropertyText::text(property, property.read(m_object)));
        }
    }
}

void PropertyTable::addDynamicProperties()
{
    const QList<QByteArray> names = m_object->dynamicPropertyNames();
    for (const QByteArray &name : names) {
        const QVariant value = m_object->property(name.constData());
        addRow(QString::fromUtf8(name), QString::fromLatin1(value.typeName()),
               PropertyText::text(value));
    }
}
