#include "panels/paper_output/PasscodeRules.h"

#include "platform/system/RandomSource.h"

#include <algorithm>

namespace kesta {

bool CanBeTypedAtPrinter(const QString& passcode)
{
    const QLatin1StringView allowed(kPasscodeCharacters);
    return passcode.size() <= kLongestPasscode &&
           std::ranges::all_of(passcode, [allowed](QChar c) { return allowed.contains(c); });
}

PasscodeVerdict JudgeSecurePrintPasscode(const QString& passcode, const QString& confirmation)
{
    if (passcode != confirmation || !CanBeTypedAtPrinter(passcode))
        return PasscodeVerdict::Refused;
    return IsLongEnoughPasscode(passcode) ? PasscodeVerdict::Accepted : PasscodeVerdict::MakeOne;
}

PasscodeVerdict JudgeSavedJobPasscode(const QString& passcode, const QString& confirmation)
{
    if (passcode.isEmpty())
        return PasscodeVerdict::MakeOne;
    const bool isUsable = CanBeTypedAtPrinter(passcode) && IsLongEnoughPasscode(passcode);
    return isUsable && passcode == confirmation ? PasscodeVerdict::Accepted : PasscodeVerdict::Refused;
}

QString MakePasscode()
{
    return QString::number(1000 + RandomBelow(9000));
}

} // namespace kesta
