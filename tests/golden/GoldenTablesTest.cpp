#include "golden/GoldenFile.h"
#include "panels/advanced/AdvancedMaps.h"
#include "panels/booklet_watermark/fonts/GlyphNames.h"
#include "panels/paper_output/SavedJobRules.h"
#include "panels/special_pages/paper/CustomSizeRules.h"
#include "panels/special_pages/paper/TabStockRules.h"
#include "pde/menus/Mappings.h"
#include "printer/PPDChoiceMaps.h"
#include "product/InstalledFeatures.h"
#include "product/Westmarch2.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The tables behind the windows, those that no window of this product reaches included, against
// tests/data/golden-tables.tsv. Whoever changes a row sees here which value or name became another one.
namespace kesta {
namespace {

using test::GoldenFile;

QString Number(SInt32 value)
{
    return value == kUnset ? u"unset"_s : QString::number(value);
}

void AddSettings(GoldenFile& file, const char* name, SettingMap map)
{
    for (const SettingRow& row : map) {
        QString condition = row.feature ? QString::fromLatin1(row.feature) : QString();
        if (row.feature && !row.featureState)
            condition.prepend(u"without "_s);
        file.add(QStringList{QString::fromLatin1(name), QString::fromUtf8(row.key), Number(row.value), condition}.join(
            u'\t'));
    }
}

void AddChoices(GoldenFile& file)
{
    for (const KeywordRow& keyword : MainKeywordMap) {
        for (const ChoiceRow& row : keyword.choices)
            file.add(
                QStringList{QString::fromLatin1(keyword.keyword), QString::fromLatin1(row.choice), Number(row.value)}
                    .join(u'\t'));
    }
    for (const ChoiceRow& row : GlossLevelMap)
        file.add(u"GlossLevelMap\t%1\t%2"_s.arg(QString::fromLatin1(row.choice), Number(row.value)));
}

void AddFeatures(GoldenFile& file)
{
    for (const FeatureRow& row : InstalledFeatures) {
        QStringList columns{u"InstalledFeatures"_s};
        for (const char* text : {row.feature, row.option, row.choice, row.label})
            columns << QString::fromLatin1(text);
        file.add((columns << Number(row.ticketValue)).join(u'\t'));
    }
}

template <class Names> void AddNames(GoldenFile& file, const char* table, const Names& names)
{
    int number = 0;
    for (const std::string_view name : names)
        file.add(u"%1\t%2\t%3"_s.arg(QLatin1StringView(table)).arg(number++).arg(QLatin1StringView(name)));
}

TEST(GoldenTables, EveryRowIsWhatTheFileSays)
{
    GoldenFile file(TEST_DATA "/golden-tables.tsv");
    file.add(u"table\tkey\tvalue\tcondition"_s);
    AddChoices(file);
    AddSettings(file, "CoverSidesDuplexImaged", _CoverSidesDuplexImagedMap);
    AddSettings(file, "CoverSidesSimplexImaged", _CoverSidesSimplexImagedMap);
    AddSettings(file, "GrainCompensation", _GrainCompensationMap);
    AddSettings(file, "AdvancedMirrorImage", _AdvancedMirrorImageMap);
    AddSettings(file, "PrintingOptimization", _PrintingOptimizationMap);
    AddSettings(file, "PrintQuality", _PrintQualityMap);
    AddSettings(file, "JobType", _JobTypeMap);
    AddSettings(file, "Plex", _PlexMap);
    AddSettings(file, "Resolution", _ResolutionMap);
    AddSettings(file, "CoverSidesImaged", _CoverSidesImagedMap);
    AddSettings(file, "SeparatorOption", _SeparatorOptionMap);
    AddSettings(file, "FaxCoverSize", _FaxCoverSizeMap);
    AddSettings(file, "OutputOptions", advanced::_OutputOptionsMap);
    AddSettings(file, "SavedJobSaveOption", SavedJobSaveOptionRadioMap);
    AddFeatures(file);
    AddNames(file, "StandardEncodings", booklet_watermark::_StandardEncodings);
    AddNames(file, "macGlyphEncoding", booklet_watermark::_macGlyphEncoding);
    file.compare();
}

} // namespace
} // namespace kesta
