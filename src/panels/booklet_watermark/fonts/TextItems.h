#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace kesta::booklet_watermark {

// A part of a text in one script and direction. Positions count characters, not UTF-16 units.
struct TextItem {
    unsigned start = 0;
    unsigned length = 0;
    bool isRightToLeft = false;
    std::uint32_t script = 0; // ISO 15924, four letters packed
    QByteArray language;
};

// The items of one line from left to right, as they are to be drawn.
std::vector<TextItem> ItemsInVisualOrder(const QString& text);

} // namespace kesta::booklet_watermark
