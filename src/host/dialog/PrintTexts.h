#pragma once

#include "platform/plugins/Bundle.h"

namespace kesta::host {

// A text of the dialog's own bundle.
inline QString PrintText(const Bundle& texts, QAnyStringView key)
{
    return LocalizedString(texts, key);
}

} // namespace kesta::host
