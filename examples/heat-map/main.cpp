// A grid of counts in colours, printed as letters: the darker, the later in the alphabet.
#include <kestrane/axes/LinearAxis.h>
#include <kestrane/backend/MultiDimensionalPlotSnapshot.h>
#include <kestrane/colors/AutoComputeColorMapBuilder.h>
#include <kestrane/library/Kestrane.h>
#include <kestrane/surfaces/Histogram2DPlotAlgorithm.h>

#include <QSharedPointer>
#include <boost/make_shared.hpp>
#include <cmath>
#include <iostream>

using namespace pelorin;

int main()
{
    Kestrane::initialize();
    constexpr int columns = 40, rows = 12;

    // A hill of counts: cell (x, y) stands at y * columns + x.
    const auto counts = boost::make_shared<unsigned int[]>(columns * rows);
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < columns; ++x)
            counts[y * columns + x] =
                unsigned(1000.0 * std::exp(-0.008 * (x - 20) * (x - 20) - 0.1 * (y - 6) * (y - 6)));
    }
    const backend::MultiDimensionalPlotSegment<unsigned int, 2> grid(
        counts, {backend::MetaInfo(0.0, 1.0), backend::MetaInfo(0.0, 1.0)}, {columns, rows});
    ui::chart::Histogram2DPlotAlgorithm plot;
    plot.setSnapshot(backend::MultiDimensionalPlotSnapshot<unsigned int, 2>({grid}));

    // Five colours whose thresholds grow towards the largest count.
    QVector<QColor> colors;
    for (int i = 0; i < 5; ++i)
        colors.append(QColor(255 - 50 * i, 255 - 50 * i, 255));
    const ui::ColorMap map = ui::AutoComputeColorMapBuilder::buildAutoComputeMap(colors, 1000);

    // With pixels smaller than a cell each one is shown; else those below a pixel become one.
    auto xAxis = QSharedPointer<ui::chart::LinearAxis>::create(columns / 10.0);
    auto yAxis = QSharedPointer<ui::chart::LinearAxis>::create(rows / 10.0);
    const auto cells = plot.makeColorArrays(xAxis, yAxis, map, 0.001, 0.001).at(0);
    const auto across = cells.xEdges.size() - 1;
    for (std::size_t cell = 0; cell < cells.colors.size(); ++cell) {
        const auto kind = colors.indexOf(cells.colors[cell]);
        std::cout << (kind < 0 ? '.' : char('a' + kind))
                  << (cell % across + 1 < across ? "" : "\n");
    }
    Kestrane::deinitialize();
}
