#include "panels/paper_output/SavedJob.h"

#include "panels/paper_output/PasscodeFields.h"
#include "panels/paper_output/SavedJobRules.h"
#include "pde/forms/DialogCommands.h"
#include "pde/forms/TextFieldUtilities.h"
#include "pde/menus/LocalizationUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/UserPreferences.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/controls/TypedValueHistory.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace kesta::jobtypes {
namespace {

constexpr QLatin1StringView kSavedJobHelp("Paper_Output/Job_Type/saved_job_e.htm");
constexpr auto kSaveRadios = std::to_array<SavedJobControl>({kSaveRadio, kSavePrintRadio});
static_assert(kSaveRadios.size() == SavedJobSaveOptionRadioMap.size());

struct SavedJobDialog {
    const Bundle& bundle;
    QWidget& window;
    PasscodeFields passcode{bundle, window, kSavedJobSignature, kSavedJobNotices};
    HistoryComboBox* jobName = FindControlAs<HistoryComboBox>(&window, {kSavedJobSignature, kJobNameBox});
    HistoryComboBox* folder = FindControlAs<HistoryComboBox>(&window, {kSavedJobSignature, kFolderBox});

    QAbstractButton* button(SInt32 number) const
    {
        return FindControlAs<QAbstractButton>(&window, {kSavedJobSignature, number});
    }
    bool isSecure() const { return button(kSecureCheckBox)->isChecked(); }
    bool isComplete() const
    {
        return jobName && folder && button(kSaveRadio) && button(kSavePrintRadio) && button(kSecureCheckBox);
    }
};

std::vector<HistoryComboBox::FixedEntry> FixedEntries(const Bundle& bundle, SettingMap map)
{
    std::vector<HistoryComboBox::FixedEntry> entries;
    for (const SettingRow& row : map)
        entries.push_back({.title = LocalizedString(bundle, row.key), .value = row.value});
    return entries;
}

void BuildControls(const SavedJobDialog& dialog)
{
    for (std::size_t i = 0; i < kSaveRadios.size(); ++i)
        SetLocalizedControlTitle(dialog.bundle, SavedJobSaveOptionRadioMap[i].key, dialog.button(kSaveRadios[i]));

    const Dictionary history = CopyUserPreferences(kInputHistoryFile).value_or(Dictionary());
    dialog.jobName->setFixedEntries(FixedEntries(dialog.bundle, JobNameMap));
    dialog.jobName->setHistory(UsableJobNames(TypedValueHistory(history, kSavedJobNamesKey)));
    dialog.folder->setFixedEntries(FixedEntries(dialog.bundle, FolderNameMap));
    dialog.folder->setHistory(TypedValueHistory(history, kFolderNamesKey));
    LimitInputLengthAndCharacters(
        dialog.jobName,
        {.minimumLength = 1, .maximumLength = kLongestJobName, .allowedCharacters = JobNameCharacters()});
    LimitInputLengthAndCharacters(dialog.folder, {.minimumLength = 1});
}

void ShowNameOrEntry(HistoryComboBox& box, bool showsEntry, SettingMap map, const std::optional<QString>& name)
{
    if (showsEntry)
        box.setFixedValue(map.front().value);
    else
        box.setTypedText(name.value_or(QString()));
}

// OK needs a name and a folder.
void EnableOK(const SavedJobDialog& dialog)
{
    const bool complete = !dialog.jobName->currentText().isEmpty() && !dialog.folder->currentText().isEmpty();
    SetControlEnabled(GetWindowDefaultButton(dialog.window), complete);
}

void RestoreUIValuesFromData(SavedJobDialog& dialog, const JobType& job)
{
    const auto option = static_cast<std::size_t>(SaveOptionFor(job.saveDisposition));
    dialog.button(kSaveRadios[option - 1])->setChecked(true);
    ShowNameOrEntry(*dialog.jobName, job.useJobName, JobNameMap, job.savedJobName);
    ShowNameOrEntry(*dialog.folder, job.useDefaultLocation, FolderNameMap, job.savedJobLocation);
    dialog.button(kSecureCheckBox)->setChecked(job.hasPasscode);
    dialog.passcode.fill(job.securePasscode.value_or(QString()));
    dialog.passcode.enable(job.hasPasscode);
    if (job.hasPasscode && !CanBeTypedAtPrinter(dialog.passcode.passcode()))
        dialog.passcode.focus();
    EnableOK(dialog);
    if (auto* picture = FindControlAs<PictureView>(&dialog.window, {kSavedJobSignature, kFormatPicture}))
        picture->setPicture(QString::fromLatin1(JobFormatPicture(job.mediaTypeInJob)));
}

void SaveUIValuesToData(const SavedJobDialog& dialog, JobType& job)
{
    const bool alsoPrints = dialog.button(kSavePrintRadio)->isChecked();
    job.saveDisposition = SavedJobSaveOptionRadioMap[alsoPrints ? 1 : 0].value;

    job.useJobName = dialog.jobName->fixedValue().has_value();
    if (!job.useJobName)
        job.savedJobName = dialog.jobName->typedText();
    const QString folder = dialog.folder->typedText();
    job.useDefaultLocation = folder.isEmpty(); // it is while the box holds the fixed entry
    if (!job.useDefaultLocation)
        job.savedJobLocation = folder;

    job.hasPasscode = dialog.isSecure();
    if (job.hasPasscode)
        job.securePasscode = dialog.passcode.passcode();
}

void SaveHistories(const SavedJobDialog& dialog)
{
    std::optional<Dictionary> history = CopyUserPreferences(kInputHistoryFile);
    if (!history)
        return;
    const Dictionary before = *history;
    RememberTypedValue(*history, kSavedJobNamesKey, dialog.jobName->typedText());
    RememberTypedValue(*history, kFolderNamesKey, dialog.folder->typedText());
    if (!(*history == before))
        WriteUserPreferences(kInputHistoryFile, *history);
}

// What is typed into a fixed entry takes its place: an entry with a few characters more would be a name that nobody
// meant. A field can't change again while it asks.
EventHandler InstallFixedEntryHandler(HistoryComboBox& box)
{
    return InstallEventHandler(box, [&box](const TextTypedEvent& event) {
        if (!box.fixedValue() || event.replaced > 0 || event.isEditingOnly())
            return EventResult::NotHandled;
        QTimer::singleShot(0, &box, [&box, typed = event.typed] {
            if (box.fixedValue())
                box.lineEdit()->selectAll();
            TypeIntoField(&box, typed);
        });
        return EventResult::Handled;
    });
}

EventHandler InstallWindowHandler(SavedJobDialog& dialog)
{
    return InstallEventHandler(
        dialog.window,
        [&dialog](const HitEvent& hit) {
            if (hit.control.number != kSecureCheckBox)
                return EventResult::NotHandled;
            dialog.passcode.enable(dialog.isSecure());
            if (dialog.isSecure())
                dialog.passcode.focus();
            return EventResult::NotHandled;
        },
        [&dialog](const TextLengthEvent& event) {
            dialog.passcode.follow(event);
            if (event.control.number == kJobNameBox || event.control.number == kFolderBox)
                EnableOK(dialog);
            return EventResult::NotHandled;
        });
}

} // namespace
} // namespace kesta::jobtypes

namespace kesta {

OSStatus RunModalSavedJobDialog(const Bundle& bundle, JobType& job)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SavedJob", "withPasscode");
    if (!window)
        return kInterfaceFileUnreadable;
    using namespace jobtypes;
    SavedJobDialog dialog{bundle, *window};
    if (!dialog.isComplete())
        return kInterfaceFileUnreadable;
    BuildControls(dialog);
    RestoreUIValuesFromData(dialog, job);
    const EventHandler handlers[] = {InstallWindowHandler(dialog), InstallFixedEntryHandler(*dialog.jobName),
                                     InstallFixedEntryHandler(*dialog.folder)};
    const auto accept = [&] {
        return !dialog.isSecure() || dialog.passcode.settle(JudgeSavedJobPasscode(dialog.passcode.passcode(),
                                                                                  dialog.passcode.confirmation()));
    };
    if (RunModalDialog(bundle, *window, kSavedJobHelp, accept) == ModalResult::OK) {
        SaveUIValuesToData(dialog, job);
        SaveHistories(dialog);
    }
    return noErr;
}

} // namespace kesta
