#include "printer/PPDEncoding.h"

#include <QByteArray>
#include <QStringDecoder>

#include <cups/ppd.h>
#include <cups/transcode.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <strings.h>

namespace kesta {
namespace {

// libcups turns every text into UTF-8 when it opens a PPD, and says "UTF-8" in lang_encoding from then on; the name
// that stands in the file remains among the attributes. It reads some files otherwise than they are declared: it takes
// ISOLatin5 for the Cyrillic ISO 8859-5, a file without a name for ISO Latin 1, and it ignores letter case; an unknown
// name leaves the bytes as they were. So a text is turned back into the file's bytes where libcups read them in another
// encoding than the declared one, and these are decoded as declared: Turkish and Mac texts read right, and all
// others, which libcups read as declared, are taken as they come. Keywords, which libcups keeps as bytes, are decoded
// directly.
struct EncodingName {
    const char* name;
    cups_encoding_t readAs;
};

constexpr auto kReadByLibcups = std::to_array<EncodingName>({
    {kISOLatin1, CUPS_ISO8859_1},
    {kISOLatin2, CUPS_ISO8859_2},
    {kISOLatin5, CUPS_ISO8859_5},
    {kJIS83_RKSJ, CUPS_JIS_X0213},
    {"MacStandard", CUPS_MAC_ROMAN},
    {"WindowsANSI", CUPS_WINDOWS_1252},
});

struct DeclaredName {
    std::string_view name;
    StringEncoding encoding;
};

constexpr auto kDeclared = std::to_array<DeclaredName>({
    {kISOLatin1, StringEncoding::ISOLatin1},
    {kISOLatin2, StringEncoding::ISOLatin2},
    {kISOLatin5, StringEncoding::ISOLatin5},
    {kJIS83_RKSJ, StringEncoding::ShiftJIS},
    {kUTF_8, StringEncoding::UTF8},
    {kUTF8, StringEncoding::UTF8},
});

const char* DeclaredEncodingName(ppd_file_t* ppd)
{
    if (!ppd)
        return nullptr;
    const ppd_attr_t* declared = ppdFindAttr(ppd, "LanguageEncoding", nullptr);
    return declared && declared->value ? declared->value : ppd->lang_encoding;
}

cups_encoding_t ReadByLibcupsAs(ppd_file_t* ppd)
{
    const char* name = DeclaredEncodingName(ppd);
    if (!name)
        return CUPS_ISO8859_1;
    const auto found = std::ranges::find_if(
        kReadByLibcups, [name](const EncodingName& row) { return strcasecmp(row.name, name) == 0; });
    return found == kReadByLibcups.end() ? CUPS_UTF8 : found->readAs;
}

cups_encoding_t DeclaredAs(ppd_file_t* ppd)
{
    switch (PPDGetEncoding(ppd)) {
    case StringEncoding::ISOLatin1:
        return CUPS_ISO8859_1;
    case StringEncoding::ISOLatin2:
        return CUPS_ISO8859_2;
    case StringEncoding::ISOLatin5:
        return CUPS_ISO8859_9;
    case StringEncoding::ShiftJIS:
        return CUPS_JIS_X0213;
    case StringEncoding::UTF8:
        return CUPS_UTF8;
    case StringEncoding::MacRoman:
        break;
    }
    return CUPS_MAC_ROMAN;
}

// Nothing when the bytes are no text in that encoding.
std::optional<QString> Decode(const char* bytes, cups_encoding_t encoding)
{
    std::array<cups_utf8_t, 4 * PPD_MAX_LINE> converted{};
    const char* utf8 = bytes;
    if (encoding != CUPS_UTF8) {
        if (cupsCharsetToUTF8(converted.data(), bytes, static_cast<int>(converted.size()), encoding) < 0)
            return std::nullopt;
        utf8 = reinterpret_cast<const char*>(converted.data());
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(utf8);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

// The bytes that stood in the file; nothing when the text can't have come from it.
std::optional<QByteArray> Restore(const char* text, cups_encoding_t readAs)
{
    if (readAs == CUPS_UTF8)
        return QByteArray(text);
    std::array<char, 4 * PPD_MAX_LINE> bytes{};
    const auto* utf8 = reinterpret_cast<const cups_utf8_t*>(text);
    if (cupsUTF8ToCharset(bytes.data(), utf8, static_cast<int>(bytes.size()), readAs) < 0)
        return std::nullopt;
    return QByteArray(bytes.data());
}

} // namespace

StringEncoding PPDGetEncoding(ppd_file_t* ppd)
{
    const char* name = DeclaredEncodingName(ppd);
    const auto found = std::ranges::find(kDeclared, name ? std::string_view(name) : "", &DeclaredName::name);
    return found == kDeclared.end() ? StringEncoding::MacRoman : found->encoding;
}

QString PPDDecodeText(ppd_file_t* ppd, const char* text)
{
    const cups_encoding_t readAs = ReadByLibcupsAs(ppd);
    const cups_encoding_t declaredAs = DeclaredAs(ppd);
    const std::optional<QByteArray> bytes = readAs == declaredAs ? std::nullopt : Restore(text, readAs);
    const std::optional<QString> decoded = bytes ? Decode(bytes->constData(), declaredAs) : std::nullopt;
    return decoded ? *decoded : QString::fromUtf8(text);
}

std::optional<QString> PPDDecodeKeyword(ppd_file_t* ppd, const char* keyword)
{
    return Decode(keyword, DeclaredAs(ppd));
}

} // namespace kesta
