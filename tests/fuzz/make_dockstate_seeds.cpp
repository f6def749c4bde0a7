// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Writes the inputs that the fuzzer of saved dock layouts starts from into the folder that is its
// only argument: real states, and those with the mistakes that a damaged or foreign settings file
// can have.

#include <QByteArray>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QList>
#include <QString>

#include <cstdio>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// What QSplitter saves, with every field to choose.
struct SplitterState
{
    qint32 marker = 0xff;
    qint32 version = 1;
    QList<qint32> sizes{200, 400, 200};
    qint32 announced = -1; ///< the number of sizes that the state speaks of; -1: the true one
    bool childrenCollapsible = true;
    qint32 handleWidth = 0;
    bool opaqueResize = true;
    qint32 orientation = 1;

    QByteArray bytes() const
    {
        QByteArray result;
        QDataStream stream(&result, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_5_0);
        stream << marker << version << (announced < 0 ? qint32(sizes.size()) : announced);
        for (const qint32 size : sizes)
            stream << size;
        stream << childrenCollapsible << handleWidth << opaqueResize << orientation << false;
        return result;
    }
};

QByteArray state(const SplitterState &splitter, const QByteArray &sides = QByteArray(12, '\0'))
{
    return splitter.bytes() + '|' + sides;
}

QList<QByteArray> seeds()
{
    constexpr qint32 Huge = std::numeric_limits<qint32>::max();
    constexpr qint32 Negative = std::numeric_limits<qint32>::min();
    QList<QByteArray> result;
    const auto add = [&result](auto change) {
        SplitterState splitter;
        change(splitter);
        result << state(splitter);
    };
    result << state({}) << state({}, QByteArray(12, '\xff')) << state({}, QByteArray(12, '\x7f'))
           << state({}, QByteArray(11, '\1')) << state({}, QByteArray(13, '\1'))
           << state({}, QByteArray(12, '|')) << QByteArray(64, '|') << QByteArray("|")
           << QByteArray() << QByteArray("foreign|twelve bytes");
    const QList<QList<qint32>> sizes{
        {0, 0, 0},        {0, 800, 0},   {800, 0, 0},          {-1, -1, -1}, {Huge, Huge, Huge},
        {Negative, 1, 1}, {1, Huge, -2}, {0x7c, 0x7c, 0x7c7c}, {1},          {}};
    for (const QList<qint32> &list : sizes)
        add([&list](SplitterState &splitter) { splitter.sizes = list; });
    for (const qint32 number : {0, 1, 2, 4, 1000, Huge, Negative})
        add([number](SplitterState &splitter) { splitter.announced = number; });
    for (const qint32 number : {-1, 0, 2, 3, Huge, Negative}) {
        add([number](SplitterState &splitter) { splitter.version = number; });
        add([number](SplitterState &splitter) { splitter.orientation = number; });
        add([number](SplitterState &splitter) { splitter.handleWidth = number; });
        add([number](SplitterState &splitter) { splitter.marker = number; });
    }
    add([](SplitterState &splitter) { splitter.childrenCollapsible = false; });
    add([](SplitterState &splitter) { splitter.opaqueResize = false; });
    const QByteArray whole = state({});
    for (qsizetype length = 1; length < whole.size(); ++length)
        result << whole.left(length);
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    const QDir folder(argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString());
    if (argc != 2 || !folder.mkpath(u"."_s))
        return 1;
    int number = 0;
    for (const QByteArray &seed : seeds()) {
        QFile file(folder.filePath(u"seed-%1"_s.arg(number++, 3, 10, QLatin1Char('0'))));
        if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size())
            return 1;
    }
    std::printf("%d seeds\n", number);
    return 0;
}
