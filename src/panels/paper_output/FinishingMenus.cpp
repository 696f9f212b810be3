#include "panels/paper_output/FinishingMenus.h"

#include "platform/plugins/Bundle.h"
#include "printer/FinishingKinds.h"
#include "printer/InstallableOptions.h"

#include <algorithm>

namespace kesta::paper_output {
namespace {

constexpr char kNoneInPopup[] = "None";
constexpr char kBookletMaker[] = "BookletFoldKey";

bool IsInstalled(const FinishingKind& kind)
{
    return kind.feature && getInstalledFeature(kind.feature);
}

bool AnyInstalled(Finishing finishing)
{
    return std::ranges::any_of(KindsOf(finishing), IsInstalled);
}

bool IsOffered(Finishing finishing, const FinishingKind& kind)
{
    if (!kind.feature)
        return kind.command != kNoCommand;
    // A unit that makes whatever holes it can takes the place of all others.
    const FinishingKind* anyHoles = FindFinishing(Finishing::Punch, kPunchAny);
    const bool isHidden = finishing == Finishing::Punch && &kind != anyHoles && IsInstalled(*anyHoles);
    return IsInstalled(kind) && !isHidden;
}

// Staples and holes are called what the PPD's accessory is, folds by a text of their own.
QString Title(const Bundle& bundle, Finishing finishing, const FinishingKind& kind)
{
    if (finishing == Finishing::Fold || !kind.feature)
        return LocalizedString(bundle, kind.text);
    return CopyLocalizedStringForInstalledFeatureFromPlugin(kind.feature, bundle)
        .value_or(QString::fromLatin1(kStringNotFound));
}

void AddKinds(Menu& menu, const Bundle& bundle, Finishing finishing)
{
    for (const FinishingKind& kind : KindsOf(finishing)) {
        if (IsOffered(finishing, kind))
            menu.items.push_back(
                {.title = Title(bundle, finishing, kind), .command = kind.command, .value = kind.value});
    }
}

void AddSeparator(Menu& menu)
{
    menu.items.push_back({.separator = true});
}

Menu PopupMenu(const Bundle& bundle, Finishing finishing)
{
    Menu menu;
    AddKinds(menu, bundle, finishing);
    menu.items.front().title = LocalizedString(bundle, kNoneInPopup);
    return menu;
}

} // namespace

FinishingAccessories GetFinishingAccessories()
{
    return {.hasStapler = AnyInstalled(Finishing::Staple),
            .hasPunch = AnyInstalled(Finishing::Punch),
            .hasFolder = getInstalledFeature(kBookletMaker)};
}

bool IsOnPrinter(Finishing finishing, const FinishingKind& kind)
{
    if (kind.value == kNotFinished)
        return true;
    return kind.feature ? IsInstalled(kind) : finishing == Finishing::Fold && getInstalledFeature(kBookletMaker);
}

Menu FinishingMenu(const Bundle& bundle)
{
    Menu menu;
    AddKinds(menu, bundle, Finishing::Staple);
    AddSeparator(menu);
    if (AnyInstalled(Finishing::Punch))
        AddKinds(menu, bundle, Finishing::Punch);
    if (AnyInstalled(Finishing::Fold)) {
        AddSeparator(menu);
        AddKinds(menu, bundle, Finishing::Fold);
    }
    if (getInstalledFeature(kBookletMaker)) {
        AddSeparator(menu);
        menu.items.push_back({.title = LocalizedString(bundle, "Booklet Creation..."), .command = kBookletCreation});
    }
    return menu;
}

Menu StapleMenu(const Bundle& bundle)
{
    return PopupMenu(bundle, Finishing::Staple);
}

Menu PunchMenu(const Bundle& bundle)
{
    return AnyInstalled(Finishing::Punch) ? PopupMenu(bundle, Finishing::Punch) : Menu();
}

} // namespace kesta::paper_output
