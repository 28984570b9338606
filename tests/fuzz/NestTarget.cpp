#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include "tests/fuzz/Target.h"
#include "tests/support/Builders.h"

#include <gtest/gtest.h>

#include <functional>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// Axes, each made of earlier ones, that change and die in any order, also inside a signal.
class Nest
{
public:
    explicit Nest(Dice& dice)
        : m_dice(dice)
    {}
    ~Nest()
    {
        m_left = -1;
        for (const QPointer<Axis>& axis : m_axes)
            delete axis;
    }

    void change()
    {
        const QPointer<Axis> axis = any();
        const std::function<void()> changes[] = {
            [&] { remove(axis); },
            [&] { delete axis; },
            [&] { arm(axis); },
            [&] { gesture(axis); },
            [&] { delete (axis ? axis->clone() : nullptr); },
            [&] { add(); },
            [&] { make(axis); },
        };
        changes[m_axes.size() < 6 ? m_dice.upTo(6) : m_dice.upTo(5)]();
    }

    void check()
    {
        for (const auto& [aggregate, stretches] : m_stretches) {
            if (!aggregate)
                continue;
            const double position = m_dice.number();
            auto found = stretches.upper_bound(std::isnan(position) ? Infinity : position);
            found = found == stretches.begin() ? found : std::prev(found);
            double expected = NaN;
            if (found != stretches.end() && found->second.axis) {
                const auto& [sub, to] = found->second;
                const double inside = (position - found->first) / (to - found->first);
                expected = sub->inverseTransform(Axis::Linear, inside);
            }
            EXPECT_TRUE(same(aggregate->inverseTransform(Axis::Linear, position), expected));
            const bool hasFirst = !stretches.empty() && stretches.begin()->second.axis;
            EXPECT_TRUE(same(aggregate->minValue(),
                             hasFirst ? stretches.begin()->second.axis->minValue() : NaN));
            const auto ticks = aggregate->majorTicks() + aggregate->minorTicks();
            EXPECT_TRUE(!stretches.empty() || ticks.isEmpty());
        }
    }

private:
    struct Stretch
    {
        QPointer<Axis> axis;
        double to;
    };
    using Stretches = std::map<double, Stretch>;

    // Of the first ones only, so that no axis gets to hold itself.
    Axis* any(std::size_t count = ~std::size_t(0))
    {
        count = std::min(count, m_axes.size());
        return count > 0 ? m_axes[std::size_t(m_dice.upTo(int(count) - 1))] : nullptr;
    }

    void make(Axis* source)
    {
        const int kind = m_dice.upTo(3);
        auto* const aggregate = kind == 0 ? new AggregateAxis : nullptr;
        if (aggregate)
            m_stretches.emplace_back(aggregate, Stretches());
        m_axes.push_back(kind == 0   ? static_cast<Axis*>(aggregate)
                         : kind == 1 ? new MirroredAxis(source)
                         : kind == 2 ? static_cast<Axis*>(new LogAxis(m_dice.number(), 1e3))
                                     : new LinearAxis{m_dice.number(), m_dice.number()});
    }

    void add()
    {
        if (m_stretches.empty())
            return;
        auto& [aggregate, stretches] =
            m_stretches[std::size_t(m_dice.upTo(int(m_stretches.size()) - 1))];
        const auto place = std::find(m_axes.begin(), m_axes.end(), aggregate.data());
        Axis* const sub = any(std::size_t(place - m_axes.begin()));
        if (!aggregate || !sub)
            return;
        const double from = m_dice.upTo(4) * 0.25, to = m_dice.upTo(9) ? from + 0.25 : from;
        stretches[from] = {sub, to};
        aggregate->addAxis(sub, from, to);
    }

    void remove(const QPointer<Axis>& axis)
    {
        for (auto& [aggregate, stretches] : m_stretches) {
            if (!aggregate)
                continue;
            for (auto i = stretches.begin(); i != stretches.end();)
                i = i->second.axis == axis ? stretches.erase(i) : std::next(i);
            aggregate->removeAxis(axis);
        }
    }

    void arm(const QPointer<Axis>& victim)
    {
        m_left = m_dice.upTo(9);
        const auto strike = [this, victim] {
            if (m_left-- == 0)
                delete victim;
        };
        if (Axis* const sender = any()) {
            QObject::connect(sender, &Axis::minValueChanged, strike);
            QObject::connect(sender, &Axis::ticksUpdated, strike);
            QObject::connect(sender, &Axis::parametersChanged, strike);
        }
    }

    void gesture(Axis* axis)
    {
        if (!axis)
            return;
        const auto move = m_dice.upTo(1) ? &Axis::scrollAxis : &Axis::scaleAxis;
        const Axis* const other = any();
        const auto base = other ? other->scrollScaleState() : nullptr;
        const double at = m_dice.between(-0.5, 1.5), by = m_dice.between(-1.0, 1.0);
        const double bottom = m_dice.number(), top = m_dice.number();
        (axis->*move)(at, by, base, bottom, top, 1e-3);
    }

    Dice& m_dice;
    std::vector<QPointer<Axis>> m_axes;
    std::vector<std::pair<QPointer<AggregateAxis>, Stretches>> m_stretches;
    int m_left = -1;
};

} // namespace

FUZZ_TARGET(AxisNest)
{
    Nest nest(dice);
    for (int i = dice.upTo(30); i >= 0; --i) {
        nest.change();
        nest.check();
    }
}
