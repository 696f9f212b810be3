// A picture file: a picture within the bounds, or none and a reason.

#include "Input.h"
#include "panels/booklet_watermark/watermark/WatermarkPicture.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace kesta::booklet_watermark;
using kesta::fuzz::Require;

namespace {

void StartOnce()
{
    static int count = 1;
    static char name[] = "fuzz_pictures";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StartOnce();
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("picture"));
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly) &&
            file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) == static_cast<qint64>(size));
    file.close();
    static kesta::SInt32 scale = 0;
    scale = scale % 1000 + 1; // the last picture is remembered with its scale
    const WatermarkPicture picture = LoadPicture(path, scale);
    Require(picture.image.isNull() == (picture.problem != PictureProblem::None));
    Require(picture.image.isNull() || (!picture.size.isEmpty() && picture.image.width() <= 32767 &&
                                       qint64{picture.image.width()} * picture.image.height() <= 32'000'000));
    return 0;
}
