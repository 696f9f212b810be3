#pragma once

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/windows/ModalLoop.h"

namespace kesta {
struct Bundle;
}

namespace kesta::booklet_watermark {

struct ChosenFont {
    QString postScriptName;
    SInt32 size = 72; // points
    QString sample;   // the text that is to be in it
};

// Lets the user choose one of the fonts of this computer. kInterfaceFileUnreadable when the window can't be loaded.
OSStatus RunModalFontPanelDialog(const Bundle& bundle, ChosenFont& font, ModalResult& result);

namespace fontpanel {

// The numbers of the controls in FontPanel/FontPanel.
inline constexpr FourCharCode kSignature = "WmFt"_code;
enum Control : SInt32 {
    kSearchField = 1,
    kList = 2,
    kCount = 3,
    kSizeField = 4,
    kSample = 5,
};

} // namespace fontpanel
} // namespace kesta::booklet_watermark
