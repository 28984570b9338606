#ifndef BENCHMARKS_TARGETS_TABLE_H
#define BENCHMARKS_TARGETS_TABLE_H

#include <map>
#include <string>

namespace targets {

/// A Markdown table of what was wanted and what came out, printed row by row.
class Table
{
public:
    /// Prints the head. Only rows whose text contains @p filter are wanted.
    explicit Table(std::string filter);

    bool wants(const std::string& what) const;

    /// A time that is wanted to be at most @p target times the yardstick's; 0.0 if nothing is.
    void addRatio(const std::string& what, double seconds, const std::string& yardstick,
                  double yardstickSeconds, double target);

    /// A time that is wanted to be at most @p target seconds.
    void addTime(const std::string& what, double seconds, double target);

    /// Any other figure that is wanted to be at most @p target.
    void addShare(const std::string& what, double share, double target);

    /// Contestants that do not do the same work count as a failure of the program.
    void addFault(const std::string& what, const std::string& fault);

    /// What is said of a contestant below the table, once.
    void addRemark(const std::string& contestant, const std::string& remark);

    /// The last lines, and the exit code: 1 after a fault. A missed target is none.
    int finish() const;

private:
    void count(bool isMet);

    const std::string m_filter;
    std::map<std::string, std::string> m_remarks;
    int m_targets = 0;
    int m_met = 0;
    int m_faults = 0;
};

} // namespace targets

#endif
