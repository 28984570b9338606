#include <benchmark/benchmark.h>

#include <cstdio>

// Columns: "ns/sample" counts visible samples; "passes" is the time of a call against one plain
// pass over all samples of the data, measured in the same run.
int main(int argc, char** argv)
{
#ifndef NDEBUG
    std::fputs("kestrane-benchmarks: built with asserts; build the release preset instead\n",
               stderr);
    return 1;
#endif
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
