// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QLoggingCategory>
#include <QStyleFactory>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    // The offscreen platform speaks up at every window that it opens.
    QLoggingCategory::setFilterRules(u"*.warning=false"_s);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
