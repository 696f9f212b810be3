#include "panels/booklet_watermark/fonts/Type42Strings.h"

#include <algorithm>
#include <cstring>

namespace kesta::booklet_watermark {
namespace {

constexpr std::size_t kMostInString = 65534;
constexpr std::size_t kBytesInLine = 30;
constexpr std::size_t kPadInLine = 2; // what the end of a string adds to a line's count

// The compiler makes this function once more for processors with three-operand vector instructions, which take a fifth
// fewer of them; the program picks one when it is loaded.
#if defined(__x86_64__) && defined(__gnu_linux__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define KESTA_ALSO_FOR_AVX2 [[gnu::target_clones("avx2", "default")]]
#else
#define KESTA_ALSO_FOR_AVX2
#endif

using Bytes = signed char __attribute__((vector_size(16)));
using UnsignedBytes = unsigned char __attribute__((vector_size(16)));

Bytes Digits(Bytes nibbles)
{
    return nibbles + '0' + ((nibbles > 9) & ('A' - '0' - 10));
}

void HexOf16(const char* in, char* out)
{
    UnsignedBytes bytes;
    std::memcpy(&bytes, in, sizeof bytes);
    const Bytes high = Digits(reinterpret_cast<Bytes>(bytes >> 4)), low = Digits(reinterpret_cast<Bytes>(bytes & 15));
    const Bytes first = __builtin_shufflevector(high, low, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
    const Bytes second =
        __builtin_shufflevector(high, low, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
    std::memcpy(out, &first, sizeof first);
    std::memcpy(out + sizeof first, &second, sizeof second);
}

// Writes 2 * count characters.
char* WriteHex(const char* in, std::size_t count, char* out)
{
    static constexpr char kDigits[] = "0123456789ABCDEF";
    if (count < 16) {
        for (const char* end = in + count; in != end; ++in) {
            *out++ = kDigits[static_cast<unsigned char>(*in) >> 4];
            *out++ = kDigits[*in & 15];
        }
        return out;
    }
    for (std::size_t done = 0; done + 16 < count; done += 16)
        HexOf16(in + done, out + 2 * done);
    HexOf16(in + count - 16, out + 2 * (count - 16)); // may write some again
    return out + 2 * count;
}

// Ends the line when it is full.
char* WritePart(const char* in, std::size_t count, std::size_t& inLine, char* out)
{
    out = WriteHex(in, count, out);
    inLine = (inLine + count) % kBytesInLine;
    if (inLine == 0)
        *out++ = '\n';
    return out;
}

// Continues the line that the last string left.
KESTA_ALSO_FOR_AVX2 char* WriteString(const char* in, std::size_t count, std::size_t& inLine, char* out)
{
    const char* const end = in + count;
    *out++ = '<';
    const std::size_t first = std::min(count, (kBytesInLine - inLine) % kBytesInLine);
    if (first > 0)
        out = WritePart(in, first, inLine, out);
    for (in += first; end - in >= static_cast<std::ptrdiff_t>(kBytesInLine); in += kBytesInLine) {
        HexOf16(in, out);
        HexOf16(in + kBytesInLine - 16, out + 2 * (kBytesInLine - 16));
        out[2 * kBytesInLine] = '\n';
        out += 2 * kBytesInLine + 1;
    }
    if (in != end)
        out = WritePart(in, static_cast<std::size_t>(end - in), inLine, out);
    inLine = (inLine + kPadInLine) % kBytesInLine;
    std::memcpy(out, "00>", 3);
    return out + 3;
}

// The last boundary that is not behind limit, 0 when there is none.
std::uint64_t LastUpTo(const std::vector<std::uint64_t>& boundaries, std::uint64_t limit)
{
    const auto behind = std::ranges::upper_bound(boundaries, limit);
    return behind == boundaries.begin() ? 0 : *(behind - 1);
}

} // namespace

std::size_t RoomForStrings(std::size_t fontSize)
{
    const std::size_t mostStrings = 2 * fontSize / kMostInString + 2; // any two neighbours hold more than one could
    return 2 * fontSize + fontSize / kBytesInLine + 5 * mostStrings + 16;
}

WrittenStrings WriteStrings(QByteArrayView font, const std::vector<std::uint64_t>& tables,
                            const std::vector<std::uint64_t>& glyphs, char* out)
{
    const std::uint64_t size = static_cast<std::uint64_t>(font.size());
    std::size_t inLine = 0;
    for (std::uint64_t start = 0; start < size;) {
        std::uint64_t end = size;
        if (size - start >= kMostInString)
            end = std::max(LastUpTo(tables, start + kMostInString), LastUpTo(glyphs, start + kMostInString));
        if (end <= start)
            return {out, false};
        out = WriteString(font.data() + start, end - start, inLine, out);
        start = end;
    }
    return {out, true};
}

} // namespace kesta::booklet_watermark
