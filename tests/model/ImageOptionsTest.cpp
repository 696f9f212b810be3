#include "model/ImageShift.h"
#include "model/InvertImage.h"
#include "model/Stored.h"

#include <gtest/gtest.h>

namespace kesta::image_options_test {
namespace {

Number N(CFIndex number)
{
    return Number::Index(number);
}

_IS_Options Read(const Dictionary& ticket)
{
    _IS_Options options{.valid = false};
    ImageShiftSetOptionsFromTicket(options, ticket);
    return options;
}

std::optional<Dictionary> Written(const _IS_Options& options)
{
    return ImageShiftCreateTicketFromOptions(&options, JobContext::ImageShift);
}

TEST(ImageShift, EveryFieldSurvivesTheTicket)
{
    const _IS_Options millimetres{.option = 3, .inches = false, .X1 = 11, .X2 = -12, .Y1 = 13, .Y2 = -14};
    const Dictionary expected{{"Option", N(3)}, {"Inches", N(0)}, {"FullPrecision", true}, {"X1", N(110)},
                              {"X2", N(-120)},  {"Y1", N(130)},   {"Y2", N(-140)}};
    EXPECT_EQ(Written(millimetres), expected);
    EXPECT_EQ(Read(expected), millimetres);
    EXPECT_EQ(Written(Read(*test::Stored(expected).dictionary())), expected);
}

TEST(ImageShift, OffsetsAreTruncatedOnReadingAndRoundedOnWriting)
{
    const Dictionary inches{{"Option", N(1)}, {"Inches", N(1)}, {"FullPrecision", true}, {"X1", N(2540)}};
    EXPECT_EQ(Read(inches).X1, 100);
    EXPECT_EQ(*Written(Read(inches))->find("X1"), Value(N(2540)));

    const Dictionary millimetres{
        {"Option", N(1)}, {"Inches", N(0)}, {"FullPrecision", true}, {"X1", N(127)}, {"Y2", N(-127)}};
    EXPECT_EQ(Read(millimetres).X1, 12);
    EXPECT_EQ(Read(millimetres).Y2, -12);
    EXPECT_EQ(*Written(Read(millimetres))->find("X1"), Value(N(120)));

    EXPECT_EQ(*Written({.option = 1, .X1 = 5, .Y1 = -5})->find("X1"), Value(N(127)));
    EXPECT_EQ(*Written({.option = 1, .X1 = 3, .Y1 = -3})->find("Y1"), Value(N(-76))) << "76.2";
    EXPECT_EQ(Read({{"Inches", N(0)}, {"X1", N(127)}}).X1, 127) << "not of full precision";
    EXPECT_EQ(Read({{"FullPrecision", false}, {"X1", N(127)}}).X1, 127);
}

TEST(ImageShift, WithoutAShiftThereIsNoTicket)
{
    EXPECT_EQ(Written({}), std::nullopt);
    EXPECT_EQ(Written({.valid = false, .option = 1}), std::nullopt);
    EXPECT_EQ(ImageShiftCreateTicketFromOptions(nullptr, JobContext::ImageShift), std::nullopt);
}

TEST(ImageShift, ADamagedTicketReadsAsTheInitialValues)
{
    const Number huge = N(std::numeric_limits<CFIndex>::min());
    EXPECT_EQ(Read({}), _IS_Options());
    EXPECT_EQ(Read({{"Option", "1"}, {"Inches", "0"}, {"FullPrecision", N(1)}, {"X1", true}, {"Y1", Array()}}),
              _IS_Options());
    EXPECT_EQ(
        Read({{"Option", huge}, {"FullPrecision", true}, {"X1", huge}, {"Y1", huge}, {"X2", Number::Float64(.5)}}),
        _IS_Options());

    constexpr SInt32 most = std::numeric_limits<SInt32>::max();
    EXPECT_EQ(Read(*Written({.option = 1, .X1 = most})).X1, most);
}

TEST(InvertImage, FlagsAreNumbersInTheTicket)
{
    const Dictionary both{{"NegativeImage", N(1)}, {"MirrorImage", N(1)}};
    EXPECT_EQ(InvertImageCreateTicketFromOptions({.negativeImage = true, .mirrorImage = true}), both);

    II_Options options{.valid = false};
    InvertImageSetOptionsFromTicket(options, both);
    EXPECT_EQ(options, (II_Options{.valid = true, .negativeImage = true, .mirrorImage = true}));
    InvertImageSetOptionsFromTicket(options, {{"NegativeImage", true}, {"MirrorImage", N(-2)}});
    EXPECT_EQ(options, (II_Options{.negativeImage = false, .mirrorImage = true}));
    InvertImageSetOptionsFromTicket(options, {});
    EXPECT_EQ(options, II_Options());
}

} // namespace
} // namespace kesta::image_options_test
