#pragma once

#include "platform/values/Value.h"

#include <vector>

namespace kesta::booklet_watermark {

// A text of a limited length.
class BoundedText {
public:
    // room: bytes of UTF-8, one of which a terminating NUL takes
    explicit BoundedText(qsizetype room) : room_(room) {}

    const QString& get() const { return text_; }
    bool isEmpty() const { return text_.isEmpty(); }

    // False, and the text stays as it was, when the new one does not fit.
    bool set(const QString& text);

    bool operator==(const BoundedText&) const = default;

private:
    qsizetype room_;
    QString text_;
};

// Each channel from 0 to 1.
struct WatermarkColor {
    Float32 red = 0;
    Float32 green = 0;
    Float32 blue = 0;
    Float32 alpha = 0;

    bool operator==(const WatermarkColor&) const = default;
};

// One watermark: a text, or a picture from a file.
struct _WatermarkData {
    BoundedText text{512};      // of a text watermark; empty for a picture
    BoundedText fileName{512};  // of a picture, as shown
    BoundedText filePath{8192}; // of a picture, whole
    BoundedText fontName{512};  // PostScript name
    Float32 xOffset = 0;        // inches from the page's centre to the right
    Float32 yOffset = 0;        // inches from the page's centre upwards
    WatermarkColor fontColor;   // the font panel's
    WatermarkColor wellColor;   // in which the text is drawn
    SInt32 angle = 0;           // degrees, counter-clockwise
    SInt32 density = 0;         // percent, of a text
    SInt32 scale = 0;           // percent, of a picture
    SInt32 units = 0;           // in which the editor shows the offsets
    SInt32 fontSize = 0;        // points
    SInt32 isText = 0;          // not 0 for a text watermark; not stored
    Float64 pageHeight = 0;     // points, of the editor's preview; not stored, as is the next
    Float64 pageWidth = 0;
    Float64 xPosition = 0; // points; where the text was drawn last
    Float64 yPosition = 0;
    std::vector<std::uint16_t> glyphs; // of the text as it was laid out last

    bool operator==(const _WatermarkData&) const = default;
};

// Under which a watermark is stored and listed: the text of a text watermark, else the file name.
const QString& NameOf(const _WatermarkData& watermark);

// What is stored of a watermark; the glyphs only when there are some.
Dictionary DictionaryFromWatermark(const _WatermarkData& watermark);

// Sets what the dictionary has and the record can hold, the rest stays: a missing key, a value of another kind, a
// number that does not fit or is not finite, a text that is too long. Glyphs are as many as both their data and their
// count allow; a count alone changes nothing.
void ReadWatermark(const Dictionary& stored, _WatermarkData& watermark);

} // namespace kesta::booklet_watermark
