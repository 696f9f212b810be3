#pragma once

#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include <QStringList>

#include <functional>

namespace kesta {
struct Bundle;
}

namespace kesta::booklet_watermark {

// The names of the saved watermarks in the order of the menu, for the whole process: what was read of the store last. A
// first name that stands for nothing is left out here, not in the store.
QStringList& listOfWatermarks();

// A store without a list gets the default watermarks.
void LoadWatermarks(const Bundle& bundle);
// Others may have changed the store. False when it can't be read; the names then stay.
bool ReloadWatermarks();

// Removes the font of a watermark that is gone, unless another one uses it; see WatermarkFont.h.
using DropUnusedFont = std::function<void(const _WatermarkData& removed)>;

// Saves the record in place of the one of that old name, an empty one for a new watermark. An entry that has the
// record's name already gives way. False, and the old one is still there, when the store could not be written.
bool SaveWatermark(const _WatermarkData& record, const QString& oldName, const DropUnusedFont& dropFont);
// False when it is still there.
bool DeleteWatermark(const QString& name, const DropUnusedFont& dropFont);

// Watermarks that this user had before there was a store for everybody, and that this one lacks.
QStringList OwnWatermarks();
void CopyOwnWatermarks(const QStringList& names);
// Whether they were offered for copying already; remembered with the user's preferences.
bool AreOwnWatermarksOffered();
void RememberOwnWatermarksOffered();

// In which units a new watermark's place is given: 0 inches, 1 millimetres, as those that were used last.
SInt32 UsualUnits(SInt32 otherwise);
void RememberUnits(SInt32 units);

} // namespace kesta::booklet_watermark
