#ifndef HOSTS_KESTRANE_CHART_OPTIONPARSER_H
#define HOSTS_KESTRANE_CHART_OPTIONPARSER_H

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace hosts::chart {

/// Reads a command line into variables. The one place that knows how, since the library below it
/// takes a compiler ten seconds for each file that includes it.
class OptionParser
{
public:
    /// Where the value of an option goes. One in a list may be given again and again.
    using Target =
        std::variant<std::string*, double*, std::optional<std::string>*, std::optional<double>*,
                     std::optional<int>*, std::optional<long long>*, std::vector<std::string>*,
                     std::vector<int>*, std::vector<double>*>;

    /// What there is to say of an option.
    struct Option
    {
        const char* names;
        Target target;
        const char* type; ///< What to write behind it, in the help.
        const char* help;
        std::vector<std::string> choices = {}; ///< All that it takes, or empty.
        const char* excludes = nullptr;        ///< One that cannot be there with it.
    };

    OptionParser(const char* program, const char* version, const char* description);
    ~OptionParser();

    /// Arguments that stand alone.
    void addArguments(const char* name, std::vector<std::string>& target, const char* help);

    /// An option, listed in the help below the name of its group.
    void add(const char* group, const Option& option);

    void addFlag(const char* group, const char* name, bool& target, const char* help);

    /// Lets no command line pass without it.
    void require(const char* name);

    /// The end of the help.
    void setGuide(const std::string& guide);

    /// @return false if it asked for the help or the version, which are printed then
    /// @throws UsageError
    bool parse(int argc, char** argv);

    /// Whether the option was there.
    bool has(const char* name) const;

private:
    struct Library;
    const std::unique_ptr<Library> m_library;
};

} // namespace hosts::chart

#endif
