#include "panels/paper_output/PaperOutputOptions.h"

#include "model/FirstSpecialPages.h"
#include "panels/paper_output/PaperOutputBindings.h"
#include "panels/special_pages/paper/SeparatorsRules.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"

#include <algorithm>

namespace kesta::paper_output {
namespace {

std::optional<SInt32> OnlyIf(bool condition, std::optional<SInt32> value)
{
    return condition ? value : std::nullopt;
}

void ReadStock(Stock& stock, const Ticket& settings, ppd_file_t* ppd)
{
    if (const Dictionary* stored = settings.values().dictionary(key::JobLevelStock))
        stock = Stock(*stored);
    else
        DefaultStock(stock, JobContext::Job);
    stock.setColor(PPDGetTicketValueForChoiceOrDefault(ppd, settings, "MediaColor").value_or(kUnset));
    stock.setType(PPDGetTicketValueForChoiceOrDefault(ppd, settings, "MediaType").value_or(kUnset));
}

void ReadFax(PaperOutputOptions& options, const Ticket& settings)
{
    const Dictionary* faxOptions = settings.values().dictionary(key::FaxOptions);
    const Array* recipients = settings.values().array(key::FaxRecipientList);
    options.faxOptions = faxOptions ? std::optional(*faxOptions) : std::nullopt;
    options.recipientList = recipients ? std::optional<FaxRecipientList>(std::in_place, *recipients) : std::nullopt;
}

std::optional<SInt32> ReadDuplexKey(const Ticket& settings, const char* key)
{
    const std::optional<SInt32> duplex = ReadTicketValue(settings, key);
    return OnlyIf(duplex >= kOneSided && duplex <= kTwoSidedShortEdge, duplex);
}

SInt32 ReadDuplex(const Ticket& settings, ppd_file_t* ppd, SInt32 before)
{
    for (const char* key : {key::FinishingDuplex, key::PMDuplexing}) {
        if (const std::optional<SInt32> duplex = ReadDuplexKey(settings, key))
            return *duplex;
    }
    return ReadPPDDuplex(settings, ppd).value_or(before);
}

// The driver wants a choice of its own for some staples on a landscape page, which has no ticket value.
SInt32 ReadStaple(const Ticket& settings, ppd_file_t* ppd)
{
    const std::optional<QString> choice = PPDCopyCurrentChoice(settings, OptionOf(Finishing::Staple));
    for (const FinishingKind& kind : kStaples) {
        if (kind.choiceOnLandscape && choice == QLatin1StringView(kind.choiceOnLandscape))
            return kind.value;
    }
    const std::optional<SInt32> staple =
        PPDGetTicketValueForChoiceOrDefault(ppd, settings, OptionOf(Finishing::Staple));
    return staple && FindFinishing(Finishing::Staple, *staple) ? *staple : kNotFinished;
}

void ReadFinishing(PaperOutputOptions& options, const Ticket& settings, ppd_file_t* ppd)
{
    options.finishingOption = ReadTicketValue(settings, key::FinishingOptions).value_or(kNoFinishing);
    options.offset = ReadTicketValue(settings, key::FinishingOffset).value_or(1);
    options.offsetSubset = ReadTicketValue(settings, key::FinishingOffsetEnableSubset).value_or(0);
    if (options.offsetSubset != 0)
        options.offsetPagesPerSubset = ReadTicketValue(settings, key::FinishingOffsetPagesPerSubset).value_or(1);
    options.slipSheet = ReadTicketValue(settings, key::FinishingSlipSheet).value_or(0);
    SInt32& fold = options.booklet.fold;
    fold = PPDGetTicketValueForChoiceOrDefault(ppd, settings, OptionOf(Finishing::Fold)).value_or(fold);
    options.punch =
        PPDGetTicketValueForChoiceOrDefault(ppd, settings, OptionOf(Finishing::Punch)).value_or(options.punch);
    options.staple = ReadStaple(settings, ppd);
    options.bindValue = ReadTicketValue(settings, key::FinishingBindValue).value_or(options.bindValue);
    const QString* custom = settings.values().string(key::FinishingCustom);
    options.finishingCustom = custom ? *custom : QString();
}

void WriteFax(const PaperOutputOptions& options, const TicketWriter& settings)
{
    if (options.faxOptions)
        settings.set(key::FaxOptions, *options.faxOptions);
    if (options.recipientList)
        settings.set(key::FaxRecipientList, options.recipientList->toTicket());
}

void WriteDuplex(PaperOutputOptions& options, const TicketWriter& settings)
{
    if (options.booklet.isOn())
        options.duplex = kTwoSidedShortEdge;
    PPDSetChoiceForTicketValue(settings, "Duplex", options.duplex);
    WriteTicketValue(settings, key::FinishingDuplex, options.duplex);
    WriteTicketValue(settings, key::PMDuplexing, options.duplex);
}

const char* StapleChoice(const PaperOutputOptions& options)
{
    const FinishingKind* kind = FindFinishing(Finishing::Staple, options.staple);
    const bool isLandscape = options.orientation == kOrientationLandscape;
    if (kind && kind->choiceOnLandscape && isLandscape && options.staple == kind->value)
        return kind->choiceOnLandscape;
    return PPDChoiceForTicketValue(OptionOf(Finishing::Staple), options.staple);
}

void WriteFinishing(const PaperOutputOptions& options, const TicketWriter& settings)
{
    const auto write = [&](const char* key, SInt32 value) { settings.set(key, Number::SInt32(value)); };

    WriteTicketValue(settings, key::FinishingOptions, options.finishingOption);
    write(key::FinishingOffset, options.offset);
    write(key::FinishingOffsetEnableSubset, options.offsetSubset);
    if (options.offsetSubset != 0)
        write(key::FinishingOffsetPagesPerSubset, options.offsetPagesPerSubset);
    write(key::FinishingSlipSheet, options.slipSheet);
    PPDSetChoiceForTicketValue(settings, OptionOf(Finishing::Fold), options.booklet.fold);
    PPDSetChoiceForTicketValue(settings, OptionOf(Finishing::Punch), options.punch);
    PPDSetCurrentChoice(settings, OptionOf(Finishing::Staple), StapleChoice(options));
    write(key::FinishingBindValue, options.bindValue);
    settings.set(key::FinishingCustom, options.finishingCustom);
}

} // namespace

SInt32 ReadOrientation(const Ticket& pageFormat)
{
    return ReadTicketValue(pageFormat, key::PMOrientation).value_or(1);
}

void ReadTicket(PaperOutputOptions& options, const Ticket& settings, ppd_file_t* ppd)
{
    ReadStock(options.stock, settings, ppd);
    ReadBindings(kBindings, options, settings, ppd);
    SyncSeparatorsFromTicket(&settings, options.separatorCount, options.separatorStock);
    ReadJobType(options.jobType, settings);
    ReadFax(options, settings);
    ReadBooklet(options.booklet, settings);
    options.duplex = ReadDuplex(settings, ppd, options.duplex);
    ReadFinishing(options, settings, ppd);
    if (isSpecialPageConfigured(settings))
        options.padPrintEnabled = 0;
}

OSStatus WriteTicket(PaperOutputOptions& options, Ticket& ticket, WriteScope scope)
{
    const TicketWriter settings(ticket, kPrintingManagerClient);

    settings.set(key::JobLevelStock, options.stock.asTicket());
    PPDSetChoiceForTicketValue(ticket, "MediaColor", options.stock.color());
    PPDSetChoiceForTicketValue(ticket, "MediaType", options.stock.type());
    WriteBindings(kBindings, options, settings);
    const OSStatus status = SyncSeparatorsToTicket(&ticket, options.separatorCount, options.separatorStock);
    WriteJobType(options.jobType, settings);
    WriteFax(options, settings);
    if (scope.booklet)
        WriteBooklet(options.booklet, settings);
    if (scope.duplex)
        WriteDuplex(options, settings);
    WriteFinishing(options, settings);
    return status;
}

bool isSpecialPageConfigured(const Ticket& settings)
{
    const std::optional<FirstSpecialPages> first = FirstSpecialPagesOf(settings);
    return first && first->holdsAny;
}

std::optional<SInt32> ReadPPDDuplex(const Ticket& settings, ppd_file_t* ppd)
{
    const std::optional<SInt32> duplex = PPDGetTicketValueForChoiceOrDefault(ppd, settings, "Duplex");
    return OnlyIf(duplex != kUnmappedChoice, duplex);
}

} // namespace kesta::paper_output
