#include "panels/paper_output/SavedJobRules.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr auto kJobFormatPictures = std::to_array<const char*>({
    "JobType_JobFormat_TIFF.gif",
    "JobType_JobFormat_MTIFF.gif",
    "JobType_JobFormat_PDF.gif",
    "JobType_JobFormat_FRF.gif",
    "JobType_JobFormat_FRFDRI.gif",
});
constexpr char kUnknownFormatPicture[] = "OutputColor_PrnDef.gif";

void AppendRange(QString& characters, char16_t first, char16_t last)
{
    for (char16_t c = first; c <= last; ++c)
        if (!u"\"*/:;<>?\\|"_s.contains(QChar(c)))
            characters += QChar(c);
}

} // namespace

QString JobNameCharacters()
{
    QString characters;
    AppendRange(characters, 32, 126);
    AppendRange(characters, 160, 255);
    return characters;
}

std::vector<QString> UsableJobNames(std::vector<QString> history)
{
    const QString characters = JobNameCharacters();
    std::erase_if(history, [&](const QString& name) {
        return name.size() > kLongestJobName ||
               !std::ranges::all_of(name, [&](QChar c) { return characters.contains(c); });
    });
    return history;
}

SInt32 SaveOptionFor(CFIndex disposition)
{
    for (const SettingRow& row : SavedJobSaveOptionRadioMap)
        if (row.value == disposition)
            return row.value;
    return SavedJobSaveOptionRadioMap.front().value;
}

const char* JobFormatPicture(CFIndex format)
{
    const auto count = static_cast<CFIndex>(kJobFormatPictures.size());
    return format < 1 || format > count ? kUnknownFormatPicture
                                        : kJobFormatPictures[static_cast<std::size_t>(format - 1)];
}

} // namespace kesta
