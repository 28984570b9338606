#include "benchmarks/targets/Questions.h"

#include <cstdio>
#include <fstream>
#include <string>

namespace {

std::string processor()
{
    std::ifstream file("/proc/cpuinfo");
    std::string line;
    while (std::getline(file, line)) {
        if (line.rfind("model name", 0) == 0)
            return line.substr(line.find(':') + 2);
    }
    return "unknown processor";
}

} // namespace

// What is the library to reach, and does it? An argument names a part of the rows to be measured.
int main(int argc, char** argv)
{
#ifndef NDEBUG
    std::fputs("kestrane-targets: built with asserts; build the release preset instead\n", stderr);
    return 1;
#endif
    if (argc == 2 && std::string(argv[1]) == "--growth") {
        targets::printGrowth();
        return 0;
    }
    if (argc > 2 || (argc == 2 && argv[1][0] == '-')) {
        std::fputs("usage: kestrane-targets [PART OF A ROW'S NAME | --growth]\n", stderr);
        return 2;
    }
    std::printf("%s, compiler %s; medians of 11 turns in one run\n\n", processor().c_str(),
                __VERSION__);
    targets::Table table(argc == 2 ? argv[1] : "");
    targets::addSamplePlots(table);
    targets::addPoints(table);
    targets::addSurfaces(table);
    targets::addTicks(table);
    return table.finish();
}
