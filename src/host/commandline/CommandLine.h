#pragma once

#include "host/job/JobRequest.h"

#include <QByteArrayList>
#include <QStringList>

#include <optional>
#include <span>

namespace kesta::host {

// What the user asked for. Texts are as given; an empty one was not given.
struct CommandLine {
    bool help = false;
    bool version = false;
    bool listOptions = false;
    bool noDialog = false;
    bool silent = false;
    QString queue;                // -d, "queue" or "queue/instance"; empty: the default one
    QString server;               // -h, "host[:port][/version=1.1]" or the path of a socket; empty: the default one
    std::optional<QString> title; // -t; an empty one counts, too
    JobPresets presets;           // -o, -n, -P
    QString ppdPath;
    QString deviceURI;
    QString settingsPath;
    QString saveSettingsPath;
    QString scriptPath; // "-" is standard input
    QStringList panels;
    QByteArrayList files; // local paths as the shell gave them; none: the document is on standard input

    bool operator==(const CommandLine&) const = default;
};

struct CommandLineResult {
    CommandLine commandLine;
    Message error; // naming the argument and the way out; empty: the command line is good
};

// The arguments without the program's name. Letters join as in lp: -sd QUEUE, -n2, -n 2.
CommandLineResult ParseCommandLine(std::span<const char* const> arguments);

// What --help prints.
QString UsageText();

} // namespace kesta::host
