#include "Badge.h"
#include "Families.h"
#include "Sheet.h"

namespace kesta::pictures::sides {
namespace {

constexpr int kSize = 48;

// The lower corner turned up shows that the back is empty.
Drawing OneSided()
{
    Drawing drawing(kSize, kSize);
    constexpr Box kSheet = SheetAt(11, 6);
    DrawTurnedSheet(drawing, kSheet, kWhitePaper, 12);
    DrawPrint(drawing, {16, 12, 16, 16}, PrintOn(kWhitePaper));
    DrawPrint(drawing, {16, 30, 6, 10}, {kWhitePaper.line(), kWhitePaper.line(), false});
    return drawing;
}

// The sheet being turned like a book's page: its back at the left of the bound edge.
Drawing TurnedAboutTheLongEdge()
{
    Drawing drawing(kSize, kSize);
    constexpr Panel kBack = {3.5, 13.5, 20.5, 9.5, 33};
    DrawPanel(drawing, kBack, kWhitePaper, Side::back);
    DrawPanelPrint(drawing, kBack, kWhitePaper, Side::back, {.lines = 4});
    constexpr Box kFront = {20, 9, 25, 34};
    DrawSheet(drawing, kFront, kWhitePaper);
    DrawPrint(drawing, {25, 15, 15, 24}, PrintOn(kWhitePaper));
    DrawFold(drawing, kBack);
    return drawing;
}

// The same like a calendar's: the back above the bound edge.
Drawing TurnedAboutTheShortEdge()
{
    Drawing drawing(kSize, kSize);
    drawing.path(Polygon({{3.5, 4.5}, {36.5, 4.5}, {42.5, 22.5}, {9.5, 22.5}}),
                 Outlined(kWhitePaper.back(), kWhitePaper.edge));
    const Color line = Mix(kWhitePaper.fill, kWhitePaper.edge, 0.55);
    drawing.path(Polygon({{9, 8}, {20, 8}, {21, 11}, {10, 11}}), Filled(kWhitePaper.heading()));
    drawing.path(Polygon({{11, 14}, {34, 14}, {34.67, 16}, {11.67, 16}}), Filled(line));
    drawing.path(Polygon({{12.33, 18}, {26, 18}, {26.67, 20}, {13, 20}}), Filled(line));
    constexpr Box kFront = {9, 22, 34, 23};
    DrawSheet(drawing, kFront, kWhitePaper);
    DrawPrint(drawing, {14, 28, 24, 14}, PrintOn(kWhitePaper));
    drawing.path(Polyline({{9.5, 22.5}, {42.5, 22.5}}), Stroked(kAction, 3));
    return drawing;
}

Drawing TheJobsSides()
{
    Drawing drawing(kSize, kSize);
    DrawBack(drawing, {14, 3, 24, 34}, kWhitePaper, Corner::bitten);
    DrawPage(drawing, {7, 8, 24, 34}, kWhitePaper, Corner::bitten);
    DrawBadge(drawing, Glyph::printer);
    return drawing;
}

Drawing PageWithCircle(double radius, Color fill)
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, SheetAt(11, 6), kWhitePaper);
    if (radius > 0)
        drawing.circle({24, 22}, radius, Filled(fill));
    drawing.rect({16, 36, 16, 2}, Filled(kWhitePaper.line()));
    return drawing;
}

// The only picture with colours of its own: they are what it is about. Where two discs meet, a third tone.
Drawing InColor()
{
    constexpr Color kCyan = 0x3AA7E0;
    constexpr Color kMagenta = 0xE0468C;
    constexpr Color kYellow = 0xF2B233;
    Drawing drawing = PageWithCircle(0, 0);
    drawing.circle({24, 18.5}, 6, Filled(kYellow));
    drawing.circle({20.25, 25}, 6, Filled(kCyan));
    drawing.circle({27.75, 25}, 6, Filled(kMagenta));
    const Path overlap = Path().moveTo({24, 20.32}).arcTo(6, true, {24, 29.68}).arcTo(6, true, {24, 20.32}).close();
    drawing.path(overlap, Filled(0x5A4FA8));
    return drawing;
}

Drawing InBlackAndWhite()
{
    Drawing drawing = PageWithCircle(8.5, kInk);
    drawing.path(Path().moveTo({24, 15}).arcTo(7, false, {24, 29}).close(), Filled(kWhite));
    return drawing;
}

Drawing ThePrintersColors()
{
    Drawing drawing(kSize, kSize);
    DrawPage(drawing, SheetAt(7, 6), kWhitePaper, Corner::bitten);
    DrawBadge(drawing, Glyph::printer);
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    pictures.push_back({"2SidedPrinting_1Sided.gif", OneSided()});
    pictures.push_back({"2SidedPrinting_2Sided.gif", TurnedAboutTheLongEdge()});
    pictures.push_back({"2SidedPrinting_2SidedFlip.gif", TurnedAboutTheShortEdge()});
    pictures.push_back({"2SidedPrinting_PrnDef.gif", TheJobsSides()});
    pictures.push_back({"OutputColor_Color.gif", InColor()});
    pictures.push_back({"OutputColor_BlackandWhite.gif", InBlackAndWhite()});
    pictures.push_back({"OutputColor_PrnDef.gif", ThePrintersColors()});
}

} // namespace kesta::pictures::sides
