#include "panels/paper_output/PasscodeRules.h"

#include "platform/system/RandomSource.h"

namespace kesta {
namespace {

bool AreSame(const QString& passcode, const QString& confirmation)
{
    return passcode.compare(confirmation, Qt::CaseInsensitive) == 0;
}

} // namespace

PasscodeVerdict JudgeSecurePrintPasscode(const QString& passcode, const QString& confirmation)
{
    if (!AreSame(passcode, confirmation))
        return PasscodeVerdict::Refused;
    return IsLongEnoughPasscode(passcode) ? PasscodeVerdict::Accepted : PasscodeVerdict::MakeOne;
}

PasscodeVerdict JudgeSavedJobPasscode(const QString& passcode, const QString& confirmation)
{
    if (passcode.isEmpty())
        return PasscodeVerdict::MakeOne;
    return AreSame(passcode, confirmation) ? PasscodeVerdict::Accepted : PasscodeVerdict::Refused;
}

QString MakePasscode()
{
    return QString::number(1000 + RandomBelow(9000));
}

} // namespace kesta
