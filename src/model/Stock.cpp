#include "model/Stock.h"

#include "pde/RecordFields.h"

namespace kesta {
namespace {

using F = StockFields;

constexpr SInt32 kTypePrecutTab = 4;
constexpr SInt32 kTypeCustom = 6;

bool IsCustomSize(const F& fields)
{
    return fields.size == kStockSizeCustom;
}

bool IsCoated(const F& fields)
{
    return fields.sidesCoated != kUnset;
}

bool TicketHasCustomSize(const F&, const Dictionary& ticket)
{
    return CFDictionaryGetNumber<SInt32>(ticket, "Size") == kStockSizeCustom;
}

bool TicketIsCoated(const F&, const Dictionary& ticket)
{
    return CFDictionaryGetNumber<SInt32>(ticket, "SidesCoated").has_value();
}

// Tab stock itself keeps its modulus only until it is read back.
bool TypeHasModulus(const F& read, const Dictionary&)
{
    return read.type == kTypePrecutTab || read.type == kTypeCustom;
}

// clang-format off
constexpr Field<F> kFields[] = {
//   key               field               written       read
    {"Size",           &F::size,           whenSet,      always},
    {"Width",          &F::width,          IsCustomSize, TicketHasCustomSize},
    {"Length",         &F::length,         IsCustomSize, TicketHasCustomSize},
    {"Type",           &F::type,           always,       always},
    {"CustomType",     &F::customType,     whenSet,      always},
    {"Modulus",        &F::modulus,        whenSet,      TypeHasModulus},
    {"Color",          &F::color,          whenSet,      always},
    {"CustomColor",    &F::customColor,    whenSet,      always},
    {"Weight",         &F::weight,         whenSet,      always},
    {"Punched",        &F::punched,        whenSet,      always},
    {"Description",    &F::description,    whenSet,      always},
    {"SidesCoated",    &F::sidesCoated,    whenSet,      always},
    {"kCoatingType",   &F::coatingType,    IsCoated,     TicketIsCoated},
    {"Finish",         &F::finish,         whenSet,      always},
    {"kGrain",         &F::grain,          whenSet,      always},
    {"CustomName",     &F::customName,     whenSet,      always},
    {"CustomNameOnly", &F::customNameOnly, whenSet,      always},
    {"CustomComment",  &F::comment,        whenSet,      always},
    {"Source",         &F::source,         whenSet,      always},
};
// clang-format on
static_assert(CoversEveryField<F>(kFields));

F Consistent(F fields)
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
    UnsetFields(fields_, kFields);
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
    WriteFields(fields_, kFields, ticket);
    return ticket;
}

void Stock::fromTicket(const Dictionary& ticket)
{
    ReadFields(fields_, kFields, ticket);
}

bool Stock::operator==(const Stock& other) const
{
    return SameFields(fields_, other.fields_, kFields, Qt::CaseInsensitive);
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
