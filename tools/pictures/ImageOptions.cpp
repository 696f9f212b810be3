#include "Families.h"
#include "Sheet.h"

#include <cmath>

namespace kesta::pictures::image_options {
namespace {

constexpr int kSize = 48;
constexpr Box kSheet = SheetAt(11, 6);

// The print leaves its place, which stays outlined, for another.
Drawing ImageShift()
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, {8, 4, 32, 40}, kWhitePaper);
    DrawDashes(drawing, {11, 8.5}, {29, 8.5}, kWhitePaper.edge, 1, 2, 2);
    DrawDashes(drawing, {11, 30.5}, {29, 30.5}, kWhitePaper.edge, 1, 2, 2);
    DrawDashes(drawing, {11.5, 11}, {11.5, 30}, kWhitePaper.edge, 1, 2, 2);
    DrawDashes(drawing, {28.5, 11}, {28.5, 30}, kWhitePaper.edge, 1, 2, 2);
    drawing.rect({20, 18, 17, 23}, Filled(kWhite));
    DrawPrint(drawing, {21, 20, 15, 20}, PrintOn(kWhitePaper));
    drawing.path(Polyline({{13, 11}, {18.5, 16.5}}), Stroked(kAction, 2));
    drawing.path(Polyline({{14, 17}, {19, 17}, {19, 12}}), Stroked(kAction, 2));
    return drawing;
}

// Print that shows which way round it is: a flag on its pole, ragged lines.
void DrawFlag(Drawing& drawing, bool isMirrored, Color color)
{
    const auto x = [isMirrored](double at) { return isMirrored ? 48 - at : at; };
    drawing.path(Polyline({{x(18), 12}, {x(18), 27}}), Stroked(kInk, 2));
    drawing.path(Polygon({{x(19), 12}, {x(31), 16}, {x(19), 20}}), Filled(color));
    const double widths[] = {15, 11, 7};
    for (int i = 0; i < 3; ++i) {
        const double left = isMirrored ? 48 - 16 - widths[i] : 16;
        drawing.rect({left, 30.0 + i * 4, widths[i], 2}, Filled(kWhitePaper.line()));
    }
}

Drawing AsItIs()
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, kSheet, kWhitePaper);
    DrawFlag(drawing, false, kWhitePaper.heading());
    return drawing;
}

Drawing Mirrored()
{
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, kSheet, kWhitePaper);
    DrawFlag(drawing, true, kAction);
    return drawing;
}

// A disc of dots, the finer the better: places apart and radius of a dot.
Drawing Quality(double step, double radius)
{
    constexpr Point kMiddle = {24, 20};
    constexpr double kDisc = 9;
    Drawing drawing(kSize, kSize);
    DrawSheet(drawing, kSheet, kWhitePaper);
    if (step == 0) {
        drawing.circle(kMiddle, kDisc + 0.5, Filled(kAction));
    } else {
        Path dots;
        for (double y = -kDisc + step / 2; y < kDisc; y += step) {
            for (double x = -kDisc + step / 2; x < kDisc; x += step) {
                if (std::hypot(x, y) > kDisc)
                    continue;
                const Point at = {kMiddle.x + x - radius, kMiddle.y + y - radius};
                dots.moveTo(at).lineTo({at.x + 2 * radius, at.y}).lineTo({at.x + 2 * radius, at.y + 2 * radius});
                dots.lineTo({at.x, at.y + 2 * radius}).close();
            }
        }
        drawing.path(dots, Filled(kAction));
    }
    drawing.rect({16, 34, 16, 2}, Filled(kWhitePaper.line()));
    drawing.rect({16, 38, 10, 2}, Filled(kWhitePaper.line()));
    return drawing;
}

// The sheet that goes before a job, with a message.
Drawing BannerMessage()
{
    Drawing drawing(kSize, kSize);
    DrawStackBehind(drawing, SheetAt(9, 8), 2, {2, -2}, kWhitePaper);
    DrawSheet(drawing, SheetAt(9, 8), kWhitePaper);
    drawing.rect({13, 15, 18, 12}, Filled(kAction), 1);
    drawing.rect({16, 18, 12, 2}, Filled(kWhite));
    drawing.rect({16, 22, 8, 2}, Filled(kWhite));
    drawing.rect({13, 33, 18, 2}, Filled(kWhitePaper.line()));
    drawing.rect({13, 37, 11, 2}, Filled(kWhitePaper.line()));
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    pictures.push_back({"ImageOptions_ImageShift.gif", ImageShift()});
    pictures.push_back({"ImageOptions_InvertImage_Off.gif", AsItIs()});
    pictures.push_back({"ImageOptions_InvertImage_Mirror.gif", Mirrored()});
    pictures.push_back({"ImageOptions_ImgQual_TonerSaver.gif", Quality(3, 0.5)});
    pictures.push_back({"ImageOptions_ImgQual_Standard.gif", Quality(3, 1)});
    pictures.push_back({"ImageOptions_ImgQual_Enhanced.gif", Quality(0, 0)});
    pictures.push_back({"JobNotes_BannerMessage.gif", BannerMessage()});
}

} // namespace kesta::pictures::image_options
