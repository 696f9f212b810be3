#include "panels/special_pages/editors/CoversRules.h"

#include "pde/interface/TicketKeys.h"
#include "pde/menus/Mappings.h"
#include "pde/ticket/LocalizedText.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "product/Westmarch2.h"

#include <algorithm>

namespace kesta {
namespace {

CoverSlot CloneOf(const CoverSlot& cover)
{
    return cover ? std::make_unique<Cover>(*cover) : nullptr;
}

CoverSlot NewCover(SInt32 tray)
{
    auto cover = std::make_unique<Cover>();
    DefaultStock(cover->stock(), JobContext::Cover);
    cover->stock().setSource(tray);
    return cover;
}

CoverSlot ReadCover(const Ticket& settings, const char* key)
{
    const Dictionary* stored = settings.values().dictionary(key);
    return stored ? std::make_unique<Cover>(*stored) : nullptr;
}

OSStatus WriteCover(const TicketWriter& settings, const char* key, const Cover* cover)
{
    return cover ? settings.set(key, cover->asTicket()) : settings.remove(key);
}

// The option's covers: front, back.
struct Wanted {
    bool front, back;
};

constexpr Wanted WantedBy(SInt32 option)
{
    const bool both = option == kSameCovers || option == kDifferentCovers;
    return {both || option == kFrontCoverOnly, both || option == kBackCoverOnly};
}

void Keep(CoverSlot edited, CoverSlot& slot)
{
    if (slot && edited)
        *slot = *edited;
    else
        slot = std::move(edited);
}

bool HasPaper(const Stock& stock)
{
    return stock.size() != kUnset || stock.color() != kUnset || stock.type() != kUnset || !stock.customName().isEmpty();
}

} // namespace

Covers CloneOf(const CoverSlot& front, const CoverSlot& back)
{
    return {CloneOf(front), CloneOf(back)};
}

bool IsBookletLayoutOn(const Ticket& settings)
{
    return settings.values().boolean(key::BookletLayout).value_or(false);
}

bool GoesWithoutBackCover(const Ticket& settings, const CoverSlot& front, const CoverSlot& back)
{
    return front && back && IsBookletLayoutOn(settings) && *front == *back;
}

OSStatus SyncCovers(Ticket& settings, SyncDirection direction, CoverSlot& front, CoverSlot& back)
{
    if (direction == SyncDirection::ControlsToTickets) {
        const TicketWriter writer(settings, kKestaClient);
        const Cover* written = GoesWithoutBackCover(settings, front, back) ? nullptr : back.get();
        WriteCover(writer, key::SpecialPagesFrontCover, front.get());
        return WriteCover(writer, key::SpecialPagesBackCover, written);
    }
    front = ReadCover(settings, key::SpecialPagesFrontCover);
    back = IsBookletLayoutOn(settings) ? CloneOf(front) : ReadCover(settings, key::SpecialPagesBackCover);
    return noErr;
}

OSStatus WriteEditedCovers(Ticket& settings, const Covers& covers)
{
    const TicketWriter writer(settings, kKestaClient);
    OSStatus status = noErr;
    if (covers.front || covers.back)
        status = WriteCover(writer, key::SpecialPagesFrontCover, covers.front.get());
    return covers.back ? WriteCover(writer, key::SpecialPagesBackCover, covers.back.get()) : status;
}

SettingMap CoverSidesMap(const Ticket* settings)
{
    if (!settings)
        return _CoverSidesImagedMap;
    const SInt32 duplexing = ReadTicketValue(*settings, key::PMDuplexing).value_or(1);
    return duplexing == 2 || duplexing == 3 ? SettingMap(_CoverSidesDuplexImagedMap)
                                            : SettingMap(_CoverSidesSimplexImagedMap);
}

std::optional<SInt32> OfferedSides(SettingMap map, SInt32 sides)
{
    if (TicketToUI(map, sides) > 0)
        return sides;
    const bool isPrinted = sides == kCoverPrintedFront || sides == kCoverPrintedBoth;
    const auto printed = std::ranges::find_if(map, [](const SettingRow& row) { return row.value != kCoverBlank; });
    return isPrinted && printed != map.end() ? std::optional(printed->value) : std::nullopt;
}

QString CoverSidesText(const Bundle& bundle, SettingMap map, SInt32 sides)
{
    if (const std::optional<SInt32> offered = OfferedSides(map, sides))
        return LocalizedString(bundle, LocalizedKeyForTicketValue(map, *offered));
    if (sides == kCoverPrintedBack)
        return LocalizedString(bundle, "CoverPrintedBack");
    return LocalizedFormat(bundle, "Unknown Setting", {QString::number(sides)});
}

SInt32 CoverOptionOf(const Covers& covers)
{
    if (covers.front && covers.back)
        return *covers.front == *covers.back ? kSameCovers : kDifferentCovers;
    if (covers.front)
        return kFrontCoverOnly;
    return covers.back ? kBackCoverOnly : kNoCovers;
}

bool IsCoverOptionOffered(SInt32 option, bool isBookletLayoutOn)
{
    return !isBookletLayoutOn || option == kNoCovers || option == kSameCovers;
}

void ApplyCoverOption(Covers& covers, SInt32 option, SInt32 frontTray, SInt32 backTray)
{
    const Wanted wanted = WantedBy(option);
    if (!wanted.front)
        covers.front.reset();
    else if (!covers.front)
        covers.front = NewCover(frontTray);
    if (!wanted.back)
        covers.back.reset();
    else if (!covers.back)
        covers.back = NewCover(backTray);
    FollowFront(covers, option);
}

void FollowFront(Covers& covers, SInt32 option)
{
    if (option == kSameCovers && covers.front && covers.back)
        *covers.back = *covers.front;
}

void SetSidesImaged(Cover& cover, SInt32 sides)
{
    cover.setSidesImaged(sides);
    if (sides != kCoverBlank)
        cover.stock().setSize(kUnset);
}

bool CanChooseSize(const Cover& cover)
{
    return cover.sidesImaged() == kCoverBlank;
}

void SetTray(Cover& cover, SInt32 tray)
{
    Stock& stock = cover.stock();
    stock.setSource(tray == kAutomaticTray && HasPaper(stock) ? kUnset : tray);
}

SInt32 TrayOf(const Cover& cover)
{
    const SInt32 source = cover.stock().source();
    return source == kUnset ? kAutomaticTray : source;
}

void KeepCovers(Covers edited, CoverSlot& front, CoverSlot& back)
{
    Keep(std::move(edited.front), front);
    Keep(std::move(edited.back), back);
}

QString CoverOptionPicture(SInt32 option)
{
    static constexpr auto kPictures =
        std::to_array<const char*>({"None", "FrontOnly", "BackOnly", "Same", "Different"});
    const auto index = static_cast<std::size_t>(std::clamp<SInt32>(option, 1, kPictures.size()) - 1);
    return QStringLiteral("SpclPgs_CoversOptions_%1.gif").arg(QLatin1StringView(kPictures[index]));
}

QString CoverSidesPicture(const Cover* cover)
{
    static constexpr auto kPictures = std::to_array<const char*>({"Blank", "FrontSide", "BackSide", "BothSides"});
    const SInt32 sides = cover ? cover->sidesImaged() : kCoverBlank;
    const bool isKnown = sides >= kCoverBlank && sides <= kCoverPrintedBoth;
    const auto index = static_cast<std::size_t>(isKnown ? sides - 1 : 0);
    return QStringLiteral("SpclPgs_CoversPrinting-%1.gif").arg(QLatin1StringView(kPictures[index]));
}

} // namespace kesta
