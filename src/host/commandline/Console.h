#pragma once

#include "platform/values/Message.h"

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// The message as the console says it: with the options to use where the window speaks of what it shows, and in lp's own
// words where lp has them.
QString ConsoleSentence(const Message& message, const Bundle& texts);

// A line on standard output.
void PrintLine(const QString& line);

// A line on standard error, in lp's manner: "kesta-print: Error - ...".
void PrintFailure(const Message& reason, const Bundle& texts);

// A line on standard error about something that does not stop the job.
void PrintNote(const Message& note, const Bundle& texts);

} // namespace kesta::host
