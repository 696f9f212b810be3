#include "architecture/IncludeRules.h"

#include <algorithm>
#include <array>
#include <regex>
#include <sstream>

namespace kesta::test {
namespace {

struct Rule {
    std::string_view folder;
    std::vector<std::string_view>
        mayInclude; // besides itself; a name stands for the folders below it, too, or is a header
    bool mayReadPPD = false;
};

// Any folder of panels/ that has no line of its own.
constexpr std::string_view kPlainPanel = "panels/...";

// Bottom to top: a folder may only name what stands above it, so that there is no cycle.
const std::vector<Rule>& Rules()
{
    static const std::vector<Rule> rules{
        {"platform/values", {}},
        {"platform/system", {"platform/values"}},
        {"platform/printsystem", {"platform/values", "platform/system"}, true},
        {"platform/plugins", {"platform/values", "platform/system"}},
        {"toolkit/style", {"platform"}},
        {"toolkit/controls", {"platform", "toolkit/style"}},
        {"toolkit/windows", {"platform", "toolkit/style", "toolkit/controls"}},
        {"pde/ticket", {"platform"}},
        {"pde/interface", {"platform", "pde/ticket", "toolkit"}},
        {"printer", {"platform", "toolkit/controls", "pde/ticket", "pde/interface"}, true},
        {"model", {"platform", "pde/ticket", "pde/interface"}},
        {"pde/menus", {"platform", "toolkit", "pde/ticket", "pde/interface", "printer"}},
        {"pde/forms", {"platform", "toolkit", "pde/ticket", "pde/interface", "pde/menus"}},
        {"product", {"platform", "printer", "pde/menus"}},
        {"weblink",
         {"platform", "toolkit", "pde/ticket", "pde/interface", "pde/menus", "pde/forms", "printer", "product"}},
        {"panels/special_pages/paper", {"<panel>"}},
        {"panels/special_pages", {"<panel>", "panels/special_pages/paper", "panels/special_pages/editors"}},
        {"panels/special_pages/editors", {"<panel>", "panels/special_pages/paper"}},
        {"panels/booklet_watermark/fonts", {"platform"}},
        {"panels/booklet_watermark/booklet", {"<panel>", "panels/special_pages/paper"}},
        {"panels/booklet_watermark/watermark", {"<panel>", "panels/booklet_watermark/fonts"}},
        {"panels/booklet_watermark",
         {"<panel>", "panels/special_pages/paper", "panels/booklet_watermark/booklet",
          "panels/booklet_watermark/watermark", "panels/booklet_watermark/fonts"}},
        {"fax", {"<panel>", "panels/booklet_watermark/watermark"}},
        {"panels/paper_output", {"<panel>", "panels/special_pages/paper", "panels/booklet_watermark/booklet", "fax"}},
        {"panels/advanced", {"<panel>", "weblink"}},
        {kPlainPanel, {"<panel>"}},
        {"pde/shell",
         {"platform", "toolkit", "pde/ticket", "pde/interface", "pde/menus", "pde/forms", "printer", "model", "product",
          "fax", "weblink"}},
        {"host/job", {"platform", "pde/interface/TicketKeys.h"}},
        {"host/ppd", {"platform", "host/job"}, true},
        {"host/server", {"platform", "host/job"}, true},
        {"host/commandline", {"platform", "host/job", "host/ppd", "host/server"}},
        {"host/script", {"platform", "toolkit", "host/job", "host/commandline"}},
        {"host/pane", {"platform", "toolkit", "pde/interface"}},
        {"host/dialog",
         {"platform", "toolkit", "host/job", "host/ppd", "host/server", "host/commandline", "host/script",
          "host/pane"}},
        {"host", {"platform", "toolkit", "host/commandline", "host/script", "host/pane", "host/dialog"}},
        {"ticket-tool", {"platform", "host/job"}},
        {"watermark-tool", {"platform", "panels/booklet_watermark/watermark"}},
    };
    return rules;
}

// What every panel may build on ("<panel>" above).
constexpr auto kBelowPanels = std::to_array<std::string_view>(
    {"platform", "toolkit", "pde/ticket", "pde/interface", "pde/menus", "pde/forms", "printer", "model", "product"});

const Rule* FindExactRule(std::string_view folder)
{
    const auto found = std::ranges::find(Rules(), folder, &Rule::folder);
    return found == Rules().end() ? nullptr : &*found;
}

bool IsPanel(std::string_view folder)
{
    constexpr std::string_view kPanels = "panels/";
    return folder.starts_with(kPanels) && folder.find('/', kPanels.size()) == folder.npos;
}

const Rule* FindRule(std::string_view folder)
{
    const Rule* rule = FindExactRule(folder);
    return rule || !IsPanel(folder) ? rule : FindExactRule(kPlainPanel);
}

bool IsIn(std::string_view folder, std::string_view whole)
{
    return folder == whole || (folder.starts_with(whole) && folder[whole.size()] == '/' &&
                               whole.find('/') == whole.npos && whole != "host");
}

bool MayInclude(const Rule& rule, std::string_view folder, std::string_view target, std::string_view header)
{
    if (folder == target)
        return true;
    return std::ranges::any_of(rule.mayInclude, [target, header](std::string_view allowed) {
        if (allowed == header)
            return true;
        return allowed == "<panel>"
                   ? std::ranges::any_of(kBelowPanels, [target](std::string_view below) { return IsIn(target, below); })
                   : IsIn(target, allowed);
    });
}

} // namespace

std::optional<std::string> FolderOf(const std::filesystem::path& source)
{
    const std::string folder = source.parent_path().generic_string();
    return FindRule(folder) ? std::optional(folder) : std::nullopt;
}

std::vector<std::string> Folders()
{
    std::vector<std::string> folders;
    for (const Rule& rule : Rules())
        folders.emplace_back(rule.folder);
    return folders;
}

std::vector<std::string> ForbiddenIncludes(const std::filesystem::path& source, std::string_view text)
{
    static const std::regex include(R"(^\s*#\s*include\s*(["<])([^">]+)[">])");
    const std::optional<std::string> folder = FolderOf(source);
    if (!folder)
        return {source.string() + " is in no folder of the architecture"};
    const Rule& rule = *FindRule(*folder);

    std::vector<std::string> found;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (!std::regex_search(line, match, include))
            continue;
        const std::string header = match[2];
        if (header == "cups/ppd.h" && !rule.mayReadPPD)
            found.push_back(source.string() + " reads PPDs, which " + *folder + " may not");
        if (match[1] != "\"")
            continue;
        const std::optional<std::string> target = FolderOf(header);
        if (!target)
            found.push_back(source.string() + " includes " + header + ", which is in no folder of the architecture");
        else if (!MayInclude(rule, *folder, *target, header))
            found.push_back(source.string() + " includes " + header + ": no arrow from " + *folder + " to " + *target);
    }
    return found;
}

} // namespace kesta::test
