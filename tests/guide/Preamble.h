#ifndef TESTS_GUIDE_PREAMBLE_H
#define TESTS_GUIDE_PREAMBLE_H

// What the samples of the guide take for granted.
#include <kestrane/axes/AggregateAxis.h>
#include <kestrane/axes/LinearAxis.h>
#include <kestrane/axes/LinearPlotAutoScaler.h>
#include <kestrane/axes/LogAxis.h>
#include <kestrane/axes/MirroredAxis.h>
#include <kestrane/axes/TickFormatter.h>
#include <kestrane/backend/Exception.h>
#include <kestrane/backend/GridPosition.h>
#include <kestrane/backend/InvalidIndexException.h>
#include <kestrane/backend/LazyRWMutex.h>
#include <kestrane/backend/MinMaxAverageAlgorithm.h>
#include <kestrane/backend/MultiDimensionalPlotSnapshot.h>
#include <kestrane/backend/QuantityManager.h>
#include <kestrane/backend/Singleton.h>
#include <kestrane/backend/TranslationManager.h>
#include <kestrane/colors/AutoComputeColorMapBuilder.h>
#include <kestrane/library/Kestrane.h>
#include <kestrane/plots/Intersectable.h>
#include <kestrane/plots/NeedlePlotAlgorithm.h>
#include <kestrane/plots/RegistryList.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>
#include <kestrane/plots/SplineAlgorithm.h>
#include <kestrane/plots/XYPlotAlgorithm.h>
#include <kestrane/surfaces/Histogram2DPlotAlgorithm.h>
#include <kestrane/surfaces/NeedlePlot2DAlgorithm.h>

#include <QSharedPointer>
#include <boost/make_shared.hpp>

#include <initializer_list>
#include <iostream>
#include <sstream>

using namespace pelorin;
using namespace pelorin::ui::chart;

static bool isWrong = false;

// A value is printed like this.
template<typename T>
static void expect(const T& value, const char* text, const char* file, int line)
{
    std::ostringstream printed;
    printed << value;
    if (printed.str() != text) {
        std::cout << file << ':' << line << ": " << printed.str() << " and not " << text << '\n';
        isWrong = true;
    }
}

#endif
