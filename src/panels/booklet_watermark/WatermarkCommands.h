#pragma once

#include "panels/booklet_watermark/BookletWatermarkPanel.h"

namespace kesta::booklet_watermark {

// The items of the watermark menu. Others may have changed the store since it was shown, so the names are read again;
// a watermark that is gone is said in words. The caller shows what is chosen then.
void RunWatermarkCommand(_BookletWatermarkContext& panel, const CommandEvent& chosen);

// Asks once whether watermarks that the user had before there was a store for everybody are to be copied into it.
void OfferOwnWatermarks(_BookletWatermarkContext& panel);

} // namespace kesta::booklet_watermark
