#include "pde/interface/JobTypeCheck.h"
#include "pde/ticket/LocalizedText.h"
#include "pde/ticket/TicketUtilities.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QLocale>

#include <limits>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

TEST(TicketHelpers, NumbersOfADictionary)
{
    Dictionary dictionary{{"text", "5"}, {"half", Number::Float64(2.5)}, {"whole", Number::Float64(2)}};
    WriteTicketValue(dictionary, "index", -7);
    EXPECT_EQ(*dictionary.find("index"), Value(Number::Index(-7))) << "stored with the index type";
    EXPECT_EQ(GetCFIndexFromCFDictionary(dictionary, "index"), -7);
    EXPECT_EQ(GetCFIndexFromCFDictionary(dictionary, "whole"), 2);
    for (const char* key : {"text", "half", "none"})
        EXPECT_EQ(GetCFIndexFromCFDictionary(dictionary, key), std::nullopt) << key;

    WriteTicketValue(dictionary, "big", CFIndex{1} << 40);
    EXPECT_EQ(CFDictionaryGetNumber<SInt32>(dictionary, "big"), std::nullopt) << "does not fit";
}

TEST(TicketHelpers, ANestedDictionaryIsMadeOnceAndCopiedDeep)
{
    Dictionary dictionary{{"nested", "in the way"}};
    Dictionary& nested = CFDictionaryGetDictionaryOrCreate(dictionary, "nested");
    CFDictionaryGetDictionaryOrCreate(dictionary, "a second one"); // must not move the first
    nested.set("a", true);
    CFDictionaryGetDictionaryOrCreate(dictionary, "nested").set("b", true);
    const Dictionary copy = dictionary;
    nested.remove("a");
    EXPECT_EQ(*copy.dictionary("nested"), (Dictionary{{"a", true}, {"b", true}}));
}

TEST(TicketHelpers, CountDigits)
{
    EXPECT_EQ(CountDigits(0), 1);
    EXPECT_EQ(CountDigits(9), 1);
    EXPECT_EQ(CountDigits(999), 3);
    EXPECT_EQ(CountDigits(-1000), 4);
    EXPECT_EQ(CountDigits(std::numeric_limits<CFIndex>::min()), 19);
}

TEST(TicketHelpers, TheTicketOfASessionOrWhyNot)
{
    PrintSession session;
    EXPECT_EQ(GetTicketFromSession(session, kPMPrintSettingsTicket).status, kNoSuchTicket);
    {
        const Ticket ticket;
        PMSessionSetDataInSession(session, kPMPrintSettingsTicket, ticket.reference());
        EXPECT_EQ(GetTicketFromSession(session, kPMPrintSettingsTicket).ticket, &ticket);
        EXPECT_EQ(GetTicketFromSession(session, kPMPageFormatTicket).ticket, nullptr);
    }
    const auto [gone, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    EXPECT_EQ(gone, nullptr);
    EXPECT_EQ(status, kNoSuchTicket);
}

TEST(LocalizedText, PlaceholdersGoWhereATranslatorPutThem)
{
    EXPECT_EQ(FormatText(u"%2 of %1, %2", {u"4"_s, u"10"_s}), u"10 of 4, 10");
    EXPECT_EQ(FormatText(u"%1%2", {u"%2"_s, u"x"_s}), u"%2x") << "an argument is no format";
    EXPECT_EQ(FormatText(u"100 % of %3, %0 %", {u"a"_s}), u"100 % of %3, %0 %") << "without an argument it stays";
    EXPECT_EQ(LocalizedFormat(Bundle(), "missing", {u"a"_s}), u"STRING NOT FOUND");
}

TEST(LocalizedText, NumbersWithDecimalsFollowTheLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(u"de_DE"_s));
    EXPECT_EQ(CreateLocalizedCFStringFromNumberWithDecimals(-123456, 2), u"-1.234,56");
    EXPECT_EQ(CreateLocalizedCFStringFromNumberWithDecimals(5, 3), u"0,005");
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(CreateLocalizedCFStringFromNumberWithDecimals(70, 1), u"7.0");
    EXPECT_EQ(CreateLocalizedCFStringFromNumberWithDecimals(7, -1), u"7");
    QLocale::setDefault(before);
}

TEST(JobTypeCheck, TheLastRegistrationCountsUntilItEnds)
{
    EXPECT_EQ(GetJobTypeCheck(), nullptr);
    std::optional<JobTypeCheckRegistration> first(std::in_place, JobTypeCheck{.jobType = [] { return 1; }});
    {
        const JobTypeCheckRegistration second(JobTypeCheck{.jobType = [] { return 2; }});
        EXPECT_EQ(GetJobTypeCheck()->jobType(), 2);
        first.reset();
        EXPECT_EQ(GetJobTypeCheck()->jobType(), 2) << "the first one takes only its own away";
    }
    EXPECT_EQ(GetJobTypeCheck(), nullptr);
}

} // namespace
} // namespace kesta
