#pragma once

#include "pde/menus/SettingMap.h"
#include "platform/values/Types.h"

#include <QStringList>

#include <array>
#include <vector>

namespace kesta {

// The value is both the number of the radio button, from 1, and the job's save disposition.
inline constexpr auto SavedJobSaveOptionRadioMap = std::to_array<SettingRow>({
    {"Save", 1},
    {"SavePrint", 2},
});
inline constexpr auto JobNameMap = std::to_array<SettingRow>({
    {"UseJobName", 1}, // the document's own
});
inline constexpr auto FolderNameMap = std::to_array<SettingRow>({
    {"PublicFolder", 1}, // the printer's default
});
static_assert(SavedJobSaveOptionRadioMap.size() == 2 && JobNameMap.size() == 1 && FolderNameMap.size() == 1);

// Of the input history.
inline constexpr char kSavedJobNamesKey[] = "savedJobNames";
inline constexpr char kFolderNamesKey[] = "folderNames";

inline constexpr int kLongestJobName = 40;
// The printable characters of ISO 8859-1 but those that printers' file systems do not take.
QString JobNameCharacters();

// Those of the history that could have been typed: its file may have been edited.
std::vector<QString> UsableJobNames(std::vector<QString> history);

// The button that stands for a disposition; the first one for what no button stands for.
SInt32 SaveOptionFor(CFIndex disposition);

// File name of the picture of a job format.
const char* JobFormatPicture(CFIndex format);

} // namespace kesta
