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
    EXPECT_THAT(ForbiddenIncludes("toolkit/Menu.h", "#include \"platform/Types.h\"\n#include <vector>\n"), IsEmpty());
    EXPECT_THAT(ForbiddenIncludes("platform/Value.h", "  #  include \"toolkit/Menu.h\"\n"),
                ElementsAre(HasSubstr("no arrow from platform to toolkit")));
    EXPECT_THAT(ForbiddenIncludes("host/pane/A.cpp", "#include \"pde/PanelInterface.h\"\n"), IsEmpty());
    EXPECT_THAT(ForbiddenIncludes("host/pane/A.cpp", "#include \"pde/TicketUtilities.h\"\n"),
                ElementsAre(HasSubstr("to pde-helpers")));
    EXPECT_THAT(ForbiddenIncludes("panels/advanced/A.cpp", "#include \"pde/PDEShell.h\"\n#include <cups/ppd.h>\n"),
                ElementsAre(HasSubstr("to pde-shell"), HasSubstr("reads PPDs")));
    EXPECT_THAT(ForbiddenIncludes("host/server/A.cpp", "#include \"host/dialog/PrintDialog.h\"\n"),
                ElementsAre(HasSubstr("to host/dialog")));
    EXPECT_THAT(ForbiddenIncludes("host/misc/A.cpp", ""), ElementsAre(HasSubstr("in no part")));
    EXPECT_THAT(ForbiddenIncludes("misc/A.cpp", ""), ElementsAre(HasSubstr("in no part")));
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
