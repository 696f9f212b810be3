#include "host/script/DialogScript.h"

#include "host/script/ScriptKeys.h"

#include <QStringDecoder>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr qsizetype kLongestLine = 16 * 1024; // characters
constexpr std::size_t kMostWords = 1024;      // on one line

struct Word {
    QString text = {};
    bool quoted = false; // only a bare word is a #number or an =value
};

// What a line reads so far; the first reason stays.
struct Reader {
    std::vector<Word> words;
    QString reason;

    bool fail(const QString& why)
    {
        if (reason.isEmpty())
            reason = why;
        return false;
    }
};

std::optional<QChar> Escaped(QChar letter)
{
    switch (letter.unicode()) {
    case u'"':
    case u'\\':
        return letter;
    case u'n':
        return u'\n';
    case u't':
        return u'\t';
    default:
        return std::nullopt;
    }
}

// Reads the quoted text whose opening quote is at position, which is left behind the closing one.
bool ReadQuoted(QStringView line, qsizetype& position, Reader& reader)
{
    Word word{.quoted = true};
    for (++position; position < line.size() && line[position] != u'"'; ++position) {
        QChar next = line[position];
        if (next == u'\\') {
            const std::optional<QChar> escaped = ++position < line.size() ? Escaped(line[position]) : std::nullopt;
            if (!escaped)
                return reader.fail(u"a backslash stands before a quote, a backslash, n or t only"_s);
            next = *escaped;
        }
        word.text += next;
    }
    if (position >= line.size())
        return reader.fail(u"the closing quote is missing"_s);
    ++position;
    if (position < line.size() && !line[position].isSpace())
        return reader.fail(u"a blank is missing after the closing quote"_s);
    reader.words.push_back(std::move(word));
    return true;
}

// "#16" names a control, "# 16" and "#sixteen" begin a comment, and so does any # at the start of a line.
bool BeginsComment(QStringView line, qsizetype position, const Reader& reader)
{
    return line[position] == u'#' &&
           (reader.words.empty() || position + 1 >= line.size() || !line[position + 1].isDigit());
}

bool SplitWords(QStringView line, Reader& reader)
{
    qsizetype position = 0;
    while (position < line.size()) {
        if (line[position].isSpace()) {
            ++position;
        } else if (BeginsComment(line, position, reader)) {
            return true;
        } else if (reader.words.size() >= kMostWords) {
            return reader.fail(u"too many words"_s);
        } else if (line[position] == u'"') {
            if (!ReadQuoted(line, position, reader))
                return false;
        } else {
            const qsizetype start = position;
            while (position < line.size() && !line[position].isSpace())
                ++position;
            reader.words.push_back({.text = line.sliced(start, position - start).toString()});
        }
    }
    return true;
}

bool ReadNumber(QStringView digits, std::optional<SInt32>& number, Reader& reader)
{
    bool valid = false;
    const int read = digits.toInt(&valid);
    if (!valid)
        return reader.fail(u"\"%1\" is not a number"_s.arg(digits));
    number = read;
    return true;
}

bool ReadName(const Word& word, ScriptName& name, Reader& reader)
{
    if (!word.quoted && word.text.startsWith(u'#'))
        return ReadNumber(QStringView(word.text).sliced(1), name.number, reader);
    name.text = word.text;
    return !ComparableName(word.text).isEmpty() || reader.fail(u"a name is empty"_s);
}

bool ReadItem(const Word& word, ScriptName& item, Reader& reader)
{
    if (!word.quoted && word.text.startsWith(u'='))
        return ReadNumber(QStringView(word.text).sliced(1), item.value, reader);
    return ReadName(word, item, reader);
}

bool ReadFlag(const Word& word, QStringView yes, QStringView no, bool& flag, Reader& reader)
{
    flag = word.text == yes;
    return flag || word.text == no || reader.fail(u"\"%1\" is neither %2 nor %3"_s.arg(word.text, yes, no));
}

// One reader a form of arguments; each finds as many words as its row of the table says.
using ReadArguments = bool (*)(Reader& reader, ScriptStep& step);

bool ReadNothing(Reader&, ScriptStep&)
{
    return true;
}

bool ReadPanel(Reader& reader, ScriptStep& step)
{
    const Word& word = reader.words[1];
    if (!word.quoted && word.text.front().isDigit())
        return ReadNumber(word.text, step.target.number, reader);
    return ReadName(word, step.target, reader);
}

bool ReadTarget(Reader& reader, ScriptStep& step)
{
    return ReadName(reader.words[1], step.target, reader);
}

bool ReadTargetAndItem(Reader& reader, ScriptStep& step)
{
    return ReadTarget(reader, step) && ReadItem(reader.words[2], step.item, reader);
}

// A field may be expected to be empty.
bool ReadTargetAndValue(Reader& reader, ScriptStep& step)
{
    const Word& word = reader.words[2];
    return ReadTarget(reader, step) && (word.text.isEmpty() || ReadItem(word, step.item, reader));
}

bool ReadCommand(Reader& reader, ScriptStep& step)
{
    const QByteArray code = reader.words[1].text.toLatin1();
    if (code.size() != 4 || QString::fromLatin1(code) != reader.words[1].text)
        return reader.fail(u"a command has four characters"_s);
    step.command = PackCode(code.constData());
    return true;
}

bool ReadCheck(Reader& reader, ScriptStep& step)
{
    return ReadTarget(reader, step) && ReadFlag(reader.words[2], u"on", u"off", step.flag, reader);
}

bool ReadTargetAndText(Reader& reader, ScriptStep& step)
{
    step.text = reader.words[2].text;
    return ReadTarget(reader, step);
}

bool ReadKey(Reader& reader, ScriptStep& step)
{
    const std::optional<ScriptKey> key = ScriptKeyNamed(reader.words[1].text);
    if (!key)
        return reader.fail(u"\"%1\" is not the name of a key"_s.arg(reader.words[1].text));
    step.key = *key;
    return true;
}

bool ReadRows(Reader& reader, ScriptStep& step)
{
    for (std::size_t i = 2; i < reader.words.size(); ++i) {
        std::optional<SInt32> row;
        if (!ReadNumber(reader.words[i].text, row, reader))
            return false;
        if (*row < 1)
            return reader.fail(u"rows count from 1"_s);
        step.numbers.push_back(*row);
    }
    return ReadTarget(reader, step);
}

bool ReadEnabled(Reader& reader, ScriptStep& step)
{
    return ReadTarget(reader, step) && ReadFlag(reader.words[2], u"yes", u"no", step.flag, reader);
}

bool ReadStatus(Reader& reader, ScriptStep& step)
{
    return reader.words.size() < 2 || ReadNumber(reader.words[1].text, step.status, reader);
}

bool ReadDirection(Reader& reader, ScriptStep& step)
{
    return ReadFlag(reader.words[1], u"from-tickets", u"to-tickets", step.flag, reader);
}

bool ReadText(Reader& reader, ScriptStep& step)
{
    step.text = reader.words[1].text;
    return !step.text.isEmpty() || reader.fail(u"a text is empty"_s);
}

struct VerbRow {
    const char* name;
    ScriptVerb verb;
    std::size_t least; // words after the verb
    std::size_t most;
    ReadArguments read;
    const char* usage;
};

constexpr auto kVerbs = std::to_array<VerbRow>({
    {"panel", ScriptVerb::Panel, 1, 1, ReadPanel, "panel NAME|NUMBER"},
    {"choose", ScriptVerb::Choose, 2, 2, ReadTargetAndItem, "choose CONTROL ITEM"},
    {"command", ScriptVerb::Command, 1, 1, ReadCommand, "command CODE"},
    {"check", ScriptVerb::Check, 2, 2, ReadCheck, "check CONTROL on|off"},
    {"type", ScriptVerb::Type, 2, 2, ReadTargetAndText, "type CONTROL TEXT"},
    {"key", ScriptVerb::Key, 1, 1, ReadKey, "key NAME"},
    {"press", ScriptVerb::Press, 1, 1, ReadTarget, "press BUTTON"},
    {"select", ScriptVerb::Select, 1, kMostWords, ReadRows, "select LIST [ROW...]"},
    {"expect", ScriptVerb::Expect, 1, 1, ReadText, "expect TEXT"},
    {"expect-value", ScriptVerb::ExpectValue, 2, 2, ReadTargetAndValue, "expect-value CONTROL VALUE"},
    {"expect-enabled", ScriptVerb::ExpectEnabled, 2, 2, ReadEnabled, "expect-enabled CONTROL yes|no"},
    {"sync", ScriptVerb::Sync, 1, 1, ReadDirection, "sync to-tickets|from-tickets"},
    {"dump", ScriptVerb::Dump, 1, 1, ReadText, "dump FILE"},
    {"summary", ScriptVerb::Summary, 0, 0, ReadNothing, "summary"},
    {"screenshot", ScriptVerb::Screenshot, 1, 1, ReadText, "screenshot FILE"},
    {"print", ScriptVerb::Print, 0, 0, ReadNothing, "print"},
    {"cancel", ScriptVerb::Cancel, 0, 1, ReadStatus, "cancel [STATUS]"},
});

const VerbRow* FindVerb(const Word& word)
{
    for (const VerbRow& row : kVerbs) {
        if (!word.quoted && word.text == QLatin1StringView(row.name))
            return &row;
    }
    return nullptr;
}

bool ReadStep(Reader& reader, ScriptStep& step)
{
    const VerbRow* row = FindVerb(reader.words.front());
    if (!row)
        return reader.fail(u"\"%1\" is not an action"_s.arg(reader.words.front().text.left(40)));
    const std::size_t arguments = reader.words.size() - 1;
    if (arguments < row->least || arguments > row->most)
        return reader.fail(u"this action is written: %1"_s.arg(QLatin1StringView(row->usage)));
    step.verb = row->verb;
    return row->read(reader, step);
}

// Nothing on success, else the reason.
QString ReadLine(QStringView text, int line, std::vector<ScriptStep>& steps)
{
    Reader reader;
    if (text.size() > kLongestLine)
        return u"the line is too long"_s;
    if (text.contains(QChar::Null))
        return u"the line holds a null character"_s;
    if (!SplitWords(text, reader))
        return reader.reason;
    if (reader.words.empty())
        return {};
    ScriptStep step{.line = line};
    if (!ReadStep(reader, step))
        return reader.reason;
    steps.push_back(std::move(step));
    return {};
}

} // namespace

QString ScriptFault(int line, const QString& reason)
{
    return u"script line %1: %2"_s.arg(line).arg(reason);
}

DialogScript ParseDialogScript(const QByteArray& utf8)
{
    if (utf8.size() > kLargestScript)
        return {.steps = {}, .error = ScriptFault(1, u"the script is larger than 1 MiB"_s)};
    DialogScript script;
    int line = 0;
    for (QByteArrayView rest = utf8; !rest.isEmpty();) {
        const qsizetype end = rest.indexOf('\n');
        const QByteArrayView bytes = end < 0 ? rest : rest.first(end);
        rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
        ++line;
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder(bytes);
        const QString reason = decoder.hasError() ? u"the text is not UTF-8"_s : ReadLine(text, line, script.steps);
        if (!reason.isEmpty())
            return {.steps = {}, .error = ScriptFault(line, reason)};
    }
    return script;
}

QString ComparableName(const QString& shown)
{
    QString name;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const QStringView rest = QStringView(shown).sliced(i);
        if (rest.size() >= 4 && rest[0] == u'(' && rest[1] == u'&' && rest[3] == u')')
            i += 3; // the mark of scripts without letters of their own: "(&P)"
        else if (rest[0] != u'&')
            name += rest[0];
        else if (rest.size() > 1 && rest[1] == u'&')
            name += shown[++i];
    }
    name = name.simplified();
    while (name.endsWith(u':') || name.endsWith(u'\uFF1A'))
        name = name.chopped(1).trimmed();
    return name.toCaseFolded();
}

} // namespace kesta::host
