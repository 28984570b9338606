#include "kestrane/plots/RegistryList.h"

#include "tests/fuzz/Target.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace tests;
using pelorin::utilities::Registration;
using pelorin::utilities::RegistryList;
using Callback = boost::function<void(const pelorin::ui::chart::Intersectable*)>;

namespace {

// A list whose callbacks add, drop, fire and throw; beside it, who should be in it.
class Callbacks
{
public:
    explicit Callbacks(Dice& dice)
        : m_dice(dice)
    {}

    void act()
    {
        const int what = m_dice.upTo(4);
        if (what < 2)
            add();
        else if (what == 2)
            drop();
        else if (what == 3)
            fire();
        else if (m_depth > 0 && m_dice.upTo(3) == 0)
            throw 42;
    }

private:
    struct List : RegistryList<Callback>
    {
        using RegistryList::visit;
    };

    // Counts once nobody is on a way through the list.
    void change(const std::function<void()>& change)
    {
        m_queue.push_back(change);
        if (m_depth == 0)
            carryOut();
    }

    void carryOut()
    {
        for (const auto& change : std::exchange(m_queue, {}))
            change();
    }

    void add()
    {
        if (m_next > 30)
            return;
        const int id = m_next++;
        m_registrations[id] = m_list.add([this, id](auto) {
            m_called.push_back(id);
            act();
        });
        change([this, id] { m_members.push_back(id); });
    }

    void drop()
    {
        const auto any = m_registrations.lower_bound(m_dice.upTo(30));
        if (any == m_registrations.end())
            return;
        const int id = any->first;
        m_registrations.erase(any);
        change([this, id] { m_members.erase(std::find(m_members.begin(), m_members.end(), id)); });
    }

    void fire()
    {
        if (m_depth == 3 || ++m_passes > 20)
            return;
        const std::vector<int> due = m_members;
        const std::vector<int> before = std::exchange(m_called, {});
        bool isComplete = true;
        ++m_depth;
        try {
            m_list.visit([](const Callback& callback) { callback(nullptr); });
        } catch (int) {
            isComplete = false;
        }
        EXPECT_LE(m_called.size(), due.size());
        EXPECT_TRUE(std::equal(m_called.begin(), m_called.end(), due.begin()));
        EXPECT_TRUE(!isComplete || m_called.size() == due.size());
        m_called = before;
        if (--m_depth == 0)
            carryOut();
    }

    Dice& m_dice;
    List m_list;
    std::map<int, Registration> m_registrations;
    std::vector<int> m_members, m_called;
    std::vector<std::function<void()>> m_queue;
    int m_next = 0, m_depth = 0, m_passes = 0;
};

} // namespace

FUZZ_TARGET(CallbackList)
{
    Callbacks callbacks(dice);
    for (int i = dice.upTo(60); i > 0; --i)
        callbacks.act();
}
