#pragma once
// The main of a bench program that opens screens: a widgets application on
// the offscreen platform unless another is asked for, then the benchmarks.

#include <QApplication>
#include <benchmark/benchmark.h>

inline int CorrerBancosConVentanas(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
