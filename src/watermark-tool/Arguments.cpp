#include "watermark-tool/Arguments.h"

#include <QColor>
#include <QFileInfo>
#include <QPageSize>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kesta::watermark_tool {
namespace {

using booklet_watermark::_WatermarkData;

struct IntegerOption {
    const char* name;
    SInt32 least;
    SInt32 most;
    SInt32 _WatermarkData::*field;
};

constexpr IntegerOption kIntegers[] = {
    {"--size", 1, 1000, &_WatermarkData::fontSize},
    {"--angle", -360, 360, &_WatermarkData::angle},
    {"--density", 0, 100, &_WatermarkData::density},
    {"--scale", 1, 1000, &_WatermarkData::scale},
};

struct OffsetOption {
    const char* name;
    Float32 _WatermarkData::*field;
};

constexpr OffsetOption kOffsets[] = {{"--x", &_WatermarkData::xOffset}, {"--y", &_WatermarkData::yOffset}};
constexpr double kLargestOffset = 100; // inches; no paper is larger

// As the editor begins.
_WatermarkData UsualWatermark()
{
    _WatermarkData record;
    record.fontName.set(u"ArialMT"_s);
    record.fontSize = 72;
    record.fontColor = record.wellColor = {0, 0, 1, 1};
    record.angle = 45;
    record.density = 25;
    record.scale = 100;
    return record;
}

QString ReadInteger(const IntegerOption& option, const Arguments& arguments, _WatermarkData& record)
{
    const QString name = QLatin1String(option.name);
    const std::optional<QString> text = arguments.value(name);
    if (!text)
        return {};
    bool isNumber = false;
    const int number = text->toInt(&isNumber);
    if (!isNumber || number < option.least || number > option.most)
        return u"%1 is a whole number from %2 to %3"_s.arg(name).arg(option.least).arg(option.most);
    record.*option.field = number;
    return {};
}

QString ReadOffset(const OffsetOption& option, const Arguments& arguments, _WatermarkData& record)
{
    const QString name = QLatin1String(option.name);
    const std::optional<QString> text = arguments.value(name);
    if (!text)
        return {};
    bool isNumber = false;
    const double number = text->toDouble(&isNumber);
    if (!isNumber || !(std::abs(number) <= kLargestOffset))
        return u"%1 is a number of inches, at most %2"_s.arg(name).arg(kLargestOffset);
    record.*option.field = static_cast<Float32>(number);
    return {};
}

QString ReadColor(const Arguments& arguments, _WatermarkData& record)
{
    const std::optional<QString> text = arguments.value(u"--color"_s);
    if (!text)
        return {};
    const QColor color(*text);
    if (text->size() != 7 || !text->startsWith(u'#') || !color.isValid())
        return u"--color is # and six hexadecimal digits, as in #ff0000"_s;
    record.wellColor = {color.redF(), color.greenF(), color.blueF(), 1};
    record.fontColor = record.wellColor;
    return {};
}

QString ReadText(const Arguments& arguments, _WatermarkData& record)
{
    if (!record.text.set(*arguments.value(u"--text"_s)))
        return u"the text is longer than 511 bytes"_s;
    if (const std::optional<QString> font = arguments.value(u"--font"_s); font && !record.fontName.set(*font))
        return u"the font's name is longer than 511 bytes"_s;
    record.isText = 1;
    return record.text.isEmpty() ? u"the text is empty"_s : QString();
}

QString ReadPicture(const Arguments& arguments, _WatermarkData& record)
{
    const QFileInfo file(*arguments.value(u"--picture"_s));
    const bool fits = record.fileName.set(file.fileName()) && record.filePath.set(file.absoluteFilePath());
    return fits ? QString() : u"the picture's name is too long"_s;
}

} // namespace

QString Arguments::read(const QStringList& arguments, const QStringList& options, const QStringList& flags)
{
    bool isOption = true;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        const bool isFlag = isOption && flags.contains(*argument);
        if (isOption && *argument == "--"_L1) {
            isOption = false;
        } else if (isFlag || (isOption && options.contains(*argument))) {
            if (names_.contains(*argument))
                return u"%1 is given twice"_s.arg(*argument);
            names_.append(*argument);
            if (!isFlag && ++argument == arguments.end())
                return u"%1 needs a value"_s.arg(names_.back());
            values_.append(isFlag ? QString() : *argument);
        } else if (isOption && argument->startsWith(u'-') && argument->size() > 1) {
            return u"there is no option %1"_s.arg(*argument);
        } else {
            rest_.append(*argument);
        }
    }
    return {};
}

bool Arguments::has(const QString& option) const
{
    return names_.contains(option);
}

std::optional<QString> Arguments::value(const QString& option) const
{
    const qsizetype at = names_.indexOf(option);
    return at < 0 ? std::nullopt : std::optional(values_[at]);
}

NewWatermark MakeWatermark(const Arguments& arguments)
{
    NewWatermark made{UsualWatermark(), {}};
    const bool isText = arguments.has(u"--text"_s);
    if (isText == arguments.has(u"--picture"_s)) {
        made.problem = u"either --text or --picture is needed"_s;
        return made;
    }
    made.problem = isText ? ReadText(arguments, made.record) : ReadPicture(arguments, made.record);
    for (const IntegerOption& option : kIntegers)
        if (made.problem.isEmpty())
            made.problem = ReadInteger(option, arguments, made.record);
    for (const OffsetOption& option : kOffsets)
        if (made.problem.isEmpty())
            made.problem = ReadOffset(option, arguments, made.record);
    if (made.problem.isEmpty())
        made.problem = ReadColor(arguments, made.record);
    return made;
}

std::optional<QSizeF> PaperSize(const QString& name)
{
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        const QPageSize paper(static_cast<QPageSize::PageSizeId>(id));
        if (paper.isValid() && paper.key().compare(name, Qt::CaseInsensitive) == 0)
            return paper.size(QPageSize::Point);
    }
    return std::nullopt;
}

} // namespace kesta::watermark_tool
