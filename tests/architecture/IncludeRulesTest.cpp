#include "architecture/IncludeRules.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace kesta::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(IncludeRules, TellsAForbiddenArrowFromAnAllowedOne)
{
    EXPECT_THAT(ForbiddenIncludes("toolkit/style/A.h", "#include \"platform/values/Types.h\"\n#include <vector>\n"),
                IsEmpty());
    EXPECT_THAT(ForbiddenIncludes("platform/values/Value.h", "  #  include \"toolkit/controls/Menu.h\"\n"),
                ElementsAre(HasSubstr("no arrow from platform/values to toolkit/controls")));
    EXPECT_THAT(ForbiddenIncludes("host/pane/A.cpp", "#include \"pde/interface/PanelInterface.h\"\n"), IsEmpty());
    EXPECT_THAT(ForbiddenIncludes("host/pane/A.cpp", "#include \"pde/ticket/TicketUtilities.h\"\n"),
                ElementsAre(HasSubstr("to pde/ticket")));
    EXPECT_THAT(
        ForbiddenIncludes("panels/advanced/A.cpp", "#include \"pde/shell/PDEShell.h\"\n#include <cups/ppd.h>\n"),
        ElementsAre(HasSubstr("to pde/shell"), HasSubstr("reads PPDs")));
    EXPECT_THAT(ForbiddenIncludes("panels/special_pages/editors/A.cpp", "#include \"panels/special_pages/A.h\"\n"),
                ElementsAre(HasSubstr("to panels/special_pages")));
    EXPECT_THAT(ForbiddenIncludes("host/server/A.cpp", "#include \"host/dialog/PrintDialog.h\"\n"),
                ElementsAre(HasSubstr("to host/dialog")));
    EXPECT_THAT(ForbiddenIncludes("host/job/A.cpp", "#include \"pde/interface/TicketKeys.h\"\n"), IsEmpty());
    EXPECT_THAT(ForbiddenIncludes("host/job/A.cpp", "#include \"pde/interface/PanelOperations.h\"\n"),
                ElementsAre(HasSubstr("to pde/interface")));
    EXPECT_THAT(
        ForbiddenIncludes("panels/delivery/A.cpp", "#include \"panels/delivery/A.h\"\n#include \"model/A.h\"\n"),
        IsEmpty());
    EXPECT_THAT(ForbiddenIncludes("panels/delivery/A.cpp", "#include \"panels/new/A.h\"\n#include \"fax/A.h\"\n"),
                ElementsAre(HasSubstr("to panels/new"), HasSubstr("to fax")));
    EXPECT_THAT(ForbiddenIncludes("panels/delivery/deep/A.cpp", ""), ElementsAre(HasSubstr("in no folder")));
    EXPECT_THAT(ForbiddenIncludes("host/misc/A.cpp", ""), ElementsAre(HasSubstr("in no folder")));
    EXPECT_THAT(ForbiddenIncludes("platform/A.cpp", ""), ElementsAre(HasSubstr("in no folder")));
}

// A newcomer learns from the page what may go where: a folder that it does not name, nobody knows.
TEST(IncludeRules, ThePageNamesEveryFolder)
{
    std::ifstream file(ARCHITECTURE_PAGE);
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    for (const std::string& folder : Folders())
        EXPECT_NE(page.find("| `" + folder + "/`"), page.npos) << folder;
}

TEST(IncludeRules, TheSourcesKeepThem)
{
    const std::filesystem::path root = SOURCE_ROOT;
    std::size_t seen = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::filesystem::path extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".h" && extension != ".c")
            continue;
        std::ifstream file(entry.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        ++seen;
        for (const std::string& problem : ForbiddenIncludes(std::filesystem::relative(entry.path(), root), text))
            ADD_FAILURE() << problem;
    }
    EXPECT_GT(seen, 40u);
}

} // namespace
} // namespace kesta::test
