#pragma once

#include "platform/values/Types.h"

#include <span>

namespace kesta {

// When a feature is installed: while the PPD's installable option has this choice, or, with a null option, always. A
// feature may stand in several rows; its first installed row answers for it.
struct FeatureRow {
    const char* feature;
    const char* option;
    const char* choice;
    const char* label = nullptr; // localizable key of the feature's name
    SInt32 ticketValue = 0;
};

using FeatureMap = std::span<const FeatureRow>;

} // namespace kesta
