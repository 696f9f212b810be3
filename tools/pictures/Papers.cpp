#include "Families.h"
#include "Sheet.h"

#include <cmath>
#include <numbers>

namespace kesta::pictures::papers {
namespace {

constexpr int kSize = 48;
constexpr Box kFront = SheetAt(7, 8);
constexpr Point kStep = {3, -3};

// Clear sheets show a reflection, where other papers are plain.
void DrawReflection(Drawing& drawing, const Box& box)
{
    const Box inside = {box.x + 1, box.y + 1, box.width - 2, box.height - 2};
    drawing.path(DiagonalBand(inside, 27, 37), Filled(kWhite));
    drawing.path(DiagonalBand(inside, 41, 44), Filled(kWhite));
}

void DrawPlain(Drawing& drawing, const Paper& paper)
{
    DrawStackBehind(drawing, kFront, 2, kStep, paper);
    DrawSheet(drawing, kFront, paper);
    if (&paper == &kClearPaper)
        DrawReflection(drawing, kFront);
}

Drawing Plain(const Paper& paper)
{
    Drawing drawing(kSize, kSize);
    DrawPlain(drawing, paper);
    return drawing;
}

// Paper that goes through once more: an arrow that returns to where it began.
Drawing Reloaded(const Paper& paper)
{
    constexpr double kRadius = 6.5;
    Drawing drawing(kSize, kSize);
    DrawPlain(drawing, paper);
    const Point middle = kFront.center();
    const double lean = kRadius * std::numbers::sqrt2 / 2;
    drawing.path(
        Path().moveTo({middle.x + lean, middle.y - lean}).longArcTo(kRadius, true, {middle.x - lean, middle.y - lean}),
        Stroked(paper.heading(), 2.5));
    const Point tip = {middle.x - 0.5, middle.y - kRadius - 2};
    drawing.path(Polygon({{tip.x - 0.5, tip.y}, {tip.x - 7.5, tip.y - 0.5}, {tip.x - 1.5, tip.y + 6.5}}),
                 Filled(paper.heading()));
    return drawing;
}

Drawing Envelope(const Paper& paper)
{
    constexpr double kLeft = 4.5;
    constexpr double kTop = 13.5;
    constexpr double kRight = 43.5;
    constexpr double kBottom = 39.5;
    constexpr Point kFlap = {24, 28.5};
    Drawing drawing(kSize, kSize);
    drawing.rect({kLeft, kTop, kRight - kLeft, kBottom - kTop}, Outlined(paper.fill, paper.edge), 1);
    drawing.path(Polyline({{kLeft, kBottom}, {18.5, 24.5}}), Stroked(paper.edge, 1));
    drawing.path(Polyline({{kRight, kBottom}, {29.5, 24.5}}), Stroked(paper.edge, 1));
    drawing.path(Polygon({{kLeft, kTop}, {kRight, kTop}, kFlap}), Outlined(paper.back(), paper.edge));
    return drawing;
}

// One strip along the whole edge, to be cut into tabs.
Drawing FullCutTab(const Paper& paper)
{
    constexpr Box kSheet = {7, 8, 33, 36};
    constexpr double kStrip = 32.5;
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, kSheet, paper);
    drawing.path(Path()
                     .moveTo({kStrip, 8.5})
                     .lineTo({38.5, 8.5})
                     .curveTo({39.5, 8.5}, {39.5, 9.5})
                     .lineTo({39.5, 42.5})
                     .curveTo({39.5, 43.5}, {38.5, 43.5})
                     .lineTo({kStrip, 43.5})
                     .close(),
                 Outlined(paper.back(), paper.edge));
    DrawPrint(drawing, {17, 14, 12, 28}, PrintOn(paper));
    return drawing;
}

Path TabPath(double left, double top, double right)
{
    constexpr double kTabHeight = 11;
    return Path()
        .moveTo({left, top})
        .lineTo({right - 1.5, top + 1.5})
        .curveTo({right, top + 2}, {right, top + 3})
        .lineTo({right, top + kTabHeight - 3})
        .curveTo({right, top + kTabHeight - 2}, {right - 1.5, top + kTabHeight - 1.5})
        .lineTo({left, top + kTabHeight});
}

} // namespace

void DrawPreCutTab(Drawing& drawing, const Paper& paper)
{
    constexpr double kEdge = 32.5;
    constexpr double kTabEnd = 40.5;
    drawing.path(TabPath(kEdge - 1, 32, kTabEnd), Outlined(paper.back(), paper.edge));
    drawing.path(TabPath(kEdge - 1, 20.5, kTabEnd), Outlined(paper.back(), paper.edge));
    DrawSheet(drawing, kFront, paper);
    // The front sheet's own tab has no edge towards the sheet.
    drawing.path(TabPath(kEdge, 9, kTabEnd), Outlined(paper.fill, paper.edge));
    drawing.rect({kEdge - 1, 10, 2, 9}, Filled(paper.fill));
    DrawPrint(drawing, {17, 14, 12, 28}, PrintOn(paper)); // beside where holes would be
}

namespace {

Drawing PreCutTab(const Paper& paper)
{
    Drawing drawing(kSize, kSize);
    DrawPreCutTab(drawing, paper);
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    struct Base {
        const char* family;
        Drawing (*draw)(const Paper&);
    };
    constexpr auto kBases = std::to_array<Base>({
        {"Paper_Plain-", Plain},
        {"Paper_Envelope-", Envelope},
        {"Paper_FullCutTab-", FullCutTab},
        {"Paper_Pre-CutTab-", PreCutTab},
        {"Paper_Reloaded-", Reloaded},
    });
    for (const Base& base : kBases) {
        for (const Paper& paper : kPapers)
            pictures.push_back({std::string(base.family) + std::string(paper.name) + ".gif", base.draw(paper)});
    }
}

} // namespace kesta::pictures::papers
