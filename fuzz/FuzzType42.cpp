// A font file: nothing or a font that begins and ends as one, twice the same, whatever stands in the buffer before.

#include "Input.h"
#include "panels/booklet_watermark/fonts/Type42.h"

using kesta::booklet_watermark::convertTTFtoPS42;
using kesta::fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray font = kesta::fuzz::Bytes(data, size);
    QByteArray output, appended("before");
    const bool isWhole = convertTTFtoPS42(font, "Name", output);
    Require(!isWhole || output.startsWith("%!PS-TrueTypeFont"));
    Require(convertTTFtoPS42(font, "Name", appended) == isWhole && appended == "before" + output);
    return 0;
}
