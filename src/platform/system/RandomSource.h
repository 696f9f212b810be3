#pragma once

#include "platform/system/Service.h"
#include "platform/values/Types.h"

#include <cstddef>
#include <span>

namespace kesta {

class RandomSource {
public:
    using Interface = RandomSource;
    virtual ~RandomSource() = default;

    virtual void fill(std::span<std::byte> bytes) = 0;

    // What GetRandomSource() answers from now on; null for the system's. Returns what was installed before, null for
    // none.
    static RandomSource* install(RandomSource* source);
};

// The system's source is fit for secrets.
RandomSource& GetRandomSource();

// Evenly spread over 0 to bound - 1; bound is at least 1.
std::uint32_t RandomBelow(std::uint32_t bound);

} // namespace kesta
