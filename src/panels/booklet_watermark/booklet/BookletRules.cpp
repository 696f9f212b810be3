#include "panels/booklet_watermark/booklet/BookletRules.h"

#include "pde/interface/TicketKeys.h"
#include "printer/FinishingKinds.h"

#include <array>

namespace kesta {
namespace {

// Lists come as arrays, covers as dictionaries; nothing when the key is absent.
std::optional<bool> HoldsEntries(const Ticket& settings, const char* key)
{
    if (const Array* list = settings.values().array(key))
        return !list->empty();
    if (const Dictionary* record = settings.values().dictionary(key))
        return record->count() != 0;
    return std::nullopt;
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
    if (const auto exceptions = HoldsEntries(settings, key::SpecialPagesExceptionList))
        return *exceptions;
    if (const auto inserts = HoldsEntries(settings, key::SpecialPagesInsertList))
        return *inserts;
    if (HoldsEntries(settings, key::SpecialPagesFrontCover))
        return false;
    return HoldsEntries(settings, key::SpecialPagesBackCover).value_or(false);
}

const char* BookletIllustration(const Booklet& booklet)
{
    const Illustration& row = IllustrationFor(booklet.fold);
    if (!booklet.isOn())
        return row.layoutOff;
    return booklet.drawOutlines == kDrawPageBorders ? row.withBorders : row.layoutOn;
}

} // namespace kesta
