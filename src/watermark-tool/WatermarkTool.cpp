#include "watermark-tool/WatermarkTool.h"

#include "panels/booklet_watermark/watermark/WatermarkFont.h"
#include "panels/booklet_watermark/watermark/WatermarkNames.h"
#include "panels/booklet_watermark/watermark/WatermarkPicture.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "platform/system/SafeFile.h"
#include "platform/system/SharedStoreFile.h"
#include "watermark-tool/Arguments.h"

#include <QColor>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::watermark_tool {
namespace {

using namespace booklet_watermark;

constexpr char kUsage[] = R"(Usage: kesta-watermark list
       kesta-watermark show NAME
       kesta-watermark add --text TEXT [--font FONT] [--size N] [--angle A] [--density D] [--color #rrggbb]
                           [--x INCHES] [--y INCHES] [--replace]
       kesta-watermark add --picture FILE [--scale N] [--replace]
       kesta-watermark remove NAME
       kesta-watermark preview NAME -o FILE.pdf|FILE.png [--paper A4]
Looks after the watermarks that the print dialog offers, all users' when the machine shares them.

  list       write the names, one a line, in the order of the menu
  show       write what is stored of a watermark
  add        store a new one; its name is its text, or the picture's file name without the folders
               FONT is a PostScript name, as LiberationSans-Bold; the size is in points, the angle in degrees
               counter-clockwise, density and scale in percent; x and y move a text from the page's centre, to the
               right and upwards
               --replace changes a watermark of that name that is there already
  remove     forget a watermark, and its font when no other one uses it
  preview    draw a page with it; the store is not changed

Options may stand before and behind a name; "--" ends them, for a name that begins with "-".
The exit status is 0, or 1 after an error.
)";

constexpr double kPreviewResolution = 150; // pixels in an inch, of a PNG

// A shared file may hold anything, but a terminal is not to be told by it what to do.
QString Plain(QString text)
{
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control)
            character = u' ';
    return text;
}

QByteArray Line(const QString& text)
{
    return Plain(text).toUtf8() + '\n';
}

QString Said(const QString& text)
{
    return Plain(u"kesta-watermark: "_s + text);
}

Outcome Fail(const QString& reason)
{
    return {1, {}, {Said(reason)}};
}

Outcome Misused()
{
    return Fail(u"this is no command of it; see kesta-watermark --help"_s);
}

QString Where()
{
    return CopyPreferenceFileURL(kWatermarkFile).value_or(QString());
}

QString Unknown(const QString& name)
{
    return u"there is no watermark \"%1\" in %2"_s.arg(name, Where());
}

Outcome NotWritten()
{
    return Fail(u"%1 could not be written"_s.arg(Where()));
}

Outcome List()
{
    Outcome outcome;
    for (const QString& name : loadWatermarkList(kWatermarkFile).value_or(QStringList()))
        outcome.output += Line(name);
    return outcome;
}

QString Hex(const WatermarkColor& color)
{
    const auto channel = [](Float32 value) { return std::clamp(value, 0.0F, 1.0F); };
    return QColor::fromRgbF(channel(color.red), channel(color.green), channel(color.blue)).name();
}

Outcome Show(const QString& name)
{
    _WatermarkData record;
    if (!loadWatermarkData(kWatermarkFile, name, record))
        return Fail(Unknown(name));
    Outcome outcome;
    const auto add = [&outcome](const char* label, const QString& text) {
        outcome.output += Line(QLatin1String(label) + text);
    };
    if (record.isText == 0) {
        add("picture: ", record.filePath.get());
        add("scale: ", QString::number(record.scale));
        return outcome;
    }
    add("text: ", record.text.get());
    add("font: ", record.fontName.get());
    add("size: ", QString::number(record.fontSize));
    add("angle: ", QString::number(record.angle));
    add("density: ", QString::number(record.density));
    add("color: ", Hex(record.wellColor));
    add("x: ", QString::number(record.xOffset));
    add("y: ", QString::number(record.yOffset));
    return outcome;
}

QString Problem(NameProblem problem, const QString& name)
{
    switch (problem) {
    case NameProblem::Empty:
        return u"the name is empty"_s;
    case NameProblem::TooLong:
        return u"the name is longer than 511 bytes"_s;
    case NameProblem::Reserved:
        return u"the name \"%1\" is the store's own"_s.arg(name);
    case NameProblem::FontsName:
        return u"the name \"%1\" is that of a font in the store"_s.arg(name);
    case NameProblem::None:
        break;
    }
    return {};
}

QString Problem(PictureProblem problem, const QString& path)
{
    switch (problem) {
    case PictureProblem::CantOpen:
        return path + u" can't be opened"_s;
    case PictureProblem::NotPicture:
        return path + u" is no picture of a known type, or it is damaged"_s;
    case PictureProblem::TooLarge:
        return path + u" is too large a picture"_s;
    case PictureProblem::None:
        break;
    }
    return {};
}

// How the text will look and whether it can be printed.
QStringList TextNotes(const _WatermarkData& record)
{
    const FontCheck check = CheckFont(record);
    QStringList said;
    if (check.problem == FontProblem::NoFont)
        said << u"note: this computer has no font to draw it with"_s;
    else if (check.problem != FontProblem::None)
        said << u"note: the font %1 can't be sent to the printer"_s.arg(check.notes.fontName);
    if (check.notes.isSubstitute)
        said << u"note: drawn in %1, which stands in for %2"_s.arg(check.notes.fontName, record.fontName.get());
    if (!check.notes.missingCharacters.isEmpty())
        said << u"note: no font on this computer has the characters %1"_s.arg(check.notes.missingCharacters);
    return said;
}

QString CheckNew(const _WatermarkData& record, bool mayReplace)
{
    const QString& name = NameOf(record);
    if (const QString problem = Problem(CheckWatermarkName(kWatermarkFile, name), name); !problem.isEmpty())
        return problem;
    if (!mayReplace && HasWatermark(kWatermarkFile, name))
        return u"there is a watermark \"%1\" already; --replace changes it"_s.arg(name);
    return record.isText != 0
               ? QString()
               : Problem(LoadPicture(record.filePath.get(), record.scale).problem, record.filePath.get());
}

// The record first, the list second.
Outcome Save(const _WatermarkData& record)
{
    _WatermarkData before, after;
    const QString& name = NameOf(record);
    const bool isChange = loadWatermarkData(kWatermarkFile, name, before);
    saveWatermarkData(kWatermarkFile, record);
    QStringList names = loadWatermarkList(kWatermarkFile).value_or(QStringList());
    if (!names.contains(name))
        saveWatermarkList(kWatermarkFile, names << name);
    const bool isStored = loadWatermarkData(kWatermarkFile, name, after) &&
                          DictionaryFromWatermark(after) == DictionaryFromWatermark(record);
    if (!isStored || !loadWatermarkList(kWatermarkFile).value_or(QStringList()).contains(name))
        return NotWritten();
    if (isChange)
        DropFont(kWatermarkFile, before);
    return {};
}

Outcome Add(const Arguments& arguments)
{
    const NewWatermark made = MakeWatermark(arguments);
    const QString problem =
        made.problem.isEmpty() ? CheckNew(made.record, arguments.has(u"--replace"_s)) : made.problem;
    if (!problem.isEmpty())
        return Fail(problem);
    Outcome outcome = Save(made.record);
    if (outcome.status == 0 && made.record.isText != 0)
        for (const QString& note : TextNotes(made.record))
            outcome.said << Said(note);
    return outcome;
}

Outcome Remove(const QString& name)
{
    _WatermarkData record;
    const bool isListed = loadWatermarkList(kWatermarkFile).value_or(QStringList()).contains(name);
    if (!loadWatermarkData(kWatermarkFile, name, record) && !isListed)
        return Fail(Unknown(name));
    removeWatermarkData(kWatermarkFile, name);
    if (HasWatermark(kWatermarkFile, name))
        return NotWritten();
    DropFont(kWatermarkFile, record);
    return {};
}

Outcome Preview(const QString& name, const Arguments& arguments)
{
    _WatermarkData record;
    const QString path = arguments.value(u"-o"_s).value_or(QString()),
                  paper = arguments.value(u"--paper"_s).value_or(u"A4"_s);
    const std::optional<QSizeF> page = PaperSize(paper);
    const bool isPNG = path.endsWith(".png"_L1, Qt::CaseInsensitive);
    if (!isPNG && !path.endsWith(".pdf"_L1, Qt::CaseInsensitive))
        return Fail(u"-o is needed with the name of a .pdf or .png file"_s);
    if (!page)
        return Fail(u"there is no paper named \"%1\""_s.arg(paper));
    if (!loadWatermarkData(kWatermarkFile, name, record))
        return Fail(Unknown(name));
    QByteArray bytes;
    WatermarkNotes notes;
    const auto write = [&bytes](const char* part, std::size_t count) {
        bytes.append(part, static_cast<qsizetype>(count));
        return true;
    };
    const auto draw = [&](cairo_t* context) { notes = DrawDenseWatermark(context, *page, record); };
    const bool isDrawn =
        isPNG ? WritePNGPage(*page, kPreviewResolution, write, draw) : WritePDFPage(*page, write, draw);
    if (!isDrawn)
        return Fail(u"the page can't be drawn"_s);
    if (notes.picture != PictureProblem::None)
        return Fail(Problem(notes.picture, record.filePath.get()));
    const std::optional<FileError> error = WriteFile(path, bytes);
    return error ? Fail(error->text) : Outcome();
}

} // namespace

Outcome RunWatermarkTool(const QStringList& arguments)
{
    if (arguments.value(0) == "--help"_L1)
        return {0, kUsage, {}};
    if (arguments.value(0) == "--version"_L1)
        return {0, "kesta-watermark " KESTA_VERSION "\n", {}};
    const QString command = arguments.value(0);
    const bool adds = command == "add"_L1, previews = command == "preview"_L1;
    Arguments parsed;
    const QStringList options =
        adds       ? QStringList{u"--text"_s,    u"--picture"_s, u"--font"_s, u"--size"_s, u"--angle"_s,
                           u"--density"_s, u"--color"_s,   u"--x"_s,    u"--y"_s,    u"--scale"_s}
        : previews ? QStringList{u"-o"_s, u"--paper"_s}
                   : QStringList();
    if (const QString problem =
            parsed.read(arguments.mid(1), options, adds ? QStringList{u"--replace"_s} : QStringList());
        !problem.isEmpty())
        return Fail(problem);
    const bool needsName = command == "show"_L1 || command == "remove"_L1 || previews;
    if (parsed.rest().size() != (needsName ? 1 : 0))
        return Misused();
    const QString name = parsed.rest().value(0);
    return command == "list"_L1     ? List()
           : command == "show"_L1   ? Show(name)
           : command == "remove"_L1 ? Remove(name)
           : adds                   ? Add(parsed)
           : previews               ? Preview(name, parsed)
                                    : Misused();
}

} // namespace kesta::watermark_tool
