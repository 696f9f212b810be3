#pragma once

#include "platform/values/Message.h"

#include <QStringList>

#include <initializer_list>

namespace kesta {

struct Bundle;

// The format with its placeholders %1 to %9 replaced by the arguments, each where a translator put it and as often; one
// without an argument stays. What an argument contains is never taken for a placeholder.
QString FormatText(QStringView format, const QStringList& arguments);

// The message in words, those of the first of the tables that has its key. Where none has it (a bundle that is missing
// or damaged), the key and what belongs to it, so that a person still reads what happened.
QString Sentence(const Message& message, const Bundle& texts,
                 std::initializer_list<const char*> tables = {"Localizable"});

// The bundle of the program that shows the dialog, which has the platform's sentences in its tables. Without one, as in
// another program, it has no texts.
const Bundle& HostTexts();

// What the bundle's text of a countable thing reads for that many: its plural form, %n replaced by the number.
QString LocalizedCount(const Bundle& bundle, QAnyStringView key, int count, QAnyStringView table = "Localizable");

} // namespace kesta
