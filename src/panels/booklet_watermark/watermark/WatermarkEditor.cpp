#include "panels/booklet_watermark/watermark/WatermarkEditor.h"

#include "panels/booklet_watermark/watermark/DrawingLibrary.h"
#include "panels/booklet_watermark/watermark/EditorPreview.h"
#include "panels/booklet_watermark/watermark/FontPanel.h"
#include "panels/booklet_watermark/watermark/PageDrawing.h"
#include "panels/booklet_watermark/watermark/WatermarkNoteText.h"
#include "pde/forms/DialogCommands.h"
#include "pde/forms/InfoMark.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/FileChooser.h"
#include "platform/system/Notices.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QFileInfo>
#include <QImageReader>
#include <QRadioButton>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kesta::booklet_watermark::editor {
namespace {

constexpr QLatin1StringView kHelpPage("Layout_Watermark/Watermark/M_Watermark_Editor.htm");

WatermarkColor ColorOf(const QColor& color)
{
    return {color.redF(), color.greenF(), color.blueF(), 1};
}

bool FitsName(const QString& name)
{
    return _WatermarkData().text.set(name);
}

void SetKind(_WatermarkEditorContext& editor, bool isText)
{
    _WatermarkData& record = editor.record;
    record.isText = isText ? 1 : 0;
    record.text.set(isText ? editor.text : QString());
    record.fileName.set(isText ? QString() : editor.fileName);
    record.filePath.set(isText ? QString() : editor.filePath);
}

QStringList PicturePatterns()
{
    QStringList patterns;
    for (const QByteArray& type : QImageReader::supportedImageFormats())
        patterns << u"*."_s + QString::fromLatin1(type);
    return patterns;
}

// One that can't be drawn is not taken.
void ChoosePicture(_WatermarkEditorContext& editor)
{
    const QString title = LocalizedString(editor.bundle, "ChoosePicture");
    const std::optional<QString> path = GetFileChooser().open({.title = title, .patterns = PicturePatterns()});
    if (!path)
        return;
    _WatermarkData chosen = editor.record;
    const bool fits = chosen.fileName.set(QFileInfo(*path).fileName()) && chosen.filePath.set(*path);
    chosen.text.set({});
    const WatermarkNotes notes =
        fits ? GetDrawingLibrary().renderWatermark(chosen, editor.page(), editor.preview, {}) : WatermarkNotes();
    editor.rendered.reset();
    if (!fits || notes.picture != PictureProblem::None) {
        const QStringList sentences = WatermarkSentences(editor.bundle, chosen, notes, FontProblem::None);
        GetNotices().show(
            {.title = LocalizedString(editor.bundle, "Picture Refused Header"),
             .message = fits ? sentences.join(u' ')
                             : NameSentence(editor.bundle, QFileInfo(*path).fileName(), NameProblem::TooLong)});
        return;
    }
    editor.fileName = chosen.fileName.get();
    editor.filePath = chosen.filePath.get();
    SetKind(editor, false);
}

void ChooseFont(_WatermarkEditorContext& editor)
{
    ChosenFont font{editor.record.fontName.get(), editor.record.fontSize, editor.record.text.get()};
    ModalResult result = ModalResult::Cancel;
    RunModalFontPanelDialog(editor.bundle, font, result);
    if (result != ModalResult::OK)
        return;
    editor.record.fontName.set(font.postScriptName);
    editor.record.fontSize = font.size;
}

void TakeHit(_WatermarkEditorContext& editor, const HitEvent& hit)
{
    _WatermarkData& record = editor.record;
    switch (hit.control.number) {
    case kTextRadio:
    case kPictureRadio:
        SetKind(editor, hit.control.number == kTextRadio);
        break;
    case kFontButton:
        ChooseFont(editor);
        break;
    case kSwatch:
        if (const auto* swatch = editor.control<ColorSwatch>(kSwatch))
            record.wellColor = record.fontColor = ColorOf(swatch->color());
        break;
    case kChooseButton:
        ChoosePicture(editor);
        break;
    case kAngleField:
        record.angle = hit.value;
        break;
    case kScaleField:
        record.scale = hit.value;
        break;
    case kDensityField:
        record.density = hit.value;
        break;
    case kInchesRadio:
    case kMillimetresRadio:
        record.units = hit.control.number == kInchesRadio ? kInches : kMillimetres;
        break;
    case kHorizontalField:
        record.xOffset = OffsetFromShown(hit.value, record.units);
        break;
    case kVerticalField:
        record.yOffset = OffsetFromShown(hit.value, record.units);
        break;
    case kCenterButton:
        record.xOffset = record.yOffset = 0;
        break;
    }
}

EventResult HandleHit(_WatermarkEditorContext& editor, const HitEvent& hit)
{
    TakeHit(editor, hit);
    renderWatermarkIfNecessary(editor);
    ShowRecord(editor, hit.control.number);
    return EventResult::NotHandled;
}

EventResult HandleText(_WatermarkEditorContext& editor, const TextEditedEvent& edited)
{
    if (edited.control.number != kTextField)
        return EventResult::NotHandled;
    editor.text = edited.text;
    editor.record.text.set(edited.text);
    renderWatermarkIfNecessary(editor);
    ShowRecord(editor, kTextField);
    return EventResult::NotHandled;
}

// A name has room for so many bytes. While it asks, the field has the text as it would be.
EventResult LimitText(const _WatermarkEditorContext& editor, const TextTypedEvent& typed)
{
    const auto* field = editor.control<QLineEdit>(kTextField);
    const bool isIn = !field || typed.control.number != kTextField || FitsName(field->text());
    return isIn ? EventResult::NotHandled : EventResult::Swallowed;
}

int HeightOfPage(QSizeF page, QSize room)
{
    return static_cast<int>(std::ceil(PagePlace(page, QRectF({}, room)).height()));
}

EventResult HandleDraw(const _WatermarkEditorContext& editor, const DrawEvent& draw)
{
    if (draw.control.number == kPreview)
        DrawPreview(editor, draw);
    else if (draw.control.number == kNoteMark)
        DrawInfoMark(*draw.painter, draw.bounds, editor.bundle);
    else
        return EventResult::NotHandled;
    return EventResult::Handled;
}

} // namespace

void renderWatermarkIfNecessary(_WatermarkEditorContext& editor, bool force)
{
    if (!force && editor.rendered == editor.record)
        return;
    editor.notes = GetDrawingLibrary().renderWatermark(editor.record, editor.page(), editor.preview, {});
    editor.rendered = editor.record;
    if (QWidget* preview = editor.control(kPreview))
        preview->update();
}

} // namespace kesta::booklet_watermark::editor

namespace kesta::booklet_watermark {

OSStatus RunModalWatermarkEditorDialog(const Bundle& bundle, _WatermarkData& record, const QString& title,
                                       ModalResult& result, const AcceptsWatermark& accepts)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "WatermarkEditor", "Editor");
    if (!window)
        return kInterfaceFileUnreadable;
    window->setWindowTitle(title);
    PrepareForEditor(record);
    _WatermarkEditorContext editor{bundle, *window, record};
    editor::renderWatermarkIfNecessary(editor, true);
    editor::ShowRecord(editor);
    std::optional<editor::PreviewMouse> mouse;
    if (QWidget* preview = editor.control(editor::kPreview)) {
        preview->setFixedHeight(editor::HeightOfPage(editor.page(), preview->maximumSize()));
        mouse.emplace(editor, *preview);
    }
    if (QWidget* first = editor.control(editor.record.isText ? editor::kTextField : editor::kChooseButton))
        first->setFocus();
    const EventHandler events = InstallEventHandler(
        *window, [&](const HitEvent& hit) { return editor::HandleHit(editor, hit); },
        [&](const TextTypedEvent& typed) { return editor::LimitText(editor, typed); },
        [&](const TextEditedEvent& edited) { return editor::HandleText(editor, edited); },
        [&](const DrawEvent& draw) { return editor::HandleDraw(editor, draw); });
    result = RunModalDialog(bundle, *window, editor::kHelpPage, [&] { return !accepts || accepts(editor.record); });
    if (result == ModalResult::OK)
        record = std::move(editor.record);
    return noErr;
}

} // namespace kesta::booklet_watermark
