#pragma once

#include "panels/booklet_watermark/fonts/FontLookup.h"
#include "platform/values/Types.h"

#include <memory>

typedef struct hb_face_t hb_face_t;
typedef struct hb_font_t hb_font_t;

namespace kesta::booklet_watermark {

// Whether a font can travel to the printer with a job.
enum class Sendability {
    AsTrueType,  // as a Type 42 font
    AsOutlines,  // as a Type 1 font: CFF outlines, instances of variable fonts
    NotOutlines, // colour or bitmap glyphs
    Forbidden,   // by the font's licence, for embedding at all or for a part of it
};

// A font's bytes, read once: what is measured, drawn and sent of it is from here. All lengths are in font units, whole
// numbers of which unitsPerEm() make an em.
class Typeface {
public:
    // Null when the file has vanished or holds no font that can be drawn. A few are kept, as long as their files stay
    // as they are.
    static std::shared_ptr<const Typeface> open(const FontFile& file);

    // From the bytes of a font file.
    static std::shared_ptr<const Typeface> read(const QByteArray& bytes, const FontFile& file);

    ~Typeface();
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;

    const FontFile& file() const { return file_; }
    Sendability sendability() const { return sendability_; }
    unsigned unitsPerEm() const { return unitsPerEm_; }
    unsigned glyphCount() const { return glyphCount_; }
    hb_face_t* face() const { return face_; }
    hb_font_t* font() const { return font_; } // scaled to font units, at the instance of a variable font

    bool hasCharacter(char32_t character) const;

private:
    Typeface(const QByteArray& bytes, const FontFile& file);

    FontFile file_;
    QByteArray bytes_;
    hb_face_t* face_ = nullptr;
    hb_font_t* font_ = nullptr;
    unsigned unitsPerEm_ = 0;
    unsigned glyphCount_ = 0;
    Sendability sendability_ = Sendability::NotOutlines;
};

// A table's bytes; empty when the font has none of that name.
QByteArray FontTable(hb_face_t* face, FourCharCode tag);

} // namespace kesta::booklet_watermark
