#include "panels/color_options/ColorOptionsPanel.h"

#include "panels/PanelFixture.h"
#include "panels/color_options/ColorMenus.h"
#include "panels/color_options/SwatchStrip.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextInput.h"

#include <QImage>
#include <QPainter>
#include <QSlider>

using namespace Qt::StringLiterals;

namespace kesta::color_options {
namespace {

class ColorOptionsPanelTest : public test::PanelTest {
protected:
    ColorOptionsPanelTest()
        : PanelTest(GetColorOptionPanelInterface, kSignature,
                    Bundle{.resourcesPath = QStringLiteral(TEST_RESOURCES "/../ColorOptions"), .strings = {}},
                    kColorOptionsIdentifier)
    {
        LoadBundle(kPlugInIdentifier, test::BundleWithTexts({}));
    }
    template <class Widget> Widget& control(Control number)
    {
        auto* found = FindControlAs<Widget>(&pane, {kSignature, number});
        EXPECT_TRUE(found) << number;
        return *found;
    }
    Dictionary stored() const
    {
        const Dictionary* found = ticket.values().dictionary(key::FullColorOptions);
        return found ? *found : Dictionary();
    }
    void answerName(const QString& name, FourCharCode command)
    {
        user.then([name, command](QWidget& window) {
            TypeIntoField(FindTextField(&window, {"Util"_code, 1}), name);
            test::Press(window, command);
        });
    }

    test::ModalUser user;
};

TEST_F(ColorOptionsPanelTest, WhatTheUserSetsReachesTheTicketAndComesBack)
{
    open();
    control<SliderField>(kLightness).slider().setValue(30);
    control<SliderField>(kCyanRed).field().stepBy(-5);
    EXPECT_EQ(control<SliderField>(kYellowBlue).number(), 0) << "a cast is set whole";
    EXPECT_TRUE(test::Pick(popup(kCMYKTextAndGraphics), 2));
    EXPECT_TRUE(test::Pick(popup(kTrapping), 1));
    control<SpinField>(kSlowDirection).stepBy(4);
    EXPECT_TRUE(test::Pick(popup(kGraphicRendering), 0));
    ASSERT_EQ(sync(false), noErr);
    const auto n = [](int number) { return Value(Number::Index(number)); };
    const Dictionary expected{
        {"FCLightness", n(30)},
        {"FCColorCast", Dictionary{{"FCCyanRed", n(-5)}, {"FCMagentaGreen", n(0)}, {"FCYellowBlue", n(0)}}},
        {"CMYKTextAndGraphicsProfile", n(2)},
        {"FCTrapping", n(1)},
        {"FCTrappingSlowDirection", n(4)},
        {"GraphicRendering", n(0)}};
    EXPECT_EQ(stored(), expected);

    ClickControl(&control<QWidget>(kResetButton));
    EXPECT_EQ(control<SliderField>(kLightness).number(), kUnset);
    EXPECT_FALSE(control<QWidget>(kResetButton).isEnabled());
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(control<SliderField>(kLightness).number(), 30);
    EXPECT_EQ(control<SliderField>(kContrast).number(), kUnset);
    EXPECT_TRUE(control<QWidget>(kResetButton).isEnabled());
}

TEST_F(ColorOptionsPanelTest, ANameIsAskedForAndShown)
{
    open();
    answerName(u"Company RGB"_s, kCommandOK);
    EXPECT_TRUE(test::Pick(popup(kRGBImages), kAskForName));
    EXPECT_EQ(popup(kRGBImages)->text(), u"Company RGB"_s);

    answerName(u"else"_s, kCommandCancel);
    EXPECT_TRUE(test::Pick(popup(kRGBImages), kAskForName));
    EXPECT_EQ(popup(kRGBImages)->text(), u"Company RGB"_s);
    answerName(QString(256, u'x'), kCommandOK); // refused as it is pasted
    EXPECT_TRUE(test::Pick(popup(kGrayImages), kAskForName));
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(stored(), (Dictionary{{"RGBImagesProfile", "Company RGB"}}));

    EXPECT_TRUE(test::Pick(popup(kRGBImages), kUnset));
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(stored(), Dictionary());
}

TEST_F(ColorOptionsPanelTest, WhatNobodyCanChooseIsShownAsItIsAndLeftAlone)
{
    const Dictionary foreign{{"FCLightness", Number::Index(250)}, {"RGBImagesProfile", Number::Index(5)}};
    ticket.set("X", key::FullColorOptions, foreign);
    open();
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kRGBImages)), 5);
    EXPECT_FALSE(popup(kRGBImages)->text().isEmpty()) << "though 5 is how a profile with a name is kept";
    EXPECT_EQ(control<SliderField>(kLightness).field().text(), u"250"_s);
    EXPECT_TRUE(control<SliderField>(kLightness).field().property("invalid").toBool());
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(stored(), foreign);
}

TEST_F(ColorOptionsPanelTest, TheStripsShowTheColorsBeforeAndAfter)
{
    open();
    const auto drawn = [&](Control strip) {
        QImage image(120, 20, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        const DrawEvent draw{.painter = &painter, .bounds = image.rect()};
        EXPECT_EQ(SendControlEvent(control<PictureView>(strip), draw), EventResult::Handled);
        return image;
    };
    EXPECT_EQ(drawn(kBeforeStrip), drawn(kAfterStrip));
    control<SliderField>(kSaturation).slider().setValue(-100);
    const QColor red = drawn(kBeforeStrip).pixelColor(55, 10), gray = drawn(kAfterStrip).pixelColor(55, 10);
    EXPECT_EQ(red, QColor(204, 51, 51));
    EXPECT_EQ(gray.saturation(), 0);
}

TEST_F(ColorOptionsPanelTest, SyncWorksBeforeThereAreControlsAndWithoutThem)
{
    ticket.set("X", key::FullColorOptions, Dictionary{{"FCContrast", Number::Index(3)}});
    ASSERT_EQ(initialize(), noErr);
    LoadBundle(kColorOptionsIdentifier, Bundle{.resourcesPath = u"/nowhere"_s, .strings = {}});
    EXPECT_EQ(slots->Open(prologue.context), noErr);
    EXPECT_EQ(sync(false), noErr);
    EXPECT_EQ(stored(), (Dictionary{{"FCContrast", Number::Index(3)}}));
    session.data.clear();
    EXPECT_EQ(sync(true), kNoSuchTicket);
}

} // namespace
} // namespace kesta::color_options
