#include "kestrane/plots/RegistryList.h"

#include <boost/optional.hpp>
#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <map>
#include <thread>

using pelorin::ui::chart::Intersectable;
using pelorin::utilities::Registration;
using pelorin::utilities::RegistryList;
using Callback = boost::function<void(const Intersectable*)>;

static_assert(!std::is_copy_constructible_v<RegistryList<Callback>>);
static_assert(!std::is_copy_constructible_v<Registration>);
static_assert(std::is_nothrow_move_constructible_v<Registration>);
static_assert(std::is_nothrow_move_assignable_v<Registration>);

namespace {

/// Writes down "name" where a callback is called, "+name" and "-name" where the list hears of it,
/// and "~name" where it is destroyed; a test says what is to happen there besides, the
/// first time.
class RegistryListTest : public testing::Test
{
protected:
    RegistryListTest() { m_list.emplace(*this); }

    void at(const std::string& text, const boost::function<void()>& more) { m_more[text] = more; }

    Callback callback(const std::string& name)
    {
        const boost::shared_ptr<void> life(nullptr, [this, name](void*) { write("~" + name); });
        return
            [this, name, life](const Intersectable*) { write(std::exchange(m_hook, {}) + name); };
    }

    void add(const std::string& name) { m_registrations[name] = m_list->add(callback(name)); }
    void drop(const std::string& name) { m_registrations.erase(name); }

    void fire()
    {
        m_list->visit([](const Callback& callback) { callback(nullptr); });
    }

    std::string takeLog() { return std::exchange(m_log, {}); }

    std::string logOf(const boost::function<void()>& action)
    {
        m_log.clear();
        action();
        return takeLog();
    }

    std::string fired()
    {
        return logOf([this] { fire(); });
    }

private:
    struct HookedList : RegistryList<Callback>
    {
        explicit HookedList(RegistryListTest& test)
            : m_test(test)
        {}
        ~HookedList() override { detach(); }
        using RegistryList::visit;

        // A hook calls the callback to learn its name.
        void itemAdded(const Callback& item) override { hear("+", item); }
        void itemRemoved(const Callback& item) override { hear("-", item); }
        void hear(const char* hook, const Callback& item)
        {
            m_test.m_hook = hook;
            item(nullptr);
        }

        RegistryListTest& m_test;
    };

    void write(const std::string& text)
    {
        m_log += text;
        boost::function<void()> more;
        more.swap(m_more[text]); // So that it happens once.
        if (more)
            more();
    }

    std::string m_log;
    std::string m_hook;
    std::map<std::string, boost::function<void()>> m_more;

protected:
    boost::optional<HookedList> m_list;
    std::map<std::string, Registration> m_registrations;
};

} // namespace

TEST_F(RegistryListTest, ARegistrationLastsAsLongAsWhoeverHoldsIt)
{
    const Callback equal = callback("e");
    const Registration first = m_list->add(equal);
    Registration second = m_list->add(equal);
    add("b");
    add("a");
    EXPECT_EQ(fired(), "eeba");
    second = std::move(m_registrations["b"]);
    EXPECT_EQ(fired(), "eba");
    drop("b");
    EXPECT_EQ(fired(), "eba") << "what has been moved from holds nothing";
    at("-b", [&] { second = Registration(); }); // It holds "a" already.
    EXPECT_EQ(logOf([&] { second = std::move(m_registrations["a"]); }), "-b-a~a~b");
    EXPECT_EQ(fired(), "e");
}

TEST_F(RegistryListTest, ChangesDuringAPassCountFromTheNextOne)
{
    for (const char* name : {"a", "b", "c"})
        add(name);
    at("a", [this] {
        drop("a");
        drop("c");
        add("d");
    });
    at("b", [this] {
        std::thread([this] { add("e"); }).join();
        fire(); // Shows the same as the pass around it.
    });
    EXPECT_EQ(fired().substr(0, 14), "ababcc-a-c+d+e");
    EXPECT_EQ(fired(), "bde");
}

TEST_F(RegistryListTest, HooksHearOfEachChangeEvenIfItDidNotLast)
{
    add("a");
    at("a", [this] {
        add("b");
        drop("b");
    });
    EXPECT_EQ(takeLog(), "+a");
    EXPECT_EQ(fired(), "a+b-b~b");
}

TEST_F(RegistryListTest, HooksAndDestructorsOfCallbacksMayUseTheList)
{
    add("a");
    at("+b", [this] {
        add("c");
        drop("a");
        fire();
    });
    at("~a", [this] {
        drop("c");
        add("d");
        fire();
    });
    EXPECT_EQ(logOf([this] { add("b"); }), "+bab+c-a~abc-c+d~c");
    EXPECT_EQ(fired(), "bd");
}

TEST_F(RegistryListTest, AnExceptionOfAHookIsReportedAndTheChangeToldAgain)
{
    static int warnings;
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
    warnings = 0;
    at("+a", [] { throw 1; });
    add("a");
    qInstallMessageHandler(previous);
    EXPECT_EQ(warnings, 1);
    at("+a", [] {});
    EXPECT_EQ(logOf([this] { add("b"); }), "+a+b");
    EXPECT_EQ(fired(), "ab");
}

TEST_F(RegistryListTest, RegistrationsMayOutliveTheList)
{
    add("a");
    add("b");
    at("b", [this] {
        m_list.reset(); // While a pass is under way.
        drop("a");
    });
    EXPECT_EQ(fired(), "ab~a");
    EXPECT_EQ(logOf([this] { drop("b"); }), "~b");
}

TEST_F(RegistryListTest, AnItemThatCannotBeCopiedIsNotRegistered)
{
    static bool mayCopy = true;
    struct Uncopyable
    {
        Uncopyable() = default;
        Uncopyable(const Uncopyable&)
        {
            if (!mayCopy)
                throw std::bad_alloc();
        }
        void operator()(const Intersectable*) const { throw 1; }
    };
    const Callback callback = Uncopyable();
    mayCopy = false;
    EXPECT_THROW(m_list->add(callback), std::bad_alloc);
    mayCopy = true;
    EXPECT_EQ(fired(), "");
}
