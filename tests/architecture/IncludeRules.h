#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kesta::test {

// The folder of the architecture that a source is in, by its path below src/; nothing when it is in none.
std::optional<std::string> FolderOf(const std::filesystem::path& source);

// All folders that the architecture knows.
std::vector<std::string> Folders();

// One sentence for each #include of ours that the table of the architecture does not allow, and for <cups/ppd.h>
// outside the folders that may read a PPD.
std::vector<std::string> ForbiddenIncludes(const std::filesystem::path& source, std::string_view text);

} // namespace kesta::test
