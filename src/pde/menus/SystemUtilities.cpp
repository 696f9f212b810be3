#include "pde/menus/SystemUtilities.h"

#include "platform/system/SystemConfiguration.h"

namespace kesta {
namespace {

struct VersionAnswers {
    std::optional<bool> is104OrLater, is105OrLater;
};

VersionAnswers& Answers()
{
    static VersionAnswers answers;
    return answers;
}

bool Remembered(std::optional<bool>& answer, SystemVersion wanted, SystemVersion whenUnknown)
{
    if (!answer)
        answer = GetSystemConfiguration().systemVersion().value_or(whenUnknown) >= wanted;
    return *answer;
}

} // namespace

bool RunningOn104OrLater()
{
    return Remembered(Answers().is104OrLater, {10, 4, 0}, {10, 3, 0});
}

bool RunningOn105OrLater()
{
    return Remembered(Answers().is105OrLater, {10, 5, 0}, {10, 4, 0});
}

void ForgetSystemVersion()
{
    Answers() = {};
}

} // namespace kesta
