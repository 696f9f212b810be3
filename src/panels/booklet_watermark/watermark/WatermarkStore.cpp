#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include "platform/system/SharedStoreFile.h"

#include <algorithm>
#include <cstdio>

namespace kesta::booklet_watermark {
std::optional<QStringList> loadWatermarkList(QAnyStringView file, WatermarkListBrowser* browser)
{
    const std::optional<Dictionary> root = CopyXMLData(file);
    const Array* entries = root ? root->array(kWatermarkListKey) : nullptr;
    if (!entries)
        return std::nullopt;
    QStringList names;
    for (const Value& entry : *entries)
        if (const QString* name = entry.string())
            names.append(*name);
    if (browser)
        browser->setItems(names);
    return names;
}

void saveWatermarkList(QAnyStringView file, const std::optional<QStringList>& list)
{
    if (file.isEmpty() || !list)
        return;
    ChangeXMLData(file, WhenUnreadable::StartNew,
                  [&](Dictionary& root) { root.set(kWatermarkListKey, Array(list->begin(), list->end())); });
}

bool loadWatermarkData(QAnyStringView file, QAnyStringView name, _WatermarkData& record)
{
    const std::optional<Dictionary> root = CopyXMLData(file);
    const Dictionary* stored = root ? root->dictionary(name) : nullptr;
    if (!stored) {
        record = {};
        return false;
    }
    ReadWatermark(*stored, record);
    record.isText = record.text.isEmpty() ? 0 : 1;
    return true;
}

void saveWatermarkData(QAnyStringView file, const _WatermarkData& record)
{
    const int error = ChangeXMLData(file, WhenUnreadable::StartNew, [&](Dictionary& root) {
        root.set(NameOf(record), DictionaryFromWatermark(record));
    });
    if (error != 0)
        std::fprintf(stderr, "saveWatermarkData: Error %ld writing data to file\n", long{error});
}

void removeWatermarkData(QAnyStringView file, QAnyStringView name)
{
    ChangeXMLData(file, WhenUnreadable::DoNothing, [&](Dictionary& root) {
        if (root.dictionary(name))
            root.remove(name);
        Array* entries = root.array(kWatermarkListKey);
        if (!entries)
            return;
        const auto isNamed = [&](const Value& entry) { return entry.string() && *entry.string() == name; };
        const auto found = std::find_if(entries->begin(), entries->end(), isNamed);
        if (found != entries->end())
            entries->erase(found);
    });
}

void storeFontData(QAnyStringView file, QAnyStringView key, const QByteArray& data)
{
    ChangeXMLData(file, WhenUnreadable::DoNothing, [&](Dictionary& root) { root.set(key, data); });
}

void loadFontData(QAnyStringView file, QAnyStringView key, QByteArray& buffer)
{
    const std::optional<Dictionary> root = CopyXMLData(file);
    if (const QByteArray* data = root ? root->data(key) : nullptr)
        buffer.append(*data);
}

} // namespace kesta::booklet_watermark
