#pragma once

#include "Drawing.h"

namespace kesta::pictures {

// Each adds the pictures of one family.
namespace button_icons {
void AddTo(Pictures& pictures);
}
namespace job_types {
void AddTo(Pictures& pictures);
}
namespace sides {
void AddTo(Pictures& pictures);
}
namespace finishing {
void AddTo(Pictures& pictures);
}
namespace papers {
void AddTo(Pictures& pictures);
// Precut tabs: a sheet with its own tab above those of the sheets behind.
void DrawPreCutTab(Drawing& drawing, const Paper& paper);
} // namespace papers
namespace overlays {
void AddTo(Pictures& pictures);
}
namespace paper_setups {
void AddTo(Pictures& pictures);
}
namespace special_pages {
void AddTo(Pictures& pictures);
}
namespace image_options {
void AddTo(Pictures& pictures);
}
namespace booklets {
void AddTo(Pictures& pictures);
}
namespace devices {
void AddTo(Pictures& pictures);
}

// The whole family.
Pictures AllPictures();

} // namespace kesta::pictures
