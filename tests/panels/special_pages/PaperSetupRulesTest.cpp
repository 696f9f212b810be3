#include "model/ImageShift.h"
#include "model/Stock.h"
#include "panels/special_pages/paper/CustomSizeRules.h"
#include "panels/special_pages/paper/SeparatorsRules.h"
#include "panels/special_pages/paper/TabStockRules.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "printer/PPDFacts.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr SizeUnits kInches = SizeUnits::Inches;
constexpr SizeUnits kMillimetres = SizeUnits::Millimetres;

TEST(CustomSize, LengthsAreRoundedThenCut)
{
    EXPECT_EQ(LengthToField(21590, kInches), 850);
    EXPECT_EQ(LengthToField(27940, kInches), 1100);
    EXPECT_EQ(LengthToField(21590, kMillimetres), 2159);
    EXPECT_EQ(LengthToField(21000, kInches), 826) << "8267.7 thousandths are 8268, and the last digit goes";
    EXPECT_EQ(LengthToField(21599, kMillimetres), 2159);
    EXPECT_EQ(FieldToLength(850, kInches), 21590);
    EXPECT_EQ(FieldToLength(333, kInches), 8458);
    EXPECT_EQ(FieldToLength(2970, kMillimetres), 29700);
    EXPECT_EQ(LengthToField(FieldToLength(1368, kInches), kInches), 1368);
}

TEST(CustomSize, SwitchingUnitsAndBackLosesNothing)
{
    EXPECT_EQ(LengthBehindField(826, 21000, kInches), 21000) << "as shown";
    EXPECT_EQ(LengthBehindField(827, 21000, kInches), 21006) << "changed";
    EXPECT_EQ(LengthBehindField(2100, kUnset, kMillimetres), 21000);
}

TEST(CustomSize, LimitsAllowNothingThatThePrinterRefuses)
{
    const PPDCustomSizeLimits points{216, 279, 936, 1368};
    const SizeLimits inches = LimitsInUnits(points, kInches);
    EXPECT_EQ(inches.width, (FieldLimits{300, 1300}));
    EXPECT_EQ(inches.length, (FieldLimits{388, 1900})) << "387.5 up";
    const SizeLimits millimetres = LimitsInUnits(points, kMillimetres);
    EXPECT_EQ(millimetres.width, (FieldLimits{762, 3302}));
    EXPECT_EQ(millimetres.length, (FieldLimits{985, 4826})) << "984.25 up";
    EXPECT_TRUE(inches.width.contains(300) && inches.width.contains(1300));
    EXPECT_FALSE(inches.width.contains(299) || inches.width.contains(1301));
    EXPECT_EQ(inches.width.clamped(-5), 300);
}

TEST(CustomSize, WhateverAPPDSaysTheLimitsAreNumbers)
{
    const Float32 infinite = std::numeric_limits<Float32>::infinity();
    for (const PPDCustomSizeLimits& points :
         {PPDCustomSizeLimits{}, PPDCustomSizeLimits{-5, -5, -1, -1}, PPDCustomSizeLimits{800, 800, 10, 10},
          PPDCustomSizeLimits{std::nanf(""), 0, std::nanf(""), infinite}, PPDCustomSizeLimits{infinite, 0, 1e30f, 1}}) {
        for (const SizeUnits units : {kInches, kMillimetres}) {
            const SizeLimits limits = LimitsInUnits(points, units);
            for (const FieldLimits& field : {limits.width, limits.length}) {
                EXPECT_GE(field.least, 0);
                EXPECT_LE(field.least, field.most);
                EXPECT_LE(field.most, 99'999);
            }
        }
    }
}

TEST(CustomSize, ThePreviewScalesBothSidesByTheLongestLength)
{
    EXPECT_EQ(PreviewRect({144, 144}, 850, 1100, 1900), QRect(40, 30, 64, 83));
    EXPECT_EQ(PreviewRect({100, 50}, 1900, 950, 1900), QRect(0, 0, 100, 50));
    EXPECT_TRUE(PreviewRect({144, 144}, 850, 1100, 0).isNull());
}

TEST(TabStock, ShiftsAreConvertedAwayFromZeroByHalf)
{
    EXPECT_EQ(TabShiftToInches(13), 5);
    EXPECT_EQ(TabShiftToInches(38), 15);
    EXPECT_EQ(TabShiftToInches(-13), -5);
    EXPECT_EQ(TabShiftToInches(0), 0);
    EXPECT_EQ(TabShiftToMillimetres(5), 13);
    EXPECT_EQ(TabShiftToMillimetres(15), 38);
    EXPECT_EQ(TabShiftToMillimetres(-5), -13);
    EXPECT_EQ(TabShiftToMillimetres(std::numeric_limits<SInt32>::max()), std::numeric_limits<SInt32>::max());
    for (SInt32 tenths = -15; tenths <= 15; ++tenths)
        EXPECT_EQ(TabShiftToInches(TabShiftToMillimetres(tenths)), tenths);
    EXPECT_EQ(TabShiftLimits(kInches).most, 15);
    EXPECT_EQ(TabShiftLimits(kMillimetres).most, 38);
}

TEST(TabStock, ATemplateIsATemplateOfTheUsersOwnCountry)
{
    _IS_Options options;
    EXPECT_EQ(TabShiftFromOptions(options, kInches), TabShift{kTabShiftNone});
    ApplyTabShift({.choice = kTabShiftA4Template}, kMillimetres, options);
    EXPECT_EQ(options, (_IS_Options{.option = 1, .inches = false, .X1 = 13}));
    EXPECT_EQ(TabShiftFromOptions(options, kMillimetres), TabShift{kTabShiftA4Template});
    EXPECT_EQ(TabShiftFromOptions(options, kInches), TabShift{kTabShiftLetterTemplate});

    ApplyTabShift({kTabShiftCustom, 5}, kInches, options);
    EXPECT_EQ(TabShiftFromOptions(options, kInches), TabShift{kTabShiftLetterTemplate}) << "13 mm is a template's";
    ApplyTabShift({.choice = kTabShiftNone}, kInches, options);
    EXPECT_EQ(options, (_IS_Options{.option = kUnset, .inches = false, .X1 = 13})) << "the offset stays";
}

TEST(TabStock, TenthsOfAnInchAreReadAsSuchAndBecomeMillimetresTogether)
{
    _IS_Options options{.option = 1, .inches = true, .X1 = 13, .X2 = 5, .Y1 = -10, .Y2 = 1};
    EXPECT_EQ(TabShiftFromOptions(options, kInches), (TabShift{kTabShiftCustom, 13})) << "1.3 inches are no template";
    EXPECT_EQ(TabShiftFromOptions(options, kMillimetres), (TabShift{kTabShiftCustom, 33}));
    ApplyTabShift({kTabShiftCustom, 13}, kInches, options);
    const _IS_Options millimetres{.option = 1, .inches = false, .X1 = 33, .X2 = 13, .Y1 = -25, .Y2 = 3};
    EXPECT_EQ(options, millimetres);
    ApplyTabShift({kTabShiftCustom, 33}, kMillimetres, options);
    EXPECT_EQ(options, millimetres) << "once";

    ApplyTabShift({.choice = kTabShiftNone}, kMillimetres, options);
    ApplyTabShift({.choice = kTabShiftA4Template}, kMillimetres, options);
    EXPECT_EQ(options, (_IS_Options{.option = 1, .inches = false, .X1 = 13})) << "what was ended stays away";
}

TEST(TabStock, ASetHasThreeTabsUntilItIsSaid)
{
    Stock stock;
    EXPECT_EQ(TabsInSequence(stock), 3);
    stock.setModulus(12);
    EXPECT_EQ(TabsInSequence(stock), 12);
    stock.setModulus(0);
    EXPECT_EQ(TabsInSequence(stock), 1);
    stock.setModulus(9999);
    EXPECT_EQ(TabsInSequence(stock), 254);
}

TEST(Separators, GoIntoTheTicketAndComeBack)
{
    Ticket ticket;
    Stock stock;
    stock.setColor(kStockColorPink);
    EXPECT_EQ(SyncSeparatorsToTicket(&ticket, kSeparatorsPrinted, stock), noErr);
    EXPECT_EQ(ReadTicketValue(ticket, key::SeparatorOption), 3);
    EXPECT_EQ(ReadTicketValue(ticket, key::SeparatorColor), 5);
    EXPECT_EQ(ticket.client(key::SeparatorOption), u"X"_s);
    EXPECT_EQ(ticket.client(key::SeparatorColor), u"X"_s);

    SInt32 option = 0;
    Stock read;
    read.setDescription(u"gone"_s);
    EXPECT_EQ(SyncSeparatorsFromTicket(&ticket, option, read), noErr);
    EXPECT_EQ(option, kSeparatorsPrinted);
    Stock expected;
    expected.setColor(kStockColorPink);
    EXPECT_EQ(read, expected) << "a fresh stock of that colour";
}

TEST(Separators, NoneHaveNoColor)
{
    Ticket ticket;
    EXPECT_EQ(SyncSeparatorsToTicket(&ticket, kSeparatorsNone, Stock()), noErr);
    EXPECT_FALSE(ticket.values().find(key::SeparatorColor));
    ticket.restore(key::SeparatorColor, Number::Index(5), "X");
    SInt32 option = 0;
    Stock stock;
    EXPECT_EQ(SyncSeparatorsFromTicket(&ticket, option, stock), noErr);
    EXPECT_EQ(option, kSeparatorsNone);
    EXPECT_EQ(stock, Stock()) << "the colour is not looked at";
    ticket.restore(key::SeparatorOption, Number::Index(7), "X"); // none that the dialog offers
    EXPECT_EQ(SyncSeparatorsFromTicket(&ticket, option, stock), noErr);
    EXPECT_EQ(option, kSeparatorsNone);
}

TEST(Separators, AMissingColorIsTheStatus)
{
    Ticket ticket;
    SInt32 option = 0;
    Stock stock;
    WriteTicketValue(TicketWriter(ticket, "X"), key::SeparatorOption, kSeparatorsBlank);
    EXPECT_EQ(SyncSeparatorsFromTicket(&ticket, option, stock), kNoSuchTicketEntry);
    EXPECT_EQ(option, kSeparatorsBlank);
    EXPECT_EQ(stock.color(), kUnset);

    EXPECT_EQ(SyncSeparatorsFromTicket(nullptr, option, stock), kMissingArgument);
    EXPECT_EQ(SyncSeparatorsToTicket(nullptr, option, stock), kMissingArgument);
    ticket.restore(key::SeparatorOption, u"2"_s, "X");
    EXPECT_EQ(SyncSeparatorsFromTicket(&ticket, option, stock), noErr);
    EXPECT_EQ(option, kSeparatorsNone) << "a text is no number";
}

TEST(Separators, ThePictureShowsOptionAndColor)
{
    EXPECT_EQ(SeparatorsPicture(kSeparatorsNone, kStockColorRed), u"Paper_TransparencySeparators_NoSeps.gif"_s);
    EXPECT_EQ(SeparatorsPicture(kSeparatorsBlank, kStockColorRed), u"Paper_TransparencySeparators_BlnkSeps-Red.gif"_s);
    EXPECT_EQ(SeparatorsPicture(kSeparatorsPrinted, kStockColorClear),
              u"Paper_TransparencySeparators_PrntdSeps-White.gif"_s);
    EXPECT_EQ(SeparatorsPicture(7, kStockColorRed), QString());
}

} // namespace
} // namespace kesta
