#pragma once

#include "pde/forms/BoundControls.h"
#include "pde/interface/PanelOperations.h"
#include "pde/interface/TicketKeys.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QPointer>

// A panel that is one window over one record: the slots of such a panel are the same in all of them and stand here. An
// author says what is the panel's own:
//
//     constexpr FormPanel<DeliveryOptions> kPanel{ ... };
//     ... GetDeliveryPanelInterface(...) { return kesta::GiveForm<kesta::delivery::kPanel>(holder); }
namespace kesta {

// Made before Prologue, destroyed after Terminate; it never moves.
template <class Options> struct FormContext {
    const Bundle* bundle = nullptr;
    QPointer<QWidget> pane; // given by the shell; the controls are found in it by number
    QPointer<QWidget> view; // what Open puts into it
    ppd_file_t* ppd = nullptr;
    Options options;
    EventHandler handler;
};

template <class Record> struct FormPanel {
    using Options = Record;
    using Context = FormContext<Record>;

    const char* bundle = kPlugInIdentifier;
    const char* title; // key of a text
    const char* interfaceFile;
    const char* window;
    FourCharCode signature;
    Bindings<Record> bindings = {};

    // The whole way between the tickets and the options; nothing: as the bindings say, for kPrintingManagerClient.
    void (*Read)(Record&, const Ticket& settings, ppd_file_t*) = nullptr;
    void (*Write)(const Record&, Ticket& settings) = nullptr;

    void (*Opened)(Context&) = [](Context&) {};           // once: the controls are there and filled
    void (*Show)(const Context&) = [](const Context&) {}; // what the bindings don't show, after each change
    void (*Hit)(Context&, const HitEvent&) = [](Context&, const HitEvent&) {}; // the bindings have taken theirs
    EventResult (*Draw)(const Context&, const DrawEvent&) = [](const Context&, const DrawEvent&) {
        return EventResult::NotHandled;
    };

    void read(Record& options, const Ticket& settings, ppd_file_t* ppd) const
    {
        if (Read)
            Read(options, settings, ppd);
        else
            ReadBindings(bindings, options, settings, ppd);
    }
    void write(const Record& options, Ticket& settings) const
    {
        if (Write)
            Write(options, settings);
        else
            WriteBindings(bindings, options, TicketWriter(settings, kPrintingManagerClient));
    }
};

// The slots. A panel that differs in one takes the others from here into a PanelOperations of its own.
template <const auto& kForm> struct FormSlots {
    using Form = std::remove_cvref_t<decltype(kForm)>;
    using Context = typename Form::Context;

    static BoundControls<typename Form::Options> Controls(const Context& panel)
    {
        return {{.root = panel.pane, .signature = kForm.signature, .bundle = *panel.bundle, .ppd = panel.ppd},
                kForm.bindings};
    }

    static PanelDescription Prologue(Context& panel)
    {
        panel.bundle = &BundleNamed(kForm.bundle);
        return {.title = LocalizedString(*panel.bundle, kForm.title), .creator = "KPDE"_code};
    }

    static OSStatus Initialize(Context& panel, QWidget& pane, PrintSession& session)
    {
        panel.pane = &pane;
        panel.ppd = PPDGetCurrent();
        return Sync(panel, session, SyncDirection::TicketsToControls);
    }

    static OSStatus Sync(Context& panel, PrintSession& session, SyncDirection direction)
    {
        const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
        if (!settings)
            return status;
        if (direction == SyncDirection::ControlsToTickets) {
            kForm.write(panel.options, *settings);
        } else {
            kForm.read(panel.options, *settings, panel.ppd);
            Show(panel, Showing::TicketRead);
        }
        return noErr;
    }

    // Without its window the panel stays empty. Opened again, it has its controls and shows what the options say now.
    static OSStatus Open(Context& panel)
    {
        if (panel.view)
            Show(panel, Showing::Opened);
        if (panel.view || !panel.pane)
            return noErr;
        std::unique_ptr<QWidget> window = CreateWindowFromNib(*panel.bundle, kForm.interfaceFile, kForm.window);
        if (!window)
            return noErr;
        panel.view = EmbedAndShowControl(std::move(window), *panel.pane);
        Controls(panel).fill();
        kForm.Opened(panel);
        Show(panel, Showing::Opened);
        panel.handler = InstallEventHandler(
            *panel.pane, [&panel](const HitEvent& hit) { return TakeHit(panel, hit); },
            [&panel](const DrawEvent& draw) { return kForm.Draw(panel, draw); });
        return noErr;
    }

    static void Show(const Context& panel, Showing when)
    {
        Controls(panel).show(panel.options, when);
        kForm.Show(panel);
    }

    static EventResult TakeHit(Context& panel, const HitEvent& hit)
    {
        if (hit.control.signature != kForm.signature)
            return EventResult::NotHandled;
        Controls(panel).take(hit, panel.options);
        kForm.Hit(panel, hit);
        kForm.Show(panel);
        return EventResult::NotHandled;
    }

    static constexpr PanelOperations<Context> kOperations{
        .Prologue = Prologue,
        .Initialize = Initialize,
        .Sync = Sync,
        .Open = Open,
    };
};

template <const auto& kForm> KestaStatus GiveForm(const PanelInterfaceHolder** holder)
{
    return GivePanel<FormSlots<kForm>::kOperations>(holder);
}

} // namespace kesta
