#pragma once

#include "platform/values/Value.h"

#include <QAnyStringView>
#include <QString>

#include <functional>
#include <map>
#include <optional>

namespace kesta {

inline constexpr char kPMPrintSettingsTicket[] = "PMPrintSettingsTicket";
inline constexpr char kPMPageFormatTicket[] = "PMPageFormatTicket";
inline constexpr char kPMPrinterInfoTicket[] = "PMPrinterInfoTicket";

// A printer as the print system knows it. What is not known is empty.
struct PMPrinter {
    QString queue = {};     // the print queue's name; empty for a printer that is a PPD alone
    QString name = {};      // as a person reads it
    QString ppdPath = {};   // a local file
    QString deviceURI = {}; // may carry a password: never show or log it whole
};

// One run of the print dialog, kept by the host: the tickets by name, as 32-bit references, and the current
// printer.
struct PrintSession {
    std::map<QString, std::uint32_t> data = {};
    std::optional<PMPrinter> printer = {};
    std::function<bool(const Dictionary& printSettings)> canCarry = {}; // null: whatever there is
    // Choices that the plug-in has set in the place of the user's for as long as the job is of some kind: option
    // keyword to what was chosen before; "" for nothing. Here, because they outlive a pane when the printer changes.
    std::map<QString, QString> replacedChoices = {};
};

void PMSessionSetDataInSession(PrintSession& session, QAnyStringView name, std::uint32_t value);
std::optional<std::uint32_t> PMSessionGetDataFromSession(const PrintSession& session, QAnyStringView name);

// Null while no printer is chosen; else good until the session changes printers.
const PMPrinter* PMSessionGetCurrentPrinter(const PrintSession& session);

// Whether a job with these print settings can be sent; asked before something large is added to them.
bool PMSessionCanCarry(const PrintSession& session, const Dictionary& printSettings);

inline constexpr char kPMPPDDescriptionType[] = "PMPPDDescriptionType";

// The place of the printer's description as a file: URL; nothing when it has none, or none of that type.
std::optional<QString> PMPrinterGetDescriptionURL(const PMPrinter& printer, QAnyStringView type);
QString PMPrinterGetDeviceURI(const PMPrinter& printer); // empty when it is not known

} // namespace kesta
