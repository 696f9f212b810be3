#pragma once

#include "platform/system/Service.h"
#include "platform/values/Value.h"

namespace kesta {

class Clock {
public:
    using Interface = Clock;
    virtual ~Clock() = default;

    virtual Date now() const = 0;
    virtual SInt64 milliseconds() const = 0; // since some fixed moment; never goes back
    virtual int secondsEastOfUTC(Date at) const = 0;
    virtual void wait(SInt64 milliseconds) const; // a short moment, in which nothing else happens

    // What GetClock() answers from now on; null for the system's. Returns what was installed before, null for none.
    static Clock* install(Clock* clock);
};

Clock& GetClock();

} // namespace kesta
