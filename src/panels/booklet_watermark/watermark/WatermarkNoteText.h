#pragma once

#include "panels/booklet_watermark/watermark/WatermarkFont.h"
#include "panels/booklet_watermark/watermark/WatermarkNames.h"

#include <QStringList>

namespace kesta {
struct Bundle;
}

namespace kesta::booklet_watermark {

// What the user should know of a watermark before it is printed, a sentence each; empty when all is well.
QStringList WatermarkSentences(const Bundle& bundle, const _WatermarkData& watermark, const WatermarkNotes& notes,
                               FontProblem problem);

// Why a watermark can't be saved under that name; empty when it can.
QString NameSentence(const Bundle& bundle, const QString& name, NameProblem problem);

} // namespace kesta::booklet_watermark
