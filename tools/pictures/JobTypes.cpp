#include "Badge.h"
#include "Families.h"
#include "Sheet.h"

namespace kesta::pictures::job_types {
namespace {

constexpr int kSize = 48;
constexpr Box kSheet = SheetAt(7, 6);

Drawing PageWithBadge(Glyph glyph)
{
    Drawing drawing(kSize, kSize);
    DrawPage(drawing, kSheet, kWhitePaper, Corner::bitten);
    DrawBadge(drawing, glyph);
    return drawing;
}

Drawing NormalPrint()
{
    Drawing drawing(kSize, kSize);
    DrawPage(drawing, SheetAt(11, 6), kWhitePaper);
    return drawing;
}

void DrawWaitingCopy(Drawing& drawing, const Box& box, double rightEnd)
{
    const double top = box.y + 0.5;
    const double right = box.right() - 0.5;
    DrawDashes(drawing, {box.x, top}, {box.right(), top}, kWhitePaper.edge, 1, 2, 2);
    DrawDashes(drawing, {right, box.y + 3}, {right, rightEnd}, kWhitePaper.edge, 1, 2, 2);
}

// One printed set; the others wait for a yes.
Drawing SampleSet()
{
    Drawing drawing(kSize, kSize);
    constexpr Box kSet = {5, 10, 24, 34};
    DrawWaitingCopy(drawing, {13, 2, 24, 34}, 24);
    DrawWaitingCopy(drawing, {9, 6, 24, 34}, 24);
    DrawPage(drawing, kSet, kWhitePaper, Corner::bitten);
    DrawBadge(drawing, Glyph::check);
    return drawing;
}

// A form's boxes, with what is filled into them.
Drawing BackgroundForm()
{
    Drawing drawing(kSize, kSize);
    constexpr Box kForm = SheetAt(11, 6);
    DrawSheet(drawing, kForm, kWhitePaper);
    drawing.rect({15, 10, 10, 3}, Filled(kAction));
    drawing.rect({15.5, 16.5, 17, 21}, Stroked(kAction, 1));
    drawing.path(Path()
                     .moveTo({24.5, 16.5})
                     .lineTo({24.5, 37.5})
                     .moveTo({15.5, 23.5})
                     .lineTo({32.5, 23.5})
                     .moveTo({15.5, 30.5})
                     .lineTo({32.5, 30.5}),
                 Stroked(kAction, 1));
    for (const double y : {19.0, 26.0, 33.0}) {
        drawing.rect({18, y, 4, 2}, Filled(kWhitePaper.line()));
        drawing.rect({27, y, 4, 2}, Filled(kWhitePaper.line()));
    }
    return drawing;
}

// A letter for a format's name, in a box 4 wide and 6 high.
Path Letter(char letter)
{
    switch (letter) {
    case 'D':
        return Path()
            .moveTo({0, 0})
            .lineTo({0, 6})
            .lineTo({1.5, 6})
            .curveTo({4, 6}, {4, 3})
            .curveTo({4, 0}, {1.5, 0})
            .close();
    case 'F':
        return Path().moveTo({3.5, 0}).lineTo({0, 0}).lineTo({0, 6}).moveTo({0, 3}).lineTo({3, 3});
    case 'I':
        return Polyline({{0, 0}, {0, 6}});
    case 'P':
        return Path().moveTo({0, 6}).lineTo({0, 0}).lineTo({2.25, 0}).arcTo(1.75, true, {2.25, 3.5}).lineTo({0, 3.5});
    case 'R':
        return Path()
            .moveTo({0, 6})
            .lineTo({0, 0})
            .lineTo({2.25, 0})
            .arcTo(1.75, true, {2.25, 3.5})
            .lineTo({0, 3.5})
            .moveTo({2, 3.5})
            .lineTo({3.75, 6});
    default:
        return Path().moveTo({0, 0}).lineTo({4, 0}).moveTo({2, 0}).lineTo({2, 6}); // T
    }
}

double LetterWidth(char letter)
{
    return letter == 'I' ? 0 : 4;
}

void DrawWord(Drawing& drawing, std::string_view word, Point center)
{
    constexpr double kGap = 2.5;
    double width = -kGap;
    for (const char letter : word)
        width += LetterWidth(letter) + kGap;
    double x = center.x - width / 2;
    for (const char letter : word) {
        const Moved there(drawing, {x, center.y - 3});
        drawing.path(Letter(letter), Stroked(kWhite, 1.5));
        x += LetterWidth(letter) + kGap;
    }
}

void DrawFile(Drawing& drawing, const Box& box, Color fill)
{
    constexpr double kDogEar = 8;
    const double left = box.x + 0.5;
    const double top = box.y + 0.5;
    const double right = box.right() - 0.5;
    const double bottom = box.bottom() - 0.5;
    const Style style = Outlined(fill, kWhitePaper.edge);
    drawing.path(
        Polygon({{left, top}, {right - kDogEar, top}, {right, top + kDogEar}, {right, bottom}, {left, bottom}}), style);
    drawing.path(Polyline({{right - kDogEar, top}, {right - kDogEar, top + kDogEar}, {right, top + kDogEar}}),
                 Outlined(kWhitePaper.back(), kWhitePaper.edge));
}

Drawing FileFormat(std::string_view word, std::string_view secondWord = {}, bool several = false)
{
    Drawing drawing(kSize, kSize);
    if (several)
        DrawFile(drawing, {15, 3, 28, 38}, kWhitePaper.back());
    const Box file = several ? Box{8, 7, 28, 38} : Box{10, 5, 28, 38};
    DrawFile(drawing, file, kWhite);
    const double bandHeight = secondWord.empty() ? 13 : 22;
    const double bandTop = file.y + (secondWord.empty() ? 17 : 12);
    drawing.rect({file.x, bandTop, file.width, bandHeight}, Filled(kAction));
    const double middle = file.center().x;
    DrawWord(drawing, word, {middle, bandTop + (secondWord.empty() ? bandHeight / 2 : 6.5)});
    if (!secondWord.empty())
        DrawWord(drawing, secondWord, {middle, bandTop + 15.5});
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    pictures.push_back({"JobType_NormalPrint.gif", NormalPrint()});
    pictures.push_back({"JobType_HoldJob.gif", PageWithBadge(Glyph::pause)});
    pictures.push_back({"JobType_SavedJob.gif", PageWithBadge(Glyph::download)});
    pictures.push_back({"JobType_Fax.gif", PageWithBadge(Glyph::phone)});
    pictures.push_back({"JobType_SecurePrint.gif", PageWithBadge(Glyph::lock)});
    pictures.push_back({"JobType_DelayPrint.gif", PageWithBadge(Glyph::clock)});
    pictures.push_back({"JobType_SampleSet.gif", SampleSet()});
    pictures.push_back({"JobType_BackgroundForm.gif", BackgroundForm()});
    pictures.push_back({"JobType_JobFormat_TIFF.gif", FileFormat("TIFF")});
    pictures.push_back({"JobType_JobFormat_MTIFF.gif", FileFormat("TIFF", {}, true)});
    pictures.push_back({"JobType_JobFormat_PDF.gif", FileFormat("PDF")});
    pictures.push_back({"JobType_JobFormat_FRF.gif", FileFormat("FRF")});
    pictures.push_back({"JobType_JobFormat_FRFDRI.gif", FileFormat("FRF", "DRI")});
    pictures.push_back({"JobNotes_SpecialInstructions.gif", PageWithBadge(Glyph::note)});
}

} // namespace kesta::pictures::job_types
