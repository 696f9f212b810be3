#include "panels/booklet_watermark/fonts/Typeface.h"

#include "panels/booklet_watermark/fonts/Sfnt.h"
#include "platform/system/SafeFile.h"

#include <QFile>

#include <hb-ot.h>
#include <sys/stat.h>

#include <algorithm>
#include <optional>

namespace kesta::booklet_watermark {
namespace {

constexpr qsizetype kLargestFont = 128 * 1024 * 1024; // bytes; collections of several languages have a few ten millions
constexpr std::size_t kMostOpen = 6;

constexpr unsigned kInstance = 16; // where an index has the instance

bool HasTable(hb_face_t* face, FourCharCode tag)
{
    hb_blob_t* blob = hb_face_reference_table(face, tag);
    const bool isThere = hb_blob_get_length(blob) > 0;
    hb_blob_destroy(blob);
    return isThere;
}

bool IsForbidden(hb_face_t* face)
{
    constexpr unsigned kUsage = 0xF, kRestricted = 2, kNoSubsetting = 0x100, kBitmapsOnly = 0x200;
    const QByteArray os2 = FontTable(face, "OS/2"_code);
    if (os2.size() < 10)
        return false;
    const unsigned type = SfntReader(os2).u16(8);
    return (type & kUsage) == kRestricted || (type & (kNoSubsetting | kBitmapsOnly)) != 0;
}

bool HasColors(hb_face_t* face)
{
    return hb_ot_color_has_layers(face) || hb_ot_color_has_png(face) || hb_ot_color_has_svg(face);
}

Sendability SendabilityOf(hb_face_t* face)
{
    const bool isTrueType = HasTable(face, "glyf"_code),
               isCFF = HasTable(face, "CFF "_code) || HasTable(face, "CFF2"_code);
    if (HasColors(face) || (!isTrueType && !isCFF))
        return Sendability::NotOutlines;
    if (IsForbidden(face))
        return Sendability::Forbidden;
    return isTrueType && !hb_ot_var_has_data(face) ? Sendability::AsTrueType : Sendability::AsOutlines;
}

// What tells that a file is the one that was read.
struct Stamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    timespec changed = {};

    bool operator==(const Stamp& other) const
    {
        return device == other.device && inode == other.inode && size == other.size &&
               changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
    }
};

std::optional<Stamp> StampOf(const QByteArray& path)
{
    struct stat status = {};
    if (stat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return Stamp{status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

struct OpenTypeface {
    FontFile file;
    Stamp stamp;
    std::shared_ptr<const Typeface> typeface; // null for a damaged file, so that it is not read again and again
};

// The one that was used last comes first.
std::vector<OpenTypeface>& OpenTypefaces()
{
    static std::vector<OpenTypeface> open;
    return open;
}

std::shared_ptr<const Typeface> ReadFontFile(const FontFile& file)
{
    const FileContent content = ReadFile(QFile::decodeName(file.path), kLargestFont);
    return content.bytes ? Typeface::read(*content.bytes, file) : nullptr;
}

} // namespace

QByteArray FontTable(hb_face_t* face, FourCharCode tag)
{
    hb_blob_t* blob = hb_face_reference_table(face, tag);
    unsigned size = 0;
    const char* data = hb_blob_get_data(blob, &size);
    QByteArray bytes(data, static_cast<qsizetype>(size));
    hb_blob_destroy(blob);
    return bytes;
}

Typeface::Typeface(const QByteArray& bytes, const FontFile& file) : file_(file), bytes_(bytes)
{
    hb_blob_t* blob = hb_blob_create(bytes_.constData(), static_cast<unsigned>(bytes_.size()), HB_MEMORY_MODE_READONLY,
                                     nullptr, nullptr);
    face_ = hb_face_create(blob, file.index & ((1u << kInstance) - 1));
    hb_blob_destroy(blob);
    font_ = hb_font_create(face_);
    if (const unsigned instance = file.index >> kInstance; instance > 0)
        hb_font_set_var_named_instance(font_, instance - 1);
    unitsPerEm_ = hb_face_get_upem(face_);
    glyphCount_ = std::min(hb_face_get_glyph_count(face_), 65536u);
    hb_font_set_scale(font_, static_cast<int>(unitsPerEm_), static_cast<int>(unitsPerEm_));
    sendability_ = SendabilityOf(face_);
}

Typeface::~Typeface()
{
    hb_font_destroy(font_);
    hb_face_destroy(face_);
}

bool Typeface::hasCharacter(char32_t character) const
{
    hb_codepoint_t glyph = 0;
    return hb_font_get_nominal_glyph(font_, character, &glyph) && glyph != 0;
}

std::shared_ptr<const Typeface> Typeface::read(const QByteArray& bytes, const FontFile& file)
{
    std::shared_ptr<const Typeface> typeface(new Typeface(bytes, file));
    return typeface->glyphCount() > 0 ? typeface : nullptr;
}

std::shared_ptr<const Typeface> Typeface::open(const FontFile& file)
{
    std::vector<OpenTypeface>& open = OpenTypefaces();
    const auto known = std::ranges::find(open, file, &OpenTypeface::file);
    const std::optional<Stamp> stamp = StampOf(file.path);
    if (known != open.end() && stamp == known->stamp) {
        std::rotate(open.begin(), known, known + 1);
        return open.front().typeface;
    }
    if (known != open.end())
        open.erase(known);
    if (!stamp)
        return nullptr;
    open.insert(open.begin(), {file, *stamp, ReadFontFile(file)});
    if (open.size() > kMostOpen)
        open.pop_back();
    return open.front().typeface;
}

} // namespace kesta::booklet_watermark
