#include "panels/booklet_watermark/fonts/TrueTypeSubset.h"

#include "panels/booklet_watermark/fonts/Sfnt.h"

#include <QtEndian>

#include <hb-subset.h>

#include <algorithm>
#include <limits>
#include <map>

namespace kesta::booklet_watermark {
namespace {

struct SubsetDeleter {
    void operator()(hb_face_t* face) const { hb_face_destroy(face); }
    void operator()(hb_subset_input_t* input) const { hb_subset_input_destroy(input); }
    void operator()(hb_subset_plan_t* plan) const { hb_subset_plan_destroy(plan); }
};
using Face = std::unique_ptr<hb_face_t, SubsetDeleter>;

// Of the tables, where their numbers are.
constexpr std::size_t kHeadBounds = 36, kHeadLocaFormat = 50, kHeadSize = 54;
constexpr std::size_t kHheaMetrics = 34, kHheaSize = 36;
constexpr std::size_t kMaxpGlyphs = 4, kMaxpPoints = 6, kMaxpContours = 8, kMaxpCompositePoints = 10,
                      kMaxpCompositeContours = 12, kMaxpComponents = 28, kMaxpDepth = 30, kMaxpSize = 32;

constexpr qsizetype kGlyphHeader = 10;
constexpr unsigned kWords = 0x0001, kAreOffsets = 0x0002; // of a composite's component

struct Metrics {
    std::uint16_t advance = 0;
    std::int16_t bearing = 0;
};

void Append16(QByteArray& bytes, unsigned number)
{
    const auto big = qToBigEndian(static_cast<std::uint16_t>(number));
    bytes.append(reinterpret_cast<const char*>(&big), sizeof big);
}

void Put16(QByteArray& bytes, std::size_t offset, unsigned number)
{
    qToBigEndian(static_cast<std::uint16_t>(number), bytes.data() + offset);
}

template <class Integer> bool Fits(SInt32 number)
{
    return number >= std::numeric_limits<Integer>::min() && number <= std::numeric_limits<Integer>::max();
}

// The tables of a font whose glyphs are counted up.
class Tables {
public:
    // False for a font that is damaged.
    bool read(hb_face_t* face)
    {
        head_ = FontTable(face, "head"_code);
        hhea_ = FontTable(face, "hhea"_code);
        maxp_ = FontTable(face, "maxp"_code);
        const QByteArray hmtx = FontTable(face, "hmtx"_code);
        const QByteArray loca = FontTable(face, "loca"_code);
        const QByteArray glyf = FontTable(face, "glyf"_code);
        const auto has = [](const QByteArray& table, std::size_t size) {
            return table.size() >= static_cast<qsizetype>(size);
        };
        return has(head_, kHeadSize) && has(hhea_, kHheaSize) && has(maxp_, kMaxpSize) && readGlyphs(glyf, loca) &&
               readMetrics(hmtx);
    }

    std::size_t count() const { return glyphs_.size(); }
    const Metrics& metrics(std::size_t glyph) const { return metrics_[glyph]; }
    bool hasInk() const
    {
        return std::ranges::any_of(glyphs_, [](const QByteArray& glyph) { return glyph.size() > kGlyphHeader; });
    }

    // False when there is no room for it.
    bool addMoved(std::uint16_t glyph, const PlacedGlyph& placed)
    {
        const QByteArray original = glyphs_[glyph];
        const SInt32 bearing = metrics_[glyph].bearing + placed.x;
        if (glyphs_.size() >= 65535 || !Fits<std::uint16_t>(placed.advance) || !Fits<std::int16_t>(placed.x) ||
            !Fits<std::int16_t>(placed.y) || !Fits<std::int16_t>(bearing))
            return false;
        QByteArray composite;
        if (original.size() >= kGlyphHeader && !appendComposite(composite, original, glyph, placed))
            return false;
        glyphs_.push_back(composite);
        metrics_.push_back({static_cast<std::uint16_t>(placed.advance), static_cast<std::int16_t>(bearing)});
        hasComposites_ = true;
        return true;
    }

    QByteArray font()
    {
        finishLimits();
        QByteArray glyf, loca, hmtx;
        for (const QByteArray& glyph : glyphs_) {
            appendOffset(loca, glyf.size());
            glyf += glyph;
            glyf.append(-glyf.size() & 3, '\0');
        }
        appendOffset(loca, glyf.size());
        for (const Metrics& metrics : metrics_) {
            Append16(hmtx, metrics.advance);
            Append16(hmtx, static_cast<std::uint16_t>(metrics.bearing));
        }
        QByteArray post(32, '\0');
        Put16(post, 0, 3); // without names
        const Face builder(hb_face_builder_create());
        add(builder, "head"_code, head_);
        add(builder, "hhea"_code, hhea_);
        add(builder, "maxp"_code, maxp_);
        add(builder, "hmtx"_code, hmtx);
        add(builder, "loca"_code, loca);
        add(builder, "glyf"_code, glyf);
        add(builder, "post"_code, post);
        add(builder, "name"_code, QByteArray("\0\0\0\0\0\6", 6)); // none
        hb_blob_t* blob = hb_face_reference_blob(builder.get());
        unsigned size = 0;
        const char* data = hb_blob_get_data(blob, &size);
        QByteArray font(data, static_cast<qsizetype>(size));
        hb_blob_destroy(blob);
        return font;
    }

private:
    bool readGlyphs(const QByteArray& glyf, const QByteArray& loca)
    {
        SfntReader offsets(loca), limits(maxp_), format(head_);
        const bool isLong = format.u16(kHeadLocaFormat) != 0;
        const auto offset = [&](std::size_t glyph) {
            return isLong ? offsets.u32(4 * glyph) : 2u * offsets.u16(2 * glyph);
        };
        glyphs_.resize(limits.u16(kMaxpGlyphs));
        for (std::size_t glyph = 0; glyph < glyphs_.size(); ++glyph) {
            const std::uint32_t start = offset(glyph), end = offset(glyph + 1);
            if (start > end || end > static_cast<std::size_t>(glyf.size()))
                return false;
            glyphs_[glyph] = glyf.mid(start, end - start);
        }
        return !glyphs_.empty() && !offsets.hasReadBeyondEnd();
    }

    bool readMetrics(const QByteArray& hmtx)
    {
        SfntReader numbers(hmtx), header(hhea_);
        const std::size_t full = header.u16(kHheaMetrics);
        for (std::size_t glyph = 0; glyph < glyphs_.size() && full > 0; ++glyph) {
            const std::size_t last = std::min(glyph, full - 1);
            const std::size_t bearing = glyph < full ? 4 * glyph + 2 : 4 * full + 2 * (glyph - full);
            metrics_.push_back({numbers.u16(4 * last), numbers.s16(bearing)});
        }
        return metrics_.size() == glyphs_.size() && !numbers.hasReadBeyondEnd();
    }

    static bool appendComposite(QByteArray& composite, const QByteArray& original, std::uint16_t glyph,
                                const PlacedGlyph& placed)
    {
        SfntReader bounds(original);
        Append16(composite, 0xFFFF); // contours: it is a composite
        for (const std::size_t at : {2u, 4u, 6u, 8u}) {
            const SInt32 moved = bounds.s16(at) + (at % 4 == 2 ? placed.x : placed.y);
            if (!Fits<std::int16_t>(moved))
                return false;
            Append16(composite, static_cast<std::uint16_t>(moved));
        }
        Append16(composite, kWords | kAreOffsets);
        Append16(composite, glyph);
        Append16(composite, static_cast<std::uint16_t>(placed.x));
        Append16(composite, static_cast<std::uint16_t>(placed.y));
        return true;
    }

    void finishLimits()
    {
        Put16(head_, kHeadLocaFormat, 1);
        Put16(hhea_, kHheaMetrics, static_cast<unsigned>(metrics_.size()));
        Put16(maxp_, kMaxpGlyphs, static_cast<unsigned>(glyphs_.size()));
        putBounds();
        if (!hasComposites_)
            return;
        SfntReader limits(maxp_);
        Put16(maxp_, kMaxpCompositePoints, std::max(limits.u16(kMaxpPoints), limits.u16(kMaxpCompositePoints)));
        Put16(maxp_, kMaxpCompositeContours, std::max(limits.u16(kMaxpContours), limits.u16(kMaxpCompositeContours)));
        Put16(maxp_, kMaxpComponents, std::max<unsigned>(limits.u16(kMaxpComponents), 1));
        Put16(maxp_, kMaxpDepth, std::min(limits.u16(kMaxpDepth) + 1u, 16u));
    }

    // Of all glyphs, the moved ones included.
    void putBounds()
    {
        for (std::size_t side = 0; side < 4; ++side) {
            std::int16_t most = 0;
            for (const QByteArray& glyph : glyphs_)
                if (glyph.size() >= kGlyphHeader) {
                    const std::int16_t bound = SfntReader(glyph).s16(2 + 2 * side);
                    most = side < 2 ? std::min(most, bound) : std::max(most, bound);
                }
            Put16(head_, kHeadBounds + 2 * side, static_cast<std::uint16_t>(most));
        }
    }

    static void appendOffset(QByteArray& loca, qsizetype offset)
    {
        Append16(loca, static_cast<unsigned>(offset >> 16));
        Append16(loca, static_cast<unsigned>(offset & 0xFFFF));
    }

    static void add(const Face& builder, FourCharCode tag, const QByteArray& table)
    {
        hb_blob_t* blob = hb_blob_create(table.constData(), static_cast<unsigned>(table.size()),
                                         HB_MEMORY_MODE_DUPLICATE, nullptr, nullptr);
        hb_face_builder_add_table(builder.get(), tag, blob);
        hb_blob_destroy(blob);
    }

    QByteArray head_, hhea_, maxp_;
    std::vector<QByteArray> glyphs_;
    std::vector<Metrics> metrics_;
    bool hasComposites_ = false;
};

struct HarfBuzzSubset {
    Face face;
    std::map<std::uint16_t, std::uint16_t> glyphs; // from the whole font's
};

std::unique_ptr<hb_subset_input_t, SubsetDeleter> SubsetInput(std::span<const PlacedGlyph> glyphs)
{
    std::unique_ptr<hb_subset_input_t, SubsetDeleter> input(hb_subset_input_create_or_fail());
    if (!input)
        return input;
    hb_subset_input_set_flags(input.get(), HB_SUBSET_FLAGS_NO_HINTING | HB_SUBSET_FLAGS_NOTDEF_OUTLINE);
    hb_set_t* wanted = hb_subset_input_glyph_set(input.get());
    for (const PlacedGlyph& placed : glyphs)
        hb_set_add(wanted, placed.glyph);
    hb_set_t* dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
    for (const FourCharCode tag : {"BASE"_code, "GDEF"_code, "GPOS"_code, "GSUB"_code, "OS/2"_code, "cmap"_code,
                                   "kern"_code, "name"_code, "post"_code, "vhea"_code, "vmtx"_code, "VORG"_code})
        hb_set_add(dropped, tag);
    return input;
}

std::optional<HarfBuzzSubset> Subset(const Typeface& typeface, std::span<const PlacedGlyph> glyphs)
{
    const auto input = SubsetInput(glyphs);
    const std::unique_ptr<hb_subset_plan_t, SubsetDeleter> plan(
        input ? hb_subset_plan_create_or_fail(typeface.face(), input.get()) : nullptr);
    HarfBuzzSubset subset{Face(plan ? hb_subset_plan_execute_or_fail(plan.get()) : nullptr), {}};
    if (!subset.face)
        return std::nullopt;
    const hb_map_t* renumbered = hb_subset_plan_old_to_new_glyph_mapping(plan.get());
    for (const PlacedGlyph& placed : glyphs) {
        const hb_codepoint_t glyph = hb_map_get(renumbered, placed.glyph);
        if (glyph > 65535) // not there
            return std::nullopt;
        subset.glyphs[placed.glyph] = static_cast<std::uint16_t>(glyph);
    }
    return subset;
}

} // namespace

std::optional<TrueTypeSubset> MakeTrueTypeSubset(const Typeface& typeface, std::span<const PlacedGlyph> glyphs)
{
    const std::optional<HarfBuzzSubset> subset = Subset(typeface, glyphs);
    Tables tables;
    if (!subset || !tables.read(subset->face.get()) || !tables.hasInk())
        return std::nullopt;
    TrueTypeSubset result;
    std::map<PlacedGlyph, std::uint16_t> moved;
    for (const PlacedGlyph& placed : glyphs) {
        const std::uint16_t glyph = subset->glyphs.at(placed.glyph);
        if (glyph >= tables.count())
            return std::nullopt;
        const bool isPlain = placed.x == 0 && placed.y == 0 && placed.advance == tables.metrics(glyph).advance;
        const auto [known, isNew] =
            moved.try_emplace(placed, isPlain ? glyph : static_cast<std::uint16_t>(tables.count()));
        if (isNew && !isPlain && !tables.addMoved(glyph, placed))
            return std::nullopt;
        result.glyphs.push_back(known->second);
    }
    result.font = tables.font();
    return result;
}

} // namespace kesta::booklet_watermark
