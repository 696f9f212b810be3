#include "panels/booklet_watermark/WatermarkList.h"

#include "panels/booklet_watermark/watermark/WatermarkDefaults.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "pde/ticket/CFAdditions.h"
#include "platform/system/SharedStoreFile.h"
#include "platform/system/UserPreferences.h"

namespace kesta::booklet_watermark {
namespace {

constexpr char kPreferences[] = "com.kesta.print.watermarks.plist";
constexpr char kOffered[] = "OwnWatermarksOffered";
constexpr char kUnits[] = "Units";

void DropEmptyFirstName(QStringList& names)
{
    _WatermarkData first;
    if (names.isEmpty())
        return;
    loadWatermarkData(kWatermarkFile, names.first(), first);
    if (first.text.isEmpty() && first.fileName.isEmpty())
        names.removeFirst();
}

QStringList StoredNames()
{
    return loadWatermarkList(kWatermarkFile).value_or(QStringList());
}

// In the place of the old name, else at the end; once.
QStringList WithName(QStringList names, const QString& oldName, const QString& name)
{
    const qsizetype place = oldName.isEmpty() ? -1 : names.indexOf(oldName);
    if (place < 0)
        return names.contains(name) ? names : names << name;
    names[place] = name;
    for (qsizetype other = names.size() - 1; other >= 0; --other) {
        if (other != place && names[other] == name)
            names.removeAt(other);
    }
    return names;
}

bool HoldsRecord(const _WatermarkData& record)
{
    _WatermarkData stored;
    loadWatermarkData(kWatermarkFile, NameOf(record), stored);
    return DictionaryFromWatermark(stored) == DictionaryFromWatermark(record);
}

void SetPreference(const char* key, Value value)
{
    std::optional<Dictionary> preferences = CopyUserPreferences(kPreferences);
    if (!preferences)
        return;
    preferences->set(key, std::move(value));
    WriteUserPreferences(kPreferences, *preferences);
}

} // namespace

QStringList& listOfWatermarks()
{
    static QStringList names;
    return names;
}

bool ReloadWatermarks()
{
    std::optional<QStringList> names = loadWatermarkList(kWatermarkFile);
    if (!names)
        return false;
    DropEmptyFirstName(*names);
    listOfWatermarks() = std::move(*names);
    return true;
}

void LoadWatermarks(const Bundle& bundle)
{
    if (ReloadWatermarks())
        return;
    CreateDefaultWatermarks(bundle);
    if (!ReloadWatermarks())
        listOfWatermarks().clear();
}

bool SaveWatermark(const _WatermarkData& record, const QString& oldName, const DropUnusedFont& dropFont)
{
    const QString name = NameOf(record);
    _WatermarkData old, replaced;
    loadWatermarkData(kWatermarkFile, oldName, old);
    loadWatermarkData(kWatermarkFile, name, replaced);
    const QStringList names = WithName(StoredNames(), oldName, name);
    saveWatermarkData(kWatermarkFile, record); // first, so that a full disk loses nothing
    if (!HoldsRecord(record))
        return false;
    if (!oldName.isEmpty() && oldName != name)
        removeWatermarkData(kWatermarkFile, oldName);
    saveWatermarkList(kWatermarkFile, names);
    ReloadWatermarks();
    dropFont(old);
    dropFont(replaced);
    return true;
}

bool DeleteWatermark(const QString& name, const DropUnusedFont& dropFont)
{
    _WatermarkData record;
    loadWatermarkData(kWatermarkFile, name, record);
    removeWatermarkData(kWatermarkFile, name);
    QStringList names = StoredNames();
    names.removeOne(name);
    saveWatermarkList(kWatermarkFile, names);
    ReloadWatermarks();
    const std::optional<Dictionary> root = CopyXMLData(kWatermarkFile);
    if (root && root->dictionary(name))
        return false;
    dropFont(record);
    return true;
}

QStringList OwnWatermarks()
{
    const std::optional<Dictionary> own = CopyOwnXMLData(kWatermarkFile);
    const std::optional<Dictionary> shared = own ? CopyXMLData(kWatermarkFile) : std::nullopt;
    const Array* listed = own ? own->array(kWatermarkListKey) : nullptr;
    QStringList names;
    for (const Value& entry : listed ? *listed : Array()) {
        const QString* name = entry.string();
        const bool isOwn = name && own->dictionary(*name) && !(shared && shared->find(*name));
        if (isOwn && !names.contains(*name))
            names << *name;
    }
    return names;
}

void CopyOwnWatermarks(const QStringList& names)
{
    const std::optional<Dictionary> own = CopyOwnXMLData(kWatermarkFile);
    if (!own)
        return;
    QStringList list = StoredNames();
    ChangeXMLData(kWatermarkFile, WhenUnreadable::StartNew, [&](Dictionary& root) {
        for (const QString& name : names) {
            const Dictionary* record = own->dictionary(name);
            if (!record || root.find(name))
                continue;
            root.set(name, *record);
            list << name;
        }
    });
    list.removeDuplicates();
    saveWatermarkList(kWatermarkFile, list);
    ReloadWatermarks();
}

bool AreOwnWatermarksOffered()
{
    const std::optional<Dictionary> preferences = CopyUserPreferences(kPreferences);
    return !preferences || preferences->boolean(kOffered).value_or(false);
}

void RememberOwnWatermarksOffered()
{
    SetPreference(kOffered, true);
}

SInt32 UsualUnits(SInt32 otherwise)
{
    const std::optional<Dictionary> preferences = CopyUserPreferences(kPreferences);
    return preferences ? CFDictionaryGetNumber<SInt32>(*preferences, kUnits).value_or(otherwise) : otherwise;
}

void RememberUnits(SInt32 units)
{
    SetPreference(kUnits, Number::SInt32(units));
}

} // namespace kesta::booklet_watermark
