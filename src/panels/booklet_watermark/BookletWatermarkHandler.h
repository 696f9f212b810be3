#pragma once

#include "panels/booklet_watermark/BookletWatermarkPanel.h"

namespace kesta::booklet_watermark {

void InstallBookletWatermarkHandler(_BookletWatermarkContext& panel);

EventResult bookletWatermarkEventHandler(_BookletWatermarkContext& panel, const HitEvent& hit);
EventResult bookletWatermarkEventHandler(_BookletWatermarkContext& panel, const CommandEvent& chosen);

} // namespace kesta::booklet_watermark
