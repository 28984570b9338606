#ifndef TESTS_GUIDE_PREAMBLE_H
#define TESTS_GUIDE_PREAMBLE_H

// What the samples of the guide take for granted.
#include <kestrane/axes/AggregateAxis.h>
#include <kestrane/axes/LinearAxis.h>
#include <kestrane/axes/LinearPlotAutoScaler.h>
#include <kestrane/axes/LogAxis.h>
#include <kestrane/axes/MirroredAxis.h>
#include <kestrane/axes/TickFormatter.h>
#include <kestrane/backend/QuantityManager.h>
#include <kestrane/backend/Singleton.h>
#include <kestrane/colors/AutoComputeColorMapBuilder.h>
#include <kestrane/library/Kestrane.h>
#include <kestrane/plots/Intersectable.h>
#include <kestrane/plots/NeedlePlotAlgorithm.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>
#include <kestrane/plots/XYPlotAlgorithm.h>

#include <QSharedPointer>
#include <boost/make_shared.hpp>

#include <iostream>

using namespace pelorin;
using namespace pelorin::ui::chart;

#endif
