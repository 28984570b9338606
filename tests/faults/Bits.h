#ifndef TESTS_FAULTS_BITS_H
#define TESTS_FAULTS_BITS_H

#include "kestrane/axes/Axis.h"
#include "kestrane/colors/ColorMap.h"
#include "kestrane/plots/Intersection.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include <QPointF>
#include <QString>

#include <cstdio>
#include <memory>
#include <string>
#include <utility>

namespace tests {

/// Writes values down so that two texts are equal when the values are, to the last bit.
class Bits
{
public:
    template<typename... Values>
    static std::string of(const Values&... values)
    {
        Bits bits;
        (bits.put(values), ...);
        return bits.m_text;
    }

private:
    using Axis = pelorin::ui::chart::Axis;

    void put(double value)
    {
        char text[40];
        std::snprintf(text, sizeof text, "%a ", value);
        m_text += text;
    }
    void put(const std::string& text) { m_text += text + ' '; }
    void put(const QString& text) { put(text.toStdString()); }
    void put(const QPointF& point) { putAll(point.x(), point.y()); }
    void put(const QColor& color) { put(double(color.rgba64())); }
    void put(const Axis::Tick& tick)
    {
        putAll(tick.logicalPosition(), tick.axisPosition(), tick.rank(),
               tick.secondaryLogicalPositions());
    }
    void put(const pelorin::ui::chart::Intersection& crossing)
    {
        putAll(crossing.position, crossing.value);
    }
    void put(const pelorin::ui::chart::NeedlePlotAlgorithm::NeedleResult& needles)
    {
        putAll(needles.firstPosition, needles.lastPosition, needles.values);
    }
    void put(const pelorin::ui::chart::Histogram2DPlotAlgorithm::HistoSegment& cells)
    {
        putAll(cells.xEdges, cells.yEdges, cells.colors, cells.counts, cells.maxCount);
    }
    void put(const pelorin::ui::chart::NeedlePlot2DAlgorithm::ColoredPoint& point)
    {
        putAll(point.x, point.y, point.color);
    }
    void put(const pelorin::ui::ColorMap& map)
    {
        put(map.colors());
        for (int i = 0; i < map.numberOfClasses(); ++i)
            put(double(map.thresholdAtIndex(i)));
        for (const unsigned count : {0u, 1u, 3u, 10u, 50u, 1000u})
            put(map.mapToColor(count));
    }
    void put(Axis* axis)
    {
        putAll(axis->minValue(), axis->maxValue(), axis->anchor(), axis->smallestTickDistance(true),
               axis->majorTicks(), axis->minorTicks());
        for (const double place : {-0.5, 0.0, 0.3, 0.7, 1.0}) {
            const double value = axis->inverseTransform(Axis::Linear, place);
            putAll(value, axis->transform(Axis::Linear, value));
        }
    }
    template<typename T>
    void put(const std::unique_ptr<T>& value)
    {
        put(value.get());
    }
    template<typename A, typename B>
    void put(const std::pair<A, B>& pair)
    {
        putAll(pair.first, pair.second);
    }
    template<typename List>
    auto put(const List& list) -> decltype(list.begin(), void())
    {
        m_text += '[';
        for (const auto& element : list)
            put(element);
        m_text += ']';
    }

    template<typename... Values>
    void putAll(const Values&... values)
    {
        (put(values), ...);
    }

    std::string m_text;
};

} // namespace tests

#endif
