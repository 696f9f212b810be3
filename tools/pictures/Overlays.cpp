#include "Badge.h"
#include "Families.h"
#include "Sheet.h"

namespace kesta::pictures::overlays {
namespace {

// Drawn over a paper base: surfaces stay inside its front sheet, marks are ringed badges.

constexpr int kSize = 48;
constexpr Box kInside = {8, 9, 24, 34};
constexpr Point kUpperMark = {13, 36}; // a second mark, beside the first

Drawing Mark(Glyph glyph)
{
    Drawing drawing(kSize, kSize);
    DrawRingedBadge(drawing, glyph, kBadgeCenter);
    return drawing;
}

Drawing Number(int number)
{
    Drawing drawing(kSize, kSize);
    DrawRingedNumber(drawing, number, kBadgeCenter);
    return drawing;
}

Drawing Archival()
{
    Drawing drawing(kSize, kSize);
    DrawRingedBadge(drawing, Glyph::archive, kUpperMark);
    return drawing;
}

Drawing Labels(bool isHeavy)
{
    Drawing drawing(kSize, kSize);
    for (const double x : {10.5, 21.5}) {
        for (const double y : {12.5, 20.5, 28.5, 36.5})
            drawing.rect({x, y, 8, 5}, Outlined(kWhite, kAction), 1);
    }
    if (isHeavy)
        DrawRingedBadge(drawing, Glyph::weight, kBadgeCenter);
    return drawing;
}

Drawing Holes(double x, std::initializer_list<double> places)
{
    Drawing drawing(kSize, kSize);
    for (const double y : places)
        drawing.circle({x, y}, 2.25, {.fill = kWhite, .stroke = kAction, .width = 1.75});
    return drawing;
}

// Tint for white paper, white for the coloured ones. The bands leave the middle free, where a reloaded paper has its
// arrow.
Drawing Gloss(bool isHeavy)
{
    Drawing drawing(kSize, kSize);
    for (const double from : {6.0, 42.5}) {
        drawing.path(DiagonalBand(kInside, from, from + 4), Filled(kActionTint));
        drawing.path(DiagonalBand(kInside, from + 4, from + 7), Filled(kWhite));
        drawing.path(DiagonalBand(kInside, from + 7, from + 9), Filled(kActionTint));
    }
    if (isHeavy)
        DrawRingedBadge(drawing, Glyph::weight, kBadgeCenter);
    return drawing;
}

Drawing PrePrinted()
{
    Drawing drawing(kSize, kSize);
    drawing.rect({8, 11, 24, 7}, Filled(kAction));
    drawing.rect({11, 21, 12, 2}, Filled(kInk));
    drawing.rect({11, 25, 8, 2}, Filled(kInk));
    drawing.rect({11.5, 31.5, 17, 8}, Outlined(kWhite, kInk), 1);
    return drawing;
}

Drawing Letterhead()
{
    Drawing drawing(kSize, kSize);
    drawing.circle({13.5, 14.5}, 3, Filled(kAction));
    drawing.rect({18, 12, 11, 2}, Filled(kInk));
    drawing.rect({18, 16, 7, 1}, Filled(kInk));
    drawing.rect({11, 39, 18, 1}, Filled(kInk));
    return drawing;
}

Drawing RoughSurface()
{
    Drawing drawing(kSize, kSize);
    Path grain;
    for (int row = 0; row < 8; ++row) {
        for (int column = 0; column < 6; ++column) {
            const double x = 10 + column * 4 - (row % 2) * 2 + 1;
            const double y = 11 + row * 4;
            if (x >= kInside.x && x < kInside.right())
                grain.moveTo({x, y}).lineTo({x + 1, y}).lineTo({x + 1, y + 1}).lineTo({x, y + 1}).close();
        }
    }
    drawing.path(grain, Filled(kInk));
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    const auto add = [&pictures](const std::string& name, Drawing drawing) {
        pictures.push_back({"Paper_Overlay-" + name + ".gif", std::move(drawing), true});
    };
    add("Recycled", Mark(Glyph::recycle));
    add("Labels", Labels(false));
    add("HolePunched", Holes(12.5, {14, 26, 38}));
    add("HolePunchedEnvelope", Holes(9, {18.5, 26.5, 34.5}));
    add("LightweightGloss", Gloss(false));
    add("Pre-Printed", PrePrinted());
    add("OrderedStock", Mark(Glyph::sequence));
    add("Heavyweight", Mark(Glyph::weight));
    add("Letterhead", Letterhead());
    for (int number = 1; number <= 7; ++number)
        add("Custom" + std::to_string(number), Number(number));
    add("Other", Mark(Glyph::dots));
    add("LablesHeavyweight", Labels(true));
    add("HeavyweightReloaded", Mark(Glyph::weight));
    add("LightweightGlossReloaded", Gloss(false));
    add("HeavyweightGloss", Gloss(true));
    add("HeavyweightGlossReloaded", Gloss(true));
    add("RoughSurface", RoughSurface());
    add("Archival", Archival());
}

} // namespace kesta::pictures::overlays
