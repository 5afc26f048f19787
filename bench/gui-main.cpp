// The main of every benchmark program that draws: off screen, in the product's own fonts.

#include "TarnwickKit/views/style/TarnwickFonts.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <cstdlib>

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication application(argc, argv);
    TarnwickKit::views::TarnwickFonts::registerFrom();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
