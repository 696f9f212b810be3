#pragma once

#include "platform/printsystem/PrintSystemKeys.h"
#include "platform/values/Value.h"

#include <span>

namespace kesta::host {

// Takes the named entries out of the ticket, wherever below their keys they are: in the dictionary itself or in
// dictionaries and arrays within it. What was taken, each a dictionary of "Path" (keys, and positions within arrays)
// and "Value".
Array TakeSecrets(Dictionary& ticket, std::span<const NestedEntry> secrets);

// The ticket is as it was before TakeSecrets. False, and nothing of use in the ticket, when the secrets do not fit it.
bool PutSecretsBack(Dictionary& ticket, const Array& taken);

} // namespace kesta::host
