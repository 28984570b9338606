#ifndef BENCHMARKS_TARGETS_QUESTIONS_H
#define BENCHMARKS_TARGETS_QUESTIONS_H

#include "benchmarks/targets/Table.h"

namespace targets {

/// Each adds the rows of one part of the library.
/// @{
void addSamplePlots(Table& table);
void addPoints(Table& table);
void addSurfaces(Table& table);
void addTicks(Table& table);
/// @}

/// Prints the times of a sample plot of 1e3 to 1e8 samples as a CSV table.
void printGrowth();

} // namespace targets

#endif
