#pragma once

#include "panels/booklet_watermark/watermark/WatermarkDrawing.h"

namespace kesta::booklet_watermark {

enum class FontProblem {
    None,
    NoText,      // no such watermark, or it is a picture: there is nothing to send
    NoFont,      // this computer has no font at all to draw it with
    NotOutlines, // "this font can't be sent to the printer", as is each that follows
    Forbidden,   // by the font's licence
    Damaged,     // no font program could be made of it
    NotStored,   // the store could not be written, or has a watermark under that name
};

struct ConvertedFont {
    QString subsetName; // for the ticket; empty unless the store holds the font now
    FontProblem problem = FontProblem::None;
    QString fontName; // the font that travels, or can't, for people
};

// Makes the font program for a text watermark of the store, in the font that its drawing uses, and keeps it in the
// store. A record whose glyphs or font have changed since it was drawn last gets the new glyphs.
ConvertedFont convertFont(QAnyStringView storeFile, const QString& name);

// How a text will be drawn and whether its font can travel, for what is not stored yet; NotStored does not occur.
struct FontCheck {
    WatermarkNotes notes;
    FontProblem problem = FontProblem::None;
};
FontCheck CheckFont(const _WatermarkData& record);

// Removes the font of a watermark that was just removed or changed from the store, unless another one there uses it.
void DropFont(QAnyStringView storeFile, const _WatermarkData& removed);

} // namespace kesta::booklet_watermark
