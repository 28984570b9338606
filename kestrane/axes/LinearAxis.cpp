#include "kestrane/axes/LinearAxis.h"

#include "kestrane/axes/detail/TickPlaces.h"

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {

LinearAxis::LinearAxis(double scale, double offset, double anchor, bool offsetIsAdded,
                       int numMajorDivisions, int numMinorDivisions, QObject* parent)
    : FixedPositionLinearAxis(scale, offset, anchor, offsetIsAdded, numMajorDivisions,
                              numMinorDivisions, parent)
{}

LinearAxis::~LinearAxis() = default;

LinearAxis* LinearAxis::clone() const
{
    return new LinearAxis(scale(), offset(), anchor(), offsetIsAdded(), numMajorDivisions(),
                          numMinorDivisions());
}

void LinearAxis::updateTicks()
{
    const int n = numMajorDivisions();
    const int m = numMinorDivisions();
    if (!m_ticksDirty || n == 0 || m == 0)
        return;

    const double majorStep = 1.0 / n;
    const double minorStep = majorStep / m;
    const double minorValueStep = scale() / m;

    // The last multiple of the scale at or below the start of the axis, so at or before 0.0.
    const double startValue = scale() * std::floor(minValue() / scale());
    const double startPosition = transform(Linear, startValue);

    detail::TickPlaces major;
    detail::TickPlaces minor;
    for (int i = 0; i <= n; ++i) {
        const double value = scale() * i + startValue;
        const double position = i * majorStep + startPosition;
        if (position >= 0.0 && position <= 1.0)
            major.append(value, position);
        for (int j = 0; j < m; ++j) {
            const double minorValue = j * minorValueStep + value;
            const double minorPosition = j * minorStep + position;
            // Leaves out j = 0, which is a major place even where that lies outside the axis.
            const bool isMajorPlace = qFuzzyCompare(position, minorPosition);
            if (minorPosition >= 0.0 && minorPosition < 1.0 && !isMajorPlace)
                minor.append(minorValue, minorPosition);
        }
    }
    storeTicks(major.ranked(true), minor.ranked(false));
}

} // namespace chart
} // namespace ui
} // namespace pelorin
