#include "model/FullColorOptions.h"

#include "model/Stored.h"

#include <gtest/gtest.h>

namespace kesta::full_color_options_test {
namespace {

using namespace Qt::StringLiterals;

Number N(CFIndex number)
{
    return Number::Index(number);
}

Dictionary EveryKey()
{
    return {{"FCLightness", N(-100)},
            {"FCContrast", N(100)},
            {"FCSaturation", N(3)},
            {"FCColorCast", Dictionary{{"FCCyanRed", N(4)}, {"FCMagentaGreen", N(5)}, {"FCYellowBlue", N(6)}}},
            {"FCTrapping", N(1)},
            {"FCTrappingFastDirection", N(7)},
            {"FCTrappingSlowDirection", N(8)},
            {"FCBlackOverprint", N(9)},
            {"FCTRC", "curve"},
            {"RGBImagesProfile", "rgb"},
            {"RGBTextAndGraphicsProfile", N(10)},
            {"CMYKImagesProfile", N(5)}, // a name's kind elsewhere
            {"CMYKTextAndGraphicsProfile", "cmyk"},
            {"DestinationProfile", "destination"},
            {"GrayImagesProfile", "gray"},
            {"GrayTextAndGraphicsProfile", ""},
            {"ImageRendering", N(11)},
            {"TextRendering", N(12)},
            {"GraphicRendering", N(13)}};
}

TEST(FullColorOptions, EveryFieldSurvivesTheTicket)
{
    FullColorOptions options;
    const OSStatus statuses[] = {
        options.setLightness(-100),
        options.setContrast(100),
        options.setSaturation(3),
        options.setColorCast(4, 5, 6),
        options.setTrapping(1),
        options.setTrappingAdjustment(8, 7),
        options.setBlackOverprint(9),
        options.setTRC(u"curve"_s),
        options.setRGBImagesProfile(kNamedRGBProfile, u"rgb"_s),
        options.setRGBTextAndGraphicsProfile(10),
        options.setCMYKImagesProfile(5),
        options.setCMYKTextAndGraphicsProfile(kNamedCMYKProfile, u"cmyk"_s),
        options.setDestinationProfile(kNamedDestinationProfile, u"destination"_s),
        options.setGrayImagesProfile(u"gray"_s),
        options.setGrayTextAndGraphicsProfile(u""_s),
        options.setImageObjectRendering(11),
        options.setTextObjectRendering(12),
        options.setGraphicObjectRendering(13),
    };
    for (const OSStatus status : statuses)
        EXPECT_EQ(status, noErr);
    EXPECT_EQ(options.asTicket(), EveryKey());
    EXPECT_EQ(FullColorOptions(EveryKey()), options);
    EXPECT_EQ(FullColorOptions(*test::Stored(EveryKey()).dictionary()).asTicket(), EveryKey());
    EXPECT_EQ(FullColorOptions().asTicket(), Dictionary());
}

TEST(FullColorOptions, SettersRefuseWhatIsOutOfRange)
{
    FullColorOptions options(EveryKey());
    const FullColorOptions before = options;
    const QString longName(256, u'n');
    const OSStatus statuses[] = {
        options.setLightness(101),
        options.setLightness(-101),
        options.setContrast(101),
        options.setSaturation(-101),
        options.setColorCast(10, 200, 0),
        options.setColorCast(-101, 0, 0),
        options.setTrappingAdjustment(-1, 5),
        options.setTrappingAdjustment(5, 21),
        options.setRGBImagesProfile(kNamedRGBProfile, {}),
        options.setRGBTextAndGraphicsProfile(kNamedRGBProfile, longName),
        options.setCMYKImagesProfile(kNamedCMYKProfile, {}),
        options.setCMYKTextAndGraphicsProfile(kNamedCMYKProfile, longName),
        options.setDestinationProfile(kNamedDestinationProfile, {}),
        options.setGrayImagesProfile(longName),
        options.setGrayTextAndGraphicsProfile(longName),
    };
    for (const OSStatus status : statuses)
        EXPECT_EQ(status, kMissingArgument);
    EXPECT_EQ(options, before);

    const QString longest(255, u'n');
    EXPECT_EQ(options.setRGBImagesProfile(kNamedRGBProfile, longest), noErr);
    EXPECT_EQ(options.setGrayImagesProfile(longest), noErr);
    EXPECT_EQ(options.setTrappingAdjustment(0, 20), noErr);
    EXPECT_EQ(options.setTrappingAdjustment(kUnset, kUnset), noErr);
    EXPECT_EQ(options.setColorCast(1, 2, kUnset), noErr);
    EXPECT_FALSE(options.asTicket().find("FCColorCast")) << "two make no cast";
    EXPECT_EQ(options.setColorCast(kUnset, -100, 100), noErr);
    EXPECT_EQ(options.setLightness(kUnset), noErr);
    EXPECT_EQ(options.setTRC({}), noErr);
    const Dictionary ticket = options.asTicket();
    for (const char* key : {"FCLightness", "FCColorCast", "FCTRC", "FCTrappingFastDirection"})
        EXPECT_FALSE(ticket.find(key)) << key;
}

TEST(FullColorOptions, AMissingPlaceForAnAnswerIsAStatus)
{
    const FullColorOptions options(EveryKey());
    SInt32 a = 1, b = 2;
    EXPECT_EQ(options.lightness(nullptr), kMissingArgument);
    EXPECT_EQ(options.colorCast(&a, &b, nullptr), kMissingArgument);
    EXPECT_EQ(options.trappingAdjustment(nullptr, &b), kMissingArgument);
    EXPECT_EQ(options.destinationProfile(&a, nullptr), kMissingArgument);
    EXPECT_EQ(std::pair(a, b), std::pair(1, 2)) << "nothing is stored beside it";
}

TEST(FullColorOptions, DirectionsBelongToTrapping)
{
    FullColorOptions options;
    options.setTrapping(0);
    options.setTrappingAdjustment(3, 4);
    EXPECT_EQ(options.asTicket(), (Dictionary{{"FCTrapping", N(0)}}));
    options.setTrapping(1);
    options.setTrappingAdjustment(3, kUnset);
    EXPECT_EQ(options.asTicket(), (Dictionary{{"FCTrapping", N(1)}, {"FCTrappingSlowDirection", N(3)}}));

    options.fromTicket({{"FCTrapping", N(1)}, {"FCTrappingFastDirection", N(6)}});
    EXPECT_EQ(options.asTicket(), (Dictionary{{"FCTrapping", N(1)}, {"FCTrappingFastDirection", N(6)}}));
    options.fromTicket({{"FCTrappingFastDirection", N(6)}});
    EXPECT_EQ(options, FullColorOptions());
}

TEST(FullColorOptions, ATicketReplacesOnlyWhatItHas)
{
    FullColorOptions options(EveryKey());
    options.fromTicket({{"FCContrast", N(1)},
                        {"FCColorCast", Dictionary{{"FCCyanRed", N(2)}}},
                        {"RGBImagesProfile", N(3)},
                        {"CMYKImagesProfile", QString(255, u'n')},
                        {"DestinationProfile", N(kNamedDestinationProfile)}, // of the name that is there
                        {"CMYKTextAndGraphicsProfile", QString(256, u'n')},
                        {"GrayImagesProfile", QString(256, u'n')}});
    Dictionary expected = EveryKey();
    expected.set("FCContrast", N(1));
    expected.set("FCColorCast", Dictionary{{"FCCyanRed", N(2)}, {"FCMagentaGreen", N(5)}, {"FCYellowBlue", N(6)}});
    expected.set("RGBImagesProfile", N(3));
    expected.set("CMYKImagesProfile", QString(255, u'n'));
    for (const char* key : {"FCTrapping", "FCTrappingFastDirection", "FCTrappingSlowDirection"})
        expected.remove(key);
    EXPECT_EQ(options.asTicket(), expected);
}

TEST(FullColorOptions, ADamagedTicketReadsAsTheDefaults)
{
    const Value damages[] = {Array(), true, N(CFIndex{1} << 32), Number::Float64(1.5)};
    for (const Value& damage : damages) {
        Dictionary ticket, cast;
        for (const char* key :
             {"FCLightness", "FCContrast", "FCSaturation", "FCColorCast", "FCTrapping", "FCTrappingFastDirection",
              "FCTrappingSlowDirection", "FCBlackOverprint", "FCTRC", "RGBImagesProfile", "RGBTextAndGraphicsProfile",
              "CMYKImagesProfile", "CMYKTextAndGraphicsProfile", "DestinationProfile", "GrayImagesProfile",
              "GrayTextAndGraphicsProfile", "ImageRendering", "TextRendering", "GraphicRendering"})
            ticket.set(key, damage);
        EXPECT_EQ(FullColorOptions(ticket), FullColorOptions());
        for (const char* key : {"FCCyanRed", "FCMagentaGreen", "FCYellowBlue"})
            cast.set(key, damage);
        EXPECT_EQ(FullColorOptions(Dictionary{{"FCColorCast", cast}}), FullColorOptions());
    }
    EXPECT_EQ(FullColorOptions(Dictionary{{"RGBImagesProfile", N(kNamedRGBProfile)}}).asTicket(), Dictionary())
        << "a named profile without a name";
}

} // namespace
} // namespace kesta::full_color_options_test
