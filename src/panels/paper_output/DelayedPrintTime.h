#pragma once

#include "platform/values/Types.h"

#include <QString>

namespace kesta {

struct Bundle;
class Clock;

// Moments are seconds since 1904 began, as the clock on the wall shows them; times of day seconds since midnight.

// From 0 to 86399, of moments before 1904 too.
int TimeOfDay(SInt64 moment);

// Today at that time of day, or tomorrow when that is over; now itself is not over.
SInt64 NextMomentAt(int timeOfDay, const Clock& clock);

// "delayed to 20:00 today": of the moment only the time of day matters.
QString DelayText(const Bundle& bundle, SInt64 moment, const Clock& clock);

} // namespace kesta
