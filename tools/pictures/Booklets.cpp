#include "Families.h"
#include "Sheet.h"

namespace kesta::pictures::booklets {
namespace {

// Scenes of 144 x 96.

constexpr int kWidth = 144;
constexpr int kHeight = 96;
constexpr double kMiddle = 72;
constexpr double kTop = 9.5; // of the fold
constexpr double kRise = 22; // from the outer edge to the fold
constexpr double kPageWidth = 51.5;
constexpr double kPageHeight = 56;
constexpr Panel kLeft = {kMiddle - kPageWidth, kTop + kRise, kMiddle, kTop, kPageHeight};
constexpr Panel kRight = {kMiddle, kTop, kMiddle + kPageWidth, kTop + kRise, kPageHeight};
constexpr PanelPrint kPagePrint = {.leftInset = 0.14, .rightInset = 0.14, .topInset = 11, .lines = 6, .step = 6};

enum class Layout { none, pages, outlinedPages };
enum class Finishing { none, fold, foldAndStaple };

// One page on one sheet, and sheets of the same behind it: neither layout nor finishing.
void DrawSinglePages(Drawing& drawing)
{
    constexpr Box kSheet = {44, 14, 50, 70};
    DrawStackBehind(drawing, kSheet, 2, {4, -4}, kWhitePaper);
    DrawSheet(drawing, kSheet, kWhitePaper);
    DrawPrint(drawing, {52, 25, 34, 54}, PrintOn(kWhitePaper));
}

// Two pages side by side on a flat sheet.
void DrawFlatPages(Drawing& drawing, bool hasOutlines)
{
    constexpr Box kSheet = {16, 12, 112, 72};
    DrawSheet(drawing, kSheet, kWhitePaper);
    for (const double left : {16.0, 72.0}) {
        if (hasOutlines)
            drawing.rect({left + 4.5, 16.5, 47, 63}, Stroked(kAction, 1));
        DrawPrint(drawing, {left + 11, 24, 34, 50}, PrintOn(kWhitePaper));
    }
    DrawDashes(drawing, {kMiddle, 13}, {kMiddle, 83}, kWhitePaper.line(), 1, 3, 3);
}

Path PageOutline(const Panel& panel)
{
    constexpr double kInset = 4.5;
    const double left = panel.left + kInset;
    const double right = panel.right - kInset;
    return Polygon({{left, panel.topAt(left) + kInset},
                    {right, panel.topAt(right) + kInset},
                    {right, panel.topAt(right) + panel.height - kInset},
                    {left, panel.topAt(left) + panel.height - kInset}});
}

// One page across the whole folded sheet.
void DrawFoldedPage(Drawing& drawing)
{
    DrawPanel(drawing, kLeft, kWhitePaper, Side::front);
    DrawPanel(drawing, kRight, kWhitePaper, Side::back);
    DrawPanelPrint(drawing, kLeft, kWhitePaper, Side::front,
                   {.leftInset = 0.14, .rightInset = 0, .topInset = 14, .lines = 5, .step = 7});
    DrawPanelPrint(drawing, kRight, kWhitePaper, Side::back,
                   {.hasHeading = false, .leftInset = 0, .rightInset = 0.14, .topInset = 20, .lines = 5, .step = 7});
}

// Several leaves, one within the other; each page has its own print.
void DrawFoldedPages(Drawing& drawing, bool hasOutlines)
{
    for (const double out : {8.0, 4.0}) {
        // In line with the front leaf, so that the leaves show at the outer edges only.
        const double leftTop = kLeft.topAt(kLeft.left - out);
        DrawPanel(drawing, {kLeft.left - out, leftTop, kMiddle, kTop, kPageHeight}, kWhitePaper, Side::back);
        DrawPanel(drawing, {kMiddle, kTop, kRight.right + out, leftTop, kPageHeight}, kWhitePaper, Side::back);
    }
    for (const Panel& page : {kLeft, kRight}) {
        DrawPanel(drawing, page, kWhitePaper, Side::front);
        DrawPanelPrint(drawing, page, kWhitePaper, Side::front, kPagePrint);
        if (hasOutlines)
            drawing.path(PageOutline(page), Stroked(kAction, 1));
    }
}

void DrawSpine(Drawing& drawing, bool hasStaples)
{
    if (!hasStaples) {
        drawing.path(Polyline({{kMiddle, kTop}, {kMiddle, kTop + kPageHeight}}), Stroked(kAction, 4));
        return;
    }
    for (const double middle : {kTop + 14, kTop + 42}) // on a fold of the paper's own colour, so that they stand out
        drawing.path(Polyline({{kMiddle, middle - 5}, {kMiddle, middle + 5}}), Stroked(kAction, 5));
}

Drawing Scene(Layout layout, Finishing finishing)
{
    Drawing drawing(kWidth, kHeight);
    if (finishing == Finishing::none) {
        layout == Layout::none ? DrawSinglePages(drawing) : DrawFlatPages(drawing, layout == Layout::outlinedPages);
        return drawing;
    }
    layout == Layout::none ? DrawFoldedPage(drawing) : DrawFoldedPages(drawing, layout == Layout::outlinedPages);
    DrawSpine(drawing, finishing == Finishing::foldAndStaple);
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    const auto add = [&pictures](const char* name, Layout layout, Finishing finishing) {
        pictures.push_back({std::string("BookletCreation_") + name + ".gif", Scene(layout, finishing)});
    };
    add("None", Layout::none, Finishing::none);
    add("Fold", Layout::none, Finishing::fold);
    add("Fold-Staple", Layout::none, Finishing::foldAndStaple);
    add("Booklet", Layout::pages, Finishing::none);
    add("Booklet-Outlines", Layout::outlinedPages, Finishing::none);
    add("Booklet-Fold", Layout::pages, Finishing::fold);
    add("Booklet-Fold-Outlines", Layout::outlinedPages, Finishing::fold);
    add("Booklet-Fold-Staple", Layout::pages, Finishing::foldAndStaple);
    add("Booklet-Fold-Staple-Outlines", Layout::outlinedPages, Finishing::foldAndStaple);
}

} // namespace kesta::pictures::booklets
