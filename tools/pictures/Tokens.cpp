#include "Tokens.h"

#include <cmath>
#include <cstdio>

namespace kesta::pictures {

Color Mix(Color from, Color to, double part)
{
    Color mixed = 0;
    for (const int shift : {16, 8, 0}) {
        const double a = (from >> shift) & 0xFF;
        const double b = (to >> shift) & 0xFF;
        mixed |= static_cast<Color>(std::lround(a + (b - a) * part)) << shift;
    }
    return mixed;
}

std::string Hex(Color color)
{
    std::array<char, 8> text;
    std::snprintf(text.data(), text.size(), "#%06X", color & 0xFFFFFFU);
    return text.data();
}

} // namespace kesta::pictures
