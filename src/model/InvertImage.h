#pragma once

#include "platform/values/Value.h"

namespace kesta {

// How the whole image is inverted.
struct II_Options {
    bool valid = true;
    bool negativeImage = false;
    bool mirrorImage = false;

    bool operator==(const II_Options&) const = default;
};

// A missing key gives false.
void InvertImageSetOptionsFromTicket(II_Options& options, const Dictionary& ticket);
Dictionary InvertImageCreateTicketFromOptions(const II_Options& options);

} // namespace kesta
