#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace kesta::watermark_tool {

struct Outcome {
    int status = 0;    // the program's exit status: 0 or 1
    QByteArray output; // for standard output, as it is
    QStringList said;  // for standard error, one line each: notes, or why it failed
};

// Runs the program without its name among the arguments.
Outcome RunWatermarkTool(const QStringList& arguments);

} // namespace kesta::watermark_tool
