#include "panels/paper_output/DelayedPrintTime.h"

#include "pde/ticket/LocalizedText.h"
#include "platform/system/Clock.h"

#include <QLocale>
#include <QTime>

namespace kesta {
namespace {

constexpr SInt64 kSecondsADay = 86'400;
constexpr SInt64 kSecondsFrom1904To1970 = 2'082'844'800;

SInt64 WallClock(const Clock& clock)
{
    const Date now = clock.now();
    return now.seconds + clock.secondsEastOfUTC(now) + kSecondsFrom1904To1970;
}

} // namespace

int TimeOfDay(SInt64 moment)
{
    const SInt64 rest = moment % kSecondsADay;
    return static_cast<int>(rest < 0 ? rest + kSecondsADay : rest);
}

SInt64 NextMomentAt(int timeOfDay, const Clock& clock)
{
    const SInt64 now = WallClock(clock);
    const SInt64 today = now - TimeOfDay(now) + timeOfDay;
    return today < now ? today + kSecondsADay : today;
}

QString DelayText(const Bundle& bundle, SInt64 moment, const Clock& clock)
{
    const int timeOfDay = TimeOfDay(moment);
    const bool isToday = NextMomentAt(timeOfDay, clock) - WallClock(clock) < kSecondsADay - TimeOfDay(WallClock(clock));
    const QTime time = QTime::fromMSecsSinceStartOfDay(timeOfDay * 1000);
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    if (time.second() == 0)
        format.remove(QStringLiteral(":ss"));
    return LocalizedFormat(bundle, isToday ? "Delayed Today In Summary" : "Delayed Tomorrow In Summary",
                           {QLocale().toString(time, format)});
}

} // namespace kesta
