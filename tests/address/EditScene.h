// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "address/StripWindow.h"

#include "support/Input.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QStringListModel>
#include <QTest>

inline QString backslashed(QString path)
{
    return path.replace(u'/', u'\\');
}

/// A strip at a path, in a window that is active.
struct EditScene : StripWindow
{
    explicit EditScene(const QString &path)
    {
        strip->setPath(path);
        m_isShown = Input::show(&window);
        forget();
    }
    bool isShown() const { return m_isShown; }
    void edit() const { Input::click(strip, QPoint(strip->width() - 5, strip->height() / 2)); }
    void type(const QString &text) const { QTest::keyClicks(strip, text); }
    void commit() const { QTest::keyClick(strip, Qt::Key_Return); }
    QStringList offers() const
    {
        return qobject_cast<QStringListModel *>(strip->completer()->model())->stringList();
    }
    QAbstractItemView *list() const { return strip->completer()->popup(); }

private:
    bool m_isShown = false;
};
