#include "Families.h"
#include "Sheet.h"

namespace kesta::pictures::paper_setups {
namespace {

constexpr int kSize = 48;
constexpr Box kFront = {6, 13, 24, 32};
constexpr Point kStep = {5, -4};

Drawing PreCutTabs()
{
    Drawing drawing(kSize, kSize);
    papers::DrawPreCutTab(drawing, kWhitePaper);
    return drawing;
}

// The print moves to the right, onto the tab.
Drawing TabMarginShift()
{
    Drawing drawing(kSize, kSize);
    papers::DrawPreCutTab(drawing, kWhitePaper);
    drawing.rect({10, 12, 19, 31}, Filled(kWhite)); // no print but on the tab
    drawing.rect({31, 12, 7, 2}, Filled(kAction));
    drawing.rect({31, 16, 5, 2}, Filled(kAction));
    drawing.path(Polyline({{12, 27}, {25.5, 27}}), Stroked(kAction, 2.5));
    drawing.path(Polyline({{21, 22.5}, {25.5, 27}, {21, 31.5}}), Stroked(kAction, 2.5));
    return drawing;
}

void DrawSheetAt(Drawing& drawing, int place, const Paper& paper)
{
    DrawSheet(drawing, {kFront.x + kStep.x * place, kFront.y + kStep.y * place, kFront.width, kFront.height}, paper);
}

Drawing Transparencies(const Paper& separator, bool isPrinted)
{
    Drawing drawing(kSize, kSize);
    DrawSheetAt(drawing, 3, kClearPaper);
    DrawSheetAt(drawing, 2, separator);
    DrawSheetAt(drawing, 1, kClearPaper);
    DrawSheetAt(drawing, 0, separator);
    if (isPrinted)
        DrawPrint(drawing, {kFront.x + 4, kFront.y + 6, kFront.width - 8, kFront.height - 8}, PrintOn(separator));
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    pictures.push_back({"Paper_Pre-CutTab_White.gif", PreCutTabs()});
    pictures.push_back({"Paper_Pre-CutTabs_TabMarginShift.gif", TabMarginShift()});
    pictures.push_back({"Paper_TransparencySeparators_NoSeps.gif", Transparencies(kClearPaper, false)});
    for (const bool isPrinted : {false, true}) {
        const std::string kind = isPrinted ? "PrntdSeps-" : "BlnkSeps-";
        for (const Paper& paper : kPapers) {
            if (&paper != &kClearPaper)
                pictures.push_back({"Paper_TransparencySeparators_" + kind + std::string(paper.name) + ".gif",
                                    Transparencies(paper, isPrinted)});
        }
    }
}

} // namespace kesta::pictures::paper_setups
