#include "architecture/IncludeRules.h"

#include <algorithm>
#include <array>
#include <regex>
#include <sstream>

namespace kesta::test {
namespace {

// Sources below src/pde by what they build; what is not named here is the shell.
constexpr auto kPdeHelpers =
    std::to_array<std::string_view>({"CFAdditions", "JobContext", "JobTypeCheck", "LocalizedText", "PlugInBundle",
                                     "RecordFields", "TicketEntries", "TicketKeys", "TicketUtilities", "XMLEntities"});
constexpr auto kPdeMenus = std::to_array<std::string_view>(
    {"BundleUtilities", "CustomValueDialog", "DialogCommands", "LocalizationUtilities", "Mappings", "MediaLimits",
     "MenuUtilities", "SettingMap", "SystemUtilities", "TextFieldUtilities", "ViewUtilities"});
constexpr auto kPdeInterface = std::to_array<std::string_view>({"PanelInterface", "PlugInInterface"});
constexpr auto kPdePanelInterface = std::to_array<std::string_view>({"PanelOperations"});

struct Rule {
    std::string_view part;
    std::vector<std::string_view> mayInclude; // besides itself
    bool mayReadPPD = false;
};

const std::vector<Rule>& Rules()
{
    static const std::vector<std::string_view> panel{"platform", "toolkit", "pde-helpers",   "pde-menus",
                                                     "model",    "printer", "pde-interface", "pde-panel-interface",
                                                     "product",  "panels",  "fax",           "weblink"};
    static const std::vector<Rule> rules{
        {"platform", {}},
        {"toolkit", {"platform"}},
        {"pde-helpers", {"platform"}},
        {"pde-interface", {}},
        {"pde-panel-interface", {"pde-interface", "pde-helpers", "platform", "toolkit"}},
        {"printer", {"platform", "toolkit", "pde-helpers"}, true},
        {"pde-menus", {"platform", "toolkit", "pde-helpers", "printer"}},
        {"model", {"platform", "pde-helpers"}},
        {"product", {"platform", "printer", "pde-menus", "pde-helpers"}},
        {"panels", panel},
        {"fax", panel},
        {"weblink", panel},
        {"pde-shell",
         {"platform", "toolkit", "pde-helpers", "pde-menus", "pde-interface", "pde-panel-interface", "printer", "model",
          "product", "panels", "fax", "weblink"}},
        {"host/settings", {"platform"}},
        {"host/ppd", {"platform", "host/settings"}, true},
        {"host/server", {"platform", "host/settings"}, true},
        {"host/commandline", {"platform", "host/settings", "host/ppd", "host/server"}},
        {"host/script", {"platform", "toolkit", "host/commandline"}},
        {"host/pane", {"platform", "toolkit", "pde-interface"}},
        {"host/dialog",
         {"platform", "toolkit", "host/settings", "host/ppd", "host/server", "host/commandline", "host/script",
          "host/pane"}},
        {"host", {"platform", "toolkit", "host/commandline", "host/script", "host/pane", "host/dialog"}},
        {"ticket-tool", {"platform", "host/settings"}},
    };
    return rules;
}

const Rule* FindRule(std::string_view part)
{
    const auto found = std::ranges::find(Rules(), part, &Rule::part);
    return found == Rules().end() ? nullptr : &*found;
}

bool Names(auto& units, const std::string& stem)
{
    return std::ranges::find(units, stem) != units.end();
}

} // namespace

std::optional<std::string> PartOf(const std::filesystem::path& source)
{
    const std::string folder = source.begin()->string();
    if (folder == "host" && source.has_parent_path() && source.parent_path() != folder) {
        const std::string part = source.parent_path().generic_string();
        return FindRule(part) ? std::optional(part) : std::nullopt;
    }
    if (folder != "pde")
        return FindRule(folder) ? std::optional(folder) : std::nullopt;
    const std::string stem = source.stem().string();
    if (Names(kPdeHelpers, stem))
        return "pde-helpers";
    if (Names(kPdeMenus, stem))
        return "pde-menus";
    if (Names(kPdeInterface, stem))
        return "pde-interface";
    return Names(kPdePanelInterface, stem) ? "pde-panel-interface" : "pde-shell";
}

std::vector<std::string> ForbiddenIncludes(const std::filesystem::path& source, std::string_view text)
{
    static const std::regex include(R"(^\s*#\s*include\s*(["<])([^">]+)[">])");
    const std::optional<std::string> part = PartOf(source);
    if (!part)
        return {source.string() + " is in no part of the architecture"};
    const Rule& rule = *FindRule(*part);

    std::vector<std::string> found;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (!std::regex_search(line, match, include))
            continue;
        const std::string header = match[2];
        if (header == "cups/ppd.h" && !rule.mayReadPPD)
            found.push_back(source.string() + " reads PPDs, which " + *part + " may not");
        if (match[1] != "\"")
            continue;
        const std::optional<std::string> target = PartOf(header);
        if (!target)
            found.push_back(source.string() + " includes " + header + ", which is in no part of the architecture");
        else if (*target != *part && std::ranges::find(rule.mayInclude, *target) == rule.mayInclude.end())
            found.push_back(source.string() + " includes " + header + ": no arrow from " + *part + " to " + *target);
    }
    return found;
}

} // namespace kesta::test
