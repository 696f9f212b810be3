#pragma once

#include "panels/booklet_watermark/fonts/GlyphEncoding.h"
#include "panels/booklet_watermark/fonts/TrueTypeFont.h"

#include <QByteArray>

namespace kesta::booklet_watermark {

// Appends a TrueType font as a Type 42 font with that encoding; the font's name and those of its glyphs are plain ones.
// Room is made once. So many bytes at its beginning are a string of their own. False when the rest can't be cut into
// strings of 64 kilobytes between its glyphs: the font then ends after the last string that could be cut.
bool AppendType42(QByteArrayView font, const TrueTypeFont& truetype, const Encoding& encoding,
                  const QByteArray& fontName, QByteArray& output, qsizetype firstString = 0);

} // namespace kesta::booklet_watermark
