#include "panels/paper_output/FinishingMenus.h"

#include "panels/paper_output/PaperOutputOptions.h"
#include "platform/plugins/Bundle.h"
#include "printer/InstallableOptions.h"

#include <algorithm>
#include <array>
#include <span>

namespace kesta::paper_output {
namespace {

struct FinishingRow {
    const char* feature; // offered only where this is installed
    const char* key;     // null: the feature's own name
    SInt32 value;
    FourCharCode command;
};
using FinishingRows = std::span<const FinishingRow>;

constexpr auto kStaples = std::to_array<FinishingRow>({
    {"SingleStapleKey", nullptr, kSingleStaple, kStapleOnce},
    {"DualStapleKey", nullptr, kDualStaple, kStapleTwice},
    {"MultipleStapleKey", nullptr, kMultipleStaple, kStapleFourTimes},
});
// A unit that makes whatever holes it can takes the place of all others.
constexpr auto kAnyHoles = std::to_array<FinishingRow>({
    {"GenericPunchKey", nullptr, kPunchAny, kHoles},
});
constexpr auto kCountedHoles = std::to_array<FinishingRow>({
    {"DualPunchKey", nullptr, kPunchTwo, kTwoHoles},
    {"TriplePunchKey", nullptr, kPunchThree, kThreeHoles},
    {"QuadruplePunchKey", nullptr, kPunchFour, kFourHoles},
});
constexpr auto kFoldRows = std::to_array<FinishingRow>({
    {"CFoldKey", "FoldCFold", kFoldC, kCFold},
    {"ZFoldKey", "FoldZFold", kFoldZ, kZFold},
    {"ZFoldHalfSheetKey", "Z Fold Half Sheet", kFoldZHalfSheet, kHalfSheetZFold},
});
static_assert(kStaples.size() == 3 && kCountedHoles.size() == 3 && kFoldRows.size() == 3);

bool IsInstalled(const FinishingRow& row)
{
    return getInstalledFeature(row.feature);
}

bool AnyInstalled(FinishingRows rows)
{
    return std::ranges::any_of(rows, IsInstalled);
}

FinishingRows Holes()
{
    return AnyInstalled(kAnyHoles) ? FinishingRows(kAnyHoles) : FinishingRows(kCountedHoles);
}

void AddItem(Menu& menu, const Bundle& bundle, const char* key, SInt32 value, FourCharCode command)
{
    menu.items.push_back({.title = LocalizedString(bundle, key), .command = command, .value = value});
}

void AddSeparator(Menu& menu)
{
    menu.items.push_back({.separator = true});
}

void AddInstalled(Menu& menu, const Bundle& bundle, FinishingRows rows)
{
    for (const FinishingRow& row : rows) {
        if (!IsInstalled(row))
            continue;
        const QString title = row.key ? LocalizedString(bundle, row.key)
                                      : CopyLocalizedStringForInstalledFeatureFromPlugin(row.feature, bundle)
                                            .value_or(QString::fromLatin1(kStringNotFound));
        menu.items.push_back({.title = title, .command = row.command, .value = row.value});
    }
}

void AddStaples(Menu& menu, const Bundle& bundle, const char* noneKey)
{
    AddItem(menu, bundle, noneKey, kNone, kNoStaple);
    AddInstalled(menu, bundle, kStaples);
}

void AddHoles(Menu& menu, const Bundle& bundle, const char* noneKey)
{
    if (!AnyInstalled(Holes()))
        return;
    AddItem(menu, bundle, noneKey, kNone, kNoHoles);
    AddInstalled(menu, bundle, Holes());
}

void AddFolds(Menu& menu, const Bundle& bundle)
{
    if (!AnyInstalled(kFoldRows))
        return;
    AddSeparator(menu);
    AddItem(menu, bundle, "No Fold", kNone, kNoFold);
    AddItem(menu, bundle, "BiFoldNoStaple", kFoldBi, kSingleFold);
    AddInstalled(menu, bundle, kFoldRows);
}

} // namespace

FinishingAccessories GetFinishingAccessories()
{
    return {.hasStapler = AnyInstalled(kStaples),
            .hasPunch = AnyInstalled(Holes()),
            .hasFolder = getInstalledFeature("BookletFoldKey")};
}

Menu FinishingMenu(const Bundle& bundle)
{
    Menu menu;
    AddStaples(menu, bundle, "No Staple Value");
    AddSeparator(menu);
    AddHoles(menu, bundle, "NoHolePunch");
    AddFolds(menu, bundle);
    AddSeparator(menu);
    AddItem(menu, bundle, "Booklet Creation...", 0, kBookletCreation);
    return menu;
}

Menu StapleMenu(const Bundle& bundle)
{
    Menu menu;
    AddStaples(menu, bundle, "None");
    return menu;
}

Menu PunchMenu(const Bundle& bundle)
{
    Menu menu;
    AddHoles(menu, bundle, "None");
    return menu;
}

} // namespace kesta::paper_output
