#include "platform/Clock.h"

#include "platform/Installed.h"

#include <chrono>
#include <ctime>

namespace kesta {
namespace {

using namespace std::chrono;

class SystemClock : public Clock {
public:
    Date now() const override { return {floor<seconds>(system_clock::now()).time_since_epoch().count()}; }
    SInt64 milliseconds() const override
    {
        return duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count();
    }
    int secondsEastOfUTC(Date at) const override
    {
        const std::time_t moment = at.seconds;
        std::tm local{};
        return localtime_r(&moment, &local) ? static_cast<int>(local.tm_gmtoff) : 0;
    }
};

Installed<Clock>& TheClock()
{
    static SystemClock system;
    static Installed<Clock> installed(system);
    return installed;
}

} // namespace

Clock* Clock::install(Clock* clock)
{
    return TheClock().install(clock);
}

Clock& GetClock()
{
    return TheClock().current();
}

} // namespace kesta
