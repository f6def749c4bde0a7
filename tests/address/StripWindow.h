// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "address/AddressEntry.h"
#include "address/AddressStrip.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QWidget>

/// A strip in a window with another widget, and what it said.
struct StripWindow
{
    explicit StripWindow(int width = 700)
    {
        other->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(strip, 1);
        layout->addWidget(other);
        window.resize(width, 60);
    }

    /// The entries in the layout, the root first; those that are on their way out do not count.
    QList<VornFrame::AddressEntry *> entries() const
    {
        QList<VornFrame::AddressEntry *> entries;
        for (int i = 1; i < strip->layout()->count(); ++i)
            entries.append(
                qobject_cast<VornFrame::AddressEntry *>(strip->layout()->itemAt(i)->widget()));
        return entries;
    }
    QStringList names() const
    {
        QStringList names;
        const QList<VornFrame::AddressEntry *> all = entries();
        for (const VornFrame::AddressEntry *entry : all)
            names.append(entry->text());
        return names;
    }
    bool isEditing() const { return strip->focusPolicy() == Qt::StrongFocus; }
    /// The entries of \a path stand, and nothing of the edit mode is left.
    bool shows(const QString &path) const
    {
        QStringList expected = path.split(u'/', Qt::SkipEmptyParts);
        expected.prepend(QString());
        return strip->path() == path && names() == expected && strip->text().isEmpty()
               && strip->focusPolicy() == Qt::NoFocus && !strip->hasFocus()
               && strip->cursor().shape() == Qt::ArrowCursor;
    }
    /// What the strip said about the ways backward, forward and up at last, as "bfu".
    QString ways() const
    {
        if (actions.isEmpty())
            return {};
        const QVariantList last = actions.constLast();
        return QString(last.at(0).toBool() ? u'b' : u'-') + (last.at(1).toBool() ? u'f' : u'-')
               + (last.at(2).toBool() ? u'u' : u'-');
    }
    void forget()
    {
        paths.clear();
        actions.clear();
    }

    QWidget window;
    QHBoxLayout *layout = new QHBoxLayout(&window);
    VornFrame::AddressStrip *strip = new VornFrame::AddressStrip(&window);
    QPushButton *other = new QPushButton(&window);
    QSignalSpy paths{strip, &VornFrame::AddressStrip::signalPathChanged};
    QSignalSpy actions{strip, &VornFrame::AddressStrip::signalActionsEnabled};
};
