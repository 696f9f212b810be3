#include "panels/booklet_watermark/booklet/BookletRules.h"

#include "model/FirstSpecialPages.h"
#include "printer/FinishingKinds.h"

#include <array>

namespace kesta {
namespace {

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

const char* BookletIllustration(const Booklet& booklet)
{
    const Illustration& row = IllustrationFor(booklet.fold);
    if (!booklet.isOn())
        return row.layoutOff;
    return booklet.drawOutlines == kDrawPageBorders ? row.withBorders : row.layoutOn;
}

} // namespace kesta
