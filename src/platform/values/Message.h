#pragma once

#include <QString>

#include <concepts>
#include <vector>

namespace kesta {

// Something to tell a person, without its words: code that has no window says what happened, and who shows it finds
// the words in the catalogues (platform/plugins/Sentence.h).
struct Message {
    QString key = {};                    // of a sentence; empty: the text stands as it is
    std::vector<Message> arguments = {}; // what stands in the sentence's places %1, %2, and so on
    QString text = {};                   // not ours to translate: a name, a number, what a server or a library says

    bool isEmpty() const { return key.isEmpty() && text.isEmpty(); }
    bool operator==(const Message&) const = default;
};

inline Message Verbatim(const QString& text)
{
    return {.text = text};
}

inline Message Verbatim(std::integral auto number)
{
    return {.text = QString::number(number)};
}

inline Message Verbatim(const Message& message)
{
    return message;
}

// A sentence with texts, numbers and other messages in its places.
template <class... Arguments> Message Say(const char* key, const Arguments&... arguments)
{
    return {.key = QString::fromLatin1(key), .arguments = {Verbatim(arguments)...}};
}

} // namespace kesta
