#include "hosts/kestrane-chart/OptionParser.h"

#include "hosts/kestrane-chart/UsageError.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace hosts::chart {

namespace {

// Says of an option only what to write behind it; the rest is in its description.
class HelpFormatter : public CLI::Formatter
{
public:
    HelpFormatter() { column_width(30); }

    std::string make_option_opts(const CLI::Option* option) const override
    {
        const std::string type = option->get_type_name();
        return type.empty() ? type : ' ' + type.substr(0, type.find(':'));
    }
};

bool takesText(const OptionParser::Target& target)
{
    return std::holds_alternative<std::string*>(target) ||
           std::holds_alternative<std::optional<std::string>*>(target) ||
           std::holds_alternative<std::vector<std::string>*>(target);
}

// An empty text would be read as 0.
std::string complaintAboutNumber(const std::string& text)
{
    return text.empty() ? "the number is missing" : std::string();
}

} // namespace

struct OptionParser::Library
{
    CLI::App app;
};

OptionParser::OptionParser(const char* program, const char* version, const char* description)
    : m_library(new Library{CLI::App(description, program)})
{
    CLI::App& app = m_library->app;
    app.formatter(std::make_shared<HelpFormatter>());
    app.set_version_flag("--version", std::string(program) + ' ' + version)->group("Other");
    app.set_help_flag("-h,--help", "Print this help and leave")->group("Other");
}

OptionParser::~OptionParser() = default;

void OptionParser::addArguments(const char* name, std::vector<std::string>& target,
                                const char* help)
{
    m_library->app.add_option(name, target, help)->type_name("...");
}

void OptionParser::add(const char* group, const Option& option)
{
    CLI::Option* const added = std::visit(
        [&](auto* target) { return m_library->app.add_option(option.names, *target, option.help); },
        option.target);
    added->type_name(option.type)->allow_extra_args(false)->group(group);
    if (!takesText(option.target))
        added->check(complaintAboutNumber);
    if (!option.choices.empty())
        added->check(CLI::IsMember(option.choices));
    if (option.excludes)
        added->excludes(option.excludes);
}

void OptionParser::addFlag(const char* group, const char* name, bool& target, const char* help)
{
    m_library->app.add_flag(name, target, help)->group(group);
}

void OptionParser::require(const char* name)
{
    m_library->app.get_option(name)->required();
}

void OptionParser::setGuide(const std::string& guide)
{
    m_library->app.footer(guide);
}

bool OptionParser::parse(int argc, char** argv)
{
    try {
        m_library->app.parse(argc, argv);
    } catch (const CLI::Success& success) { // The help or the version was asked for.
        m_library->app.exit(success, std::cout, std::cerr);
        return false;
    } catch (const CLI::ParseError& error) {
        throw UsageError(QString::fromStdString(error.what()) + QStringLiteral(" (see --help)"));
    }
    return true;
}

bool OptionParser::has(const char* name) const
{
    return m_library->app.count(name) > 0;
}

} // namespace hosts::chart
