#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace kesta::booklet_watermark {

// One face that this computer has, with outlines in one of the two forms that can be drawn and sent.
struct FontFile {
    QByteArray path;    // in the file system's own encoding
    unsigned index = 0; // of the face in its file; a named instance of a variable font is in the upper 16 bits, from 1
    QString postScriptName; // what records and tickets call it
    QString displayName;    // family and style, for people; in the user's language where the font has it
    QString family;

    bool operator==(const FontFile&) const = default;
};

// The faces of exactly that PostScript name, TrueType outlines first. Usually one or none.
std::vector<FontFile> FontsNamed(const QString& postScriptName);

// What stands in for a font of that name, the best first and at most a handful: for a well-known name the fonts that
// match its family, then the default sans serif, in the weight and slant that the name tells. With characters given,
// only fonts that have every one of them.
std::vector<FontFile> SubstitutesFor(const QString& postScriptName, const QString& characters);

// All of them, for a list to choose from, each PostScript name once, in the order of these names.
std::vector<FontFile> InstalledFonts();

} // namespace kesta::booklet_watermark
