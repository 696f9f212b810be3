#pragma once

#include "pde/interface/PanelOperations.h"
#include "platform/printsystem/Ticket.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/PictureView.h"

#include <gtest/gtest.h>

#include <utility>

namespace kesta::test {

// A panel in a pane, on the product's printer and over a session with two empty tickets, driven through its ten slots.
class PanelTest : public testing::Test {
protected:
    using GetInterface = KestaStatus (*)(const PanelInterfaceHolder** holder);

    PanelTest(GetInterface getInterface, FourCharCode signature, Bundle bundle,
              const char* identifier = kPlugInIdentifier)
        : signature_(signature)
    {
        LoadBundle(identifier, std::move(bundle));
        PMSessionSetDataInSession(session, kPMPrintSettingsTicket, ticket.reference());
        PMSessionSetDataInSession(session, kPMPageFormatTicket, pageFormat.reference());
        const PanelInterfaceHolder* holder = nullptr;
        getInterface(&holder);
        slots = holder->table;
        slots->Prologue(&prologue);
    }
    ~PanelTest() override
    {
        if (prologue.context)
            terminate();
    }

    OSStatus initialize() { return slots->Initialize(prologue.context, nullptr, nullptr, &pane, &session); }
    void open()
    {
        ASSERT_EQ(initialize(), noErr);
        ASSERT_EQ(slots->Open(prologue.context), noErr);
    }
    OSStatus sync(bool toControls) { return slots->Sync(prologue.context, &session, toControls); }
    void terminate() { slots->Terminate(std::exchange(prologue.context, nullptr), noErr); }

    QWidget* control(SInt32 number) { return FindControl(&pane, {signature_, number}); }
    PopupButton* popup(SInt32 number) { return FindPopupButton(&pane, {signature_, number}); }
    QString picture(SInt32 number)
    {
        const auto* view = FindControlAs<PictureView>(&pane, {signature_, number});
        return view ? view->picture() : QStringLiteral("no view");
    }

    CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    PrintSession& session = printer.session;
    Ticket ticket, pageFormat; // the first one is the print settings
    QWidget pane;
    const PanelInterface* slots = nullptr;
    KestaPrologue prologue{};

private:
    const FourCharCode signature_;
};

} // namespace kesta::test
