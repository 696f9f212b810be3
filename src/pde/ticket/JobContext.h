#pragma once

#include "platform/values/Types.h"

namespace kesta {

// For what a record, menu or summary is made: the job itself, or a special page, where what is not set comes from the
// job. ImageShift is the context in which an exception page writes its image shift.
enum class JobContext : SInt32 { Job = 0, ImageShift = 1, Cover = 2, Insert = 3, ExceptionPage = 4 };

// What a modal editor does with its item.
enum class DialogMode : SInt32 { Add = 0, Edit = 1 };

} // namespace kesta
