#include "platform/values/PropertyList.h"

#include "platform/values/DateText.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kesta {
namespace {

QByteArray List(const QByteArray& content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + content + "\n</plist>\n";
}

std::optional<Value> Parsed(const QByteArray& content)
{
    const PropertyListResult result = ParsePropertyList(List(content));
    EXPECT_EQ(result.value.has_value(), result.error.isEmpty()) << result.error.toStdString();
    return result.value;
}

TEST(PropertyList, EveryKindIsReadAsWritten)
{
    const Dictionary everything{
        {"array", Array{Value(true), Value(Array{}), Value(Dictionary{{"inner", Number::Index(1)}})}},
        {"boolean", false},
        {"data", QByteArray("\0\1\377 data", 8)},
        {"date", Date{951'827'696}}, // 2000-02-29T12:34:56Z
        {"largest", Number::Index(std::numeric_limits<SInt64>::max())},
        {"real", Number::Float64(-0.1)},
        {"smallest", Number::Index(std::numeric_limits<SInt64>::min())},
        {"text", QStringLiteral(" <&>\"' \t line\n\r\r\n ]]> ü \U0001F600 ")},
        {"", QString()},
    };
    const QByteArray written = WritePropertyList(everything);
    const PropertyListResult read = ParsePropertyList(written);
    ASSERT_TRUE(read.value) << read.error.toStdString();
    EXPECT_EQ(*read.value, Value(everything));
    EXPECT_EQ(WritePropertyList(*read.value), written);
    EXPECT_TRUE(written.contains("<date>2000-02-29T12:34:56Z</date>"));
}

TEST(PropertyList, IsWrittenInOrderOfTheKeys)
{
    const QByteArray expected =
        List("\t<dict>\n\t\t<key>A</key>\n\t\t<true/>\n\t\t<key>a</key>\n\t\t<integer>-5</integer>\n"
             "\t\t<key>\xC3\xA4</key>\n\t\t<real>0.1</real>\n\t</dict>");
    EXPECT_EQ(
        WritePropertyList(Dictionary{{u"ä", Number::Float32(0.1f)}, {"a", Number::SInt32(-5)}, {"A", Value(true)}}),
        expected);
}

TEST(PropertyList, RealsHaveTheFewestDigitsThatReadBack)
{
    for (const Float64 value : {0.1, 1.0 / 3, -0.0, 5e-324, 1.7976931348623157e308, 1e21, 123456789.0}) {
        const std::optional<Value> read = ParsePropertyList(WritePropertyList(Number::Float64(value))).value;
        ASSERT_TRUE(read && read->number());
        EXPECT_EQ(read->number()->as<Float64>(), value);
        EXPECT_EQ(std::signbit(read->number()->as<Float64>().value()), std::signbit(value));
    }
    for (const Float32 value : {0.1f, 280.627441f, 16777216.0f, 3.4028235e38f, 1.7592186e13f, 1e-45f}) {
        const QByteArray written = WritePropertyList(Number::Float32(value));
        EXPECT_EQ(WritePropertyList(ParsePropertyList(written).value.value()), written) << value;
    }
    for (const Float64 value : {HUGE_VAL, -HUGE_VAL}) {
        const QByteArray written = WritePropertyList(Number::Float64(value));
        EXPECT_EQ(ParsePropertyList(written).value, Value(Number::Float64(value))) << written.toStdString();
    }
    const std::optional<Value> noNumber = ParsePropertyList(WritePropertyList(Number::Float64(NAN))).value;
    ASSERT_TRUE(noNumber && noNumber->number());
    EXPECT_TRUE(std::isnan(noNumber->number()->as<Float64>().value()));
}

TEST(PropertyList, WhatXMLCannotHoldIsReplaced)
{
    const Dictionary hostile{
        {u"\x01z", QStringLiteral("a\x1B\uFFFE") + QChar(0xD800) + QStringLiteral("b")},
        {u"\x02z", "loses"},
        {u"\U0001F600", QString(QChar(0xDC00)) + QChar(0)},
    };
    const QByteArray written = WritePropertyList(hostile);
    const PropertyListResult read = ParsePropertyList(written);
    ASSERT_TRUE(read.value) << read.error.toStdString();
    EXPECT_EQ(*read.value, Value(Dictionary{{u"\uFFFDz", QStringLiteral("a\uFFFD\uFFFD\uFFFDb")},
                                            {u"\U0001F600", QStringLiteral("\uFFFD\uFFFD")}}));
    EXPECT_EQ(WritePropertyList(*read.value), written);
}

TEST(PropertyList, AcceptsWhatOtherWritersWrite)
{
    EXPECT_EQ(ParsePropertyList("\xEF\xBB\xBF<!DOCTYPE plist PUBLIC \"-//X//DTD 1.0//EN\" "
                                "\"http://www.example.com/a.dtd\">\r\n<!-- c --><plist><true></true></plist>")
                  .value,
              Value(true));
    EXPECT_EQ(Parsed("<integer> +7 </integer>"), Value(Number::Index(7)));
    EXPECT_EQ(Parsed("<real>-Infinity</real>"), Value(Number::Float64(-HUGE_VAL)));
    EXPECT_EQ(Parsed("<real>1.</real>"), Value(Number::Float64(1)));
    EXPECT_EQ(Parsed("<data>\n\tAAEC\n\t/w==\n</data>"), Value(QByteArray("\0\1\2\xFF", 4)));
    EXPECT_EQ(Parsed("<string>a<!-- c -->b<![CDATA[<&]]>&#x41;</string>"), Value("ab<&A"));
    EXPECT_EQ(Parsed("<string/>"), Value(""));
}

struct Refusal {
    const char* content; // of the second and following lines
    const char* error;
};

TEST(PropertyList, RefusalsSayWhereAndWhy)
{
    const Refusal refusals[] = {
        {"", "the property list has no value"},
        {"<true/>\n<true/>", "more than one value"},
        {"words", "text outside of a value"},
        {"<set/>", "unknown element set"},
        {"<string\nid='1'>a</string>", "an element with attributes"},
        {"<dict><key>a</key></dict>", "a key without a value"},
        {"<dict><key>a</key><key>b</key></dict>", "a key without a value"},
        {"<dict><string>a</string></dict>", "a value without a key"},
        {"<dict><key>a</key><true/><key>a</key><true/></dict>", "the key \"a\" stands twice"},
        {"<array><key>a</key></array>", "unknown element key"},
        {"<string><true/></string>", "an element within a text"},
        {"<string>&unheard;</string>", ""},
        {"<string>&#0;</string>", ""},
        {"<true>1</true>", "text in a true or false"},
        {"<integer>9223372036854775808</integer>", "not an integer"},
        {"<integer></integer>", "not an integer"},
        {"<integer>+-5</integer>", "not an integer"},
        {"<integer>0x10</integer>", "not an integer"},
        {"<integer>\xD9\xA3</integer>", "not an integer"},
        {"<real>1e999</real>", "out of range"},
        {"<real>--1</real>", "not a number"},
        {"<real>1,5</real>", "not a number"},
        {"<real>+nan</real>", "not a number"},
        {"<date>2031-02-29T00:00:00Z</date>", "not a date"},
        {"<date>2031-02-28T24:00:00Z</date>", "not a date"},
        {"<date>2031-02-28</date>", "not a date"},
        {"<date>2031-02-28T00:00:00Zulu</date>", "not a date"},
        {"<date>0000-01-01T00:00:00Z</date>", "not a date"},
        {"<data>AAE</data>", "not base64"},
        {"<data>AA=E</data>", "not base64"},
        {"<data>\xC3\x84\xC3\x84</data>", "not base64"},
        {"<string>open", ""},
    };
    for (const Refusal& refusal : refusals) {
        const PropertyListResult result = ParsePropertyList(List(refusal.content));
        EXPECT_FALSE(result.value) << refusal.content;
        EXPECT_TRUE(result.error.contains(QLatin1String(refusal.error)))
            << refusal.content << result.error.toStdString();
        EXPECT_TRUE(result.error.startsWith(u"line ")) << result.error.toStdString();
        EXPECT_FALSE(result.error.contains(u'\n'));
    }
    EXPECT_TRUE(ParsePropertyList(List("<array>\n  <true/><set/>\n</array>")).error.startsWith(u"line 4, column 16: "))
        << ParsePropertyList(List("<array>\n  <true/><set/>\n</array>")).error.toStdString();
}

TEST(PropertyList, RefusesOtherDocuments)
{
    const QByteArray bomb = "<!DOCTYPE plist [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
                            "<plist><string>&b;</string></plist>";
    const QByteArray longDoctype = "<!DOCTYPE plist \"" + QByteArray(1000, 'x') + "\"><plist><true/></plist>";
    for (const QByteArray& document :
         {QByteArray(), QByteArray("bplist00"), QByteArray("<html/>"), QByteArray("<plist><true/></plist><plist/>"),
          QByteArray("<plist><true/></plist>words"), QByteArray("<!DOCTYPE html><plist><true/></plist>"),
          QByteArray("<!doctype plist><plist><true/></plist>"), QByteArray("<!DOCTYPE plist []><plist><true/></plist>"),
          QByteArray("<!DOCTYPE plist><!DOCTYPE plist []><plist><true/></plist>"), bomb, longDoctype,
          QByteArray("<plist><string>\xFF\xFE</string></plist>"),
          QByteArray("<plist><string>\0</string></plist>", 33)}) {
        const PropertyListResult result = ParsePropertyList(document);
        EXPECT_FALSE(result.value) << document.toStdString();
        EXPECT_TRUE(result.error.startsWith(u"line 1, column ")) << result.error.toStdString();
    }
    EXPECT_TRUE(
        ParsePropertyList("<?xml version=\"1.0\"?>\n <!DOCTYPE html>").error.startsWith(u"line 2, column 2: only"));
}

TEST(PropertyList, WorkIsBounded)
{
    const auto nested = [](int depth) {
        return List(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    };
    EXPECT_TRUE(ParsePropertyList(nested(100)).value);
    EXPECT_TRUE(ParsePropertyList(nested(101)).error.endsWith(u"nested too deeply"));
    EXPECT_FALSE(ParsePropertyList(List(QByteArray("<array>").repeated(1'000'000))).value);

    QByteArray attributes;
    for (int i = 0; i < 200'000; ++i)
        attributes += " a" + QByteArray::number(i) + "='>'"; // minutes for the XML reader
    EXPECT_EQ(ParsePropertyList("<plist" + attributes + "><true/></plist>").error,
              QStringLiteral("line 1, column 1: an element with attributes"));

    const QByteArray three = List("<array><true/><true/></array>");
    EXPECT_TRUE(ParsePropertyList(three, {.values = 3}).value);
    EXPECT_TRUE(ParsePropertyList(three, {.values = 2}).error.endsWith(u"too many values"));
    EXPECT_TRUE(ParsePropertyList(three, {.bytes = three.size()}).value);
    EXPECT_TRUE(ParsePropertyList(three, {.bytes = three.size() - 1}).error.contains(u"larger than"));
}

TEST(DateText, CoversTheYearsOneToNineThousand)
{
    EXPECT_EQ(TextFromDate({0}), QStringLiteral("1970-01-01T00:00:00Z"));
    EXPECT_EQ(TextFromDate({-1}), QStringLiteral("1969-12-31T23:59:59Z"));
    EXPECT_EQ(TextFromDate({std::numeric_limits<SInt64>::max()}), QStringLiteral("9999-12-31T23:59:59Z"));
    EXPECT_EQ(TextFromDate({std::numeric_limits<SInt64>::min()}), QStringLiteral("0001-01-01T00:00:00Z"));
    EXPECT_EQ(DateFromText(u"9999-12-31T23:59:59Z"), Date{253'402'300'799});
    EXPECT_EQ(DateFromText(u"0001-01-01T00:00:00Z"), Date{-62'135'596'800});
}

} // namespace
} // namespace kesta
