#pragma once

#include "panels/booklet_watermark/fonts/FontLookup.h"

#include <QLocale>

namespace kesta::booklet_watermark {

// Sorts by display name, as the language does and numbers by their value.
void SortFonts(std::vector<FontFile>& fonts, const QLocale& locale = QLocale());

// The places of the fonts in whose name each typed word stands, in any order; all of them for no word.
std::vector<std::size_t> FontsWith(const std::vector<FontFile>& fonts, const QString& typed);

} // namespace kesta::booklet_watermark
