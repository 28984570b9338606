#include "kestrane/backend/MinMaxAverageAlgorithm.h"

namespace pelorin {
namespace algo {

MinMaxAverageAlgorithm::MinMaxAverageAlgorithm() = default;

void MinMaxAverageAlgorithm::put(double value)
{
    if (m_count++ == 0) {
        m_first = m_min = m_max = m_sum = value;
    } else {
        m_min = value < m_min ? value : m_min;
        m_max = value > m_max ? value : m_max;
        m_sum += value;
    }
    m_last = value;
}

void MinMaxAverageAlgorithm::reset()
{
    m_count = 0;
}

unsigned long MinMaxAverageAlgorithm::count() const
{
    return static_cast<std::uint32_t>(m_count);
}

double MinMaxAverageAlgorithm::first() const
{
    return m_first;
}

double MinMaxAverageAlgorithm::last() const
{
    return m_last;
}

double MinMaxAverageAlgorithm::minVal() const
{
    return m_min;
}

double MinMaxAverageAlgorithm::maxVal() const
{
    return m_max;
}

double MinMaxAverageAlgorithm::average() const
{
    return m_sum / static_cast<double>(m_count);
}

} // namespace algo
} // namespace pelorin
