// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "dock/ContainerWindow.h"

#include <QDataStream>

/// What a container saves, also with contents that none saves.
namespace ContainerWindows {

/// What QSplitter saves, as bytes with any content.
struct SplitterState
{
    qint32 marker = 0xff;
    qint32 version = 1;
    qint32 count = 3;
    QList<qint32> sizes{150, 500, 150};
    bool collapsible = true;
    qint32 handleWidth = 0;
    bool opaque = true;
    qint32 orientation = Qt::Horizontal;

    QByteArray bytes() const
    {
        QByteArray result;
        QDataStream stream(&result, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_5_0);
        stream << marker << version << count;
        for (const qint32 size : sizes)
            stream << size;
        stream << collapsible << handleWidth << opaque << orientation << true;
        return result;
    }
};

inline QByteArray stateOf(const QByteArray &splitter, const Remembered &sizes = {11, 12, 13})
{
    return withRemembered(splitter + '|' + QByteArray(12, '\0'), sizes);
}

/// A filled window with known sizes, and what has to hold whatever it was told to restore.
class StateWindow : public ContainerWindow
{
public:
    explicit StateWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
        : ContainerWindow(direction)
    {
        fill();
        dock()->setupMainWindow(this);
    }

    [[nodiscard]] bool showArranged()
    {
        if (!Input::show(this))
            return false;
        dragTo(150, 110, 160);
        // A window without a frame lies where its contents do.
        m_geometry = geometry();
        return true;
    }

    /// What is out of order; empty if nothing is.
    QString fault() const
    {
        if (geometry() != m_geometry)
            return u"the window moved or changed its size"_s;
        const QSplitter *splitter = hSplitter();
        if (splitter->orientation() != Qt::Horizontal)
            return u"the splitter turned"_s;
        if (splitter->handleWidth() != 0)
            return u"the handles have a width"_s;
        if (splitter->count() != 3 || splitter->widget(0) != stack(DockContainer::Left)
            || splitter->widget(2) != stack(DockContainer::Right))
            return u"the splitter lost its widgets"_s;
        if (!splitter->isCollapsible(0) || splitter->isCollapsible(1)
            || !splitter->isCollapsible(2))
            return u"what may be collapsed changed"_s;
        if (!splitter->opaqueResize())
            return u"the sides do not follow the pointer any more"_s;
        if (column()->width() <= 0 || splitter->sizes().at(1) <= 0)
            return u"the column in the middle has no width"_s;
        if (vSplitter()->orientation() != Qt::Vertical || vSplitter()->sizes().at(0) <= 0)
            return u"the content has no height"_s;
        return {};
    }

    /// Whether each side still answers the mouse: dragged, minimized and restored.
    QString unusableSide()
    {
        for (const DockContainer::DockArea area : Areas) {
            const auto failed = [area](const char *what) {
                return QString::fromLatin1(nameOf(area)) + u": "_s + QString::fromLatin1(what);
            };
            if (side(area)->isMinimized()) {
                Input::click(button(area));
                if (side(area)->isMinimized() || sizeOf(area) <= 0)
                    return failed("restored by a click");
            }
            dragEdge(area, 100);
            if (sizeOf(area) != 100)
                return failed("dragged");
            Input::click(button(area));
            if (!side(area)->isMinimized() || sizeOf(area) != 0)
                return failed("minimized");
            Input::click(button(area));
            if (side(area)->isMinimized() || sizeOf(area) != 100)
                return failed("restored");
        }
        return {};
    }

private:
    QRect m_geometry;
};

} // namespace ContainerWindows

/// Fails the test function with \a text, unless that is empty.
#define VERIFY_NO_FAULT(text) \
    do { \
        const QString fault = (text); \
        QVERIFY2(fault.isEmpty(), qPrintable(fault)); \
    } while (false)
