#include "toolkit/controls/TypedValueHistory.h"

#include "platform/values/Value.h"

#include <gtest/gtest.h>

namespace kesta {
namespace {

using Texts = std::vector<QString>;

TEST(TypedValueHistory, IsNewestFirstWithoutRepetitionsAndTenLong)
{
    Dictionary preferences{{"other", Array{Value("kept")}}};
    EXPECT_TRUE(TypedValueHistory(preferences, "names").empty());
    for (int i = 1; i <= 12; ++i)
        RememberTypedValue(preferences, "names", QString::number(i));
    Texts expected;
    for (int i = 12; i > 2; --i)
        expected.push_back(QString::number(i));
    EXPECT_EQ(TypedValueHistory(preferences, "names"), expected);
    EXPECT_EQ(preferences.array("names")->size(), 10U) << "no more is kept, either";

    RememberTypedValue(preferences, "names", QStringLiteral("5"));
    const Texts history = TypedValueHistory(preferences, "names");
    EXPECT_EQ(history.front(), QStringLiteral("5"));
    EXPECT_EQ(history.size(), 10U);
    EXPECT_EQ(std::ranges::count(history, QStringLiteral("5")), 1);

    RememberTypedValue(preferences, "names", QString());
    EXPECT_EQ(TypedValueHistory(preferences, "names"), history);
    EXPECT_EQ(TypedValueHistory(preferences, "other"), Texts{QStringLiteral("kept")});
}

TEST(TypedValueHistory, ReadsOnlyWhatCanHaveBeenTyped)
{
    Array stored{Value("a"), Value(Number::Index(1)), Value(""), Value("a"), Value(Array())};
    for (int i = 0; i < 20; ++i)
        stored.emplace_back(QString::number(i));
    Dictionary preferences;
    preferences.set("names", stored);
    preferences.set("text", "no array");
    const Texts history = TypedValueHistory(preferences, "names");
    EXPECT_EQ(history.size(), 10U);
    EXPECT_EQ(history[0], QStringLiteral("a"));
    EXPECT_EQ(history[1], QStringLiteral("0"));
    EXPECT_TRUE(TypedValueHistory(preferences, "text").empty());
}

} // namespace
} // namespace kesta
