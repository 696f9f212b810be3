#pragma once

#include "printer/PPDUtilities.h"

#include <QStringList>

namespace kesta {

// The printer's model as a person knows it, as it stands in the PPD; nothing when it does not say.
std::optional<QString> PPDCopyModelName(const ppd_file_t* ppd);

// What is fitted to the printer, in the PPD's own words and order: "Fax", "Punch unit: 2 and 3 holes". As recorded by
// LoadInstallableOptions; empty without a PPD.
QStringList PPDCopyFittedAccessories(ppd_file_t* ppd);

// The limits of custom page sizes, in points; all 0 when the PPD has no custom sizes.
struct PPDCustomSizeLimits {
    Float32 minimumWidth = 0, minimumHeight = 0, maximumWidth = 0, maximumHeight = 0;

    bool operator==(const PPDCustomSizeLimits&) const = default;
};
PPDCustomSizeLimits PPDGetCustomSizeLimits(const ppd_file_t& ppd);

} // namespace kesta
