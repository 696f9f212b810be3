#pragma once

#include "platform/values/Value.h"

#include <QByteArray>
#include <QByteArrayList>

#include <functional>

namespace kesta::ticket_tool {

struct Outcome {
    int status = 0;    // the program's exit status: 0, 1 after an error, or kStatusSealed
    QByteArray output; // for standard output, as it is
    QString error;     // one line; with status 0 a note, or empty
};

// Everything was written but what is sealed.
inline constexpr int kStatusSealed = 2;

// Where the private key is when neither the command line nor the environment says so.
inline constexpr char kDefaultKeyPath[] = KESTA_TICKET_KEY_FILE;

// Runs the program without its name among the arguments; "keyPath" counts where these name no other. "readInput" gives
// standard input whole; it is called only when the options are to come from there.
Outcome RunTicketTool(const QByteArrayList& arguments, const QString& keyPath,
                      const std::function<QByteArray()>& readInput);

// The entry at a path of keys with "/" between them; in an array a position from 0 takes the place of a key. A key that
// itself has a "/" is found too. Null when there is none.
const Value* FindEntry(const Value& root, const QString& path);

// As a filter's author wants it: strings, numbers and "true" or "false" bare, data as base64, a date as in a property
// list, arrays and dictionaries as XML property lists.
QByteArray WriteEntry(const Value& value);

} // namespace kesta::ticket_tool
