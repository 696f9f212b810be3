#include "Badge.h"
#include "Families.h"
#include "Sheet.h"

namespace kesta::pictures::special_pages {
namespace {

constexpr int kSize = 48;
constexpr Box kFrontOfSet = {3, 14, 22, 31};
constexpr Point kStep = {3, -2};
constexpr int kPagesBehind = 3;

Box InSet(double place)
{
    return {kFrontOfSet.x + kStep.x * place, kFrontOfSet.y + kStep.y * place, kFrontOfSet.width, kFrontOfSet.height};
}

// A document of some pages between covers; none where there is no cover.
Drawing Covers(const Paper* front, const Paper* back)
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, InSet(kPagesBehind + 2), back ? *back : kWhitePaper);
    for (int place = kPagesBehind; place > 0; --place)
        DrawSheet(drawing, InSet(place), kWhitePaper);
    if (front) {
        DrawCover(drawing, kFrontOfSet, *front);
    } else {
        DrawSheet(drawing, kFrontOfSet, kWhitePaper);
        DrawPrint(drawing, {kFrontOfSet.x + 4, kFrontOfSet.y + 6, 14, 23}, PrintOn(kWhitePaper));
    }
    return drawing;
}

// One cover with a corner turned up; the sides that are printed show print in the action colour.
Drawing CoverSides(bool front, bool back)
{
    constexpr double kCorner = 16;
    constexpr Box kSheet = {10, 4, 28, 40};
    Drawing drawing(kSize, kSize);
    DrawTurnedSheet(drawing, kSheet, kBluePaper, kCorner);
    if (front) {
        drawing.rect({15, 10, 12, 3}, Filled(kAction));
        for (const double y : {16.0, 20.0, 24.0})
            drawing.rect({15, y, 18, 2}, Filled(kAction));
        drawing.rect({15, 28, 5, 2}, Filled(kAction));
        drawing.rect({15, 32, 5, 2}, Filled(kAction));
    }
    if (back) {
        // The back's lines, seen turned with the corner.
        drawing.rect({24, 30, 2, 9}, Filled(kAction));
        drawing.rect({28, 30, 2, 5}, Filled(kAction));
    }
    return drawing;
}

void DrawSmallPage(Drawing& drawing, const Box& box, Corner corner = Corner::square)
{
    DrawSheet(drawing, box, kWhitePaper, corner);
    DrawPrint(drawing, {box.x + 4, box.y + 6, box.width - 8, box.height - 8}, PrintOn(kWhitePaper), corner);
}

// Its heading would show as a bit of a bar only.
void DrawPageBehind(Drawing& drawing, const Box& box)
{
    const Print print = PrintOn(kWhitePaper);
    DrawSheet(drawing, box, kWhitePaper);
    DrawPrint(drawing, {box.x + 4, box.y + 12, box.width - 8, box.height - 18}, {print.heading, print.line, false});
}

Drawing InsertAfterPages()
{
    Drawing drawing(kSize, kSize);
    DrawPageBehind(drawing, {22, 2, 22, 30});
    DrawSheet(drawing, {13, 9, 22, 30}, kBluePaper);
    DrawSmallPage(drawing, {4, 16, 22, 30});
    return drawing;
}

Drawing InsertBeforePage1()
{
    Drawing drawing(kSize, kSize);
    DrawPageBehind(drawing, {22, 2, 22, 30});
    DrawPageBehind(drawing, {13, 9, 22, 30});
    DrawSheet(drawing, {4, 16, 22, 30}, kBluePaper);
    return drawing;
}

Drawing AddCovers()
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, {12, 3, 24, 34}, kBluePaper, Corner::bitten);
    DrawSheet(drawing, {8, 6, 24, 34}, kWhitePaper, Corner::bitten);
    DrawCover(drawing, {4, 9, 24, 34}, kBluePaper, Corner::bitten);
    DrawBadge(drawing, Glyph::plus);
    return drawing;
}

Drawing AddInserts()
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, {16, 3, 24, 34}, kBluePaper, Corner::bitten);
    DrawSmallPage(drawing, {4, 9, 24, 34}, Corner::bitten);
    DrawBadge(drawing, Glyph::plus);
    return drawing;
}

// Some lines of the page are not like the others.
Drawing AddExceptions()
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, {12, 3, 24, 34}, kWhitePaper, Corner::bitten);
    DrawSheet(drawing, {8, 6, 24, 34}, kWhitePaper, Corner::bitten);
    DrawSheet(drawing, {4, 9, 24, 34}, kWhitePaper, Corner::bitten);
    DrawPrint(drawing, {8, 15, 16, 9}, PrintOn(kWhitePaper), Corner::bitten);
    DrawPrint(drawing, {8, 25, 16, 11}, {kAction, kAction, false}, Corner::bitten);
    DrawPrint(drawing, {8, 37, 9, 3}, {kWhitePaper.line(), kWhitePaper.line(), false}, Corner::bitten);
    DrawBadge(drawing, Glyph::plus);
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    pictures.push_back({"ButtonGraphic_AddCovers.icns", AddCovers()});
    pictures.push_back({"ButtonGraphic_AddInserts.icns", AddInserts()});
    pictures.push_back({"ButtonGraphic_AddExceptions.icns", AddExceptions()});
    pictures.push_back({"SpclPgs_CoversOptions_None.gif", Covers(nullptr, nullptr)});
    pictures.push_back({"SpclPgs_CoversOptions_FrontOnly.gif", Covers(&kBluePaper, nullptr)});
    pictures.push_back({"SpclPgs_CoversOptions_BackOnly.gif", Covers(nullptr, &kBluePaper)});
    pictures.push_back({"SpclPgs_CoversOptions_Same.gif", Covers(&kBluePaper, &kBluePaper)});
    pictures.push_back({"SpclPgs_CoversOptions_Different.gif", Covers(&kBluePaper, &kGoldenrodPaper)});
    pictures.push_back({"SpclPgs_CoversPrinting-Blank.gif", CoverSides(false, false)});
    pictures.push_back({"SpclPgs_CoversPrinting-FrontSide.gif", CoverSides(true, false)});
    pictures.push_back({"SpclPgs_CoversPrinting-BackSide.gif", CoverSides(false, true)});
    pictures.push_back({"SpclPgs_CoversPrinting-BothSides.gif", CoverSides(true, true)});
    pictures.push_back({"SpclPgs_InsertsOptions-AfterPage(s).gif", InsertAfterPages()});
    pictures.push_back({"SpclPgs_InsertsOptions-BeforePage1.gif", InsertBeforePage1()});
}

} // namespace kesta::pictures::special_pages
