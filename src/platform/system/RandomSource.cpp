#include "platform/system/RandomSource.h"

#include "platform/system/Installed.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cstring>

namespace kesta {
namespace {

class SystemRandomSource : public RandomSource {
public:
    void fill(std::span<std::byte> bytes) override
    {
        while (!bytes.empty()) {
            const quint32 drawn = QRandomGenerator::system()->generate();
            const std::size_t count = std::min(bytes.size(), sizeof drawn);
            std::memcpy(bytes.data(), &drawn, count);
            bytes = bytes.subspan(count);
        }
    }
};

} // namespace

RandomSource* RandomSource::install(RandomSource* source)
{
    return InstalledOr<RandomSource, SystemRandomSource>().install(source);
}

RandomSource& GetRandomSource()
{
    return InstalledOr<RandomSource, SystemRandomSource>().current();
}

std::uint32_t RandomBelow(std::uint32_t bound)
{
    // What would make some answers likelier than others is drawn again; less than half of all draws is.
    const std::uint32_t uneven = (0u - bound) % bound;
    std::uint32_t drawn = 0;
    do
        GetRandomSource().fill(std::as_writable_bytes(std::span(&drawn, 1)));
    while (drawn < uneven);
    return drawn % bound;
}

} // namespace kesta
