#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kesta::test {

// The part of the house that a source belongs to, by its path below src/ ("pde/SettingMap.h" is "pde-menus"); nothing
// when no part claims it.
std::optional<std::string> PartOf(const std::filesystem::path& source);

// One sentence for each #include of ours that the table of the architecture does not allow, and for <cups/ppd.h>
// outside the parts that may read a PPD.
std::vector<std::string> ForbiddenIncludes(const std::filesystem::path& source, std::string_view text);

} // namespace kesta::test
