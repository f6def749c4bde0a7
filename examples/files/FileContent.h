// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

/// What is to be seen of a file or folder.
struct FileContent
{
    enum class Kind { Message, Text, Picture };

    QString path;
    QString facts; ///< one line: kind, size, time
    Kind kind = Kind::Message;
    QString text; ///< the text, or the message
    QImage picture;
    QSize pictureSize; ///< of the whole picture in px; the image may be of another size
};
