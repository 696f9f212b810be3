#pragma once

#include "panels/booklet_watermark/fonts/FontLookup.h"
#include "panels/booklet_watermark/watermark/PreviewBuffer.h"
#include "panels/booklet_watermark/watermark/WatermarkFont.h"
#include "panels/booklet_watermark/watermark/WatermarkNames.h"

#include <QImage>
#include <QPainterPath>
#include <QSizeF>

namespace kesta::booklet_watermark {

enum class Substitutes { None, Allowed };

// What draws watermarks and shows pages is in a shared object of its own, with all the libraries that it needs: a
// dialog in which nobody looks at a watermark never loads them. The members are the functions of the same names.
struct DrawingLibrary {
    WatermarkNotes (*renderWatermark)(_WatermarkData& record, QSizeF page, PreviewBuffer& buffer,
                                      QAnyStringView storeFile);
    WatermarkNotes (*renderSavedWatermark)(QAnyStringView storeFile, const QString& name, QSizeF page,
                                           PreviewBuffer& buffer);
    ConvertedFont (*convertFont)(QAnyStringView storeFile, const QString& name);
    FontCheck (*CheckFont)(const _WatermarkData& record);
    void (*DropFont)(QAnyStringView storeFile, const _WatermarkData& removed);
    NameProblem (*CheckWatermarkName)(QAnyStringView storeFile, const QString& name);
    std::vector<FontFile> (*InstalledFonts)();

    // A text in the font of that PostScript name from its origin on, y downwards, so many points large. Without the
    // font or one of the characters it is empty, or drawn as a watermark would be.
    QPainterPath (*TextOutline)(const QString& fontName, const QString& text, double size, Substitutes substitutes);
    // The first page of a PDF on white, stretched to so many pixels; null for what is no PDF. The last few are kept.
    QImage (*PictureOfPage)(QByteArrayView pdf, QSize pixels);
};

// Loaded at the first call. Where it can't be, its functions draw nothing and find nothing, and standard error has the
// reason.
const DrawingLibrary& GetDrawingLibrary();

} // namespace kesta::booklet_watermark

// What the shared object exports.
extern "C" const kesta::booklet_watermark::DrawingLibrary* KestaWatermarkDrawing();
