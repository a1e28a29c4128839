// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "first_frame.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    if (const int status = lumora::bench::showFirstFrame(argc, argv); status >= 0) {
        return status;
    }
    lumora::bench::registerFirstFrameBenchmarks(argv[0]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
