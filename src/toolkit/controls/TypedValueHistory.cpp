#include "toolkit/controls/TypedValueHistory.h"

#include "platform/values/Value.h"

#include <algorithm>

namespace kesta {

std::vector<QString> TypedValueHistory(const Dictionary& preferences, QAnyStringView key)
{
    std::vector<QString> history;
    const Array* stored = preferences.array(key);
    if (!stored)
        return history;
    for (const Value& value : *stored) {
        const QString* text = value.string();
        if (history.size() == kTypedValueHistoryLimit)
            break;
        if (text && !text->isEmpty() && std::ranges::find(history, *text) == history.end())
            history.push_back(*text);
    }
    return history;
}

void RememberTypedValue(std::vector<QString>& history, const QString& text)
{
    if (text.isEmpty())
        return;
    std::erase(history, QString(text));
    history.insert(history.begin(), text);
    if (history.size() > kTypedValueHistoryLimit)
        history.resize(kTypedValueHistoryLimit);
}

void RememberTypedValue(Dictionary& preferences, QAnyStringView key, const QString& text)
{
    if (text.isEmpty())
        return;
    std::vector<QString> history = TypedValueHistory(preferences, key);
    RememberTypedValue(history, text);
    preferences.set(key, Array(history.begin(), history.end()));
}

} // namespace kesta
