#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace kesta::test {
namespace {

// Parts of a class that is too large for one source, with the header of the class; and entry points, which nobody
// includes.
const std::set<std::pair<std::string, std::string>> kParts{
    {"host/dialog/DialogPrinters.cpp", "host/dialog/PrintDialog.h"},
    {"host/dialog/DialogPrinting.cpp", "host/dialog/PrintDialog.h"},
    {"host/script/ScriptChoices.cpp", "host/script/ScriptActions.h"},
    {"host/script/ScriptExpectations.cpp", "host/script/ScriptActions.h"},
    {"model/FaxAddressBook.cpp", "model/FaxRecipientList.h"},
    {"model/FullColorTicket.cpp", "model/FullColorOptions.h"},
    {"panels/booklet_watermark/watermark/DrawingLibraryExports.cpp",
     "panels/booklet_watermark/watermark/DrawingLibrary.h"},
    {"panels/booklet_watermark/watermark/EditorControls.cpp",
     "panels/booklet_watermark/watermark/WatermarkEditorContext.h"},
    {"pde/shell/PDEShellEvents.cpp", "pde/shell/PDEShell.h"},
    {"pde/shell/PDEShellOpen.cpp", "pde/shell/PDEShell.h"},
    {"pde/shell/PDEShellSlots.cpp", "pde/shell/PDEShell.h"},
    {"pde/shell/PDEShellSync.cpp", "pde/shell/PDEShell.h"},
    {"platform/values/PropertyListReader.cpp", "platform/values/PropertyList.h"},
    {"platform/values/PropertyListWriter.cpp", "platform/values/PropertyList.h"},
    {"printer/CurrentPPD.cpp", "printer/PPDUtilities.h"},
    {"toolkit/style/KestaStyleControls.cpp", "toolkit/style/KestaProxyStyle.h"},
    {"toolkit/style/KestaStyleMenus.cpp", "toolkit/style/KestaProxyStyle.h"},
    {"toolkit/style/KestaStyleMetrics.cpp", "toolkit/style/KestaProxyStyle.h"},
    {"toolkit/style/KestaStyleParts.cpp", "toolkit/style/KestaProxyStyle.h"},
    {"toolkit/style/KestaStyleSliders.cpp", "toolkit/style/KestaProxyStyle.h"},
};
const std::set<std::string> kEntries{"host/main.cpp", "panels/booklet_watermark/fonts/Type42Tool.cpp",
                                     "pde/shell/PlugInFactory.cpp", "ticket-tool/Main.cpp", "watermark-tool/Main.cpp"};

std::string TextOf(const std::filesystem::path& source)
{
    std::ifstream file(source);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string HeaderOf(const std::string& source)
{
    for (const auto& [part, header] : kParts) {
        if (part == source)
            return header;
    }
    return std::filesystem::path(source).replace_extension(".h").generic_string();
}

// Who reads a function's declaration finds the function.
TEST(Units, EverySourceIncludesItsOwnHeaderFirst)
{
    const std::filesystem::path root = SOURCE_ROOT;
    std::size_t seen = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string source = std::filesystem::relative(entry.path(), root).generic_string();
        if (entry.path().extension() != ".cpp" || kEntries.contains(source))
            continue;
        const std::string text = TextOf(entry.path());
        const std::string own = "#include \"" + HeaderOf(source) + '"';
        EXPECT_EQ(text.find("#include"), text.find(own)) << source;
        ++seen;
    }
    EXPECT_GT(seen, 150u);
    for (const auto& [part, header] : kParts)
        EXPECT_TRUE(exists(root / part) && exists(root / header)) << part << " is no part any more";
}

} // namespace
} // namespace kesta::test
