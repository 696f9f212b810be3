#pragma once

namespace kesta {

class ColorSwatch;

// Lets the user choose the swatch's colour in a modal dialog.
void RunColorDialog(ColorSwatch& swatch);

} // namespace kesta
