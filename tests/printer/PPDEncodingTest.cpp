#include "printer/PPDEncoding.h"
#include "printer/PPDUtilities.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <cups/ppd.h>

#include <array>

namespace kesta {
namespace {

using test::CurrentPrinter;
using test::PPDVariant;

struct Case {
    const char* declared; // in the file; null: no line at all
    const char* bytes;
    StringEncoding encoding;
    const char16_t* text;
};

constexpr auto kCases = std::to_array<Case>({
    {"ISOLatin1",
     "Gr\xF6\xDF"
     "e",
     StringEncoding::ISOLatin1, u"Größe"},
    {"ISOLatin2", "\xA9\xED\xF8ka", StringEncoding::ISOLatin2, u"Šířka"},
    {"ISOLatin5", "Ka\xF0\xFDt", StringEncoding::ISOLatin5, u"Kağıt"},
    {"JIS83-RKSJ", "\x97\x70\x8E\x86\x83\x5C", StringEncoding::ShiftJIS, u"用紙ソ"},
    {"UTF-8",
     "Gr\xC3\xB6\xC3\x9F"
     "e",
     StringEncoding::UTF8, u"Größe"},
    {"UTF8", "\xE7\x94\xA8\xE7\xB4\x99", StringEncoding::UTF8, u"用紙"},
    {nullptr,
     "Gr\x9A\xA7"
     "e",
     StringEncoding::MacRoman, u"Größe"},
    {"MacStandard",
     "Gr\x9A\xA7"
     "e",
     StringEncoding::MacRoman, u"Größe"},
    {"Klingon",
     "Gr\x9A\xA7"
     "e",
     StringEncoding::MacRoman, u"Größe"},
    {"isolatin1",
     "Gr\x9A\xA7"
     "e",
     StringEncoding::MacRoman, u"Größe"},
    {"WindowsANSI", "\x8E\x9A", StringEncoding::MacRoman, u"éö"},
});

TEST(PPDEncoding, TextsReadAsTheFileDeclaresThem)
{
    for (const Case& each : kCases) {
        SCOPED_TRACE(each.declared ? each.declared : "no declaration");
        PPDVariant ppd;
        ppd.replaceLines("*LanguageEncoding:", each.declared ? QByteArray("*LanguageEncoding: ") + each.declared : "");
        ppd.setChoiceText("Jog", "EndOfSet", each.bytes);
        const CurrentPrinter printer(ppd);
        EXPECT_EQ(PPDGetEncoding(PPDGetCurrent()), each.encoding);
        EXPECT_EQ(PPDCopyChoiceText(PPDGetCurrent(), "Jog", "EndOfSet"), QString::fromUtf16(each.text));
        EXPECT_EQ(PPDCopyDefaultChoice(PPDGetCurrent(), "Jog"), QStringLiteral("None"));
    }
}

TEST(PPDEncoding, BytesThatAreNoTextDoNoHarm)
{
    PPDVariant ppd;
    ppd.setChoiceText("Jog", "EndOfSet", "Off\xFFset").setDefault("Jog", "No\xFFne");
    const CurrentPrinter printer(ppd);
    EXPECT_EQ(PPDCopyChoiceText(PPDGetCurrent(), "Jog", "EndOfSet"), QStringLiteral("Off\uFFFDset"));
    EXPECT_EQ(PPDCopyDefaultChoice(PPDGetCurrent(), "Jog"), std::nullopt);
    EXPECT_EQ(PPDGetEncoding(nullptr), StringEncoding::MacRoman);

    PPDVariant japanese;
    japanese.replaceLines("*LanguageEncoding:", "*LanguageEncoding: JIS83-RKSJ");
    japanese.setChoiceText("Jog", "EndOfSet", "Off\x97");
    const CurrentPrinter other(japanese);
    EXPECT_TRUE(PPDCopyChoiceText(PPDGetCurrent(), "Jog", "EndOfSet")->startsWith(QStringLiteral("Off")));
}

} // namespace
} // namespace kesta
