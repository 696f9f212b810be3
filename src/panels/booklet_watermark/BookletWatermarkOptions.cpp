#include "panels/booklet_watermark/BookletWatermarkOptions.h"

#include "model/SpecialPage.h"
#include "pde/interface/TicketKeys.h"
#include "printer/FinishingKinds.h"
#include "printer/InstallableOptions.h"

#include <cstdio>
#include <utility>

namespace kesta::booklet_watermark {
namespace {

constexpr SInt32 kTumble = 3; // two-sided, to be turned at the short edge
constexpr QSizeF kLetterPage(612, 792);
constexpr double kLargestSide = 14400; // points

// Orientations of the page format.
constexpr SInt32 kTurnedRight = 2;
constexpr SInt32 kUpsideDown = 3;

void WriteTwoSided(const TicketWriter& settings, SInt32 duplex)
{
    PPDSetChoiceForTicketValue(settings, "Duplex", duplex);
    WriteTicketValue(settings, key::PMDuplexing, duplex);
    WriteTicketValue(settings, key::FinishingDuplex, duplex);
}

void ForceTwoSided(const TicketWriter& settings, ppd_file_t* ppd)
{
    const SInt32 duplex = PPDGetTicketValueForChoiceOrDefault(ppd, settings, "Duplex").value_or(0);
    previousSelection() = duplex == kUnmappedChoice ? 0 : duplex;
    WriteTwoSided(settings, kTumble);
}

// Once: what the user picks later stands.
void EndBooklet(BookletWatermarkOptions& options, const TicketWriter& settings)
{
    if (!std::exchange(options.wasOn, false))
        return;
    if (const SInt32 duplex = std::exchange(previousSelection(), 0))
        WriteTwoSided(settings, duplex);
}

void WriteLayout(BookletWatermarkOptions& options, const TicketWriter& settings, ppd_file_t* ppd)
{
    const Booklet& booklet = options.booklet;
    if (!booklet.isOn()) {
        WriteBooklet(booklet, settings);
        return EndBooklet(options, settings);
    }
    options.wasOn = true;
    ForceTwoSided(settings, ppd);
    WriteBooklet(booklet, settings);
    Ticket& ticket = settings;
    if (const std::optional<bool> isForced = ticket.values().boolean(key::BookletForceNewSize))
        ticket.set(kPlaceholderClient, key::BookletForceNewSize, *isForced);
    std::fprintf(stderr, "BookletWatermarkPanel - PMTicketSetCFNumber - Gutter - %d\n", booklet.gutter);
}

void WriteFolding(SInt32 fold, const TicketWriter& settings)
{
    PPDSetChoiceForTicketValue(settings, OptionOf(Finishing::Fold), fold);
    SInt32 finishing = ReadTicketValue(settings, key::FinishingOptions).value_or(kNoFinishing);
    if (fold == kFoldBi || fold == kFoldBiStaple)
        finishing = kBookletFoldFinishing;
    else if (finishing == kBookletFoldFinishing)
        finishing = kNoFinishing;
    WriteTicketValue(settings, key::FinishingOptions, finishing);
}

// One sheet around a booklet is both its covers.
void WriteCovers(const Booklet& booklet, const TicketWriter& settings)
{
    const Dictionary& values = static_cast<Ticket&>(settings).values();
    const Dictionary* front = values.dictionary(key::SpecialPagesFrontCover);
    const Dictionary* back = values.dictionary(key::SpecialPagesBackCover);
    if (booklet.isOn() && front && back && Cover(*front) == Cover(*back))
        settings.remove(key::SpecialPagesBackCover);
}

void WriteWatermark(BookletWatermarkOptions& options, const TicketWriter& settings, const QStringList& names,
                    const MakeFont& makeFont)
{
    const QString name = WatermarkOfItem(names, options.watermark.item);
    const ConvertedFont font = name.isEmpty() ? ConvertedFont() : makeFont(name);
    options.subsetFontName = font.subsetName;
    options.fontProblem = font.problem;
    if (font.subsetName.isEmpty())
        settings.remove(key::WatermarkSubsetFontName);
    else
        settings.set(key::WatermarkSubsetFontName, font.subsetName);
    if (name.isEmpty()) {
        settings.remove(key::WatermarkName);
        return;
    }
    settings.set(key::WatermarkName, name);
    settings.set(key::WatermarkOption, Number::SInt32(options.watermark.layer));
    settings.set(key::WatermarkFirstPageOnly, Number::SInt32(options.watermark.pages == kAllPages ? 0 : 1));
}

void ReadWatermarkChoice(WatermarkChoice& watermark, const Ticket& settings, const QStringList& names)
{
    const QString* name = settings.values().string(key::WatermarkName);
    watermark.item = name ? ItemOfWatermark(names, *name) : kNoWatermarkItem;
    watermark.missing = name && watermark.item == kNoWatermarkItem ? *name : QString();
    const bool isFirstOnly = ReadTicketValue(settings, key::WatermarkFirstPageOnly).value_or(0) != 0;
    watermark.pages = isFirstOnly ? kFirstPageOnly : kAllPages;
    watermark.layer = ReadTicketValue(settings, key::WatermarkOption).value_or(kLayerBlend);
}

// The ticket has top, left, bottom and right.
QSizeF PaperSize(const Ticket& pageFormat)
{
    const Array* sides = pageFormat.values().array(key::PMUnadjustedPaperRect);
    if (!sides || sides->size() != 4)
        return kLetterPage;
    const auto side = [&](std::size_t index) {
        const Number* number = (*sides)[index].number();
        return number ? number->as<Float64>().value_or(0) : 0;
    };
    const QSizeF size(side(3) - side(1), side(2) - side(0));
    const bool isPaper =
        size.width() >= 1 && size.height() >= 1 && size.width() <= kLargestSide && size.height() <= kLargestSide;
    return isPaper ? size : kLetterPage;
}

} // namespace

SInt32& previousSelection()
{
    static SInt32 selection = 0;
    return selection;
}

void ReadTicket(BookletWatermarkOptions& options, const Ticket& settings, ppd_file_t* ppd, const QStringList& names)
{
    Booklet& booklet = options.booklet;
    options.lock = BookletLockOf(settings, ppd);
    options.foldsBooklets = getInstalledFeature("BookletFoldKey");
    if (options.foldsBooklets)
        booklet.fold =
            PPDGetTicketValueForChoiceOrDefault(ppd, settings, OptionOf(Finishing::Fold)).value_or(booklet.fold);
    ReadBooklet(booklet, settings);
    if (std::exchange(options.wasOn, booklet.isOn()) && !booklet.isOn())
        previousSelection() = 0; // whoever ended the booklet has looked after the sides, too
    ReadWatermarkChoice(options.watermark, settings, names);
}

void WriteBookletAtOnce(BookletWatermarkOptions& options, Ticket& ticket)
{
    const Booklet& booklet = options.booklet;
    const TicketWriter settings(ticket, kPrintingManagerClient);
    settings.set(key::BookletLayout, booklet.isOn());
    PPDSetChoiceForTicketValue(settings, OptionOf(Finishing::Fold), booklet.fold);
    if (!booklet.isOn())
        EndBooklet(options, settings);
}

void WriteTicket(BookletWatermarkOptions& options, Ticket& ticket, ppd_file_t* ppd, const QStringList& names,
                 BookletScope scope, const MakeFont& makeFont)
{
    const TicketWriter settings(ticket, kPrintingManagerClient);
    if (scope == BookletScope::Written) {
        WriteLayout(options, settings, ppd);
        WriteFolding(options.booklet.fold, settings);
        WriteCovers(options.booklet, settings);
    }
    WriteWatermark(options, settings, names, makeFont);
}

QSizeF ReadPageSize(const Ticket& pageFormat)
{
    const QSizeF paper = PaperSize(pageFormat);
    const SInt32 orientation = ReadTicketValue(pageFormat, key::PMOrientation).value_or(1);
    return orientation == kTurnedRight || orientation == kUpsideDown ? paper.transposed() : paper;
}

} // namespace kesta::booklet_watermark
