// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentPage.h"

class QPlainTextEdit;

/// A text to read, in a font whose letters are all as wide.
class TextPage : public DocumentPage
{
    Q_OBJECT

public:
    TextPage(const QString &path, const QString &text, bool isMarkdown);

    QList<OutlineEntry> outline() const override;
    void goToLine(int line) override;

private:
    const bool m_isMarkdown;
    QPlainTextEdit *m_editor;
};
