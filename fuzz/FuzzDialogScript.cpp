#include "host/DialogScript.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const kesta::host::DialogScript script = kesta::host::ParseDialogScript(input);
    int line = 0;
    for (const kesta::host::ScriptStep& step : script.steps) {
        if (step.line <= line || !script.error.isEmpty()) // steps in order, and none beside an error
            std::abort();
        line = step.line;
        kesta::host::ComparableName(step.target.text);
    }
    return 0;
}
