#include "panels/paper_output/FinishingRules.h"

#include "pde/interface/TicketKeys.h"
#include "pde/menus/Binding.h"
#include "platform/plugins/Bundle.h"
#include "printer/FinishingKinds.h"
#include "printer/InstallableOptions.h"

#include <algorithm>
#include <array>

namespace kesta::paper_output {
namespace {

constexpr SInt32 kDefaultWeight = 80;   // grams a square metre
constexpr SInt32 kLeastCoilWeight = 80; // for coil punching
constexpr SInt32 kTooHeavyForCoil = 217;

struct CommandedFinishing {
    Finishing finishing;
    const FinishingKind* kind; // null for a command that is none of finishing
};

CommandedFinishing FindCommanded(FourCharCode command)
{
    for (const Finishing finishing : kAllFinishing) {
        const FinishingKinds kinds = KindsOf(finishing);
        const auto kind = std::ranges::find(kinds, command, &FinishingKind::command);
        if (command != kNoCommand && kind != kinds.end())
            return {finishing, &*kind};
    }
    return {};
}

auto& FieldOf(auto& options, Finishing finishing)
{
    switch (finishing) {
    case Finishing::Staple:
        return options.staple;
    case Finishing::Punch:
        return options.punch;
    case Finishing::Fold:
        break;
    }
    return options.booklet.fold;
}

// Any other finishing ends a booklet fold, and while booklet layout stays on it holds two-sided at long edge.
void LeaveBooklet(PaperOutputOptions& options)
{
    if (options.booklet.isOn())
        options.duplex = kTwoSidedLongEdge;
    if (options.finishingOption == kBookletFoldFinishing) {
        options.finishingOption = kNoFinishing;
        options.booklet.fold = kNotFinished;
    }
}

bool HasBookletFold(const PaperOutputOptions& options)
{
    const FinishingKind* fold = FindFinishing(Finishing::Fold, options.booklet.fold);
    return fold && fold->booklet.picture;
}

// Whether some kind of finishing, or none at all, has the option.
bool IsOfAnyKind(const PaperOutputOptions& options)
{
    return std::ranges::any_of(kAllFinishing, [&](Finishing finishing) {
        const FinishingKinds kinds = KindsOf(finishing);
        return std::ranges::find(kinds, options.finishingOption, &FinishingKind::option) != kinds.end();
    });
}

bool HasFourStaples(const PaperOutputOptions& options)
{
    return FindFinishing(Finishing::Staple, options.staple) == FindFinishing(Finishing::Staple, kMultipleStaple);
}

// One or two staples go with holes; four of them and a fold go alone.
void EndWhatGoesNotWith(Finishing finishing, PaperOutputOptions& options)
{
    if (finishing != Finishing::Fold)
        options.booklet.fold = kNotFinished;
    if (finishing == Finishing::Fold || (finishing == Finishing::Punch && HasFourStaples(options)))
        options.staple = kNotFinished;
    if (finishing == Finishing::Fold || (finishing == Finishing::Staple && HasFourStaples(options)))
        options.punch = kNotFinished;
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

void ChooseStaple(PaperOutputOptions& options, SInt32 staple)
{
    options.staple = FindFinishing(Finishing::Staple, staple) ? staple : kNotFinished;
}

bool IsBooklet(const PaperOutputOptions& options)
{
    return options.finishingOption == kBookletFoldFinishing || options.booklet.isOn();
}

bool ApplyFinishingCommand(PaperOutputOptions& options, FourCharCode command)
{
    const auto [finishing, kind] = FindCommanded(command);
    if (!kind)
        return false;
    LeaveBooklet(options);
    FieldOf(options, finishing) = kind->value;
    if (kind->value == kNotFinished)
        return true;
    options.finishingOption = kind->option;
    EndWhatGoesNotWith(finishing, options);
    return true;
}

void FollowDuplex(PaperOutputOptions& options)
{
    if (!options.booklet.isOn())
        options.duplexPopupValue = options.duplexSaved = options.duplex;
}

void FollowFinishing(PaperOutputOptions& options)
{
    if (options.finishingOption == kBookletFoldFinishing ? HasBookletFold(options) : !IsOfAnyKind(options))
        return;
    SInt32 chosen = kNoFinishing;
    for (const Finishing finishing : kAllFinishing) {
        const FinishingKind* kind = FindFinishing(finishing, FieldOf(options, finishing));
        if (!kind || kind->value == kNotFinished)
            continue;
        if (kind->option == options.finishingOption)
            return;
        chosen = kind->option;
    }
    options.finishingOption = chosen;
}

void ApplyBooklet(PaperOutputOptions& options)
{
    if (!options.booklet.isOn())
        options.duplex = options.duplexSaved;
    FollowDuplex(options);

    if (HasBookletFold(options)) {
        options.finishingOption = kBookletFoldFinishing;
        options.staple = options.punch = kNotFinished;
        options.bindValue = 1;
    } else if (options.finishingOption == kBookletFoldFinishing) {
        options.finishingOption = kNoFinishing;
    }
    if (options.finishingOption == kBookletFoldFinishing) {
        options.offset = 1;
        options.offsetSubset = options.offsetPagesPerSubset = 0;
    }
}

void EndBooklet(PaperOutputOptions& options)
{
    options.booklet.layout = kBookletLayoutOff;
    if (HasBookletFold(options))
        options.booklet.fold = kNotFinished;
    ApplyBooklet(options);
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
    for (const FinishingKind& kind : kStaples) {
        if (kind.value != kNotFinished)
            EnableItem(menu, kind.command, !*booklet);
    }
}

FinishingAccessories RowsFor(const FinishingAccessories& fitted, const PaperOutputOptions& options)
{
    return {.hasStapler = fitted.hasStapler || options.staple != kNotFinished,
            .hasPunch = fitted.hasPunch || options.punch != kNotFinished,
            .hasFolder = fitted.hasFolder || options.booklet.fold != kNotFinished};
}

const char* FinishingText(const PaperOutputOptions& options, Finishing finishing)
{
    const FinishingKind& none = KindsOf(finishing).front();
    const FinishingKind* kind = FindFinishing(finishing, FieldOf(options, finishing));
    if (!kind)
        return none.text;
    const bool isBooklets = finishing == Finishing::Fold && IsBooklet(options);
    const bool isOnPrinter = IsOnPrinter(finishing, *kind);
    if (kind->booklet.text && (isBooklets || (!isOnPrinter && kind->command == kNoCommand)))
        return kind->booklet.text;
    return isBooklets && isOnPrinter ? none.text : kind->text;
}

bool IsNotOffered(const PaperOutputOptions& options, Finishing finishing)
{
    const FinishingKind* kind = FindFinishing(finishing, FieldOf(options, finishing));
    return kind && !IsOnPrinter(finishing, *kind);
}

void AddNotOffered(Menu& menu, const Bundle& bundle, const PaperOutputOptions& options)
{
    std::erase_if(menu.items, [](const MenuItem& item) { return item.notOffered; });
    for (const Finishing finishing : kAllFinishing) {
        if (!IsNotOffered(options, finishing))
            continue;
        const FinishingKind& none = KindsOf(finishing).front();
        auto back = std::ranges::find(menu.items, none.command, &MenuItem::command);
        if (back == menu.items.end())
            back = menu.items.insert(
                back, {.title = LocalizedString(bundle, none.text), .command = none.command, .value = none.value});
        const int position = static_cast<int>(back - menu.items.begin()) + 1;
        const QString text = LocalizedString(bundle, FinishingText(options, finishing));
        menu.items.push_back({.title = NotOnThisPrinter(bundle, text),
                              .enabled = false,
                              .checked = true,
                              .notOffered = true,
                              .instead = position});
    }
}

void MarkFinishingMenu(Menu& menu, const PaperOutputOptions& options)
{
    const bool isBooklet = IsBooklet(options);
    for (MenuItem& item : menu.items) {
        const auto [finishing, kind] = FindCommanded(item.command);
        item.checked = isBooklet ? item.command == kBookletCreation : kind && item.value == FieldOf(options, finishing);
    }
}

} // namespace kesta::paper_output
