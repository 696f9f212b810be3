#pragma once

#include "toolkit/controls/Menu.h"

namespace kesta {
struct Bundle;
}

namespace kesta::paper_output {

// The commands of the finishing items.
inline constexpr FourCharCode kNoStaple = "Stp0"_code;
inline constexpr FourCharCode kStapleOnce = "Stp1"_code;
inline constexpr FourCharCode kStapleTwice = "Stp2"_code;
inline constexpr FourCharCode kStapleFourTimes = "Stp4"_code;
inline constexpr FourCharCode kNoHoles = "Hpn0"_code;
inline constexpr FourCharCode kHoles = "HPun"_code;
inline constexpr FourCharCode kTwoHoles = "Hpn2"_code;
inline constexpr FourCharCode kThreeHoles = "Hpn3"_code;
inline constexpr FourCharCode kFourHoles = "Hpn4"_code;
inline constexpr FourCharCode kNoFold = "Fld0"_code;
inline constexpr FourCharCode kSingleFold = "Bfld"_code;
inline constexpr FourCharCode kCFold = "Cfld"_code;
inline constexpr FourCharCode kZFold = "Zfld"_code;
inline constexpr FourCharCode kHalfSheetZFold = "Zfol"_code;
inline constexpr FourCharCode kBookletCreation = "Bkcr"_code;
inline constexpr FourCharCode kCoilPunch = "Coil"_code;   // in no menu of this product
inline constexpr FourCharCode kPadPrinting = "PADS"_code; // in no menu of this product

// What can finish the job, as the accessories that are fitted now say.
struct FinishingAccessories {
    bool hasStapler = false;
    bool hasPunch = false;
    bool hasFolder = false; // a booklet maker

    bool operator==(const FinishingAccessories&) const = default;
};
FinishingAccessories GetFinishingAccessories();

// With a booklet maker, staples, holes, folds and booklets are one menu.
Menu FinishingMenu(const Bundle& bundle);
// Without one, these are two; the menu of holes is empty without a punch unit.
Menu StapleMenu(const Bundle& bundle);
Menu PunchMenu(const Bundle& bundle);

} // namespace kesta::paper_output
