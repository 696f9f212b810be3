#include "Families.h"

namespace kesta::pictures {

Pictures AllPictures()
{
    Pictures pictures;
    AddButtonIcons(pictures);
    AddDevices(pictures);
    return pictures;
}

} // namespace kesta::pictures
