#include "panels/booklet_watermark/watermark/WatermarkNames.h"

#include "panels/booklet_watermark/fonts/FontProgram.h"
#include "panels/booklet_watermark/watermark/WatermarkData.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include "platform/system/SharedStoreFile.h"

namespace kesta::booklet_watermark {

NameProblem CheckWatermarkName(QAnyStringView storeFile, const QString& name)
{
    if (name.isEmpty())
        return NameProblem::Empty;
    if (!_WatermarkData().text.set(name))
        return NameProblem::TooLong;
    if (name == QLatin1String(kWatermarkListKey))
        return NameProblem::Reserved;
    const std::optional<Dictionary> root = CopyXMLData(storeFile);
    const bool isFont = IsSubsetFontName(name) || (root && root->data(name));
    return isFont ? NameProblem::FontsName : NameProblem::None;
}

bool HasWatermark(QAnyStringView storeFile, const QString& name)
{
    const std::optional<Dictionary> root = CopyXMLData(storeFile);
    return root && root->dictionary(name);
}

} // namespace kesta::booklet_watermark
