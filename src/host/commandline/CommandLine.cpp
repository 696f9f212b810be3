#include "host/commandline/CommandLine.h"

#include "host/job/HostTickets.h"
#include "host/job/PageRanges.h"

#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// What one parsing run knows besides its result.
struct Parser {
    std::span<const char* const> arguments;
    std::size_t next = 0;
    bool standardInput = false;
    CommandLineResult result = {};
};

using Fault = std::optional<Message>;
using Apply = Fault (*)(CommandLine& line, const QByteArray& value);

Fault SetCopies(CommandLine& line, const QByteArray& value)
{
    bool isNumber = false;
    const int copies = value.toInt(&isNumber);
    if (!isNumber || copies > kMostCopies)
        return Say("Copies Not A Number", QString::fromUtf8(value), kMostCopies);
    if (copies < 1)
        return Say("Copies Too Few", copies);
    line.presets.copies = copies;
    return {};
}

Fault SetPages(CommandLine& line, const QByteArray& value)
{
    const QString text = QString::fromUtf8(value);
    const PageRanges pages = ParsePageRanges(text);
    if (pages.problem != PageRangesProblem::None || pages.ranges.empty())
        return Say("Page List Unusable", text);
    line.presets.pageRanges = WritePageRanges(pages.ranges, u","_s);
    return {};
}

Fault AddOptions(CommandLine& line, const QByteArray& value)
{
    // The library takes a carriage return for a blank and would cut the value in silence.
    if (std::ranges::any_of(value, [](char c) { return c == 0x7f || (c >= 0 && c < ' ' && c != '\t' && c != '\n'); }))
        return Say("Option With Control Character", QString::fromUtf8(value).simplified());
    JobOptions given;
    ParseJobOptions(value, given);
    if (given.empty())
        return Say("Option Without Name", QString::fromUtf8(value));
    for (const JobOption& option : given) {
        if (auto fault = JobOptionFault(option))
            return fault;
        SetJobOption(line.presets.options, option.name, option.value);
    }
    return {};
}

Fault SetPanels(CommandLine& line, const QByteArray& value)
{
    line.panels = QString::fromUtf8(value).split(u',');
    if (std::ranges::any_of(line.panels, &QString::isEmpty))
        return Say("Panel Without Name", QString::fromUtf8(value));
    return {};
}

template <auto member> Fault SetText(CommandLine& line, const QByteArray& value)
{
    line.*member = QString::fromUtf8(value);
    return {};
}

template <QString CommandLine::*member> Fault SetPath(CommandLine& line, const QByteArray& value)
{
    if (value.isEmpty())
        return Say("File Name Empty");
    line.*member = QFile::decodeName(value);
    return {};
}

template <bool CommandLine::*member> Fault SetFlag(CommandLine& line, const QByteArray&)
{
    line.*member = true;
    return {};
}

struct OptionRow {
    std::string_view name;
    const char* wanted; // what must follow; null: nothing
    Apply apply;
};

constexpr auto kLetters = std::to_array<OptionRow>({
    {"d", "destination", SetText<&CommandLine::queue>},
    {"h", "hostname", SetText<&CommandLine::server>},
    {"n", "copies", SetCopies},
    {"o", "option=value", AddOptions},
    {"P", "page list", SetPages},
    {"s", nullptr, SetFlag<&CommandLine::silent>},
    {"t", "title", SetText<&CommandLine::title>},
});

constexpr auto kLongOptions = std::to_array<OptionRow>({
    {"ppd", "file name", SetPath<&CommandLine::ppdPath>},
    {"device-uri", "address", SetText<&CommandLine::deviceURI>},
    {"settings", "file name", SetPath<&CommandLine::settingsPath>},
    {"save-settings", "file name", SetPath<&CommandLine::saveSettingsPath>},
    {"script", "file name", SetPath<&CommandLine::scriptPath>},
    {"panels", "list of names", SetPanels},
    {"no-dialog", nullptr, SetFlag<&CommandLine::noDialog>},
    {"list-options", nullptr, SetFlag<&CommandLine::listOptions>},
    {"help", nullptr, SetFlag<&CommandLine::help>},
    {"version", nullptr, SetFlag<&CommandLine::version>},
});

const OptionRow* FindRow(std::span<const OptionRow> rows, std::string_view name)
{
    const auto found = std::ranges::find(rows, name, &OptionRow::name);
    return found == rows.end() ? nullptr : &*found;
}

std::optional<QByteArray> NextArgument(Parser& parser)
{
    if (parser.next == parser.arguments.size())
        return std::nullopt;
    return QByteArray(parser.arguments[parser.next++]);
}

Fault ApplyRow(Parser& parser, const OptionRow& row, const QString& shown, std::optional<QByteArray> value)
{
    if (row.wanted && !value)
        value = NextArgument(parser);
    if (row.wanted && !value)
        return Say("Option Without Value", QString::fromLatin1(row.wanted), shown);
    if (!row.wanted && value)
        return Say("Option Takes No Value", shown);
    return row.apply(parser.result.commandLine, value.value_or(QByteArray()));
}

Fault ParseLong(Parser& parser, const QByteArray& argument)
{
    const qsizetype equals = argument.indexOf('=');
    const QByteArray name = argument.mid(2, equals < 0 ? -1 : equals - 2);
    const QString shown = u"--"_s + QString::fromUtf8(name);
    const OptionRow* row = FindRow(kLongOptions, std::string_view(name.constData(), std::size_t(name.size())));
    if (!row)
        return Say("Option Not Known", shown);
    return ApplyRow(parser, *row, shown, equals < 0 ? std::nullopt : std::optional(argument.mid(equals + 1)));
}

// One argument of letters: flags until a letter that takes the rest, or the next argument, as its value.
Fault ParseLetters(Parser& parser, const QByteArray& argument)
{
    for (qsizetype i = 1; i < argument.size(); ++i) {
        const OptionRow* row = FindRow(kLetters, std::string_view(argument.constData() + i, 1));
        const QByteArray rest = argument.mid(i + 1);
        if (!row)
            return Say("Option Not Known", QString(QString::fromUtf8(argument.mid(i)).front()));
        const bool takesRest = row->wanted && !rest.isEmpty();
        const QString shown = u"-"_s + QLatin1Char(argument[i]);
        if (Fault fault = ApplyRow(parser, *row, shown, takesRest ? std::optional(rest) : std::nullopt))
            return fault;
        if (row->wanted)
            break;
    }
    return {};
}

Fault ParseAll(Parser& parser)
{
    bool optionsEnded = false;
    while (const auto argument = NextArgument(parser)) {
        Fault fault;
        if (*argument == "-")
            parser.standardInput = true;
        else if (!optionsEnded && *argument == "--")
            optionsEnded = true;
        else if (!optionsEnded && argument->startsWith("--"))
            fault = ParseLong(parser, *argument);
        else if (!optionsEnded && argument->startsWith('-'))
            fault = ParseLetters(parser, *argument);
        else
            parser.result.commandLine.files << *argument;
        if (fault)
            return fault;
    }
    return {};
}

Fault FindContradiction(const Parser& parser)
{
    const CommandLine& line = parser.result.commandLine;
    if (parser.standardInput && !line.files.isEmpty())
        return Say("Standard Input And Files");
    if (line.scriptPath == u"-" && line.ppdPath.isEmpty() && line.files.isEmpty())
        return Say("Standard Input Twice");
    if (!line.ppdPath.isEmpty() && !line.queue.isEmpty())
        return Say("PPD And Queue", line.queue);
    if (!line.deviceURI.isEmpty() && line.ppdPath.isEmpty())
        return Say("Address Without PPD");
    if (line.noDialog && !line.scriptPath.isEmpty())
        return Say("Script Without Dialog");
    return {};
}

} // namespace

CommandLineResult ParseCommandLine(std::span<const char* const> arguments)
{
    Parser parser{arguments};
    Fault fault = ParseAll(parser);
    if (!fault && !parser.result.commandLine.help && !parser.result.commandLine.version)
        fault = FindContradiction(parser);
    parser.result.error = fault.value_or(Message());
    return parser.result;
}

QString UsageText()
{
    return uR"(Usage: kesta-print [options] [FILE...]
Shows the print dialog for the files and prints them. With no file, or with "-", prints standard input.

  -d QUEUE              print to this queue (QUEUE/INSTANCE for an instance) instead of the default one
  -h HOST[:PORT]        ask this print server; a path names its socket
  -n COPIES             number of copies, 1 to 9999
  -o NAME=VALUE         set a printer or job option; several in one argument are separated by blanks
  -P PAGES              pages to print, as in 1-4,7,16-
  -s                    do not print the request id
  -t TITLE              title of the job
  --                    what follows are files

  --ppd FILE            the printer is this PPD, without a queue: Print saves the settings and sends nothing
  --device-uri URI      the address of the printer of --ppd
  --settings FILE       start from saved job settings
  --save-settings FILE  write the job settings after Print
  --no-dialog           apply the settings and print without a window
  --script FILE         play a dialog script; "-" reads it from standard input
  --panels NAME,...     show these panels instead of the product's
  --list-options        list the printer's options and their choices
  --help                show this text
  --version             show the version

What is set by -o prevails over saved settings, -n and -P prevail over -o, and what you set in the dialog prevails over
all of them. The exit status is 0 after printing or saving, 1 after an error, and 3 when the dialog was cancelled. A script
that played to its end has 0.)"_s;
}

} // namespace kesta::host
