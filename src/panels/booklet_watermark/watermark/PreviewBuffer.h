#pragma once

#include <QByteArrayView>

#include <cstddef>

namespace kesta::booklet_watermark {

// A growable buffer of bytes, one of which always stays free, with a place to write at and another one to read from.
class PreviewBuffer {
public:
    static constexpr std::size_t kUsualCapacity = 32768; // bytes

    explicit PreviewBuffer(std::size_t capacity = kUsualCapacity);
    ~PreviewBuffer();
    PreviewBuffer(const PreviewBuffer&) = delete;
    PreviewBuffer& operator=(const PreviewBuffer&) = delete;

    // The number of bytes; 0, and nothing is written, when there is no memory for them.
    std::size_t append(const char* bytes, std::size_t count);

    // Reads on, up to one byte before the capacity's end: behind what was written come zeros.
    std::size_t read(char* bytes, std::size_t count);
    void skip(std::size_t count);
    void rewind() { readPosition_ = 0; }

    // Keeps its capacity.
    void clear();

    std::size_t capacity() const { return capacity_; }
    QByteArrayView content() const { return {bytes_, static_cast<qsizetype>(position_)}; }

private:
    std::size_t capacity_ = 0;
    std::size_t position_ = 0;
    std::size_t readPosition_ = 0;
    char* bytes_ = nullptr;
};

} // namespace kesta::booklet_watermark
