#pragma once

#include <QString>

namespace kesta::host {

// A line on standard output.
void PrintLine(const QString& line);

// A line on standard error, in lp's manner: "kesta-print: Error - ...".
void PrintFailure(const QString& reason);

// A line on standard error about something that does not stop the job.
void PrintNote(const QString& note);

} // namespace kesta::host
