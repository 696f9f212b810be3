#include "host/job/TicketSecrets.h"

namespace kesta::host {
namespace {

constexpr char kPath[] = "Path";
constexpr char kValue[] = "Value";

using Path = std::vector<QString>;

Value AsValue(const Path& path)
{
    return Array(path.begin(), path.end());
}

void Take(Value& value, const char* entry, Path& path, Array& taken)
{
    if (Dictionary* dictionary = value.dictionary()) {
        std::vector<QString> keys;
        for (const auto& [key, inner] : *dictionary)
            keys.push_back(key);
        for (const QString& key : keys) {
            path.push_back(key);
            if (key == QLatin1StringView(entry)) {
                taken.emplace_back(Dictionary{{kPath, AsValue(path)}, {kValue, *dictionary->find(key)}});
                dictionary->remove(key);
            } else {
                Take(*dictionary->find(key), entry, path, taken);
            }
            path.pop_back();
        }
    } else if (Array* array = value.array()) {
        for (std::size_t i = 0; i < array->size(); ++i) {
            path.push_back(QString::number(i));
            Take((*array)[i], entry, path, taken);
            path.pop_back();
        }
    }
}

Value* Child(Value& value, const QString& step)
{
    if (Dictionary* dictionary = value.dictionary())
        return dictionary->find(step);
    bool isNumber = false;
    const std::size_t position = step.toULongLong(&isNumber);
    Array* array = value.array();
    return array && isNumber && position < array->size() ? &(*array)[position] : nullptr;
}

// Where a taken entry stood: the dictionary, which has no such entry now. Null when there is none.
Dictionary* PlaceOf(Dictionary& ticket, const Array& path)
{
    if (path.size() < 2 || !path.front().string() || !path.back().string())
        return nullptr;
    Value* inner = ticket.find(*path.front().string());
    for (std::size_t i = 1; inner && i + 1 < path.size(); ++i)
        inner = path[i].string() ? Child(*inner, *path[i].string()) : nullptr;
    Dictionary* place = inner ? inner->dictionary() : nullptr;
    return place && !place->find(*path.back().string()) ? place : nullptr;
}

} // namespace

Array TakeSecrets(Dictionary& ticket, std::span<const NestedEntry> secrets)
{
    Array taken;
    for (const NestedEntry& secret : secrets) {
        Path path{QString::fromUtf8(secret.key)};
        if (Value* value = ticket.find(secret.key))
            Take(*value, secret.entry, path, taken);
    }
    return taken;
}

bool PutSecretsBack(Dictionary& ticket, const Array& taken)
{
    for (const Value& secret : taken) {
        const Array* path = secret.dictionary() ? secret.dictionary()->array(kPath) : nullptr;
        const Value* value = path ? secret.dictionary()->find(kValue) : nullptr;
        Dictionary* place = value ? PlaceOf(ticket, *path) : nullptr;
        if (!place)
            return false;
        place->set(*path->back().string(), *value);
    }
    return true;
}

} // namespace kesta::host
