#include "model/SpecialPage.h"

#include "model/Stored.h"

#include <gtest/gtest.h>

namespace kesta::special_page_test {
namespace {

Number N(CFIndex number)
{
    return Number::Index(number);
}

const Dictionary kCard{{"Type", N(12)}, {"Color", N(3)}, {"Description", "card"}};
const Dictionary kNoStock{{"Type", N(kUnset)}};

TEST(SpecialPage, EveryFieldSurvivesTheTicket)
{
    const Dictionary cover{{"StartPage", N(5)}, {"Stock", kCard}, {"SidesImaged", N(4)}};
    EXPECT_EQ(Cover(cover).asTicket(), cover);
    EXPECT_EQ(Cover(cover).clone()->asTicket(), cover);

    const Dictionary insert{{"StartPage", N(6)}, {"Stock", kCard}, {"Quantity", N(3)}};
    EXPECT_EQ(Insert(insert).asTicket(), insert);
    EXPECT_EQ(Insert(insert).clone()->asTicket(), insert);

    const Dictionary shift{{"Option", N(1)}, {"Inches", N(0)}, {"FullPrecision", true}, {"X1", N(130)}, {"Y1", N(20)},
                           {"X2", N(30)},    {"Y2", N(40)}};
    const Dictionary exception{{"StartPage", N(7)},      {"Stock", kCard},
                               {"EndPage", N(9)},        {"SidesImaged", N(2)},
                               {"LightenDarken", N(-3)}, {"com.kesta.print.ImageShiftOptionsPage", shift}};
    EXPECT_EQ(ExceptionPage(*test::Stored(exception).dictionary()).asTicket(), exception);
    EXPECT_EQ(ExceptionPage(exception).clone()->asTicket(), exception);
}

TEST(SpecialPage, SettersReachTheTicket)
{
    ExceptionPage page;
    EXPECT_EQ(page.asTicket(), (Dictionary{{"StartPage", N(0)}, {"EndPage", N(0)}, {"Stock", Stock().asTicket()}}));
    page.setStartPage(1);
    page.setEndPage(2);
    page.setPlex(3);
    page.setHalftoneScreen(4);
    page.setLightenDarken(5);
    page.stock() = Stock(kCard);
    page.imageShift().option = 6;
    const Dictionary ticket = page.asTicket();
    EXPECT_EQ(*ticket.find("HalftoneScreen"), Value(N(4)));
    EXPECT_EQ(ticket.count(), 7u);

    const ExceptionPage read(ticket);
    EXPECT_EQ(read.halftoneScreen(), kUnset) << "never read back";
    EXPECT_EQ(read.imageShift().option, 6);
    EXPECT_EQ(read.plex(), 3);
}

TEST(SpecialPage, AMissingStockIsUnsetAndOtherFieldsHaveDefaults)
{
    EXPECT_EQ(Cover(Dictionary()).asTicket(),
              (Dictionary{{"StartPage", N(0)}, {"SidesImaged", N(1)}, {"Stock", kNoStock}}));
    EXPECT_EQ(Insert(Dictionary()).asTicket(),
              (Dictionary{{"StartPage", N(0)}, {"Quantity", N(1)}, {"Stock", kNoStock}}));
    EXPECT_EQ(Cover().stock().color(), kStockColorWhite);
}

TEST(Cover, EqualityIsOfSidesAndStock)
{
    Cover a, b;
    b.setStartPage(9);
    EXPECT_EQ(a, b);
    b.setSidesImaged(2);
    EXPECT_NE(a, b);
    a.setSidesImaged(2);
    a.stock().setColor(3);
    EXPECT_NE(a, b);
}

} // namespace
} // namespace kesta::special_page_test
