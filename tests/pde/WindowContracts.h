#pragma once

#include "platform/values/Types.h"

#include <QString>

#include <set>
#include <vector>

namespace kesta::test {

// What the code asks of a window: the controls that a header below src/ numbers, as its comment says, in these words:
//
//     // The numbers of the controls in BookletCreation/BookletOptions and BookletCreation/BookletCreation.
//     inline constexpr FourCharCode kSignature = "Bkcr"_code;
//     enum Control : SInt32 {
//         kFoldLabel = 1, // not in BookletOptions
//         kLayoutBox = 2, // optional
//
// up to the end of the namespace. A header without a signature numbers a part that windows share.
struct WindowContract {
    QString header;
    QString window; // interface file/window
    FourCharCode signature = 0;
    std::set<SInt32> numbers;
    std::set<SInt32> optional; // may be there or not
};

std::vector<WindowContract> WindowContracts(const QString& sources);

} // namespace kesta::test
