#include "panels/paper_output/DelayedPrintTime.h"
#include "panels/paper_output/PasscodeRules.h"
#include "panels/paper_output/SavedJobRules.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

TEST(PasscodeRules, OnlyALongEnoughPasscodeThatIsTypedTwiceIsTaken)
{
    EXPECT_EQ(JudgeSecurePrintPasscode(u"1234"_s, u"1234"_s), PasscodeVerdict::Accepted);
    EXPECT_EQ(JudgeSecurePrintPasscode(u"1234"_s, u"12345"_s), PasscodeVerdict::Refused);
    EXPECT_EQ(JudgeSecurePrintPasscode(u"1234"_s, {}), PasscodeVerdict::Refused);
    EXPECT_EQ(JudgeSecurePrintPasscode({}, {}), PasscodeVerdict::MakeOne);
    EXPECT_EQ(JudgeSecurePrintPasscode(u"123"_s, u"123"_s), PasscodeVerdict::MakeOne);
}

TEST(PasscodeRules, WhatCanNotBeTypedAtThePrinterIsRefused)
{
    for (const QString& stored : {u"12a4"_s, u"٣٣٣٣"_s, u"12345678901"_s}) {
        EXPECT_EQ(JudgeSecurePrintPasscode(stored, stored), PasscodeVerdict::Refused) << stored.toStdString();
        EXPECT_EQ(JudgeSavedJobPasscode(stored, stored), PasscodeVerdict::Refused) << stored.toStdString();
    }
}

TEST(PasscodeRules, ASavedJobGetsAPasscodeOfItsOwnWhateverTheConfirmationSays)
{
    EXPECT_EQ(JudgeSavedJobPasscode({}, u"1234"_s), PasscodeVerdict::MakeOne);
    EXPECT_EQ(JudgeSavedJobPasscode(u"1234"_s, u"4321"_s), PasscodeVerdict::Refused);
    EXPECT_EQ(JudgeSavedJobPasscode(u"1234"_s, {}), PasscodeVerdict::Refused);
    EXPECT_EQ(JudgeSavedJobPasscode(u"1234"_s, u"1234"_s), PasscodeVerdict::Accepted);
    EXPECT_EQ(JudgeSavedJobPasscode(u"123"_s, u"123"_s), PasscodeVerdict::Refused);
}

TEST(PasscodeRules, MadePasscodesHaveFourDigitsAndComeFromTheRandomSource)
{
    test::LoadedDice dice(9000 * 100);
    EXPECT_EQ(MakePasscode(), u"1000"_s);
    dice.number += 8999;
    EXPECT_EQ(MakePasscode(), u"9999"_s);
    dice.number += 1;
    EXPECT_EQ(MakePasscode(), u"1000"_s);
}

constexpr SInt64 kHour = 3600;
constexpr SInt64 kDay = 24 * kHour;
constexpr SInt64 kFirstOf1970 = 2'082'844'800; // since 1904 began

using test::StoppedClock;

TEST(DelayedPrintTime, ATimeThatIsOverTodayMeansTomorrow)
{
    constexpr SInt64 today = 20'000 * kDay; // after 1970 began
    constexpr int eight = 8 * kHour;
    EXPECT_EQ(NextMomentAt(eight, StoppedClock(today + 9 * kHour, 0)), kFirstOf1970 + today + kDay + eight);
    EXPECT_EQ(NextMomentAt(eight, StoppedClock(today + 7 * kHour, 0)), kFirstOf1970 + today + eight);
    EXPECT_EQ(NextMomentAt(eight, StoppedClock(today + 8 * kHour, 0)), kFirstOf1970 + today + eight);
    EXPECT_EQ(NextMomentAt(eight, StoppedClock(today + 8 * kHour + 1, 0)), kFirstOf1970 + today + kDay + eight);
    EXPECT_EQ(NextMomentAt(0, StoppedClock(today + 1, 0)), kFirstOf1970 + today + kDay);
}

TEST(DelayedPrintTime, TodayIsTheDayOnTheWallClock)
{
    constexpr SInt64 midnight = 20'000 * kDay; // UTC
    // 23:00 UTC is 01:00 of the next day two hours further east, and 13:00 of the same day ten hours further west.
    EXPECT_EQ(NextMomentAt(0, StoppedClock(midnight + 23 * kHour, 2 * kHour)), kFirstOf1970 + midnight + 2 * kDay);
    EXPECT_EQ(NextMomentAt(14 * kHour, StoppedClock(midnight + 23 * kHour, -10 * kHour)),
              kFirstOf1970 + midnight + 14 * kHour);
}

TEST(DelayedPrintTime, ADelayIsToldWithItsDay)
{
    constexpr SInt64 nine = 20'000 * kDay + 9 * kHour;
    const Bundle bundle = test::BundleWithAllTexts();
    const auto told = [&](SInt64 moment) { return DelayText(bundle, moment, StoppedClock(nine, 0)); };
    EXPECT_EQ(told(20 * kHour), u"Delayed Today In Summary 20:00"_s);
    EXPECT_EQ(told(8 * kHour + 30), u"Delayed Tomorrow In Summary 08:00:30"_s);
    EXPECT_EQ(told(9 * kHour), u"Delayed Today In Summary 09:00"_s);
    EXPECT_EQ(told(0), u"Delayed Tomorrow In Summary 00:00"_s);
}

TEST(DelayedPrintTime, EveryStoredMomentHasATimeOfDay)
{
    EXPECT_EQ(TimeOfDay(0), 0);
    EXPECT_EQ(TimeOfDay(kFirstOf1970 + 5 * kHour + 7), 5 * kHour + 7);
    EXPECT_EQ(TimeOfDay(-1), kDay - 1);
    for (const SInt64 extreme : {std::numeric_limits<SInt64>::min(), std::numeric_limits<SInt64>::max()}) {
        EXPECT_GE(TimeOfDay(extreme), 0);
        EXPECT_LT(TimeOfDay(extreme), kDay);
    }
}

TEST(SavedJobRules, JobNamesAreLatinWithoutWhatFileSystemsRefuse)
{
    const QString allowed = JobNameCharacters();
    EXPECT_EQ(allowed.size(), (126 - 32 + 1) + (255 - 160 + 1) - 10);
    for (const QChar c : u" ~Aé\u00a0ÿ%&'"_s)
        EXPECT_TRUE(allowed.contains(c)) << static_cast<int>(c.unicode());
    for (const QChar c : u"\"*/:;<>?\\|\t\u007f\u009f\u0100€"_s)
        EXPECT_FALSE(allowed.contains(c)) << static_cast<int>(c.unicode());
}

TEST(SavedJobRules, AHistoryOffersOnlyWhatCouldBeTyped)
{
    const QString longest(kLongestJobName, u'x');
    EXPECT_EQ(UsableJobNames({u"Report"_s, u"a/b"_s, longest, longest + u'x', u"日報"_s, u"Entwürfe"_s}),
              (std::vector{u"Report"_s, longest, u"Entwürfe"_s}));
}

TEST(SavedJobRules, WhatATicketMaySayHasAButtonAndAPicture)
{
    EXPECT_EQ(SaveOptionFor(2), 2);
    for (const CFIndex disposition : {CFIndex(1), CFIndex(0), CFIndex(3), CFIndex(-7), CFIndex(1) << 40})
        EXPECT_EQ(SaveOptionFor(disposition), 1) << disposition;

    EXPECT_STREQ(JobFormatPicture(1), "JobType_JobFormat_TIFF.gif");
    EXPECT_STREQ(JobFormatPicture(5), "JobType_JobFormat_FRFDRI.gif");
    for (const CFIndex format : {CFIndex(0), CFIndex(6), CFIndex(-1), std::numeric_limits<CFIndex>::max()})
        EXPECT_STREQ(JobFormatPicture(format), "OutputColor_PrnDef.gif") << format;
}

} // namespace
} // namespace kesta
