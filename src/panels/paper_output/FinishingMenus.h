#pragma once

#include "printer/FinishingKinds.h"
#include "toolkit/controls/Menu.h"

namespace kesta {
struct Bundle;
}

namespace kesta::paper_output {

// Commands of the finishing menu that are no kind of finishing (printer/FinishingKinds.h).
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

// Whether the accessories that are fitted now make it; nothing needs none.
bool IsOnPrinter(Finishing finishing, const FinishingKind& kind);

// With a booklet maker, staples, holes, folds and booklets are one menu.
Menu FinishingMenu(const Bundle& bundle);
// Without one, these are two; the menu of holes is empty without a punch unit.
Menu StapleMenu(const Bundle& bundle);
Menu PunchMenu(const Bundle& bundle);

} // namespace kesta::paper_output
