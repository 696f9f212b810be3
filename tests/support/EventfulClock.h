#pragma once

#include "platform/system/Clock.h"

#include <functional>

namespace kesta::test {

// A clock whose waits take no time; something may happen in them.
struct EventfulClock : Clock {
    Date now() const override { return {}; }
    SInt64 milliseconds() const override { return 0; }
    int secondsEastOfUTC(Date) const override { return 0; }
    void wait(SInt64 milliseconds) const override
    {
        waited += milliseconds;
        if (meanwhile)
            meanwhile();
    }

    std::function<void()> meanwhile;
    mutable SInt64 waited = 0;
    const WhileInstalled<Clock> installed_{*this};
};

} // namespace kesta::test
