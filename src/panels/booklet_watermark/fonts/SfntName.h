#pragma once

#include <QByteArray>

#include <optional>

namespace kesta::booklet_watermark {

// The PostScript name that a font file gives itself.
std::optional<QByteArray> PostScriptName(QByteArrayView font);

} // namespace kesta::booklet_watermark
