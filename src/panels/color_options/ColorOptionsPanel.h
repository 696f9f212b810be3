#pragma once

#include "panels/color_options/ColorOptions.h"
#include "panels/color_options/ColorSettings.h"
#include "pde/interface/PanelOperations.h"
#include "toolkit/controls/ControlEvent.h"

#include <QPointer>

extern "C" KestaStatus GetColorOptionPanelInterface(const PanelInterfaceHolder** holder);

namespace kesta {
struct Bundle;
}

namespace kesta::color {

// The plug-in that the panel comes in; its controls are numbered in ColorSettings.h.
inline constexpr char kColorOptionsIdentifier[] = "com.kesta.print.pde.coloroptions";
inline constexpr FourCharCode kSignature = "Colr"_code;

struct _ColorOptionsPanelContext {
    const Bundle* bundle = nullptr;
    QPointer<QWidget> pane; // given by the shell; the controls are found in it by number
    QPointer<QWidget> view; // what Open puts into it
    ColorOptions options;
    EventHandler handler;
};

PanelDescription Prologue(_ColorOptionsPanelContext& panel);
OSStatus Initialize(_ColorOptionsPanelContext& panel, QWidget& pane, PrintSession& session);
OSStatus Sync(_ColorOptionsPanelContext& panel, PrintSession& session, SyncDirection direction);
OSStatus Open(_ColorOptionsPanelContext& panel);

EventResult ColorOptionsPanelEventHandler(_ColorOptionsPanelContext& panel, const HitEvent& hit);
EventResult ColorOptionsDrawEventHandler(const _ColorOptionsPanelContext& panel, const DrawEvent& draw);

} // namespace kesta::color
