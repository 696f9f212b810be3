#pragma once

#include "platform/Types.h"

namespace kesta {

// For what a menu, stock or summary is made: the job, or one kind of special page.
enum class JobContext : SInt32 { Job = 0, Cover = 2, Insert = 3, ExceptionPage = 4 };

} // namespace kesta
