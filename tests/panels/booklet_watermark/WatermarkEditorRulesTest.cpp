#include "panels/booklet_watermark/watermark/WatermarkEditorRules.h"
#include "panels/booklet_watermark/watermark/FontListRules.h"

#include "support/TestTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::booklet_watermark {
namespace {

_WatermarkData OnLetter(SInt32 units = kInches)
{
    _WatermarkData record;
    record.pageWidth = 612;
    record.pageHeight = 792;
    record.units = units;
    PrepareForEditor(record);
    record.text.set(u"DRAFT"_s);
    return record;
}

TEST(WatermarkEditorRules, ANewWatermarkHasItsDefaultsAndAnEditedOneComesWithinTheLimits)
{
    _WatermarkData record = OnLetter();
    EXPECT_EQ(record.fontName.get(), u"ArialMT"_s);
    EXPECT_EQ(record.wellColor, (WatermarkColor{0, 0, 1, 1}));
    EXPECT_EQ(record.fontColor, record.wellColor);
    const SInt32 numbers[] = {record.fontSize, record.angle, record.density, record.scale, record.isText};
    const SInt32 expected[] = {72, 45, 25, 100, 1};
    EXPECT_TRUE(std::ranges::equal(numbers, expected));

    record.angle = -1000;
    record.density = 200;
    record.scale = 0;
    record.fontSize = 5000;
    record.units = 7;
    record.xOffset = -9;
    record.yOffset = 0.123F;
    PrepareForEditor(record);
    const SInt32 limited[] = {record.fontSize, record.angle, record.density, record.scale, record.units};
    const SInt32 limits[] = {1000, -360, 100, 1, kInches};
    EXPECT_TRUE(std::ranges::equal(limited, limits));
    EXPECT_FLOAT_EQ(record.xOffset, -4.2F);
    EXPECT_FLOAT_EQ(record.yOffset, 0.123F) << "what is within stays exact";

    record.text.set({});
    record.fileName.set(u"logo.png"_s);
    PrepareForEditor(record);
    EXPECT_EQ(record.isText, 0);
}

TEST(WatermarkEditorRules, OffsetsAreShownInTenthsOfAnInchOrWholeMillimetres)
{
    EXPECT_EQ(GreatestOffset(612, kInches), 42);
    EXPECT_EQ(GreatestOffset(792, kInches), 55);
    EXPECT_EQ(GreatestOffset(612, kMillimetres), 107);
    EXPECT_EQ(ShownOffset(-0.55F, kInches), -6);
    EXPECT_EQ(ShownOffset(1, kMillimetres), 25);
    for (const SInt32 units : {kInches, kMillimetres}) {
        for (SInt32 shown = -400; shown <= 400; ++shown)
            EXPECT_EQ(ShownOffset(OffsetFromShown(shown, units), units), shown) << units;
    }
}

TEST(WatermarkEditorRules, DraggingKeepsToWholeUnitsToThePageAndSnapsToItsMiddle)
{
    const _WatermarkData before = OnLetter();
    _WatermarkData record = before;
    MoveText(record, before, {36.5, -100});
    EXPECT_FLOAT_EQ(record.xOffset, 0.5F);
    EXPECT_FLOAT_EQ(record.yOffset, -1.4F);
    MoveText(record, before, {3.9, 5});
    EXPECT_EQ(record.xOffset, 0) << "4 points are near enough";
    EXPECT_FLOAT_EQ(record.yOffset, 0.1F);
    MoveText(record, before, {1e6, -1e6});
    EXPECT_FLOAT_EQ(record.xOffset, 4.2F);
    EXPECT_FLOAT_EQ(record.yOffset, -5.5F);

    _WatermarkData metric = OnLetter(kMillimetres);
    NudgeText(metric, 1, -2);
    EXPECT_FLOAT_EQ(metric.xOffset, static_cast<Float32>(1 / 25.4));
    EXPECT_FLOAT_EQ(metric.yOffset, static_cast<Float32>(-2 / 25.4));
    for (int i = 0; i < 200; ++i)
        NudgeText(metric, 1, 0);
    EXPECT_EQ(ShownOffset(metric.xOffset, kMillimetres), 107);
}

TEST(WatermarkEditorRules, TurningStopsAtTheLimitsAndGoesInStepsWithShift)
{
    _WatermarkData record = OnLetter();
    const auto turned = [&](double by, Turning turning) {
        TurnText(record, 45, by, turning);
        return record.angle;
    };
    EXPECT_EQ(turned(10.4, Turning::Free), 55);
    EXPECT_EQ(turned(10.4, Turning::InSteps), 60);
    EXPECT_EQ(turned(-50, Turning::InSteps), 0);
    EXPECT_EQ(turned(400, Turning::Free), 360);
    EXPECT_EQ(turned(-1000, Turning::InSteps), -360);
}

TEST(WatermarkEditorRules, TheFrameTurnsAboutTheOriginAndTheHandleStandsAboveIt)
{
    const PlacedText text{{100, 200}, {0, -10, 80, 50}, 90};
    EXPECT_EQ(text.outline().boundingRect().toRect(), QRect(60, 200, 50, 80));
    EXPECT_EQ(text.middle().toPoint(), QPoint(85, 240));
    EXPECT_EQ(text.handle(20).toPoint(), QPoint(40, 240)) << "on its side the text's upper edge is at the left";
}

TEST(FontListRules, AreSortedByTheirNamesAndFoundByTheirWords)
{
    std::vector<FontFile> fonts;
    for (const char* name : {"Univers 100", "univers 55", "Arial Bold", "Zapf", "Ärial"}) {
        fonts.emplace_back();
        fonts.back().displayName = QString::fromUtf8(name);
    }
    SortFonts(fonts, QLocale(QLocale::English));
    QStringList names;
    for (const FontFile& font : fonts)
        names << font.displayName;
    EXPECT_EQ(names.join(u", "_s), u"Ärial, Arial Bold, univers 55, Univers 100, Zapf"_s);
    EXPECT_EQ(FontsWith(fonts, {}).size(), 5u);
    EXPECT_EQ(FontsWith(fonts, u" BOLD  ari "_s), (std::vector<std::size_t>{1}));
    EXPECT_EQ(FontsWith(fonts, u"univers"_s), (std::vector<std::size_t>{2, 3}));
    EXPECT_TRUE(FontsWith(fonts, u"zapf bold"_s).empty());
}

} // namespace
} // namespace kesta::booklet_watermark
