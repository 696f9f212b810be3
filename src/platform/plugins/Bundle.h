#pragma once

#include "platform/values/Message.h"
#include "platform/values/Value.h"

#include <memory>

namespace kesta {

using BundleFunction = void (*)();
class BundleParts; // the opened catalogues and code

// A plug-in: a folder NAME.plugin/Contents with Info.plist, Linux/NAME.so, Resources/ and, in it, the texts
// Translations/NAME_LOCALE.qm. One in memory, for tests, has what it was given only.
struct Bundle {
    QString resourcesPath = {};
    Dictionary strings = {}; // table name to a dictionary of key to text; wins over the catalogues
    QString path = {};       // of the folder NAME.plugin; empty in memory
    QString identifier = {};
    Dictionary info = {};                             // of Info.plist
    std::map<QString, BundleFunction> functions = {}; // by name; wins over the code
    std::shared_ptr<BundleParts> parts = {};          // null in memory
};

inline constexpr char kStringNotFound[] = "STRING NOT FOUND";
inline constexpr char kCFBundleHelpBookName[] = "CFBundleHelpBookName";

// Null when no bundle of that identifier is loaded.
const Bundle* FindBundle(QAnyStringView identifier);
// One that has nothing in its place, whose texts read "STRING NOT FOUND".
const Bundle& BundleNamed(QAnyStringView identifier);

// In order of their identifiers.
std::vector<const Bundle*> LoadedBundles();

// Registers a bundle made in memory, in place of the one of that identifier. The answer stays good as long as the
// process runs.
const Bundle& LoadBundle(QAnyStringView identifier, Bundle bundle);

struct BundleOrError {
    const Bundle* bundle = nullptr;
    Message error = {}; // a sentence with the place, when there is no bundle
};
// Opens the bundle in the folder and registers it; its code is loaded by the first look-up of a function. A bundle that
// is loaded already is answered as it is; another one under the same identifier is an error.
BundleOrError LoadBundleAt(const QString& path);

// The text of a key in the user's language, else in a wider one (de_AT, de), else in English; "STRING NOT FOUND" when
// no catalogue has it. The languages are those of QLocale() when the bundle was loaded. With a count, the plural form
// for so many things, with "%n" still in it.
QString LocalizedString(const Bundle& bundle, QAnyStringView key, QAnyStringView table = "Localizable", int count = -1);

// The language that the bundle's texts are in, as its catalogue names it ("he", "de_AT"): of the first language of the
// user that there is a catalogue for. Empty for a bundle in memory or without catalogues.
QString TextsLanguage(const Bundle& bundle);

// Loads the bundle's code, once; nothing on success, otherwise a sentence that says why not.
std::optional<Message> LoadCode(const Bundle& bundle);

// Null when the bundle does not export a function of that name or its code can't be loaded. The caller knows its type.
BundleFunction FunctionNamed(const Bundle& bundle, QAnyStringView name);

// The user's languages as in file names, the preferred one first, each followed by the wider ones ("de_AT", "de"), and
// English at the end.
QStringList PreferredLanguages();

} // namespace kesta
