#include "platform/plugins/Bundle.h"

#include "platform/plugins/BundleParts.h"

#include <utility>

namespace kesta {
namespace {

std::map<QString, Bundle>& Bundles()
{
    static std::map<QString, Bundle> bundles;
    return bundles;
}

std::optional<QString> TextOf(const Bundle& bundle, QAnyStringView key, QAnyStringView table, int count)
{
    const Dictionary* texts = bundle.strings.dictionary(table);
    if (const QString* text = texts ? texts->string(key) : nullptr)
        return *text;
    return bundle.parts ? bundle.parts->catalogues.text(key, table, count) : std::nullopt;
}

} // namespace

const Bundle* FindBundle(QAnyStringView identifier)
{
    const auto found = Bundles().find(identifier.toString());
    return found == Bundles().end() ? nullptr : &found->second;
}

const Bundle& BundleNamed(QAnyStringView identifier)
{
    static const Bundle nothing;
    const Bundle* found = FindBundle(identifier);
    return found ? *found : nothing;
}

std::vector<const Bundle*> LoadedBundles()
{
    std::vector<const Bundle*> loaded;
    for (const auto& [identifier, bundle] : Bundles())
        loaded.push_back(&bundle);
    return loaded;
}

const Bundle& LoadBundle(QAnyStringView identifier, Bundle bundle)
{
    bundle.identifier = identifier.toString();
    return Bundles().insert_or_assign(bundle.identifier, std::move(bundle)).first->second;
}

BundleOrError LoadBundleAt(const QString& path)
{
    OpenedBundle opened = OpenBundle(path);
    if (!opened.bundle)
        return {nullptr, opened.error};
    const Bundle* before = FindBundle(opened.bundle->identifier);
    if (before && before->path == opened.bundle->path)
        return {before};
    if (before && !before->path.isEmpty())
        return {nullptr, Say("Bundle Loaded Twice", opened.bundle->path, before->identifier, before->path)};
    const QString identifier = opened.bundle->identifier;
    return {&LoadBundle(identifier, *std::move(opened.bundle))};
}

QString LocalizedString(const Bundle& bundle, QAnyStringView key, QAnyStringView table, int count)
{
    return TextOf(bundle, key, table, count).value_or(QString::fromLatin1(kStringNotFound));
}

QString TextsLanguage(const Bundle& bundle)
{
    return bundle.parts ? bundle.parts->catalogues.language() : QString();
}

std::optional<Message> LoadCode(const Bundle& bundle)
{
    if (!bundle.parts)
        return Say("Bundle Without Code", bundle.identifier);
    return bundle.parts->code.load();
}

BundleFunction FunctionNamed(const Bundle& bundle, QAnyStringView name)
{
    const QString wanted = name.toString();
    if (const auto given = bundle.functions.find(wanted); given != bundle.functions.end())
        return given->second;
    if (!bundle.parts || LoadCode(bundle))
        return nullptr;
    return bundle.parts->code.function(wanted);
}

} // namespace kesta
