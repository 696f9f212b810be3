#include "model/SpecialPage.h"

#include "pde/interface/TicketKeys.h"
#include "pde/ticket/RecordFields.h"
#include "pde/ticket/TicketUtilities.h"

namespace kesta {
namespace {

constexpr char kStockKey[] = "Stock";
constexpr char kStartPageKey[] = "StartPage";
constexpr char kSidesImagedKey[] = "SidesImaged";
constexpr char kQuantityKey[] = "Quantity";

using E = ExceptionPageFields;

constexpr Field<E> kExceptionFields[] = {
    {"EndPage", &E::endPage, always},
    {"SidesImaged", &E::plex},
    {"HalftoneScreen", &E::halftoneScreen, whenSet, never},
    {"LightenDarken", &E::lightenDarken},
};
static_assert(CoversEveryField<E>(kExceptionFields));

Dictionary DictionaryOrEmpty(const Dictionary& ticket, const char* key)
{
    const Dictionary* found = ticket.dictionary(key);
    return found ? *found : Dictionary();
}

SInt32 NumberOr(const Dictionary& ticket, const char* key, SInt32 whenAbsent)
{
    return CFDictionaryGetNumber<SInt32>(ticket, key).value_or(whenAbsent);
}

} // namespace

SpecialPage::SpecialPage(const Dictionary& ticket)
    : startPage_(NumberOr(ticket, kStartPageKey, 0)), stock_(DictionaryOrEmpty(ticket, kStockKey))
{
}

Dictionary SpecialPage::asTicket() const
{
    Dictionary ticket{{kStockKey, stock_.asTicket()}};
    WriteTicketValue(ticket, kStartPageKey, startPage_);
    return ticket;
}

Cover::Cover(const Dictionary& ticket) : SpecialPage(ticket), sidesImaged_(NumberOr(ticket, kSidesImagedKey, 1)) {}

Dictionary Cover::asTicket() const
{
    Dictionary ticket = SpecialPage::asTicket();
    WriteTicketValue(ticket, kSidesImagedKey, sidesImaged_);
    return ticket;
}

std::unique_ptr<SpecialPage> Cover::clone() const
{
    return std::make_unique<Cover>(*this);
}

bool Cover::operator==(const Cover& other) const
{
    return sidesImaged_ == other.sidesImaged_ && stock() == other.stock();
}

Insert::Insert(const Dictionary& ticket) : SpecialPage(ticket), quantity_(NumberOr(ticket, kQuantityKey, 1)) {}

Dictionary Insert::asTicket() const
{
    Dictionary ticket = SpecialPage::asTicket();
    WriteTicketValue(ticket, kQuantityKey, quantity_);
    return ticket;
}

std::unique_ptr<SpecialPage> Insert::clone() const
{
    return std::make_unique<Insert>(*this);
}

ExceptionPage::ExceptionPage(const Dictionary& ticket) : SpecialPage(ticket)
{
    ReadFields(fields_, kExceptionFields, ticket);
    if (const Dictionary* shift = ticket.dictionary(key::ImageShiftOptionsPage))
        ImageShiftSetOptionsFromTicket(imageShift_, *shift);
}

Dictionary ExceptionPage::asTicket() const
{
    Dictionary ticket = SpecialPage::asTicket();
    WriteFields(fields_, kExceptionFields, ticket);
    if (auto shift = ImageShiftCreateTicketFromOptions(&imageShift_, JobContext::ImageShift))
        ticket.set(key::ImageShiftOptionsPage, *std::move(shift));
    return ticket;
}

std::unique_ptr<SpecialPage> ExceptionPage::clone() const
{
    return std::make_unique<ExceptionPage>(*this);
}

} // namespace kesta
