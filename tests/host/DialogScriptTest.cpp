#include "host/script/DialogScript.h"
#include "host/script/ScriptKeys.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

ScriptStep OnlyStep(const char* script)
{
    const DialogScript parsed = ParseDialogScript(script);
    EXPECT_EQ(parsed.error, QString()) << script;
    EXPECT_EQ(parsed.steps.size(), 1u) << script;
    return parsed.steps.size() == 1 ? parsed.steps.front() : ScriptStep{};
}

TEST(DialogScript, TellsNamesNumbersAndValuesApart)
{
    using enum ScriptVerb;
    const auto cases = std::to_array<std::pair<const char*, ScriptStep>>({
        {"panel 2", {.line = 1, .verb = Panel, .target = {.number = 2}}},
        {"panel \"2\"", {.line = 1, .verb = Panel, .target = {.text = u"2"_s}}},
        {"choose \"Mirrored Output:\" \"A > B\"",
         {.line = 1, .verb = Choose, .target = {.text = u"Mirrored Output:"_s}, .item = {.text = u"A > B"_s}}},
        {"choose #16 =-5", {.line = 1, .verb = Choose, .target = {.number = 16}, .item = {.value = -5}}},
        {"choose \"#16\" \"=5\"", {.line = 1, .verb = Choose, .target = {.text = u"#16"_s}, .item = {.text = u"=5"_s}}},
        {"type Passcode \"12\\\"\\\\\\t34\" # why",
         {.line = 1, .verb = Type, .target = {.text = u"Passcode"_s}, .text = u"12\"\\\t34"_s}},
        {"type #3 \"\"", {.line = 1, .verb = Type, .target = {.number = 3}}},
        {"select \"Special Pages\" 1 3",
         {.line = 1, .verb = Select, .target = {.text = u"Special Pages"_s}, .numbers = {1, 3}}},
        {"select List", {.line = 1, .verb = Select, .target = {.text = u"List"_s}}},
        {"expect-value Copies 3",
         {.line = 1, .verb = ExpectValue, .target = {.text = u"Copies"_s}, .item = {.text = u"3"_s}}},
        {"expect-value Pages \"\"", {.line = 1, .verb = ExpectValue, .target = {.text = u"Pages"_s}}},
        {"screenshot \"a b.png\"", {.line = 1, .verb = Screenshot, .text = u"a b.png"_s}},
        {"  cancel\r\n", {.line = 1, .verb = Cancel}},
        {"cancel 3", {.line = 1, .verb = Cancel, .status = 3}},
    });
    for (const auto& [script, expected] : cases)
        EXPECT_TRUE(OnlyStep(script) == expected) << script;
}

TEST(DialogScript, CommentsAndEmptyLinesKeepTheLineNumbers)
{
    const DialogScript script = ParseDialogScript("# a script\n\n#16 is no action\nprint # and out\n   \ncancel");
    ASSERT_EQ(script.steps.size(), 2u);
    EXPECT_EQ(script.steps[0].line, 4);
    EXPECT_EQ(script.steps[1].line, 6);
    EXPECT_TRUE(ParseDialogScript("").steps.empty());
}

TEST(DialogScript, RefusesWithLineAndReason)
{
    const auto cases = std::to_array<std::pair<QByteArray, const char*>>({
        {"print\nfly", "script line 2: \"fly\" is not an action"},
        {"\"print\"", "script line 1: \"print\" is not an action"},
        {"print now", "script line 1: this action is written: print"},
        {"choose A", "script line 1: this action is written: choose CONTROL ITEM"},
        {"press \"OK", "script line 1: the closing quote is missing"},
        {"press \"OK\\", "script line 1: a backslash stands before a quote, a backslash, n or t only"},
        {"press \"O\\K\"", "script line 1: a backslash stands before a quote, a backslash, n or t only"},
        {"press \"O\"K", "script line 1: a blank is missing after the closing quote"},
        {"press \"&:\"", "script line 1: a name is empty"},
        {"expect \"\"", "script line 1: a text is empty"},
        {"choose #1x A", "script line 1: \"1x\" is not a number"},
        {"choose A =99999999999", "script line 1: \"99999999999\" is not a number"},
        {"select A 0", "script line 1: rows count from 1"},
        {"cancel now", "script line 1: \"now\" is not a number"},
        {"check A yes", "script line 1: \"yes\" is neither on nor off"},
        {"sync up", "script line 1: \"up\" is neither from-tickets nor to-tickets"},
        {"command Stp", "script line 1: a command has four characters"},
        {"key Hyper+A", "script line 1: \"Hyper+A\" is not the name of a key"},
        {QByteArray("expect a\0b", 10), "script line 1: the line holds a null character"},
        {"expect \xff", "script line 1: the text is not UTF-8"},
        {"summary\nexpect " + QByteArray(20000, 'x'), "script line 2: the line is too long"},
        {"select A" + QByteArray(" 1").repeated(2000), "script line 1: too many words"},
        {QByteArray(kLargestScript + 1, '\n'), "script line 1: the script is larger than 1 MiB"},
    });
    for (const auto& [script, error] : cases) {
        const DialogScript parsed = ParseDialogScript(script);
        EXPECT_EQ(parsed.error.toStdString(), error);
        EXPECT_TRUE(parsed.steps.empty());
    }
}

TEST(DialogScript, KeysByName)
{
    const auto cases = std::to_array<std::pair<const char*, ScriptKey>>({
        {"return", {.key = Qt::Key_Return}},
        {"a", {.key = Qt::Key_A, .text = u"a"_s}},
        {"Shift+a", {.key = Qt::Key_A, .modifiers = Qt::ShiftModifier, .text = u"A"_s}},
        {"Ctrl+a", {.key = Qt::Key_A, .modifiers = Qt::ControlModifier}},
        {"Shift+Tab", {.key = Qt::Key_Backtab, .modifiers = Qt::ShiftModifier}},
        {"+", {.key = Qt::Key_Plus, .text = u"+"_s}},
        {"Ctrl++", {.key = Qt::Key_Plus, .modifiers = Qt::ControlModifier}},
        {"ctrl+PAGEUP", {.key = Qt::Key_PageUp, .modifiers = Qt::ControlModifier}},
        {"F12", {.key = Qt::Key_F12}},
        {"Esc", {.key = Qt::Key_Escape}},
        {"Escape", {.key = Qt::Key_Escape}},
        {"Delete", {.key = Qt::Key_Delete}},
        {",", {.key = Qt::Key_Comma, .text = u","_s}},
        {"7", {.key = Qt::Key_7, .text = u"7"_s}},
        {"Space", {.key = Qt::Key_Space, .text = u" "_s}},
    });
    for (const auto& [name, expected] : cases)
        EXPECT_TRUE(ScriptKeyNamed(QString::fromLatin1(name)) == expected) << name;
    for (const QString& name : {u""_s, u"Ctrl+"_s, u"+a"_s, u"Ctrl"_s, u"NoKey"_s, u"a, b"_s, u"Hyper+a"_s})
        EXPECT_FALSE(ScriptKeyNamed(name)) << name.toStdString();
}

TEST(DialogScript, NamesCompareAsPeopleReadThem)
{
    const QString plain = ComparableName(u"Mirrored Output"_s);
    for (const QString& shown : {u"&Mirrored Output:"_s, u"mirrored output"_s, u"  Mirrored  Out&put :"_s,
                                 u"Mirrored Output(&M)"_s, u"Mirrored Output\uFF1A"_s})
        EXPECT_EQ(ComparableName(shown), plain);
    EXPECT_NE(ComparableName(u"Cut && Fold"_s), ComparableName(u"Cut Fold"_s));
    EXPECT_EQ(ComparableName(u"&"_s), QString());
}

} // namespace
} // namespace kesta::host
