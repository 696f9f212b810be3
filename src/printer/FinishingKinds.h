#pragma once

#include "printer/ChoiceMap.h"

#include <array>

// All that can be done to the printed sheets, one row a kind: for menus, summaries, pictures, the ticket and the PPD's
// choices, and for whoever draws finished sheets.
namespace kesta {

enum class Finishing { Staple, Punch, Fold };
inline constexpr std::array kAllFinishing{Finishing::Staple, Finishing::Punch, Finishing::Fold};

// The keyword of the PPD's option.
consteval const char* OptionOf(Finishing finishing)
{
    return std::array{"StapleLocation", "KSPunch", "KSFold"}[static_cast<std::size_t>(finishing)];
}

// The ticket values that rules ask for by name.
inline constexpr SInt32 kNotFinished = 1; // no staples, no holes, no fold
inline constexpr SInt32 kMultipleStaple = 54;
inline constexpr SInt32 kPunchAny = 2; // whatever holes the unit makes
inline constexpr SInt32 kFoldBi = 43;
inline constexpr SInt32 kFoldBiStaple = 53;

// What the ticket's finishing option says beside the options of the table.
inline constexpr SInt32 kNoFinishing = 0;
inline constexpr SInt32 kBookletFoldFinishing = 24;
inline constexpr SInt32 kCoilPunchFinishing = 58; // no kind of this product's

struct FinishingKind {
    SInt32 value;         // in the ticket
    const char* choice;   // of the PPD's option
    FourCharCode command; // of its item; none: a booklet alone has this kind
    const char* feature;  // without this accessory there is no item; null: there is one wherever the menu is
    const char* text;     // in the summary
    const char* picture;  // of staples and holes the word in the pictures' names, of folds the name; null: none
    SInt32 option;        // what the ticket's finishing option becomes with it
    int count = 0;        // of staples or holes
    SInt32 lastValue = 0; // from value to this one: other places of the same staples
    const char* choiceOnLandscape = nullptr; // where that is another one
    struct {
        const char* text = nullptr;
        const char* picture = nullptr; // with the booklet layout
    } booklet = {};                    // of a fold that booklets have
};
using FinishingKinds = std::span<const FinishingKind>;

// In the order of the menus; the first of each is what is not finished so.
// clang-format off
inline constexpr auto kStaples = std::to_array<FinishingKind>({
    {kNotFinished, "None", "Stp0"_code, nullptr, "No Staple Value", nullptr, kNoFinishing},
    {5, "SinglePortrait", "Stp1"_code, "SingleStapleKey", "1 Staple", "1St", 4, 1, 8, "SingleLandscape"},
    {10, "DualLandscape", "Stp2"_code, "DualStapleKey", "2 Staples", "2St", 9, 2, 13},
    {kMultipleStaple, "MultipleStaples", "Stp4"_code, "MultipleStapleKey", "4 Staples", "4St", 53, 4, 57},
});
inline constexpr auto kHoles = std::to_array<FinishingKind>({
    {kNotFinished, "None", "Hpn0"_code, nullptr, "NoHolePunch", nullptr, kNoFinishing},
    {kPunchAny, "HolePunch", "HPun"_code, "GenericPunchKey", "HolePunch", "3Hp", 30, 3},
    {3, "2HolePunch", "Hpn2"_code, "DualPunchKey", "2 Hole Punch", "2Hp", 30, 2},
    {4, "3HolePunch", "Hpn3"_code, "TriplePunchKey", "3 Hole Punch", "3Hp", 30, 3},
    {5, "4HolePunch", "Hpn4"_code, "QuadruplePunchKey", "4 Hole Punch", "4Hp", 30, 4},
});
inline constexpr auto kFolds = std::to_array<FinishingKind>({ // "BKlt" and the "&" are spelled so
    {kNotFinished, "None", "Fld0"_code, nullptr, "No Fold", nullptr, kNoFinishing},
    {kFoldBi, "BiFold", "Bfld"_code, nullptr, "BiFoldNoStaple", "OfficeFinishing_Bklt_Fold.gif", 40, 0, 0, nullptr,
     {"Booklet Fold", "OfficeFinishing_Bklt_Fold_Layout.gif"}},
    {19, "C", "Cfld"_code, "CFoldKey", "FoldCFold", "OfficeFinishing_CFold.gif", 40},
    {20, "Z", "Zfld"_code, "ZFoldKey", "FoldZFold", "OfficeFinishing_ZFold.gif", 40},
    {36, "ZFoldHalfSheet", "Zfol"_code, "ZFoldHalfSheetKey", "Z Fold Half Sheet", "ProductionFinishing_ZFold_Half_Left.gif", 40},
    {kFoldBiStaple, "BiFoldStaple", kNoCommand, nullptr, "No Fold", "OfficeFinishing_BKlt_Fold&Stple.gif", kBookletFoldFinishing, 0, 0, nullptr,
     {"Booklet FoldStaple", "OfficeFinishing_Bklt_Fold&Stpl_Layout.gif"}},
});
// clang-format on
static_assert(kStaples.size() == 4 && kHoles.size() == 5 && kFolds.size() == 6);

constexpr FinishingKinds KindsOf(Finishing finishing)
{
    switch (finishing) {
    case Finishing::Staple:
        return kStaples;
    case Finishing::Punch:
        return kHoles;
    case Finishing::Fold:
        return kFolds;
    }
    return {};
}

// The kind that a ticket value stands for; null for a value of none.
constexpr const FinishingKind* FindFinishing(Finishing finishing, SInt32 value)
{
    for (const FinishingKind& kind : KindsOf(finishing))
        if (value >= kind.value && value <= std::max(kind.value, kind.lastValue))
            return &kind;
    return nullptr;
}

// The rows of the PPD's choices for a table of kinds.
template <std::size_t size>
consteval std::array<ChoiceRow, size> ChoicesOf(const std::array<FinishingKind, size>& kinds)
{
    std::array<ChoiceRow, size> choices{};
    std::ranges::transform(kinds, choices.begin(), [](const FinishingKind& kind) {
        return ChoiceRow{kind.choice, kind.value};
    });
    return choices;
}

} // namespace kesta
