#include "panels/color_options/ColorOptions.h"
#include "panels/color_options/ColorMenus.h"
#include "panels/color_options/ColorSwatches.h"
#include "pde/interface/TicketKeys.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace kesta::color_options {
namespace {

Value N(int number)
{
    return Number::Index(number);
}

const Binding<ColorOptions>& NumberOf(Control control)
{
    return *std::ranges::find(kBindings, control, &Binding<ColorOptions>::control);
}

SInt32 Get(Control control, const ColorOptions& options)
{
    return NumberOf(control).value.get(options);
}

// Whether it took the value.
bool Set(Control control, ColorOptions& options, SInt32 value)
{
    NumberOf(control).value.set(options, value);
    return Get(control, options) == value;
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
    EXPECT_TRUE(Set(kTrapping, options, 1)) << "a ticket has the directions of no other";
    for (const Binding<ColorOptions>& binding : kBindings) {
        if (binding.control != kTrapping) {
            EXPECT_TRUE(Set(Control{binding.control}, options, ++value)) << binding.control;
        }
    }
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
    for (const Binding<ColorOptions>& binding : kBindings)
        values.insert(binding.value.get(read));
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

    Set(kContrast, options, 4);
    Set(kMagentaGreen, options, -9);
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
    ResetAdjustments(options);
    NameOf(kToneCurve).set(options.record, {});
    WriteTicket(options, ticket);
    EXPECT_FALSE(Stored(ticket));
    ReadTicket(options, ticket);
    EXPECT_EQ(options, ColorOptions());
}

TEST(ColorSettings, ACastIsSetAndTakenAwayWhole)
{
    ColorOptions options;
    EXPECT_FALSE(HasAdjustments(options));
    Set(kYellowBlue, options, 40);
    EXPECT_EQ(Get(kCyanRed, options), 0);
    EXPECT_TRUE(HasAdjustments(options));
    EXPECT_FALSE(Set(kCyanRed, options, 101));
    EXPECT_EQ(Get(kCyanRed, options), 0);
    Set(kMagentaGreen, options, kUnset);
    EXPECT_FALSE(HasAdjustments(options));

    options.record.fromTicket(Dictionary{{"FCColorCast", Dictionary{{"FCCyanRed", N(500)}, {"FCYellowBlue", N(-8)}}}});
    EXPECT_TRUE(Set(kMagentaGreen, options, 5)) << "not refused for another value's sake";
    EXPECT_EQ(Get(kCyanRed, options), 100);
    EXPECT_EQ(Get(kYellowBlue, options), -8);
}

TEST(ColorSettings, DirectionsCountWhileTrappingIsOnOnly)
{
    ColorOptions options;
    for (const SInt32 off : {kUnset, 0, 2}) {
        options.record.setTrapping(off);
        EXPECT_FALSE(UsesTrappingDirections(options.record)) << off;
    }
    options.record.fromTicket(Dictionary{{"FCTrapping", N(1)}, {"FCTrappingSlowDirection", N(90)}});
    EXPECT_TRUE(UsesTrappingDirections(options.record));
    EXPECT_FALSE(Set(kFastDirection, options, 21));
    EXPECT_TRUE(Set(kFastDirection, options, 20));
    EXPECT_EQ(Get(kSlowDirection, options), 20);
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
        bundle.strings.dictionary("Localizable")->set("Not On This Printer", "%1!");
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
              (QStringList{u"PrinterDefault"_s, u"B1"_s, u"B2"_s, u">B9!"_s, u"Named Profile..."_s}));
    record.fromTicket(Dictionary{{"RGBImagesProfile", Number::Index(kNamedRGBProfile)}});
    EXPECT_EQ(names(kRGBImages)[5], u">B5!"_s) << "a number where a name belongs";
    EXPECT_EQ(names(kToneCurve), (QStringList{u">PrinterDefault"_s, u"Named Curve..."_s}));
}

TEST_F(ColorMenusTest, AValueThatIsNoChoiceIsShownAsWhatItIs)
{
    const auto titles = [this](Control control, SInt32 shown) {
        QStringList items;
        const BindingRule& rule = NumberOf(control).rule;
        const Menu menu = MenuOfRule(bundle, rule, nullptr).menu;
        for (const MenuItem& item : menu.items)
            items << item.title;
        if (const std::optional<MenuItem> other = ItemForOther(bundle, rule, nullptr, menu, shown, kUnset))
            items << (other->notOffered ? other->title : QString());
        return items;
    };
    EXPECT_EQ(titles(kTrapping, kUnset), (QStringList{u"PrinterDefault"_s, u"Off"_s, u"On"_s}));
    EXPECT_EQ(titles(kTrapping, -3).sliced(3), QStringList(u"V-3!"_s));
    EXPECT_EQ(titles(kTextRendering, kUnset).size(), 5);
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
} // namespace kesta::color_options
