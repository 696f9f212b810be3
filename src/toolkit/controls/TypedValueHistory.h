#pragma once

#include <QAnyStringView>
#include <QString>

#include <vector>

namespace kesta {

class Dictionary;

// Typed values are kept under a key each, newest first, no text twice, at most this many.
inline constexpr int kTypedValueHistoryLimit = 10;

// Entries that are no texts, empty ones, repetitions and those over the limit are left out.
std::vector<QString> TypedValueHistory(const Dictionary& preferences, QAnyStringView key);

// Puts the text first; an empty text changes nothing.
void RememberTypedValue(Dictionary& preferences, QAnyStringView key, const QString& text);

// The same rule on a list.
void RememberTypedValue(std::vector<QString>& history, const QString& text);

} // namespace kesta
