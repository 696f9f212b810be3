#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include "pde/ticket/CFAdditions.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>

namespace kesta::booklet_watermark {
namespace {

using W = _WatermarkData;
using C = WatermarkColor;
using Member = std::variant<BoundedText W::*, Float32 W::*, Float64 W::*, SInt32 W::*>;

struct Row {
    const char* key;
    Member member;
};

constexpr auto kRows = std::to_array<Row>({
    {"textString", &W::text},
    {"filename", &W::fileName},
    {"filePath", &W::filePath},
    {"fontName", &W::fontName},
    {"xOffset", &W::xOffset},
    {"yOffset", &W::yOffset},
    {"xPos", &W::xPosition},
    {"yPos", &W::yPosition},
    {"angle", &W::angle},
    {"density", &W::density},
    {"scale", &W::scale},
    {"units", &W::units},
    {"fontSize", &W::fontSize},
});
static_assert(kRows.size() == 13);

struct ColorRow {
    const char* key;
    C W::*color;
    Float32 C::*channel;
};

constexpr auto kColorRows = std::to_array<ColorRow>({
    {"wellColorRed", &W::wellColor, &C::red},
    {"wellColorGreen", &W::wellColor, &C::green},
    {"wellColorBlue", &W::wellColor, &C::blue},
    {"wellColorAlpha", &W::wellColor, &C::alpha},
    {"fontColorRed", &W::fontColor, &C::red},
    {"fontColorGreen", &W::fontColor, &C::green},
    {"fontColorBlue", &W::fontColor, &C::blue},
    {"fontColorAlpha", &W::fontColor, &C::alpha},
});
static_assert(kColorRows.size() == 8);

constexpr char kGlyphCountKey[] = "glyphCount";
constexpr char kGlyphsKey[] = "glyphs";

Value Stored(const BoundedText& text)
{
    return text.get();
}

Value Stored(Float32 number)
{
    return Number::Float32(number);
}

Value Stored(Float64 number)
{
    return Number::Float64(number);
}

Value Stored(SInt32 number)
{
    return Number::SInt32(number);
}

void Read(BoundedText& text, const Dictionary& stored, const char* key)
{
    if (const QString* found = stored.string(key))
        text.set(*found);
}

// The nearest number that the field holds: what was written with a float's digits is no exact float when it is read.
template <std::floating_point Real> void Read(Real& number, const Dictionary& stored, const char* key)
{
    const std::optional<Float64> found = CFDictionaryGetNumber<Float64>(stored, key);
    if (found && std::abs(*found) <= std::numeric_limits<Real>::max())
        number = static_cast<Real>(*found);
}

void Read(SInt32& number, const Dictionary& stored, const char* key)
{
    number = CFDictionaryGetNumber<SInt32>(stored, key).value_or(number);
}

QByteArray BytesFromGlyphs(const std::vector<std::uint16_t>& glyphs)
{
    QByteArray bytes(static_cast<qsizetype>(glyphs.size() * sizeof(std::uint16_t)), Qt::Uninitialized);
    qToLittleEndian<std::uint16_t>(glyphs.data(), static_cast<qsizetype>(glyphs.size()), bytes.data());
    return bytes;
}

void ReadGlyphs(std::vector<std::uint16_t>& glyphs, const Dictionary& stored)
{
    const QByteArray* bytes = stored.data(kGlyphsKey);
    if (!bytes)
        return;
    const qsizetype room = bytes->size() / static_cast<qsizetype>(sizeof(std::uint16_t));
    const SInt64 counted = CFDictionaryGetNumber<SInt64>(stored, kGlyphCountKey).value_or(room);
    glyphs.resize(static_cast<std::size_t>(std::clamp<SInt64>(counted, 0, room)));
    if (!glyphs.empty()) // null is no place to copy to, not even nothing
        qFromLittleEndian<std::uint16_t>(bytes->constData(), static_cast<qsizetype>(glyphs.size()), glyphs.data());
}

} // namespace

bool BoundedText::set(const QString& text)
{
    if (text.toUtf8().size() >= room_)
        return false;
    text_ = text;
    return true;
}

const QString& NameOf(const _WatermarkData& watermark)
{
    return watermark.isText ? watermark.text.get() : watermark.fileName.get();
}

Dictionary DictionaryFromWatermark(const _WatermarkData& watermark)
{
    Dictionary stored;
    for (const Row& row : kRows)
        stored.set(row.key, std::visit([&](auto member) { return Stored(watermark.*member); }, row.member));
    for (const ColorRow& row : kColorRows)
        stored.set(row.key, Stored(watermark.*row.color.*row.channel));
    if (!watermark.glyphs.empty()) {
        stored.set(kGlyphCountKey, Number::SInt32(static_cast<SInt32>(watermark.glyphs.size())));
        stored.set(kGlyphsKey, BytesFromGlyphs(watermark.glyphs));
    }
    return stored;
}

void ReadWatermark(const Dictionary& stored, _WatermarkData& watermark)
{
    for (const Row& row : kRows)
        std::visit([&](auto member) { Read(watermark.*member, stored, row.key); }, row.member);
    for (const ColorRow& row : kColorRows)
        Read(watermark.*row.color.*row.channel, stored, row.key);
    ReadGlyphs(watermark.glyphs, stored);
}

} // namespace kesta::booklet_watermark
