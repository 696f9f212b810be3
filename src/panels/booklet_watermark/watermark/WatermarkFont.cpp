#include "panels/booklet_watermark/watermark/WatermarkFont.h"

#include "panels/booklet_watermark/fonts/FontProgram.h"
#include "panels/booklet_watermark/watermark/WatermarkNames.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "platform/system/SharedStoreFile.h"

#include <algorithm>

namespace kesta::booklet_watermark {
namespace {

FontProblem ProblemOf(Sendability sendability)
{
    switch (sendability) {
    case Sendability::NotOutlines:
        return FontProblem::NotOutlines;
    case Sendability::Forbidden:
        return FontProblem::Forbidden;
    case Sendability::AsTrueType:
    case Sendability::AsOutlines:
        break;
    }
    return FontProblem::None;
}

// The driver shows the glyphs that the record has.
void BringUpToDate(QAnyStringView storeFile, const QString& name, _WatermarkData& record,
                   const std::vector<PlacedGlyph>& line)
{
    std::vector<std::uint16_t> glyphs(line.size());
    std::ranges::transform(line, glyphs.begin(), &PlacedGlyph::glyph);
    if (record.glyphs == glyphs)
        return;
    record.glyphs = std::move(glyphs);
    if (NameOf(record) == name) // or it would replace another entry of a damaged store
        saveWatermarkData(storeFile, record);
}

bool StoreFont(QAnyStringView storeFile, const QString& key, const QByteArray& program)
{
    if (HasWatermark(storeFile, key))
        return false;
    storeFontData(storeFile, key, program);
    QByteArray stored;
    loadFontData(storeFile, key, stored);
    return stored == program;
}

// Under which the store would keep the font of a watermark; empty when it has none.
QString FontKey(const _WatermarkData& record)
{
    const FontChoice font = record.text.isEmpty() ? FontChoice() : ChooseFont(record.fontName.get(), record.text.get());
    return font.typeface ? SubsetFontName(font.typeface->file().postScriptName) : QString();
}

bool IsFontUsed(const Dictionary& root, const QString& key)
{
    return std::any_of(root.begin(), root.end(), [&](const auto& entry) {
        _WatermarkData record;
        if (const Dictionary* stored = entry.second.dictionary())
            ReadWatermark(*stored, record);
        return FontKey(record) == key;
    });
}

} // namespace

ConvertedFont convertFont(QAnyStringView storeFile, const QString& name)
{
    ConvertedFont converted;
    _WatermarkData record;
    loadWatermarkData(storeFile, name, record);
    if (record.text.isEmpty()) {
        converted.problem = FontProblem::NoText;
        return converted;
    }
    const FontChoice font = ChooseFont(record.fontName.get(), record.text.get());
    if (!font.typeface) {
        converted.problem = FontProblem::NoFont;
        return converted;
    }
    converted.fontName = font.typeface->file().displayName;
    converted.problem = ProblemOf(font.typeface->sendability());
    if (converted.problem != FontProblem::None)
        return converted;
    BringUpToDate(storeFile, name, record, font.line.glyphs);
    const QByteArray program = MakeFontProgram(*font.typeface, font.line.glyphs);
    const QString key = SubsetFontName(font.typeface->file().postScriptName);
    if (program.isEmpty())
        converted.problem = FontProblem::Damaged;
    else if (!StoreFont(storeFile, key, program))
        converted.problem = FontProblem::NotStored;
    else
        converted.subsetName = key;
    return converted;
}

FontCheck CheckFont(const _WatermarkData& record)
{
    if (record.text.isEmpty())
        return {{}, FontProblem::NoText};
    const FontChoice font = ChooseFont(record.fontName.get(), record.text.get());
    if (!font.typeface)
        return {{}, FontProblem::NoFont};
    FontCheck check{{}, ProblemOf(font.typeface->sendability())};
    check.notes.fontName = font.typeface->file().displayName;
    check.notes.isSubstitute = font.isSubstitute;
    check.notes.missingCharacters = font.line.missing;
    if (check.problem == FontProblem::None && MakeFontProgram(*font.typeface, font.line.glyphs).isEmpty())
        check.problem = FontProblem::Damaged;
    return check;
}

void DropFont(QAnyStringView storeFile, const _WatermarkData& removed)
{
    const QString key = FontKey(removed);
    if (key.isEmpty())
        return;
    ChangeXMLData(storeFile, WhenUnreadable::DoNothing, [&](Dictionary& root) {
        if (root.data(key) && !IsFontUsed(root, key))
            root.remove(key);
    });
}

} // namespace kesta::booklet_watermark
