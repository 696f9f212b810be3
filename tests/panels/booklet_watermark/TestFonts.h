#pragma once

#include <QByteArray>
#include <QString>

namespace kesta::test {

// The program's fonts are these and no others: DejaVu, Liberation and Droid Fallback (TrueType outlines), the URW base
// fonts (CFF), Inter (variable), and copies of Liberation Sans that a test may damage. Called before main() looks at
// any font; the copies are in a folder that goes with the program.
void UseTestFonts();

// One of the copies, under its own PostScript name: VanishingSans1, DamagedSans123, RestrictedSans, NoSubsetSans12,
// BitmapOnlySan1, ColoredSans123.
QString FontCopy(const char* postScriptName);

QByteArray FileBytes(const QString& path);
void WriteBytes(const QString& path, const QByteArray& bytes);

} // namespace kesta::test
