#include "Families.h"

namespace kesta::pictures {

Pictures AllPictures()
{
    Pictures pictures;
    button_icons::AddTo(pictures);
    job_types::AddTo(pictures);
    sides::AddTo(pictures);
    finishing::AddTo(pictures);
    papers::AddTo(pictures);
    overlays::AddTo(pictures);
    paper_setups::AddTo(pictures);
    special_pages::AddTo(pictures);
    image_options::AddTo(pictures);
    booklets::AddTo(pictures);
    devices::AddTo(pictures);
    return pictures;
}

} // namespace kesta::pictures
