#pragma once

#include "printer/FeatureMap.h"

#include <array>

namespace kesta {

// Option2 is the finisher ("None": simple catch tray, "OCT": offset catch tray, "_BK": with booklet maker), Option4 the
// punch unit, Option5 the fax card, Option8 the disk for stored jobs.
inline constexpr auto InstalledFeatures = std::to_array<FeatureRow>({
    {"DualPunchKey", "Option4", "HolePunch23", "2HolePunch"},
    {"TriplePunchKey", "Option4", "HolePunch23", "3HolePunch"},
    {"DualPunchKey", "Option4", "HolePunch24", "2HolePunch"},
    {"QuadruplePunchKey", "Option4", "HolePunch24", "4HolePunch"},
    {"FaxKey", "Option5", "True"},
    {"SingleStapleKey", "Option2", "CClass", "1 Staple"},
    {"SingleStapleKey", "Option2", "CClass_BK", "1 Staple"},
    {"SingleStapleKey", "Option2", "DClass", "1 Staple"},
    {"SingleStapleKey", "Option2", "DClass_BK", "1 Staple"},
    {"DualStapleKey", "Option2", "CClass", "2 Staples"},
    {"DualStapleKey", "Option2", "CClass_BK", "2 Staples"},
    {"DualStapleKey", "Option2", "DClass", "2 Staples"},
    {"DualStapleKey", "Option2", "DClass_BK", "2 Staples"},
    {"MultipleStapleKey", "Option2", "CClass", "4 Staples"},
    {"MultipleStapleKey", "Option2", "CClass_BK", "4 Staples"},
    {"MultipleStapleKey", "Option2", "DClass", "4 Staples"},
    {"MultipleStapleKey", "Option2", "DClass_BK", "4 Staples"},
    {"BookletFoldKey", "Option2", "CClass_BK"},
    {"BookletFoldKey", "Option2", "DClass"}, // folds without being a "_BK"
    {"BookletFoldKey", "Option2", "DClass_BK"},
    {"CFoldKey", "Option2", "DClass_BK", "FoldCFold"},
    {"ZFoldKey", "Option2", "DClass_BK", "FoldZFold"},
    {"ZFoldHalfSheetKey", "Option2", "DClass", "FoldZFoldHalfSheet"},
    {"ZFoldHalfSheetKey", "Option2", "DClass_BK", "FoldZFoldHalfSheet"},
    {"PostPrintInserterKey", "Option2", "DClass", "Tray 8 Inserter Value"},
    {"PostPrintInserterKey", "Option2", "DClass_BK", "Tray 8 Inserter Value"},
    {"SimpleCatchTrayKey", "Option2", "None"},
    {"JobStorage", "Option8", "True"},
    {"OCT", "Option2", "OCT"},
});
static_assert(InstalledFeatures.size() == 29);

} // namespace kesta
