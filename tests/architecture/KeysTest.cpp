#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

namespace kesta::test {
namespace {

const std::filesystem::path kSources = SOURCE_ROOT;
const std::regex kLiteral(R"re("([^"\\\n]*)")re");
const std::regex kDeclaredLiteral(R"re(\[\] = "([^"]+)";)re");

std::vector<std::string> Literals(const std::filesystem::path& source, const std::regex& literal = kLiteral)
{
    std::ifstream file(source);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), literal), end; match != end; ++match)
        found.push_back((*match)[1]);
    return found;
}

constexpr char kHostBundle[] = "com.kesta.print.host"; // the dialog's client and its bundle have the same name

// What has to be spelled once: names of the system's own kind, and all that stands in the headers of keys.
class Names {
public:
    Names()
    {
        for (const char* header : {"platform/printsystem/PrintSystemKeys.h", "pde/interface/TicketKeys.h"}) {
            for (const std::string& literal : Literals(kSources / header, kDeclaredLiteral)) {
                if (literal.size() > 1) // a client may be any letter
                    declared_.insert(literal);
            }
        }
        declared_.erase("MediaType");  // an option of the printer's has that name, too,
        declared_.erase("UseJobName"); // and a text
        declared_.erase(kHostBundle);
    }
    std::size_t count() const { return declared_.size(); }
    bool contains(const std::string& literal) const
    {
        static const std::regex ours(R"(com\.(apple|kesta)\.[A-Za-z0-9_.]+)");
        return declared_.contains(literal) || (literal != kHostBundle && std::regex_match(literal, ours));
    }

private:
    std::set<std::string> declared_;
};

// Somebody who changes one of two spellings loses what users have saved.
TEST(Keys, NoneIsSpelledTwice)
{
    const Names names;
    EXPECT_GT(names.count(), 50u);
    std::map<std::string, std::vector<std::string>> places;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kSources)) {
        const std::filesystem::path extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".h")
            continue;
        for (const std::string& literal : Literals(entry.path())) {
            if (names.contains(literal))
                places[literal].push_back(std::filesystem::relative(entry.path(), kSources).string());
        }
    }
    EXPECT_GE(places.size(), names.count());
    for (const auto& [literal, sources] : places)
        EXPECT_THAT(sources, testing::SizeIs(1)) << literal;
}

} // namespace
} // namespace kesta::test
