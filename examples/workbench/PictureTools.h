// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionFactory;
class DocumentTabs;
class PictureDocument;
class FilterGallery;

namespace VornFrame {
class RibbonGroup;
class RibbonPage;
} // namespace VornFrame

/// The ribbon page for pictures.
class PictureTools : public QObject
{
    Q_OBJECT

public:
    /// Fills \a page with commands from \a actions for the current document of \a tabs. All have to
    /// live as long as this, which belongs to \a page.
    PictureTools(VornFrame::RibbonPage *page, const ActionFactory &actions, DocumentTabs *tabs);

    FilterGallery *gallery() const { return m_gallery; }

private:
    PictureDocument *document() const;
    void addZoom(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void addRotation(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void addFilters(VornFrame::RibbonPage *page);
    void applyFilter(const QString &id) const;
    void showPreviews();

    DocumentTabs *m_tabs;
    FilterGallery *m_gallery = nullptr;
};
