#pragma once

#include "platform/values/Types.h"

class QWidget;

namespace kesta {

struct Bundle;

// What a window from an interface file needs after it was loaded: its texts, pictures, names and events. The signature
// is that of all its controls.
void SetUpWindow(QWidget& root, FourCharCode signature, const Bundle& bundle);

} // namespace kesta
