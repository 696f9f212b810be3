#include "host/dialog/QtTexts.h"

#include "platform/plugins/Bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// The first of the user's languages that the bundle has a catalogue of.
QString LanguageOf(const Bundle& texts)
{
    const QDir catalogues(texts.resourcesPath + u"/Translations"_s);
    const QString bundle = QFileInfo(texts.path).completeBaseName();
    for (const QString& language : PreferredLanguages()) {
        if (catalogues.exists(u"%1_%2.qm"_s.arg(bundle, language)))
            return language;
    }
    return u"en"_s;
}

} // namespace

std::unique_ptr<QTranslator> InstallQtTexts(const Bundle& texts)
{
    const QString language = LanguageOf(texts);
    auto translator = std::make_unique<QTranslator>();
    if (language == u"en" ||
        !translator->load(QLocale(language), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return nullptr;
    QCoreApplication::installTranslator(translator.get());
    return translator;
}

} // namespace kesta::host
