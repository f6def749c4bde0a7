// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureTools.h"

#include "ActionFactory.h"
#include "DocumentTabs.h"
#include "FilterGallery.h"
#include "PictureDocument.h"

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/RibbonSubgroup.h>

#include <QAction>

using namespace Qt::StringLiterals;

PictureTools::PictureTools(VornFrame::RibbonPage *page, const ActionFactory &actions,
                           DocumentTabs *tabs)
    : QObject(page), m_tabs(tabs)
{
    addZoom(page, actions);
    addRotation(page, actions);
    addFilters(page);
    connect(tabs, &DocumentTabs::signalCurrentChanged, this, &PictureTools::showPreviews);
    connect(tabs, &DocumentTabs::signalContentChanged, this, &PictureTools::showPreviews);
}

PictureDocument *PictureTools::document() const
{
    return qobject_cast<PictureDocument *>(m_tabs->current());
}

void PictureTools::addZoom(VornFrame::RibbonPage *page, const ActionFactory &actions)
{
    VornFrame::RibbonGroup *group = page->addGroup(tr("Zoom"));
    const auto add = [this, &actions](const QString &name, const QString &text,
                                      const QKeySequence &keys, void (PictureDocument::*zoom)()) {
        QAction *action = actions.create(name, text, keys);
        connect(action, &QAction::triggered, this, [this, zoom] {
            if (PictureDocument *picture = document())
                (picture->*zoom)();
        });
        return action;
    };
    group->addAction(add(u"fit"_s, tr("Fit"), {u"Ctrl+9"_s}, &PictureDocument::fit));
    VornFrame::RibbonSubgroup *steps = group->addSubgroup();
    steps->addAction(
        add(u"zoomIn"_s, tr("Zoom In"), QKeySequence::ZoomIn, &PictureDocument::zoomIn));
    steps->addAction(
        add(u"zoomOut"_s, tr("Zoom Out"), QKeySequence::ZoomOut, &PictureDocument::zoomOut));
    steps->addAction(
        add(u"actualSize"_s, tr("Actual Size"), {u"Ctrl+0"_s}, &PictureDocument::actualSize));
}

void PictureTools::addRotation(VornFrame::RibbonPage *page, const ActionFactory &actions)
{
    VornFrame::RibbonGroup *group = page->addGroup(tr("Rotate"));
    const auto add = [this, &actions, group](const QString &name, const QString &text,
                                             int quarterTurns) {
        QAction *action = actions.create(name, text);
        connect(action, &QAction::triggered, this, [this, quarterTurns] {
            if (PictureDocument *picture = document())
                picture->rotate(quarterTurns);
        });
        group->addAction(action);
    };
    add(u"rotateLeft"_s, tr("Left"), -1);
    add(u"rotateRight"_s, tr("Right"), 1);
}

void PictureTools::addFilters(VornFrame::RibbonPage *page)
{
    m_gallery = new FilterGallery;
    connect(m_gallery, &FilterGallery::signalFilterChosen, this, &PictureTools::applyFilter);
    page->addGroup(tr("Filters"))->addWidget(m_gallery);
}

void PictureTools::applyFilter(const QString &id) const
{
    if (PictureDocument *picture = document())
        picture->applyFilter(id);
}

void PictureTools::showPreviews()
{
    if (const PictureDocument *picture = document())
        m_gallery->setPreviewOf(picture->image());
}
