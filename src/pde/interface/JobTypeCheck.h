#pragma once

#include "platform/values/Types.h"

#include <functional>

class QWidget;

namespace kesta {

struct Bundle;

// What the shell has to know before it lets OK through, answered by the panel in which the user chooses the job type.
// All functions must be set; they are called on the dialog's thread while the registration lives.
struct JobTypeCheck {
    std::function<SInt32()> jobType = {};
    std::function<bool()> hasPasscode = {};              // asked for secure jobs: one that can be typed at the printer
    std::function<QWidget*()> setupButton = {};          // of the job type; null while the panel has no window
    std::function<bool()> hasFaxRecipients = {};         // asked for faxes
    std::function<void(const Bundle&)> runFaxSetup = {}; // lets the user name recipients, modally
};

// Holds the check of the panel that registered last; destroying it takes the check away, unless another panel has
// registered one since.
class JobTypeCheckRegistration {
public:
    explicit JobTypeCheckRegistration(JobTypeCheck check);
    ~JobTypeCheckRegistration();
    JobTypeCheckRegistration(const JobTypeCheckRegistration&) = delete;
    JobTypeCheckRegistration& operator=(const JobTypeCheckRegistration&) = delete;

private:
    JobTypeCheck check_;
};

// Null while no panel with job types is loaded: nothing is held back then.
const JobTypeCheck* GetJobTypeCheck();

} // namespace kesta
