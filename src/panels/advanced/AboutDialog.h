#pragma once

#include "printer/PPDUtilities.h"
#include "toolkit/controls/ControlEvent.h"

namespace kesta {

struct Bundle;

namespace about {

// The numbers of the controls in About/About.
inline constexpr FourCharCode kSignature = "Abou"_code;
enum Control : SInt32 {
    kPicture = 1,
    kVersionText = 2,
    kModelText = 3,
    kAccessoriesText = 4,
};

} // namespace about

// Names the product, its version, the printer and what is fitted to it, until the user closes it. Returns
// kInterfaceFileUnreadable, and shows nothing, when its window can't be loaded.
OSStatus RunModalAboutDialog(const Bundle& bundle, ppd_file_t* ppd);

} // namespace kesta
