#pragma once

#include "pde/FakePanels.h"
#include "pde/interface/PlugInInterface.h"
#include "pde/menus/SystemUtilities.h"
#include "pde/shell/PDEShell.h"
#include "platform/printsystem/Ticket.h"
#include "platform/system/Notices.h"
#include "printer/PPDUtilities.h"
#include "support/CurrentPrinter.h"
#include "support/FakeSystem.h"
#include "support/TestTexts.h"
#include "toolkit/windows/InterfaceFile.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPushButton>

namespace kesta::test {

// A print dialog with a default and a cancel button, around a pane with three fake panels that is driven through its
// ten slots, on the product's printer.
class ShellTest : public testing::Test {
protected:
    ShellTest()
    {
        ForgetSystemVersion();
        shell::GetShownPanel() = {};
        Bundle bundle = BundleWithTexts({"PDE Shell", "Previous", "Next", "Invalid Secure Print Passcode Header"});
        bundle.strings.dictionary("Localizable")->set("Invalid Secure Print Passcode Message", "%2 to %1");
        FakePanel<'1'>::AddTo(bundle);
        FakePanel<'2'>::AddTo(bundle);
        FakePanel<'3'>::AddTo(bundle);
        LoadBundle(kPlugInIdentifier, std::move(bundle));
        usePanels({"Get1", "Get2", "Get3"});
        PMSessionSetDataInSession(session(), kPMPrintSettingsTicket, ticket.reference());
        SetControlCommand(print, kCommandOK);
        print.setDefault(true);
        SetControlCommand(cancel, kCommandCancel);
    }
    ~ShellTest() override
    {
        if (prologue.context)
            terminate();
        KestaPDEUsePanels(nullptr);
        ForgetSystemVersion();
    }

    void usePanels(std::vector<const char*> names)
    {
        names.push_back(nullptr);
        ASSERT_EQ(KestaPDEUsePanels(names.data()), noErr);
    }
    void initialize()
    {
        ASSERT_EQ(slots.Prologue(&prologue), noErr);
        ASSERT_EQ(slots.Initialize(prologue.context, nullptr, nullptr, &pane, &session()), noErr);
    }
    void open()
    {
        if (!prologue.context)
            initialize();
        ASSERT_EQ(slots.Open(prologue.context), noErr);
    }
    OSStatus terminate()
    {
        const OSStatus status = slots.Terminate(std::exchange(prologue.context, nullptr), noErr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return status;
    }

    PrintSession& session() { return printer.session; }
    shell::PDEShellContext& context() { return *static_cast<shell::PDEShellContext*>(prologue.context); }
    PopupButton* choice() { return FindPopupButton(&pane, {shell::kSignature, shell::kPanelChoice}); }
    QWidget* control(SInt32 number) { return FindControl(&pane, {shell::kSignature, number}); }
    EventResult command(FourCharCode code) { return SendControlEvent(print, CommandEvent{.command = code}); }
    QWidget* userPane(SInt32 index) { return FindControl(&dialog, {shell::kUserPaneSignature, index}); }

    FakeSystem system;
    WhileInstalled<SystemConfiguration> systemInstalled{system};
    CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    Ticket ticket;
    QWidget dialog;
    QWidget pane{&dialog};
    QPushButton print{&dialog}, cancel{&dialog};
    const PanelInterface slots = shell::GetShellInterface();
    KestaPrologue prologue{};
};

} // namespace kesta::test
