#include "platform/values/DateText.h"

#include <algorithm>
#include <chrono>

namespace kesta {
namespace {

using namespace std::chrono;

constexpr sys_seconds kFirst = sys_days{year{1} / January / 1};
constexpr sys_seconds kLast = sys_days{year{9999} / December / 31} + hours{24} - seconds{1};

constexpr char16_t kForm[] = u"0000-00-00T00:00:00Z"; // 0 stands for a digit
constexpr qsizetype kLength = std::size(kForm) - 1;

bool HasForm(QStringView text)
{
    if (text.size() != kLength)
        return false;
    for (qsizetype i = 0; i < kLength; ++i) {
        const char16_t unit = text[i].unicode();
        if (kForm[i] == u'0' ? unit < u'0' || unit > u'9' : unit != kForm[i])
            return false;
    }
    return true;
}

int NumberAt(QStringView text, qsizetype position, qsizetype length)
{
    return text.mid(position, length).toInt();
}

} // namespace

std::optional<Date> DateFromText(QStringView text)
{
    if (!HasForm(text))
        return std::nullopt;
    const auto part = [text](qsizetype position) { return static_cast<unsigned>(NumberAt(text, position, 2)); };
    const year_month_day date{year{NumberAt(text, 0, 4)}, month{part(5)}, day{part(8)}};
    const unsigned hour = part(11), minute = part(14), second = part(17);
    if (!date.ok() || date.year() < year{1} || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    const sys_seconds moment = sys_days{date} + hours{hour} + minutes{minute} + seconds{second};
    return Date{moment.time_since_epoch().count()};
}

QString TextFromDate(Date date)
{
    const sys_seconds moment = std::clamp(sys_seconds{seconds{date.seconds}}, kFirst, kLast);
    const sys_days midnight = floor<days>(moment);
    const year_month_day day{midnight};
    const hh_mm_ss time{moment - midnight};
    return QString::asprintf("%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(day.year()),
                             static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                             static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                             static_cast<int>(time.seconds().count()));
}

} // namespace kesta
