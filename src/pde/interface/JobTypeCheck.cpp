#include "pde/interface/JobTypeCheck.h"

#include <utility>

namespace kesta {
namespace {

const JobTypeCheck*& Registered()
{
    static const JobTypeCheck* check = nullptr;
    return check;
}

} // namespace

JobTypeCheckRegistration::JobTypeCheckRegistration(JobTypeCheck check) : check_(std::move(check))
{
    Registered() = &check_;
}

JobTypeCheckRegistration::~JobTypeCheckRegistration()
{
    if (Registered() == &check_)
        Registered() = nullptr;
}

const JobTypeCheck* GetJobTypeCheck()
{
    return Registered();
}

} // namespace kesta
