#include "panels/booklet_watermark/fonts/Type42.h"

#include "panels/booklet_watermark/fonts/Type42Writer.h"

namespace kesta::booklet_watermark {

bool convertTTFtoPS42(QByteArrayView font, const QByteArray& fontName, QByteArray& output)
{
    const auto truetype = ReadTrueTypeFont(font);
    if (!truetype)
        return false;
    const Encoding encoding = MakeEncoding(truetype->names);
    return AppendType42(font, *truetype, encoding, PlainName(fontName), output);
}

} // namespace kesta::booklet_watermark
