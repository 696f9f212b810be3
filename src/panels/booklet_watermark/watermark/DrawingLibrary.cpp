#include "panels/booklet_watermark/watermark/DrawingLibrary.h"

#include "platform/plugins/Bundle.h"

#include <QFileInfo>

#include <cstdio>
#include <dlfcn.h>

namespace kesta::booklet_watermark {
namespace {

constexpr char kLibrary[] = "/libkesta-watermark.so";

constexpr DrawingLibrary kNothing{
    .renderWatermark = [](_WatermarkData&, QSizeF, PreviewBuffer&, QAnyStringView) { return WatermarkNotes(); },
    .renderSavedWatermark = [](QAnyStringView, const QString&, QSizeF, PreviewBuffer&) { return WatermarkNotes(); },
    .convertFont =
        [](QAnyStringView, const QString&) {
            return ConvertedFont{{}, FontProblem::NoFont, {}};
        },
    .CheckFont =
        [](const _WatermarkData&) {
            return FontCheck{{}, FontProblem::NoFont};
        },
    .DropFont = [](QAnyStringView, const _WatermarkData&) {},
    .CheckWatermarkName = [](QAnyStringView, const QString&) { return NameProblem::None; },
    .InstalledFonts = [] { return std::vector<FontFile>(); },
    .TextOutline = [](const QString&, const QString&, double, Substitutes) { return QPainterPath(); },
    .PictureOfPage = [](QByteArrayView, QSize) { return QImage(); },
};

// Beside the library that all plug-ins share.
QByteArray Place()
{
    Dl_info shared{};
    if (!dladdr(reinterpret_cast<const void*>(&BundleNamed), &shared))
        return kLibrary + 1;
    return QFile::encodeName(QFileInfo(QFile::decodeName(shared.dli_fname)).absolutePath()) + kLibrary;
}

const DrawingLibrary& Load()
{
    using Exported = decltype(&KestaWatermarkDrawing);
    void* const library = dlopen(Place().constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    const auto drawing =
        library ? reinterpret_cast<Exported>(dlsym(library, "KestaWatermarkDrawing")) : static_cast<Exported>(nullptr);
    if (drawing)
        return *drawing();
    std::fprintf(stderr, "watermarks can't be drawn: %s\n", dlerror());
    return kNothing;
}

} // namespace

const DrawingLibrary& GetDrawingLibrary()
{
    static const DrawingLibrary& library = Load();
    return library;
}

} // namespace kesta::booklet_watermark
