#include "host/dialog/DialogFields.h"

#include "host/dialog/PrintDialogControls.h"
#include "host/job/PageRanges.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"
#include "platform/system/Notices.h"
#include "platform/system/UserPreferences.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/controls/TypedValueHistory.h"
#include "toolkit/windows/InterfaceFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr char kPagesHistory[] = "pageRanges";
constexpr SInt32 kAllPages = 0;

template <class Widget> Widget* Control(const QWidget* window, PrintControl number)
{
    return FindControlAs<Widget>(window, {kPrintSignature, number});
}

bool IsLandscape(Orientation orientation)
{
    return orientation == Orientation::Landscape || orientation == Orientation::ReverseLandscape;
}

Menu PerSheetMenu()
{
    Menu menu;
    for (const SInt32 pages : kPagesPerSheet)
        menu.items.push_back({.title = QString::number(pages), .value = pages});
    return menu;
}

// What is said about pages that can't be read; the key of its title ends in " Title", the message's in " Message".
QString ProblemKey(PageRangesProblem problem)
{
    switch (problem) {
    case PageRangesProblem::NoSuchPage:
        return u"Pages No Such Page"_s;
    case PageRangesProblem::Backwards:
        return u"Pages Backwards"_s;
    case PageRangesProblem::TooMany:
        return u"Pages Too Many"_s;
    default:
        return u"Pages Not Understood"_s;
    }
}

// The number that the message about them names; empty where it names none.
QString LimitOf(PageRangesProblem problem)
{
    if (problem == PageRangesProblem::NoSuchPage)
        return QString::number(kLastPage);
    return problem == PageRangesProblem::TooMany ? QString::number(kMostRanges) : QString();
}

} // namespace

DialogFields::DialogFields(QWidget& window, const Bundle& texts) : window_(&window), texts_(&texts)
{
    if (auto* copies = Control<SpinField>(window_, kCopiesField))
        copies->setLimits(1, kMostCopies);
    if (auto* perSheet = Control<PopupButton>(window_, kPerSheetChoice))
        perSheet->setMenu(PerSheetMenu());
    if (auto* pages = Control<HistoryComboBox>(window_, kPagesField)) {
        pages->setFixedEntries({{LocalizedString(texts, "All Pages"), kAllPages}});
        if (const std::optional<Dictionary> preferences = CopyUserPreferences(kInputHistoryFile))
            pages->setHistory(TypedValueHistory(*preferences, kPagesHistory));
        pages->setFixedValue(kAllPages);
    }
}

void DialogFields::show(const HostSettings& settings)
{
    shown_ = settings;
    if (auto* copies = Control<SpinField>(window_, kCopiesField))
        copies->setNumber(settings.copies);
    if (auto* pages = Control<HistoryComboBox>(window_, kPagesField)) {
        if (settings.pageRanges.isEmpty())
            pages->setFixedValue(kAllPages);
        else
            pages->setTypedText(WritePageRanges(ParsePageRanges(settings.pageRanges).ranges, u", "_s));
    }
    if (auto* perSheet = Control<PopupButton>(window_, kPerSheetChoice)) {
        const auto found = std::ranges::find(kPagesPerSheet, settings.pagesPerSheet);
        perSheet->setValue(static_cast<int>(found - kPagesPerSheet.begin()) + 1);
    }
    const bool landscape = IsLandscape(settings.orientation);
    if (auto* segment = Control<QAbstractButton>(window_, landscape ? kLandscapeSegment : kPortraitSegment))
        segment->setChecked(true);
}

QString DialogFields::typedPages() const
{
    const auto* pages = Control<HistoryComboBox>(window_, kPagesField);
    if (!pages || pages->fixedValue())
        return {};
    const QString typed = pages->typedText().trimmed();
    return typed.compare(LocalizedString(*texts_, "All Pages"), Qt::CaseInsensitive) == 0 ? QString() : typed;
}

HostSettings DialogFields::settings() const
{
    HostSettings settings = shown_;
    if (const auto* copies = Control<SpinField>(window_, kCopiesField))
        settings.copies = copies->number();
    const PageRanges pages = ParsePageRanges(typedPages());
    if (pages.problem == PageRangesProblem::None)
        settings.pageRanges = WritePageRanges(pages.ranges, u","_s);
    const auto* perSheet = Control<PopupButton>(window_, kPerSheetChoice);
    if (perSheet && perSheet->selectedItem())
        settings.pagesPerSheet = perSheet->selectedItem()->value;
    const auto* landscape = Control<QAbstractButton>(window_, kLandscapeSegment);
    if (landscape && landscape->isChecked() != IsLandscape(shown_.orientation))
        settings.orientation = landscape->isChecked() ? Orientation::Landscape : Orientation::Portrait;
    return settings;
}

bool DialogFields::checkPages()
{
    const PageRangesProblem problem = ParsePageRanges(typedPages()).problem;
    if (problem == PageRangesProblem::None)
        return true;
    const QString key = ProblemKey(problem);
    const QString message = FormatText(LocalizedString(*texts_, key + u" Message"_s), {LimitOf(problem)});
    GetNotices().show({.title = LocalizedString(*texts_, key + u" Title"_s), .message = message});
    SetInvalid(Control<QWidget>(window_, kPagesField), true);
    return false;
}

void DialogFields::rememberPages() const
{
    const QString typed = typedPages();
    std::optional<Dictionary> preferences = typed.isEmpty() ? std::nullopt : CopyUserPreferences(kInputHistoryFile);
    if (!preferences)
        return;
    RememberTypedValue(*preferences, kPagesHistory, typed);
    WriteUserPreferences(kInputHistoryFile, *preferences);
}

} // namespace kesta::host
