// A stored watermark, whatever it says: a whole page, the same one each time, and a record that can be stored again.

#include "Input.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"
#include "platform/values/PropertyList.h"

#include <cmath>

using namespace kesta::booklet_watermark;
using kesta::fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const kesta::PropertyListResult list = kesta::ParsePropertyList(kesta::fuzz::Bytes(data, size));
    const kesta::Dictionary* stored = list.value ? list.value->dictionary() : nullptr;
    if (!stored)
        return 0;
    _WatermarkData record;
    ReadWatermark(*stored, record);
    record.isText = record.text.isEmpty() ? 0 : 1;
    record.filePath.set({}); // no file of this computer's
    PreviewBuffer first, second;
    renderWatermark(record, {612, 792}, first);
    Require(first.content().startsWith("%PDF-") && first.content().toByteArray().trimmed().endsWith("%%EOF"));
    Require(std::isfinite(record.xPosition) && std::isfinite(record.yPosition));
    _WatermarkData again = record;
    renderWatermark(again, {612, 792}, second);
    Require(again == record && second.content() == first.content());
    return 0;
}
