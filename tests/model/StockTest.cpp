#include "model/Stock.h"

#include "model/Stored.h"
#include "pde/ticket/TicketUtilities.h"

#include <gtest/gtest.h>

namespace kesta::stock_test {
namespace {

using namespace Qt::StringLiterals;

Stock EveryFieldSet()
{
    Stock stock;
    stock.setSize(kStockSizeCustom);
    stock.setWidth(101);
    stock.setLength(102);
    stock.setType(4);
    stock.setCustomType(u"t"_s);
    stock.setColor(103);
    stock.setCustomColor(u"c"_s);
    stock.setModulus(104);
    stock.setPunched(105);
    stock.setWeight(106);
    stock.setDescription(u"d"_s);
    stock.setSidesCoated(107);
    stock.setCoatingType(108);
    stock.setFinish(109);
    stock.setGrain(110);
    stock.setCustomName(u"n"_s);
    stock.setCustomNameOnly(true);
    stock.setComment(u"m"_s);
    stock.setSource(111);
    return stock;
}

// All numbers of a ticket that has no others than these.
Dictionary Numbers(std::initializer_list<std::pair<const char*, CFIndex>> entries)
{
    Dictionary ticket;
    for (const auto& [key, value] : entries)
        WriteTicketValue(ticket, key, value);
    return ticket;
}

Dictionary EveryKey()
{
    Dictionary ticket = Numbers({{"Size", 75},
                                 {"Width", 101},
                                 {"Length", 102},
                                 {"Type", 4},
                                 {"Color", 103},
                                 {"Modulus", 104},
                                 {"Punched", 105},
                                 {"Weight", 106},
                                 {"SidesCoated", 107},
                                 {"kCoatingType", 108},
                                 {"Finish", 109},
                                 {"kGrain", 110},
                                 {"Source", 111}});
    for (const auto& [key, text] : {std::pair{"CustomType", "t"},
                                    {"CustomColor", "c"},
                                    {"Description", "d"},
                                    {"CustomName", "n"},
                                    {"CustomComment", "m"}})
        ticket.set(key, text);
    ticket.set("CustomNameOnly", true);
    return ticket;
}

TEST(Stock, EveryFieldSurvivesTheTicket)
{
    EXPECT_EQ(EveryFieldSet().asTicket(), EveryKey());
    EXPECT_EQ(Stock(*test::Stored(EveryKey()).dictionary()).asTicket(), EveryKey());
    EXPECT_EQ(Stock(EveryKey()), EveryFieldSet());
}

TEST(Stock, AFreshStockHasAColorOneFromATicketHasNot)
{
    EXPECT_EQ(Stock().asTicket(), Numbers({{"Type", kUnset}, {"Color", 1}}));
    EXPECT_EQ(Stock(Dictionary()).asTicket(), Numbers({{"Type", kUnset}}));
}

TEST(Stock, SomeKeysAreWrittenBesideOthersEvenUnset)
{
    Stock stock;
    stock.setSize(kStockSizeCustom);
    stock.setSidesCoated(1);
    EXPECT_EQ(stock.asTicket(), Numbers({{"Size", 75},
                                         {"Width", kUnset},
                                         {"Length", kUnset},
                                         {"Type", kUnset},
                                         {"Color", 1},
                                         {"SidesCoated", 1},
                                         {"kCoatingType", kUnset}}));
    stock.setSidesCoated(kUnset);
    stock.setCoatingType(2);
    EXPECT_FALSE(stock.asTicket().find("kCoatingType"));
}

TEST(Stock, SomeKeysAreReadOnlyBesideOthers)
{
    EXPECT_EQ(Stock(Numbers({{"Width", 9}})).width(), kUnset);
    EXPECT_EQ(Stock(Numbers({{"Width", 9}, {"Size", 204}})).width(), kUnset);
    EXPECT_EQ(Stock(Numbers({{"Width", 9}, {"Size", 75}})).width(), 9);
    for (const SInt32 type : {1, 24, 33, kUnset})
        EXPECT_EQ(Stock(Numbers({{"Modulus", 9}, {"Type", type}})).modulus(), kUnset) << type;
    for (const SInt32 type : {4, 6})
        EXPECT_EQ(Stock(Numbers({{"Modulus", 9}, {"Type", type}})).modulus(), 9) << type;
    EXPECT_EQ(Stock(Numbers({{"kCoatingType", 9}})).coatingType(), kUnset);

    Stock custom = EveryFieldSet();
    custom.fromTicket(Numbers({{"Width", 9}}));
    EXPECT_EQ(custom.width(), 101) << "the ticket has no size of its own";
    custom.fromTicket({});
    EXPECT_EQ(custom, EveryFieldSet());
}

TEST(Stock, ADamagedTicketReadsAsUnset)
{
    Dictionary wrongTypes, outOfRange;
    for (const char* key : {"Size", "Width", "Length", "Type", "Color", "Modulus", "Punched", "Weight", "SidesCoated",
                            "kCoatingType", "Finish", "kGrain", "Source"}) {
        wrongTypes.set(key, "75");
        outOfRange.set(key, Number::Index(CFIndex{1} << 32 | 4)); // 4 in the lower half
    }
    for (const char* key :
         {"CustomType", "CustomColor", "Description", "CustomName", "CustomNameOnly", "CustomComment"})
        wrongTypes.set(key, Array{Value(true)});
    outOfRange.set("Finish", Number::Float64(2.5));

    EXPECT_EQ(Stock(wrongTypes).asTicket(), Stock(Dictionary()).asTicket());
    EXPECT_EQ(Stock(outOfRange).asTicket(), Stock(Dictionary()).asTicket());
}

TEST(Stock, SettersAndCopiesKeepTheFieldsConsistent)
{
    Stock stock;
    stock.setSize(kStockSizeLetter);
    stock.setWidth(600);
    EXPECT_EQ(stock.size(), kStockSizeCustom);
    stock.setSize(kStockSizeCustom);
    EXPECT_EQ(stock.width(), 600);
    stock.setSize(kStockSizeLetter);
    EXPECT_EQ(stock.width(), kUnset);
    stock.setLength(600);
    EXPECT_EQ(stock.size(), kStockSizeCustom);
    stock.setColor(4);
    stock.setType(kStockTypeTransparency);
    EXPECT_EQ(stock.color(), kStockColorClear);

    const Stock red(Numbers({{"Type", 2}, {"Color", 7}}));
    EXPECT_EQ(red.color(), 7);
    EXPECT_EQ(Stock(red).color(), kStockColorClear);
    stock = red;
    EXPECT_EQ(stock.color(), kStockColorClear);
}

TEST(Stock, EqualityIgnoresTheCaseOfTexts)
{
    Stock other = EveryFieldSet();
    for (const auto set : {&Stock::setCustomType, &Stock::setCustomColor, &Stock::setDescription, &Stock::setCustomName,
                           &Stock::setComment})
        (other.*set)(u"x"_s);
    Stock upper = other;
    upper.setDescription(u"X"_s);
    upper.setComment(u"X"_s);
    EXPECT_EQ(upper, other);
    EXPECT_NE(other, EveryFieldSet());

    for (const auto set : {&Stock::setWidth, &Stock::setCoatingType, &Stock::setGrain, &Stock::setSource}) {
        Stock changed = EveryFieldSet();
        (changed.*set)(1);
        EXPECT_NE(changed, EveryFieldSet());
    }
    Stock named = EveryFieldSet();
    named.setCustomNameOnly(false);
    EXPECT_NE(named, EveryFieldSet());
}

TEST(Stock, DefaultsDependOnTheContextAndSpareSomeFields)
{
    Stock stock = EveryFieldSet();
    DefaultStock(stock, JobContext::Job);
    Dictionary kept =
        Numbers({{"Size", 204}, {"Type", 1}, {"Color", 1}, {"Finish", 109}, {"kGrain", 110}, {"Source", 111}});
    kept.set("CustomComment", "m");
    EXPECT_EQ(stock.asTicket(), kept);
    EXPECT_EQ(stock.coatingType(), 108);

    DefaultStock(stock, JobContext::Insert);
    EXPECT_EQ(stock.size(), kUnset);
    EXPECT_EQ(stock.type(), kUnset);
    EXPECT_EQ(stock.color(), kUnset);
}

} // namespace
} // namespace kesta::stock_test
