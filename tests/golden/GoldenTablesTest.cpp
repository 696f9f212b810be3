#include "golden/GoldenFile.h"
#include "panels/advanced/AdvancedMaps.h"
#include "panels/booklet_watermark/fonts/GlyphNames.h"
#include "panels/paper_output/SavedJobRules.h"
#include "panels/special_pages/paper/AdvancedStockDialog.h"
#include "panels/special_pages/paper/CustomStockSizeDialog.h"
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

struct NamedMap {
    const char* name;
    SettingMap map;
};
const NamedMap kSettingMaps[] = {
    {"CoverSidesDuplexImaged", _CoverSidesDuplexImagedMap},
    {"CoverSidesSimplexImaged", _CoverSidesSimplexImagedMap},
    {"GrainCompensation", _GrainCompensationMap},
    {"AdvancedMirrorImage", _AdvancedMirrorImageMap},
    {"PrintingOptimization", _PrintingOptimizationMap},
    {"PrintQuality", _PrintQualityMap},
    {"JobType", _JobTypeMap},
    {"Plex", _PlexMap},
    {"Resolution", _ResolutionMap},
    {"CoverSidesImaged", _CoverSidesImagedMap},
    {"SeparatorOption", _SeparatorOptionMap},
    {"FaxCoverSize", _FaxCoverSizeMap},
    {"OutputOptions", advanced::_OutputOptionsMap},
    {"SavedJobSaveOption", SavedJobSaveOptionRadioMap},
    {"StockPunched", _StockPunchedMap},
    {"CustomSizeUnits", _CustomSizeUnitsMap},
    {"TabStockSetup", _TabStockSetupMap},
    {"TabStockRadio", _TabStockRadioMap},
};

void AddSettings(GoldenFile& file)
{
    for (const auto& [name, map] : kSettingMaps) {
        for (const SettingRow& row : map) {
            QString condition = row.feature ? QString::fromLatin1(row.feature) : QString();
            if (row.feature && !row.featureState)
                condition.prepend(u"without "_s);
            const QString key = QString::fromUtf8(row.key);
            file.add(QStringList{QString::fromLatin1(name), key, Number(row.value), condition}.join(u'\t'));
        }
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
    AddSettings(file);
    AddFeatures(file);
    AddNames(file, "StandardEncodings", booklet_watermark::_StandardEncodings);
    AddNames(file, "macGlyphEncoding", booklet_watermark::_macGlyphEncoding);
    file.compare();
}

} // namespace
} // namespace kesta
