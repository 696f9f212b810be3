#include "platform/system/Clock.h"

#include "platform/system/Installed.h"

#include <chrono>
#include <ctime>
#include <thread>

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

} // namespace

void Clock::wait(SInt64 milliseconds) const
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

Clock* Clock::install(Clock* clock)
{
    return InstalledOr<Clock, SystemClock>().install(clock);
}

Clock& GetClock()
{
    return InstalledOr<Clock, SystemClock>().current();
}

} // namespace kesta
