#include "panels/image_options/ImageOptions.h"

#include "pde/interface/TicketKeys.h"

using namespace Qt::StringLiterals;

namespace kesta::image_options {
namespace {

// By quality, from 1.
constexpr auto kQualityPictures = std::to_array<const char*>({
    "ImageOptions_ImgQual_TonerSaver.gif",
    "ImageOptions_ImgQual_Standard.gif",
    "ImageOptions_ImgQual_Enhanced.gif",
    "ImageOptions_ImgQual_TonerSaver.gif",
    "ImageOptions_ImgQual_Standard.gif",
    "ImageOptions_ImgQual_Enhanced.gif",
});
static_assert(kQualityPictures.size() == JCLPrintQualityMap.size());

} // namespace

void ReadQuality(ImageOptions& options, const Ticket& settings, ppd_file_t* ppd)
{
    ReadBindings(kBindings, options, settings, ppd);
}

void WriteQuality(const ImageOptions& options, Ticket& settings)
{
    if (!PPDChoiceForTicketValue("JCLPrintQuality", options.quality))
        return;
    const TicketWriter writer(settings, kPrintingManagerClient);
    writer.set(key::ImageResolution, Number::SInt32(options.quality));
    WriteBindings(kBindings, options, writer);
}

void ReadInvertImage(ImageOptions& options, const Ticket& settings)
{
    const Dictionary* dictionary = settings.values().dictionary(key::InvertImageOptions);
    InvertImageSetOptionsFromTicket(options.invert, dictionary ? *dictionary : Dictionary());
}

void WriteInvertImage(ImageOptions& options, const InvertControls& controls, Ticket& settings)
{
    options.invert.negativeImage |= controls.negative;
    options.invert.mirrorImage |= controls.mirror;
    TicketWriter(settings, kPlaceholderClient)
        .set(key::InvertImageOptions, InvertImageCreateTicketFromOptions(options.invert));
}

QString InvertIllustration(const II_Options& options)
{
    const bool mirrored = options.mirrorImage && !options.negativeImage;
    return mirrored ? u"ImageOptions_InvertImage_Mirror.gif"_s : u"ImageOptions_InvertImage_Off.gif"_s;
}

QString QualityIllustration(SInt32 quality)
{
    if (quality < 1 || quality > static_cast<SInt32>(kQualityPictures.size()))
        return {};
    return QString::fromLatin1(kQualityPictures[static_cast<std::size_t>(quality) - 1]);
}

} // namespace kesta::image_options
