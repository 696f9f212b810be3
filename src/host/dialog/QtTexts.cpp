#include "host/dialog/QtTexts.h"

#include "platform/plugins/Bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstring>

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

// Qt's catalogue of a language and, where Qt has none, what the dialog calls the usual buttons.
class QtTexts : public QTranslator {
public:
    explicit QtTexts(const Bundle& texts) : texts_(texts) {}

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* comment, int count) const override
    {
        const QString text = QTranslator::translate(context, source, comment, count);
        if (!text.isEmpty() || std::strcmp(context, "QPlatformTheme") != 0)
            return text;
        const auto is = [source](const char* word) { return std::strcmp(source, word) == 0; };
        const QString own = is("OK")       ? LocalizedString(texts_, "OK")
                            : is("Cancel") ? LocalizedString(texts_, "Cancel")
                            : is("Help")   ? LocalizedString(texts_, "Help")
                                           : QString();
        return own == QLatin1StringView(kStringNotFound) ? QString() : own;
    }

private:
    const Bundle& texts_;
};

} // namespace

std::unique_ptr<QTranslator> InstallQtTexts(const Bundle& texts)
{
    const QString language = LanguageOf(texts);
    if (language == u"en")
        return nullptr;
    auto translator = std::make_unique<QtTexts>(texts);
    static_cast<void>(translator->load(QLocale(language), u"qtbase"_s, u"_"_s,
                                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))); // or our words alone
    QCoreApplication::installTranslator(translator.get());
    return translator;
}

} // namespace kesta::host
