#include "panels/booklet_watermark/watermark/PreviewBuffer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace kesta::booklet_watermark {

PreviewBuffer::PreviewBuffer(std::size_t capacity) : bytes_(static_cast<char*>(std::calloc(capacity, 1)))
{
    capacity_ = bytes_ ? capacity : 0;
}

PreviewBuffer::~PreviewBuffer()
{
    std::free(bytes_);
}

std::size_t PreviewBuffer::append(const char* bytes, std::size_t count)
{
    std::size_t needed = std::max<std::size_t>(capacity_, 1);
    while (needed - position_ - 1 < count) {
        if (needed > std::numeric_limits<std::size_t>::max() / 4)
            return 0;
        needed *= 2;
    }
    if (needed > capacity_) {
        char* const grown = static_cast<char*>(std::realloc(bytes_, needed));
        if (!grown)
            return 0;
        std::memset(grown + capacity_, 0, needed - capacity_);
        bytes_ = grown;
        capacity_ = needed;
    }
    std::memcpy(bytes_ + position_, bytes, count);
    position_ += count;
    return count;
}

std::size_t PreviewBuffer::read(char* bytes, std::size_t count)
{
    const std::size_t left = readPosition_ + 1 < capacity_ ? capacity_ - readPosition_ - 1 : 0;
    count = std::min(count, left);
    if (count > 0)
        std::memcpy(bytes, bytes_ + readPosition_, count);
    readPosition_ += count;
    return count;
}

void PreviewBuffer::skip(std::size_t count)
{
    readPosition_ += std::min(count, std::numeric_limits<std::size_t>::max() - 1 - readPosition_);
}

void PreviewBuffer::clear()
{
    if (bytes_)
        std::memset(bytes_, 0, position_);
    position_ = 0;
    readPosition_ = 0;
}

} // namespace kesta::booklet_watermark
