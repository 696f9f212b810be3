#include "panels/booklet_watermark/fonts/FontLookup.h"

#include "panels/booklet_watermark/fonts/WellKnownFonts.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <memory>
#include <tuple>

namespace kesta::booklet_watermark {
namespace {

constexpr std::size_t kMostSubstitutes = 8;
constexpr std::size_t kMostRemembered = 32;

struct FcDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
    void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
    void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
    void operator()(FcCharSet* characters) const { FcCharSetDestroy(characters); }
    void operator()(FcConfig* configuration) const { FcConfigDestroy(configuration); }
};
using Pattern = std::unique_ptr<FcPattern, FcDeleter>;
using FontSet = std::unique_ptr<FcFontSet, FcDeleter>;
using CharacterSet = std::unique_ptr<FcCharSet, FcDeleter>;
using Configuration = std::unique_ptr<FcConfig, FcDeleter>;

const FcChar8* FcText(const QByteArray& text)
{
    return reinterpret_cast<const FcChar8*>(text.constData());
}

QByteArray Bytes(FcPattern* pattern, const char* object)
{
    FcChar8* text = nullptr;
    return FcPatternGetString(pattern, object, 0, &text) == FcResultMatch ? QByteArray(reinterpret_cast<char*>(text))
                                                                          : QByteArray();
}

bool Is(FcPattern* pattern, const char* object)
{
    FcBool value = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &value) == FcResultMatch && value != FcFalse;
}

// The best of the languages that a font's name is in comes first.
QString Text(FcPattern* pattern, const char* object)
{
    return QString::fromUtf8(Bytes(pattern, object));
}

// A variable font is listed as a whole, too, but one instance of it has to be chosen.
bool HasKnownOutlines(FcPattern* pattern)
{
    const QByteArray format = Bytes(pattern, FC_FONTFORMAT);
    return (format == "TrueType" || format == "CFF") && Is(pattern, FC_SCALABLE) && !Is(pattern, FC_VARIABLE) &&
           !Bytes(pattern, FC_POSTSCRIPT_NAME).isEmpty();
}

FontFile FileOf(FcPattern* pattern)
{
    FontFile file;
    int index = 0;
    FcPatternGetInteger(pattern, FC_INDEX, 0, &index);
    file.path = Bytes(pattern, FC_FILE);
    file.index = static_cast<unsigned>(index);
    file.postScriptName = Text(pattern, FC_POSTSCRIPT_NAME);
    file.family = Text(pattern, FC_FAMILY);
    file.displayName = Text(pattern, FC_FULLNAME);
    if (file.displayName.isEmpty())
        file.displayName = file.family;
    return file;
}

FontSet List(Pattern pattern)
{
    const std::unique_ptr<FcObjectSet, FcDeleter> objects(
        FcObjectSetBuild(FC_FILE, FC_INDEX, FC_FONTFORMAT, FC_SCALABLE, FC_VARIABLE, FC_POSTSCRIPT_NAME, FC_FAMILY,
                         FC_FULLNAME, static_cast<char*>(nullptr)));
    return pattern && objects ? FontSet(FcFontList(nullptr, pattern.get(), objects.get())) : FontSet();
}

std::vector<FontFile> KnownOutlines(const FontSet& fonts)
{
    std::vector<FontFile> files;
    std::vector<FontFile> others;
    for (int i = 0; fonts && i < fonts->nfont; ++i)
        if (FcPattern* pattern = fonts->fonts[i]; HasKnownOutlines(pattern))
            (Bytes(pattern, FC_FONTFORMAT) == "TrueType" ? files : others).push_back(FileOf(pattern));
    const auto byPlace = [](const FontFile& a, const FontFile& b) {
        return std::tie(a.path, a.index) < std::tie(b.path, b.index);
    };
    std::ranges::sort(files, byPlace); // whatever the order of the folders
    std::ranges::sort(others, byPlace);
    files.insert(files.end(), others.begin(), others.end());
    return files;
}

std::vector<FontFile> SearchNamed(const QString& postScriptName, const QString&)
{
    Pattern pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_POSTSCRIPT_NAME, FcText(postScriptName.toUtf8()));
    std::vector<FontFile> files = KnownOutlines(List(std::move(pattern)));
    std::erase_if(files, [&](const FontFile& file) { return file.postScriptName != postScriptName; });
    return files;
}

Pattern SubstitutePattern(const QString& postScriptName)
{
    const FontDescription description = DescribeFont(postScriptName);
    Pattern pattern(FcPatternCreate());
    if (!description.family.isEmpty())
        FcPatternAddString(pattern.get(), FC_FAMILY, FcText(description.family.toUtf8()));
    FcPatternAddString(pattern.get(), FC_FAMILY, FcText("sans-serif"));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, description.isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern.get(), FC_SLANT, description.isSlanted ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

CharacterSet SetOf(const QString& characters)
{
    CharacterSet set(FcCharSetCreate());
    for (const char32_t character : characters.toStdU32String())
        FcCharSetAddChar(set.get(), character);
    return set;
}

bool HasAll(FcPattern* pattern, const FcCharSet* wanted)
{
    FcCharSet* has = nullptr;
    return FcPatternGetCharSet(pattern, FC_CHARSET, 0, &has) == FcResultMatch && FcCharSetIsSubset(wanted, has);
}

std::vector<FontFile> SearchSubstitutes(const QString& postScriptName, const QString& characters)
{
    const Pattern pattern = SubstitutePattern(postScriptName);
    FcResult result = FcResultNoMatch;
    const FontSet sorted(FcFontSort(nullptr, pattern.get(), FcFalse, nullptr, &result));
    const CharacterSet wanted = SetOf(characters);
    std::vector<FontFile> files;
    for (int i = 0; sorted && i < sorted->nfont && files.size() < kMostSubstitutes; ++i) {
        FcPattern* font = sorted->fonts[i];
        if (HasKnownOutlines(font) && !Is(font, FC_COLOR) && HasAll(font, wanted.get()))
            files.push_back(FileOf(font));
    }
    return files;
}

// Looking at all fonts takes its time, and a preview asks for the same again and again.
class RememberedFonts {
public:
    using Search = std::vector<FontFile> (*)(const QString& postScriptName, const QString& characters);

    const std::vector<FontFile>& find(const QString& postScriptName, const QString& characters, Search search)
    {
        Configuration now(FcConfigReference(nullptr));
        if (now != configuration_ || entries_.size() > kMostRemembered)
            entries_.clear();
        configuration_ = std::move(now);
        const auto isAsked = [&](const Entry& entry) {
            return entry.postScriptName == postScriptName && entry.characters == characters;
        };
        const auto known = std::ranges::find_if(entries_, isAsked);
        if (known != entries_.end())
            return known->files;
        entries_.push_back({postScriptName, characters, search(postScriptName, characters)});
        return entries_.back().files;
    }

private:
    struct Entry {
        QString postScriptName;
        QString characters;
        std::vector<FontFile> files;
    };

    Configuration configuration_; // kept, so that no other one can take its place in memory
    std::vector<Entry> entries_;
};

} // namespace

std::vector<FontFile> FontsNamed(const QString& postScriptName)
{
    static RememberedFonts remembered;
    FcInitBringUptoDate();
    return remembered.find(postScriptName, {}, SearchNamed);
}

std::vector<FontFile> SubstitutesFor(const QString& postScriptName, const QString& characters)
{
    static RememberedFonts remembered;
    FcInitBringUptoDate();
    return remembered.find(postScriptName, characters, SearchSubstitutes);
}

std::vector<FontFile> InstalledFonts()
{
    FcInitBringUptoDate();
    std::vector<FontFile> files = KnownOutlines(List(Pattern(FcPatternCreate())));
    std::ranges::stable_sort(files, {}, &FontFile::postScriptName);
    const auto repeats = [](const FontFile& one, const FontFile& next) {
        return one.postScriptName == next.postScriptName;
    };
    files.erase(std::unique(files.begin(), files.end(), repeats), files.end());
    return files;
}

} // namespace kesta::booklet_watermark
