#pragma once

#include "platform/values/Value.h"

namespace kesta {

// The number under key as T (SInt32, SInt64, Float32 or Float64); nothing when it is absent, not a number, or a number
// that T cannot hold exactly.
template <class T> std::optional<T> CFDictionaryGetNumber(const Dictionary& dictionary, QAnyStringView key)
{
    const Value* value = dictionary.find(key);
    return value && value->number() ? value->number()->as<T>() : std::nullopt;
}

inline void CFDictionarySetNumber(Dictionary& dictionary, QAnyStringView key, Number number)
{
    dictionary.set(key, number);
}

// The nested dictionary under key, put there empty when there is none.
inline Dictionary& CFDictionaryGetDictionaryOrCreate(Dictionary& dictionary, QAnyStringView key)
{
    if (!dictionary.dictionary(key))
        dictionary.set(key, Dictionary());
    return *dictionary.find(key)->dictionary();
}

} // namespace kesta
