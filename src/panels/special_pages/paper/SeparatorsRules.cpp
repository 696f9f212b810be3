#include "panels/special_pages/paper/SeparatorsRules.h"

#include "panels/special_pages/paper/StockIcon.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "product/Westmarch2.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

// An option that the dialog does not offer counts as none.
SInt32 ReadOption(const Ticket& settings)
{
    const std::optional<SInt32> option = ReadTicketValue(settings, key::SeparatorOption);
    const bool isOffered =
        std::ranges::find(_SeparatorOptionMap, option, &SettingRow::value) != _SeparatorOptionMap.end();
    return isOffered ? *option : kSeparatorsNone;
}

} // namespace

OSStatus SyncSeparatorsFromTicket(const Ticket* settings, SInt32& option, Stock& stock)
{
    if (!settings)
        return kMissingArgument;
    stock = Stock();
    option = ReadOption(*settings);
    if (option == kSeparatorsNone)
        return noErr;
    const std::optional<SInt32> color = ReadTicketValue(*settings, key::SeparatorColor);
    stock.setColor(color.value_or(kUnset));
    return color ? noErr : kNoSuchTicketEntry;
}

OSStatus SyncSeparatorsToTicket(Ticket* settings, SInt32 option, const Stock& stock)
{
    if (!settings)
        return kMissingArgument;
    const TicketWriter ticket(*settings, kPlaceholderClient);
    const OSStatus status = WriteTicketValue(ticket, key::SeparatorOption, option);
    return option == kSeparatorsNone ? status : WriteTicketValue(ticket, key::SeparatorColor, stock.color());
}

QString SeparatorsPicture(SInt32 option, SInt32 color)
{
    // A clear sheet is no separator, so there is none in the pictures.
    const QString word = StockColorWord(color == kStockColorClear ? kStockColorWhite : color);
    switch (option) {
    case kSeparatorsNone:
        return u"Paper_TransparencySeparators_NoSeps.gif"_s;
    case kSeparatorsBlank:
        return u"Paper_TransparencySeparators_BlnkSeps-%1.gif"_s.arg(word);
    case kSeparatorsPrinted:
        return u"Paper_TransparencySeparators_PrntdSeps-%1.gif"_s.arg(word);
    default:
        return {};
    }
}

} // namespace kesta
