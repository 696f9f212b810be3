#include "panels/paper_output/PaperOutputPictures.h"

#include "printer/FinishingKinds.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace kesta::paper_output {
namespace {

struct PictureRow {
    SInt32 value;
    const char* file;
};

constexpr auto kJobTypes = std::to_array<PictureRow>({
    {1, "JobType_NormalPrint.gif"},
    {2, "JobType_HoldJob.gif"},
    {3, "JobType_SavedJob.gif"},
    {5, "JobType_Fax.gif"},
    {6, "JobType_SecurePrint.gif"},
    {7, "JobType_DelayPrint.gif"},
    {8, "JobType_SampleSet.gif"},
    {9, "JobType_BackgroundForm.gif"},
});
constexpr auto kSides = std::to_array<PictureRow>({
    {kOneSided, "2SidedPrinting_1Sided.gif"},
    {kTwoSidedLongEdge, "2SidedPrinting_2Sided.gif"},
    {kTwoSidedShortEdge, "2SidedPrinting_2SidedFlip.gif"},
});
constexpr auto kOutputColors = std::to_array<PictureRow>({
    {1, "OutputColor_BlackandWhite.gif"},
    {2, "OutputColor_Color.gif"},
});
static_assert(kJobTypes.size() == 8 && kSides.size() == 3);

QString FileFor(std::span<const PictureRow> rows, SInt32 value)
{
    const auto row = std::ranges::find(rows, value, &PictureRow::value);
    return row == rows.end() ? QString() : QString::fromLatin1(row->file);
}

// Of staples and holes a word in the files' names, of folds a file; empty without any.
QString PictureOf(Finishing finishing, SInt32 value)
{
    const FinishingKind* kind = FindFinishing(finishing, value);
    return kind ? QString::fromLatin1(kind->picture) : QString();
}

QString OfficeFinishing(const QString& what)
{
    return what.isEmpty() ? QString() : u"OfficeFinishing_%1.gif"_s.arg(what);
}

} // namespace

QString JobTypePicture(SInt32 jobType)
{
    return FileFor(kJobTypes, jobType);
}

QString TwoSidedPicture(const PaperOutputOptions& options)
{
    return FileFor(kSides, options.booklet.isOn() ? kTwoSidedLongEdge : options.duplex);
}

QString StaplePicture(SInt32 staple)
{
    return OfficeFinishing(PictureOf(Finishing::Staple, staple));
}

QString PunchPicture(SInt32 punch)
{
    return OfficeFinishing(PictureOf(Finishing::Punch, punch));
}

QString FinishingPicture(const PaperOutputOptions& options)
{
    const SInt32 fold = options.booklet.fold;
    if (options.booklet.isOn()) {
        const FinishingKind* kind = FindFinishing(Finishing::Fold, fold);
        return kind ? QString::fromLatin1(kind->booklet.picture) : QString();
    }
    if (fold != kNotFinished)
        return PictureOf(Finishing::Fold, fold);
    const QString staples = PictureOf(Finishing::Staple, options.staple);
    const QString holes = PictureOf(Finishing::Punch, options.punch);
    const bool areBoth = !staples.isEmpty() && !holes.isEmpty();
    return OfficeFinishing(areBoth ? staples + u'&' + holes : staples + holes);
}

QString OutputColorPicture(SInt32 printQuality)
{
    const QString file = FileFor(kOutputColors, printQuality);
    return file.isEmpty() ? u"OutputColor_PrnDef.gif"_s : file;
}

} // namespace kesta::paper_output
