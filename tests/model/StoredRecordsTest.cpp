// The bytes of a stored record do not change when it is read and written again.

#include "model/FaxRecipientList.h"
#include "model/FullColorOptions.h"
#include "model/InvertImage.h"
#include "model/SpecialPageList.h"
#include "platform/PropertyList.h"

#include <gtest/gtest.h>

namespace kesta::stored_records_test {
namespace {

using namespace Qt::StringLiterals;

// What is read back from the bytes of a record.
template <class Read> void ExpectSameBytes(const Value& stored, const Read& readAndWrite)
{
    const QByteArray bytes = WritePropertyList(stored);
    const PropertyListResult parsed = ParsePropertyList(bytes);
    ASSERT_TRUE(parsed.value) << parsed.error.toStdString();
    EXPECT_EQ(WritePropertyList(readAndWrite(*parsed.value)), bytes);
}

template <class Record> Value Written(const Value& stored)
{
    return Record(*stored.dictionary()).asTicket();
}

Stock FullStock()
{
    Stock stock;
    DefaultStock(stock, JobContext::Job);
    stock.setWidth(21000);
    stock.setLength(29700);
    stock.setType(6);
    stock.setModulus(5);
    stock.setSidesCoated(2);
    stock.setComment(u"<Ä & \"ö\">"_s);
    stock.setCustomNameOnly(true);
    return stock;
}

TEST(StoredRecords, KeepTheirBytes)
{
    ExpectSameBytes(FullStock().asTicket(), Written<Stock>);

    Cover cover;
    cover.stock() = FullStock();
    cover.setSidesImaged(3);
    ExpectSameBytes(cover.asTicket(), Written<Cover>);

    Insert insert;
    insert.setQuantity(9999999);
    ExpectSameBytes(insert.asTicket(), Written<Insert>);

    ExceptionPage exception;
    exception.setEndPage(99999);
    exception.setPlex(2);
    exception.imageShift() = {.option = 1, .inches = false, .X1 = 13, .Y2 = -4};
    ExpectSameBytes(exception.asTicket(), Written<ExceptionPage>);

    FullColorOptions color;
    color.setColorCast(-100, 0, 100);
    color.setTrapping(1);
    color.setTrappingAdjustment(20, 0);
    color.setTRC(u"curve"_s);
    color.setDestinationProfile(kNamedDestinationProfile, u"Coated"_s);
    ExpectSameBytes(color.asTicket(), Written<FullColorOptions>);

    ExpectSameBytes(InvertImageCreateTicketFromOptions({.mirrorImage = true}), [](const Value& stored) {
        II_Options options;
        InvertImageSetOptionsFromTicket(options, *stored.dictionary());
        return Value(InvertImageCreateTicketFromOptions(options));
    });
}

TEST(StoredRecords, ListsKeepTheirBytes)
{
    FaxRecipient recipient;
    recipient.setFaxNumber(u"+1 (555) 123-4567"_s);
    recipient.setMailbox(u""_s);
    FaxRecipientList recipients;
    recipients.append(FaxRecipientRef::Make(recipient).get());
    recipients.append(FaxRecipientRef::Make().get());
    ExpectSameBytes(recipients.toTicket(),
                    [](const Value& stored) { return FaxRecipientList(*stored.array()).toTicket(); });

    Insert first, second;
    first.setStartPage(3);
    InsertList inserts;
    inserts.add({&first, &second});
    ExpectSameBytes(*inserts.asTicket(), [](const Value& stored) {
        InsertList read;
        for (const Value& page : *stored.array()) {
            const Insert insert(*page.dictionary());
            read.add({&insert});
        }
        return Value(*read.asTicket());
    });
}

} // namespace
} // namespace kesta::stored_records_test
