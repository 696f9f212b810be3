#include "panels/paper_output/FinishingRules.h"

#include "pde/interface/TicketKeys.h"
#include "printer/InstallableOptions.h"

#include <algorithm>
#include <array>

namespace kesta::paper_output {
namespace {

constexpr SInt32 kPunching = 32;        // of punchState
constexpr SInt32 kDefaultWeight = 80;   // grams a square metre
constexpr SInt32 kLeastCoilWeight = 80; // for coil punching
constexpr SInt32 kTooHeavyForCoil = 217;

void ClearStaples(PaperOutputOptions& options)
{
    options.singleStaple = options.dualStaple = options.multipleStaple = kNone;
}

void ClearPunch(PaperOutputOptions& options)
{
    options.punchState = 1;
    options.punch = kNone;
}

// Any other finishing ends a booklet fold, and while booklet layout stays on it holds two-sided at long edge.
void LeaveBooklet(PaperOutputOptions& options)
{
    if (options.bookletLayout == kBookletOn)
        options.duplex = kTwoSidedLongEdge;
    if (options.finishingOption == kBookletFoldFinishing) {
        options.finishingOption = kNoFinishing;
        options.fold = kNone;
    }
}

void Staple(PaperOutputOptions& options, SInt32 finishing, SInt32 PaperOutputOptions::*kind, SInt32 staple)
{
    ClearStaples(options);
    options.finishingOption = finishing;
    options.*kind = staple;
    options.fold = kNone;
}

void Punch(PaperOutputOptions& options, SInt32 punch)
{
    options.finishingOption = kPunchFinishing;
    options.punchState = kPunching;
    options.fold = kNone;
    options.multipleStaple = kNone; // one or two staples go with holes
    options.punch = punch;
}

void Fold(PaperOutputOptions& options, SInt32 fold)
{
    options.finishingOption = kFoldFinishing;
    ClearStaples(options);
    ClearPunch(options);
    options.fold = fold;
}

// False for a command that is none of finishing.
bool Finish(PaperOutputOptions& options, FourCharCode command, SInt32 value)
{
    switch (command) {
    case kNoStaple:
        ClearStaples(options);
        return true;
    case kStapleOnce:
        Staple(options, kSingleStapleFinishing, &PaperOutputOptions::singleStaple, value);
        return true;
    case kStapleTwice:
        Staple(options, kDualStapleFinishing, &PaperOutputOptions::dualStaple, value);
        return true;
    case kStapleFourTimes:
        Staple(options, kMultipleStapleFinishing, &PaperOutputOptions::multipleStaple, kMultipleStaple);
        ClearPunch(options);
        return true;
    case kHoles:
    case kTwoHoles:
    case kThreeHoles:
    case kFourHoles:
        Punch(options, value);
        return true;
    case kNoHoles:
        ClearPunch(options);
        return true;
    case kSingleFold:
    case kCFold:
    case kZFold:
    case kHalfSheetZFold:
        Fold(options, value);
        return true;
    case kNoFold:
        options.fold = value;
        return true;
    default:
        return false;
    }
}

bool IsMarked(const MenuItem& item, const PaperOutputOptions& options)
{
    switch (item.command) {
    case kNoStaple:
        return ChosenStaple(options) == kNone;
    case kStapleOnce:
        return item.value == options.singleStaple;
    case kStapleTwice:
        return item.value == options.dualStaple;
    case kStapleFourTimes:
        return item.value == options.multipleStaple;
    case kNoHoles:
    case kHoles:
    case kTwoHoles:
    case kThreeHoles:
    case kFourHoles:
        return item.value == options.punch;
    case kNoFold:
    case kSingleFold:
    case kCFold:
    case kZFold:
    case kHalfSheetZFold:
        return item.value == options.fold;
    default:
        return false;
    }
}

void EnableItem(Menu& menu, FourCharCode command, bool enabled)
{
    if (MenuItem* item = FindItem(menu.items, command))
        item->enabled = enabled;
}

bool CoilTakes(const Stock& stock)
{
    const SInt32 weight = stock.weight() == kUnset ? kDefaultWeight : stock.weight();
    return stock.type() != kStockTypeLabels && stock.type() != kStockTypeTransparency && weight >= kLeastCoilWeight &&
           weight < kTooHeavyForCoil;
}

bool ApplyCoilRule(PaperOutputOptions& options, Menu& finishing)
{
    const bool isAllowed = CoilTakes(options.stock);
    EnableItem(finishing, kCoilPunch, isAllowed);
    if (isAllowed) {
        if (options.finishingOption == kCoilPunchFinishing)
            options.finishingOption = kNoFinishing;
        return false;
    }
    if (MenuItem* coil = FindItem(finishing.items, kCoilPunch))
        coil->checked = false;
    options.coilPunch = 0;
    return true;
}

bool ApplySquareFoldRule(PaperOutputOptions& options)
{
    constexpr std::array<SInt32, 4> kNotFolded{kStockTypeLabels, kStockTypeTransparency, kStockTypePrecutTab,
                                               kStockTypeFullCutTab};
    options.squareFoldAllowed = std::ranges::find(kNotFolded, options.stock.type()) == kNotFolded.end();
    if (!options.squareFoldAllowed)
        options.squareFold = false;
    return !options.squareFoldAllowed;
}

} // namespace

bool JobTypeNeedsSetup(SInt32 jobType)
{
    constexpr std::array kTypesWithSetup{3, 4, 5, 6, 7, 9};
    return std::ranges::find(kTypesWithSetup, jobType) != kTypesWithSetup.end();
}

void ChooseStaple(PaperOutputOptions& options, SInt32 staple)
{
    ClearStaples(options);
    switch (staple) {
    case kNone:
        break;
    case 5:
    case 6:
        options.singleStaple = staple;
        break;
    case 10:
    case 12:
        options.dualStaple = staple;
        break;
    case kMultipleStaple:
        options.multipleStaple = staple;
        break;
    default:
        options.staplesChosen = false;
    }
}

SInt32 ChosenStaple(const PaperOutputOptions& options)
{
    if (options.singleStaple != kNone)
        return options.singleStaple;
    return options.dualStaple != kNone ? options.dualStaple : options.multipleStaple;
}

bool IsBooklet(const PaperOutputOptions& options)
{
    return options.finishingOption == kBookletFoldFinishing || options.bookletLayout == kBookletOn;
}

bool ApplyFinishingCommand(PaperOutputOptions& options, FourCharCode command, SInt32 itemValue)
{
    PaperOutputOptions changed = options;
    LeaveBooklet(changed);
    if (!Finish(changed, command, itemValue))
        return false;
    changed.staplesChosen = ChosenStaple(changed) != kNone;
    options = changed;
    return true;
}

void ApplyBooklet(PaperOutputOptions& options, std::optional<SInt32> ticketDuplex)
{
    if (options.bookletLayout != kBookletOn)
        options.duplex = options.duplexSaved;
    options.duplexSaved = ticketDuplex.value_or(options.duplexSaved);

    if (options.fold == kFoldBi || options.fold == kFoldBiStaple) {
        options.finishingOption = kBookletFoldFinishing;
        ClearStaples(options);
        ClearPunch(options);
        options.bindValue = 1;
    } else if (options.finishingOption == kBookletFoldFinishing) {
        options.finishingOption = kNoFinishing;
    }
    if (options.finishingOption == kBookletFoldFinishing) {
        options.offset = 1;
        options.offsetSubset = options.offsetPagesPerSubset = 0;
    }
    options.staplesChosen = ChosenStaple(options) != kNone;
}

bool ApplyPaperRules(PaperOutputOptions& options, Menu& finishing)
{
    const bool isPaperKnown = options.stock.type() != kUnset || options.stock.weight() != kUnset;
    bool changed = false;
    if (isPaperKnown && getInstalledFeature("GBCAdvancedPunchKey"))
        changed = ApplyCoilRule(options, finishing);
    if (getInstalledFeature("SquareFoldTrimmerKey"))
        changed = ApplySquareFoldRule(options) || changed;
    return changed;
}

void EnableFinishingItems(Menu& menu, const Ticket& settings)
{
    EnableItem(menu, kPadPrinting, !isSpecialPageConfigured(settings));
    const std::optional<bool> booklet = settings.values().boolean(key::BookletLayout);
    if (!booklet)
        return; // the items stay as they are
    for (const FourCharCode command : {kStapleOnce, kStapleTwice, kStapleFourTimes})
        EnableItem(menu, command, !*booklet);
}

void MarkFinishingMenu(Menu& menu, const PaperOutputOptions& options)
{
    const bool isBooklet = IsBooklet(options);
    for (MenuItem& item : menu.items)
        item.checked = isBooklet ? item.command == kBookletCreation : IsMarked(item, options);
}

} // namespace kesta::paper_output
