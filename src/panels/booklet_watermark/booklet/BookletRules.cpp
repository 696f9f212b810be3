#include "panels/booklet_watermark/booklet/BookletRules.h"

#include "model/FirstSpecialPages.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "printer/FinishingKinds.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace kesta {
namespace {

// Lists are arrays, covers dictionaries.
bool HoldsPages(const Ticket& settings, const char* key)
{
    const Array* list = settings.values().array(key);
    const Dictionary* cover = settings.values().dictionary(key);
    return (list && !list->empty()) || (cover && cover->count() != 0);
}

// Ticket values of one staple on an upright page and of two on a lying one. The others leave the fold free.
constexpr auto kLockingStaples = std::to_array<SInt32>({5, 6, 7, 8, 10, 11, 12, 13});

// On a lying page one staple has a choice of its own, which has no ticket value.
bool StapleLocksBooklet(const Ticket& settings, ppd_file_t* ppd)
{
    const FinishingKind* single = FindFinishing(Finishing::Staple, kLockingStaples.front());
    const std::optional<QString> choice = PPDCopyCurrentChoice(settings, OptionOf(Finishing::Staple));
    if (choice && choice == QLatin1StringView(single->choiceOnLandscape))
        return true;
    const std::optional<SInt32> staple =
        PPDGetTicketValueForChoiceOrDefault(ppd, settings, OptionOf(Finishing::Staple));
    return staple && std::ranges::find(kLockingStaples, *staple) != kLockingStaples.end();
}

// "inserts", "inserts and exceptions", ...
QString Enumeration(const Bundle& bundle, const QStringList& parts)
{
    constexpr std::array kFormats{"List Of One", "List Of Two", "List Of Three"};
    return parts.isEmpty() ? QString() : LocalizedFormat(bundle, kFormats[parts.size() - 1], parts);
}

struct Illustration {
    SInt32 fold; // the last row stands for every other
    const char* layoutOff;
    const char* layoutOn;
    const char* withBorders;
};
constexpr auto kIllustrations = std::to_array<Illustration>({
    {kFoldBi, "BookletCreation_Fold.gif", "BookletCreation_Booklet-Fold.gif",
     "BookletCreation_Booklet-Fold-Outlines.gif"},
    {kFoldBiStaple, "BookletCreation_Fold-Staple.gif", "BookletCreation_Booklet-Fold-Staple.gif",
     "BookletCreation_Booklet-Fold-Staple-Outlines.gif"},
    {kNotFinished, "BookletCreation_None.gif", "BookletCreation_Booklet.gif", "BookletCreation_Booklet-Outlines.gif"},
});

const Illustration& IllustrationFor(SInt32 fold)
{
    for (const Illustration& row : kIllustrations)
        if (row.fold == fold)
            return row;
    return kIllustrations.back();
}

} // namespace

bool SpecialPagesLockBooklet(const Ticket& settings)
{
    const std::optional<FirstSpecialPages> first = FirstSpecialPagesOf(settings);
    return first && first->holdsAny && first->kind != SpecialPagesKind::FrontCover;
}

BookletLock BookletLockOf(const Ticket& settings, ppd_file_t* ppd)
{
    return {.bySpecialPages = SpecialPagesLockBooklet(settings),
            .byStaple = StapleLocksBooklet(settings, ppd),
            .hasExceptions = HoldsPages(settings, key::SpecialPagesExceptionList),
            .hasInserts = HoldsPages(settings, key::SpecialPagesInsertList),
            .hasBackCover = HoldsPages(settings, key::SpecialPagesBackCover)};
}

QString BookletLockReason(const Bundle& bundle, const BookletLock& lock)
{
    if (!lock.bySpecialPages)
        return lock.byStaple ? LocalizedString(bundle, "Booklet Locked By Staple") : QString();
    QStringList pages;
    if (lock.hasInserts)
        pages << LocalizedString(bundle, "Locking Inserts");
    if (lock.hasExceptions)
        pages << LocalizedString(bundle, "Locking Exceptions");
    if (lock.hasBackCover)
        pages << LocalizedString(bundle, "Locking Back Cover");
    return LocalizedFormat(bundle, "Booklet Locked By Pages", {Enumeration(bundle, pages)});
}

const char* BookletIllustration(const Booklet& booklet)
{
    const Illustration& row = IllustrationFor(booklet.fold);
    if (!booklet.isOn())
        return row.layoutOff;
    return booklet.drawOutlines == kDrawPageBorders ? row.withBorders : row.layoutOn;
}

} // namespace kesta
