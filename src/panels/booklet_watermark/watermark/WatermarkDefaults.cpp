#include "panels/booklet_watermark/watermark/WatermarkDefaults.h"

#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include "platform/plugins/Bundle.h"

#include <array>

namespace kesta::booklet_watermark {
namespace {

struct DefaultWatermark {
    const char* textKey;
    Float64 xPosition;
    Float64 yPosition;
};

constexpr auto kDefaults = std::to_array<DefaultWatermark>({
    {"DraftWatermark", 280.627441, 311.049927},
    {"ConfidentialWatermark", 201.350601, 231.773102},
    {"CopyWatermark", 276.36319, 306.785675},
});
static_assert(kDefaults.size() == 3);

_WatermarkData MakeDefault(const DefaultWatermark& row, const QString& text)
{
    _WatermarkData watermark;
    watermark.text.set(text);
    watermark.fontName.set(QStringLiteral("ArialMT"));
    watermark.fontColor = {0.75F, 0.75F, 1, 1};
    watermark.wellColor = {0, 0, 1, 1};
    watermark.angle = 45;
    watermark.density = 25;
    watermark.scale = 100;
    watermark.fontSize = 72;
    watermark.isText = 1;
    watermark.xPosition = row.xPosition;
    watermark.yPosition = row.yPosition;
    return watermark;
}

} // namespace

void CreateDefaultWatermarks(const Bundle& bundle)
{
    QStringList names;
    for (const DefaultWatermark& row : kDefaults) {
        const _WatermarkData watermark = MakeDefault(row, LocalizedString(bundle, row.textKey));
        saveWatermarkData(kWatermarkFile, watermark);
        names.append(NameOf(watermark));
    }
    saveWatermarkList(kWatermarkFile, names);
}

} // namespace kesta::booklet_watermark
