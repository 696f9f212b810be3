#include "model/Stock.h"

#include "pde/ticket/RecordFields.h"

namespace kesta {
namespace {

using S = StockFields;

bool IsCustomSize(const S& fields)
{
    return fields.size == kStockSizeCustom;
}

bool IsCoated(const S& fields)
{
    return fields.sidesCoated != kUnset;
}

bool TicketHasCustomSize(const S&, const Dictionary& ticket)
{
    return CFDictionaryGetNumber<SInt32>(ticket, "Size") == kStockSizeCustom;
}

bool TicketIsCoated(const S&, const Dictionary& ticket)
{
    return CFDictionaryGetNumber<SInt32>(ticket, "SidesCoated").has_value();
}

// Tab stock itself keeps its modulus only until it is read back.
bool TypeHasModulus(const S& read, const Dictionary&)
{
    return read.type == kStockTypePrecutTab || read.type == kStockTypeOrdered;
}

// clang-format off
constexpr Field<S> kStockFields[] = {
//   key               field               written       read
    {"Size",           &S::size,           whenSet,      always},
    {"Width",          &S::width,          IsCustomSize, TicketHasCustomSize},
    {"Length",         &S::length,         IsCustomSize, TicketHasCustomSize},
    {"Type",           &S::type,           always,       always},
    {"CustomType",     &S::customType,     whenSet,      always},
    {"Modulus",        &S::modulus,        whenSet,      TypeHasModulus},
    {"Color",          &S::color,          whenSet,      always},
    {"CustomColor",    &S::customColor,    whenSet,      always},
    {"Weight",         &S::weight,         whenSet,      always},
    {"Punched",        &S::punched,        whenSet,      always},
    {"Description",    &S::description,    whenSet,      always},
    {"SidesCoated",    &S::sidesCoated,    whenSet,      always},
    {"kCoatingType",   &S::coatingType,    IsCoated,     TicketIsCoated},
    {"Finish",         &S::finish,         whenSet,      always},
    {"kGrain",         &S::grain,          whenSet,      always},
    {"CustomName",     &S::customName,     whenSet,      always},
    {"CustomNameOnly", &S::customNameOnly, whenSet,      always},
    {"CustomComment",  &S::comment,        whenSet,      always},
    {"Source",         &S::source,         whenSet,      always},
};
// clang-format on
static_assert(CoversEveryField<S>(kStockFields));

S Consistent(S fields)
{
    if (fields.width != kUnset || fields.length != kUnset)
        fields.size = kStockSizeCustom;
    if (fields.type == kStockTypeTransparency)
        fields.color = kStockColorClear;
    return fields;
}

} // namespace

Stock::Stock(const Dictionary& ticket)
{
    UnsetFields(fields_, kStockFields);
    fromTicket(ticket);
}

Stock::Stock(const Stock& other) : fields_(Consistent(other.fields_)) {}

Stock& Stock::operator=(const Stock& other)
{
    if (this != &other)
        fields_ = Consistent(other.fields_);
    return *this;
}

void Stock::setSize(SInt32 size)
{
    fields_.size = size;
    if (size != kStockSizeCustom)
        fields_.width = fields_.length = kUnset;
}

void Stock::setWidth(SInt32 width)
{
    fields_.width = width;
    if (width != kUnset)
        fields_.size = kStockSizeCustom;
}

void Stock::setLength(SInt32 length)
{
    fields_.length = length;
    if (length != kUnset)
        fields_.size = kStockSizeCustom;
}

void Stock::setType(SInt32 type)
{
    fields_.type = type;
    if (type == kStockTypeTransparency)
        fields_.color = kStockColorClear;
}

Dictionary Stock::asTicket() const
{
    Dictionary ticket;
    WriteFields(fields_, kStockFields, ticket);
    return ticket;
}

void Stock::fromTicket(const Dictionary& ticket)
{
    ReadFields(fields_, kStockFields, ticket);
}

bool Stock::operator==(const Stock& other) const
{
    return SameFields(fields_, other.fields_, kStockFields, Qt::CaseInsensitive);
}

void DefaultStock(Stock& stock, JobContext context)
{
    const bool isJob = context == JobContext::Job;
    stock.setSize(isJob ? kStockSizeLetter : kUnset);
    stock.setType(isJob ? kStockTypeStandard : kUnset);
    stock.setColor(isJob ? kStockColorWhite : kUnset);
    stock.setPunched(kUnset);
    stock.setWeight(kUnset);
    stock.setModulus(kUnset);
    stock.setSidesCoated(kUnset);
    stock.setCustomType({});
    stock.setCustomColor({});
    stock.setDescription({});
    stock.setCustomName({});
    stock.setCustomNameOnly(false);
}

} // namespace kesta
