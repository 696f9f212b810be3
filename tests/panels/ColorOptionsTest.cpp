#include "panels/color_options/ColorOptions.h"
#include "panels/color_options/ColorMenus.h"
#include "panels/color_options/ColorSwatches.h"
#include "pde/interface/TicketKeys.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace kesta::color {
namespace {

Value N(int number)
{
    return Number::Index(number);
}

const NumberSetting& NumberOf(Control control)
{
    for (const auto& settings : {NumberSettings(), ChoiceSettings()}) {
        if (const auto one = std::ranges::find(settings, control, &NumberSetting::control); one != settings.end())
            return *one;
    }
    throw control;
}

const NameSetting& NameOf(Control control)
{
    return *std::ranges::find(NameSettings(), control, &NameSetting::control);
}

const Dictionary* Stored(const Ticket& ticket)
{
    return ticket.values().dictionary(key::FullColorOptions);
}

TEST(ColorOptions, EverySettingReachesTheTicketAndComesBack)
{
    ColorOptions options, read;
    int value = 1;
    for (const NumberSetting& setting : ChoiceSettings())
        EXPECT_EQ(setting.set(options.record, setting.control == kTrapping ? 1 : ++value), noErr);
    for (const NumberSetting& setting : NumberSettings())
        EXPECT_EQ(setting.set(options.record, ++value), noErr) << setting.control;
    for (const NameSetting& setting : NameSettings())
        EXPECT_EQ(setting.set(options.record, {setting.namedKind, QString::number(++value)}), noErr);

    Ticket ticket;
    WriteTicket(options, ticket);
    EXPECT_EQ(ticket.client(key::FullColorOptions), u"com.kesta.print"_s);
    EXPECT_EQ(*Stored(ticket), options.record.asTicket());
    EXPECT_EQ(Stored(ticket)->count(), 19u) << "the cast is one entry";
    ReadTicket(read, ticket);
    EXPECT_EQ(read.record, options.record);
    std::set<SInt32> values;
    for (const auto& settings : {NumberSettings(), ChoiceSettings()}) {
        for (const NumberSetting& setting : settings)
            values.insert(setting.get(read.record));
    }
    EXPECT_EQ(values.size(), 13u) << "each getter reads what its own setter set";
}

TEST(ColorOptions, WhatThePanelCantShowStaysUntilItIsChanged)
{
    const Dictionary stored{{"FCLightness", N(5000)},     {"FCColorCast", Dictionary{{"FCCyanRed", N(7)}}},
                            {"FCTrapping", N(0)},         {"FCTrappingFastDirection", N(3)},
                            {"ImageRendering", N(77)},    {"RGBImagesProfile", QString(300, u'x')},
                            {"com.example.other", "kept"}};
    Ticket ticket;
    ticket.set("X", key::FullColorOptions, stored);
    ColorOptions options;
    ReadTicket(options, ticket);
    WriteTicket(options, ticket);
    EXPECT_EQ(*Stored(ticket), stored);

    NumberOf(kContrast).set(options.record, 4);
    NumberOf(kMagentaGreen).set(options.record, -9);
    NameOf(kRGBImages).set(options.record, {2, {}});
    WriteTicket(options, ticket);
    Dictionary expected = stored;
    expected.set("FCContrast", N(4));
    expected.set("FCColorCast", Dictionary{{"FCCyanRed", N(7)}, {"FCMagentaGreen", N(-9)}, {"FCYellowBlue", N(0)}});
    expected.set("RGBImagesProfile", N(2));
    EXPECT_EQ(*Stored(ticket), expected);
}

TEST(ColorOptions, ATicketWithoutColorOptionsHasNoDictionary)
{
    Ticket ticket;
    ColorOptions options;
    WriteTicket(options, ticket);
    EXPECT_FALSE(Stored(ticket));
    ticket.set("X", key::FullColorOptions, Dictionary{{"FCLightness", N(10)}, {"FCTRC", "soft"}});
    ReadTicket(options, ticket);
    ResetAdjustments(options.record);
    NameOf(kToneCurve).set(options.record, {});
    WriteTicket(options, ticket);
    EXPECT_FALSE(Stored(ticket));
    ReadTicket(options, ticket);
    EXPECT_EQ(options, ColorOptions());
}

TEST(ColorSettings, ACastIsSetAndTakenAwayWhole)
{
    FullColorOptions record;
    EXPECT_FALSE(HasAdjustments(record));
    NumberOf(kYellowBlue).set(record, 40);
    EXPECT_EQ(NumberOf(kCyanRed).get(record), 0);
    EXPECT_TRUE(HasAdjustments(record));
    EXPECT_EQ(NumberOf(kCyanRed).set(record, 101), kMissingArgument);
    EXPECT_EQ(NumberOf(kCyanRed).get(record), 0);
    NumberOf(kMagentaGreen).set(record, kUnset);
    EXPECT_FALSE(HasAdjustments(record));

    record.fromTicket(Dictionary{{"FCColorCast", Dictionary{{"FCCyanRed", N(500)}, {"FCYellowBlue", N(-8)}}}});
    EXPECT_EQ(NumberOf(kMagentaGreen).set(record, 5), noErr) << "not refused for another value's sake";
    EXPECT_EQ(NumberOf(kCyanRed).get(record), 100);
    EXPECT_EQ(NumberOf(kYellowBlue).get(record), -8);
}

TEST(ColorSettings, DirectionsCountWhileTrappingIsOnOnly)
{
    FullColorOptions record;
    for (const SInt32 off : {kUnset, 0, 2}) {
        record.setTrapping(off);
        EXPECT_FALSE(UsesTrappingDirections(record)) << off;
    }
    record.fromTicket(Dictionary{{"FCTrapping", N(1)}, {"FCTrappingSlowDirection", N(90)}});
    EXPECT_TRUE(UsesTrappingDirections(record));
    EXPECT_EQ(NumberOf(kFastDirection).set(record, 21), kMissingArgument);
    EXPECT_EQ(NumberOf(kFastDirection).set(record, 20), noErr);
    EXPECT_EQ(NumberOf(kSlowDirection).get(record), 20);
}

class ColorMenusTest : public testing::Test {
protected:
    static QStringList Titles(const MenuAndPosition& shown)
    {
        QStringList titles;
        for (const MenuItem& item : shown.menu.items)
            titles << item.title;
        titles[shown.position - 1].prepend(u'>');
        return titles;
    }
    QStringList names(Control control) { return Titles(NameMenu(bundle, NameOf(control), record)); }

    Bundle bundle =
        test::BundleWithTexts({"PrinterDefault", "Off", "On", "Named Profile...", "Named Curve...", "Perceptual",
                               "Relative Colorimetric", "Saturation Intent", "Absolute Colorimetric"});
    FullColorOptions record;

    ColorMenusTest()
    {
        bundle.strings.dictionary("Localizable")->set("Built-in Profile", "B%1");
        bundle.strings.dictionary("Localizable")->set("Other Value", "V%1");
    }
};

TEST_F(ColorMenusTest, BuiltInProfilesAreThoseBelowTheNamedKind)
{
    EXPECT_EQ(names(kRGBImages),
              (QStringList{u">PrinterDefault"_s, u"B1"_s, u"B2"_s, u"B3"_s, u"B4"_s, u"Named Profile..."_s}));
    record.setDestinationProfile(kNamedDestinationProfile, u"Mine"_s);
    EXPECT_EQ(names(kDestination), (QStringList{u"PrinterDefault"_s, u"B1"_s, u">Mine"_s, u"Named Profile..."_s}));
    record.setCMYKImagesProfile(9);
    EXPECT_EQ(names(kCMYKImages),
              (QStringList{u"PrinterDefault"_s, u"B1"_s, u"B2"_s, u">B9"_s, u"Named Profile..."_s}));
    EXPECT_EQ(names(kToneCurve), (QStringList{u">PrinterDefault"_s, u"Named Curve..."_s}));
}

TEST_F(ColorMenusTest, AValueThatIsNoChoiceIsShownAsWhatItIs)
{
    EXPECT_EQ(Titles(ChoiceMenu(bundle, NumberOf(kTrapping), record)),
              (QStringList{u">PrinterDefault"_s, u"Off"_s, u"On"_s}));
    record.setTextObjectRendering(0);
    EXPECT_EQ(ChoiceMenu(bundle, NumberOf(kTextRendering), record).position, 2);
    record.setTrapping(-3);
    EXPECT_EQ(Titles(ChoiceMenu(bundle, NumberOf(kTrapping), record)).back(), u">V-3"_s);
}

TEST(ColorSwatches, WithoutAdjustmentsAColorStaysExactlyAsItIs)
{
    for (const Rgb& color : kSwatches)
        EXPECT_EQ(Adjusted(color, {}), color);
    EXPECT_EQ(AdjustmentsOf(FullColorOptions()), Adjustments());
}

TEST(ColorSwatches, EachAdjustmentDoesWhatItIsCalled)
{
    const Rgb color{0.5, 0.25, 0.125};
    const auto expectNear = [](const Rgb& a, const Rgb& b) {
        EXPECT_NEAR(a.red, b.red, 1e-9);
        EXPECT_NEAR(a.green, b.green, 1e-9);
        EXPECT_NEAR(a.blue, b.blue, 1e-9);
    };
    expectNear(Adjusted(color, {.lightness = 1}), {0.75, 0.625, 0.5625});
    expectNear(Adjusted(color, {.lightness = -1}), {0.25, 0.125, 0.0625});
    expectNear(Adjusted(color, {.contrast = -1}), {0.5, 0.5, 0.5});
    expectNear(Adjusted(color, {.contrast = 1}), {0.5, 0, 0});
    const double luma = 0.299 * 0.5 + 0.587 * 0.25 + 0.114 * 0.125;
    expectNear(Adjusted(color, {.saturation = -1}), {luma, luma, luma});
    expectNear(Adjusted(color, {.cast = {1, -0.5, -1}}), {0.75, 0.125, 0});
    FullColorOptions record(Dictionary{{"FCLightness", N(5000)}, {"FCContrast", N(-50)}});
    EXPECT_EQ(AdjustmentsOf(record), (Adjustments{.lightness = 1, .contrast = -0.5}));
}

} // namespace
} // namespace kesta::color
