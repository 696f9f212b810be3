#pragma once

namespace kesta {
struct Bundle;
}

namespace kesta::booklet_watermark {

// Draft, Confidential and Copy, in the user's language, and the list of the three, in kWatermarkFile.
void CreateDefaultWatermarks(const Bundle& bundle);

} // namespace kesta::booklet_watermark
