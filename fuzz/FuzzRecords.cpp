// One property list into every record: what a record makes of it is written in a form that reads back as the same.

#include "Input.h"
#include "model/FaxRecipientList.h"
#include "model/FullColorOptions.h"
#include "model/InvertImage.h"
#include "model/SpecialPageList.h"
#include "panels/booklet_watermark/watermark/WatermarkData.h"
#include "platform/values/PropertyList.h"

using namespace kesta;
using fuzz::Require;

namespace {

template <class Record> void CheckRecord(const Dictionary& input)
{
    const Dictionary written = Record(input).asTicket();
    Require(Record(written).asTicket() == written);
}

// Setters and copies keep what belongs together, together.
void CheckStock(const Dictionary& input)
{
    const Stock read(input);
    const Stock consistent(read);
    Require(Stock(consistent) == consistent && (consistent.width() == kUnset || consistent.size() == kStockSizeCustom));
    Stock set;
    DefaultStock(set, read.source() == 1 ? JobContext::Job : JobContext::Insert);
    set = read;
    set.setSize(read.type());
    set.setWidth(read.length());
    set.setLength(read.width());
    set.setType(read.color());
    Require((set.width() == kUnset && set.length() == kUnset) || set.size() == kStockSizeCustom);
    Require(set.type() != kStockTypeTransparency || set.color() == kStockColorClear);
    const Cover cover = *static_cast<const Cover*>(Cover(input).clone().get());
    Require(*static_cast<const Cover*>(cover.clone().get()) == cover);
}

// The offsets are rounded to the record's units once.
void CheckImageShift(const Dictionary& input)
{
    for (const JobContext context : {JobContext::Job, JobContext::ExceptionPage}) {
        _IS_Options read, again;
        ImageShiftSetOptionsFromTicket(read, input);
        if (const auto written = ImageShiftCreateTicketFromOptions(&read, context))
            ImageShiftSetOptionsFromTicket(again, *written);
    }
}

void CheckInvertImage(const Dictionary& input)
{
    II_Options options, again;
    InvertImageSetOptionsFromTicket(options, input);
    InvertImageSetOptionsFromTicket(again, InvertImageCreateTicketFromOptions(options));
    Require(again == options);
}

void CheckWatermark(const Dictionary& input)
{
    using namespace booklet_watermark;
    _WatermarkData read, again;
    ReadWatermark(input, read);
    ReadWatermark(DictionaryFromWatermark(read), again);
    Require(again == read && NameOf(read) == read.fileName.get());
}

void CheckFaxRecipients(const Array& input)
{
    FaxRecipientList list(input);
    Require(FaxRecipientList(list.toTicket()).toTicket() == list.toTicket() && !list.recipientAtIndex(list.count()));
    const std::size_t count = list.count();
    for (std::size_t i = 0; i < count; ++i)
        list.append(list.recipientAtIndex(i));
    for (std::size_t i = 0; i < count; ++i) {
        const FaxRecipientRef first(list.recipientAtIndex(0));
        Require(list.containsRecipient(*first));
        list.remove(first.get());
    }
    list.removeAll();
    Require(list.count() == 0);
}

void CheckFaxRecipient(const Dictionary& input)
{
    const FaxRecipient recipient(input);
    Require(FaxRecipient(recipient.toTicket()).toTicket() == recipient.toTicket());
    FaxRecipient assigned;
    assigned = recipient;
    Require(assigned.toTicket() == recipient.toTicket());
    const QString number = recipient.faxNumber().value_or(QString());
    const QString dialed = CopyDialingStringFromFaxNumber(number);
    Require(CopyDialingStringFromFaxNumber(dialed) == dialed);
    CreateLANFaxSenderInformation(DisplayNameFromRecipient(recipient), recipient.organization().value_or(QString()),
                                  number, dialed, recipient.phoneNumber().value_or(QString()), {}, {});
}

void CheckEveryRecord(const Dictionary& input)
{
    CheckRecord<Stock>(input);
    CheckRecord<Cover>(input);
    CheckRecord<Insert>(input);
    CheckStock(input);
    CheckRecord<FullColorOptions>(input);
    const ExceptionPage exception(input);
    Require(ExceptionPage(exception.asTicket()).startPage() == exception.startPage());
    CheckImageShift(input);
    CheckInvertImage(input);
    CheckWatermark(input);
    CheckFaxRecipient(input);
}

// Of the pages that were added no two have a page in common.
void CheckExceptions(const Array& input)
{
    ExceptionPageList list;
    for (const Value& entry : input)
        if (const Dictionary* ticket = entry.dictionary()) {
            const ExceptionPage page(*ticket);
            Require(list.add({&page}) == noErr && list.indexOfPage(&page) == -1);
        }
    Require(list.clone()->asTicket() == list.asTicket());
    const Cover cover;
    Require(list.add({&cover}) == kMissingArgument && InsertList().add({&cover}) == kMissingArgument);
    Require(list.update(list.pageAtIndex(0), {&cover}) == (list.count() == 0 ? noErr : kMissingArgument));
    SInt64 last = std::numeric_limits<SInt64>::min();
    for (CFIndex i = 0; const SpecialPage* page = list.pageAtIndex(i); ++i) {
        Require(page->startPage() > last);
        last = std::max(page->startPage(), static_cast<const ExceptionPage*>(page)->endPage());
    }
}

// Moves the inserts about as their numbers of sheets say, then takes them out.
void CheckInserts(const Array& input)
{
    InsertList list;
    for (const Value& entry : input)
        if (const Dictionary* ticket = entry.dictionary()) {
            const Insert insert(*ticket);
            Require(list.add({&insert}) == noErr);
        }
    for (CFIndex i = 0; const SpecialPage* page = list.pageAtIndex(i); ++i)
        static_cast<const Insert*>(page)->quantity() % 2 ? list.promote(page) : list.demote(page);
    const std::size_t count = list.count();
    const auto copy = list.clone();
    Require(copy->asTicket() == list.asTicket() && (count == 0) == !list.asTicket());
    Require(copy->update(nullptr, {}) == noErr && copy->remove(nullptr) == -1 && copy->count() == count);
    if (SpecialPage* first = list.pageAtIndex(0)) {
        const Insert insert;
        Require(list.update(first, {&insert, &insert}) == noErr && list.count() == count + 1);
    }
    while (SpecialPage* page = list.pageAtIndex(0))
        Require(list.remove(page) == noErr);
}

void CheckArray(const Array& input)
{
    CheckExceptions(input);
    CheckInserts(input);
    CheckFaxRecipients(input);
    for (const Value& entry : input)
        if (const Dictionary* ticket = entry.dictionary())
            CheckEveryRecord(*ticket);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const PropertyListResult list = ParsePropertyList(fuzz::Bytes(data, size));
    if (const Dictionary* record = list.value ? list.value->dictionary() : nullptr)
        CheckEveryRecord(*record);
    if (const Array* records = list.value ? list.value->array() : nullptr)
        CheckArray(*records);
    return 0;
}
