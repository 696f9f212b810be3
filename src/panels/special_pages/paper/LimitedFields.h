#pragma once

#include "panels/special_pages/paper/CustomSizeRules.h"
#include "toolkit/controls/ControlEvent.h"

#include <functional>

class QWidget;

namespace kesta {

class SpinField;

// Fields whose limits stand beside them. They take more than their arrows go to, so that what somebody types is theirs
// until OK.
void ShowNumber(SpinField& field, SInt32 number, const FieldLimits& limits, int decimals = 0);

// Whether the field holds a number, and one within the limits; false without a field.
bool IsWithin(const SpinField* field, const FieldLimits& limits);

// The same, with ring and mark for a field that is not.
bool MarkUnlessWithin(SpinField* field, const FieldLimits& limits);

// OK waits until the window's fields are usable, which is asked now and after each change by the user: of hits after
// the handlers that are installed later.
[[nodiscard]] EventHandler EnableOKWhile(QWidget& window, const std::function<bool()>& areUsable);

} // namespace kesta
