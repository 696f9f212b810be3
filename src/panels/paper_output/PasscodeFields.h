#pragma once

#include "panels/paper_output/PasscodeRules.h"
#include "platform/values/Types.h"

class QLineEdit;
class QWidget;

namespace kesta {
struct Bundle;
struct TextLengthEvent;
} // namespace kesta

namespace kesta::jobtypes {

// The numbers of the controls in SecurePrint/SecurePrint and SavedJob/withPasscode.
enum PasscodeControl : SInt32 {
    kPasscodeLabel = 1,
    kPasscodeField = 2,
    kPasscodeLimits = 3,
    kConfirmationLabel = 4,
    kConfirmationField = 5,
    kConfirmationLimits = 6,
};

// Keys of what is said of a passcode that was made, and of one that can't be taken.
struct PasscodeNotices {
    const char* made;
    const char* refusedTitle;
    const char* refused;
};
inline constexpr PasscodeNotices kSecurePrintNotices{.made = "Passcode Required Message",
                                                     .refusedTitle = "Invalid Secure Print Passcode Header",
                                                     .refused = "Invalid Secure Print Passcode Message"};
inline constexpr PasscodeNotices kSavedJobNotices{.made = "Saved Job Passcode Required Message",
                                                  .refusedTitle = "Invalid Saved Job Passcode Header",
                                                  .refused = "Invalid Saved Job Passcode Message"};

// The two fields for a passcode of a setup window, with their labels. The window must outlive it; a window without the
// fields has an empty passcode.
class PasscodeFields {
public:
    // Limits what may be typed to passcodes.
    PasscodeFields(const Bundle& bundle, QWidget& window, FourCharCode signature, const PasscodeNotices& notices);

    void fill(const QString& passcode); // both
    QString passcode() const;
    QString confirmation() const;
    void focus(); // marks a passcode that must be typed anew

    void enable(bool enabled); // the confirmation only once the passcode is long enough
    void enableConfirmation(bool enabled);
    void follow(const TextLengthEvent& event); // of either field: there is nothing to confirm before it is long enough

    // Does what the verdict asks for, in front of the user; true when the passcode in the fields can be taken.
    bool settle(PasscodeVerdict verdict);

private:
    QWidget* control(SInt32 number) const;
    void markPasscode();

    const Bundle& bundle_;
    QWidget& window_;
    FourCharCode signature_;
    const PasscodeNotices& notices_;
    QLineEdit* passcode_;
    QLineEdit* confirmation_;
};

} // namespace kesta::jobtypes
