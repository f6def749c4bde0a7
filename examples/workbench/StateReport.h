// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

class DocumentTabs;
class FilterGallery;
class VornFrameAgent;

/// What a window shows, in lines of the form "key: value", for those who cannot look at it.
///
/// Rectangles are "x y width height" in the coordinates of the screen; "-" stands for what cannot be
/// seen.
class StateReport
{
public:
    StateReport(QWidget *window, VornFrameAgent *agent, DocumentTabs *tabs, FilterGallery *gallery);

    /// The lines that answer \a command:
    ///
    /// - "report": the state of the whole window;
    /// - "widget NAME", "action NAME": where the widget, or what stands for the action, can be
    ///   clicked, by their object names;
    /// - "button TEXT": the same for a button of this text or accessible name, wherever it is;
    /// - "section INDEX", "tab SECTION INDEX": the same for tabs of the work surface;
    /// - "file NAME": the same for the line of a file in the folder that is shown;
    /// - "entry TEXT": the same for an entry of the menu that is open.
    ///
    /// Another command is answered by a line "error: ".
    QStringList answer(const QString &command) const;

private:
    QStringList state() const;
    QString folder() const;
    QString breadcrumbs() const;
    QStringList sections() const;
    QString ribbonPage() const;
    static QString temporaryPages();
    QStringList panels() const;
    static QString boxText();
    QString lastMessage() const;
    QString selection() const;
    QString place(const QString &kind, const QString &name) const;
    static QString widgetPlace(const QString &name);
    QString actionPlace(const QString &name) const;
    static QString buttonPlace(const QString &text);
    static QString entryPlace(const QString &text);
    QString sectionPlace(int section) const;
    QString tabPlace(int section, int tab) const;
    QString filePlace(const QString &name) const;

    QPointer<QWidget> m_window;
    QPointer<VornFrameAgent> m_agent;
    QPointer<DocumentTabs> m_tabs;
    QPointer<FilterGallery> m_gallery;
};
