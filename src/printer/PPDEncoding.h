#pragma once

#include "platform/values/Types.h"

#include <QString>

#include <optional>

struct ppd_file_s;

namespace kesta {

using ppd_file_t = ppd_file_s;

inline constexpr char kISOLatin1[] = "ISOLatin1";
inline constexpr char kISOLatin2[] = "ISOLatin2";
inline constexpr char kISOLatin5[] = "ISOLatin5";
inline constexpr char kJIS83_RKSJ[] = "JIS83-RKSJ";
inline constexpr char kUTF_8[] = "UTF-8";
inline constexpr char kUTF8[] = "UTF8";

enum class StringEncoding : SInt32 {
    MacRoman = 0,
    ISOLatin1 = 0x201,
    ISOLatin2 = 0x202,
    ISOLatin5 = 0x209,
    ShiftJIS = 0xA01,
    UTF8 = 0x8000100,
};

// The encoding that the PPD declares for its texts; Mac Roman when it names none, or not exactly one of the above.
StringEncoding PPDGetEncoding(ppd_file_t* ppd);

// A text of libcups' PPD structures: choice, option and group texts.
QString PPDDecodeText(ppd_file_t* ppd, const char* text);
// A keyword of them, which libcups keeps as its bytes; nothing when they are no text in the PPD's encoding.
std::optional<QString> PPDDecodeKeyword(ppd_file_t* ppd, const char* keyword);

} // namespace kesta
