#include "printer/PPDUtilities.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <cups/ppd.h>

#include <set>

namespace kesta {
namespace {

using test::CurrentPrinter;

constexpr double kPointsPerMillimetre = 72 / 25.4;

std::span<const ppd_choice_t> Choices(const char* keyword)
{
    const ppd_option_t* option = ppdFindOption(PPDGetCurrent(), keyword);
    return option ? std::span<const ppd_choice_t>(option->choices, option->num_choices)
                  : std::span<const ppd_choice_t>();
}

TEST(ProductPPD, PassesTheConformanceTest) // of cups-client
{
    QProcess cupstestppd;
    cupstestppd.start(QStringLiteral("cupstestppd"), {QStringLiteral("-r"), QStringLiteral(KESTA_PPD)});
    ASSERT_TRUE(cupstestppd.waitForFinished()) << qPrintable(cupstestppd.errorString());
    EXPECT_EQ(cupstestppd.exitCode(), 0) << cupstestppd.readAll().toStdString();
}

TEST(ProductPPD, EveryChoiceIsUnderstood)
{
    const CurrentPrinter printer;
    const std::set<std::string> inNoMap{"StapleLocation SingleLandscape", "KSImageQuality Lighten1"};
    for (const KeywordRow& row : MainKeywordMap) {
        EXPECT_GE(Choices(row.keyword).size(), 2u) << row.keyword;
        for (const ppd_choice_t& choice : Choices(row.keyword)) {
            const std::string name = row.keyword + std::string(" ") + choice.choice;
            const SInt32 value = PPDTicketValueForChoice(PPDKeyword::Named(row.keyword), choice.choice);
            EXPECT_EQ(value == kUnmappedChoice, inNoMap.contains(name)) << name;
        }
    }
    EXPECT_EQ(Choices("KSTColor").size(), 2u);
}

TEST(ProductPPD, EveryChoiceHasCodeForThePrinter)
{
    const CurrentPrinter printer;
    const std::span groups(PPDGetCurrent()->groups, PPDGetCurrent()->num_groups);
    for (const ppd_group_t& group : groups) {
        const bool isAccessories = std::string_view(group.name) == "InstallableOptions";
        for (const ppd_option_t& option : std::span(group.options, group.num_options)) {
            std::set<std::string> codes;
            for (const ppd_choice_t& choice : std::span(option.choices, option.num_choices)) {
                if (std::string_view(choice.choice) != "Custom") // libcups' own
                    codes.insert(choice.code ? choice.code : "");
            }
            EXPECT_EQ(codes.contains(""), isAccessories) << option.keyword;
        }
    }
}

// Names that carry a size have this size, the others the well-known one.
TEST(ProductPPD, PageSizesHaveTheirDimensions)
{
    const CurrentPrinter printer;
    const auto expectSize = [](const char* name, double width, double height) {
        const ppd_size_t* size = ppdPageSize(PPDGetCurrent(), name);
        ASSERT_NE(size, nullptr) << name;
        EXPECT_NEAR(size->width, width, 1) << name;
        EXPECT_NEAR(size->length, height, 1) << name;
        EXPECT_GT(size->right, size->left);
        EXPECT_LE(size->right, size->width);
    };
    for (const ChoiceRow& row : PageSizeMap) {
        double width = 0, height = 0;
        const bool isInches = std::sscanf(row.choice, "%lfx%lf", &width, &height) == 2;
        if (isInches && width < 100)
            expectSize(row.choice, width * 72, height * 72);
        else if (isInches)
            expectSize(row.choice, width * kPointsPerMillimetre, height * kPointsPerMillimetre);
        else
            EXPECT_NE(ppdPageSize(PPDGetCurrent(), row.choice), nullptr) << row.choice;
    }
    expectSize("Letter", 612, 792);
    expectSize("A4", 595, 842);
    expectSize("JISB5", 516, 729);
    expectSize("EnvDL", 312, 624);
    expectSize("SRA3", 907, 1276);
    expectSize("5p5x7", 396, 504);
    const ppd_size_t* custom = ppdPageSize(PPDGetCurrent(), "Custom.300x400");
    ASSERT_NE(custom, nullptr);
    EXPECT_EQ(custom->width, 300);
}

// The same conflict is seen whichever of the two is chosen first.
TEST(ProductPPD, ConstraintsStandInBothDirections)
{
    const CurrentPrinter printer;
    std::set<std::array<std::string, 4>> pairs;
    for (const ppd_const_t& each : std::span(PPDGetCurrent()->consts, PPDGetCurrent()->num_consts))
        pairs.insert({each.option1, each.choice1, each.option2, each.choice2});
    EXPECT_GT(pairs.size(), 100u);
    for (const auto& [option1, choice1, option2, choice2] : pairs) {
        EXPECT_TRUE(pairs.contains({option2, choice2, option1, choice1})) << option1 << ' ' << option2;
        for (const auto& [option, choice] : {std::pair(option1, choice1), std::pair(option2, choice2)}) {
            ppd_option_t* found = ppdFindOption(PPDGetCurrent(), option.c_str());
            EXPECT_TRUE(found && ppdFindChoice(found, choice.c_str())) << option << ' ' << choice;
        }
    }
}

} // namespace
} // namespace kesta
