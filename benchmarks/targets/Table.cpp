#include "benchmarks/targets/Table.h"

#include <cstdio>
#include <utility>

namespace targets {

namespace {

// Three digits and a unit.
std::string textOf(double seconds)
{
    struct Unit
    {
        double size;
        const char* name;
    };
    constexpr Unit units[] = {{1.0, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
    const Unit* unit = units;
    while (unit->size > seconds && unit->size > 1e-9)
        ++unit;
    const double value = seconds / unit->size;
    char text[32];
    const int decimals = value < 9.995 ? 2 : value < 99.95 ? 1 : 0;
    std::snprintf(text, sizeof text, "%.*f %s", decimals, value, unit->name);
    return text;
}

const char* verdict(bool isMet)
{
    return isMet ? "yes" : "**no**";
}

} // namespace

Table::Table(std::string filter)
    : m_filter(std::move(filter))
{
    std::printf("| %-58s | %-9s | %-34s | %7s | %7s | %-6s |\n", "what", "median", "against",
                "ratio", "at most", "met");
    std::printf("|---|---|---|---|---|---|\n");
}

bool Table::wants(const std::string& what) const
{
    return what.find(m_filter) != std::string::npos;
}

void Table::addRatio(const std::string& what, double seconds, const std::string& yardstick,
                     double yardstickSeconds, double target)
{
    const double ratio = seconds / yardstickSeconds;
    const std::string against = yardstick + ", " + textOf(yardstickSeconds);
    std::printf("| %-58s | %9s | %-34s | %7.2f | ", what.c_str(), textOf(seconds).c_str(),
                against.c_str(), ratio);
    if (target > 0.0) {
        std::printf("%7.2f | %-6s |\n", target, verdict(ratio <= target));
        count(ratio <= target);
    } else {
        std::printf("%7s | %-6s |\n", "", "");
    }
    std::fflush(stdout);
}

void Table::addTime(const std::string& what, double seconds, double target)
{
    std::printf("| %-58s | %9s | %-34s | %7s | %7s | %-6s |\n", what.c_str(),
                textOf(seconds).c_str(), "", "", textOf(target).c_str(),
                verdict(seconds <= target));
    std::fflush(stdout);
    count(seconds <= target);
}

void Table::addShare(const std::string& what, double share, double target)
{
    std::printf("| %-58s | %9s | %-34s | %6.2f%% | %6.2f%% | %-6s |\n", what.c_str(), "", "",
                100.0 * share, 100.0 * target, verdict(share <= target));
    count(share <= target);
}

void Table::addFault(const std::string& what, const std::string& fault)
{
    std::printf("| %-58s | not equal work: %s\n", what.c_str(), fault.c_str());
    ++m_faults;
}

void Table::addRemark(const std::string& contestant, const std::string& remark)
{
    if (!remark.empty())
        m_remarks[contestant] = remark;
}

int Table::finish() const
{
    std::printf("\n");
    for (const auto& [contestant, remark] : m_remarks)
        std::printf("%s: %s\n", contestant.c_str(), remark.c_str());
    std::printf("\n%d of %d targets met\n", m_met, m_targets);
    return m_faults > 0 ? 1 : 0;
}

void Table::count(bool isMet)
{
    ++m_targets;
    m_met += isMet ? 1 : 0;
}

} // namespace targets
