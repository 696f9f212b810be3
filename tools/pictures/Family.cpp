#include "Families.h"

namespace kesta::pictures {

Pictures AllPictures()
{
    Pictures pictures;
    AddButtonIcons(pictures);
    AddJobTypes(pictures);
    AddSides(pictures);
    AddFinishing(pictures);
    AddPapers(pictures);
    AddPaperOverlays(pictures);
    AddPaperSetups(pictures);
    AddSpecialPages(pictures);
    AddImageOptions(pictures);
    AddBooklets(pictures);
    AddDevices(pictures);
    return pictures;
}

} // namespace kesta::pictures
