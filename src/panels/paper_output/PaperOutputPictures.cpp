#include "panels/paper_output/PaperOutputPictures.h"

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
constexpr auto kFoldPictures = std::to_array<PictureRow>({
    {kFoldC, "OfficeFinishing_CFold.gif"},
    {kFoldZ, "OfficeFinishing_ZFold.gif"},
    {kFoldZHalfSheet, "ProductionFinishing_ZFold_Half_Left.gif"},
    {kFoldBi, "OfficeFinishing_Bklt_Fold.gif"},
    {kFoldBiStaple, "OfficeFinishing_BKlt_Fold&Stple.gif"}, // spelled so
});
constexpr auto kBookletLayouts = std::to_array<PictureRow>({
    {kFoldBi, "OfficeFinishing_Bklt_Fold_Layout.gif"},
    {kFoldBiStaple, "OfficeFinishing_Bklt_Fold&Stpl_Layout.gif"},
});
static_assert(kJobTypes.size() == 8 && kSides.size() == 3 && kFoldPictures.size() == 5);

QString FileFor(std::span<const PictureRow> rows, SInt32 value)
{
    const auto row = std::ranges::find(rows, value, &PictureRow::value);
    return row == rows.end() ? QString() : QString::fromLatin1(row->file);
}

// How the files name staples and holes; empty without any.
QString StapleWord(const PaperOutputOptions& options)
{
    if (options.singleStaple != kNone)
        return u"1St"_s;
    if (options.dualStaple != kNone)
        return u"2St"_s;
    return options.multipleStaple != kNone ? u"4St"_s : QString();
}

QString PunchWord(SInt32 punch)
{
    switch (punch) {
    case kPunchTwo:
        return u"2Hp"_s;
    case kPunchAny:
    case kPunchThree:
        return u"3Hp"_s;
    case kPunchFour:
        return u"4Hp"_s;
    default:
        return {};
    }
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
    return FileFor(kSides, options.bookletLayout == kBookletOn ? kTwoSidedLongEdge : options.duplex);
}

QString StaplePicture(const PaperOutputOptions& options)
{
    return OfficeFinishing(StapleWord(options));
}

QString PunchPicture(SInt32 punch)
{
    return OfficeFinishing(PunchWord(punch));
}

QString FinishingPicture(const PaperOutputOptions& options)
{
    if (options.bookletLayout == kBookletOn)
        return FileFor(kBookletLayouts, options.fold);
    if (options.fold != kNone)
        return FileFor(kFoldPictures, options.fold);
    const QString staples = StapleWord(options);
    const QString holes = PunchWord(options.punch);
    const bool areBoth = !staples.isEmpty() && !holes.isEmpty();
    return OfficeFinishing(areBoth ? staples + u'&' + holes : staples + holes);
}

QString OutputColorPicture(SInt32 printQuality)
{
    const QString file = FileFor(kOutputColors, printQuality);
    return file.isEmpty() ? u"OutputColor_PrnDef.gif"_s : file;
}

} // namespace kesta::paper_output
