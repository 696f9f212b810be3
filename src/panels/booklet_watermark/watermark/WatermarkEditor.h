#pragma once

#include "panels/booklet_watermark/watermark/WatermarkData.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/windows/ModalLoop.h"

#include <functional>

namespace kesta {
struct Bundle;
}

namespace kesta::booklet_watermark {

// Lets the user edit a watermark on a page of the record's size; one that is all zero is a new one. With OK, which
// waits until the record is accepted, the record is the edited one, otherwise it stays. kInterfaceFileUnreadable when
// the window can't be loaded.
using AcceptsWatermark = std::function<bool(const _WatermarkData& edited)>;
OSStatus RunModalWatermarkEditorDialog(const Bundle& bundle, _WatermarkData& record, const QString& title,
                                       ModalResult& result, const AcceptsWatermark& accepts);

namespace editor {

// The numbers of the controls in WatermarkEditor/Editor.
inline constexpr FourCharCode kSignature = "WmEd"_code;
enum Control : SInt32 {
    kTextRadio = 1,
    kTextField = 2,
    kFontButton = 3,
    kSwatch = 4,
    kFontHint = 5,
    kPictureRadio = 6,
    kFileField = 7,
    kChooseButton = 8,
    kAngleLabel = 9,
    kAngleField = 10,
    kAngleUnit = 11,
    kScaleLabel = 12,
    kScaleField = 13,
    kScaleUnit = 14,
    kDensityField = 15,
    kInchesRadio = 16,
    kMillimetresRadio = 17,
    kHorizontalField = 18,
    kHorizontalRange = 19,
    kVerticalField = 20,
    kVerticalRange = 21,
    kCenterButton = 22,
    kNoteRow = 23,
    kNoteMark = 24,
    kNote = 25,
    kPreview = 26,
    kPreviewHint = 27,
};

} // namespace editor
} // namespace kesta::booklet_watermark
