#include "Families.h"
#include "Sheet.h"

namespace kesta::pictures::finishing {
namespace {

constexpr int kSize = 48;
constexpr Box kSet = SheetAt(9, 8);
constexpr double kStapleWidth = 3;
constexpr double kStapleLength = 8;      // with its round ends
constexpr double kShortStapleLength = 6; // where four share the edge
constexpr double kStapleInset = 3.5;     // from the left edge
constexpr double kHoleInset = 5.5;
constexpr double kHoleInsetBesideStaples = 9;
constexpr double kHoleRadius = 2;

// Where along the left edge they lie: the middles, from the sheet's top.
using Places = std::initializer_list<double>;
constexpr Places kTwoStaples = {11, 25};
constexpr Places kTwoStaplesBesideThree = {12, 24};
constexpr Places kFourStaples = {6, 14, 22, 30};
constexpr Places kTwoHoles = {12, 24};
constexpr Places kTwoHolesBesideStaples = {13.5, 22.5};
constexpr Places kThreeHoles = {6, 18, 30};
constexpr Places kFourHoles = {5, 13.67, 22.33, 31};
constexpr Places kTwoHolesUnderStaple = {16, 28};
constexpr Places kThreeHolesUnderStaple = {14, 22, 30};
constexpr Places kFourHolesUnderStaple = {13, 19.33, 25.67, 32};

// The insets are those from the left edge; the heading makes room for a staple in the corner.
void DrawSet(Drawing& drawing, double printInset, double headingInset)
{
    constexpr double kRightMargin = 4;
    const Print print = PrintOn(kWhitePaper);
    DrawStackBehind(drawing, kSet, 2, {2, -2}, kWhitePaper);
    DrawSheet(drawing, kSet, kWhitePaper);
    drawing.rect({kSet.x + headingInset, kSet.y + 6, 8, 3}, Filled(print.heading));
    const double left = kSet.x + printInset;
    DrawPrint(drawing, {left, kSet.y + 12, kSet.right() - kRightMargin - left, 22}, {print.heading, print.line, false});
}

void DrawStaples(Drawing& drawing, Places middles, double length)
{
    const double x = kSet.x + kStapleInset;
    const double half = (length - kStapleWidth) / 2;
    for (const double middle : middles) {
        const double y = kSet.y + middle;
        drawing.path(Polyline({{x, y - half}, {x, y + half}}), Stroked(kAction, kStapleWidth));
    }
}

void DrawCornerStaple(Drawing& drawing)
{
    drawing.path(Polyline({{kSet.x + 3.5, kSet.y + 8.5}, {kSet.x + 8.5, kSet.y + 3.5}}),
                 Stroked(kAction, kStapleWidth));
}

void DrawHoles(Drawing& drawing, Places middles, double inset)
{
    for (const double middle : middles)
        drawing.circle({kSet.x + inset, kSet.y + middle}, kHoleRadius,
                       {.fill = kWhite, .stroke = kAction, .width = 1.75});
}

enum class Staples { none, one, two, four };

Drawing Set(Staples staples, Places holes)
{
    Drawing drawing(kSize, kSize);
    const bool hasEdgeStaples = staples == Staples::two || staples == Staples::four;
    const bool hasHoles = holes.size() != 0;
    const double holeInset = hasEdgeStaples ? kHoleInsetBesideStaples : kHoleInset;
    const double printInset = hasHoles ? holeInset + 4 : hasEdgeStaples ? 8 : 5;
    DrawSet(drawing, printInset, staples == Staples::one ? 12 : printInset);
    if (staples == Staples::one)
        DrawCornerStaple(drawing);
    if (staples == Staples::two)
        DrawStaples(drawing,
                    holes.size() == 3   ? kTwoStaplesBesideThree
                    : holes.size() == 2 ? Places{6.5, 29.5}
                                        : kTwoStaples,
                    kStapleLength);
    if (staples == Staples::four)
        DrawStaples(drawing, kFourStaples, kShortStapleLength);
    DrawHoles(drawing, holes, holeInset);
    return drawing;
}

constexpr double kPanelHeight = 25;

Drawing CFold()
{
    Drawing drawing(kSize, kSize);
    constexpr Panel kLeft = {3.5, 16.5, 12, 7.5, kPanelHeight};
    constexpr Panel kMiddle = {12, 7.5, 36, 7.5, kPanelHeight + 3};
    constexpr Panel kRight = {36, 7.5, 44.5, 16.5, kPanelHeight};
    DrawPanel(drawing, kMiddle, kWhitePaper, Side::front);
    DrawPanelPrint(drawing, kMiddle, kWhitePaper, Side::front, {.lines = 4});
    for (const Panel& flap : {kLeft, kRight}) {
        DrawPanel(drawing, flap, kWhitePaper, Side::back);
        DrawPanelPrint(drawing, flap, kWhitePaper, Side::back, {.lines = 3});
    }
    DrawFold(drawing, kLeft);
    DrawFold(drawing, kMiddle);
    return drawing;
}

Drawing ZFold(const Panel& left, const Panel& middle, const Panel& right)
{
    Drawing drawing(kSize, kSize);
    DrawPanel(drawing, left, kWhitePaper, Side::front);
    DrawPanelPrint(drawing, left, kWhitePaper, Side::front);
    DrawPanel(drawing, middle, kWhitePaper, Side::back);
    DrawPanelPrint(drawing, middle, kWhitePaper, Side::back, {.hasHeading = false, .lines = 4});
    DrawPanel(drawing, right, kWhitePaper, Side::front);
    DrawPanelPrint(drawing, right, kWhitePaper, Side::front, {.hasHeading = false, .lines = 4});
    DrawFold(drawing, left);
    DrawFold(drawing, middle);
    return drawing;
}

constexpr double kSpine = 24;

// One sheet, one page: its print runs on across the fold.
void DrawFoldedPage(Drawing& drawing)
{
    constexpr Panel kLeft = {4.5, 15.5, kSpine, 8.5, 27};
    constexpr Panel kRight = {kSpine, 8.5, 43.5, 15.5, 27};
    DrawPanel(drawing, kLeft, kWhitePaper, Side::front);
    DrawPanelPrint(drawing, kLeft, kWhitePaper, Side::front, {.rightInset = 0, .lines = 3, .step = 5});
    DrawPanel(drawing, kRight, kWhitePaper, Side::back);
    DrawPanelPrint(drawing, kRight, kWhitePaper, Side::back,
                   {.hasHeading = false, .leftInset = 0, .topInset = 12, .lines = 3, .step = 5});
}

// Several leaves, each side of them a page of its own.
void DrawBookletPages(Drawing& drawing)
{
    // In line with each other, so that the leaves behind show at the outer edges only.
    constexpr Panel kWidest = {2.5, 15.5, kSpine, 7.5, 28};
    for (const double inset : {0.0, 2.0, 4.0}) {
        const double outerTop = kWidest.topAt(kWidest.left + inset);
        const Panel left = {kWidest.left + inset, outerTop, kSpine, kWidest.rightTop, kWidest.height};
        const Panel right = {kSpine, kWidest.rightTop, 48 - left.left, outerTop, kWidest.height};
        for (const Panel& page : {left, right}) {
            DrawPanel(drawing, page, kWhitePaper, inset == 4 ? Side::front : Side::back);
            if (inset == 4)
                DrawPanelPrint(drawing, page, kWhitePaper, Side::front);
        }
    }
}

Drawing Booklet(bool hasLayout, bool hasStaples)
{
    Drawing drawing(kSize, kSize);
    hasLayout ? DrawBookletPages(drawing) : DrawFoldedPage(drawing);
    const double top = hasLayout ? 7.5 : 8.5;
    constexpr double bottom = 35.5;
    if (!hasStaples) {
        drawing.path(Polyline({{kSpine, top}, {kSpine, bottom}}), Stroked(kAction, 3));
        return drawing;
    }
    for (const double middle : {top + 7, bottom - 6}) // on a fold of the paper's own colour, so that they stand out
        drawing.path(Polyline({{kSpine, middle - 2.5}, {kSpine, middle + 2.5}}), Stroked(kAction, 4));
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    pictures.push_back({"OfficeFinishing_1St.gif", Set(Staples::one, {})});
    pictures.push_back({"OfficeFinishing_2St.gif", Set(Staples::two, {})});
    pictures.push_back({"OfficeFinishing_4St.gif", Set(Staples::four, {})});
    pictures.push_back({"OfficeFinishing_2Hp.gif", Set(Staples::none, kTwoHoles)});
    pictures.push_back({"OfficeFinishing_3Hp.gif", Set(Staples::none, kThreeHoles)});
    pictures.push_back({"OfficeFinishing_4Hp.gif", Set(Staples::none, kFourHoles)});
    pictures.push_back({"OfficeFinishing_1St&2Hp.gif", Set(Staples::one, kTwoHolesUnderStaple)});
    pictures.push_back({"OfficeFinishing_1St&3Hp.gif", Set(Staples::one, kThreeHolesUnderStaple)});
    pictures.push_back({"OfficeFinishing_1St&4Hp.gif", Set(Staples::one, kFourHolesUnderStaple)});
    pictures.push_back({"OfficeFinishing_2St&2Hp.gif", Set(Staples::two, kTwoHolesBesideStaples)});
    pictures.push_back({"OfficeFinishing_2St&3Hp.gif", Set(Staples::two, kThreeHoles)});
    pictures.push_back({"OfficeFinishing_2St&4Hp.gif", Set(Staples::two, kFourHoles)});
    pictures.push_back({"OfficeFinishing_CFold.gif", CFold()});
    pictures.push_back(
        {"OfficeFinishing_ZFold.gif", ZFold({5.5, 15.5, 18, 7.5, kPanelHeight}, {18, 7.5, 30, 15.5, kPanelHeight},
                                            {30, 15.5, 42.5, 7.5, kPanelHeight})});
    pictures.push_back({"ProductionFinishing_ZFold_Half_Left.gif",
                        ZFold({3.5, 14.5, 26, 8.5, kPanelHeight}, {26, 8.5, 35.5, 15.5, kPanelHeight},
                              {35.5, 15.5, 45, 8.5, kPanelHeight})});
    pictures.push_back({"OfficeFinishing_Bklt_Fold.gif", Booklet(false, false)});
    pictures.push_back({"OfficeFinishing_Bklt_Fold_Layout.gif", Booklet(true, false)});
    pictures.push_back({"OfficeFinishing_BKlt_Fold&Stple.gif", Booklet(false, true)});
    pictures.push_back({"OfficeFinishing_Bklt_Fold&Stpl_Layout.gif", Booklet(true, true)});
}

} // namespace kesta::pictures::finishing
