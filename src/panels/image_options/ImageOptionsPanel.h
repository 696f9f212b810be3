#pragma once

#include "panels/image_options/ImageOptions.h"
#include "pde/interface/PanelOperations.h"
#include "toolkit/controls/ControlEvent.h"

#include <QPointer>

extern "C" KestaStatus GetImageOptionsPanelInterface(const PanelInterfaceHolder** holder);

namespace kesta {
struct Bundle;
}

namespace kesta::image_options {

// The numbers of the controls in ImageOptionsPanel/Panel. The invert section's own controls are optional, and the
// window has neither: the mirror check box is the panel's.
inline constexpr FourCharCode kSignature = "ImgO"_code;
enum Control : SInt32 {
    kQualityPopup = 101,
    kQualityIllustration = 102,
    kMirrorCheckBox = 103,
    kInvertIllustration = 104,
    kNegativeInvertControl = 105,
    kMirrorInvertControl = 106,
};

struct _ImageOptionsContext {
    const Bundle* bundle = nullptr;
    QPointer<QWidget> pane; // given by the shell; the controls are found in it by number
    QPointer<QWidget> view; // what Open puts into it
    ppd_file_t* ppd = nullptr;
    ImageOptions options;
    EventHandler handler;
};

PanelDescription Prologue(_ImageOptionsContext& panel);
OSStatus Initialize(_ImageOptionsContext& panel, QWidget& pane, PrintSession& session);
OSStatus Sync(_ImageOptionsContext& panel, PrintSession& session, SyncDirection direction);
OSStatus Open(_ImageOptionsContext& panel); // kInvalidContext when it is open already

void SaveUIValuesToData(_ImageOptionsContext& panel);
void RestoreUIValuesFromData(const _ImageOptionsContext& panel);
EventResult ImageOptionsPanelEventHandler(_ImageOptionsContext& panel, const HitEvent& hit);

} // namespace kesta::image_options
