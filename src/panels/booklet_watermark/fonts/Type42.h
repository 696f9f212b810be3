#pragma once

#include <QByteArray>

namespace kesta::booklet_watermark {

// Appends the TrueType font as a PostScript Type 42 font of the given name; characters that no PostScript name holds
// are left out of it. Room is made once.
//
// True when the font is whole. A malformed font, or one of a kind that is not converted, appends nothing. A font that
// can't be cut into strings of 64 kilobytes between its glyphs ends after the last string that could be cut.
bool convertTTFtoPS42(QByteArrayView font, const QByteArray& fontName, QByteArray& output);

} // namespace kesta::booklet_watermark
