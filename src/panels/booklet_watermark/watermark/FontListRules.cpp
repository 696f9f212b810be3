#include "panels/booklet_watermark/watermark/FontListRules.h"

#include <QCollator>
#include <QStringList>

#include <algorithm>

namespace kesta::booklet_watermark {

void SortFonts(std::vector<FontFile>& fonts, const QLocale& locale)
{
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, std::size_t>> keys;
    keys.reserve(fonts.size());
    for (const FontFile& font : fonts)
        keys.emplace_back(collator.sortKey(font.displayName), keys.size());
    std::ranges::stable_sort(keys, [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<FontFile> sorted;
    sorted.reserve(fonts.size());
    for (const auto& [key, place] : keys)
        sorted.push_back(std::move(fonts[place]));
    fonts = std::move(sorted);
}

std::vector<std::size_t> FontsWith(const std::vector<FontFile>& fonts, const QString& typed)
{
    const QStringList words = typed.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<std::size_t> found;
    for (std::size_t place = 0; place < fonts.size(); ++place) {
        const QString& name = fonts[place].displayName;
        const bool hasAll =
            std::ranges::all_of(words, [&](const QString& word) { return name.contains(word, Qt::CaseInsensitive); });
        if (hasAll)
            found.push_back(place);
    }
    return found;
}

} // namespace kesta::booklet_watermark
