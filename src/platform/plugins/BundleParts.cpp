#include "platform/plugins/BundleParts.h"

#include "platform/plugins/SharedObjectFile.h"
#include "platform/system/SafeFile.h"
#include "platform/values/PropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <dlfcn.h>
#include <iterator>

namespace kesta {
namespace {

constexpr PropertyListLimits kInfoLimits{.bytes = 1024 * 1024, .values = 10'000, .depth = 20};

struct InfoOrError {
    Dictionary info;
    Message error = {};
};

InfoOrError ReadInfo(const QString& file)
{
    const FileContent content = ReadFile(file, kInfoLimits.bytes);
    if (!content.bytes)
        return {{}, Say("Bundle Damaged", content.error.text)};
    PropertyListResult list = ParsePropertyList(*content.bytes, kInfoLimits);
    if (!list.value)
        return {{}, Say("Bundle Damaged", file + QStringLiteral(": ") + list.error)};
    if (!list.value->dictionary())
        return {{}, Say("Bundle List Not A Dictionary", file)};
    return {std::move(*list.value->dictionary())};
}

QStringList VariantsOf(const QString& language, const QStringList& names)
{
    QStringList variants;
    std::ranges::copy_if(names, std::back_inserter(variants),
                         [&language](const QString& name) { return name.section(u'_', 0, 0) == language; });
    return variants;
}

// Of "zh_Hant_TW": "zh_Hant", "zh".
QStringList WiderThan(QString name)
{
    QStringList wider;
    for (qsizetype end = 0; (end = name.lastIndexOf(u'_')) > 0;) {
        name.truncate(end);
        wider.append(name);
    }
    return wider;
}

} // namespace

QStringList PreferredLanguages()
{
    QStringList wanted = QLocale().uiLanguages();
    wanted.append(QStringLiteral("en"));
    wanted.replaceInStrings(QStringLiteral("-"), QStringLiteral("_"));
    QStringList languages;
    for (const QString& first : wanted) {
        const QString language = first.section(u'_', 0, 0);
        const QStringList variants = VariantsOf(language, wanted);
        languages.append(variants);
        for (const QString& variant : variants)
            languages.append(WiderThan(variant));
    }
    languages.removeDuplicates();
    return languages;
}

Catalogues::Catalogues(const QString& folder, const QString& name)
{
    for (const QString& language : PreferredLanguages()) {
        auto translator = std::make_unique<QTranslator>();
        const QString file = folder + u'/' + name + u'_' + language + QStringLiteral(".qm");
        if (QFileInfo(file).isFile() && translator->load(file))
            translators_.push_back(std::move(translator));
    }
}

std::optional<QString> Catalogues::text(QAnyStringView key, QAnyStringView table, int count) const
{
    const QByteArray source = key.toString().toUtf8();
    const QByteArray context = table.toString().toUtf8();
    for (const auto& translator : translators_) {
        const QString text = translator->translate(context.constData(), source.constData(), nullptr, count);
        if (!text.isNull())
            return text;
    }
    return std::nullopt;
}

QString Catalogues::language() const
{
    return translators_.empty() ? QString() : translators_.front()->language();
}

std::optional<Message> BundleCode::load()
{
    if (handle_ || error_)
        return error_;
    error_ = SharedObjectProblem(path_);
    if (error_)
        return error_;
    handle_ = dlopen(QFile::encodeName(path_).constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!handle_)
        error_ = Say("Bundle Code Unusable", QString::fromLocal8Bit(dlerror()).simplified());
    return error_;
}

BundleFunction BundleCode::function(const QString& name) const
{
    return handle_ ? reinterpret_cast<BundleFunction>(dlsym(handle_, name.toUtf8().constData())) : nullptr;
}

OpenedBundle OpenBundle(const QString& path)
{
    const QString folder = QFileInfo(path).canonicalFilePath();
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return {std::nullopt, Say("Bundle Missing", path)};
    const QString contents = folder + QStringLiteral("/Contents/");
    auto [info, error] = ReadInfo(contents + QStringLiteral("Info.plist"));
    if (!error.isEmpty())
        return {std::nullopt, error};
    const QString* identifier = info.string("CFBundleIdentifier");
    if (!identifier || identifier->isEmpty())
        return {std::nullopt, Say("Bundle Without Identifier", contents + QStringLiteral("Info.plist"))};
    const QString name = QFileInfo(folder).completeBaseName();
    const QString* executable = info.string("CFBundleExecutable");
    if (executable && !IsPlainFileName(*executable))
        return {std::nullopt, Say("Bundle Executable Not Plain", contents + QStringLiteral("Info.plist"))};

    Bundle bundle{.resourcesPath = contents + QStringLiteral("Resources"), .path = folder, .identifier = *identifier};
    const QString code =
        contents + QStringLiteral("Linux/") + (executable ? *executable : name) + QStringLiteral(".so");
    bundle.parts = std::make_shared<BundleParts>(
        BundleParts{Catalogues(bundle.resourcesPath + QStringLiteral("/Translations"), name), BundleCode(code)});
    bundle.info = std::move(info);
    return {std::move(bundle), QString()};
}

} // namespace kesta
