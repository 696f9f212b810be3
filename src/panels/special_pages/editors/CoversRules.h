#pragma once

#include "model/SpecialPage.h"
#include "pde/interface/SyncDirection.h"
#include "pde/menus/SettingMap.h"
#include "platform/printsystem/Ticket.h"

#include <array>

namespace kesta {

struct Bundle;

// Where a cover is kept; null without one. Who changes a cover keeps the object: it is the row of a list.
using CoverSlot = std::unique_ptr<Cover>;
struct Covers {
    CoverSlot front, back;
};
Covers CloneOf(const CoverSlot& front, const CoverSlot& back);

inline constexpr SInt32 kCoverBlank = 1; // of sidesImaged
inline constexpr SInt32 kCoverPrintedFront = 2;
inline constexpr SInt32 kCoverPrintedBack = 3;
inline constexpr SInt32 kCoverPrintedBoth = 4;

inline constexpr SInt32 kNoCovers = 1;
inline constexpr SInt32 kFrontCoverOnly = 2;
inline constexpr SInt32 kBackCoverOnly = 3;
inline constexpr SInt32 kSameCovers = 4;
inline constexpr SInt32 kDifferentCovers = 5;
inline constexpr auto _CoverOptionMap = std::to_array<SettingRow>({
    {"No Covers", kNoCovers},
    {"Front Cover Only", kFrontCoverOnly},
    {"Back Cover Only", kBackCoverOnly},
    {"Same Covers", kSameCovers},
    {"Different Covers", kDifferentCovers},
});
static_assert(_CoverOptionMap.size() == 5);

bool IsBookletLayoutOn(const Ticket& settings);
// With booklet layout one sheet is both covers: the back one that equals the front one is not written.
bool GoesWithoutBackCover(const Ticket& settings, const CoverSlot& front, const CoverSlot& back);

// Both covers from or to the print settings. Read with booklet layout on, the back cover is the front one's double,
// whatever the ticket has. The status of the last ticket operation.
OSStatus SyncCovers(Ticket& settings, SyncDirection direction, CoverSlot& front, CoverSlot& back);

// What the covers editor writes at OK: those that are there; and without a front cover none stays beside a back one.
OSStatus WriteEditedCovers(Ticket& settings, const Covers& covers);

// The sides that a cover can have printed in this job; without print settings those of any.
SettingMap CoverSidesMap(const Ticket* settings);
// What stands for the sides in the map's menu: a job of the other kind has printed covers as well. Nothing for what no
// menu offers.
std::optional<SInt32> OfferedSides(SettingMap map, SInt32 sides);
QString CoverSidesText(const Bundle& bundle, SettingMap map, SInt32 sides);

SInt32 CoverOptionOf(const Covers& covers);
bool IsCoverOptionOffered(SInt32 option, bool isBookletLayoutOn);
// Makes and removes covers as the option says; a new one is blank, of the job's paper, from that tray.
void ApplyCoverOption(Covers& covers, SInt32 option, SInt32 frontTray, SInt32 backTray);
// With the same covers the back is what the front is.
void FollowFront(Covers& covers, SInt32 option);

// A printed cover has the job's size.
void SetSidesImaged(Cover& cover, SInt32 sides);
bool CanChooseSize(const Cover& cover);
inline constexpr SInt32 kAutomaticTray = 0;
// Automatic leaves a paper that is chosen alone; any other tray stands for whatever lies in it.
void SetTray(Cover& cover, SInt32 tray);
SInt32 TrayOf(const Cover& cover);

// Puts the edited covers where they are kept: an object that is there already stays and takes the values.
void KeepCovers(Covers edited, CoverSlot& front, CoverSlot& back);

QString CoverOptionPicture(SInt32 option);
QString CoverSidesPicture(const Cover* cover);

} // namespace kesta
