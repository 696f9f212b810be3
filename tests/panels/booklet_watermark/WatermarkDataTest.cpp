#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <limits>

namespace kesta::booklet_watermark {
namespace {

using namespace Qt::StringLiterals;

TEST(WatermarkData, TextsThatDoNotFitLeaveTheFieldAsItWas)
{
    _WatermarkData record;
    ASSERT_TRUE(record.text.set(u"before"_s));
    const QString longest(511, u'x');
    const QString umlauts(256, u'ä'); // 512 bytes of UTF-8
    ReadWatermark({{"textString", umlauts}, {"filename", longest}, {"filePath", QString(8191, u'/')}}, record);
    EXPECT_EQ(record.text.get(), u"before"_s);
    EXPECT_EQ(record.fileName.get(), longest);
    EXPECT_EQ(record.filePath.get().size(), 8191);

    ReadWatermark({{"textString", umlauts.first(255)}, {"filePath", QString(8192, u'/')}}, record);
    EXPECT_EQ(record.text.get().size(), 255);
    EXPECT_EQ(record.filePath.get().size(), 8191);
    EXPECT_FALSE(record.fontName.set(QString(512, u'x')));
}

TEST(WatermarkData, WhatIsMissingOrDoesNotFitStays)
{
    _WatermarkData record;
    record.xOffset = 1.5F;
    record.xPosition = 2.5;
    record.angle = 45;
    record.glyphs = {1, 2, 3};
    const _WatermarkData before = record;

    ReadWatermark({}, record);
    EXPECT_EQ(record, before);
    ReadWatermark({{"xOffset", Number::Float64(1e300)},
                   {"yOffset", "one"},
                   {"xPos", Number::Float64(std::numeric_limits<double>::quiet_NaN())},
                   {"wellColorRed", Number::Float64(std::numeric_limits<double>::infinity())},
                   {"angle", Number::Index(SInt64{1} << 40)},
                   {"scale", Number::Float64(12.5)},
                   {"glyphCount", Number::Index(100)},
                   {"textString", Number::Index(7)}},
                  record);
    EXPECT_EQ(record, before);
}

TEST(WatermarkData, GlyphsAreAsManyAsDataAndCountAllow)
{
    struct Case {
        std::optional<SInt64> count;
        std::vector<std::uint16_t> glyphs;
    };
    const Case cases[] = {{2, {0x0201, 0x0403}},  {1, {0x0201}}, {1'000'000'000, {0x0201, 0x0403}},
                          {{}, {0x0201, 0x0403}}, {0, {}},       {-1, {}}};
    for (const Case& each : cases) {
        Dictionary stored{{"glyphs", QByteArray("\1\2\3\4\5")}};
        if (each.count)
            stored.set("glyphCount", Number::Index(*each.count));
        _WatermarkData record;
        record.glyphs = {9, 9, 9, 9};
        ReadWatermark(stored, record);
        EXPECT_EQ(record.glyphs, each.glyphs) << each.count.value_or(-9);
    }
}

} // namespace
} // namespace kesta::booklet_watermark
