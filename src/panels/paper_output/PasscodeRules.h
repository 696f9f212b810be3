#pragma once

#include <QString>

namespace kesta {

inline constexpr int kShortestPasscode = 4; // in digits
inline constexpr int kLongestPasscode = 10;
inline constexpr char kPasscodeCharacters[] = "0123456789";

// What becomes of a passcode and its confirmation when the user presses OK.
enum class PasscodeVerdict {
    Accepted,
    MakeOne, // none was chosen
    Refused, // the two differ, or nobody could type it at the printer: a stored one may have been made elsewhere
};
PasscodeVerdict JudgeSecurePrintPasscode(const QString& passcode, const QString& confirmation);
// Without a passcode, whatever stands in the confirmation goes; one that is too short is none.
PasscodeVerdict JudgeSavedJobPasscode(const QString& passcode, const QString& confirmation);

inline bool IsLongEnoughPasscode(const QString& passcode)
{
    return passcode.size() >= kShortestPasscode;
}

// Whether the printer's panel takes it as far as it goes: digits alone, and not too many.
bool CanBeTypedAtPrinter(const QString& passcode);

// Four digits, 1000 to 9999, from the source that is fit for secrets.
QString MakePasscode();

} // namespace kesta
