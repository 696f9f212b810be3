#pragma once

#include "panels/paper_output/FinishingRules.h"
#include "panels/paper_output/PaperOutputOptions.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/Binding.h"
#include "pde/menus/Mappings.h"
#include "product/Westmarch2.h"

#include <array>

namespace kesta::paper_output {

// The numbers of the controls in Paper_Output/Panel.
inline constexpr FourCharCode kSignature = "Papr"_code;
enum Control : SInt32 {
    kJobTypePicture = 101,
    kJobTypePopup = 102,
    kJobTypeSetupButton = 103,
    kPaperPicture = 104,
    kPaperSummary = 105,
    kStockMenuButton = 106,
    kTwoSidedPicture = 108,
    kTwoSidedLabel = 109,
    kTwoSidedPopup = 110,
    kStaplePicture = 111,
    kStaplePopup = 113,
    kPunchPicture = 114,
    kPunchPopup = 116,
    kFinishingPicture = 117,
    kFinishingMenuButton = 119,
    kFinishingSummary = 120,
    kTwoSidedTrailing = 121, // in the button's place while there is no button
    kEndBookletButton = 122,
    kTwoSidedReason = 123,
    kDestinationLabel = 125,
    kDestinationPopup = 126,
    kQualityPicture = 127,
    kQualityPopup = 128,
};
// The views of which the panel is put together.
enum View : SInt32 {
    kJobTypeView = 1000,
    kPaperView = 1001,
    kTwoSidedView = 1002,
    kStaplingView = 1003,
    kPunchView = 1004,
    kOfficeFinishingRow = 1005, // for stapling and holes, side by side
    kFinishingView = 1006,      // in place of the two, with a booklet maker
    kDestinationView = 1007,
    kQualityView = 1008,
};

// What the ticket keeps of the job type and of finishing is more than a number and has functions of its own; so has
// two-sided printing, which a booklet decides, too.
inline constexpr auto kBindings = std::to_array<Binding<PaperOutputOptions>>({
    {kJobTypePopup,
     {[](const PaperOutputOptions& options) { return options.jobType.number; },
      [](PaperOutputOptions& options, SInt32 number) { options.jobType.number = number; }},
     {.map = _JobTypeMap}},
    {kQualityPopup,
     kMember<&PaperOutputOptions::printQuality>,
     {.map = _PrintQualityMap, .key = key::FinishingOutputColor, .otherwise = kStandardQuality}},
    {kDestinationPopup,
     kMember<&PaperOutputOptions::outputBin>,
     {.option = PPDKeyword("OutputBin"), .conflicting = Conflicting::Skip, .otherwise = kUnset}},
});

inline constexpr BindingRule kTwoSided{
    .nameOf = [](SInt32 duplex) { return LocalizedKeyForTicketValue(_PlexMap, duplex); },
    .option = PPDKeyword("Duplex"),
};

template <Finishing finishing> const char* FinishingName(SInt32 value)
{
    const FinishingKind* kind = FindFinishing(finishing, value);
    return kind ? kind->text : nullptr;
}

// Their menus have commands (FinishingMenus.h).
inline constexpr auto kFinishingBindings = std::to_array<Binding<PaperOutputOptions>>({
    {kStaplePopup,
     {[](const PaperOutputOptions& options) { return options.staple; }, ChooseStaple},
     {.nameOf = FinishingName<Finishing::Staple>}},
    {kPunchPopup, kMember<&PaperOutputOptions::punch>, {.nameOf = FinishingName<Finishing::Punch>}},
});

} // namespace kesta::paper_output
