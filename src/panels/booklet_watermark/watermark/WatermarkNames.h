#pragma once

#include <QAnyStringView>
#include <QString>

namespace kesta::booklet_watermark {

enum class NameProblem {
    None,
    Empty,
    TooLong,   // more than 511 bytes of UTF-8
    Reserved,  // the store keeps its list under it
    FontsName, // the store keeps a font under it, or could
};

// Whether a watermark may be saved under that name.
NameProblem CheckWatermarkName(QAnyStringView storeFile, const QString& name);

// Whether the store has a watermark of exactly that name.
bool HasWatermark(QAnyStringView storeFile, const QString& name);

} // namespace kesta::booklet_watermark
