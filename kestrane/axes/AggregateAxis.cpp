#include "kestrane/axes/AggregateAxis.h"

#include "kestrane/axes/MirroredAxis.h"
#include "kestrane/axes/detail/InTurn.h"
#include "kestrane/axes/detail/RankOrder.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <limits>
#include <memory>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// The last node with a key at or below x, else the first one; end() if there is none at all.
template<typename Map>
auto lookup(Map& map, double x)
{
    auto node = std::isnan(x) ? map.end() : map.upper_bound(x);
    if (node != map.begin())
        --node;
    return node;
}

template<typename Map, typename Predicate>
void eraseIf(Map& map, const Predicate& matches)
{
    for (auto node = map.begin(); node != map.end();)
        node = matches(*node) ? map.erase(node) : std::next(node);
}

} // namespace

AggregateAxis::SubAxisEntry::~SubAxisEntry()
{
    for (const QMetaObject::Connection& connection : connections)
        QObject::disconnect(connection);
}

void AggregateAxis::SubAxisEntry::replaceBy(SubAxisEntry& other) noexcept
{
    axis.swap(other.axis);
    from = other.from;
    to = other.to;
    // Those of the axis that stood here before stay in force: only their handles go.
    connections.swap(other.connections);
    other.connections.clear();
}

double AggregateAxis::SubAxisEntry::toWhole(double position) const
{
    return (to - from) * position + from;
}

struct AggregateAxis::AggregateScrollScaleState : Axis::ScrollScaleState
{
    Map<boost::shared_ptr<const ScrollScaleState>> subStates;
};

AggregateAxis::AggregateAxis(QObject* parent)
    : Axis(parent)
{}

AggregateAxis::~AggregateAxis() = default;

AggregateAxis& AggregateAxis::addAxis(Axis* axis, double from, double to)
{
    if (!axis || isPartOf(axis))
        return *this;
    // What may fail comes first, and is lost with these two.
    Map<SubAxisEntry> added;
    Map<SubAxisEntry*> filed;
    SubAxisEntry& fresh = added[from];
    fresh.axis = axis;
    fresh.from = from;
    fresh.to = to;
    connectTo(fresh);
    const double minimum = axis->minValue();
    filed[minimum] = nullptr;

    m_subAxes.merge(added);
    SubAxisEntry& entry = m_subAxes.find(from)->second;
    if (&entry != &fresh)
        entry.replaceBy(fresh);
    m_reverseMap.merge(filed);
    m_reverseMap.find(minimum)->second = &entry;
    detail::inTurn(
        this, [&] { emitLimitsAndParameters(); }, [&] { Q_EMIT ticksUpdated(); });
    return *this;
}

// Or that axis itself. Of a host's own axes nobody knows what they are made of.
bool AggregateAxis::isPartOf(const Axis* axis) const
{
    if (const auto* const mirror = dynamic_cast<const MirroredAxis*>(axis))
        return isPartOf(mirror->m_source);
    const auto* const aggregate = dynamic_cast<const AggregateAxis*>(axis);
    if (!aggregate || aggregate == this)
        return aggregate == this;
    return std::any_of(aggregate->m_subAxes.begin(), aggregate->m_subAxes.end(),
                       [this](const auto& node) { return isPartOf(node.second.axis); });
}

void AggregateAxis::connectTo(SubAxisEntry& entry)
{
    const auto pass = [&](auto signal, auto slot) {
        entry.connections.push_back(connect(entry.axis.data(), signal, this, slot));
    };
    entry.connections.reserve(5); // So that none is made whose handle finds no room.
    pass(&Axis::minValueChanged, [this] { Q_EMIT minValueChanged(minValue()); });
    pass(&Axis::maxValueChanged, [this] { Q_EMIT maxValueChanged(maxValue()); });
    pass(&Axis::parametersChanged, &AggregateAxis::updateReverseMap);
    pass(&Axis::ticksUpdated, &Axis::ticksUpdated);
    pass(&Axis::axisChangedViaScalingOrScrolling, &Axis::axisChangedViaScalingOrScrolling);
}

AggregateAxis& AggregateAxis::removeAxis(Axis* axis)
{
    eraseIf(m_reverseMap, [&](const auto& node) { return node.second->axis == axis; });
    eraseIf(m_subAxes, [&](const auto& node) { return node.second.axis == axis; });
    emitLimitsAndParameters();
    return *this;
}

AggregateAxis& AggregateAxis::removeAllAxes()
{
    m_reverseMap.clear();
    m_subAxes.clear();
    emitLimitsAndParameters();
    return *this;
}

void AggregateAxis::emitLimitsAndParameters()
{
    detail::inTurn(
        this, [&] { emitMinValChanged(false); }, [&] { emitMaxValChanged(true); });
}

double AggregateAxis::minValue() const
{
    if (m_subAxes.empty())
        return nan;
    const Axis* axis = m_subAxes.begin()->second.axis;
    return axis ? axis->minValue() : nan;
}

double AggregateAxis::maxValue() const
{
    if (m_subAxes.empty())
        return nan;
    const Axis* axis = m_subAxes.rbegin()->second.axis;
    return axis ? axis->maxValue() : nan;
}

QVector<Axis::Tick> AggregateAxis::majorTicks()
{
    return handleTicks(true);
}

QVector<Axis::Tick> AggregateAxis::minorTicks()
{
    return handleTicks(false);
}

QVector<Axis::Tick> AggregateAxis::handleTicks(bool major) const
{
    QVector<Tick> merged;
    for (const auto& [key, entry] : m_subAxes) {
        if (!entry.axis)
            continue;
        const QVector<Tick> ticks = major ? entry.axis->majorTicks() : entry.axis->minorTicks();
        for (const Tick& tick : ticks) {
            if (tick.isValid() && tick.axisPosition() >= 0.0 && 1.0 >= tick.axisPosition())
                merged.append(Tick(tick.logicalPosition(), entry.toWhole(tick.axisPosition()),
                                   tick.rank(), tick.secondaryLogicalPositions(),
                                   tick.isInvisible()));
        }
    }
    detail::sortByRank(merged);
    return merged;
}

double AggregateAxis::transform(ScaleMode mode, double value) const
{
    if (mode == Logarithmic)
        value = std::pow(10.0, value);
    const auto node = lookup(m_reverseMap, value);
    if (node == m_reverseMap.end() || !node->second->axis)
        return nan;
    const SubAxisEntry& entry = *node->second;
    return entry.toWhole(entry.axis->transform(Linear, value));
}

double AggregateAxis::inverseTransform(ScaleMode mode, double position) const
{
    const auto node = lookup(m_subAxes, position);
    if (node == m_subAxes.end() || !node->second.axis)
        return nan;
    const SubAxisEntry& entry = node->second;
    return entry.axis->inverseTransform(mode, (position - entry.from) / (entry.to - entry.from));
}

Axis::ScaleMode AggregateAxis::scaleMode() const
{
    const Axis* axis = m_subAxes.empty() ? nullptr : m_subAxes.begin()->second.axis.data();
    return axis ? axis->scaleMode() : Linear;
}

double AggregateAxis::smallestTickDistance(bool major) const
{
    if (m_subAxes.empty())
        return 0.0;
    const SubAxisEntry& entry = m_subAxes.begin()->second;
    return entry.axis ? (entry.to - entry.from) * entry.axis->smallestTickDistance(major) : 0.0;
}

double AggregateAxis::anchor() const
{
    return m_anchor;
}

boost::shared_ptr<const Axis::ScrollScaleState> AggregateAxis::scrollScaleState() const
{
    const auto state = boost::make_shared<AggregateScrollScaleState>();
    for (const auto& [key, entry] : m_subAxes)
        state->subStates[key] = entry.axis ? entry.axis->scrollScaleState() : nullptr;
    return state;
}

AggregateAxis* AggregateAxis::clone() const
{
    auto copy = std::make_unique<AggregateAxis>();
    for (const auto& [key, entry] : m_subAxes) {
        if (!entry.axis)
            continue;
        std::unique_ptr<Axis> axis(entry.axis->clone());
        axis->setParent(copy.get());
        copy->addAxis(axis.release(), entry.from, entry.to);
    }
    return copy.release();
}

bool AggregateAxis::operator==(const Axis& other) const
{
    const auto* aggregate = dynamic_cast<const AggregateAxis*>(&other);
    const auto isSame = [](const auto& a, const auto& b) {
        return a.second.axis == b.second.axis && a.second.from == b.second.from &&
               a.second.to == b.second.to;
    };
    return aggregate && std::equal(m_subAxes.begin(), m_subAxes.end(), aggregate->m_subAxes.begin(),
                                   aggregate->m_subAxes.end(), isSame);
}

void AggregateAxis::scrollAxis(double at, double by,
                               const boost::shared_ptr<const ScrollScaleState>& base,
                               double bottomLimit, double topLimit, double pixelSize)
{
    grip(&Axis::scrollAxis, at, by, base, bottomLimit, topLimit, pixelSize);
}

void AggregateAxis::scaleAxis(double at, double by,
                              const boost::shared_ptr<const ScrollScaleState>& base,
                              double bottomLimit, double topLimit, double pixelSize)
{
    grip(&Axis::scaleAxis, at, by, base, bottomLimit, topLimit, pixelSize);
}

void AggregateAxis::grip(Gesture gesture, double at, double by,
                         const boost::shared_ptr<const ScrollScaleState>& base, double bottomLimit,
                         double topLimit, double pixelSize)
{
    const auto node = lookup(m_subAxes, at);
    if (node == m_subAxes.end())
        return;
    const SubAxisEntry& entry = node->second;
    if (!(entry.axis && at >= entry.from && entry.to > at))
        return;

    boost::shared_ptr<const ScrollScaleState> subState;
    if (const auto* state = dynamic_cast<const AggregateScrollScaleState*>(base.get())) {
        const auto found = lookup(state->subStates, at);
        if (found != state->subStates.end())
            subState = found->second;
    }
    const double span = entry.to - entry.from;
    (entry.axis->*gesture)((at - entry.from) / span, by / span, subState, bottomLimit, topLimit,
                           pixelSize);
}

void AggregateAxis::setAnchor(double anchor)
{
    m_anchor = anchor;
}

void AggregateAxis::updateReverseMap(Axis* axis)
{
    const auto node = std::find_if(m_reverseMap.begin(), m_reverseMap.end(),
                                   [&](const auto& one) { return one.second->axis == axis; });
    if (node != m_reverseMap.end()) {
        SubAxisEntry* const entry = node->second;
        const double minimum = axis->minValue();
        auto moved = m_reverseMap.extract(node);
        moved.key() = minimum;
        m_reverseMap.insert(std::move(moved)).position->second = entry;
    }
    emitParametersChanged();
}

} // namespace chart
} // namespace ui
} // namespace pelorin
