#pragma once

#include "Drawing.h"

namespace kesta::pictures {

// Each adds the pictures of one family.
void AddButtonIcons(Pictures& pictures);
void AddJobTypes(Pictures& pictures);
void AddSides(Pictures& pictures); // two-sided printing, output colour
void AddFinishing(Pictures& pictures);
void AddPapers(Pictures& pictures);
void AddPaperOverlays(Pictures& pictures);
void AddPaperSetups(Pictures& pictures); // tabs and separators
void AddSpecialPages(Pictures& pictures);
void AddBooklets(Pictures& pictures);
void AddImageOptions(Pictures& pictures);
void AddDevices(Pictures& pictures);

// The whole family.
Pictures AllPictures();

} // namespace kesta::pictures
