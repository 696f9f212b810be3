#pragma once

#include "platform/printsystem/Ticket.h"

#include <QString>

#include <array>
#include <optional>

namespace kesta::host {

enum class Orientation : SInt32 { Portrait = 1, Landscape = 2, ReversePortrait = 3, ReverseLandscape = 4 };

inline constexpr SInt32 kMostCopies = 9999;
inline constexpr auto kPagesPerSheet = std::to_array<SInt32>({1, 2, 4, 6, 9, 16});

// What the dialog's own controls edit.
struct HostSettings {
    QString jobName = {};
    SInt32 copies = 1;       // 1..kMostCopies
    QString pageRanges = {}; // "1-4,7"; empty for all pages
    Orientation orientation = Orientation::Portrait;
    SInt32 pagesPerSheet = 1; // one of kPagesPerSheet

    bool operator==(const HostSettings&) const = default;
};

void WriteTickets(const HostSettings& settings, Ticket& printSettings, Ticket& pageFormat);

// An entry that is missing, of another type or out of range gives the default.
HostSettings ReadTickets(const Ticket& printSettings, const Ticket& pageFormat);

// The sheet as the printer knows it, before orientation and margins: points, origin at the top left.
struct PaperRect {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;

    bool operator==(const PaperRect&) const = default;
};

void WritePaperRect(const PaperRect& paper, Ticket& pageFormat);
std::optional<PaperRect> ReadPaperRect(const Ticket& pageFormat);

// How sides are printed unless a panel says otherwise: 1 one-sided, 2 and 3 two-sided. What stands in the ticket stays.
void WriteInitialDuplexing(SInt32 duplexing, Ticket& printSettings);

} // namespace kesta::host
