#pragma once

#include <QString>

namespace kesta::booklet_watermark {

// What a PostScript name tells of a font that isn't here.
struct FontDescription {
    QString family; // empty when the name is not a well-known one
    bool isBold = false;
    bool isSlanted = false;
};

FontDescription DescribeFont(const QString& postScriptName);

} // namespace kesta::booklet_watermark
