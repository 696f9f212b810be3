#pragma once

#include "platform/values/Message.h"

#include <QAnyStringView>
#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace kesta::host {

// One name=value of a print job.
struct JobOption {
    QString name;
    QString value;

    bool operator==(const JobOption&) const = default;
};

// In the order given; every name once.
using JobOptions = std::vector<JobOption>;

// Nothing when there is no such option. Names are compared as the print server does: without regard to case.
std::optional<QString> FindJobOption(const JobOptions& options, QAnyStringView name);

// Replaces an option of that name or adds one at the end.
void SetJobOption(JobOptions& options, QAnyStringView name, const QString& value);

void RemoveJobOption(JobOptions& options, QAnyStringView name);

// Adds what "name=value name2='a value' flag noflag" holds, as lp's -o does; a later value replaces an earlier one;
// otherwise the order of one text's options is the library's. The form is also that of the options string that the
// print server hands to a filter.
void ParseJobOptions(const QByteArray& text, JobOptions& options);

// Why a name or value can't travel to the print server unharmed; nothing when it can.
std::optional<Message> JobOptionFault(const JobOption& option);

} // namespace kesta::host
