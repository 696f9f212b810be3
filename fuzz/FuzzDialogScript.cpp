// A dialog script: steps in their order, or one error and no step.

#include "Input.h"
#include "host/script/DialogScript.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const kesta::host::DialogScript script = kesta::host::ParseDialogScript(kesta::fuzz::Bytes(bytes, size));
    int line = 0;
    for (const kesta::host::ScriptStep& step : script.steps) {
        kesta::fuzz::Require(step.line > line && script.error.isEmpty());
        line = step.line;
        kesta::host::ComparableName(step.target.text);
    }
    return 0;
}
