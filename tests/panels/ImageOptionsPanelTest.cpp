#include "panels/image_options/ImageOptionsPanel.h"

#include "panels/PanelFixture.h"
#include "panels/image_options/ImageOptions.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/TicketUtilities.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace kesta::image_options {
namespace {

Dictionary Invert(int negative, int mirror)
{
    return {{"NegativeImage", Number::Index(negative)}, {"MirrorImage", Number::Index(mirror)}};
}

class ImageOptionsPanelTest : public test::PanelTest {
protected:
    ImageOptionsPanelTest() : PanelTest(GetImageOptionsPanelInterface, kSignature, test::BundleWithAllTexts()) {}
    PopupButton* quality() { return popup(kQualityPopup); }
    QCheckBox* mirror() { return qobject_cast<QCheckBox*>(control(kMirrorCheckBox)); }
    const Dictionary& stored() const { return *ticket.values().dictionary(key::InvertImageOptions); }
};

TEST_F(ImageOptionsPanelTest, WhatTheUserPicksReachesTheTicketAndComesBack)
{
    open();
    EXPECT_EQ(GetPopupButtonTicketValue(quality()), 2) << "the printer's default";
    EXPECT_TRUE(test::Pick(quality(), 4));
    EXPECT_EQ(picture(kQualityIllustration), u"ImageOptions_ImgQual_TonerSaver.gif"_s);
    ClickControl(mirror());
    EXPECT_EQ(picture(kInvertIllustration), u"ImageOptions_InvertImage_Mirror.gif"_s);

    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(stored(), Invert(0, 1));
    EXPECT_EQ(ticket.client(key::InvertImageOptions), u"X"_s);
    EXPECT_EQ(ReadTicketValue(ticket, key::ImageResolution), 4);
    EXPECT_EQ(ticket.client(key::ImageResolution), QLatin1StringView(kPrintingManagerClient));
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "JCLPrintQuality"), u"HighSpeed"_s);

    quality()->setValue(1);
    mirror()->setChecked(false);
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(GetPopupButtonTicketValue(quality()), 4);
    EXPECT_TRUE(mirror()->isChecked());
}

TEST_F(ImageOptionsPanelTest, ReadingWritesTheQualityToo)
{
    PPDSetCurrentChoice(ticket, "JCLPrintQuality", "Enhanced");
    ASSERT_EQ(initialize(), noErr);
    EXPECT_EQ(ReadTicketValue(ticket, key::ImageResolution), 3);
    EXPECT_FALSE(ticket.values().find(key::InvertImageOptions)) << "but nothing else";
}

TEST_F(ImageOptionsPanelTest, AnUnknownQualityIsShownAsSuchAndLeftAlone)
{
    PPDSetCurrentChoice(ticket, "JCLPrintQuality", "Fantastic");
    open();
    ASSERT_EQ(sync(false), noErr);
    EXPECT_FALSE(ticket.values().find(key::ImageResolution));
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "JCLPrintQuality"), u"Fantastic"_s);
    EXPECT_EQ(quality()->text(), u"Not On This Printer Fantastic"_s);
    EXPECT_TRUE(test::Pick(quality(), 3));
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(*ticket.values().find(key::ImageResolution), Value(Number::SInt32(3)));
}

TEST_F(ImageOptionsPanelTest, ANegativeImageStaysAndHidesTheMirrorPicture)
{
    ticket.set("X", key::InvertImageOptions, Invert(5, 1));
    open();
    EXPECT_TRUE(mirror()->isChecked());
    EXPECT_EQ(picture(kInvertIllustration), u"ImageOptions_InvertImage_Off.gif"_s);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(stored(), Invert(1, 1));
}

TEST_F(ImageOptionsPanelTest, TheInvertSectionsOwnControlsCountByBeingThere)
{
    open();
    auto* negative = new QCheckBox(&pane);
    SetControlID(*negative, {kSignature, kNegativeInvertControl});
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(stored(), Invert(1, 0)) << "though it is not checked";
    ASSERT_EQ(sync(true), noErr);
    EXPECT_TRUE(negative->isChecked());
}

TEST_F(ImageOptionsPanelTest, ItOpensOnce)
{
    open();
    EXPECT_EQ(slots->Open(prologue.context), kInvalidContext);
    EXPECT_STREQ(prologue.title, "ImageOptions");
}

TEST_F(ImageOptionsPanelTest, WithoutAPPDThePopupIsEmptyAndTheQualityStays)
{
    PPDCloseCurrent();
    printer.setPPD(u"/nowhere.ppd"_s);
    PPDSetCurrentChoice(ticket, "JCLPrintQuality", "HighQuality");
    open();
    EXPECT_EQ(quality()->menu().count(), 0);
    EXPECT_EQ(picture(kQualityIllustration), u"ImageOptions_ImgQual_Standard.gif"_s);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ReadTicketValue(ticket, key::ImageResolution), 5);
}

TEST(ImageOptions, QualitiesBeyondTheTableHaveNoPicture)
{
    EXPECT_EQ(QualityIllustration(0), QString());
    EXPECT_EQ(QualityIllustration(7), QString());
    EXPECT_EQ(QualityIllustration(kUnset), QString());
    EXPECT_EQ(QualityIllustration(6), u"ImageOptions_ImgQual_Enhanced.gif"_s);
}

} // namespace
} // namespace kesta::image_options
