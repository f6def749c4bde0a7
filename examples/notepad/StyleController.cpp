// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleController.h"

#include "NotepadActions.h"
#include "StyleCatalog.h"
#include "StyleIcon.h"
#include "TextEditor.h"

#include <VornFrame/RibbonGallery.h>

#include <QAction>
#include <QHash>
#include <QIcon>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr int StripCount = 8;
constexpr QSize TileSize(90, 60);

} // namespace

StyleController::StyleController(TextEditor *editor, NotepadActions *actions)
    : QObject(editor), m_editor(editor), m_styler(editor), m_gallery(new RibbonGallery)
{
    m_gallery->setObjectName(u"styleGallery"_s);
    m_gallery->setAccessibleName(tr("Text styles"));
    // Items are as large, and as ready to be favorites, as the gallery says when they are added.
    m_gallery->setIconSize(StyleIcon::NaturalSize);
    m_gallery->setActionSize(TileSize);
    m_gallery->setDispalyCount(StripCount);
    m_gallery->setCollectEnabled(true);
    fillGallery();
    connect(m_gallery, &RibbonGallery::signalTriggered, this, &StyleController::apply);
    connect(actions->clearStyles, &QAction::triggered, this, &StyleController::clear);
}

void StyleController::fillGallery()
{
    struct Place
    {
        int group = -1;
        int item = -1;
    };
    QHash<QString, Place> places;
    QString groupName;
    int group = -1;
    const QList<TextStyle> &styles = StyleCatalog::instance().styles();
    for (const TextStyle &style : styles) {
        if (style.group != groupName)
            group = m_gallery->addGroup(style.group);
        groupName = style.group;
        places.insert(style.name, {group, m_gallery->addItem(group, createAction(style))});
    }
    // What people need most stands at the start of the strip until they choose for themselves.
    for (const QString &name : {u"normal"_s, u"heading1"_s, u"bold"_s, u"yellow-marker"_s}) {
        const Place place = places.value(name);
        m_gallery->setItemCollected(place.group, place.item, true);
    }
}

QAction *StyleController::createAction(const TextStyle &style)
{
    auto *action = new QAction(QIcon(new StyleIcon(style)), style.title, this);
    action->setObjectName(u"style-"_s + style.name);
    action->setData(style.name);
    action->setToolTip(tr("%1\n%2", "style, what it is for").arg(style.title, style.description));
    return action;
}

void StyleController::apply(const QAction *action)
{
    const TextStyle *style = StyleCatalog::instance().find(action->data().toString());
    const bool isForSelection = style->isParagraph() || m_editor->textCursor().hasSelection();
    m_styler.apply(*style);
    m_editor->setFocus();
    Q_EMIT reported(isForSelection ? style->title : tr("%1 from here on").arg(style->title));
}

void StyleController::clear()
{
    m_styler.clear();
    m_editor->setFocus();
    Q_EMIT reported(tr("Styles cleared"));
}
