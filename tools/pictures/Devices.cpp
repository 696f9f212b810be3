#include "Families.h"

#include <optional>

namespace kesta::pictures::devices {
namespace {

// A scene of 192 x 96: feeder at the left, printer in the middle, finisher at the right, all on one floor. The
// accessories are in the action colour, the printer is grey.

constexpr int kWidth = 192;
constexpr int kHeight = 96;
constexpr double kFloor = 91.5;
constexpr double kBodyLeft = 68.5;
constexpr double kBodyWidth = 44;
constexpr Color kScreen = 0x5FD0A0;
constexpr double kBodyRight = kBodyLeft + kBodyWidth;

const Style kBody = Outlined(kWhite, kWhitePaper.edge);
const Style kShade = Outlined(Mix(kWhite, kWhitePaper.edge, 0.18), kWhitePaper.edge);
const Style kAccessory = Outlined(kActionTint, kAction);

Style TrayLine(Color color)
{
    return Stroked(color, 3);
}

void DrawPrinter(Drawing& drawing)
{
    drawing.rect({80.5, 16.5, 26, 5}, kShade, 1);   // document feeder
    drawing.rect({72.5, 21.5, 42, 10}, kBody, 1.5); // scanner
    drawing.rect({74.5, 31.5, 36, 4}, kShade);
    drawing.rect({kBodyLeft, 35.5, kBodyWidth, kFloor - 35.5}, kBody, 1);
    for (const double y : {59.5, 69.5, 79.5}) {
        drawing.path(Polyline({{kBodyLeft, y}, {kBodyRight, y}}), Stroked(kWhitePaper.edge, 1));
        drawing.rect({86, y + 4, 9, 2}, Filled(kInk));
    }
}

void DrawControlPanel(Drawing& drawing)
{
    drawing.rect({106.5, 24.5, 16, 7}, Outlined(kInk, kWhitePaper.edge), 2);
    drawing.rect({110, 27, 9, 2}, Filled(kScreen));
}

void DrawBypass(Drawing& drawing)
{
    drawing.path(Polyline({{50, 57}, {65.5, 64.5}}), TrayLine(kAction));
    drawing.path(Polyline({{55, 64.5}, {66, 67.5}}), Stroked(kAction, 1.5));
}

void DrawHighCapacityFeeder(Drawing& drawing)
{
    drawing.rect({37.5, 55.5, 29, kFloor - 55.5}, kAccessory, 1.5);
    drawing.path(Polyline({{37.5, 63.5}, {66.5, 63.5}}), Stroked(kAction, 1));
    drawing.rect({48, 75, 9, 2}, Filled(kAction));
    // A high pile of paper is what it is for.
    drawing.rect({43.5, 49.5, 17, 2}, Outlined(kWhite, kWhitePaper.edge));
    drawing.rect({43.5, 51.5, 17, 2}, Outlined(kWhite, kWhitePaper.edge));
    drawing.rect({43.5, 53.5, 17, 2}, Outlined(kWhite, kWhitePaper.edge));
}

void DrawTray(Drawing& drawing, double left, double y, double length)
{
    drawing.path(Polyline({{left, y}, {left + length, y - length * 0.3}}), TrayLine(kAction));
}

void DrawCatchTray(Drawing& drawing)
{
    DrawTray(drawing, kBodyRight + 2.5, 52.5, 22);
}

// An office finisher: one cabinet, two trays.
void DrawOfficeFinisher(Drawing& drawing, bool hasBooklets)
{
    drawing.rect({kBodyRight + 2, 39.5, 24, kFloor - 39.5}, kAccessory, 1.5);
    DrawTray(drawing, kBodyRight + 29, 50.5, 18);
    DrawTray(drawing, kBodyRight + 29, 62.5, 18);
    if (!hasBooklets)
        return;
    // A folded booklet leaves below.
    drawing.path(Polyline({{kBodyRight + 2, 68.5}, {kBodyRight + 26, 68.5}}), Stroked(kAction, 1));
    DrawTray(drawing, kBodyRight + 29, 86.5, 18);
    drawing.path(Polygon({{kBodyRight + 33.5, 79}, {kBodyRight + 44.5, 73}, {kBodyRight + 44.5, 79.5}}),
                 Outlined(kWhite, kWhitePaper.edge));
}

// A finisher for large runs: a high double cabinet, three trays, and a fold unit in front of it when it has one.
void DrawProductionFinisher(Drawing& drawing, bool hasFolder)
{
    double left = kBodyRight + 2;
    if (hasFolder) {
        drawing.rect({left, 33.5, 12, kFloor - 33.5}, kAccessory, 1.5);
        drawing.path(Polyline({{left + 3, 53.5}, {left + 9, 48.5}, {left + 3, 43.5}, {left + 9, 38.5}}),
                     Stroked(kAction, 1.5));
        left += 13;
    }
    drawing.rect({left, 29.5, 36, kFloor - 29.5}, kAccessory, 1.5);
    drawing.path(Polyline({{left + 18, 29.5}, {left + 18, kFloor}}), Stroked(kAction, 1));
    for (const double y : {42.5, 54.5})
        DrawTray(drawing, left + 39, y, 18);
    if (hasFolder) {
        DrawTray(drawing, left + 39, 86.5, 18);
        drawing.path(Polygon({{left + 43.5, 79}, {left + 54.5, 73}, {left + 54.5, 79.5}}),
                     Outlined(kWhite, kWhitePaper.edge));
    } else {
        DrawTray(drawing, left + 39, 70.5, 18);
    }
}

enum class Feeder { unknown, bypass, highCapacity };
enum class Finisher { unknown, catchTray, office, officeBooklets, production, productionFolding };

struct FeederRow {
    const char* name;
    Feeder feeder;
};
struct FinisherRow {
    const char* name;
    Finisher finisher;
};

constexpr auto kFeeders = std::to_array<FeederRow>({
    {"", Feeder::unknown},
    {"Bypass-", Feeder::bypass},
    {"HiCap-", Feeder::highCapacity},
});
constexpr auto kFinishers = std::to_array<FinisherRow>({
    {"", Finisher::unknown},
    {"Catch", Finisher::catchTray},
    {"Adv", Finisher::office},
    {"Prof", Finisher::officeBooklets},
    {"LtProd", Finisher::production},
    {"LtProd+Fold", Finisher::productionFolding},
});

void DrawFeeder(Drawing& drawing, Feeder feeder)
{
    switch (feeder) {
    case Feeder::unknown:
        return;
    case Feeder::bypass:
        return DrawBypass(drawing);
    case Feeder::highCapacity:
        return DrawHighCapacityFeeder(drawing);
    }
}

void DrawFinisher(Drawing& drawing, Finisher finisher)
{
    switch (finisher) {
    case Finisher::unknown:
        return;
    case Finisher::catchTray:
        return DrawCatchTray(drawing);
    case Finisher::office:
        return DrawOfficeFinisher(drawing, false);
    case Finisher::officeBooklets:
        return DrawOfficeFinisher(drawing, true);
    case Finisher::production:
        return DrawProductionFinisher(drawing, false);
    case Finisher::productionFolding:
        return DrawProductionFinisher(drawing, true);
    }
}

Drawing Device(Feeder feeder, Finisher finisher)
{
    Drawing drawing(kWidth, kHeight);
    drawing.path(Polyline({{8.5, kFloor}, {183.5, kFloor}}), Stroked(kWhitePaper.edge, 1));
    DrawFeeder(drawing, feeder);
    DrawPrinter(drawing);
    DrawFinisher(drawing, finisher);
    DrawControlPanel(drawing);
    return drawing;
}

} // namespace

void AddTo(Pictures& pictures)
{
    for (const FeederRow& feeder : kFeeders) {
        for (const FinisherRow& finisher : kFinishers)
            pictures.push_back({std::string("Mimic_ED_Westmarch_") + feeder.name + finisher.name + ".gif",
                                Device(feeder.feeder, finisher.finisher)});
    }
}

} // namespace kesta::pictures::devices
