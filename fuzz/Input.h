#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

namespace kesta::fuzz {

inline QByteArray Bytes(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

// What must hold whatever the input is; the fuzzer and the replay end here when it does not.
inline void Require(bool truth)
{
    if (!truth)
        std::abort();
}

} // namespace kesta::fuzz
