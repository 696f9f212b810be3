#include "panels/paper_output/PaperOutputOptions.h"

#include "panels/special_pages/paper/SeparatorsDialog.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/Mappings.h"
#include "pde/ticket/TicketUtilities.h"

#include <algorithm>

namespace kesta::paper_output {
namespace {

constexpr SInt32 kHighestJobType = 9;

// The option's only choice without a row in its map: the driver wants it for a single staple on a landscape page.
constexpr char kLandscapeStaple[] = "SingleLandscape";

std::optional<SInt32> OnlyIf(bool condition, std::optional<SInt32> value)
{
    return condition ? value : std::nullopt;
}

std::optional<CFIndex> ReadIndex(const Dictionary& dictionary, const char* key)
{
    return CFDictionaryGetNumber<SInt64>(dictionary, key);
}

std::optional<QString> ReadString(const Dictionary& dictionary, const char* key)
{
    const QString* text = dictionary.string(key);
    return text ? std::optional(*text) : std::nullopt;
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

SInt32 ReadPrintQuality(const Ticket& settings)
{
    const std::optional<SInt32> quality = ReadTicketValue(settings, key::FinishingOutputColor);
    const bool isOffered = std::ranges::find(_PrintQualityMap, quality, &SettingRow::value) != _PrintQualityMap.end();
    return isOffered ? *quality : kStandardQuality;
}

Dictionary CopyJobTypeDictionary(const Ticket& settings)
{
    if (const Dictionary* stored = settings.values().dictionary(key::JobType))
        return *stored;
    return {{key::JobTypeMediaType, Number::Index(1)},
            {key::JobTypeNumber, Number::SInt32(kJobTypeNormal)},
            {key::JobTypeUseJobName, true},
            {key::JobTypeSavedJobName, ""}};
}

void ReadJobType(PaperOutputOptions& options, const Ticket& settings)
{
    const Dictionary job = CopyJobTypeDictionary(settings);
    const SInt32 type = CFDictionaryGetNumber<SInt32>(job, key::JobTypeNumber).value_or(kJobTypeNormal);

    options.jobType = type >= kJobTypeNormal && type <= kHighestJobType ? type : kJobTypeNormal;
    JobTypeDetails& details = options.jobTypeDetails;
    details.mediaTypeInJob = ReadIndex(job, key::JobTypeMediaType).value_or(1);
    details.useJobName = job.boolean(key::JobTypeUseJobName).value_or(true);
    details.savedJobName = ReadString(job, key::JobTypeSavedJobName);
    details.savedJobLocation = ReadString(job, key::JobTypeSavedJobLocation);
    details.useDefaultLocation = !details.savedJobLocation;
    details.securePasscode = ReadString(job, key::JobTypeSecurePrintPassword);
    details.hasPasscode = details.securePasscode.has_value();
    details.delayedPrintTime = ReadIndex(job, key::JobTypeDelayedPrintTime).value_or(details.delayedPrintTime);
    details.saveDisposition = ReadIndex(job, key::JobTypeSaveDisposition).value_or(1);
    options.jobTypeDict = job;
}

void ReadFax(PaperOutputOptions& options, const Ticket& settings)
{
    const Dictionary* faxOptions = settings.values().dictionary(key::FaxOptions);
    const Array* recipients = settings.values().array(key::FaxRecipientList);
    options.faxOptions = faxOptions ? std::optional(*faxOptions) : std::nullopt;
    options.recipientList = recipients ? std::optional<FaxRecipientList>(std::in_place, *recipients) : std::nullopt;
}

std::optional<SInt32> ReadForcedSize(const Dictionary& settings)
{
    const Dictionary* stock = settings.dictionary(key::JobLevelStock);
    const bool isForced = settings.boolean(key::BookletForceNewSize).value_or(false);
    return isForced && stock ? CFDictionaryGetNumber<SInt32>(*stock, "Size") : std::nullopt;
}

void ReadBooklet(PaperOutputOptions& options, const Ticket& settings)
{
    options.bookletLayout = settings.values().boolean(key::BookletLayout).value_or(false) ? kBookletOn : kBookletOff;
    if (options.bookletLayout == kBookletOff)
        return;
    options.bookletDrawOutlines =
        ReadTicketValue(settings, key::BookletDrawOutlines).value_or(options.bookletDrawOutlines);
    options.bookletSize = ReadForcedSize(settings.values()).value_or(kUnset);
    options.bookletGutter = ReadTicketValue(settings, key::Gutter).value_or(24);
    options.bookletCreep = ReadTicketValue(settings, key::Creep).value_or(0);
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

SInt32 ReadStaple(const Ticket& settings, ppd_file_t* ppd)
{
    if (PPDCopyCurrentChoice(settings, "StapleLocation") == QLatin1StringView(kLandscapeStaple))
        return kSingleStaple;
    return PPDGetTicketValueForChoiceOrDefault(ppd, settings, "StapleLocation").value_or(kNone);
}

void ReadStaples(PaperOutputOptions& options, const Ticket& settings, ppd_file_t* ppd)
{
    const SInt32 staple = ReadStaple(settings, ppd);
    const auto among = [staple](SInt32 first, SInt32 last) { return staple >= first && staple <= last; };
    options.singleStaple = among(5, 8) ? staple : kNone;
    options.dualStaple = among(10, 13) ? staple : kNone;
    options.multipleStaple = among(54, 57) ? staple : kNone;
}

void ReadFinishing(PaperOutputOptions& options, const Ticket& settings, ppd_file_t* ppd)
{
    options.finishingOption = ReadTicketValue(settings, key::FinishingOptions).value_or(kNoFinishing);
    options.offset = ReadTicketValue(settings, key::FinishingOffset).value_or(1);
    options.offsetSubset = ReadTicketValue(settings, key::FinishingOffsetEnableSubset).value_or(0);
    if (options.offsetSubset != 0)
        options.offsetPagesPerSubset = ReadTicketValue(settings, key::FinishingOffsetPagesPerSubset).value_or(1);
    options.slipSheet = ReadTicketValue(settings, key::FinishingSlipSheet).value_or(0);
    options.fold = PPDGetTicketValueForChoiceOrDefault(ppd, settings, "KSFold").value_or(options.fold);
    options.punch = PPDGetTicketValueForChoiceOrDefault(ppd, settings, "KSPunch").value_or(options.punch);
    ReadStaples(options, settings, ppd);
    options.bindValue = ReadTicketValue(settings, key::FinishingBindValue).value_or(options.bindValue);
    options.finishingCustom = ReadString(settings.values(), key::FinishingCustom).value_or(QString());
}

void SetOrRemove(Dictionary& dictionary, const char* key, bool useDefault, const std::optional<QString>& text)
{
    if (useDefault)
        dictionary.remove(key);
    else if (text)
        dictionary.set(key, *text);
}

void WriteJobType(PaperOutputOptions& options, const TicketWriter& settings)
{
    const JobTypeDetails& details = options.jobTypeDetails;
    Dictionary& job = options.jobTypeDict;
    job.set(key::JobTypeMediaType, Number::Index(details.mediaTypeInJob));
    job.set(key::JobTypeUseJobName, details.useJobName);
    job.set(key::JobTypeNumber, Number::SInt32(options.jobType));
    SetOrRemove(job, key::JobTypeSavedJobName, details.useJobName, details.savedJobName);
    SetOrRemove(job, key::JobTypeSavedJobLocation, details.useDefaultLocation, details.savedJobLocation);
    if (details.securePasscode)
        job.set(key::JobTypeSecurePrintPassword, *details.securePasscode);
    job.set(key::JobTypeDelayedPrintTime, Number::SInt64(details.delayedPrintTime));
    if (options.jobType == kJobTypeSavedJob)
        job.set(key::JobTypeSaveDisposition, Number::Index(details.saveDisposition));
    else
        job.remove(key::JobTypeSaveDisposition);
    settings.set(key::JobType, job);
}

void WriteFax(const PaperOutputOptions& options, const TicketWriter& settings)
{
    if (options.faxOptions)
        settings.set(key::FaxOptions, *options.faxOptions);
    if (options.recipientList)
        settings.set(key::FaxRecipientList, options.recipientList->toTicket());
}

void WriteBooklet(const PaperOutputOptions& options, const TicketWriter& settings)
{
    const bool isOn = options.bookletLayout == kBookletOn;
    settings.set(key::BookletLayout, isOn);
    if (!isOn)
        return;
    const bool isForced = options.bookletSize != kUnset;
    Dictionary stock = options.stock.asTicket();
    if (isForced)
        stock.set("Size", Number::Index(options.bookletSize));
    else
        stock.remove("Size");

    WriteTicketValue(settings, key::BookletDrawOutlines, options.bookletDrawOutlines);
    settings.set(key::JobLevelStock, std::move(stock));
    settings.set(key::BookletForceNewSize, isForced);
    WriteTicketValue(settings, key::Gutter, options.bookletGutter);
    WriteTicketValue(settings, key::Creep, options.bookletCreep);
}

void WriteDuplex(PaperOutputOptions& options, const TicketWriter& settings)
{
    if (options.bookletLayout == kBookletOn)
        options.duplex = kTwoSidedShortEdge;
    PPDSetChoiceForTicketValue(settings, "Duplex", options.duplex);
    WriteTicketValue(settings, key::FinishingDuplex, options.duplex);
    WriteTicketValue(settings, key::PMDuplexing, options.duplex);
}

const char* StapleChoice(const PaperOutputOptions& options)
{
    if (options.singleStaple == kSingleStaple && options.orientation == kOrientationLandscape)
        return kLandscapeStaple;
    if (options.singleStaple != kNone)
        return PPDChoiceForTicketValue("StapleLocation", options.singleStaple);
    if (options.dualStaple != kNone)
        return PPDChoiceForTicketValue("StapleLocation", options.dualStaple);
    return PPDChoiceForTicketValue("StapleLocation", options.multipleStaple);
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
    PPDSetChoiceForTicketValue(settings, "KSFold", options.fold);
    PPDSetChoiceForTicketValue(settings, "KSPunch", options.punch);
    PPDSetCurrentChoice(settings, "StapleLocation", StapleChoice(options));
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
    options.outputBin = PPDGetTicketValueForChoiceOrDefault(ppd, settings, "OutputBin").value_or(kUnset);
    options.printQuality = ReadPrintQuality(settings);
    SyncSeparatorsFromTicket(&settings, options.separatorCount, options.separatorStock);
    ReadJobType(options, settings);
    ReadFax(options, settings);
    ReadBooklet(options, settings);
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
    PPDSetChoiceForTicketValue(ticket, "OutputBin", options.outputBin);
    WriteTicketValue(settings, key::FinishingOutputColor, options.printQuality);
    const OSStatus status = SyncSeparatorsToTicket(&ticket, options.separatorCount, options.separatorStock);
    WriteJobType(options, settings);
    WriteFax(options, settings);
    if (scope.booklet)
        WriteBooklet(options, settings);
    if (scope.duplex)
        WriteDuplex(options, settings);
    WriteFinishing(options, settings);
    return status;
}

bool isSpecialPageConfigured(const Ticket& settings)
{
    for (const char* key : {key::SpecialPagesExceptionList, key::SpecialPagesInsertList, key::SpecialPagesFrontCover,
                            key::SpecialPagesBackCover}) {
        if (const Array* list = settings.values().array(key))
            return !list->empty();
        if (const Dictionary* cover = settings.values().dictionary(key))
            return cover->count() > 0;
    }
    return false;
}

std::optional<SInt32> ReadPPDDuplex(const Ticket& settings, ppd_file_t* ppd)
{
    const std::optional<SInt32> duplex = PPDGetTicketValueForChoiceOrDefault(ppd, settings, "Duplex");
    return OnlyIf(duplex != kUnmappedChoice, duplex);
}

} // namespace kesta::paper_output
