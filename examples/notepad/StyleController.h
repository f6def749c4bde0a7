// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextStyler.h"

#include <QObject>

class NotepadActions;
class QAction;
class TextEditor;
struct TextStyle;

namespace VornFrame {
class RibbonGallery;
}

/// Offers the styles of the catalogue in a gallery, and gives the one that is chosen to the text.
class StyleController : public QObject
{
    Q_OBJECT

public:
    StyleController(TextEditor *editor, NotepadActions *actions);

    /// For the ribbon, whose container becomes its owner.
    VornFrame::RibbonGallery *gallery() const { return m_gallery; }

Q_SIGNALS:
    /// What was done with the text.
    void reported(const QString &text);

private:
    void fillGallery();
    QAction *createAction(const TextStyle &style);
    void apply(const QAction *action);
    void clear();

    TextEditor *m_editor;
    TextStyler m_styler;
    VornFrame::RibbonGallery *m_gallery;
};
