#include "printer/DeviceProfile.h"

#include "pde/interface/PlugInBundle.h"
#include "platform/values/PropertyList.h"

#include <QFile>

namespace kesta {
namespace {

// A profile of a few hundred features; what has more is not one.
constexpr PropertyListLimits kProfileLimits{.bytes = 1024 * 1024, .values = 50'000, .depth = 12};

std::optional<Dictionary>& Profile()
{
    static std::optional<Dictionary> profile;
    return profile;
}

std::optional<Dictionary> ReadProfile(const Bundle& bundle)
{
    QFile file(bundle.resourcesPath + QStringLiteral("/Device Profile.plist"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const PropertyListResult list = ParsePropertyList(file.read(kProfileLimits.bytes + 1), kProfileLimits);
    const Dictionary* profile = list.value ? list.value->dictionary() : nullptr;
    return profile ? std::optional(*profile) : std::nullopt;
}

// Null also when there is no dictionary to look in.
const Dictionary* Inner(const Dictionary* dictionary, QAnyStringView key)
{
    return dictionary ? dictionary->dictionary(key) : nullptr;
}

const Value* PropertyOf(const Value& entry, QAnyStringView property)
{
    const Dictionary* properties = Inner(entry.dictionary(), "Properties");
    return properties ? properties->find(property) : nullptr;
}

template <class Wanted> Array EntriesWhere(const Dictionary* entries, QAnyStringView property, Wanted wanted)
{
    Array found;
    if (!entries)
        return found;
    for (const auto& [name, entry] : *entries) {
        const Value* value = PropertyOf(entry, property);
        if (value && wanted(*value))
            found.push_back(entry);
    }
    return found;
}

const Dictionary* Features()
{
    return Profile() ? Profile()->dictionary("Features") : nullptr;
}

} // namespace

void KDPInitialize()
{
    const Bundle* bundle = PlugInBundle();
    if (!Profile() && bundle)
        Profile() = ReadProfile(*bundle);
}

void KDPFinalize()
{
    Profile().reset();
}

const Dictionary* KDPGetFeature(QAnyStringView name)
{
    return Inner(Features(), name);
}

Array KDPGetFeaturesWithProperty(QAnyStringView property)
{
    return EntriesWhere(Features(), property, [](const Value&) { return true; });
}

Array KDPGetFeaturesWithPropertyAndValue(QAnyStringView property, const Value& value)
{
    return EntriesWhere(Features(), property, [&](const Value& found) { return found == value; });
}

const Value* KDPGetFeatureSyntax(const Dictionary& feature, QAnyStringView syntaxKind)
{
    const Dictionary* syntax = feature.dictionary("Syntax");
    return syntax ? syntax->find(syntaxKind) : nullptr;
}

const Value* KDPGetFeatureProperty(const Dictionary& feature, QAnyStringView property)
{
    const Dictionary* properties = feature.dictionary("Properties");
    return properties ? properties->find(property) : nullptr;
}

Array KDPGetKeywordsWithPropertyAndValue(const Dictionary& feature, QAnyStringView property, const Value& value)
{
    const Dictionary* keywords = Inner(feature.dictionary("Syntax"), "Keyword");
    return EntriesWhere(keywords, property, [&](const Value& found) { return found == value; });
}

std::optional<FeatureDefault> KDPGetFeatureDefaultValue(const Dictionary& feature)
{
    const Dictionary* syntax = feature.dictionary("Syntax");
    if (const Dictionary* keywords = Inner(syntax, "Keyword")) {
        for (const auto& [keyword, entry] : *keywords) {
            const Dictionary* fields = entry.dictionary();
            if (fields && fields->boolean("Default") == true)
                return FeatureDefault{QStringLiteral("Keyword"), keyword};
        }
    }
    for (const char* kind : {"Name", "Number"}) {
        const Dictionary* description = Inner(syntax, kind);
        if (const Value* value = description ? description->find("Default") : nullptr)
            return FeatureDefault{QString::fromLatin1(kind), *value};
    }
    return std::nullopt;
}

} // namespace kesta
