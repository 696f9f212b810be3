// pictures FOLDER                        writes the whole family into the folder
// pictures --sheet FILE.png [options]    writes one picture of all of them, to look at
//   --scale N    pixels a unit (1)       --gif     what the GIF files show
//   --only TEXT  names that hold TEXT

#include "ContactSheet.h"
#include "Families.h"
#include "Output.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace kesta::pictures {
namespace {

int WriteSheet(const QCommandLineParser& options)
{
    Pictures pictures = AllPictures();
    const std::string only = options.value(u"only"_s).toStdString();
    std::erase_if(pictures, [&only](const Picture& picture) { return picture.file.find(only) == std::string::npos; });
    const QImage sheet = ContactSheet(pictures, options.value(u"scale"_s).toDouble(), options.isSet(u"gif"_s));
    if (!sheet.save(options.value(u"sheet"_s))) {
        std::fprintf(stderr, "%s can't be written\n", qPrintable(options.value(u"sheet"_s)));
        return 1;
    }
    return 0;
}

int WriteAll(const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "%s can't be made\n", qPrintable(folder));
        return 1;
    }
    for (const Picture& picture : AllPictures()) {
        if (const auto problem = WritePicture(picture, folder)) {
            std::fprintf(stderr, "%s\n", qPrintable(*problem));
            return 1;
        }
    }
    return 0;
}

int Run(const QCoreApplication& application)
{
    QCommandLineParser options;
    options.addOption({u"sheet"_s, u"Write one picture of all."_s, u"file"_s});
    options.addOption({u"scale"_s, u"Pixels a unit."_s, u"number"_s, u"1"_s});
    options.addOption({u"gif"_s, u"Show what the GIF files show."_s});
    options.addOption({u"only"_s, u"Names that hold this text."_s, u"text"_s});
    options.addPositionalArgument(u"folder"_s, u"Where to write the family."_s);
    options.addHelpOption();
    options.process(application);
    if (options.isSet(u"sheet"_s))
        return WriteSheet(options);
    if (options.positionalArguments().size() != 1)
        options.showHelp(2);
    return WriteAll(options.positionalArguments().constFirst());
}

} // namespace
} // namespace kesta::pictures

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return kesta::pictures::Run(application);
}
