#include "panels/booklet_watermark/TestFonts.h"

#include "panels/booklet_watermark/FontBuilder.h"
#include "panels/booklet_watermark/fonts/Sfnt.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <map>

namespace kesta::test {
namespace {

constexpr char kOriginal[] = "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf";
constexpr char kOriginalName[] = "LiberationSans";

const QTemporaryDir& Folder()
{
    static const QTemporaryDir folder;
    return folder;
}

QByteArray TwoByteCharacters(const QByteArray& text)
{
    QByteArray wide;
    for (const char character : text)
        wide += QByteArray(1, '\0') + character;
    return wide;
}

// A copy under another name of as many letters.
QByteArray Renamed(const QByteArray& name)
{
    EXPECT_EQ(name.size(), qsizetype{sizeof kOriginalName - 1});
    QByteArray font = FileBytes(QLatin1String(kOriginal));
    font.replace(TwoByteCharacters(kOriginalName), TwoByteCharacters(name));
    return font.replace(kOriginalName, name);
}

void SetLicence(QByteArray& font, unsigned type)
{
    const auto os2 = booklet_watermark::find_table("OS/2"_code, font);
    ASSERT_TRUE(os2);
    font.replace(os2->offset + 8, 2, BigEndian16(type));
}

// Turns the first table, which is not needed, into one that colours a glyph; the tables stay in order.
void AddColors(QByteArray& font)
{
    const auto table = booklet_watermark::find_table("FFTM"_code, font);
    ASSERT_TRUE(table && table->length >= 24);
    const QByteArray colors = BigEndian16(0) + BigEndian16(1) + BigEndian32(14) + BigEndian32(20) + BigEndian16(1) +
                              BigEndian16(36) + BigEndian16(0) + BigEndian16(1) + BigEndian16(36) + BigEndian16(0);
    font.replace(table->offset, colors.size(), colors);
    font.replace(font.indexOf("FFTM"), 4, "COLR");
}

QByteArray Copy(const QByteArray& name)
{
    QByteArray font = Renamed(name);
    if (name == "RestrictedSans")
        SetLicence(font, 0x0002);
    if (name == "NoSubsetSans12")
        SetLicence(font, 0x0108);
    if (name == "BitmapOnlySan1")
        font.replace(font.indexOf("glyf"), 4, "glyX");
    if (name == "ColoredSans123")
        AddColors(font);
    return font;
}

} // namespace

void UseTestFonts()
{
    for (const char* name :
         {"VanishingSans1", "DamagedSans123", "RestrictedSans", "NoSubsetSans12", "BitmapOnlySan1", "ColoredSans123"})
        WriteBytes(FontCopy(name), Copy(name));
    QByteArray configuration = "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>";
    for (const QByteArray& folder :
         {QByteArray("/usr/share/fonts/truetype/dejavu"), QByteArray("/usr/share/fonts/truetype/liberation"),
          QByteArray("/usr/share/fonts/truetype/droid"), QByteArray("/usr/share/fonts/opentype/urw-base35"),
          QByteArray("/usr/share/fonts/truetype/inter-vf"), QFile::encodeName(Folder().path())})
        configuration += "<dir>" + folder + "</dir>";
    configuration += "<cachedir>" + QFile::encodeName(Folder().filePath(QStringLiteral("cache"))) +
                     "</cachedir><alias binding=\"same\"><family>Arial</family><accept><family>Liberation Sans</family>"
                     "</accept></alias><alias><family>sans-serif</family><prefer><family>DejaVu Sans</family></prefer>"
                     "</alias></fontconfig>";
    const QString file = Folder().filePath(QStringLiteral("fonts.conf"));
    WriteBytes(file, configuration);
    qputenv("FONTCONFIG_FILE", QFile::encodeName(file));
}

QString FontCopy(const char* postScriptName)
{
    return Folder().filePath(QLatin1String(postScriptName) + QStringLiteral(".ttf"));
}

QByteArray FileBytes(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

void WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << qPrintable(path);
}

} // namespace kesta::test
