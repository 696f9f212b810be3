#include "Families.h"

namespace kesta::pictures::button_icons {
namespace {

constexpr Style kLine = {.stroke = kIconInk, .width = 1.5};
constexpr int kSize = 16;

Drawing Lines(std::initializer_list<Path> paths)
{
    Drawing drawing(kSize, kSize);
    for (const Path& path : paths)
        drawing.path(path, kLine);
    return drawing;
}

void DrawBin(Drawing& drawing)
{
    drawing.path(Polyline({{2.75, 4.25}, {11.25, 4.25}}), kLine);
    drawing.path(Polyline({{5.25, 4}, {5.25, 2}, {8.75, 2}, {8.75, 4}}), kLine);
    drawing.path(Polyline({{3.75, 4.5}, {4.25, 14.25}, {9.75, 14.25}, {10.25, 4.5}}), kLine);
}

Drawing Delete()
{
    Drawing drawing(kSize, kSize);
    const Moved centred(drawing, {1, 0});
    DrawBin(drawing);
    drawing.path(Polyline({{6, 7.25}, {6, 11.5}}), kLine);
    drawing.path(Polyline({{8, 7.25}, {8, 11.5}}), kLine);
    return drawing;
}

Drawing DeleteAll()
{
    Drawing drawing(kSize, kSize);
    {
        const Moved toTheLeft(drawing, {-2, 0});
        DrawBin(drawing);
    }
    for (const double y : {6.75, 9.75, 12.75})
        drawing.path(Polyline({{11.25, y}, {15, y}}), kLine);
    return drawing;
}

Drawing Undo()
{
    Path arrow;
    arrow.moveTo({2.5, 5.75}).lineTo({9.75, 5.75}).arcTo(3.75, true, {9.75, 13.25}).lineTo({6, 13.25});
    return Lines({arrow, Polyline({{5.75, 2.5}, {2.5, 5.75}, {5.75, 9}})});
}

Drawing Edit()
{
    return Lines({Polygon({{2.25, 13.75}, {3, 10.25}, {10.75, 2.5}, {13.5, 5.25}, {5.75, 13}}),
                  Polyline({{8.75, 4.5}, {11.5, 7.25}})});
}

Drawing Page(const Box& outline, std::initializer_list<Path> lines)
{
    Drawing drawing = Lines(lines);
    drawing.rect(outline, kLine, 1);
    return drawing;
}

Drawing Caution()
{
    Drawing drawing = Lines({Polygon({{8, 2}, {14.75, 13.75}, {1.25, 13.75}}), Polyline({{8, 6.75}, {8, 9.5}})});
    drawing.circle({8, 11.75}, 1, Filled(kIconInk));
    return drawing;
}

Drawing Info()
{
    Drawing drawing(kSize, kSize);
    drawing.circle({8, 8}, 6.25, kLine);
    drawing.path(Polyline({{8, 7.5}, {8, 11}}), kLine);
    drawing.circle({8, 5}, 1, Filled(kIconInk));
    return drawing;
}

Drawing Center()
{
    Drawing drawing = Lines({Polyline({{8, 2}, {8, 5}}), Polyline({{8, 11}, {8, 14}}), Polyline({{2, 8}, {5, 8}}),
                             Polyline({{11, 8}, {14, 8}})});
    drawing.circle({8, 8}, 1.5, Filled(kIconInk));
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    pictures.push_back({"ButtonGraphic_MacUp.png", Lines({Polyline({{3.5, 10.25}, {8, 5.75}, {12.5, 10.25}})})});
    pictures.push_back({"ButtonGraphic_MacDown.png", Lines({Polyline({{3.5, 5.75}, {8, 10.25}, {12.5, 5.75}})})});
    pictures.push_back({"ButtonGraphic_Edit.icns", Edit()});
    pictures.push_back({"ButtonGraphic_Delete.icns", Delete()});
    pictures.push_back({"ButtonGraphic_DeleteAll.icns", DeleteAll()});
    pictures.push_back({"ButtonGraphic_Undo.icns", Undo()});
    pictures.push_back({"ButtonGraphic_Move_Up.icns",
                        Lines({Polyline({{8, 13.5}, {8, 2.75}}), Polyline({{3.75, 7}, {8, 2.75}, {12.25, 7}})})});
    pictures.push_back({"ButtonGraphic_Move_Down.icns",
                        Lines({Polyline({{8, 2.5}, {8, 13.25}}), Polyline({{3.75, 9}, {8, 13.25}, {12.25, 9}})})});
    pictures.push_back(
        {"ButtonGraphic_Portrait.png",
         Page({3.75, 1.75, 8.5, 12.5}, {Polyline({{6.25, 5}, {9.75, 5}}), Polyline({{6.25, 8}, {9.75, 8}})})});
    pictures.push_back(
        {"ButtonGraphic_Landscape.png",
         Page({1.75, 3.75, 12.5, 8.5}, {Polyline({{5, 6.5}, {11, 6.5}}), Polyline({{5, 9.5}, {8.5, 9.5}})})});
    pictures.push_back({"ButtonGraphic_Caution.png", Caution()});
    pictures.push_back({"ButtonGraphic_Info.png", Info()});
    pictures.push_back({"ButtonGraphic_Center.png", Center()});
}

} // namespace kesta::pictures::button_icons
