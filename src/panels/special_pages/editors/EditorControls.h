#pragma once

#include "panels/special_pages/editors/PageTextRules.h"
#include "panels/special_pages/paper/StockMenu.h"

namespace kesta {

enum class ModalResult : SInt32;

namespace editors {

// The numbers of the controls in SpecialPages/Inserts and SpecialPages/Office Exceptions. Each has a signature of its
// own; the covers editor has the last three, too.
enum Control : SInt32 {
    kPageLabel = 1,
    kPageField = 2,
    kPageHint = 3,
    kPaperPicture = 4,
    kPaperSummary = 5,
    kPaperButton = 6,
    kJobPicture = 7,
    kJobSummary = 8,
    kDefaultsButton = 9,
};

// The job's paper, for comparison; nothing without one.
void ShowJobStock(const Bundle& bundle, const QWidget& window, FourCharCode signature, const Stock* jobStock);

void FocusPageField(const QWidget& window, FourCharCode signature); // its text selected
void EnableOK(const QWidget& window, bool enabled);

// Says why the pages can't be taken, then lets the user go on in the field.
void RefusePages(const Bundle& bundle, QWidget* field, OSStatus status);

// Selects the item of that value; where the menu has none, one that tells it and can't be chosen anew.
void ShowTicketValue(PopupButton* popup, SInt32 value, const QString& foreignTitle);

// The page field, the paper button and the job's paper of an editor of pages with one stock.
void InitializePageEditor(_StockMenuCommandEventHandlerData& paper, const QWidget& window, FourCharCode signature,
                          const Stock* jobStock);

// Whether a command has chosen paper with tabs, which asks for more.
bool ChoseTabStock(const CommandEvent& command, const Stock& stock);
} // namespace editors

} // namespace kesta
