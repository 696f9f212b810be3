#include "panels/booklet_watermark/watermark/WatermarkEditorContext.h"

#include "panels/booklet_watermark/watermark/DrawingLibrary.h"
#include "panels/booklet_watermark/watermark/WatermarkNoteText.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/SpinField.h"

#include <QPushButton>
#include <QRadioButton>

namespace kesta::booklet_watermark::editor {
namespace {

struct NumberField {
    Control number;
    SInt32 least, most;
    SInt32 _WatermarkData::*value;
};
constexpr NumberField kNumberFields[] = {
    {kAngleField, -kGreatestAngle, kGreatestAngle, &_WatermarkData::angle},
    {kScaleField, 1, kGreatestScale, &_WatermarkData::scale},
    {kDensityField, 0, kGreatestDensity, &_WatermarkData::density},
};

void ShowField(const _WatermarkEditorContext& editor, Control number, SInt32 least, SInt32 most, SInt32 value,
               int decimals = 0)
{
    if (auto* field = editor.control<SpinField>(number)) {
        field->setLimits(least, most, decimals);
        field->setNumber(value);
    }
}

void ShowOffset(const _WatermarkEditorContext& editor, Control field, Control range, Float32 offset, double side,
                SInt32 typedInto)
{
    const SInt32 units = editor.record.units;
    const SInt32 most = GreatestOffset(side, units);
    if (field != typedInto)
        ShowField(editor, field, -most, most, ShownOffset(offset, units), DecimalsOf(units));
    const QStringList limits{CreateLocalizedCFStringFromNumberWithDecimals(-most, DecimalsOf(units)),
                             CreateLocalizedCFStringFromNumberWithDecimals(most, DecimalsOf(units))};
    SetControlText(editor.control(range),
                   LocalizedFormat(editor.bundle, units == kInches ? "Min-Max Inches" : "Min-Max Millimeters", limits));
}

void Check(const _WatermarkEditorContext& editor, Control number)
{
    if (auto* radio = editor.control<QRadioButton>(number))
        radio->setChecked(true);
}

void ShowKind(const _WatermarkEditorContext& editor)
{
    const bool isText = editor.record.isText != 0;
    Check(editor, isText ? kTextRadio : kPictureRadio);
    for (const Control number : {kTextField, kFontButton, kSwatch, kFontHint})
        SetControlEnabled(editor.control(number), isText);
    for (const Control number : {kFileField, kChooseButton})
        SetControlEnabled(editor.control(number), !isText);
    for (const Control number : {kAngleLabel, kAngleField, kAngleUnit, kPreviewHint})
        SetControlVisible(editor.control(number), isText);
    for (const Control number : {kScaleLabel, kScaleField, kScaleUnit})
        SetControlVisible(editor.control(number), !isText);
}

void ShowTexts(const _WatermarkEditorContext& editor, SInt32 typedInto)
{
    const _WatermarkData& record = editor.record;
    if (auto* field = editor.control<QLineEdit>(kTextField); field && typedInto != kTextField)
        field->setText(editor.text);
    if (auto* field = editor.control<QLineEdit>(kFileField))
        field->setText(editor.fileName);
    if (auto* swatch = editor.control<ColorSwatch>(kSwatch)) {
        const WatermarkColor& color = record.wellColor;
        swatch->setColor(QColor::fromRgbF(color.red, color.green, color.blue));
    }
    if (record.isText == 0)
        return;
    const bool isDrawnInIt = !editor.notes.isSubstitute && !editor.notes.fontName.isEmpty();
    const QString font = isDrawnInIt ? editor.notes.fontName : record.fontName.get();
    SetControlText(editor.control(kFontHint),
                   LocalizedFormat(editor.bundle, "Font And Size", {font, QString::number(record.fontSize)}));
}

FontProblem ProblemOfFont(_WatermarkEditorContext& editor)
{
    const _WatermarkData& record = editor.record;
    auto& checked = editor.checked;
    if (checked.fontName != record.fontName.get() || checked.text != record.text.get()) {
        const bool isText = !record.text.isEmpty();
        checked = {record.fontName.get(), record.text.get(),
                   isText ? GetDrawingLibrary().CheckFont(record).problem : FontProblem::None};
    }
    return checked.problem;
}

QString NoteOf(_WatermarkEditorContext& editor)
{
    QStringList sentences;
    if (editor.record.isText == 0)
        sentences << LocalizedString(editor.bundle, "Picture Watermark Hint");
    sentences += WatermarkSentences(editor.bundle, editor.record, editor.notes, ProblemOfFont(editor));
    return sentences.join(QLatin1Char(' '));
}

void ShowNote(_WatermarkEditorContext& editor)
{
    const QString note = NoteOf(editor);
    SetControlText(editor.control(kNote), note);
    SetControlVisible(editor.control(kNoteRow), !note.isEmpty());
}

} // namespace

void ShowRecord(_WatermarkEditorContext& editor, SInt32 typedInto)
{
    const _WatermarkData& record = editor.record;
    ShowKind(editor);
    ShowTexts(editor, typedInto);
    for (const NumberField& field : kNumberFields) {
        if (field.number != typedInto)
            ShowField(editor, field.number, field.least, field.most, record.*field.value);
    }
    Check(editor, record.units == kInches ? kInchesRadio : kMillimetresRadio);
    ShowOffset(editor, kHorizontalField, kHorizontalRange, record.xOffset, record.pageWidth, typedInto);
    ShowOffset(editor, kVerticalField, kVerticalRange, record.yOffset, record.pageHeight, typedInto);
    ShowNote(editor);
    if (QPushButton* ok = GetWindowDefaultButton(editor.window))
        ok->setEnabled(!NameOf(record).isEmpty());
}

} // namespace kesta::booklet_watermark::editor
