#include "host/QtTexts.h"

#include "platform/Bundle.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace kesta::host {
std::unique_ptr<QTranslator> InstallQtTexts(const Bundle& texts)
{
    const QString language = TextsLanguage(texts);
    auto translator = std::make_unique<QTranslator>();
    if (language == u"en" ||
        !translator->load(QLocale(language), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return nullptr;
    QCoreApplication::installTranslator(translator.get());
    return translator;
}

} // namespace kesta::host
